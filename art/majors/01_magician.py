# SPDX-License-Identifier: GPL-3.0-or-later
"""The Magician: under a hat with a brim like a lying eight he stands behind his table, one hand raised with the wand, the other
pointing a coin to the ground."""
from drawing import *      # the vocabulary of scenes, see drawing.py

TITLE, NUM = 'LE BATELEVR', 'I'
FIELD, PATTERN = 'emerald', 'damask'
AXIS = 291                      # his axis stands a little to the left of the card's


def leg(S, x, pig, side):
    """leg below the table with its shoe; side is -1 for the left foot, which points to the left, and 1 for the right one"""
    ankle = x + side * 8
    S.limb([(x, 690), (x + side * 4, 780), (ankle, 872)], [50, 44, 26], pig)
    S.comb([(x + 18, 700), (x + side * 4 + 17, 780), (ankle + 11, 862)], 180, 13, 15, 4)
    S.fill([(ankle - side * 15, 862, 'c'), (ankle + side * 15, 862, 'c'), (ankle + side * 22, 882), (ankle + side * 46, 892),
            (ankle + side * 60, 906, 'c'), (ankle - side * 18, 906, 'c')], 'gold', 4)
    S.line([(ankle - side * 8, 868), (ankle + side * 4, 872), (ankle + side * 14, 868)], 3)


def coat(S):
    """coat of two colours with its buttons and belt"""
    S.fill([(291, 312, 'c'), (240, 312), (212, 328), (206, 372), (236, 440), (250, 516), (226, 590), (204, 700, 'c'),
            (291, 700, 'c')], 'red')
    S.fill([(291, 312, 'c'), (342, 312), (370, 328), (376, 372), (346, 440), (332, 516), (356, 590), (378, 700, 'c'),
            (291, 700, 'c')], 'blue')
    for crease in ([(240, 528), (238, 600), (228, 690)], [(262, 530), (264, 600), (258, 690)], [(280, 530), (281, 610), (278, 690)],
                   [(304, 530), (304, 610), (308, 690)], [(322, 530), (322, 600), (332, 690)], [(340, 528), (346, 600), (358, 690)]):
        fold(S, crease, 6)
    S.comb([(368, 380), (343, 440), (332, 505)], 188, 24, 12, 5)
    S.comb([(250, 505), (258, 460), (250, 420)], 0, 12, 6, 3)
    for y in (352, 384, 416, 448, 480):
        S.fill(circ(AXIS, y, 7), 'gold', 3.2)
    S.fill([(246, 504, 'c'), (291, 514), (336, 504, 'c'), (337, 528, 'c'), (291, 538), (245, 528, 'c')], 'gold', 4.5)
    S.fill(rect(279, 508, 24, 28, 4), 'red', 3.5)


def collar(S):
    """petals of linen with a golden edge"""
    for i in range(7):
        x, y = pol(AXIS, 296, 54, 20 + i * 23.3)
        S.fill(circ(x, 296 + (y - 296) * .62, 15, 13), 'white', 3.6)
    S.fill([(252, 296, 'c'), (270, 312), (291, 316), (312, 312), (330, 296, 'c'), (324, 286), (291, 298), (258, 286)], 'gold', 3.6)


def side_locks(S):
    """wavy locks in front of the ears, one to each side"""
    for side in (-1, 1):
        inner = [(AXIS + side * 30, 186), (AXIS + side * 44, 214), (AXIS + side * 50, 246), (AXIS + side * 72, 268),
                 (AXIS + side * 66, 292)]
        outer = [(AXIS + side * 54, 190), (AXIS + side * 70, 220), (AXIS + side * 70, 246), (AXIS + side * 84, 270),
                 (AXIS + side * 74, 300)]
        S.fill(inner + [(AXIS + side * 50, 304)] + outer[::-1], 'hair', 4)
        locks(S, (inner, outer), 3, 2.6)
        S.line([(AXIS + side * 50, 262), (AXIS + side * 42, 278), (AXIS + side * 50, 292), (AXIS + side * 60, 286)], 2.6)


def hat(S):
    """round crown, and a wide brim that curls up to a lying eight"""
    S.fill([(234, 172, 'c'), (238, 118), (262, 88), (291, 80), (322, 90), (344, 120), (350, 172, 'c'), (291, 184)], 'red', 5)
    S.comb([(330, 98), (344, 126), (348, 168)], 190, 22, 9, 4.5)
    S.fill([(233, 172, 'c'), (234, 148, 'c'), (291, 160), (349, 148, 'c'), (350, 172, 'c'), (291, 184)], 'gold', 4)
    S.fill([(291, 176), (236, 156), (178, 140), (132, 156), (134, 186), (176, 200), (236, 188), (291, 196), (346, 188), (406, 200),
            (450, 184), (450, 154), (404, 140), (346, 156)], 'gold', 5)
    S.fill([(291, 184), (238, 168), (182, 154), (150, 164), (152, 182), (182, 188), (238, 178), (291, 188), (344, 178), (400, 188),
            (432, 180), (432, 162), (400, 154), (344, 168)], 'green', 3.4)
    S.fill(circ(AXIS, 172, 11), 'red', 4)


def wand(S):
    """golden wand with a red knob at each end"""
    S.limb([(58, 214), (222, 332)], [15, 15], 'gold', 4.5)
    S.fill(circ(56, 212, 12), 'red', 4)
    S.fill(circ(224, 333, 12), 'red', 4)


def raised_arm(S):
    """the arm on the left, which holds the wand aloft"""
    S.limb([(100, 444), (116, 380), (134, 318)], [70, 60, 40], 'blue')
    S.comb([(148, 332), (138, 380), (126, 412)], 190, 20, 9, 4)
    S.limb([(238, 346), (172, 404), (106, 438)], [60, 84, 78], 'red', 5, 'se')
    S.comb([(220, 396), (168, 444), (104, 472)], 250, 26, 13, 5)
    fold(S, [(244, 362), (210, 384), (180, 386)])
    fold(S, [(234, 380), (208, 398), (190, 400)])
    fold(S, [(84, 424), (104, 416), (126, 418)])
    fold(S, [(88, 442), (108, 432), (124, 434)], 4)
    S.limb([(120, 352), (134, 312)], [62, 54], 'gold', 4.5)
    S.line([(104, 330), (128, 340), (152, 340)], 3)
    hand_fist(S, 144, 276, 1.06, 113, rod=lambda: wand(S))


def table(S):
    """table of planks, cut by the lower edge of the view"""
    S.fill(poly([(78, 636), (516, 636), (556, 716), (40, 716)]), 'wood', 5)
    for y, left, right in ((652, 80, 500), (676, 66, 400), (696, 230, 540)):
        S.line([(left, y), ((left + right) / 2, y - 3), (right, y + 1)], 2.6)
    S.fill(rect(36, 716, 524, 30), 'wood', 5)
    S.line([(44, 731), (200, 729), (420, 733), (552, 730)], 3)
    S.comb([(44, 720), (300, 720), (552, 720)], 90, 9, 60, 3.6)
    for x in (62, 512):
        S.fill(poly([(x, 746), (x + 34, 746), (x + 30, 918), (x + 4, 918)]), 'wood', 5)
        S.comb([(x + 32, 752), (x + 29, 912)], 180, 13, 18, 4)


def trinkets(S):
    """cups, dice, a knife and coins on the table"""
    cup(S, 128, 690, 1.0)
    cup(S, 196, 672, .62)
    die(S, 250, 672, 14, -8)
    die(S, 284, 694, 15, 10)
    die(S, 226, 702, 13, 4)
    S.limb([(316, 690), (346, 676)], [12, 11], 'red', 3.5)
    S.fill([(344, 670, 'c'), (384, 652), (412, 646, 'c'), (394, 662), (350, 684, 'c')], 'white', 3.5)
    for x, y, r in ((470, 690, 20), (506, 700, 18), (440, 704, 15)):
        S.fill(circ(x, y, r, r * .55), 'gold', 3.8)
        S.stroke(circ(x, y, r * .62, r * .32), 2)


def lowered_arm(S):
    """the arm on the right, which holds a coin over the table"""
    S.limb([(450, 446), (432, 516), (404, 566)], [70, 58, 40], 'red')
    S.comb([(466, 478), (444, 530), (420, 566)], 200, 24, 11, 4.5)
    S.limb([(344, 346), (408, 398), (450, 444)], [60, 84, 78], 'blue', 5, 'se')
    S.comb([(354, 386), (400, 440), (424, 470)], 300, 24, 11, 4.5)
    fold(S, [(340, 362), (372, 384), (400, 386)])
    fold(S, [(348, 380), (374, 398), (390, 400)])
    fold(S, [(476, 424), (456, 420), (436, 430)])
    S.limb([(416, 544), (396, 574)], [58, 52], 'gold', 4.5)
    S.line([(394, 544), (412, 562), (428, 566)], 3)
    coin(S, 370, 636, 25)
    hand_pinch(S, 372, 622, .86, -58)


def draw(S):
    ground(S, 905)
    for x, y, k in ((92, 925, 1), (508, 930, .9), (300, 938, .8)):
        tuft(S, x, y, k)
    leg(S, 255, 'blue', -1)
    leg(S, 335, 'red', 1)
    # hair behind the head, neck
    S.fill([(262, 168), (226, 196), (222, 236), (206, 262), (214, 296), (236, 306), (258, 296), (322, 298), (350, 308), (374, 294),
            (378, 262), (360, 236), (356, 196), (320, 168)], 'hair', 4.5)
    S.fill([(266, 250, 'c'), (264, 300), (250, 322, 'c'), (334, 322, 'c'), (320, 300), (318, 250, 'c')], 'flesh', 4)
    coat(S)
    collar(S)
    face(S, AXIS, 228, 1.02, .75)
    side_locks(S)
    hat(S)
    raised_arm(S)
    table(S)
    trinkets(S)
    lowered_arm(S)
