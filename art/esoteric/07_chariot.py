# SPDX-License-Identifier: GPL-3.0-or-later
"""The Chariot: winged wheel under a starry canopy on four posts, drawn by a bright and a dark sphinx; the crab of the sign between them."""
from emblems import *      # the vocabulary of scenes, see drawing.py

NUM, HEB, GLYPH, FOCUS = 'VII', 'ח', 'cancer', (300, 430)


def canopy(S):
    """domed cloth sown with stars, scalloped valance with tassels"""
    dome = sym([(0, 112), (90, 120), (184, 158), (222, 232, 'c'), (222, 236, 'c'), (0, 236)])
    dome = [(p[0] + 300,) + tuple(p[1:]) for p in dome]
    S.fill(dome, 'night', 3.4)
    for f in (-1, -.66, -.33, 0, .33, .66, 1):
        S.line([(300 + 222 * f, 234), (300 + 190 * f, 168), (300 + 60 * f, 116)], 2, 'end')
    stars = ((0, 152, 13), (56, 170, 10), (112, 158, 8), (36, 212, 8), (96, 206, 12), (150, 208, 9), (190, 214, 7))
    for i, (sx, sy, r) in enumerate(stars):
        star(S, 300 + sx, sy, r, 6 if i % 2 else 8, .4)
        if sx:
            star(S, 300 - sx, sy, r, 6 if i % 2 else 8, .4)
    for i in range(11):
        x = 300 + (i - 5) * 42
        S.fill(f'M{x - 21} 246V262A21 23 0 0 0 {x + 21} 262V246Z', 'ind' if i % 2 else 'deep', 2.8)
        S.stroke(f'M{x - 15} 250V261A15 17 0 0 0 {x + 15} 261V250', 1.2)
        S.fill(circ(x, 262, 5), 'leaf', 0)
        if i < 10:
            S.line([(x + 21, 262), (x + 21, 292)], 3.2, 'start')
    S.fill(rect(66, 232, 468, 15, 4), 'leaf', 2.6)
    with chased(S):
        for i in range(30):
            S.dot(78 + 15.3 * i, 239.5, 2.4)


def post(S, x, top):
    """turned post of the right half"""
    S.limb([(x, top), (x, 770)], [13, 15], 'deep', 2.8)
    S.stroke(f'M{x} {top}V770', 1.2)
    for y in range(top + 34, 760, 92):
        S.fill(circ(x, y, 11, 8), 'leaf', 2)
        for d in (-14, 14):
            S.line([(x - 8, y + d), (x + 8, y + d)], 2.4, 'flat')


def wheel(S, x, y, R):
    """wheel of eight turned spokes about a golden hub, studded tyre"""
    S.fill(circ(x, y, R), 'deep', 4)
    ring(S, x, y, R - 7, 1.3)
    rosette(S, x, y, R - 8, R - 26, 3, .9, 480)
    ring(S, x, y, R - 27, 2.6)
    for i in range(16):
        S.fill(circ(*pol(x, y, R - 17, 22.5 * i), 6), 'leaf', 2)
    radial(S, x, y, 40, lambda i: R - (32 if i % 2 else 44), 64, 1.2)
    for i in range(8):
        with S.at(x, y, 1, 45 * i):
            S.limb([(28, 0), (52, 0), (76, 0), (R - 27, 0)], [12, 15, 10, 15], 'ind', 2.8)
            for u in (50, 57, R - 46, R - 40):
                S.line([(u, -8), (u, 8)], 2.4, 'flat')
            S.line([(62, 0), (R - 50, 0)], 2)
    S.fill(circ(x, y, 42), 'deep', 3.2)
    dots(S, x, y, 37, 32, 1.6)
    S.fill(circ(x, y, 32), 'leaf', 2.6)
    with chased(S):
        ring(S, x, y, 26, 2)
        glyph(S, 'sun', x, y, .34, 15, kind='line')


def crab(S, x, y, k):
    """crab from above, claws raised"""
    with S.at(x, y, k):
        for flip in (False, True):
            with S.at(0, 0, 1, 0, flip):
                for i in range(4):
                    S.limb([(40, -4 + 12 * i), (74, -12 + 17 * i), (96 - 6 * i, 16 + 20 * i)], [9, 7, 2], 'ind', 2.4)
                S.limb([(36, -18), (70, -36), (72, -64)], [13, 15, 14], 'ind', 2.6, 's')
                S.fill([(62, -62, 'c'), (50, -88), (58, -114), (78, -128, 'c'), (72, -104), (80, -96), (92, -116, 'c'), (98, -88),
                        (84, -62, 'c')], 'leaf', 2.4)
                with chased(S):
                    S.line([(72, -68), (66, -90), (72, -112)], 2, 'end')
                S.line([(9, -30), (14, -44)], 2.4, 'flat')
                S.fill(circ(14, -46, 5.5), 'leaf', 2)
        S.fill(sym([(0, -34), (30, -34), (54, -12), (48, 18), (24, 40), (0, 46)]), 'ind', 3.2)
        S.stroke(path(sym([(0, -26), (26, -26), (45, -9), (40, 14), (20, 32), (0, 37)])), 1.4)
        both(S, [(6, 6), (20, -4), (34, 0)], 2)
        both(S, [(4, 16), (16, 14), (26, 22)], 2)
        S.fill(crescent(0, -4, 14, .8, .42), 'leaf', 0)


def draw(S):
    x, y = 300, 452
    glory(S, x, y, 156, 380, 104, 1.8)
    for side in sides(S):
        post(S, 210, 240)
    canopy(S)
    for side in sides(S):
        wing(S, 84, y + 6, .98, -26, n=12, spread=(112, -6), gold=True)
    wheel(S, x, y, 138)
    land(S, [(36, 772), (160, 756), (300, 764), (440, 756), (564, 772)], 'night', 14, 7, .8)
    S.limb([(300, 590), (300, 760)], [16, 16], 'deep', 3)
    for i in range(10):
        S.line([(293, 606 + 17 * i), (307, 598 + 17 * i)], 2.2, 'flat')
    S.fill(path([(92, 806), (200, 746), (300, 724), (400, 746), (508, 806), (400, 766), (300, 746), (200, 766)]), 'deep', 3)
    S.fill(circ(300, 736, 17), 'leaf', 2.6)
    for side in (-1, 1):
        glory(S, 300 + side * 158, 842, 70, 110, 48, 1.6, 180, 360)
        sphinx_head(S, 300 + side * 158, 850, 1.04, side > 0)
    crab(S, 300, 908, .84)
