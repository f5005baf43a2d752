# SPDX-License-Identifier: GPL-3.0-or-later
"""The Wheel of Fortune: alchemical wheel with the sphinx above, the serpent going down and the jackal rising; two horns of plenty."""
import math

from emblems import *      # the vocabulary of scenes, see drawing.py

NUM, HEB, GLYPH, FOCUS = 'X', 'כ', 'jupiter', (300, 420)


def mark(S, name, x, y):
    """alchemical sign: mercury, sulphur, salt or dissolution"""
    with S.at(x, y):
        if name == 'mercury':
            glyph(S, 'mercury', 0, 0, .44, 14)
        elif name == 'sulphur':
            S.stroke(poly([(0, -22), (18, 4), (-18, 4)]), 6)
            S.stroke('M0 5V23M-10 14H10', 6)
        elif name == 'salt':
            S.stroke(circ(0, 0, 18), 6)
            S.stroke('M-18 0H18', 6)
        else:
            glyph(S, 'aquarius', 0, 0, .44, 14)


def wheel(S, x, y):
    """three rims: studded rim outside, spokes and alchemical signs within, sign of Jupiter on the nave"""
    S.fill(circ(x, y, 190), 'night', 4)
    ring(S, x, y, 184, 1.3)
    for i in range(32):
        a = 360 * i / 32
        S.fill(circ(*pol(x, y, 171, a), 8.4), 'leaf' if i % 4 == 0 else 'deep', 2.2)
        if i % 4:
            S.dot(*pol(x, y, 171, a), 2.2)
    ring(S, x, y, 157, 2.8)
    S.fill(circ(x, y, 152), 'deep', 1.6)
    rosette(S, x, y, 150, 124, 5, .8, 480)
    S.fill(circ(x, y, 122), 'night', 3)
    radial(S, x, y, 44, lambda i: 116 if i % 2 else 108, 96, 1.1)
    for i in range(8):
        with S.at(x, y, 1, 45 * i + 22.5):
            S.fill([(34, -5, 'c'), (60, -9), (90, -5), (122, -12, 'c'), (122, 12, 'c'), (90, 5), (60, 9), (34, 5, 'c')], 'ind', 2.4)
            S.line([(40, 0), (112, 0)], 2)
    for i, name in enumerate(('mercury', 'sulphur', 'dissolution', 'salt')):
        px, py = pol(x, y, 87, -90 + 90 * i)
        S.fill(circ(px, py, 32), 'deep', 2.6)
        ring(S, px, py, 27.5, 1.1)
        with S.at(px, py, .82):
            mark(S, name, 0, 0)
    S.fill(circ(x, y, 46), 'deep', 3.2)
    dots(S, x, y, 41, 36, 1.6)
    S.fill(circ(x, y, 36), 'leaf', 2.6)
    with chased(S):
        ring(S, x, y, 31, 1.8)
        glyph(S, 'jupiter', x, y, .42, 14, kind='line')


def serpent(S, x, y):
    """serpent gliding down the left rim, head at the bottom"""
    pts = [pol(x, y, 200 + 17 * math.sin(i * 1.35), 238 - 12.5 * i) for i in range(10)]
    with chased(S):
        S.limb(pts, [3, 9, 14, 17, 18, 18, 17, 15, 14, 15], 'leaf', 3)
        for px, py, a in along(pts, 44)[3:]:
            S.line([pol(px, py, 7, a + 62), (px, py), pol(px, py, 7, a - 62)], 2, 'flat')
    hx, hy, a = along(pts, 60)[-1]
    with S.at(hx, hy, 1, a):
        S.fill([(-8, -8, 'c'), (8, -15), (28, -9), (36, 0, 'c'), (28, 9), (8, 15), (-8, 8, 'c')], 'leaf', 2.4)
        S.line([(36, 0), (52, 0)], 2, 'flat')
        S.line([(50, 0), (60, -6)], 2, 'end')
        S.line([(50, 0), (60, 6)], 2, 'end')
        with chased(S):
            S.dot(12, -6, 2.8)
            S.dot(12, 6, 2.8)


def cornucopia(S):
    """horn of plenty of the right half: coiled tip, mouth turned up and out, fruit and coins"""
    pts = [(34, 918), (16, 934), (24, 962), (66, 966), (120, 940), (160, 890), (176, 826)]
    S.limb(pts, [4, 14, 28, 44, 62, 76, 88], 'ind', 3.2)
    ps = sample(pts, n=6)
    ns, m = normals(ps), len(ps) - 1
    for i in range(4, m, 2):
        t = i / m
        h = 42 * t ** .95
        p, q = ps[i], ns[i]
        c = ps[max(0, i - 2)]
        S.line([(p[0] + q[0] * h, p[1] + q[1] * h), c, (p[0] - q[0] * h, p[1] - q[1] * h)], 2.2, 'flat')
    for fx, fy, r in ((150, 778, 22), (206, 782, 22), (178, 758, 24)):
        S.fill(circ(fx, fy, r), 'deep', 2.8)
        S.comb([(fx + r * .9, fy - 6), (fx + r * .9, fy + 8), (fx + r * .4, fy + r * .85)], 190, r * .6, 7, 2.4)
    for fx, fy, a in ((132, 770, -140), (222, 766, -40), (160, 740, -110), (198, 738, -68)):
        blade(S, fx, fy, 36, 18, a)
    for gx, gy in ((176, 800), (162, 794), (190, 794), (170, 812), (184, 812)):
        S.fill(circ(gx, gy, 8), 'leaf', 2)
    S.fill([(126, 806, 'c'), (176, 822), (226, 812, 'c'), (224, 830, 'c'), (176, 842), (130, 826, 'c')], 'leaf', 2.8)
    with chased(S):
        for i in range(8):
            S.dot(140 + 11 * i, 820 + 10 * math.sin(math.pi * (i + .5) / 8), 2.6)


def draw(S):
    x, y = 300, 442
    glory(S, x, y, 170, 420, 112, 1.8)
    S.limb([(300, 590), (300, 990)], [20, 30], 'deep', 3)
    for i in range(19):
        S.line([(291, 626 + 17 * i), (309, 618 + 17 * i)], 2)
    with S.at(x, y, .86):
        wheel(S, 0, 0)
        serpent(S, 0, 0)
    leaping_dog(S, 490, 452, .84, 80, True, jackal=True)
    with S.at(300, 230):
        for flip in (False, True):
            with S.at(0, 0, 1, 0, flip):
                wing(S, 24, 14, .72, -12, n=11, spread=(100, -14), gold=True)
    sphinx_head(S, 300, 214, .78, True)
    water(S, 880, 1000, 13)
    for side in sides(S):
        cornucopia(S)
    S.fill(circ(300, 900, 32), 'deep', 3)
    facet_star(S, 300, 900, 28, 8, .4, w=1.6)
    for i, (cx, cy) in enumerate(((74, 690), (100, 640), (62, 620), (508, 700), (530, 640), (486, 654))):
        S.fill(circ(cx, cy, 12), 'leaf', 2)
        with chased(S):
            ring(S, cx, cy, 8.4, 1.6)
            S.dot(cx, cy, 2.6)
