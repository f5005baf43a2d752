# SPDX-License-Identifier: GPL-3.0-or-later
"""The Lovers: a young man between two women, the elder with laurel, the younger with flowers; Cupid aims at him from a sunburst."""
import math

from regal import *      # the vocabulary of scenes, see drawing.py

TITLE, NUM = "L'AMOVREVX", 'VI'
FIELD, PATTERN = 'lapis', 'stars'


def burst(S, x, y, r):
    """white sun with alternate red and golden rays"""
    n = 24
    for i in range(n):
        a, half = i*360/n+90, 180/n
        R = r+(46 if i % 2 == 0 else 32)
        S.fill(poly([pol(x, y, r-8, a-half), pol(x, y, R, a), pol(x, y, r-8, a+half)]), 'gold' if i % 2 == 0 else 'red', 4)
    S.fill(circ(x, y, r), 'white', 5)


def bow(S):
    """drawn bow around its middle with the arrow on the string, pointing down"""
    S.line([(-74, -30), (0, -84)], 3, 'flat')
    S.line([(74, -30), (0, -84)], 3, 'flat')
    S.limb([(0, -96), (0, 44)], [8, 8], 'wood', 3.4)
    S.fill([(0, 72, 'c'), (-12, 38, 'c'), (0, 46), (12, 38, 'c')], 'sky', 3.6)
    for s in (-1, 1):
        S.fill([(0, -78, 'c'), (s*12, -92, 'c'), (s*12, -110, 'c'), (0, -96, 'c')], 'red', 3)
    S.limb([(-78, -36), (-70, -18), (-40, 2), (0, 10), (40, 2), (70, -18), (78, -36)], [8, 11, 13, 14, 13, 11, 8], 'red', 4)


def cupid(S, x, y):
    """winged child flying, seen from the front; drawn around his chest"""
    with S.at(x, y):
        for f in (False, True):
            with S.at(4, -22, 1, 0, f):
                wing(S, [(-18, 6), (-52, -34), (-96, -42)], (128, 152), (56, 62), 6, (('sky', 1), ('red', .56)), 24, 'gold', (15, 14, 8))
        # legs drawn up behind, trunk, loin cloth
        for p in ([(22, 46), (56, 44), (70, 66)], [(6, 50), (30, 74), (22, 100)]):
            limb(S, p, [36, 34, 22], 'flesh', 4, 'se', 6)
        S.fill([(62, 58, 'c'), (80, 60, 'c'), (92, 76), (88, 86), (70, 76)], 'flesh', 3.6)
        S.fill([(14, 92, 'c'), (32, 96, 'c'), (28, 112), (10, 122), (4, 112)], 'flesh', 3.6)
        S.fill([(-30, -26, 'c'), (-36, 0), (-22, 30), (-18, 56), (8, 66), (34, 50), (32, 16), (40, -8), (34, -28, 'c')], 'flesh', 4.4)
        S.comb([(38, -10), (31, 18), (33, 46)], 190, 10, 7, 3)
        S.fill([(-22, 34, 'c'), (0, 42), (34, 24, 'c'), (40, 50), (12, 70), (-20, 62, 'c')], 'red', 4)
        fold(S, [(-12, 46), (6, 54), (30, 40)], 5)
        S.line([(4, 10), (4, 14)], 3)
        # arms: one holds the bow out, the other draws the string to the breast
        limb(S, [(-24, -18), (-50, 16), (-60, 52)], [25, 23, 17], 'flesh', 4, 's', 7)
        with S.at(-62, 62, .9, 21):
            bow(S)
        limb(S, [(32, -18), (44, 18), (4, 10), (-24, -6)], [25, 26, 21, 16], 'flesh', 4, 's', 7)
        S.fill(circ(-62, 60, 12, 11), 'flesh', 3.6)
        S.line([(-70, 57), (-56, 54)], 2.4)
        S.line([(-69, 64), (-55, 61)], 2.4)
        S.fill(circ(-32, -8, 10.5), 'flesh', 3.6)
        S.line([(-38, -12), (-32, -8)], 2.4)
        # head
        S.limb([(2, -40), (2, -22)], [24, 28], 'flesh', 3.6)
        S.fill(circ(0, -70, 33, 35), 'hair', 4)
        face(S, 0, -66, .62, .3, False, 'f', 5)
        curls(S, [(-28, -56), (-31, -74), (-23, -91), (-8, -100), (9, -100), (24, -91), (31, -74), (28, -56)], 10.5, 'hair', 3.2)


def woman(S, gown, sleeve):
    """standing gown of the left woman, around the axis of her body; her head stands at (0, 450)"""
    S.fill([(-24, 526, 'c'), (-54, 536), (-64, 580), (-48, 650), (-56, 700), (-74, 800), (-92, 912, 'c'), (-40, 904), (0, 914),
            (40, 904), (80, 912, 'c'),
            (62, 800), (44, 700), (38, 650), (52, 580), (50, 536), (24, 526)], gown, 5.2)
    for p in ([(-34, 690), (-48, 800), (-62, 898)], [(-14, 694), (-20, 800), (-28, 900)], [(8, 694), (10, 800), (10, 902)], [(28, 690),
               (38, 800), (50, 900)]):
        fold(S, p, 7)
    S.comb([(46, 600), (36, 650), (44, 704), (62, 800), (76, 900)], 188, 17, 16, 4.4)
    S.fill([(-34, 528, 'c'), (-20, 552), (0, 562), (20, 552), (34, 528, 'c'), (0, 534)], 'flesh', 3.8)
    band(S, [(-40, 530), (-22, 558), (0, 568), (22, 558), (40, 530)], 15, n=6, gems=(sleeve, 'pearl'), lw=3.8)
    band(S, [(-50, 654), (-6, 666), (40, 654)], 18, n=5, gems=(sleeve, 'pearl'), lw=3.8)
    S.limb([(-90, 904), (-40, 896), (0, 906), (40, 896), (78, 904)], [15]*5, 'gold', 4)


def neck(S, x, y, w):
    """bare neck that runs into the breast without a seam"""
    S.limb([(x, y), (x, y+46)], [w, w+8], 'flesh', 3.8)
    S.fill(path([(x-w*.5, y+34), (x, y+28), (x+w*.5, y+34), (x+w*.7, y+54), (x-w*.7, y+54)]), 'flesh', 0)


def elder(S):
    """woman on the left, laurel in her hair, a hand on his shoulder"""
    with S.at(146, 0):
        limb(S, [(-44, 560), (-66, 640), (-30, 690)], [46, 50, 34], 'blue', 4.6, 's')
        woman(S, 'red', 'blue')
        S.fill([(-56, 428), (-70, 480), (-64, 540), (-40, 552), (40, 552), (60, 540), (62, 480), (52, 428), (0, 392)], 'blue', 4.6)
        fold(S, [(-56, 470), (-58, 510), (-46, 544)], 6)
        S.fill([(-36, 528, 'c'), (-16, 552), (0, 558), (16, 552), (36, 528, 'c'), (30, 500), (-30, 500)], 'flesh', 3.8)
        neck(S, 2, 490, 36)
        face(S, 4, 454, .84, .7, True, 'f', 4.4, mood=-1)
        S.fill([(-30, 424, 'c'), (-42, 446), (-40, 476), (-52, 452), (-50, 424), (-24, 402), (10, 396), (36, 410), (42, 430, 'c'),
                (22, 418), (-4, 418)], 'hair', 4)
        for i in range(7):
            a = 196+i*26
            p = pol(2, 446, 46, a)
            vein = [pol(*p, 6, a+90), pol(*p, 8, a-30), pol(*p, 27, a-42)]
            S.fill(poly(ribbon(vein, lambda t: 15*math.sin(math.pi*min(1, t*.9+.06))+1)), 'green', 3.2)


def elder_arm(S):
    """her left arm, laid over his shoulder"""
    limb(S, [(190, 568), (216, 612), (250, 574)], [50, 44, 30], 'blue', 4.6, 's')
    S.limb([(240, 586), (254, 571)], [38, 36], 'gold', 3.8)
    hand_laid(S, 254, 570, .92, -34, True)


def younger(S):
    """woman on the right, flowers in her fair hair, a hand on his heart"""
    with S.at(454, 0, 1, 0, True):
        limb(S, [(-44, 570), (-66, 650), (-34, 706)], [46, 50, 34], 'red', 4.6, 's')
        with S.at(0, 12):
            hair_back(S, 0, 452, .86, 'hair', 56, 96)
            woman(S, 'sky', 'red')
            neck(S, 2, 490, 34)
            face(S, 4, 454, .84, .65, True, 'f', 4.4)
            for f in (1, -1):
                a = [(4-f*16, 414), (4-f*32, 432), (4-f*36, 466), (4-f*50, 500), (4-f*44, 532)]
                b = [(4-f*34, 414), (4-f*50, 440), (4-f*52, 470), (4-f*66, 506), (4-f*56, 538)]
                S.fill(a+b[::-1]+[(4-f*16, 404)], 'hair', 4)
                locks(S, (a, b), 3, 2.6)
            fringe(S, 4, 454, .84)
            for i in range(6):
                x, y = pol(4, 448, 48, 200+i*28)
                for j in range(5):
                    S.fill(circ(*pol(x, y, 6.5, j*72+i*20), 5), 'red' if i % 2 else 'white', 2.6)
                S.fill(circ(x, y, 4), 'gold', 2.4)
        limb(S, [(40, 580), (64, 650), (112, 630)], [50, 44, 32], 'red', 4.6, 's')
        S.limb([(100, 638), (116, 630)], [40, 38], 'gold', 3.8)


def youth(S):
    """young man in a parti-coloured tunic, full face turned to the elder woman"""
    for x, dx, pig in ((278, -1, 'gold'), (326, 1, 'red')):
        limb(S, [(x, 760), (x+dx*4, 830), (x+dx*7, 896)], [44, 38, 24], pig, 4.6, '', 10)
        S.fill([(x+dx*7-13, 886, 'c'), (x+dx*7+13, 886, 'c'), (x+dx*22, 904), (x+dx*44, 914), (x+dx*46, 922, 'c'),
                (x+dx*7-dx*15, 922, 'c')], 'blue', 4.2)
    S.fill([(300, 536, 'c'), (262, 540), (238, 566), (244, 620), (256, 668), (240, 730), (228, 800, 'c'), (264, 812),
            (300, 806, 'c')], 'red', 5.2)
    S.fill([(300, 536, 'c'), (340, 540), (364, 566), (358, 620), (346, 668), (362, 730), (374, 800, 'c'), (338, 812),
            (300, 806, 'c')], 'blue', 5.2)
    for p in ([(270, 700), (258, 760), (252, 800)], [(288, 704), (284, 760), (280, 804)], [(316, 704), (318, 760), (322, 804)],
               [(336, 700), (346, 760), (352, 800)]):
        fold(S, p, 6)
    S.comb([(352, 640), (348, 670), (360, 730), (370, 792)], 188, 17, 10, 4.2)
    for x0, x1 in ((228, 300), (300, 374)):
        S.limb([(x0, 798), ((x0+x1)/2, 810), (x1, 803 if x0 == 228 else 798)], [14]*3, 'gold', 3.8)
    S.limb([(254, 672), (300, 684), (348, 672)], [19]*3, 'gold', 4)
    S.fill(rect(290, 672, 20, 24, 4), 'red', 3.4)
    for y in (576, 606, 636):
        S.fill(circ(300, y, 6), 'gold', 3)
    limb(S, [(252, 566), (226, 640), (262, 690)], [48, 52, 34], 'red', 4.6, 's')
    fold(S, [(248, 640), (236, 644), (222, 640)], 5)
    S.limb([(250, 676), (266, 692)], [40, 36], 'gold', 3.8)
    hand_laid(S, 262, 690, .82, 28, True)
    # head
    hair_back(S, 300, 462, .86, w=54, low=72)
    S.limb([(300, 496), (300, 544)], [40, 50], 'flesh', 4)
    S.fill([(262, 540, 'c'), (278, 530), (300, 540), (322, 530), (338, 540, 'c'), (322, 560), (300, 566), (278, 560)], 'white', 4)
    face(S, 300, 464, .88, .45, lw=4.4)
    fringe(S, 299, 462, .9)
    hair_front(S, 300, 462, .86, low=66)


def draw(S):
    ground(S, 894)
    for q in ((300, 940, .7), (222, 932, .5), (388, 934, .5)):
        tuft(S, *q)
    burst(S, 300, 258, 98)
    cupid(S, 328, 234)
    elder(S)
    younger(S)
    youth(S)
    elder_arm(S)
    hand_laid(S, 342, 632, .9, 14)
