# SPDX-License-Identifier: GPL-3.0-or-later
"""The Emperor: golden ram's head over the cubic stone of rule, which bears the orb; two sceptres and barren peaks behind."""
import math

from emblems import *      # the vocabulary of scenes, see drawing.py

NUM, HEB, GLYPH, FOCUS = 'IV', 'ה', 'aries', (300, 340)


def horn(S):
    """ribbed horn of the right half, coiling outwards and home"""
    pts = []
    for i in range(40):
        t = i / 39
        a, r = -165 + 520 * t, 82 - 66 * t ** .8
        pts.append((88 + r * math.cos(math.radians(a)), -20 + r * math.sin(math.radians(a)) * .98))
    pts = [(4, -66)] + pts
    width = lambda t: 52 * (1 - t) ** .75 + 5
    with chased(S), S.clip(rect(.8, -220, 260, 400)):
        S.fill(poly(ribbon(pts, width, 3)), 'leaf', 3)
        ps = sample(pts, n=3)
        ns, m = normals(ps), len(ps) - 1
        for i in range(2, m, 3):
            t = i / m
            p, q, h = ps[i], ns[i], width(t) / 2
            c = ps[min(m, i + 2)]
            S.line([(p[0] + q[0] * h, p[1] + q[1] * h), c, (p[0] - q[0] * h, p[1] - q[1] * h)], 2.8 - 1.2 * t, 'flat')


def ram(S, x, y, k):
    """frontal head: fleece, ears, long face, coiled horns"""
    with S.at(x, y, k):
        for r, n in ((74, 17), (52, 12)):
            fleece = [(r * 1.05 * math.cos(a), -8 + r * .92 * math.sin(a)) for a in (2 * math.pi * i / n for i in range(n))]
            curls(S, fleece, 15, 'night', 2.4)
        curls(S, [(i * 19, 88 - abs(i) * 9) for i in (-2, 2, -1, 1, 0)], 15, 'night', 2.4)
        for flip in (False, True):
            with S.at(0, 0, 1, 0, flip):
                S.fill([(42, -6, 'c'), (76, -2), (112, 22), (126, 52, 'c'), (92, 46), (58, 22)], 'ind', 2.6)
                S.line([(54, 4), (88, 22), (118, 46)], 2)
        S.fill(sym([(0, -62), (30, -58), (44, -34), (42, -4), (32, 34), (29, 64), (18, 84), (0, 90)]), 'ind', 3.2)
        both(S, [(10, -40), (15, -10), (13, 30), (19, 58)], 2.4)
        both(S, [(26, 24), (24, 46), (26, 62)], 1.8, 'end')
        for i in range(4):
            both(S, [(36 - 2 * i, 2 + 11 * i), (27 - 2 * i, 6 + 11 * i)], 2, 'end')
        both(S, [(16, -20), (30, -27), (41, -20)], 4)
        S.fill(sym([(0, 58), (13, 56), (17, 66), (8, 76), (0, 78)]), 'deep', 2)
        both(S, [(3, 68), (10, 64), (14, 68)], 2.6)
        S.line([(-15, 82), (-6, 80), (0, 84), (6, 80), (15, 82)], 2.2)
        for flip in (False, True):
            with S.at(0, 0, 1, 0, flip):
                S.fill([(17, -6, 'c'), (24, -15), (33, -15), (40, -7, 'c'), (32, -1), (23, -1)], 'leaf', 2)
                with chased(S):
                    S.limb([(23, -8), (34, -8)], [5, 5], 'dark', 0, 'se')
        curls(S, [(-20, -56), (20, -56), (-8, -50), (8, -50), (0, -64)], 13, 'night', 2.4)
        for flip in (False, True):
            with S.at(0, 0, 1, 0, flip):
                horn(S)


def sceptre(S, rot):
    """staff of rule with the looped cross"""
    with S.at(300, 806, 1, rot):
        S.limb([(0, 160), (0, -190)], [11, 11], 'deep', 2.8)
        S.stroke('M0 156V-186', 1.2)
        for y in (-176, -166, -60, -50, 60, 70):
            S.line([(-7, y), (7, y)], 2.4, 'flat')
        S.fill(circ(0, -222, 22, 28), 'leaf', 2)
        S.fill(circ(0, -220, 10, 15), 'deep', 2)
        S.fill(rect(-30, -196, 60, 11, 3), 'leaf', 2)


def orb(S, x, y, r):
    """globe with band, cross and meridians"""
    S.fill(circ(x, y, r), 'deep', 3.4)
    for q in (.3, .62, .86):
        S.stroke(circ(x, y, r * q, r), 1.2)
    S.fill([(x - r, y - 6, 'c'), (x, y + 5), (x + r, y - 6, 'c'), (x + r, y + 6, 'c'), (x, y + 17), (x - r, y + 6, 'c')], 'leaf', 2)
    S.fill(poly([(x - 5.5, y - r), (x + 5.5, y - r), (x + 5.5, y + 6), (x - 5.5, y + 6)]), 'leaf', 2)
    S.fill(poly([(x + u, y - r + v) for u, v in ((-5, 2), (-4, -17), (-18, -15), (-18, -27), (-4, -25), (-6, -42), (6, -42), (4, -25),
                                                  (18, -27), (18, -15), (4, -17), (5, 2))]), 'leaf', 2)
    with chased(S):
        for u in (-.66, -.36, .36, .66):
            S.dot(x + u * r, y + 5 - 8 * abs(u), 2.6)


def cube(S):
    """cubic stone seen on an edge, a golden lozenge in each face"""
    top = [(300, 812), (438, 842), (300, 876), (162, 842)]
    S.fill(poly([(162, 842), (300, 876), (300, 1010), (162, 970)]), 'ind', 3.4)
    S.fill(poly([(300, 876), (438, 842), (438, 970), (300, 1010)]), 'night', 3.4)
    with S.clip(poly([(300, 876), (438, 842), (438, 970), (300, 1010)])):
        S.hatch(300, 830, 440, 1010, 6, 1.4, -14)
    S.fill(poly(top), 'deep', 3.4)
    S.stroke(poly([(300 + (p[0] - 300) * .84, 843 + (p[1] - 843) * .84) for p in top]), 1.6)
    for side, flat in ((-1, 'deep'), (1, 'deep')):
        P = lambda u, v: (300 + side * 138 * u, 876 - 34 * u + 134 * v - 6 * u * v)
        S.fill(poly([P(.14, .1), P(.86, .1), P(.86, .9), P(.14, .9)]), flat, 2.6)
        S.stroke(poly([P(.2, .17), P(.8, .17), P(.8, .83), P(.2, .83)]), 1.3)
        S.fill(poly([P(.5, .22), P(.76, .5), P(.5, .78), P(.24, .5)]), 'ind', 2.2)
        S.fill(poly([P(.5, .36), P(.64, .5), P(.5, .64), P(.36, .5)]), 'leaf', 0)


def draw(S):
    x, y = 300, 344
    glory(S, x, y, 196, 330, 104, 1.9)
    medallion(S, x, y, 200, 32, 'dentils', rays=0)
    radial(S, x, y, 60, lambda i: 154 if i % 2 else 140, 72, 1.3)
    ram(S, x, y - 2, 1.08)
    peak(S, (128, 640), (-20, 900), (230, 900), 'night', .26)
    peak(S, (478, 652), (360, 900), (620, 900), 'night', .26)
    peak(S, (222, 706), (80, 920), (320, 920), 'ind', .22)
    peak(S, (392, 712), (290, 920), (540, 920), 'ind', .22)
    land(S, [(36, 896), (180, 884), (300, 892), (420, 884), (564, 896)], 'deep', 14, 6, .5)
    for rot in (-31, 31):
        sceptre(S, rot)
    cube(S)
    orb(S, 300, 790, 56)
