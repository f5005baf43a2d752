# SPDX-License-Identifier: GPL-3.0-or-later
"""The Lovers: winged heart pierced by an arrow; below two hands, one of the sun and one of the moon, hold one ring between two trees."""
from emblems import *      # the vocabulary of scenes, see drawing.py

NUM, HEB, GLYPH, FOCUS = 'VI', 'ז', 'gemini', (300, 350)


def heart(S, x, y, k):
    """burning golden heart, chased with scales"""
    with S.at(x, y, k):
        for dx, h, w, rot in ((-22, 74, 34, -16), (22, 74, 34, 16), (0, 108, 46, 0)):
            flame(S, dx, -56, h, w, rot)
        half = [(0, -50, 'c'), (24, -76), (62, -74), (82, -40), (70, 4), (36, 48), (0, 84, 'c')]
        S.fill(sym([(p[0] * 1.1, p[1] * 1.1 + 1) + p[2:] for p in half]), 'deep', 3)
        with chased(S):
            S.fill(sym(half), 'leaf', 3)
            inner = path(sym([(p[0] * .88, p[1] * .88) + p[2:] for p in half]))
            S.stroke(inner, 2.2)
            with S.clip(inner):
                for row in range(10):
                    for i in range(-5, 6):
                        cx, cy = 15 * (i + .5 * (row % 2)), -70 + 14 * row
                        S.stroke(f'M{cx - 8} {cy}A8 9 0 0 0 {cx + 8} {cy}', 1.7)


def arrow(S, x, y):
    """arrow rising across the heart; the middle of the shaft is hidden in it"""
    with S.at(x, y, 1, 52):
        for a, b in ((-186, -64), (72, 160)):
            S.limb([(0, a), (0, b)], [8, 8], 'deep', 2.6)
            S.stroke(f'M0 {a}V{b}', 1.2)
        S.fill([(0, -224, 'c'), (17, -174, 'c'), (0, -184, 'c'), (-17, -174, 'c')], 'leaf', 2)
        for i in range(7):
            for s in (-1, 1):
                S.fill(poly([(0, 96 + 11 * i), (s * 20, 114 + 11 * i), (s * 20, 123 + 11 * i), (0, 105 + 11 * i)]), 'ind', 1.8)
        S.fill(circ(0, 182, 5), 'leaf', 0)


def tree(S, side):
    """tree of the right half: fruit on the moon's side, flames on the sun's"""
    S.limb([(196, 960), (206, 860), (198, 760), (212, 690)], [42, 24, 18, 12], 'deep', 3)
    for u in (-6, 0, 6):
        S.line([(196 + 2 * u, 950), (206 + u, 860), (199 + u, 770)], 1.8)
    for s in (-1, 1):
        S.limb([(196, 952), (196 + s * 24, 970), (196 + s * 50, 978)], [16, 10, 3], 'deep', 2.6)
    crown_of = ((150, 690, 24), (262, 690, 26), (166, 640, 28), (244, 632, 28), (206, 600, 28), (206, 656, 30), (182, 706, 22),
                (232, 708, 22))
    for cx, cy, r in crown_of:
        for i in range(7):
            a = 360 * i / 7 + cx
            blade(S, *pol(cx, cy, r * .1, a), r * 1.15, r * .7, a, 'night', 2)
    for i, (cx, cy, r) in enumerate(crown_of):
        if side > 0:
            flame(S, cx, cy + 10, 34, 22)
        else:
            S.fill(circ(cx, cy, 8.5), 'leaf', 2)


def serpent(S):
    """serpent round the left tree"""
    coil = [(86, 900), (70, 872), (98, 858), (128, 846), (112, 822), (84, 806), (76, 786), (104, 772), (124, 758), (112, 738)]
    S.limb(coil, [4, 12, 14, 15, 14, 14, 14, 13, 13, 15], 'ind', 2.6)
    for x, y, a in along(coil, 34)[2:-1]:
        S.line([pol(x, y, 5, a + 90), pol(x, y, 5, a - 90)], 1.7, 'flat')
    S.fill([(112, 744, 'c'), (98, 736), (100, 718), (116, 712), (128, 722), (122, 740, 'c')], 'leaf', 2)
    with chased(S):
        S.dot(110, 724, 2.6)
        S.line([(112, 736), (122, 730)], 1.8)


def hands(S, x, y):
    """a hand from either side, finger and thumb meeting on one ring"""
    glory(S, x, y, 46, 150, 72, 1.7)
    for s, flip in ((1, False), (-1, True)):
        with S.at(x + s * 134, y + 34, 1, 0, flip):
            S.fill([(-12, -46, 'c'), (70, -62), (170, -74, 'c'), (170, 60, 'c'), (70, 44), (-4, 30, 'c')], 'ind', 3.2)
            for i in range(8):
                f = i / 7
                S.line([(168, -72 + 130 * f), (70, -58 + 98 * f), (0, -38 + 60 * f)], 2, 'end')
            S.fill(poly([(-18, -52), (8, -58), (14, 34), (-12, 40)]), 'leaf', 2.4)
            with chased(S):
                for i in range(5):
                    S.dot(-8 + 1.2 * i, -42 + 17 * i, 2.6)
    S.fill(circ(x, y, 40), 'leaf', 2.6)
    S.fill(circ(x, y, 28), 'deep', 2.6)
    with chased(S):
        dots(S, x, y, 34, 22, 1.9)
    star(S, x, y, 21, 8, .36)
    for s, flip in ((1, False), (-1, True)):
        hand_pinch(S, x + s * 29, y + 4, 1.62, 8 * s, flip, 2.4)


def draw(S):
    x, y = 300, 356
    glory(S, x, y - 20, 160, 380, 104, 1.8)
    medallion(S, x, y, 152, 26, 'turned', 5, rays=72)
    for flip in (False, True):
        with S.at(x, y, 1, 0, flip):
            wing(S, 52, 14, .84, -24, n=11, spread=(112, -14), gold=True)
    arrow(S, x, y + 6)
    heart(S, x, y + 8, 1.02)
    peak(S, (300, 600), (110, 960), (490, 960), 'night', .2)
    land(S, [(36, 852), (110, 846), (210, 890), (300, 920), (390, 890), (490, 846), (564, 852)], 'deep', 16, 6, .6)
    for side in sides(S):
        with S.at(0, -104):
            tree(S, side)
    with S.at(0, -104):
        serpent(S)
    hands(S, 300, 888)
