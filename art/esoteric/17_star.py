# SPDX-License-Identifier: GPL-3.0-or-later
"""The Star: great eight-point star among the seven; two urns pour, into the round pool, roses and reeds on its bank."""
from emblems import *      # the vocabulary of scenes, see drawing.py

NUM, HEB, GLYPH, FOCUS = 'XVII', 'צ', 'aquarius', (300, 350)


def great_star(S, x, y):
    """faceted star over a finer one, chased heart"""
    glory(S, x, y, 190, 380, 128, 1.9)
    S.fill(circ(x, y, 188), 'night', 3)
    ring(S, x, y, 182, 1.2)
    rosette(S, x, y, 182, 150, 6, .85, 480)
    S.fill(circ(x, y, 148), 'deep', 2.6)
    ring(S, x, y, 142, 1.2)
    radial(S, x, y, 30, lambda i: (136, 104, 122, 96)[i % 4], 96, 1.4)
    facet_star(S, x, y, 128, 8, .42, -67.5, 1.8)
    facet_star(S, x, y, 178, 8, .3, -90, 2.6)
    S.fill(circ(x, y, 40), 'deep', 3)
    dots(S, x, y, 35, 28, 1.7)
    S.fill(circ(x, y, 30), 'leaf', 2.4)
    with chased(S):
        ring(S, x, y, 25, 1.8)
        glyph(S, 'aquarius', x, y, .34, 15, kind='line')


def small_star(S, x, y, r):
    """one of the seven: faceted in a dotted ring"""
    S.fill(circ(x, y, r * 1.25), 'night', 1.8)
    dots(S, x, y, r * 1.08, 24, 1.1)
    facet_star(S, x, y, r, 8, .4, w=1.4)


def urn(S):
    """urn of the right half, tipped toward the axis, belted and gadrooned"""
    with S.at(168, 706, 1, -62):
        S.stroke(path([(24, -70), (66, -66), (68, -20), (48, -4)], False), 13)
        S.stroke(path([(-24, -70), (-66, -66), (-68, -20), (-48, -4)], False), 13)
        S.fill(sym([(0, -88), (34, -88, 'c'), (25, -70), (23, -56), (48, -30), (58, 8), (42, 52), (20, 74), (28, 90, 'c'), (0, 92)]),
               'ind', 3.4)
        for i in range(11):
            f = (i - 5) / 5
            S.line([(f * 26, 66), (f * 52, 26), (f * 54, 4)], 2.4, 'end')
        S.fill([(-50, -26, 'c'), (0, -18), (50, -26, 'c'), (57, -2, 'c'), (0, 8), (-57, -2, 'c')], 'leaf', 2.6)
        with chased(S):
            for i in range(-4, 5):
                S.fill(poly([(i * 11.5, -18 + 2 * (4 - abs(i)) / 2), (i * 11.5 + 5, -8), (i * 11.5, 1), (i * 11.5 - 5, -8)]), 'dark', 1)
        for yy, w in ((-58, 24), (-46, 34), (72, 20)):
            S.line([(-w, yy), (0, yy + 5), (w, yy)], 2.4, 'flat')
        S.fill(circ(0, -88, 34, 9), 'leaf', 2.6)
        S.fill(circ(0, -88, 25, 5), 'dark', 1.6)


def stream(S):
    """water of the right half, braided of six threads with drops beside"""
    for i in range(6):
        f = (i - 2.5) / 2.5
        S.line([(86 + 5 * f, 664 - 9 * f), (52 + 8 * f, 676 - 6 * f), (36 + 9 * f, 740), (34 + 13 * f, 846), (30 + 17 * f, 906)],
               3 if i % 2 else 2, 'flat')
    for dx, dy, k in ((66, 724, .7), (16, 716, .6), (62, 786, .55), (8, 800, .5), (70, 846, .6)):
        with S.at(dx, dy, k):
            S.fill([(0, -16, 'c'), (9, 2), (0, 11), (-9, 2)], 'leaf', 0)


def draw(S):
    great_star(S, 300, 356)
    for side in sides(S):
        for dx, dy, r in ((204, 172, 24), (236, 540, 22), (118, 588, 26)):
            small_star(S, dx, dy, r)
    land(S, [(36, 812), (120, 800), (220, 826), (300, 834), (380, 826), (480, 800), (564, 812)], 'night', 18, 6, .5)
    small_star(S, 300, 600, 32)
    S.fill(circ(300, 930, 236, 72), 'deep', 3)
    with S.clip(circ(300, 930, 236, 72)):
        for side in sides(S):
            for r in range(12, 260, 15):
                S.stroke(circ(32, 910, r, r * .3), 1.6 if r % 2 else 2.2)
    for side in sides(S):
        stream(S)
    for side in sides(S):
        urn(S)
        for bx, by, a in ((232, 870, -112), (242, 872, -86), (250, 876, -62), (206, 858, -100), (214, 858, -74)):
            S.fill(poly(ribbon([(bx, by), pol(bx, by, 34, a), pol(bx, by, 68, a * 1.1 + 8)], lambda t: 12 * (1 - t) ** .6 + .5)),
                   'ind', 2.2)
            S.line([(bx, by), pol(bx, by, 34, a), pol(bx, by, 62, a * 1.1 + 8)], 1.4, 'end')
    for side in sides(S):
        rosebloom(S, 222, 884, .5, gold=True)
        rosebloom(S, 246, 906, .38)
