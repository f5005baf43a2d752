# SPDX-License-Identifier: GPL-3.0-or-later
"""The deck of gold engravings on midnight blue: emblems on an axis, each with a Hebrew letter, a numeral and the glyph
of a planet, sign or element.

Shapes are dark and hide what lies behind them, contours and lines are gold. What is drawn while a scene is `chased` is
the other way round: dark lines cut into solid gold.
"""
import numpy as np
from scipy import ndimage as nd

from engraving import dots, glyph, radial, star
from fx import fbm, grid, hexf, mix, ramp, raster
from kit import Layer, Scene, circ, rect

PIGMENTS = {
    'night': '#0b1238', 'deep': '#070b25', 'ind': '#16205a', 'flesh': '#131c52', 'white': '#10184a',
    'gold': '#1a2260', 'red': '#141b50', 'blue': '#0e1644', 'sky': '#17235c', 'hair': '#18225c', 'iris': '#050818',
    'pearl': '#cfa94e', 'wood': '#10184a', 'stone': '#121a4e', 'dark': '#050818', 'green': '#0e1644', 'earth': '#0a1134',
    'fire': '#1d2668', 'leaf': '#e6c36a', 'bone': '#1a2460'}
SOLID_GOLD = ('leaf', 'pearl')
CUT_OUT = ('iris', 'lip', 'dark')       # pigments that are dark even where the engraver works on gold
GOLD = [(0, '#7a5320'), (.3, '#b9873a'), (.55, '#e3bd66'), (.8, '#f8e6ae'), (1, '#fff8e0')]
SKY = [(0, '#2b3a8f'), (.22, '#1a2568'), (.5, '#0f1742'), (1, '#060918')]
STARLIGHT = np.array([.9, .92, 1.0], np.float32)
NEAR_GLOW, WIDE_GLOW = '#c98b2e', '#7a5a9a'
LETTER_FONT, NUMERAL_FONT = 'Stam Ashkenaz CLM', 'Quattrocento'
BOX = rect(38, 38, 524, 1004, 14)       # what the picture may fill
FOCUS_REACH = (380, 620)                # half axes over which the sky darkens away from the focus of the picture
LINE = .62                              # width of an engraved line, as a share of that of the scene


# ---------- frame ----------
def rules(F):
    """Triple rounded rule."""
    F.stroke(rect(18, 18, 564, 1044, 26), 2.2)
    F.stroke(rect(27, 27, 546, 1026, 20), 5)
    F.stroke(rect(37, 37, 526, 1006, 14), 1.4)


def corner_fans(F):
    """A fan in each corner, with specks along its edge."""
    for x, y, rot in ((37, 37, 0), (563, 37, 90), (563, 1043, 180), (37, 1043, 270)):
        with F.at(x, y, 1, rot):
            F.fill('M0 0H64A64 64 0 0 1 0 64Z', 'deep', 2.4)
            F.stroke('M56 0A56 56 0 0 1 0 56', 1.4)
            radial(F, 0, 0, 16, 52, 9, 2.4, 5, 95, 'both')
            F.fill('M0 0H15A15 15 0 0 1 0 15Z', 'leaf', 0)
            dots(F, 0, 0, 60, 7, 1.6, 4, 94)


def head(F, letter):
    """The letter in a disc that hangs from the upper rule, waning and waxing moons to both sides."""
    F.fill('M196 37C220 66 236 96 300 96C364 96 380 66 404 37Z', 'deep', 2.4)
    F.fill(circ(300, 66, 43), 'deep', 3)
    F.stroke(circ(300, 66, 37), 1.2)
    dots(F, 300, 66, 40, 48, 1)
    F.text(300, 83, letter, 50, LETTER_FONT)
    for side in (-1, 1):
        limb, terminator = (1, 0) if side > 0 else (0, 1)
        for i, (dx, r) in enumerate(((116, 9), (146, 7.5), (172, 6))):
            x, y = 300 + side * dx, 60
            hollow = r * (1 + .5 * i)
            F.fill(circ(x, y, r), 'deep', 1.6)
            F.add('line', f'M{x} {y - r}A{r} {r} 0 0 {limb} {x} {y + r}'
                          f'A{hollow} {hollow} 0 0 {terminator} {x} {y - r}Z')


def foot(F, numeral, name):
    """The numeral between two stars on the lower rule, the glyph in a disc on either side."""
    F.fill('M150 1043C158 1006 176 984 214 984H386C424 984 442 1006 450 1043Z', 'deep', 2.6)
    F.stroke('M160 1043C168 1012 184 992 216 992H384C416 992 432 1012 440 1043', 1.3)
    F.text(300, 1031, numeral, 40, NUMERAL_FONT, 5)
    beside = 24 + len(numeral) * 13 + 6
    for side in (-1, 1):
        star(F, 300 + side * beside, 1018, 9)
    for side in (-1, 1):
        x, y = 300 + side * 206, 1016
        F.fill(circ(x, y, 21), 'deep', 2.4)
        F.stroke(circ(x, y, 17.5), 1)
        glyph(F, name, x, y, .22, 17)


def frame_c(numeral, letter, name):
    """The frame of a card as a scene of its own."""
    F = Scene(4)
    rules(F)
    corner_fans(F)
    head(F, letter)
    foot(F, numeral, name)
    return F


# ---------- plates ----------
def fill_pen(mark):
    """The dark shapes alone."""
    return f'fill="{PIGMENTS[mark.pig]}"' if mark.kind == 'fill' else None


def gold_pen(mark):
    """White where there is gold; dark shapes hide what lies behind them."""
    if mark.chased:
        return chased_pen(mark)
    if mark.kind == 'fill':
        colour = '#fff' if mark.pig in SOLID_GOLD else '#000'
        return f'fill="{colour}" stroke="#fff" stroke-width="{contour(mark)}" stroke-linejoin="round"'
    if mark.kind == 'stroke':
        return f'fill="none" stroke="#fff" stroke-linecap="round" stroke-width="{max(.9, mark.w * LINE)}"'
    if mark.kind == 'hatch':
        return 'fill="#fff" opacity=".8"'
    if mark.kind in ('line', 'leaf', 'text'):
        return 'fill="#fff"'
    if mark.kind == 'wash' and mark.pig == 'lip':
        return 'fill="#fff" opacity=".75"'
    return None


def chased_pen(mark):
    """Dark drawing on solid gold."""
    if mark.kind == 'fill':
        return f'fill="{"#000" if mark.pig in CUT_OUT else "#fff"}" stroke="#000" stroke-width="{contour(mark)}"'
    if mark.kind == 'stroke':
        return f'fill="none" stroke="#000" stroke-width="{max(.9, mark.w * LINE)}"'
    if mark.kind == 'wash':
        return {'lip': 'fill="#000"', 'white': 'fill="#fff"'}.get(mark.pig)
    return 'fill="#000"'


def contour(mark):
    """Width of a shape's contour; hairlines would vanish."""
    return max(1.1, mark.w * LINE) if mark.w else 0


# ---------- finishing ----------
def starry_sky(away, rng, shape):
    """Midnight blue, lighter about the focus, with fine stars and a few large ones."""
    sky = ramp(np.clip(away + .08 * fbm(shape, 120, rng, 3), 0, 1.3) / 1.3, SKY)
    fine = nd.gaussian_filter((rng.random(shape).astype(np.float32) > .9998).astype(np.float32), 1.0) * 5
    large = nd.gaussian_filter((rng.random(shape) > .99996).astype(np.float32), 1.9) * 16
    return np.clip(sky + ((fine + large) * .5)[..., None] * STARLIGHT, 0, 1)


def foil(lines, away, rng, scale):
    """Gold foil with slow reflections and a bevel at the edges of the lines, brighter about the focus."""
    row, column = grid(lines.shape)
    down, right = np.gradient(nd.gaussian_filter(lines, 1.1))
    sheen = np.sin((column * .55 + row) / (95 * scale) + 1.5 * fbm(lines.shape, 200, rng, 2))
    unevenness = fbm(lines.shape, 30, rng, 2)
    lit = np.clip(.6 - away, -.5, .6)
    return ramp(np.clip(.60 + .20 * sheen + .13 * unevenness - 1.1 * (right + down) + .18 * lit, 0, 1), GOLD)


def render(card, seed=3, scale=2, frame=frame_c):
    """The finished picture, `scale` pixels a unit. The card is a module or class with draw(S), NUM, HEB, GLYPH
    (numeral, letter and the name of the glyph) and FOCUS, the place where the light is."""
    rng = np.random.default_rng(seed)
    picture, border = Scene(seed), frame(card.NUM, card.HEB, card.GLYPH)
    card.draw(picture)

    def pull(pen):
        layer = Layer()
        layer.put(picture.items, pen, inside=BOX)
        layer.put(border.items, pen)
        return raster(layer.svg(), scale)

    shapes, gold = pull(fill_pen), pull(gold_pen)
    lines = gold[..., 0] * gold[..., 3]
    row, column = grid(lines.shape)
    (x, y), (rx, ry) = card.FOCUS, FOCUS_REACH
    away = np.hypot((column - x * scale) / (rx * scale), (row - y * scale) / (ry * scale))
    sky = starry_sky(away, rng, lines.shape)
    alpha = shapes[..., 3]
    colour = np.where(alpha[..., None] > .02, shapes[..., :3] / np.maximum(alpha[..., None], .02), 0)
    image = mix(sky, colour * np.clip(1.25 - .75 * away, .5, 1.3)[..., None], alpha * .93)
    leaf = foil(lines, away, rng, scale)
    near, wide = nd.gaussian_filter(lines, 2.5 * scale), nd.gaussian_filter(lines, 13 * scale)
    image = image + near[..., None] * hexf(NEAR_GLOW) * .20 + wide[..., None] * hexf(WIDE_GLOW) * .16
    image = mix(image, leaf, np.clip(lines * 1.08, 0, 1))
    grain = 1 + .02 * fbm(lines.shape, 8, rng, 2)
    return np.clip(image * grain[..., None], 0, 1)
