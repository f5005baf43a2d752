# SPDX-License-Identifier: GPL-3.0-or-later
"""The High Priestess: horned moon crown between the pillars of severity and mercy, the veil of pomegranates, the half-seen scroll."""
import math

from emblems import *      # the vocabulary of scenes, see drawing.py

NUM, HEB, GLYPH, FOCUS = 'II', 'ג', 'moon', (300, 320)


def pillar(S, side):
    """lotus column right of the axis; the left one is dark, the right one bright"""
    shaft = poly([(162, 352), (226, 352), (232, 900), (156, 900)])
    S.fill(shaft, 'night' if side < 0 else 'ind', 3.4)
    for i in range(9):
        f = (i + .5) / 9
        x = 162 + 64 * f
        weight = 1.6 + 2.6 * math.sin(math.pi * f) if side > 0 else 1.4
        S.line([(x, 360), (156 + 76 * f, 892)], weight, 'flat')
    if side < 0:
        with S.clip(shaft):
            for y in range(340, 920, 9):
                S.line([(150, y + 40), (240, y)], 1.3, 'flat')
    for y in (420, 640, 860):
        S.fill(rect(156, y - 13, 76, 26), 'deep', 2.6)
        for i in range(5):
            S.fill(circ(170 + 12 * i, y, 4.4), 'leaf' if i == 2 else 'deep', 1.8)
    S.fill(rect(148, 900, 92, 20), 'deep', 3)
    S.fill(rect(140, 920, 108, 26), 'night', 3)
    for i in range(9):
        S.line([(148 + 11.4 * i, 924), (153 + 11.4 * i, 942)], 1.8)
    # lotus capital: outer petals first
    for dx, lean, h in ((-40, -30, 70), (40, 30, 70), (-24, -16, 86), (24, 16, 86), (0, 0, 94)):
        x = 194 + dx * .55
        tip = (194 + dx + lean * .5, 352 - h)
        S.fill(poly(ribbon([(x, 356), ((x + tip[0]) / 2 + lean * .1, 352 - h * .5), tip], [20, 38, 30, 2])), 'ind' if dx else 'deep', 2.8)
        S.line([(x, 350), tip], 1.8, 'end')
        S.line([(x - 6, 350), (tip[0] - 9, tip[1] + 34)], 1.4, 'end')
        S.line([(x + 6, 350), (tip[0] + 9, tip[1] + 34)], 1.4, 'end')
    S.fill(rect(156, 342, 76, 20, 6), 'leaf', 2.4)


def veil(S):
    """curtain between the pillars, looped on a rod, worked with pomegranates"""
    bottom = [(154 - i * 25.7, 846 + (16 if i % 2 else 0)) for i in range(12)]
    cloth = [(158, 500, 'c')] + [(x, y) for x, y in bottom] + [(-158, 500, 'c')]
    cloth = [(p[0] + 300,) + tuple(p[1:]) for p in cloth]
    S.fill(cloth, 'night', 3)
    with S.clip(path(cloth)):
        for i in range(25):
            x = 300 - 150 + 12.5 * i
            S.line([(x, 500), (x + (4 if i % 2 else -4), 640), (x, 860)], 2.6 if i % 2 else 1.4, 'both')
    for y in (826, 812):
        S.line([(154, y), (300, y + 8), (446, y)], 2.2, 'flat')
    for y, xs in ((572, (216, 300, 384)), (664, (258, 342)), (756, (216, 384))):
        for x in xs:
            S.fill(circ(x, y, 35), 'deep', 2.4)
            ring(S, x, y, 30, 1.1)
            pomegranate(S, x, y + 5, .58)
    S.limb([(132, 496), (468, 496)], [11, 11], 'deep', 2.8)
    for i in range(13):
        S.fill(circ(156 + 24 * i, 500, 8), 'leaf' if i % 3 == 0 else 'deep', 2.4)


def scroll(S):
    """half-unrolled scroll lying before the veil"""
    with S.at(300, 862):
        glory(S, 0, 0, 40, 150, 52, 1.7, 190, 350)
        S.fill([(-84, -30, 'c'), (0, -40), (84, -30, 'c'), (84, 34, 'c'), (0, 24), (-84, 34, 'c')], 'ind', 3.2)
        for i in range(4):
            S.line([(-66, -16 + 12 * i), (0, -24 + 12 * i), (66, -16 + 12 * i)], 2.4 if i % 2 else 1.6)
        S.fill(circ(0, -4, 21), 'deep', 2.2)
        S.fill(crescent(0, -4, 14, .8, .42), 'leaf', 0)
        for s in (-1, 1):
            S.fill(rect(s * 90 - 14, -44, 28, 90, 8), 'night', 3.2)
            for u in (-6, 0, 6):
                S.line([(s * 90 + u, -36), (s * 90 + u, 38)], 1.8)
            for y in (-52, 54):
                S.fill(circ(s * 90, y, 9), 'leaf', 2)


def horned_moon(S, x, y):
    """the crown: full disc between the horns of the crescent, over three small phases"""
    glory(S, x, y, 142, 190, 88, 1.8, 150, 390)
    medallion(S, x, y, 142, 24, 'scales', rays=60)
    S.fill(crescent(x, y + 14, 82, .84, .34), 'leaf', 3)
    with chased(S):
        for i in range(19):
            a = 24 + 132 * i / 18
            S.line([pol(x, y + 14, 80, a), pol(x, y + 14, 62 - 6 * math.sin(math.radians(a)), a)], 2.2, 'end')
    S.fill(circ(x, y - 26, 40), 'deep', 3)
    S.fill(circ(x, y - 26, 34), 'leaf', 0)
    with chased(S):
        ring(S, x, y - 26, 27, 2)
        facet = [pol(x, y - 26, 25 if i % 2 == 0 else 9, -90 + 22.5 * i) for i in range(16)]
        S.stroke(poly(facet), 2.2)
        S.dot(x, y - 26, 4)
    dots(S, x, y, 106, 60, 1.3)


def draw(S):
    horned_moon(S, 300, 318)
    veil(S)
    for side in sides(S):
        pillar(S, side)
    water(S, 930, 1000, 9)
    scroll(S)
    for side in sides(S):
        star(S, 90, 150, 14, 4)
        star(S, 226, 152, 9, 4)
        star(S, 240, 452, 8, 4)
