# SPDX-License-Identifier: GPL-3.0-or-later
"""Justice: upright sword as the post of a balance that weighs a heart against a feather, crowned ring above, measured floor below."""
from emblems import *      # the vocabulary of scenes, see drawing.py

NUM, HEB, GLYPH, FOCUS = 'VIII', 'ל', 'libra', (300, 360)


def sword(S):
    """the blade stands on its pommel; the guard lies below the pans"""
    S.fill([(280, 742, 'c'), (283, 250), (284, 200), (300, 128, 'c'), (316, 200), (317, 250), (320, 742, 'c')], 'ind', 3.2)
    S.fill(poly([(300, 742), (300, 134), (315, 204), (319, 742)]), 'deep', 1.4)
    with S.clip(poly([(300, 742), (300, 134), (315, 204), (319, 742)])):
        S.hatch(296, 130, 322, 745, 7, 1.4, 38)
    S.line([(300, 740), (300, 132)], 2.6, 'flat')
    S.fill([(206, 748, 'c'), (196, 736), (184, 748), (192, 766), (212, 768, 'c'), (300, 762), (388, 768, 'c'), (408, 766), (416, 748),
            (404, 736), (394, 748, 'c'), (300, 736)], 'leaf', 2.8)
    S.fill(circ(300, 752, 23), 'deep', 2.6)
    star(S, 300, 752, 18, 8, .4)
    S.limb([(300, 776), (300, 880)], [24, 20], 'deep', 3)
    for i in range(9):
        S.line([(289, 786 + 11 * i), (311, 778 + 11 * i)], 2.4, 'flat')
    S.fill(circ(300, 900, 26), 'leaf', 2.8)
    with chased(S):
        ring(S, 300, 900, 19, 2)
        glyph(S, 'libra', 300, 899, .25, 16, kind='line')


def pan(S, side):
    """chains and bowl of the right half; weights by side: heart left, feather right"""
    x, y = 178, 610
    for dx in (-62, 0, 62):
        pts = [(x, 384), (x + dx, y)]
        chain(S, pts, 25, 6.4)
    if side < 0:
        S.fill([(x, y - 58, 'c'), (x + 15, y - 74), (x + 36, y - 68), (x + 38, y - 44), (x, y + 2, 'c'), (x - 38, y - 44),
                (x - 36, y - 68), (x - 15, y - 74)], 'leaf', 2.8)
        with chased(S):
            S.line([(x + 28, y - 58), (x + 27, y - 42), (x + 10, y - 20)], 4)
            S.line([(x + 17, y - 62), (x + 16, y - 44), (x + 4, y - 26)], 2.6)
    else:
        with S.at(x - 8, y + 4, 1, 6):
            S.fill([(0, 0, 'c'), (-24, -40), (-25, -96), (-2, -132), (22, -142, 'c'), (30, -104), (24, -50)], 'leaf', 2.4)
            with chased(S):
                S.line([(0, 0), (2, -60), (14, -132)], 3.2, 'end')
                for i in range(9):
                    v = -18 - 12 * i
                    S.line([(1 + i, v), (-19, v - 20)], 2, 'end')
                    S.line([(2 + i, v), (23, v - 20)], 2, 'end')
            S.line([(0, 14), (0, 0)], 3.4, 'flat')
    S.fill(f'M{x - 74} {y}C{x - 66} {y + 66} {x + 66} {y + 66} {x + 74} {y}Z', 'ind', 3.2)
    for q in (.84, .66, .46):
        S.stroke(f'M{x - 74 * q} {y + 10}C{x - 66 * q} {y + 10 + 50 * q} {x + 66 * q} {y + 10 + 50 * q} {x + 74 * q} {y + 10}', 1.4)
    S.fill(rect(x - 80, y - 6, 160, 11, 5), 'leaf', 2.2)
    S.fill(circ(x, y + 62, 8), 'leaf', 2.2)
    S.line([(x, y + 70), (x, y + 104)], 3.6, 'end')


def beam(S, y):
    """beam through the blade, serpent-necked, with a pointer over the axis"""
    S.fill(path([(300, y - 18), (360, y - 13), (430, y - 20), (486, y - 6, 'c'), (486, y + 6, 'c'), (430, y + 2), (360, y + 13),
                 (300, y + 18), (240, y + 13), (170, y + 2), (114, y + 6, 'c'), (114, y - 6, 'c'), (170, y - 20), (240, y - 13)]),
           'leaf', 2.8)
    with chased(S):
        for s in (-1, 1):
            S.line([(300 + s * 40, y), (300 + s * 130, y - 5), (300 + s * 172, y)], 2.6)
            for i in range(5):
                S.dot(300 + s * (60 + 22 * i), y - 8.5, 2.2)
    for s in (-1, 1):
        S.fill(circ(300 + s * 178, y, 13), 'deep', 2.8)
        S.fill(circ(300 + s * 178, y, 5), 'leaf', 0)
    S.fill(circ(300, y, 34), 'deep', 3)
    S.fill(circ(300, y, 27), 'ind', 2)
    S.fill([(276, y, 'c'), (288, y - 13), (312, y - 13), (324, y, 'c'), (312, y + 12), (288, y + 12)], 'leaf', 2)
    S.fill(circ(300, y - 1, 9), 'deep', 0)
    S.dot(300, y - 1, 3.6)


def floor(S):
    """pavement of squares running to the horizon"""
    S.fill(rect(36, 800, 528, 260), 'deep', 3)
    rows = [800 + 9 * j + 3.2 * j * j for j in range(9)]
    P = lambda u, y: (300 + u * 34 * (.7 + (y - 800) / 150), y)
    for j, (a, b) in enumerate(zip(rows, rows[1:])):
        for i in range(-14, 14):
            if (i + j) % 2:
                tile = poly([P(i, a), P(i + 1, a), P(i + 1, b), P(i, b)])
                S.fill(tile, 'ind', 1.4)
                with S.clip(tile):
                    S.hatch(P(i, b)[0], a, P(i + 1, b)[0], b, 5.2, 1.1, 90)
    S.line([(36, 800), (564, 800)], 2.6, 'flat')


def draw(S):
    x, y = 300, 372
    glory(S, x, y, 148, 360, 104, 1.8)
    medallion(S, x, y, 146, 26, 'knot', rays=64)
    floor(S)
    for side in sides(S):
        laurel(S, 0, 846, 150, 92, 100, 12, 8, 40, 15)
    sword(S)
    for side in sides(S):
        pan(S, side)
    beam(S, y)
    with S.at(300, 210):
        crown(S, 0, 0, .92, 5, 'ind', 3)
