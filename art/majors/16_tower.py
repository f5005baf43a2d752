# SPDX-License-Identifier: GPL-3.0-or-later
"""The House of God: a plume of fire from the sky lifts the crown off a tower; two figures fall headlong among coloured balls."""
import math

from drawing import *      # the vocabulary of scenes, see drawing.py

TITLE, NUM = 'LA MAISON DIEV', 'XVI'
FIELD, PATTERN = 'plum', 'stars'
WALL = [(196, 372, 'c'), (404, 372, 'c'), (404, 800), (418, 866, 'c'), (300, 880), (182, 866, 'c'), (196, 800)]
BALLS = [  # x, y, radius, pigment
    (92, 170, 13, 'red'), (116, 236, 10, 'sky'), (88, 292, 12, 'gold'), (152, 330, 9, 'red'), (94, 420, 10, 'sky'),
    (148, 474, 12, 'gold'), (80, 520, 11, 'red'), (500, 290, 12, 'sky'), (456, 330, 10, 'gold'), (520, 380, 12, 'red'),
    (462, 430, 11, 'sky'), (524, 470, 10, 'gold'), (450, 540, 10, 'red'), (190, 128, 9, 'gold'), (360, 130, 10, 'sky'),
    (430, 120, 9, 'gold')]


def ball(S, x, y, r, pig):
    """ball shaded at the lower right"""
    S.fill(circ(x, y, r), pig, 3.6)
    S.comb([(x + r * .9, y - r * .3), (x + r * .75, y + r * .6), (x, y + r * .92)], 210, r * .5, 5, 3)


def faller(S, x, y, rot, flip, coat, legs):
    """figure with spread arms and bent legs; drawn upright, to be turned head down"""
    with S.at(x, y, .84, rot, flip):
        S.limb([(-8, 62), (-40, 96), (-70, 88)], [36, 31, 19], legs, 4.5)
        S.fill([(-66, 78, 'c'), (-66, 99, 'c'), (-84, 112), (-96, 108, 'c'), (-82, 88)], 'gold', 3.6)
        S.limb([(14, 62), (30, 112), (10, 150)], [38, 32, 19], legs, 4.5)
        S.fill([(0, 144, 'c'), (20, 152, 'c'), (16, 172), (0, 184, 'c'), (-2, 164)], 'gold', 3.6)
        S.limb([(-24, -34), (-60, -50), (-84, -92)], [34, 32, 20], coat, 4.5, 's')
        S.limb([(-79, -82), (-86, -97)], [28, 26], 'gold', 3.4)
        hand_open(S, -86, -94, .62, -14)
        S.fill([(-20, -54, 'c'), (-36, -38), (-34, 0), (-30, 24), (-44, 66), (-50, 84, 'c'), (-18, 92), (12, 84), (44, 90, 'c'),
                (38, 62), (28, 24), (34, 0), (34, -38), (20, -54, 'c')], coat, 4.8)
        S.limb([(-31, 22), (0, 30), (29, 22)], [13, 13, 13], 'gold', 3.6)
        for crease in ([(-26, 36), (-32, 60), (-36, 82)], [(-8, 38), (-10, 64), (-10, 86)], [(10, 38), (14, 60), (18, 82)]):
            fold(S, crease, 4.6)
        S.comb([(34, -34), (32, 0), (28, 20)], 184, 17, 9, 4)
        S.limb([(24, -36), (62, -30), (88, -66)], [34, 32, 20], coat, 4.5, 's')
        S.limb([(82, -56), (91, -71)], [28, 26], 'gold', 3.4)
        hand_open(S, 91, -68, .62, 26, True)
        # head
        S.limb([(0, -70), (0, -50)], [25, 28], 'flesh', 4)
        S.limb([(-20, -50), (0, -43), (20, -50)], [10, 10, 10], 'white', 3.4)
        S.fill([(-34, -92), (-32, -128), (0, -150), (32, -128), (34, -92), (26, -70), (-26, -70)], 'hair', 4)
        face(S, 0, -98, .66, .5, False, 'm', 5, mood=-2)
        curls(S, [(-27, -78), (-31, -98), (-29, -118), (-15, -133), (2, -138), (18, -132), (29, -117), (31, -98), (27, -78)],
              11.5, 'hair', 3)


def plume(S):
    """flame of three colours from the upper right corner to the parapet"""
    course = [(590, 120), (520, 150), (470, 196), (400, 214), (330, 262)]
    for w, pig in ((150, 'red'), (104, 'fire'), (58, 'gold')):
        S.fill(poly(ribbon(course, lambda t: w * (1 - t) ** .55 * (1 + .16 * math.sin(t * 26)) + 4)), pig, 4.5)
    for streak in ([(590, 84), (500, 130), (450, 172), (384, 204)], [(596, 140), (520, 172), (462, 212), (386, 234)],
                   [(590, 118), (510, 160), (452, 198)]):
        S.line(streak, 5, 'end')


def masonry(S):
    """courses of the round wall; the joints crowd towards its edges"""
    for row, y in enumerate(range(398, 884, 31)):
        S.line([(190, y), (250, y + 6), (300, y + 8), (350, y + 6), (410, y)], 3.4, 'flat')
        for j in range(-3, 5):
            u = (j + (.5 if row % 2 else 0)) / 3.6
            if abs(u) < 1:
                x = 300 + math.sin(u * 1.5) * 106
                sag = 8 * (1 - ((x - 300) / 110) ** 2)
                S.line([(x, y - 31 + sag), (x, y + sag)], 3.2, 'flat')
    S.comb([(406, 372), (406, 600), (412, 870)], 180, 40, 60, 4.4, .35)
    S.comb([(196, 372), (196, 600), (188, 870)], 0, 12, 40, 3.4, .4)


def tower(S):
    """the round tower with three windows, its door and the parapet"""
    S.fill(WALL, 'flesh', 5.5)
    with S.clip(path(WALL)):
        masonry(S)
    window(S, 300, 470, 1.1)
    window(S, 248, 640, .9)
    window(S, 352, 640, .9)
    S.fill([(262, 872, 'c'), (262, 800), (300, 764), (338, 800), (338, 872, 'c')], 'gold', 4.5)
    S.fill([(274, 874, 'c'), (274, 806), (300, 780), (326, 806), (326, 874, 'c')], 'dark', 4)
    S.fill([(180, 340, 'c'), (300, 352), (420, 340, 'c'), (420, 372, 'c'), (300, 386), (180, 372, 'c')], 'gold', 5)
    S.comb([(186, 352), (300, 366), (414, 352)], 90, 14, 40, 4)
    for dx in (-108, -64, -21, 22, 65, 108):
        x, y = 300 + dx, 346 - abs(dx) * .1 + 6
        S.fill(poly([(x - 17, y - 34), (x + 17, y - 34), (x + 17, y), (x - 17, y)]), 'flesh', 4.5)
        S.comb([(x + 15, y - 32), (x + 15, y - 2)], 180, 12, 4, 4)


def flames(S):
    """tongues of fire that come out of the open top"""
    for x, h in ((216, 40), (384, 44), (250, 56), (352, 60), (300, 70)):
        S.fill([(x - 20, 330, 'c'), (x - 22, 330 - h * .4), (x - 4, 330 - h * .7), (x - 2, 330 - h, 'c'), (x + 18, 330 - h * .6),
                (x + 20, 330 - h * .25), (x + 16, 330, 'c')], 'fire', 3.6)
        S.fill([(x - 9, 330, 'c'), (x - 10, 330 - h * .3), (x, 330 - h * .6, 'c'), (x + 9, 330 - h * .3), (x + 8, 330, 'c')],
               'gold', 2.6)
    S.fill([(182, 338, 'c'), (300, 350), (418, 338, 'c'), (418, 322, 'c'), (300, 334), (182, 322, 'c')], 'gold', 4)


def draw(S):
    plume(S)
    ground(S, 862, [(-10, 872), (80, 862), (170, 850), (300, 858), (430, 848), (520, 862), (610, 868)])
    tower(S)
    flames(S)
    with S.at(248, 228, 1, -24):
        crown(S, 0, 0, 1.9, 5)
    for x, y, r, pig in BALLS:
        ball(S, x, y, r, pig)
    faller(S, 134, 760, 192, False, 'blue', 'red')
    faller(S, 474, 706, 168, True, 'red', 'blue')
    for x, y, k in ((60, 926, .9), (545, 924, .9), (300, 934, .8), (430, 936, .6), (176, 940, .6)):
        tuft(S, x, y, k)
