# SPDX-License-Identifier: GPL-3.0-or-later
"""The Chariot: a crowned captain in armour under a canopy on four posts, the car drawn by two horses, one red and one blue."""
import math

from regal import *      # the vocabulary of scenes, see drawing.py

TITLE, NUM = 'LE CHARIOT', 'VII'
FIELD, PATTERN = 'emerald', 'stars'


def wheel(S, x, y, rx, ry):
    """wheel seen aslant"""
    S.fill(circ(x, y, rx, ry), 'gold', 5)
    S.fill(circ(x, y, rx-13, ry-17), 'dark', 4)
    for i in range(8):
        a = math.radians(i*45+22)
        S.limb([(x, y), (x+math.cos(a)*(rx-9), y+math.sin(a)*(ry-12))], [9, 12], 'wood', 3.4)
    S.fill(circ(x, y, 13, 20), 'gold', 4)
    S.fill(circ(x, y, 5, 8), 'red', 3)


def canopy(S):
    """roof with its valance, carried by two posts before and two behind"""
    for _ in halves(S):
        S.limb([(-128, 180), (-126, 600)], [15, 15], 'gold', 4.4)
        S.fill([(-226, 190, 'c'), (-152, 190, 'c'), (-156, 270), (-184, 330), (-214, 360), (-196, 430), (-210, 500), (-222, 540, 'c'),
                (-232, 540, 'c')], 'sky', 4.8)
        fold(S, [(-206, 200), (-202, 280), (-214, 350)], 6)
        fold(S, [(-180, 200), (-182, 280), (-208, 352)], 6)
        fold(S, [(-214, 370), (-208, 440), (-220, 520)], 6)
        S.limb([(-226, 180), (-222, 440), (-218, 800)], [19, 19, 19], 'gold', 4.6)
        for y in range(230, 780, 58):
            x = -225+max(0, y-200)*.012
            S.limb([(x-10, y+9), (x+11, y-9)], [8, 8], 'red', 3)
        S.limb([(-236, 356), (-214, 364), (-194, 358)], [15, 15, 15], 'red', 3.8)
    S.fill([(62, 190, 'c'), (84, 150), (160, 128), (300, 116), (440, 128), (516, 150), (538, 190, 'c'), (300, 178)], 'blue', 5)
    for x, y in ((128, 158), (186, 148), (243, 143), (300, 141), (357, 143), (414, 148), (472, 158)):
        for a in range(0, 180, 45):
            S.line([pol(x, y, 10, a), pol(x, y, 10, a+180)], 3.4, 'both')
        S.fill(circ(x, y, 4.6), 'gold', 2.4)
    n = 9
    for i in range(n):
        x0, x1 = 66+468*i/n, 66+468*(i+1)/n
        S.fill([(x0, 190, 'c'), (x0+3, 214), ((x0+x1)/2, 234), (x1-3, 214), (x1, 190, 'c')], 'red' if i % 2 == 0 else 'gold', 4)
        S.fill(circ((x0+x1)/2, 238, 5), 'gold', 2.8)
    band(S, [(58, 192), (180, 182), (300, 179), (420, 182), (542, 192)], 24, n=15, gems=('red', 'pearl'))


def car(S):
    """box of the chariot with its winged device"""
    S.fill(poly([(142, 596), (458, 596), (430, 850), (170, 850)]), 'wood', 5)
    S.comb([(454, 620), (432, 840)], 184, 20, 14, 4.4)
    for x in (204, 250, 300, 350, 396):
        S.limb([(x, 610), (300+(x-300)*.9, 848)], [9, 9], 'gold', 3.4)
    S.fill(rect(128, 584, 344, 30, 5), 'gold', 5)
    for i in range(13):
        S.fill(circ(148+i*25.3, 599, 5), 'blue' if i % 2 else 'pearl', 2.6)
    for f in (False, True):
        with S.at(300, 0, 1, 0, f):
            wing(S, [(-18, 660), (-48, 636), (-84, 640)], (118, 150), (40, 34), 5, (('sky', 1), ('gold', .5)), 20, 'gold', (13, 11, 6))
    S.fill([(272, 636, 'c'), (300, 630), (328, 636, 'c'), (328, 666), (300, 696, 'c'), (272, 666)], 'blue', 4.6)
    S.fill(circ(300, 660, 15), 'gold', 3.8)
    for a in range(0, 360, 60):
        S.line([pol(300, 660, 3, a), pol(300, 660, 12, a)], 3.4)


def captain(S):
    """crowned youth in armour, sceptre in his right hand, the left on his hip"""
    S.fill([(300, 410, 'c'), (248, 412), (228, 440), (236, 500), (250, 540), (240, 600, 'c'), (360, 600, 'c'), (350, 540), (364, 500),
            (372, 440), (352, 412)], 'sky', 5.2)
    S.line([(300, 420), (300, 560)], 5, 'flat')
    for _ in halves(S):
        S.stroke([(-62, 452), (-46, 490), (-8, 504)], 3.4)
        S.stroke([(-56, 520), (-36, 540), (-8, 544)], 3.4)
    S.comb([(362, 470), (350, 540), (356, 590)], 186, 22, 9, 4.6)
    band(S, [(246, 560), (300, 574), (354, 560)], 22, n=6, gems=('red', 'pearl'))
    for _ in halves(S):
        for i in range(3):
            S.fill([(-56+i*19, 574+i*4, 'c'), (-40+i*19, 576+i*4, 'c'), (-40+i*19, 606), (-56+i*19, 606)], 'red' if i % 2 else 'gold', 3.4)
    arm(S, (360, 444), (412, 524), (376, 560), 'blue', .88, 'red', bulge=-10)
    fist(S, (412, 524), (376, 560), lambda: None, .92)
    arm(S, (240, 444), (206, 546), (168, 530), 'blue', .88, 'red', bulge=-10)
    fist(S, (206, 546), (168, 530), lambda: sceptre(S, 214, 46, 23), 1.0, -25)
    # shoulder masks: two moons with faces
    for _ in halves(S):
        S.fill([(-98, 418, 'c'), (-62, 414), (-40, 438), (-54, 472), (-92, 484, 'c'), (-74, 462), (-76, 436)], 'gold', 4.6)
        S.line([(-68, 440), (-60, 436), (-54, 440)], 3.2)
        S.dot(-61, 444, 3.2)
        S.line([(-54, 446), (-48, 456), (-56, 460)], 3)
        S.line([(-70, 468), (-64, 464), (-58, 466)], 3.2)
    S.limb([(300, 372), (300, 420)], [44, 52], 'flesh', 4)
    S.fill([(254, 420, 'c'), (272, 402), (300, 414), (328, 402), (346, 420, 'c'), (326, 440), (300, 446), (274, 440)], 'gold', 4.4)
    for x, y in ((270, 420), (285, 428), (300, 430), (315, 428), (330, 420)):
        S.fill(circ(x, y, 4.4), 'red', 2.4)


def horse_head(S, coat):
    """head in profile to the left, hung from the poll at the origin, bridled"""
    for ex in (-8, 14):
        S.fill([(ex-10, 4, 'c'), (ex-9, -20), (ex+1, -40, 'c'), (ex+11, -18), (ex+10, 4, 'c')], coat, 4)
        S.line([(ex, -4), (ex+1, -26)], 3, 'end')
    S.fill([(-18, -10), (-36, 14), (-50, 44), (-68, 78), (-84, 98), (-86, 114), (-74, 128), (-56, 127), (-44, 114), (-22, 104), (6, 98),
            (28, 70), (30, 30), (14, -8)], coat, 4.8)
    S.comb([(29, 40), (24, 72), (4, 98)], 205, 15, 8, 4)
    # bridle: noseband, cheek strap with its rosette, brow band
    S.limb([(-62, 68), (-44, 82), (-36, 108)], [10, 10, 10], 'gold', 3)
    S.limb([(10, -6), (12, 40), (-40, 98)], [10, 10, 10], 'gold', 3)
    S.limb([(-32, 6), (-8, 4), (13, 10)], [10, 10, 10], 'gold', 3)
    S.fill(circ(-41, 97, 9), 'gold', 3.2)
    S.fill(circ(12, 12, 9), 'gold', 3.2)
    # eye, nostril, lip
    S.fill([(-33, 34, 'c'), (-25, 25), (-12, 26), (-6, 35, 'c'), (-19, 40)], 'white', 0)
    S.fill(circ(-20, 32, 6.6), 'iris', 0)
    S.dot(-20, 32, 5.2)
    S.line([(-38, 38), (-28, 21), (-11, 22), (1, 34)], 5)
    S.line([(-33, 37), (-19, 42), (-5, 36)], 3)
    S.line([(-78, 108), (-72, 97), (-64, 99), (-68, 107)], 4.6)
    S.line([(-84, 118), (-70, 116), (-56, 120)], 3.6)
    for x in (-14, -2, 9):
        S.fill([(x-9, -16, 'c'), (x+8, -16, 'c'), (x, 6), (x-13, 20, 'c'), (x-11, 0)], 'hair', 3.2)


def horse(S, x, y, coat, strap):
    """forehand of the left horse, arched neck, looking out to the left, one foreleg lifted; drawn around its poll"""
    with S.at(x, y):
        limb(S, [(82, 206), (88, 258), (82, 302)], [58, 32, 23], coat, 4.6, '', 9)
        S.limb([(68, 284), (96, 284)], [18, 18], 'white', 3.6)
        S.fill([(68, 294, 'c'), (97, 294, 'c'), (107, 322, 'c'), (56, 322, 'c')], 'gold', 4.2)
        S.fill([(6, -8, 'c'), (50, -6), (86, 34), (106, 96), (116, 160), (106, 222, 'c'), (64, 238), (20, 230), (-6, 204), (-8, 172),
                (18, 134), (40, 100), (44, 66, 'c')], coat, 5.2)
        S.comb([(98, 70), (113, 130), (112, 196)], 184, 24, 10, 4.8)
        curls(S, [(107, 104), (102, 82), (94, 61), (83, 42), (70, 25), (54, 11), (37, 1)], 13, 'hair', 3.4)
        limb(S, [(16, 204), (-22, 204), (-56, 200)], [54, 42, 29], coat, 4.8, 's', 7)
        limb(S, [(-55, 194), (-58, 234), (-46, 268)], [31, 22, 19], coat, 4.6, 's', 6)
        S.limb([(-61, 254), (-39, 248)], [18, 18], 'white', 3.6)
        S.fill([(-59, 264, 'c'), (-37, 256, 'c'), (-24, 280, 'c'), (-60, 292, 'c')], 'gold', 4.2)
        band(S, [(-11, 160), (46, 184), (113, 158)], 22, strap, 5, ('gold', 'pearl'), r=.3)
        for bx, by in ((14, 190), (46, 199), (76, 194), (102, 184)):
            S.fill(circ(bx, by, 9.5), 'gold', 3)
            S.line([(bx-5, by+3), (bx+5, by+3)], 2.6)
        with S.at(6, 4, 1.3, -5):
            horse_head(S, coat)


def draw(S):
    ground(S, 900)
    tuft(S, 300, 936, .8)
    canopy(S)
    for x in (100, 500):
        wheel(S, x, 836, 42, 76)
    car(S)
    hair_back(S, 300, 330, .92)
    captain(S)
    face(S, 300, 332, .92, .4, lw=4.4)
    hair_front(S, 300, 330, .92)
    crown(S, 300, 290, 1.08, 5)
    horse(S, 172, 604, 'red', 'blue')
    with S.at(600, 0, 1, 0, True):
        horse(S, 172, 604, 'blue', 'red')
