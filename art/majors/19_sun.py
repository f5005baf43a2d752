# SPDX-License-Identifier: GPL-3.0-or-later
"""The Sun: its face in a crown of straight and wavy rays; drops rain on two children who stand arm in arm before a brick wall."""
import math

from drawing import *      # the vocabulary of scenes, see drawing.py

TITLE, NUM = 'LE SOLEIL', 'XVIIII'
FIELD, PATTERN = 'lapis', 'stars'
RAYS = 8                        # of each kind
DROPS = [(-224, 20), (224, 20), (-196, 150), (196, 150), (-128, 236), (128, 236), (-236, -120), (236, -120), (-78, 250), (78, 250),
         (-230, 96), (230, 96)]         # from the middle of the sun, in pairs
BRICK = 72                      # length of a brick
COURSE = 27                     # height of a course of bricks


def fine_rays(S, x, y, inner, outer):
    """three lines in each of the gaps"""
    for i in range(2 * RAYS):
        a = (i + .5) * 180 / RAYS
        for off in (-3.4, 0, 3.4):
            reach = .46 if off else .62
            S.line([pol(x, y, inner + 4, a + off), pol(x, y, inner + (outer - inner) * reach, a + off)], 3, 'end')


def wavy_rays(S, x, y, inner, outer):
    """red tongues"""
    for i in range(RAYS):
        a = math.radians(i * 360 / RAYS + 180 / RAYS - 90)

        def place(share, off):
            """place on the ray: share of the way outwards, units beside its axis"""
            r = inner - 8 + share * (outer - inner)
            return (x + math.cos(a) * r - math.sin(a) * off, y + math.sin(a) * r + math.cos(a) * off)

        course = [place(0, 0), place(.25, 13), place(.5, -13), place(.75, 11), place(1, -4)]
        S.fill(poly(ribbon(course, lambda t: 42 * (1 - t) ** .9 + .5)), 'red', 4.5)
        S.line([place(.05, 0), place(.25, 13), place(.5, -13), place(.72, 9)], 4, 'end')


def straight_rays(S, x, y, inner, outer):
    """golden points, one half of each in the shade"""
    for i in range(RAYS):
        a = i * 360 / RAYS - 90
        spread = 180 / RAYS * .62
        tip, foot = pol(x, y, outer + 6, a), pol(x, y, inner - 6, a)
        left, right = pol(x, y, inner - 6, a - spread), pol(x, y, inner - 6, a + spread)
        shaded = poly([foot, tip, right])
        S.fill(poly([left, tip, right]), 'gold', 4.5)
        S.fill(shaded, 'fire', 2.6)
        with S.clip(shaded):
            S.comb([right, ((right[0] + tip[0]) / 2, (right[1] + tip[1]) / 2), tip], a + 200, 15, 15, 4)


def drop(S, x, y, k, pig):
    """falling drop"""
    with S.at(x, y, k):
        S.fill([(0, -24, 'c'), (5, -8), (11, 6), (8, 17), (0, 21), (-8, 17), (-11, 6), (-5, -8)], pig, 3.6)
        S.line([(-5, 4), (-5, 11), (-1, 15)], 2.4)


def wall(S):
    """brick wall with a coping; bricks are shaded at random"""
    S.fill(rect(-20, 706, 640, 190), 'red', 5)
    for row, y in enumerate(range(736, 896, COURSE)):
        S.line([(-10, y), (150, y + 1), (300, y - 1), (450, y + 1), (610, y)], 3.4, 'flat')
        for x in range(-20 + (row % 2) * BRICK // 2, 620, BRICK):
            S.line([(x, y - 26), (x + 1, y - 1)], 3.4, 'flat')
            if S.random.random() < .4:
                S.comb([(x + 6, y - 22), (x + 6, y - 4)], 0, 12, 3, 3)
    S.fill(rect(-20, 684, 640, 26), 'gold', 5)
    S.comb([(0, 688), (300, 688), (600, 688)], 90, 8, 60, 3.4)


def twin(S, flip, coat, sash):
    """child in a tunic, left of the axis and looking to the right, one arm on the other's shoulder"""
    with S.at(300, 0, 1, 0, flip):
        twin_legs(S)
        S.limb([(-104, 640), (-134, 700), (-126, 752)], [38, 36, 24], 'flesh', 4.5, 's')
        tunic(S, coat, sash)
        # hand, neck and collar
        S.fill(circ(-126, 760, 13, 16), 'flesh', 4)
        S.line([(-132, 768), (-128, 758), (-130, 752)], 2)
        S.line([(-122, 772), (-120, 762)], 2)
        S.limb([(-68, 590), (-67, 622)], [28, 32], 'flesh', 4)
        S.limb([(-88, 624), (-67, 632), (-46, 624)], [9, 9, 9], sash, 3.4)
        # head
        S.fill([(-78, 498), (-108, 516), (-118, 552), (-112, 584), (-96, 600), (-70, 596), (-40, 560), (-40, 510)], 'hair', 4)
        face(S, -64, 560, .76, .7, True, 'f', 4.6)
        curls(S, [(-100, 590), (-111, 566), (-112, 540), (-103, 517), (-84, 503), (-62, 500), (-42, 510)], 15, 'hair', 3.4)
        # the arm on the other's shoulder
        S.limb([(-46, 648), (-14, 662), (22, 650)], [36, 31, 22], 'flesh', 4.5, 's')
        S.comb([(-38, 664), (-14, 676), (16, 662)], 270, 9, 8, 3)
        S.fill([(16, 640, 'c'), (34, 634), (50, 636), (54, 646), (44, 656), (22, 660, 'c')], 'flesh', 3.8)
        S.line([(34, 642), (46, 642), (52, 644)], 2)
        S.line([(34, 649), (44, 650), (50, 650)], 2)


def twin_legs(S):
    """bare legs and feet"""
    for hip, knee, ankle in (((-92, 800), (-98, 850), (-104, 902)), ((-54, 800), (-44, 850), (-40, 902))):
        S.limb([hip, knee, ankle], [40, 36, 22], 'flesh', 4.5)
        S.comb([(hip[0] + 16, 806), (knee[0] + 15, 850), (ankle[0] + 9, 896)], 180, 10, 9, 3)
        x = ankle[0]
        S.fill([(x - 11, 898, 'c'), (x + 11, 898, 'c'), (x + 24, 908), (x + 42, 914), (x + 44, 922, 'c'), (x - 13, 922, 'c')],
               'flesh', 4)


def tunic(S, coat, sash):
    """short tunic with a sash"""
    S.fill([(-76, 618, 'c'), (-104, 626), (-112, 660), (-106, 706), (-118, 760), (-126, 812, 'c'), (-98, 820), (-72, 814), (-46, 820),
            (-18, 810, 'c'), (-26, 760), (-36, 706), (-28, 660), (-34, 628), (-56, 618, 'c')], coat, 5)
    for crease in ([(-98, 716), (-104, 760), (-108, 808)], [(-82, 718), (-86, 770), (-86, 812)],
                   [(-66, 718), (-64, 770), (-62, 814)], [(-50, 716), (-44, 760), (-40, 808)]):
        fold(S, crease, 5.5)
    S.comb([(-32, 650), (-40, 700), (-32, 760), (-26, 800)], 188, 16, 12, 4)
    S.limb([(-110, 702), (-72, 712), (-34, 702)], [17, 17, 17], sash, 4)


def draw(S):
    x, y = 300, 296
    for rays in (fine_rays, wavy_rays, straight_rays):
        rays(S, x, y, 108, 214)
    sunface(S, x, y, 1.08)
    for i, (dx, dy) in enumerate(DROPS):
        drop(S, x + dx, y + dy, .95, ('red', 'sky', 'gold')[i // 2 % 3])
    wall(S)
    ground(S, 888)
    for x, y, k in ((60, 912, .9), (545, 914, .9), (300, 930, .8), (180, 938, .55), (420, 938, .55)):
        tuft(S, x, y, k)
    twin(S, True, 'sky', 'red')
    twin(S, False, 'blue', 'gold')
