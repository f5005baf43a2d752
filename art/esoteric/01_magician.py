# SPDX-License-Identifier: GPL-3.0-or-later
"""The Magician: a fist raises the wand before a halo, over it the lying eight; cup, coin and sword stand on an altar between two
vines of roses and lilies."""
import math

from emblems import *      # the vocabulary of scenes, see drawing.py

NUM, HEB, GLYPH, FOCUS = 'I', 'ב', 'mercury', (300, 350)


def rose(S, x, y):
    """rose of two rings of five petals"""
    with S.at(x, y):
        for r, first in ((23, 0), (15, 36)):
            for i in range(5):
                a = first + i * 72 - 90
                S.fill([pol(0, 0, r * .25, a - 40), pol(0, 0, r * .95, a - 34), pol(0, 0, r * 1.15, a), pol(0, 0, r * .95, a + 34),
                        pol(0, 0, r * .25, a + 40)], 'ind', 2.6)
        S.fill(circ(0, 0, 7), 'leaf', 0)


def lily(S, x, y, k):
    """lily of five petals with three stamens, opening upwards"""
    with S.at(x, y, k):
        for a in (-42, 42, -20, 20, 0):
            S.fill(poly(ribbon([(0, 0), pol(0, 0, 24, a - 90), pol(0, 0, 46, a * 1.25 - 90)],
                               lambda t: 19 * math.sin(math.pi * min(1, .12 + .88 * t)) ** .8 + .4)), 'ind', 2.4)
        for a in (-30, 0, 30):
            S.line([(0, -2), pol(0, 0, 30, a - 90)], 1.4, 'end')
            S.dot(*pol(0, 0, 33, a - 90), 1.8)


def vine_leaf(S, x, y, k, rot):
    """leaf with its veins, growing along rot"""
    with S.at(x, y, k, rot):
        S.fill([(0, 0, 'c'), (14, -13), (36, -12), (52, 0, 'c'), (34, 10), (12, 9)], 'ind', 2.4)
        S.line([(2, 0), (24, -2), (48, 0)], 1.8, 'end')
        for x0 in (14, 24, 34):
            S.line([(x0, -1.5), (x0 + 8, -9)], 1.2, 'end')
            S.line([(x0, -.5), (x0 + 8, 7)], 1.2, 'end')


def vine(S):
    """climbing stem along one edge of the card with leaves, roses and lilies"""
    stem = [(-206, 150), (-222, 230), (-200, 310), (-222, 390), (-200, 470), (-222, 550), (-200, 630), (-216, 716)]
    S.line(stem, 4.4, 'flat')
    for i, (x, y) in enumerate(sample(stem, n=2)):
        vine_leaf(S, x, y, .62, (-150 if i % 2 else -35) + i * 37 % 22)
    for i, (x, y) in enumerate(stem[:-1]):
        if i % 2:
            lily(S, x, y + 10, .82)
        else:
            rose(S, x, y)


def halo(S, x, y):
    """turned ring with short rays inside it"""
    S.fill(circ(x, y, 150), 'night', 3)
    ring(S, x, y, 144, 1.2)
    rosette(S, x, y, 144, 118, 5, .9, 480)
    ring(S, x, y, 118, 1.4)
    ring(S, x, y, 113, 2.6)
    radial(S, x, y, 30, lambda i: 110 if i % 2 else 92, 72, 1.4)


def wand(S):
    """rod with a bud at each end"""
    S.limb([(300, 236), (300, 520)], [13, 13], 'deep', 3)
    S.stroke('M300 240V516', 1.4)
    for y, out in ((232, -1), (524, 1)):
        S.fill([(300, y + out * 34, 'c'), (287, y + out * 10), (293, y - out * 2, 'c'), (307, y - out * 2, 'c'), (313, y + out * 10)],
               'leaf', 2)
        S.fill(circ(300, y - out * 2, 9), 'leaf', 2)
    for y in (262, 272, 494, 484):
        S.line([(292, y), (308, y)], 2.4, 'flat')


def raised_arm(S, x, y):
    """sleeve that widens to the lower right, and the fist with the wand"""
    with S.at(x, y, 1, 46):
        S.fill([(58, -24, 'c'), (150, -62), (222, -92, 'c'), (236, 0), (222, 92, 'c'), (150, 56), (58, 24, 'c')], 'ind', 3.4)
        for i in range(9):
            f = (i - 4) / 4
            S.line([(226, 86 * f), (150, 54 * f), (66, 20 * f)], 2.2, 'end')
        S.fill(poly([(52, -30), (74, -36), (74, 36), (52, 30)]), 'leaf', 2)
    hand_fist(S, x, y, 1.75, 36, lw=2.7, rod=lambda: wand(S))


def altar(S):
    """block of stone with a frieze, a hexagram in a disc on its front"""
    S.fill(poly([(166, 742), (434, 742), (470, 792), (130, 792)]), 'ind', 3.4)
    S.fill(poly([(130, 792), (470, 792), (470, 812), (130, 812)]), 'deep', 3)
    for i in range(17):
        S.line([(140 + i * 20, 796), (150 + i * 20, 808)], 2)
    S.fill(poly([(152, 812), (448, 812), (448, 990), (152, 990)]), 'night', 3)
    for i in range(27):
        x = 440 - i * 4.6 * (1 + i * .02)
        S.line([(x, 818), (x, 984)], 2.4 * (1 - i / 30), 'flat')
    S.fill(circ(300, 900, 62), 'deep', 3)
    ring(S, 300, 900, 55, 1.2)
    upward, downward = (poly([pol(300, 900, 50, a + 120 * i) for i in range(3)]) for a in (-90, 90))
    S.fill(upward, 'ind', 2.6)
    S.fill(downward, 'ind', 2.6)
    S.stroke(upward, 2.6)
    S.fill(circ(300, 900, 13), 'leaf', 0)
    dots(S, 300, 900, 58.5, 40, 1.4)


def emblems_of_the_suits(S):
    """cup, coin with a pentagram, and a sword that stands on its pommel"""
    with S.at(214, 776, 1.5):
        cup(S, 0, 0, 1, 'ind', 2.6)
    with S.at(386, 724):
        S.fill(circ(0, 0, 44), 'ind', 3.2)
        ring(S, 0, 0, 37, 1.4)
        S.stroke(poly([pol(0, 0, 36, -90 + 144 * i) for i in range(5)]), 4)
        dots(S, 0, 0, 40.5, 36, 1.2)
    with S.at(300, 764, 1, 14):
        S.fill([(-7, -36, 'c'), (-6, -150), (0, -172, 'c'), (6, -150), (7, -36, 'c')], 'ind', 2.6)
        S.line([(0, -40), (0, -160)], 1.8, 'end')
        S.fill([(-34, -40, 'c'), (-38, -32), (-30, -26), (0, -30), (30, -26), (38, -32), (34, -40, 'c'), (0, -37)], 'leaf', 2)
        S.limb([(0, -30), (0, 2)], [9, 8], 'deep', 2.6)
        for i in range(4):
            S.line([(-4, -24 + i * 7), (4, -21 + i * 7)], 1.6, 'flat')
        S.fill(circ(0, 6, 8), 'leaf', 2)


def draw(S):
    x, y = 300, 372
    radial(S, x, 176, 70, lambda i: (360, 210, 300, 190)[i % 4], 120, 1.8)
    halo(S, x, y)
    lemniscate(S, x, 172, 118, 104, overlap=4)
    star(S, x, 172, 26, 8, .34)
    for _ in sides(S):
        vine(S)
    raised_arm(S, x, y)
    radial(S, x, 740, 60, lambda i: (190, 130, 160, 120)[i % 4], 60, 1.6, 180, 360)
    altar(S)
    emblems_of_the_suits(S)
