# SPDX-License-Identifier: GPL-3.0-or-later
"""The night sky behind the windows: midnight blue, a little nebula and stars, a faint gilt zodiac wheel at the right."""
import numpy as np
from scipy import ndimage as nd

from deck_c import GOLD
from engraving import rosette, star
from fx import fbm, hexf, mix, ramp, raster
from glyphs import SIGNS, glyph
from kit import Layer, Scene, circ, pol

SKY = [(0, '#05081c'), (.4, '#0c1338'), (.7, '#1b2460'), (1, '#3a3486')]
NEBULA = '#5a3a8a'
LAMP = '#a87a3a'            # the glow of the gilt lines
STARLIGHT = np.array([.9, .93, 1], np.float32)
STARS = [(.9992, .7, 3.2), (.99985, 1.2, 9), (.99997, 2.0, 26)]     # rarity, radius, strength


def wheel(x, y):
    """The zodiac wheel: band of signs, divided circle, turned rosette and a star of sixteen points. The signs run
    counterclockwise from the left, as on a chart."""
    scene = Scene(2)
    for radius, width in ((372, 2.2), (364, 1), (306, 1), (300, 2.2), (150, 1.4)):
        scene.stroke(circ(x, y, radius), width)
    for i, name in enumerate(SIGNS):
        glyph(scene, name, *pol(x, y, 335, 165 - 30 * i), .36, 12)
        scene.line([pol(x, y, 306, i * 30), pol(x, y, 364, i * 30)], 1.6, 'flat')
    for i in range(144):
        scene.line([pol(x, y, 300, i * 2.5), pol(x, y, 292 if i % 12 else 280, i * 2.5)], 1.2, 'flat')
    rosette(scene, x, y, 270, 160, 9, .7, 720)
    star(scene, x, y, 120, 16, .55, 'leaf')
    return scene


def outline(item):
    """Everything white; closed shapes as hairlines only."""
    if item.kind == 'stroke':
        return f'fill="none" stroke="#fff" stroke-width="{item.w}"'
    if item.kind == 'fill':
        return 'fill="none" stroke="#fff" stroke-width="1.2"'
    return 'fill="#fff"'


def sky(w, h, rng, stars=1.0):
    """The empty night sky as floating point RGB."""
    shape = (h, w)
    row = np.mgrid[0:h, 0:w][0].astype(np.float32)
    cloud = np.clip(.5 + .5 * fbm(shape, 420, rng, 5), 0, 1)
    image = ramp(np.clip(.15 + .45 * (1 - row / h) + .32 * cloud, 0, 1), SKY)
    image = image + (np.clip(fbm(shape, 300, rng, 5), 0, 1) ** 1.6)[..., None] * hexf(NEBULA) * .35
    for rarity, radius, strength in STARS:
        dots = nd.gaussian_filter((rng.random(shape) > rarity).astype(np.float32), radius)
        image = image + (dots * strength * .55 * stars)[..., None] * STARLIGHT
    return image


def night(w=1280, h=800):
    rng = np.random.default_rng(2)
    image = sky(w, h, rng)
    layer = Layer(w, h)
    layer.put(wheel(.68 * w, h / 2).items, outline)
    lines = raster(layer.svg(), 1, w)[..., 3]
    row, column = np.mgrid[0:h, 0:w].astype(np.float32)
    gold = ramp(np.clip(.55 + .25 * np.sin((column + row) / 180) + .1 * fbm((h, w), 60, rng, 2), 0, 1), GOLD)
    glow = nd.gaussian_filter(lines, 7)[..., None] * hexf(LAMP) * .25
    return np.clip(mix(image + glow, gold, lines * .62), 0, 1)
