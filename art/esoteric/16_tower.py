# SPDX-License-Identifier: GPL-3.0-or-later
"""The Tower: lightning from the eye in the triangle strikes a tower on a rock in the sea; the crown falls, drops of light rain."""
from emblems import *      # the vocabulary of scenes, see drawing.py

NUM, HEB, GLYPH, FOCUS = 'XVI', 'פ', 'mars', (300, 330)

CLOUD = [(-196, 268, 30), (-232, 250, 34), (-250, 290, 30), (-160, 290, 26), (-212, 300, 36), (-250, 316, 26), (-176, 312, 22)]
FACETS = [  # polygons of the left half of the rock, each with the direction of its hatching
    ([(-40, 800), (-110, 800), (-96, 842), (-60, 838)], 60),
    ([(-110, 800), (-150, 836), (-130, 880), (-96, 842)], 20),
    ([(-60, 838), (-96, 842), (-130, 880), (-84, 902), (-40, 880)], -40),
    ([(-150, 836), (-204, 872), (-190, 930), (-130, 880)], 75),
    ([(-130, 880), (-190, 930), (-120, 950), (-84, 902)], 10),
    ([(-40, 800), (-60, 838), (-40, 880), (0, 890), (0, 800)], 50),
    ([(-40, 880), (-84, 902), (-120, 950), (0, 960), (0, 890)], -15)]
DROPS = [(92, 400), (118, 520), (88, 590), (160, 400), (154, 700), (96, 720), (172, 620), (120, 780), (174, 500), (80, 470)]
COURSES = 15                    # of the tower's walls


def eye_in_triangle(S, x, y):
    """eye in a triangle in a turned ring, with its glory"""
    radial(S, x, y, 100, lambda i: (640, 330, 480, 280)[i % 4], 128, 1.9)
    S.fill(circ(x, y, 92), 'night', 2.8)
    ring(S, x, y, 86, 1.2)
    rosette(S, x, y, 86, 68, 4, .9, 400)
    ring(S, x, y, 68, 1.3)
    S.fill(poly([pol(x, y + 8, 66, -90 + 120 * i) for i in range(3)]), 'deep', 4)
    S.stroke(poly([pol(x, y + 8, 53, -90 + 120 * i) for i in range(3)]), 1.3)
    S.fill([(x - 32, y + 10, 'c'), (x - 14, y - 5), (x, y - 9), (x + 14, y - 5), (x + 32, y + 10, 'c'), (x + 14, y + 22), (x, y + 25),
            (x - 14, y + 22)], 'leaf', 2)
    S.fill(circ(x, y + 8, 14), 'deep', 1)
    radial(S, x, y + 8, 6, 13, 24, 1.4)
    S.fill(circ(x, y + 8, 5), 'leaf', 0)


def sea(S):
    """five rows of scale-shaped waves"""
    for row in range(5):
        n, pig = (13, 'deep') if row % 2 else (12, 'night')
        for i in range(n):
            x, y = 30 + i * (540 / (n - 1)), 846 + row * 32 + 13.5
            S.fill(circ(x, y, 27), pig, 2.4)
            for share in (.76, .54, .32):
                S.stroke(circ(x, y, 27 * share), 1.3)


def rock(S):
    """left half of the cliff"""
    for i, (facet, ang) in enumerate(FACETS):
        S.fill(poly(facet), ('night', 'deep', 'ind')[i % 3], 2.6)
        with S.clip(poly(facet)):
            S.hatch(-210, 790, 10, 970, (8, 5.5, 11)[i % 3], 1.3, ang)


def between(a, b, share):
    """point on the way from a to b"""
    return (a[0] + (b[0] - a[0]) * share, a[1] + (b[1] - a[1]) * share)


def wall(S, corners, lit):
    """one face of the tower in courses of stone; corners from the upper left clockwise"""
    upper_left, upper_right, lower_right, lower_left = corners
    S.fill(poly(corners), 'ind' if lit else 'night', 3.4)
    with S.clip(poly(corners)):
        for i in range(1, COURSES):
            left = between(upper_left, lower_left, i / COURSES)
            right = between(upper_right, lower_right, i / COURSES)
            S.line([left, right], 1.9, 'flat')
            for joint in range(4):
                x, y = between(left, right, (joint + (.25 if i % 2 else .75)) / 4)
                S.line([(x, y), (x, y - (lower_left[1] - upper_left[1]) / COURSES)], 1.9, 'flat')
        if not lit:
            S.hatch(300, 380, 430, 830, 4.6, 1.2, 90)


def parapet(S):
    """battlements around the top"""
    S.fill(poly([(190, 390), (312, 416), (312, 456), (190, 428)]), 'ind', 3.2)
    S.fill(poly([(312, 416), (410, 390), (410, 428), (312, 456)]), 'deep', 3.2)
    for i in range(4):
        left, right = 190 + i * 33, 210 + i * 33
        merlon(S, left, 390 + (left - 190) * .213, right, 390 + (right - 190) * .213, 'ind')
    for i in range(3):
        left, right = 318 + i * 33, 338 + i * 33
        merlon(S, left, 416 - (left - 312) * .265, right, 416 - (right - 312) * .265, 'deep')
    for i in range(11):
        S.line([(196 + i * 11, 398 + i * 2.35), (196 + i * 11, 424 + i * 2.35)], 1.5, 'flat')
        S.line([(318 + i * 8.6, 420 - i * 2.3), (318 + i * 8.6, 448 - i * 2.3)], 2, 'flat')


def merlon(S, left, left_foot, right, right_foot, pig):
    """one tooth of the battlements"""
    S.fill(poly([(left, left_foot - 26), (right, right_foot - 26), (right, right_foot), (left, left_foot)]), pig, 2.8)


def windows(S):
    """two windows in the left face, one in the right"""
    with S.at(258, 560):
        S.fill([(-20, 36, 'c'), (-20, -20), (0, -46), (20, -12), (20, 44, 'c')], 'leaf', 2.6)
        S.fill([(-13, 33, 'c'), (-13, -16), (0, -34), (14, -9), (14, 38, 'c')], 'deep', 2)
    with S.at(258, 690):
        S.fill([(-20, 38, 'c'), (-20, -18), (0, -44), (20, -10), (20, 48, 'c')], 'leaf', 2.6)
        S.fill([(-13, 36, 'c'), (-13, -14), (0, -32), (14, -7), (14, 42, 'c')], 'deep', 2)
    with S.at(356, 624):
        S.fill([(-16, 42, 'c'), (-16, -10), (0, -42), (16, -18), (16, 32, 'c')], 'leaf', 2.6)
        S.fill([(-10, 36, 'c'), (-10, -8), (0, -30), (11, -14), (11, 30, 'c')], 'deep', 2)


def tower(S):
    """the tower seen over its edge"""
    wall(S, [(206, 428), (312, 452), (312, 846), (196, 806)], True)
    wall(S, [(312, 452), (394, 428), (404, 806), (312, 846)], False)
    parapet(S)
    windows(S)


def fire(S):
    """flames that come out of the top"""
    for x, h, w in ((226, 70, 20), (378, 76, 20), (262, 100, 24), (344, 108, 24), (302, 92, 24)):
        foot = 402 if 250 < x < 360 else 386
        S.fill([(x - w, foot, 'c'), (x - w * 1.1, foot - h * .4), (x - w * .2, foot - h * .66), (x - w * .1, foot - h, 'c'),
                (x + w * .9, foot - h * .6), (x + w, foot - h * .26), (x + w * .8, foot, 'c')], 'deep', 3)
        for share, pig in ((.7, 'deep'), (.42, 'leaf')):
            S.fill([(x - w * share, foot, 'c'), (x - w * share, foot - h * .36 * share), (x, foot - h * .8 * share, 'c'),
                    (x + w * share, foot - h * .36 * share), (x + w * share * .8, foot, 'c')], pig, 2)


def block(S, x, y, k, rot, front, side):
    """falling block of stone; front and side are the contours of its two faces"""
    with S.at(x, y, k, rot):
        S.fill(poly([(-26, -16), (18, -20), (28, 10), (-12, 22)]), 'ind', front)
        S.fill(poly([(18, -20), (30, -28), (40, 0), (28, 10)]), 'deep', side)


def draw(S):
    eye_in_triangle(S, 300, 196)
    for _ in sides(S):
        puffs(S, CLOUD, turns=(.78, .58, .38))
    sea(S)
    for _ in sides(S):
        rock(S)
    tower(S)
    fire(S)
    # lightning, and the crack that it leaves
    S.fill(poly([(330, 262), (268, 356), (298, 352), (262, 430), (350, 330), (316, 334), (360, 268)]), 'leaf', 2.6)
    S.line([(270, 430), (284, 500), (268, 540), (296, 610), (284, 660), (304, 720)], 8, 'end')
    # what falls
    with S.at(456, 452, 1, 34):
        crown(S, 0, 0, 1.02, 5, 'ind', 2.8)
    block(S, 140, 470, 1, -30, 2.8, 2.6)
    for x, y, rot in ((150, 566, 20), (448, 560, -30), (118, 640, 10), (470, 660, 50)):
        block(S, x, y, .55, rot, 4, 4)
    yods(S, [place for x, y in DROPS for place in ((x, y), (600 - x, y + 14))], 1.05)
