# SPDX-License-Identifier: GPL-3.0-or-later
"""The Sun: golden face in a crown of rays and the ring of the signs; below it sunflowers between two hands raised in praise."""
import math

from emblems import *      # the vocabulary of scenes, see drawing.py

NUM, HEB, GLYPH, FOCUS = 'XIX', 'ר', 'sun', (300, 400)
GOLDEN_ANGLE = 137.508          # from one seed of a sunflower to the next


def raised_hand(S):
    """sleeve and open hand of the left half"""
    S.fill([(-250, 990, 'c'), (-226, 900), (-184, 806, 'c'), (-142, 826, 'c'), (-150, 910), (-130, 990, 'c')], 'ind', 3.6)
    S.fill([(-192, 806, 'c'), (-186, 790, 'c'), (-134, 812, 'c'), (-140, 830, 'c')], 'leaf', 3)
    for i in range(7):
        S.line([(-240 + i * 17, 984), (-216 + i * 10, 900), (-182 + i * 6, 822)], 2.2, 'end')
    hand_open(S, -160, 806, 1.72, 14, lw=2.6)


def sunflower(S, x, y, k):
    """sunflower from the front"""
    with S.at(x, y, k):
        for a in range(0, 360, 18):
            S.fill(poly(ribbon([pol(0, 0, 24, a), pol(0, 0, 42, a), pol(0, 0, 62, a)],
                               lambda t: 15 * math.sin(math.pi * min(1, .15 + .85 * t)) + .4)), 'ind', 2.2)
            S.line([pol(0, 0, 26, a), pol(0, 0, 50, a)], 1.6, 'end')
        S.fill(circ(0, 0, 28), 'deep', 3)
        for i in range(90):
            S.dot(*pol(0, 0, 2.75 * math.sqrt(i), i * GOLDEN_ANGLE), 1.25)


def zodiac(S, x, y):
    """glory, turned ring and the band of the signs, clockwise from the top"""
    radial(S, x, y, 262, lambda i: (560, 420, 500, 380)[i % 4], 144, 1.9)
    rosette(S, x, y, 262, 214, 6, .9, 480)
    S.fill(circ(x, y, 214), 'night', 3)
    ring(S, x, y, 208, 1.2)
    ring(S, x, y, 178, 1.2)
    ring(S, x, y, 172, 2.4)
    for i, name in enumerate(SIGNS):
        a = -75 + i * 30
        glyph(S, name, *pol(x, y, 193, a), .2, 15)
        S.line([pol(x, y, 178, a + 15), pol(x, y, 208, a + 15)], 2, 'flat')
    S.fill(circ(x, y, 171), 'ind', 0)


def straight_ray(S, x, y, a):
    """pointed ray with one bright facet"""
    tip, foot = pol(x, y, 168, a), pol(x, y, 92, a)
    left, right = pol(x, y, 92, a - 7.6), pol(x, y, 92, a + 7.6)
    S.fill(poly([left, tip, right]), 'deep', 3)
    S.fill(poly([foot, tip, right]), 'leaf', 1)


def wavy_ray(S, x, y, a):
    """flaming ray"""
    turn = math.radians(a)

    def place(r, off):
        """place on the ray: distance from the sun's middle, units beside the ray's axis"""
        return (x + math.cos(turn) * r - math.sin(turn) * off, y + math.sin(turn) * r + math.cos(turn) * off)

    S.fill(poly(ribbon([place(90, 0), place(108, 8), place(128, -8), place(146, 6), place(162, -2)],
                       lambda t: 23 * (1 - t) ** .9 + .5)), 'deep', 3)
    S.line([place(92, 0), place(108, 8), place(128, -8), place(142, 4)], 2.2, 'end')


def sun(S, x, y):
    """the face with its sixteen rays"""
    radial(S, x, y, 100, 168, 96, 1.5)
    for i in range(16):
        (wavy_ray if i % 2 else straight_ray)(S, x, y, i * 22.5 - 90)
    with chased(S):
        sunface(S, x, y, .94)
    ring(S, x, y, 99, 2.4)


def hills(S):
    """two ranges with sinking contour lines"""
    for crest, dip, y, pig in ((-8, 36, 700, 'night'), (14, 18, 748, 'deep')):
        ridge = [(30, y + 26), (130, y + crest), (300, y + dip), (470, y + crest), (570, y + 26)]
        S.fill(ridge[:-1] + [(570, y + 26, 'c'), (570, 1060, 'c'), (30, 1060, 'c')], pig, 3)
        for i in range(1, 12):
            S.line([(px, py + i * (5 + i * .5)) for px, py in ridge], 1.5)


def sunflowers(S):
    """three flowers on leafy stems, the lowest in front"""
    for side in (-1, 1):
        S.line([(300 + side * 52, 990), (300 + side * 46, 900), (300 + side * 62, 800)], 5, 'flat')
        x = 300 + side * 48
        for y, way in ((930, side), (880, -side)):
            S.fill([(x, y, 'c'), (x + way * 18, y - 26), (x + way * 46, y - 30, 'c'), (x + way * 34, y - 8)], 'ind', 2.4)
            S.line([(x, y), (x + way * 20, y - 16), (x + way * 40, y - 27)], 1.5)
        sunflower(S, 300 + side * 62, 784, .92)
    S.line([(300, 990), (300, 860)], 5, 'flat')
    sunflower(S, 300, 852, .8)


def draw(S):
    x, y = 300, 392
    zodiac(S, x, y)
    sun(S, x, y)
    hills(S)
    sunflowers(S)
    for _ in sides(S):
        raised_hand(S)
