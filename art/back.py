# SPDX-License-Identifier: GPL-3.0-or-later
"""The two card backs: a blue engraved one for the suits, one of enamel and gold for the majors.

A back must not tell which way up its card lies. Every drawing here is point-symmetric, and because paint noise and the
light from the upper left are not, the finished picture is joined softly to its own half-turned image.
"""
import math

import numpy as np

import deck_a
import deck_c
from engraving import dots, radial, ring, rosette, star
from fx import sstep
from kit import Scene, circ, pol, poly, rect, ribbon

CENTRE = (300, 540)


def quarters(S):
    """Four contexts about the middle of the card, mirror images of each other: in each, draw what belongs to the upper
    left."""
    return [S.at(*CENTRE, 1, rot, flip) for rot, flip in ((0, False), (0, True), (180, False), (180, True))]


def symmetrised(image):
    """The picture above its middle and its half-turned image below, blended across a broad band: exactly
    point-symmetric."""
    h = image.shape[0]
    y = (np.arange(h, dtype=np.float32) + .5) / h - .5
    upper = 1 - sstep(-.16, .16, y)
    upper = (upper + 1 - upper[::-1]) / 2           # rounding must not spoil upper(y) + upper(-y) = 1
    return image * upper[:, None, None] + image[::-1, ::-1] * (1 - upper)[:, None, None]


# ---------- enamel and gold ----------
OPENING = 'M76 96H524V984H76Z'


def enamel_frame(_num, _title):
    """border of enamel leaves between beads, mouldings, a boss in each corner"""
    F = Scene(2)
    F.fill('M0 0H600V1080H0Z' + OPENING, 'lapis', 0)
    F.fill('M8 8H592V1072H8ZM24 24V1056H576V24Z', 'gold', 2.6)
    F.fill('M66 86H534V994H66ZM76 96V984H524V96Z', 'gold', 2.6)
    F.fill('M24 24H576V1056H24ZM30 30V1050H570V30Z', 'crimson', 0)
    for c in quarters(F):
        with c:
            for i in range(7):
                with F.at(-250, i * 58 + 29, 1, 90):
                    F.fill([(-24, 0, 'c'), (-8, -13), (10, -11), (24, 0, 'c'), (10, 11), (-8, 13)], 'crimson' if i % 2 else 'green', 2.4)
                    F.line([(-18, 0), (18, 0)], 3)
                F.fill(circ(-250, i * 58 + 58, 7), 'gold', 2.4)
            for i in range(4):
                x = -(i * 52 + 26)
                with F.at(x, -485):
                    F.fill([(-21, 0, 'c'), (-8, -13), (8, -13), (21, 0, 'c'), (8, 13), (-8, 13)], 'green' if i % 2 else 'crimson', 2.4)
                    F.line([(-15, 0), (15, 0)], 3)
                F.fill(circ(x - 26, -485, 7), 'gold', 2.4)
            for a in range(0, 360, 45):
                F.fill(circ(*pol(-250, -485, 17, a), 9), 'gold', 2.4)
            F.fill(circ(-250, -485, 13), 'red', 2.8)
    for x, y in ((50, 540), (550, 540), (300, 55), (300, 1025)):
        F.fill(circ(x, y, 7), 'gold', 2.4)
    return F


def fleur(S, x, y, k, rot):
    """lily that fills one cell of the lattice"""
    with S.at(x, y, k, rot):
        for d in (-1, 1):
            S.fill(poly(ribbon([(d * 3, 14), (d * 10, -4), (d * 24, -12), (d * 30, 2), (d * 22, 8)],
                               lambda t: 12 * (1 - t * .6) * (.5 + .5 * min(1, t * 5)), caps='e')), 'gold', 2.4)
        S.fill([(0, 16, 'c'), (-10, 0), (-9, -16), (0, -36, 'c'), (9, -16), (10, 0)], 'gold', 2.4)
        S.line([(0, 8), (0, -26)], 3, 'end')
        S.fill(rect(-13, 9, 26, 8, 3), 'red', 2.2)
        S.fill([(0, 18, 'c'), (-7, 26), (0, 36, 'c'), (7, 26)], 'gold', 2.2)


def lattice(S):
    """blue bars with a boss on every crossing; the lilies of the lower half stand on their heads"""
    x0, y0 = CENTRE
    dx, dy = 74.67, 74
    places = [(r, c, x0 + c * dx, y0 + r * dy) for r in range(-7, 8) for c in range(-4, 5)]
    for r, c, x, y in places:
        if (r + c) % 2 == 0:
            for side in (-1, 1):
                S.limb([(x, y), (x + side * dx, y + dy)], [11, 11], 'blue', 2.6)
    for r, c, x, y in places:
        if (r + c) % 2 == 0:
            for a in range(45, 405, 90):
                S.fill(circ(*pol(x, y, 11, a), 9), 'gold', 2.4)
            S.fill(circ(x, y, 8), 'red', 2.4)
        else:
            upright = (r, c) < (0, 0)
            fleur(S, x, y + (4 if upright else -4), .98, 0 if upright else 180)


def medallion(S):
    """sun in the middle: rays, a ring of pearls, a twelve-petalled rose, a star"""
    x, y = CENTRE
    for i in range(32):
        a, long = i * 11.25, i % 2 == 0
        S.fill(poly(ribbon([pol(x, y, 180, a), pol(x, y, 212, a), pol(x, y, 240 if long else 222, a)], lambda t: 24 * (1 - t) ** .8 + .5)),
               'gold' if long else 'fire', 2.6)
    S.fill(circ(x, y, 188), 'blue', 4)
    S.fill(circ(x, y, 188) + circ(x, y, 172), 'gold', 2.6)
    for i in range(40):
        S.fill(circ(*pol(x, y, 160, i * 9), 5), 'white' if i % 2 else 'gold', 1.8)
    S.fill(circ(x, y, 150) + circ(x, y, 142), 'gold', 2.2)
    for i in range(12):
        a = i * 30
        S.fill([pol(x, y, 62, a - 15), pol(x, y, 104, a - 11), pol(x, y, 138, a) + ('c',), pol(x, y, 104, a + 11), pol(x, y, 62, a + 15)],
               'red' if i % 2 else 'sky', 3)
        S.line([pol(x, y, 70, a), pol(x, y, 122, a)], 4, 'end')
        S.fill(circ(*pol(x, y, 128, a + 15), 5), 'gold', 2)
    S.fill(poly([pol(x, y, 44 if i % 2 else 92, i * 22.5) for i in range(16)]), 'gold', 3.2)
    for i in range(16):
        S.line([(x, y), pol(x, y, 42 if i % 2 else 84, i * 22.5)], 2, 'flat')
    S.fill(circ(x, y, 36), 'blue', 3.2)
    S.fill(circ(x, y, 36) + circ(x, y, 30), 'gold', 2)
    for i in range(8):
        S.fill(circ(*pol(x, y, 17, i * 45), 6.5), 'green' if i % 2 else 'red', 2.2)
    S.fill(circ(x, y, 11), 'gold', 2.6)


def enamel_scene(S):
    """what lies inside the enamel frame"""
    lattice(S)
    medallion(S)


def major_back(scale):
    """the back that stands for a card of the major arcana"""
    return symmetrised(deck_a.render(enamel_scene, '', '', 'crimson', lambda S: None, scale=scale, fit=1, drop=0, frame=enamel_frame,
                                     opening=OPENING))


# ---------- gold engraving on blue ----------
class Engraving:
    """what the engraver's renderer needs of a card; a back has neither numeral nor letter nor planet"""
    NUM = HEB = GLYPH = ''
    FOCUS = CENTRE

    @staticmethod
    def draw(S):
        x, y = CENTRE
        radial(S, x, y, 236, lambda i: (600, 330, 470, 290)[i % 4], 160, 1.8)
        S.fill(circ(x, y, 236), 'night', 3.4)
        ring(S, x, y, 229, 1.2)
        rosette(S, x, y, 229, 178, 8, .85, 600)
        ring(S, x, y, 178, 1.2)
        S.fill(circ(x, y, 172), 'deep', 2.6)
        phases(S, x, y)
        S.fill(circ(x, y, 131), 'ind', 2.6)
        radial(S, x, y, 40, lambda i: 128 if i % 2 else 112, 120, 1.3)
        for i in range(16):
            a, tip = i * 22.5, pol(x, y, 94 if i % 2 else 122, i * 22.5)
            S.fill(poly([pol(x, y, 48, a - 9), tip, pol(x, y, 48, a + 9)]), 'deep', 2.4)
            S.fill(poly([pol(x, y, 48, a), tip, pol(x, y, 48, a + 9)]), 'leaf', .8)
        S.fill(circ(x, y, 52), 'deep', 3)
        rosette(S, x, y, 50, 26, 5, .8, 480)
        S.fill(circ(x, y, 25), 'leaf', 0)
        S.fill(circ(x, y, 20), 'deep', 0)
        star(S, x, y, 17, 8, .38)
        for c in quarters(S):
            with c:
                corner_moon(S)
        for d in (-1, 1):
            star(S, x, y + d * 400, 34, 8, .3)
            S.stroke(circ(x, y + d * 400, 44), 1.4)
            dots(S, x, y + d * 400, 39, 32, 1.2)


def phases(S, x, y):
    """two rounds of moon phases in a ring, so that opposite ones agree"""
    r = 12
    for i in range(16):
        px, py = pol(x, y, 152, i * 22.5)
        f = math.cos(math.radians(i * 45))
        S.fill(circ(px, py, r), 'deep', 1.8)
        with S.at(px, py, 1, i * 22.5 + 90):
            S.add('line', f'M0 {-r}A{r} {r} 0 0 1 0 {r}A{max(.1, abs(f) * r):.2f} {r} 0 0 {0 if f > 0 else 1} 0 {-r}Z')


def corner_moon(S):
    """crescent in a guilloche ring with stars strewn around"""
    S.fill(circ(-150, -338, 62), 'night', 2.6)
    ring(S, -150, -338, 56, 1.1)
    rosette(S, -150, -338, 56, 36, 4, .8, 400)
    S.fill(circ(-150, -338, 35), 'deep', 2)
    S.add('line', 'M-144 -364A26 26 0 1 0 -126 -326A22 22 0 1 1 -144 -364Z')
    for x, y, r in ((-60, -420, 9), (-236, -420, 8), (-236, -250, 9), (-40, -300, 7), (-215, -170, 6), (-90, -462, 5), (-200, -470, 5),
                    (-248, -340, 5), (-20, -470, 7), (-70, -258, 5)):
        star(S, x, y, r * 1.3, 4, .2)


def engraved_frame(_num, _letter, _glyph):
    """triple rounded rule with a fan in each corner"""
    F = Scene(4)
    F.stroke(rect(18, 18, 564, 1044, 26), 2.2)
    F.stroke(rect(27, 27, 546, 1026, 20), 5)
    F.stroke(rect(37, 37, 526, 1006, 14), 1.4)
    for x, y, rot in ((37, 37, 0), (563, 37, 90), (563, 1043, 180), (37, 1043, 270)):
        with F.at(x, y, 1, rot):
            F.fill('M0 0H94A94 94 0 0 1 0 94Z', 'deep', 2.4)
            F.stroke('M84 0A84 84 0 0 1 0 84', 1.4)
            radial(F, 0, 0, 22, 78, 13, 2.6, 3, 93, 'both')
            F.fill('M0 0H20A20 20 0 0 1 0 20Z', 'leaf', 0)
            for i in range(11):
                F.dot(*pol(0, 0, 89, 4.1 + i * 8.18), 1.7)
    return F


def suit_back(scale):
    """the back shown on the places of the four suits"""
    return symmetrised(deck_c.render(Engraving, scale=scale, frame=engraved_frame))
