#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The pictures of the windows themselves, and the program's icon: a night observatory in midnight blue and old gold.

The backs of the notifications and of the tooltip are made here; the icons are drawn by hand as SVG (they lie beside
their renders) and only rendered here, because the program loads PNG.

    window_pictures.py          write everything
"""
import glob
import math
import os
import subprocess

import numpy as np
from PIL import Image
from scipy import ndimage as nd

import bg
from deck_c import GOLD
from engraving import rosette, star
from fx import fbm, mix, ramp, raster, save
from glyphs import SIGNS, glyph
from kit import Layer, Scene, circ, pol, poly, rect

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
PICTURES = os.path.join(ROOT, 'shell', 'windows', 'pictures')
ICONS = os.path.join(ROOT, 'packaging', 'icons')

SCALE = 2                   # pixels of a back for each pixel of its window
ICON_SIZES = (24, 48)
PROGRAM_ICON_SIZES = (16, 22, 24, 32, 48, 64, 128, 256)
GROUND = [(0, '#070a20'), (.45, '#0e1540'), (1, '#1c2762')]
FRAME = .95                 # strength of the frame's gilding


def frame(scene, w, h):
    """A double rule with a quarter disc in each corner."""
    scene.stroke(rect(4, 4, w - 8, h - 8, 7), 1.3)
    scene.stroke(rect(8, 8, w - 16, h - 16, 4), .6)
    for x, y, turn in ((8, 8, 0), (w - 8, 8, 90), (w - 8, h - 8, 180), (8, h - 8, 270)):
        with scene.at(x, y, 1, turn):
            scene.stroke('M12 0A12 12 0 0 1 0 12', .7)
            for a in (15, 45, 75):
                scene.line([pol(0, 0, 3, a), pol(0, 0, 10, a)], 1.2, 'both')


def crescent(scene, x, y, r):
    """A crescent as an engraver cuts it: lines from tip to tip that crowd toward the lit limb."""
    tip, other = pol(x, y, r, -78), pol(x, y, r, 34)
    cx, cy = x + r * .49, y - r * .23
    a0, a1 = (math.degrees(math.atan2(q[1] - cy, q[0] - cx)) for q in (tip, other))
    hollow = math.dist((cx, cy), tip)
    steps = [k / 48 for k in range(49)]
    limb = [pol(x, y, r, -78 - 248 * t) for t in steps]
    shade = [pol(cx, cy, hollow, a0 - ((a0 - a1) % 360) * t) for t in steps]
    for share, width in ((0, 1.3), (.08, .6), (.17, .55), (.28, .5), (.41, .45), (.56, .4), (.75, .35), (1, .7)):
        line = [(p[0] + (q[0] - p[0]) * share, p[1] + (q[1] - p[1]) * share) for p, q in zip(limb, shade)]
        scene.stroke(poly(line, closed=False), width)


def wheel(scene, x, y, r):
    """A part of the zodiac wheel; what leaves the picture is cut."""
    for radius, width in ((r, 1.1), (r * .97, .5), (r * .78, .5), (r * .76, 1.1)):
        scene.stroke(circ(x, y, radius), width)
    for i, name in enumerate(SIGNS):
        glyph(scene, name, *pol(x, y, r * .873, 165 - 30 * i), r * .0013, 13)
        scene.line([pol(x, y, r * .78, 30 * i), pol(x, y, r * .97, 30 * i)], .8, 'flat')
    rosette(scene, x, y, r * .72, r * .42, 7, .35, 480)
    scene.stroke(circ(x, y, r * .36), .7)
    scene.stroke(poly([pol(x, y, r * (.16 if i % 2 else .30), i * 11.25) for i in range(32)]), .8)


def moon_and_stars(scene, w, h):
    crescent(scene, w - 54, h / 2 - 1, 29)
    for dx, dy, r in ((34, -24, 8), (82, 28, 4.5), (96, -18, 3.5), (118, 8, 2.5)):
        star(scene, w - dx, h / 2 + dy, r)


def rising_wheel(scene, w, h):
    wheel(scene, w - 42, h - 6, 118)


def observatory_sky(scene, w, h):
    """The wheel as a great arch over the lower edge, and the Moon in the corner."""
    wheel(scene, w / 2, h + 66, 196)
    crescent(scene, w - 40, 42, 16)
    for x, y, r in ((34, 40, 5), (60, 28, 2.5), (w - 74, 28, 3), (w - 30, 78, 2.5)):
        star(scene, x, y, r)


def orbit(scene, w, h):
    """Two orbits that run out of the right-hand edge, each with its planet."""
    for r, width, at in ((92, .9, 202), (62, .7, 160)):
        scene.stroke(circ(w + 6, h / 2, r), width)
        scene.add('leaf', circ(*pol(w + 6, h / 2, r, at), 4 if r > 80 else 2.8))
    star(scene, w - 28, h / 2, 15, 8, .36)


BACKS = {  # name: width and height of the window, what lies behind the text, how strongly it shows
    'notif_small': (340, 120, moon_and_stars, .62),
    'notif_middle': (340, 178, rising_wheel, .50),
    'notif_large': (340, 243, observatory_sky, .34),
    'tooltip': (380, 130, orbit, .55)}


def mask_of(scene, w, h):
    """Coverage 0 to 1 of the lines of a scene."""
    layer = Layer(w, h)
    layer.put(scene.items, lambda mark: f'fill="none" stroke="#fff" stroke-width="{mark.w}"' if mark.kind == 'stroke' else 'fill="#fff"')
    return raster(layer.svg(), SCALE, w)[..., 3]


def back(w, h, motif, strength, seed):
    """A calm night ground, the motif faintly gilt, the frame brightly."""
    rng = np.random.default_rng(seed)
    behind, rules, opening = Scene(seed), Scene(seed), Scene(seed)
    motif(behind, w, h)
    frame(rules, w, h)
    opening.add('leaf', rect(9, 9, w - 18, h - 18, 3))
    faint, bright = mask_of(behind, w, h) * mask_of(opening, w, h), mask_of(rules, w, h)
    shape = faint.shape
    row, column = np.mgrid[0:shape[0], 0:shape[1]].astype(np.float32)
    away = np.hypot((column - .62 * shape[1]) / shape[1], (row - .35 * shape[0]) / (1.4 * shape[0]))
    image = ramp(np.clip(.95 - 1.35 * away + .10 * fbm(shape, 260, rng, 4), 0, 1), GROUND)
    dots = nd.gaussian_filter((rng.random(shape) > .9993).astype(np.float32), .8)
    image = image + (dots * .9)[..., None] * bg.STARLIGHT
    sheen = .22 * np.sin((column + row) / 120) + .1 * fbm(shape, 50, rng, 2)
    image = mix(image, ramp(np.clip(.45 + .5 * sheen, 0, 1), GOLD), faint * strength)
    image = image + nd.gaussian_filter(bright, 5)[..., None] * np.array([.30, .21, .09], np.float32)
    return np.clip(mix(image, ramp(np.clip(.58 + sheen, 0, 1), GOLD), bright * FRAME), 0, 1)


def render(svg, size, path):
    subprocess.run(['rsvg-convert', '-w', str(size), '-h', str(size), svg, '-o', path], check=True)


def make():
    for seed, (name, (w, h, motif, strength)) in enumerate(BACKS.items()):
        save(back(w, h, motif, strength, seed), os.path.join(PICTURES, name + '.png'))
    for svg in sorted(glob.glob(os.path.join(PICTURES, '*.svg'))):
        for size in ICON_SIZES:
            render(svg, size, f'{svg[:-4]}-{size}.png')
    for size in PROGRAM_ICON_SIZES:
        render(os.path.join(ICONS, 'velmoriax.svg'), size, os.path.join(ICONS, f'velmoriax-{size}.png'))
    sky = Image.fromarray((bg.night() * 255 + .5).astype(np.uint8))
    sky.save(os.path.join(PICTURES, 'night.jpg'), quality=84, optimize=True, progressive=True)


if __name__ == '__main__':
    make()
