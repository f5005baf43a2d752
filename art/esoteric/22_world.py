# SPDX-License-Identifier: GPL-3.0-or-later
"""The World: globe and star in the oval wreath tied with crossed ribbons; man, eagle, bull and lion hold the corners."""
import math

from emblems import *      # the vocabulary of scenes, see drawing.py

NUM, HEB, GLYPH, FOCUS = 'XXII', 'ת', 'saturn', (300, 520)


def wreath(S, x, y, rx, ry):
    """laurel oval of two halves that rise from the lower ribbon to the upper one"""
    for side in sides(S, x):
        laurel(S, 0, y, rx, ry, 88, -86, 27, 50, 20)
    for yy in (y - ry, y + ry):
        for rot in (-36, 36):
            with S.at(x, yy, 1, rot):
                S.fill(rect(-34, -8, 68, 16, 4), 'leaf', 2.6)
                with chased(S):
                    S.line([(-30, -3), (30, -3)], 2, 'flat')
                    S.line([(-30, 3), (30, 3)], 2, 'flat')


def globe(S, x, y, r):
    """sphere with meridians and parallels, the zodiac's belt across it"""
    glory(S, x, y, r + 8, 66, 88, 1.6)
    S.fill(circ(x, y, r), 'deep', 3.6)
    for i in range(1, 5):
        S.stroke(circ(x, y, r * math.sin(math.pi * i / 10), r), 1.5)
    for i in range(1, 8):
        h = r * math.cos(math.pi * i / 8)
        w = math.sqrt(max(0, r * r - h * h))
        S.stroke(path([(x - w, y - h, 'c'), (x, y - h + 10 * math.sin(math.pi * i / 8)), (x + w, y - h, 'c')], False), 1.5)
    with S.clip(circ(x, y, r)), S.at(x, y, 1, -24):
        S.fill([(-r - 8, -20, 'c'), (0, 8), (r + 8, -20, 'c'), (r + 8, 16, 'c'), (0, 44), (-r - 8, 16, 'c')], 'leaf', 3)
        with chased(S):
            for i, name in enumerate(list(SIGNS)[:7]):
                f = (i - 3) / 3
                with S.at(f * r * .84, 24 - 24 * f * f, 1, -22 * f):
                    glyph(S, name, 0, 0, .17, 17, kind='line')
    ring(S, x, y, r, 3.6)


def man(S, x, y, k):
    """human head, winged at the nape, ringed by curls"""
    with S.at(x, y, k):
        curls(S, [pol(0, -8, 50, a) for a in (160, 180, 200, 220, 240, 260, 280, 300, 320, 340, 0, 20)], 15, 'ind', 2.4)
        curls(S, [pol(0, 0, 52, a) for a in (40, 140)], 14, 'ind', 2.4)
        with chased(S):
            face(S, 0, 0, 1, 0, sex='f', lw=3)


def eagle(S, x, y, k, flip=False):
    """eagle's head in profile to the right: hooked golden beak, stern brow, hackles in rows that end in points"""
    with S.at(x, y, k, 0, flip):
        S.fill([(-40, 74, 'c'), (-62, 40), (-60, 4), (-42, -36), (-6, -56), (30, -48), (44, -30, 'c'), (42, -8, 'c'), (26, 12), (22, 36),
                (34, 70, 'c'), (20, 60, 'c'),
                (12, 78, 'c'), (0, 64, 'c'), (-10, 82, 'c'), (-22, 66, 'c')], 'ind', 3.2)
        for y0, x0, n in ((-22, -42, 3), (-6, -52, 4), (10, -46, 4), (26, -54, 4), (42, -46, 4)):
            for i in range(n):
                px, py = x0 + 18 * i, y0 + 2 * i
                S.stroke(path([(px - 8, py, 'c'), (px - 5, py + 10), (px, py + 16, 'c'), (px + 5, py + 10), (px + 8, py, 'c')], False), 2.2)
        with chased(S):
            S.fill([(32, -36, 'c'), (52, -40), (76, -28), (86, 0), (78, 22, 'c'), (70, 6), (56, 0), (40, 4), (28, -2, 'c')], 'leaf', 2.8)
            S.line([(32, -8), (50, -10), (68, -4)], 2.6)
            S.dot(52, -26, 3.2)
        S.fill(circ(10, -22, 11), 'leaf', 2.4)
        with chased(S):
            S.dot(13, -22, 5.6)
        S.limb([(-10, -36), (12, -38), (34, -28)], [4, 9, 4], 'leaf', 2)


def bull(S, x, y, k):
    """frontal bull: lyre horns, curled brow, golden muzzle ring"""
    with S.at(x, y, k):
        for side in sides(S, 0):
            S.fill([(38, -30, 'c'), (66, -38), (92, -28), (100, -12, 'c'), (76, -6), (46, -8)], 'ind', 2.8)
            S.line([(48, -20), (70, -26), (92, -16)], 2)
            with chased(S):
                S.fill(poly(ribbon([(24, -50), (62, -62), (80, -92), (64, -124)], lambda t: 25 * (1 - t) ** .7 + 2)), 'leaf', 3)
                for t in (.16, .28, .4):
                    px, py, a = along([(24, -50), (62, -62), (80, -92), (64, -124)], 20)[int(t * 20)]
                    S.line([pol(px, py, 10 - 9 * t, a + 90), pol(px, py, 10 - 9 * t, a - 90)], 2.2, 'flat')
        S.fill(sym([(0, -62), (34, -58), (48, -34), (42, -2), (32, 30), (36, 52), (26, 72), (0, 78)]), 'ind', 3.2)
        S.fill(sym([(0, 36), (26, 34), (38, 50), (28, 70), (0, 78)]), 'deep', 2.6)
        for side in sides(S, 0):
            S.fill([(9, 50, 'c'), (18, 45), (24, 52), (15, 58)], 'leaf', 1.6)
            S.fill([(18, -8, 'c'), (27, -16), (38, -10, 'c'), (28, -2)], 'leaf', 1.8)
            with chased(S):
                S.dot(28, -9, 3.6)
            S.line([(14, -18), (28, -26), (42, -18)], 3.2)
            S.line([(14, -4), (12, 20), (16, 36)], 2.2)
            S.comb([(42, -2), (34, 24)], 190, 13, 6, 2.4)
        S.stroke(path([(-8, 60), (-9, 74), (0, 82), (9, 74), (8, 60)], False), 5)
        curls(S, [(-24, -52), (24, -52), (-10, -46), (12, -46), (0, -60), (0, -36)], 11, 'night', 2.2)


def nimbus(S, x, y, r):
    """dark disc behind one of the four, rayed along the rim"""
    for i in range(40):
        S.fill(poly([pol(x, y, r, 9 * i - 4.5), pol(x, y, r + (13 if i % 2 else 8), 9 * i), pol(x, y, r, 9 * i + 4.5)]),
               'leaf' if i % 2 else 'deep', 1.4)
    S.fill(circ(x, y, r), 'night', 2.8)
    ring(S, x, y, r - 5, 1.2)
    radial(S, x, y, r * .5, r - 9, 48, 1.2)


def draw(S):
    x, y = 300, 520
    glory(S, x, y, 150, 560, 144, 1.9)
    for rx, ry, w in ((212, 304, 1.4), (204, 296, 2.6)):
        S.fill(circ(x, y, rx, ry), 'night', w)
    wreath(S, x, y, 178, 268)
    S.fill(circ(x, y, 146, 232), 'deep', 3)
    S.stroke(circ(x, y, 140, 226), 1.3)
    with S.clip(circ(x, y, 140, 226)):
        radial(S, x, y, 70, lambda i: (230, 150, 190, 130)[i % 4], 96, 1.3)
    globe(S, x, y, 92)
    facet_star(S, x, y - 162, 44, 8, .36, w=1.8)
    S.fill(crescent(x, y + 160, 36, .82, .36), 'leaf', 2.4)
    star(S, x, y + 142, 14, 8, .36)
    for side in sides(S):
        for r, a in ((116, -52), (116, 52)):
            star(S, *pol(0, y, r + 22, a), 9, 4, .3)
    for px, py in ((122, 192), (478, 192), (122, 862), (478, 862)):
        nimbus(S, px, py, 78)
    man(S, 122, 196, 1.02)
    eagle(S, 486, 188, .8, True)
    bull(S, 122, 876, .84)
    lion_head(S, 478, 862, .74)
