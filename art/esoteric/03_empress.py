# SPDX-License-Identifier: GPL-3.0-or-later
"""The Empress: heart-shaped shield of Venus under a crown, twelve stars about it; wheat sheaves and pomegranates below."""
from emblems import *      # the vocabulary of scenes, see drawing.py

NUM, HEB, GLYPH, FOCUS = 'III', 'ד', 'venus', (300, 370)


def heart(k):
    """outline of a heart about the origin, a hundred units high at k = 1"""
    half = [(0, -34, 'c'), (18, -56), (46, -56), (60, -30), (50, 2), (24, 36), (0, 62, 'c')]
    return [(p[0] * k, p[1] * k) + tuple(p[2:]) for p in sym(half)]


def shield(S, x, y):
    """the heart in four borders with the sign of Venus cut into gold"""
    with S.at(x, y):
        S.fill(heart(2.12), 'deep', 4)
        S.fill(heart(1.96), 'ind', 2)
        for i in range(46):
            ps = sample(heart(2.04), True, 12)
            S.dot(*ps[int(i * len(ps) / 46)], 1.9)
        S.fill(heart(1.74), 'leaf', 3)
        with chased(S):
            with S.clip(path(heart(1.68))):
                for i in range(48):
                    a = 360 * i / 48
                    S.line([pol(0, 0, 130, a), pol(0, 0, 66 if i % 2 else 78, a)], 3.4 if i % 2 else 2.2, 'end')
            S.stroke(path(heart(1.62)), 2)
        S.fill(circ(0, -4, 56), 'deep', 3.2)
        ring(S, 0, -4, 50, 1.2)
        with S.at(0, 2, 1):
            S.fill(circ(0, -18, 24), 'leaf', 0)
            S.fill(circ(0, -18, 14), 'deep', 0)
            S.fill(rect(-4.6, 4, 9.2, 38), 'leaf', 0)
            S.fill(rect(-17, 15, 34, 9), 'leaf', 0)


def sheaf(S, x, y, rot):
    """bound wheat: stalks splay above and below the band"""
    with S.at(x, y, 1, rot):
        for i in range(9):
            f = (i - 4) / 4
            S.line([(f * 12, 0), (f * 26, 44), (f * 52, 104)], 3, 'flat')
        for i in (0, 8, 1, 7, 2, 6, 3, 5, 4):
            f = (i - 4) / 4
            wheat(S, [(f * 14, 10), (f * 30, -70), (f * 92, -196 + abs(f) * 44)], 7, .86)
        S.fill([(-30, -12, 'c'), (0, -6), (30, -12, 'c'), (32, 16, 'c'), (0, 22), (-32, 16, 'c')], 'deep', 3)
        for i in range(8):
            S.line([(-26 + 7.4 * i, -6), (-20 + 7.4 * i, 14)], 2)


def hills(S):
    """tilled ground whose furrows run to the spring of the river"""
    land(S, [(36, 760), (150, 726), (300, 756), (450, 726), (564, 760)], 'night', 9, 6, .5)
    land(S, [(36, 858), (160, 868), (300, 842), (440, 868), (564, 858)], 'deep', 0)
    for i in range(23):
        f = (i - 11) / 11
        S.line([(300 + 200 * f, 862 - 12 * (1 - abs(f))), (300 + 330 * f, 930), (300 + 520 * f, 1050)], 2.2, 'start')


def draw(S):
    x, y = 300, 372
    glory(S, x, y, 214, 340, 112, 1.8)
    S.fill(circ(x, y, 216), 'night', 3)
    ring(S, x, y, 210, 1.2)
    rosette(S, x, y, 176, 126, 6, .8, 480)
    ring(S, x, y, 176, 1.4)
    S.fill(circ(x, y, 126), 'deep', 2)
    for i in range(12):
        px, py = pol(x, y, 193, -90 + 30 * i)
        star(S, px, py, 15, 6, .42)
        for a in (11, 15, 19):
            S.dot(*pol(x, y, 193, -90 + 30 * i + a), 2.2 if a == 15 else 1.4)
    with S.at(x, 196, 1.05):
        crown(S, 0, 0, 1.3, 7, 'ind', 2.8)
    shield(S, x, y + 14)
    hills(S)
    for side in sides(S):
        sheaf(S, 152, 836, 17)
    for side in sides(S):
        blade(S, 40, 846, 70, 26, -46)
        blade(S, 44, 858, 66, 24, -4)
        pomegranate(S, 60, 906, .92, 18)
    blade(S, 300, 782, 66, 26, -120)
    blade(S, 300, 782, 66, 26, -60)
    pomegranate(S, 300, 832, 1.35)
