# SPDX-License-Identifier: GPL-3.0-or-later
"""The deck of hand-coloured woodcuts: black lines printed from a worn block, colours washed in through stencils, on old
paper."""
import numpy as np
from scipy import ndimage as nd

from fx import fbm, hexf, noise, paper, raster, sstep, warp
from kit import Layer, Scene, rect

PIGMENTS = {
    'flesh': '#edc5a0', 'white': '#f3e7c8', 'iris': '#2f5f96', 'blush': '#cf5535', 'lip': '#b0302a', 'gold': '#e3a92a',
    'pearl': '#f3e7c8', 'blue': '#1f4f8c', 'sky': '#86aebb', 'red': '#ae241f', 'green': '#6b8446', 'hair': '#e3a92a',
    'wood': '#d29a58', 'stone': '#dcc8a0', 'earth': '#dcc67c', 'dark': '#23405f', 'fire': '#d86a2a',
    'bone': '#efe0c0'}
BLACK = '#1d1512'               # the printer's ink
PAPER_WHITE = '#f6ead0'         # a colour equal to this leaves the paper as it is
FONT = 'Essays1743'
BOX = rect(38, 98, 524, 856)    # the picture between the bands of numeral and title


def frame_b(numeral, title):
    """Rules round the card and between its bands, numeral and title; long titles are set smaller."""
    F = Scene(7)
    F.stroke(rect(36, 36, 528, 1008), 7)
    F.stroke([(36, 98), (300, 99), (564, 97)], 5.5)
    F.stroke([(36, 954), (300, 953), (564, 955)], 5.5)
    F.stroke(rect(25, 25, 550, 1030), 2.6)
    if numeral:
        F.text(300, 84, numeral, 46, FONT, 4)
    if title:
        F.text(300, 1016, title, 46 if len(title) < 15 else 40 if len(title) < 17 else 35, FONT, 2)
    return F


# ---------- plates ----------
def ink_pen(mark):
    """The block: black lines, and white shapes that hide what lies behind them."""
    if mark.kind == 'fill' and mark.w:
        return f'fill="#fff" stroke="#000" stroke-width="{mark.w * 1.12}" stroke-linejoin="round"'
    if mark.kind == 'fill':
        return 'fill="#fff"'
    if mark.kind == 'stroke':
        return f'fill="none" stroke="#000" stroke-linecap="round" stroke-width="{mark.w}"'
    if mark.kind in ('line', 'hatch', 'text'):
        return 'fill="#000"'
    return None


def colour_pen(mark):
    """The stencils. Highlights are left to the paper."""
    if mark.kind == 'fill':
        return f'fill="{PIGMENTS[mark.pig]}" stroke="{PIGMENTS[mark.pig]}" stroke-width="1.5"'
    if mark.kind == 'wash' and mark.pig != 'white':
        return f'fill="{PIGMENTS[mark.pig]}" opacity="{mark.opacity}"'
    return None


# ---------- finishing ----------
def printed(block, rng):
    """How much ink lies on each pixel: the lines of the block wobble, spread into the paper and are worn in patches."""
    shape = block.shape
    dx, dy = 1.5 * fbm(shape, 22, rng, 2), 1.5 * fbm(shape, 22, rng, 2)
    grey = nd.gaussian_filter(warp(block, dx, dy), 1.7) + .06 * noise(shape, 6, rng)
    thin = .25 * np.clip(fbm(shape, 60, rng) - .25, 0, 1)
    bare = .8 * sstep(.98, 1.25, .45 * noise(shape, 5, rng) + .8 * fbm(shape, 90, rng, 3))
    return (1 - sstep(.46, .72, grey)) * np.clip(1 - thin - bare, .2, 1) * .95


def washed(colours, rng):
    """Colour and density of the washes: a little out of register, uneven, and darker where the brush ended."""
    shape = colours.shape[:2]
    dx = 3.2 * fbm(shape, 130, rng, 2) + rng.uniform(-4, 4)
    dy = 3.2 * fbm(shape, 130, rng, 2) + rng.uniform(-4, 4)
    colours = warp(colours, dx, dy)
    alpha = colours[..., 3]
    rgb = np.where(alpha[..., None] > .01, colours[..., :3], 1)
    flow = .95 + .10 * fbm(shape, 140, rng, 3) + .045 * fbm(shape, 40, rng, 2, stretch=.35)
    brightness = rgb.mean(-1)
    pooled = .9 * np.clip(nd.gaussian_filter(brightness, 7) - brightness, -.05, .2)
    return rgb, np.clip(flow + pooled, .5, 1.12) * nd.gaussian_filter(alpha, 1.2)


def stained(image, density, colour):
    """The picture seen through a glaze of a colour."""
    return image * (1 - density[..., None] * (1 - colour))


def render(draw, numeral, title, seed=3, scale=2):
    """The finished picture, `scale` pixels a unit; draw(S) draws the scene."""
    rng = np.random.default_rng(seed)
    picture, frame = Scene(seed), frame_b(numeral, title)
    draw(picture)
    block, stencils = Layer(ground='#fff'), Layer()
    for layer, pen in ((block, ink_pen), (stencils, colour_pen)):
        layer.put(picture.items, pen, inside=BOX)
        layer.put(frame.items, pen)
    ink = printed(raster(block.svg(), scale)[..., 0], rng)
    rgb, density = washed(raster(stencils.svg(), scale), rng)
    sheet = paper(ink.shape, rng)
    return stained(stained(sheet, density, np.clip(rgb / hexf(PAPER_WHITE), 0, 1)), ink, hexf(BLACK))
