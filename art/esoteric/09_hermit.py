# SPDX-License-Identifier: GPL-3.0-or-later
"""The Hermit: lantern with the six-point star hung from a serpent staff that stands on the highest of snowy peaks; a path winds up."""
import math

from emblems import *      # the vocabulary of scenes, see drawing.py

NUM, HEB, GLYPH, FOCUS = 'IX', 'י', 'virgo', (300, 350)


def lantern(S, x, y):
    """six-sided lantern: onion roof, panes, star of two triangles burning inside"""
    roof = sym([(0, -150), (9, -140), (12, -122), (34, -106), (70, -92), (88, -68, 'c'), (0, -60)])
    S.fill([(x + p[0], y + p[1]) + tuple(p[2:]) for p in roof], 'ind', 3.2)
    for u in (-60, -36, -12, 12, 36, 60):
        S.line([(x + u * 1.2, y - 68), (x + u * .8, y - 94), (x + u * .1, y - 132)], 2, 'end')
    S.fill(circ(x, y - 158, 13), 'leaf', 2.4)
    S.fill(circ(x, y - 158, 6), 'deep', 2)
    S.fill(poly([(x - 84, y - 66), (x + 84, y - 66), (x + 72, y + 90), (x - 72, y + 90)]), 'deep', 3.4)
    radial(S, x, y + 10, 20, lambda i: 92 if i % 2 else 70, 60, 1.5)
    for u in (-1, 1):
        S.fill(poly([(x + u * 84, y - 66), (x + u * 68, y - 66), (x + u * 58, y + 90), (x + u * 72, y + 90)]), 'ind', 2.8)
        S.line([(x + u * 76, y - 60), (x + u * 65, y + 86)], 1.6, 'flat')
    star6 = [[pol(x, y + 10, 62, -90 + 120 * i) for i in range(3)], [pol(x, y + 10, 62, 90 + 120 * i) for i in range(3)]]
    for t in star6:
        S.fill(poly(t), 'leaf', 2)
    with chased(S):
        for t in star6:
            q = [(x + (p[0] - x) * .8, y + 10 + (p[1] - y - 10) * .8) for p in t]
            S.stroke(poly(q), 2.4)
    S.fill(circ(x, y + 10, 18), 'deep', 2.4)
    glyph(S, 'virgo', x, y + 10, .22, 16)
    for yy, w, h in ((-72, 92, 13), (86, 78, 12), (98, 88, 15)):
        S.fill(rect(x - w, y + yy, 2 * w, h, 4), 'leaf' if h == 13 else 'night', 2.6)
    S.fill([(x - 40, y + 113, 'c'), (x - 18, y + 128), (x, y + 146, 'c'), (x + 18, y + 128), (x + 40, y + 113, 'c')], 'night', 2.8)
    for i in range(15):
        S.line([(x - 78 + 11.2 * i, y + 101), (x - 74 + 11.2 * i, y + 110)], 2)


def serpent_staff(S):
    """staff that bears the lantern, and the serpent climbing it before and behind"""
    turns = [(300 + 30 * math.cos(math.pi * i), 748 - 30 * i) for i in range(8)]
    ps = sample(turns, n=10)
    for front in (False, True):
        for i in range(7):
            part = ps[10 * i:10 * i + 11]
            if (i % 2 == 0) == front:
                w0, w1 = 3 + 14 * min(1, i / 3), 3 + 14 * min(1, (i + 1) / 3)
                S.limb(part, [w0, w1], 'leaf', 2.6, 'se')
                with chased(S):
                    for x, y, a in along(part, 7):
                        S.line([pol(x, y, w1 * .42, a + 60), (x, y), pol(x, y, w1 * .42, a - 60)], 1.7 if front else 3, 'flat')
        if not front:
            S.limb([(300, 790), (300, 500)], [16, 15], 'deep', 3)
            S.line([(297, 510), (297, 780)], 1.8, 'flat')
            for y in range(516, 780, 17):
                S.line([(301, y), (305, y + 9)], 1.6)
    x, y = turns[-1]
    S.fill([(x + 2, y + 10, 'c'), (x - 12, y + 2), (x - 12, y - 18), (x + 4, y - 30), (x + 15, y - 20), (x + 14, y - 2)], 'leaf', 2.6)
    with chased(S):
        S.dot(x + 1, y - 15, 2.8)
        S.line([(x + 4, y - 28), (x + 11, y - 12)], 1.8)


def mountains(S):
    """range with the steep central peak and the pilgrim's path"""
    for top, left, right, pig, snow in (((96, 690), (-60, 960), (240, 960), 'night', .3), ((506, 676), (360, 960), (650, 960), 'night', .3),
                                        ((190, 760), (50, 1000), (320, 1000), 'ind', .24),
                                        ((424, 752), (290, 1000), (560, 1000), 'ind', .24)):
        peak(S, top, left, right, pig, snow)
    peak(S, (300, 752), (100, 1060), (500, 1060), 'deep', .16)
    track = [(300, 822), (318, 846), (282, 872), (268, 896), (322, 922), (352, 950), (276, 984), (236, 1030)]
    S.limb(track, [3, 5, 7, 9, 13, 17, 24, 34], 'ind', 2.6)
    ps = sample(track, n=6)
    for i in range(4, len(ps), 3):
        S.line([(ps[i][0] - i * .22, ps[i][1]), (ps[i][0] + i * .22, ps[i][1])], 1.6)


def draw(S):
    x, y = 300, 362
    glory(S, x, y, 186, 400, 120, 1.8)
    S.fill(circ(x, y, 186), 'night', 3)
    ring(S, x, y, 180, 1.2)
    for i in range(60):
        star(S, *pol(x, y, 169, 6 * i), 8.5 if i % 5 == 0 else 4, 4, .3)
    ring(S, x, y, 158, 2.6)
    rosette(S, x, y, 156, 128, 5, .8, 480)
    S.fill(circ(x, y, 128), 'deep', 2.4)
    mountains(S)
    serpent_staff(S)
    lantern(S, x, y)
    S.line([(300, 176), (300, 204)], 4, 'flat')
    for side in sides(S):
        star(S, 190, 178, 13, 4)
        star(S, 226, 560, 11, 4)
        star(S, 120, 620, 8, 4)
