# SPDX-License-Identifier: GPL-3.0-or-later
"""Temperance: water passes from the vessel of the sun to that of the moon below a winged sun in the rainbow; irises at the pool."""
from emblems import *      # the vocabulary of scenes, see drawing.py

NUM, HEB, GLYPH, FOCUS = 'XIV', 'ס', 'sagittarius', (300, 330)


def rainbow(S, x, y):
    """seven concentric bows, every second one patterned"""
    for i, r in enumerate(range(208, 124, -12)):
        S.fill(f'M{x - r} {y}A{r} {r} 0 0 1 {x + r} {y}Z', ('night', 'ind', 'deep')[i % 3], 2.6)
        if i % 2 == 0:
            n = round(r / 4.4)
            for j in range(n):
                S.dot(*pol(x, y, r - 6, 180 + 180 * (j + .5) / n), 1.9)
        else:
            n = round(r / 3)
            for j in range(n):
                a = 180 + 180 * (j + .5) / n
                S.line([pol(x, y, r - 2, a), pol(x, y, r - 10, a + 1.4)], 1.5, 'flat')


def sun_square(S, x, y):
    """the angel's sign: triangle in a square on a golden sun"""
    S.fill(circ(x, y, 92), 'deep', 3)
    for i in range(32):
        a = 11.25 * i
        S.fill(poly([pol(x, y, 64, a - 5), pol(x, y, 88 if i % 2 == 0 else 78, a), pol(x, y, 64, a + 5)]),
               'leaf' if i % 2 == 0 else 'deep', 1.8)
    S.fill(circ(x, y, 66), 'leaf', 3)
    with chased(S):
        ring(S, x, y, 59, 2)
        dots(S, x, y, 62.5, 44, 1.4)
    S.fill(rect(x - 37, y - 37, 74, 74), 'deep', 3)
    S.stroke(rect(x - 31, y - 31, 62, 62), 1.4)
    S.fill(poly([(x, y - 28), (x + 28, y + 26), (x - 28, y + 26)]), 'leaf', 2.4)
    with chased(S):
        S.stroke(poly([(x, y - 17), (x + 19, y + 20), (x - 19, y + 20)]), 2.2)
    S.fill(circ(x, y + 9, 6), 'deep', 0)


def vessel(S, x, y, rot, sign, flip=False):
    """two-handled vase about its middle, mouth up before it is turned"""
    with S.at(x, y, 1, rot, flip):
        for s in (-1, 1):
            S.stroke(path([(s * 28, -78), (s * 74, -82), (s * 78, -34), (s * 54, -14)], False), 15)
            S.fill(poly(ribbon([(s * 28, -78), (s * 70, -80), (s * 75, -36), (s * 54, -14)], lambda t: 5)), 'deep', 0)
        S.fill(sym([(0, -92), (38, -92, 'c'), (30, -74), (26, -58), (52, -34), (62, 2), (48, 46), (22, 72), (30, 92, 'c'), (0, 94)]),
               'ind', 3.4)
        for yy, w in ((-60, 27), (-40, 47), (32, 55), (44, 49), (72, 23)):
            S.line([(-w, yy), (0, yy + 6), (w, yy)], 2.6, 'flat')
        for i in range(9):
            f = (i - 4) / 4
            S.fill(poly([(f * 46 - 5, -30 + 4 * (1 - f * f)), (f * 46 + 5, -30 + 4 * (1 - f * f)), (f * 47, -16 + 5 * (1 - f * f))]),
                   'leaf', 0)
        S.fill(circ(0, 10, 25), 'leaf', 2.8)
        with chased(S):
            ring(S, 0, 10, 20, 1.8)
            glyph(S, sign, 0, 10, .27, 16, kind='line')
        S.fill(circ(0, -92, 38, 8), 'leaf', 2.6)
        S.fill(circ(0, -92, 29, 4.6), 'dark', 1.4)
        for i in range(7):
            f = (i - 3) / 3
            S.line([(f * 34, 50), (f * 16, 70)], 2)


def stream(S):
    """water from mouth to mouth, braided of five threads with drops beside"""
    ps = [(262, 626), (304, 616), (340, 646), (362, 704), (376, 762)]
    S.limb(ps, [24, 26, 26, 26, 28], 'deep', 2.4)
    for off in (-8, -3, 3, 8):
        q = sample(ps, n=8)
        S.line([(p[0] + n[0] * off, p[1] + n[1] * off) for p, n in zip(q, normals(q))], 2.4 if off in (-3, 8) else 1.6, 'flat')
    for x, y, k in ((386, 650, .8), (404, 690, .6), (322, 700, .7), (340, 744, .55), (300, 664, .5)):
        with S.at(x, y, k):
            S.fill([(0, -16, 'c'), (9, 2), (0, 11), (-9, 2)], 'leaf', 0)


def iris(S, x, y, k):
    """iris in flower: three standards, three falls, sword leaves"""
    with S.at(x, y, k):
        for a, length in ((-112, 130), (-66, 128), (-98, 164), (-78, 150)):
            t = pol(0, 170, length, a)
            S.fill(poly(ribbon([(0, 172), ((t[0]) * .4, (t[1] + 172) / 2), t], lambda u: 15 * (1 - u) ** .6 + .5)), 'night', 2.4)
            S.line([(0, 170), (t[0] * .4, (t[1] + 172) / 2), t], 1.5, 'end')
        S.line([(0, 170), (2, 90), (0, 20)], 5, 'flat')
        for s in (-1, 1):
            S.fill([(0, 10, 'c'), (s * 22, 2), (s * 46, 18), (s * 42, 50), (s * 26, 56, 'c'), (s * 18, 34)], 'ind', 2.6)
            S.line([(s * 4, 12), (s * 26, 20), (s * 34, 46)], 2, 'end')
        S.fill([(0, 6, 'c'), (18, 24), (13, 58), (0, 68, 'c'), (-13, 58), (-18, 24)], 'ind', 2.6)
        for u in (-6, 0, 6):
            S.line([(u * .4, 14), (u, 34), (u * .8, 54)], 1.8, 'end')
        for s in (-1, 1):
            S.fill([(0, 10, 'c'), (s * 30, -8), (s * 32, -44), (s * 12, -56, 'c'), (s * 4, -26)], 'deep', 2.6)
            S.line([(s * 4, 4), (s * 20, -14), (s * 20, -40)], 1.8, 'end')
        S.fill([(0, 12, 'c'), (14, -18), (8, -56), (0, -66, 'c'), (-8, -56), (-14, -18)], 'ind', 2.6)
        S.line([(0, 6), (0, -52)], 1.8, 'end')
        S.fill([(0, 12, 'c'), (6, 22), (0, 44, 'c'), (-6, 22)], 'leaf', 0)


def draw(S):
    x, y = 300, 330
    glory(S, x, y, 126, 460, 112, 1.8)
    rainbow(S, x, y)
    S.fill(f'M{x - 124} {y}A124 124 0 0 1 {x + 124} {y}A124 124 0 0 1 {x - 124} {y}Z', 'night', 2.6)
    radial(S, x, y, 94, lambda i: 120 if i % 2 else 112, 72, 1.4)
    for flip in (False, True):
        with S.at(x, y, 1, 0, flip):
            wing(S, 62, 40, .95, -8, n=13, spread=(104, -8), gold=True)
    sun_square(S, x, y)
    land(S, [(36, 800), (150, 776), (300, 800), (450, 776), (564, 800)], 'night', 10, 7, .6)
    water(S, 880, 1000, 13)
    for r in (30, 62, 100, 144):
        S.stroke(circ(352, 924, r, r * .17), 2)
    vessel(S, 192, 590, 74, 'sun')
    stream(S)
    vessel(S, 382, 848, 0, 'moon')
    iris(S, 110, 792, 1.06)
    iris(S, 192, 846, .8)
    iris(S, 510, 812, 1)
