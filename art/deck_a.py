# SPDX-License-Identifier: GPL-3.0-or-later
"""The deck of enamel and gold leaf: scenes of the majors painted with relief shading over a tooled field, in a gilt
frame.

A picture is drawn several times, each time with another pen: flat colours, which parts are metal, outlines, hatching,
skin. The distance of each pixel from the next line makes every shape swell like a cushion; that relief lights both the
paint and the gold.
"""
import math
from typing import NamedTuple

import numpy as np
from scipy import ndimage as nd

from fx import fbm, grid, hexf, mix, ramp, raster
from kit import Layer, Mark, Scene, circ, pol, poly, ribbon

PIGMENTS = {
    'flesh': '#f3cda6', 'white': '#f7efdc', 'iris': '#2a5c96', 'blush': '#d8552f', 'lip': '#b2241f', 'gold': '#d9a32c',
    'pearl': '#fbf6ea', 'blue': '#1e4596', 'sky': '#5f9bc6', 'red': '#a8182a', 'green': '#2c7350', 'hair': '#d79a34',
    'wood': '#8f5a2b', 'stone': '#c9b48c', 'earth': '#4f6b35', 'dark': '#141a33', 'fire': '#e8651c',
    'bone': '#efe3c4', 'lapis': '#14285f', 'crimson': '#6d1020'}
METAL = 'gold'                          # the pigment that is laid as leaf
SMOOTH = ('flesh', 'white', 'iris')     # pigments whose modelling is kept faint
FIELDS = {                              # middle tone, light, shade
    'lapis': ('#0d1c4a', '#2147a0', '#07112e'),
    'crimson': ('#5d0c1c', '#98182c', '#340510'),
    'emerald': ('#0b3a2c', '#15684a', '#05221b'),
    'night': ('#131a3e', '#34305f', '#080b1d'),
    'plum': ('#3a1140', '#6a2670', '#1f0724')}
GOLD = [(0, '#3a2206'), (.22, '#7d4f12'), (.42, '#b9822a'), (.60, '#e3b64e'), (.76, '#fbe39a'), (.90, '#fff8dc'), (1, '#fffdf2')]
SHADE_BROWN, INK_BROWN = '#4a2410', '#2a130a'
FONT = 'Goudy Bookletter 1911'

CENTRE = (300, 526)                     # about which a scene is fitted into the frame
LIGHT = (300, 420)                      # brightest place of the field
LIGHT_REACH = (330, 520)                # half axes over which that light falls off
LEFT, TOP, RIGHT, BOTTOM = 54, 62, 546, 946     # the frame's opening


# ---------- frame ----------
def arch():
    """Outline of the frame's opening: its upper corners are drawn in with a double curve."""
    r = 92
    return (f'M{LEFT} {BOTTOM}V{TOP + r + 26}'
            f'C{LEFT} {TOP + r - 22} {LEFT + 22} {TOP + 50} {LEFT + r - 16} {TOP + 40}'
            f'C{LEFT + r + 8} {TOP + 34} {LEFT + r + 20} {TOP + 20} {LEFT + r + 24} {TOP}H{RIGHT - r - 24}'
            f'C{RIGHT - r - 20} {TOP + 20} {RIGHT - r - 8} {TOP + 34} {RIGHT - r + 16} {TOP + 40}'
            f'C{RIGHT - 22} {TOP + 50} {RIGHT} {TOP + r - 22} {RIGHT} {TOP + r + 26}V{BOTTOM}Z')


def acanthus(F, x, y, flip):
    """Spray of leaves in a spandrel, growing from its corner at x, y to the lower right."""
    with F.at(x, y, 1, 0, flip):
        for branch in ([(8, 8), (34, 20), (60, 14), (84, 24), (82, 40), (68, 42), (66, 32)],
                       [(8, 8), (20, 34), (14, 60), (24, 84), (40, 82), (42, 68), (32, 66)]):
            F.fill(poly(ribbon(branch, lambda t: 13 * (1 - t) ** .6 * (.6 + .8 * t) + 2)), 'gold', 2.6)
        F.fill([(6, 6, 'c'), (24, 16), (42, 42), (52, 56, 'c'), (38, 46), (16, 24)], 'gold', 2.6)
        F.fill(circ(72, 33, 4.6), 'red', 2)
        F.fill(circ(33, 72, 4.6), 'red', 2)


def mouldings(F):
    """Enamel ground, spandrels and the gilt mouldings round the frame and its opening."""
    opening = arch()
    F.fill(f'M0 0H600V1080H0Z{opening}', 'lapis', 0)
    F.fill('M8 8H592V1072H8ZM22 22V1058H578V22Z', 'gold', 2.6)
    F.fill(f'M40 48H560V958H40Z{opening}', 'crimson', 2.6)
    acanthus(F, LEFT - 8, TOP - 8, False)
    acanthus(F, RIGHT + 8, TOP - 8, True)
    F.add('ring', opening, w=11)
    F.fill('M34 42H566V964H34ZM42 50V956H558V50Z', 'gold', 2.2)


def beads(F):
    """Beads on the enamel border, a boss of four in each corner."""
    for y in range(64, 960, 32):
        for x in (28, 572):
            F.fill(circ(x, y, 4.2), 'gold', 1.6)
    for x in range(64, 560, 32):
        for y in (32, 1048):
            F.fill(circ(x, y, 4.2), 'gold', 1.6)
    for y in (988, 1020):
        for x in (28, 572):
            F.fill(circ(x, y, 4.2), 'gold', 1.6)
    for x, y in ((28, 28), (572, 28), (28, 1052), (572, 1052)):
        for a in range(45, 405, 90):
            F.fill(circ(*pol(x, y, 11, a), 9), 'gold', 2.2)
        F.fill(circ(x, y, 9), 'red', 2.4)
        F.wash(circ(x - 2.5, y - 3, 2.6), 'white', .9)


def title_panel(F, title):
    """Crimson panel with a palmette at each end; long titles are set smaller."""
    F.fill('M40 972H560V1034H40Z', 'crimson', 2.6)
    F.fill('M34 966H566V1040H34ZM42 974V1032H558V974Z', 'gold', 2.2)
    for x, flip in ((60, False), (540, True)):
        with F.at(x, 1003, 1, 0, flip):
            for a in (-28, 0, 28):
                F.fill(poly(ribbon([(-6, 0), pol(0, 0, 14, a), pol(0, 0, 30, a * 1.5)],
                                   lambda t: 11 * math.sin(math.pi * min(1, t * .9 + .1)) + 1)), 'gold', 2)
            F.fill(circ(-4, 0, 5), 'red', 2)
    size = 42 if len(title) < 14 else 36 if len(title) < 17 else 31
    F.text(300, 1003 + size * .33, title, size, FONT, 3)


def numeral_medallion(F, numeral):
    """Hexagon on the upper moulding, as wide as the numeral needs it."""
    w = 30 + 13 * len(numeral)
    left, right = 300 - w, 300 + w
    F.fill(f'M{left} 12H{right}L{right + 18} 38L{right} 64H{left}L{left - 18} 38Z', 'lapis', 2.6)
    F.fill(f'M{left - 2} 8H{right + 2}L{right + 24} 38L{right + 2} 68H{left - 2}L{left - 24} 38Z'
           f'M{left + 2} 15L{left - 14} 38L{left + 2} 61H{right - 2}L{right + 14} 38L{right - 2} 15Z', 'gold', 2.2)
    F.text(300, 51, numeral, 38, FONT, 3)


def frame_a(numeral, title):
    """The frame of a major as a scene of its own."""
    F = Scene(5)
    mouldings(F)
    beads(F)
    title_panel(F, title)
    numeral_medallion(F, numeral)
    return F


# ---------- patterns of the field ----------
def damask(S):
    """Ogee lattice with a palmette in every mesh."""
    across, down = 64, 69
    for row in range(-1, 13):
        for column in range(-1, 11):
            x, y = column * across + (across / 2 if row % 2 else 0), 40 + row * down
            for up in (-1, 1):
                for side in (1, -1):
                    S.line([(x, y + up * 46), (x + side * 20, y + up * 26), (x + side * 31, y)], 2.6)
            for a, length in ((-90, 24), (-58, 19), (-122, 19), (-26, 15), (-154, 15)):
                S.line([(x, y + 8), pol(x, y + 6, length * .6, a), pol(x, y + 4, length, a)], 6.5)
            S.line([(x, y + 8), (x, y + 26)], 3, 'end')
            S.dot(x, y + 8, 3.4)
            S.dot(x + 32, y, 2.4)


def stars(S):
    """Eight-rayed stars in rows set off against each other, every third one small."""
    for row in range(24):
        for column in range(13):
            x, y = 24 + column * 48 + (24 if row % 2 else 0), 50 + row * 42
            size = 9 if (row + column) % 3 else 6
            for a in range(0, 180, 45):
                r = size * (1 if a % 90 == 0 else .55)
                S.line([pol(x, y, r, a), pol(x, y, r, a + 180)], 2.6)


# ---------- plates ----------
EVEN_ODD = ' fill-rule="evenodd"'


def colour_pen(mark):
    """Flat colours without any line."""
    if mark.kind == 'fill':
        return f'fill="{PIGMENTS[mark.pig]}" stroke="{PIGMENTS[mark.pig]}" stroke-width="1"' + EVEN_ODD
    if mark.kind == 'ring':
        return f'fill="none" stroke="{PIGMENTS[METAL]}" stroke-width="{mark.w}"'
    if mark.kind == 'wash':
        return f'fill="{PIGMENTS[mark.pig]}" opacity="{mark.opacity}"'
    if mark.kind == 'text':
        return f'fill="{PIGMENTS[METAL]}"'
    return None


def metal_pen(mark):
    """White where gold is seen; whatever lies on it is black."""
    if mark.kind in ('fill', 'wash'):
        return f'fill="{"#fff" if mark.pig == METAL else "#000"}"' + EVEN_ODD
    if mark.kind == 'ring':
        return f'fill="none" stroke="#fff" stroke-width="{mark.w}"'
    return None


def ink_pen(mark):
    """Black contours and drawn lines; a shape hides the lines behind it."""
    if mark.kind == 'fill' and mark.w:
        return f'fill="#fff" stroke="#000" stroke-width="{max(mark.w * .62, 1)}" stroke-linejoin="round"' + EVEN_ODD
    if mark.kind == 'fill':
        return 'fill="#fff"' + EVEN_ODD
    if mark.kind == 'ring':
        return [f'fill="none" stroke="#000" stroke-width="{mark.w + 3.4}"',
                f'fill="none" stroke="#fff" stroke-width="{mark.w}"']
    if mark.kind == 'stroke':
        return f'fill="none" stroke="#000" stroke-linecap="round" stroke-width="{mark.w * .7}"'
    if mark.kind == 'line':
        return 'fill="#000"'
    return None


def hatching_pen(mark):
    """Black hatching; a shape hides what lies behind it."""
    if mark.kind == 'fill':
        return 'fill="#fff"' + EVEN_ODD
    if mark.kind == 'hatch':
        return 'fill="#000"'
    return None


def skin_pen(mark):
    """White where smooth pigments are seen."""
    if mark.kind == 'fill':
        return f'fill="{"#fff" if mark.pig in SMOOTH else "#000"}"' + EVEN_ODD
    return None


def text_pen(mark):
    """The lettering alone."""
    return 'fill="#fff"' if mark.kind == 'text' else None


def black_pen(_mark):
    """Every mark as a solid black shape."""
    return 'fill="#000"'


class Plates(NamedTuple):
    """The picture as each step of the finishing needs it. All but the colours are masks."""
    colour: np.ndarray          # RGBA
    metal: np.ndarray
    ink: np.ndarray
    hatching: np.ndarray
    skin: np.ndarray
    text: np.ndarray
    opening: np.ndarray         # the frame's opening
    pattern: np.ndarray         # the pattern of the field, unobstructed

    @property
    def alpha(self):
        """Where there is anything drawn over the field."""
        return self.colour[..., 3]


def make_plates(picture, frame, pattern, opening, scale):
    """Draws the picture inside the opening of the frame, once with each pen."""
    def pull(pen, ground=None):
        layer = Layer(ground=ground)
        layer.put(picture.items, pen, inside=opening)
        layer.put(frame.items, pen)
        return raster(layer.svg(), scale)

    hole, field = Layer(), Layer(ground='#fff')
    hole.put([Mark('fill', opening)], black_pen)
    field.put(pattern.items, black_pen)
    return Plates(colour=pull(colour_pen),
                  metal=pull(metal_pen, '#000')[..., 0],
                  ink=1 - pull(ink_pen, '#fff')[..., 0],
                  hatching=1 - pull(hatching_pen, '#fff')[..., 0],
                  skin=pull(skin_pen, '#000')[..., 0],
                  text=pull(text_pen)[..., 3],
                  opening=raster(hole.svg(), scale)[..., 3],
                  pattern=1 - raster(field.svg(), scale)[..., 0])


# ---------- finishing ----------
def relief(distance, r):
    """Slopes to the right and downwards of cushions that rise to the height r away from the lines."""
    height = nd.gaussian_filter((1 - np.exp(-distance / r)) * r, 1.4)
    down, right = np.gradient(height)
    return right, down


def gilt(values):
    """Gold leaf of the given brightness."""
    return ramp(np.clip(values, 0, 1), GOLD)


class Finish:
    """Turns the plates of one card into its picture, a step a method. All that is random is drawn beforehand, so that
    the steps may be changed without changing the others."""

    def __init__(self, plates, scale, rng):
        self.plates, self.scale = plates, scale
        shape = plates.ink.shape
        self.cloud = fbm(shape, 80 * scale, rng, 3)
        self.leaf = fbm(shape, 23 * scale, rng, 3)
        self.texture = fbm(shape, 14, rng, 3, stretch=1.8) * .05 + fbm(shape, 90, rng, 2) * .07
        self.row, self.column = grid(shape)
        self.away = np.hypot((self.column - LIGHT[0] * scale) / (LIGHT_REACH[0] * scale),
                             (self.row - LIGHT[1] * scale) / (LIGHT_REACH[1] * scale))
        lines = (plates.ink > .5) | (np.abs(nd.sobel(plates.metal)) > .5)
        self.from_line = nd.distance_transform_edt(~lines).astype(np.float32)
        self.gold = self.leaf_brightness()

    def sheen(self, length):
        """Phase of slow waves of light across the card; a radian is `length` units high."""
        return (self.column * .6 + self.row) / (length * self.scale)

    def field(self, colours):
        """Enamel that is brightest above the middle."""
        middle, light, shade = colours
        return ramp(np.clip(1 - self.away + .10 * self.cloud, 0, 1), [(0, shade), (.5, middle), (1, light)])

    def leaf_brightness(self):
        """How bright leaf is at each pixel, by the slope of the relief, its own unevenness and the sheen."""
        right, down = relief(self.from_line, 9 * self.scale)
        return .55 - .36 * (right + down) + .11 * self.leaf + .14 * np.sin(self.sheen(75) + 1.2 * self.leaf)

    def tooled(self, image):
        """The pattern as fine raised gold, fading away from the light."""
        pattern = self.plates.pattern
        down, right = np.gradient(nd.gaussian_filter(pattern, 1.0))
        gold = .50 - 1.6 * (right + down) + .12 * self.leaf + .16 * np.sin(self.sheen(85))
        return mix(image, gilt(gold), np.clip(pattern, 0, 1) * .62 * (1 - .45 * np.clip(self.away, 0, 1)))

    def shadowed(self, image):
        """The shadow that the figures cast on the field."""
        soft = nd.gaussian_filter(self.plates.alpha, 4.5 * self.scale)
        shadow = nd.shift(soft, (4 * self.scale, 3 * self.scale), order=0)
        return image * (1 - .55 * np.clip(shadow, 0, 1))[..., None]

    def paint(self):
        """The colours, deeper towards the outlines like layered glaze and on the slopes away from the light."""
        alpha = self.plates.alpha[..., None]
        colour = np.where(alpha > .02, self.plates.colour[..., :3] / np.maximum(alpha, .02), 0)
        right, down = (nd.gaussian_filter(slope, 2.2) for slope in relief(self.from_line, 17 * self.scale))
        light = -(right * .75 + down * .95)
        strength = 1 - .62 * self.plates.skin
        rim = np.exp(-self.from_line / (3.5 * self.scale))
        deep = np.clip(colour * colour * .92, 0, 1)
        paint = mix(colour, deep, np.clip(.62 * rim * strength - .55 * light * strength, 0, .9))
        paint = np.clip(paint * (1 + .30 * np.clip(light, -1, 1) * strength + self.texture)[..., None], 0, 1)
        return mix(paint, 1 - (1 - paint) * .55, np.clip(light - .38, 0, 1) * .75 * strength)

    def drawn(self, image):
        """Hatching and outlines in warm umber."""
        hatching = np.clip(self.plates.hatching * (1 - .35 * self.plates.metal), 0, 1)[..., None]
        image = image * (1 - hatching * .55 * (1 - hexf(SHADE_BROWN)))
        return image * (1 - np.clip(self.plates.ink, 0, 1)[..., None] * .93 * (1 - hexf(INK_BROWN)))

    def edged(self, image):
        """A fine contour of gold where the figures stand against the dark field."""
        edge = np.clip(nd.grey_dilation(self.plates.alpha, 5) - self.plates.alpha, 0, 1)
        return mix(image, gilt(self.gold + .1), nd.gaussian_filter(edge, .8) * self.plates.opening * .85)

    def lettered(self, image):
        """Gilt letters with a dark seam."""
        text = self.plates.text
        if text.max() == 0:
            return image
        seam = np.clip(nd.gaussian_filter(text, 1.3 * self.scale) * 1.5, 0, 1) * (1 - text)
        image = image * (1 - .8 * seam)[..., None]
        return mix(image, gilt(.74 + .10 * self.leaf + .10 * np.sin(self.column / (30 * self.scale))), text)

    def varnished(self, image):
        """The frame's shadow on the picture, and a soft bloom about the lights."""
        shadow = nd.gaussian_filter(1 - self.plates.opening, 6 * self.scale)
        image = image * (1 - .55 * np.clip(shadow, 0, 1) * self.plates.opening)[..., None]
        bloom = nd.gaussian_filter(np.clip(image - .72, 0, 1), (9, 9, 0))
        return np.clip(image + bloom * .55, 0, 1)


def render(draw, numeral, title, field='crimson', pattern=damask, seed=3, scale=2, fit=.955, drop=4, frame=frame_a,
           opening=None):
    """The finished picture, `scale` pixels a unit. draw(S) draws the scene, pattern(S) the pattern of the field. The
    scene is scaled by `fit` and lowered by `drop`, so that the frame cuts nothing off."""
    picture, background = Scene(seed), Scene(9)
    with picture.at(CENTRE[0] - CENTRE[0] * fit, drop + CENTRE[1] - CENTRE[1] * fit, fit):
        draw(picture)
    pattern(background)
    plates = make_plates(picture, frame(numeral, title), background, opening or arch(), scale)
    finish = Finish(plates, scale, np.random.default_rng(seed))
    image = finish.shadowed(finish.tooled(finish.field(FIELDS[field])))
    image = mix(image, finish.paint(), nd.gaussian_filter(plates.alpha, 1))
    image = mix(image, gilt(finish.gold), np.clip(plates.metal, 0, 1))
    return finish.varnished(finish.lettered(finish.edged(finish.drawn(image))))
