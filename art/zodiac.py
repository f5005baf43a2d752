# SPDX-License-Identifier: GPL-3.0-or-later
"""The twelve signs as gilt glyphs on enamel medallions, 64 pixels, GIF with one transparent colour.

The enamel tells the element: fire crimson, earth emerald, air amethyst, water lapis.
"""
import os
import sys

import numpy as np
from PIL import Image
from scipy import ndimage as nd

import glyphs
from deck_a import GOLD
from fx import fbm, mix, ramp, raster, sstep
from kit import Layer, Scene, circ, pol

SIZE = 64                   # pixels of a picture
FULL = 512                  # pixels at which it is made
UNITS = 128                 # drawing units across the medallion
NIB = 17                    # width of the glyph's pen, in glyph units

STEMS = ['Aries', 'Tauro', 'Geminis', 'Cancer', 'Leo', 'Virgo',
         'Libra', 'Escorpio', 'Sagitario', 'Capricornio', 'Acuario', 'Piscis']
ELEMENTS = ['fire', 'earth', 'air', 'water']
ENAMEL = {  # in the light, in the shade
    'fire': ('#8a1622', '#2c0610'),
    'earth': ('#1d6040', '#08200f'),
    'air': ('#6a4296', '#1e0c38'),
    'water': ('#1c5096', '#08143c')}

# Two waves of three crests: more would close up at this size.
WATER_BEARER = [[(-46, y + 12, 'c'), (-24, y - 14, 'c'), (-10, y + 10, 'c'), (12, y - 14, 'c'), (26, y + 10, 'c'), (46, y - 12, 'c')]
                for y in (-16, 20)]


def mask_of(body):
    """Coverage 0 to 1 of a piece of SVG that is white on nothing."""
    svg = f'<svg xmlns="http://www.w3.org/2000/svg" width="{UNITS}" height="{UNITS}" viewBox="0 0 {UNITS} {UNITS}">{body}</svg>'
    return raster(svg, FULL / UNITS, UNITS)[..., 3]


def glyph_mask(name):
    scene = Scene(1)
    with scene.at(UNITS / 2, UNITS / 2, .67):
        for stroke in WATER_BEARER if name == 'aquarius' else glyphs.SIGNS[name]:
            scene.add('leaf', glyphs.nib(stroke, NIB))
    layer = Layer(UNITS, UNITS)
    layer.put(scene.items, lambda item: 'fill="#fff"')
    return raster(layer.svg(), FULL / UNITS, UNITS)[..., 3]


def rim_mask():
    """A ring with beads, and a hairline inside it."""
    c = UNITS / 2
    beads = ''.join(f'<path d="{circ(*pol(c, c, 53, k * 12), 2.1)}" fill="#fff"/>' for k in range(30))
    rings = ''.join(f'<circle cx="{c}" cy="{c}" r="{r}" fill="none" stroke="#fff" stroke-width="{w}"/>' for r, w in ((59, 6), (47.5, 1.6)))
    return mask_of(rings + beads)


def gilt(mask, rng):
    """Light on the raised metal, from the top left, as a value on the gold ramp."""
    row, column = np.mgrid[0:FULL, 0:FULL].astype(np.float32)
    height = nd.gaussian_filter(np.minimum(nd.distance_transform_edt(mask > .5), 20).astype(np.float32), 2.2)
    down, right = np.gradient(height)
    return .58 - .40 * (right + down) + .10 * fbm(mask.shape, 60, rng, 3) + .12 * np.sin((row + column) / 90)


def medallion(name, element):
    """Floating point RGBA of one sign."""
    rng = np.random.default_rng(5)
    row, column = np.mgrid[0:FULL, 0:FULL].astype(np.float32)
    half = FULL / 2
    r, around = np.hypot(column - half, row - half) / half, np.arctan2(row - half, column - half)
    metal = np.clip(glyph_mask(name) + rim_mask(), 0, 1)
    light, shade = ENAMEL[element]
    enamel = ramp(np.clip(1 - r * .9 - .25 * ((row - half) / FULL + .1), 0, 1), [(0, shade), (1, light)])
    enamel *= (1 + .10 * np.sin(around * 36 + 6 * np.sin(r * 14)))[..., None]               # engine turning under the glass
    shadow = nd.shift(nd.gaussian_filter(metal, 7), (9, 6))
    enamel *= (1 - .6 * np.clip(shadow, 0, 1))[..., None]
    image = mix(enamel, ramp(np.clip(gilt(metal, rng), 0, 1), GOLD), metal)
    image *= (1 - .5 * np.clip(nd.gaussian_filter(metal, 3) - metal, 0, 1))[..., None]      # dark seam around the metal
    gloss = np.exp(-(((column - FULL * .40) / (FULL * .30)) ** 2 + ((row - FULL * .24) / (FULL * .16)) ** 2))
    image = np.clip(image + (.10 * gloss * (1 - metal))[..., None], 0, 1)
    return np.dstack([image, 1 - sstep(.968, .975, r)])


def save_gif(rgba, path):
    """Reduces to SIZE pixels and 255 colours; index 255 is the transparent one."""
    image = Image.fromarray((rgba * 255 + .5).astype(np.uint8), 'RGBA').resize((SIZE, SIZE), Image.LANCZOS)
    paletted = image.convert('RGB').quantize(255, method=Image.MEDIANCUT, dither=Image.FLOYDSTEINBERG)
    index = np.asarray(paletted).copy()
    index[np.asarray(image)[..., 3] <= 127] = 255
    out = Image.fromarray(index, 'P')
    out.putpalette((paletted.getpalette() + [0] * 765)[:765] + [0, 0, 0])
    out.save(path, transparency=255, optimize=False)


def make(data_dir):
    """Writes signos/Aries_sm.gif to Piscis_sm.gif."""
    target = os.path.join(data_dir, 'signos')
    os.makedirs(target, exist_ok=True)
    for i, (name, stem) in enumerate(zip(glyphs.SIGNS, STEMS)):
        save_gif(medallion(name, ELEMENTS[i % 4]), os.path.join(target, stem + '_sm.gif'))


if __name__ == '__main__':
    make(sys.argv[1] if len(sys.argv) > 1 else os.path.join(os.path.dirname(os.path.dirname(os.path.abspath(__file__))), 'data'))
