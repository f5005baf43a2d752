# SPDX-License-Identifier: GPL-3.0-or-later
"""The World: a dancer with sash and wand in a laurel mandorla; angel, eagle, bull and lion keep the corners. Her crossed leg answers
the Hanged Man's. The upper beings sit low and inward, clear of an arched frame."""
import math

from beasts import *      # the vocabulary of scenes, see drawing.py

TITLE, NUM = 'LE MONDE', 'XXII'
FIELD, PATTERN = 'plum', 'stars'
CX, CY, RX, RY = 300, 524, 152, 330


def mandorla(S):
    """oval of bay leaves in pairs, bound with crossed ribbons at its four ends"""
    S.limb([(CX + RX * math.cos(a), CY + RY * math.sin(a)) for a in (i * math.pi / 20 for i in range(41))], [9, 9], 'wood', 3.6)
    n = 40
    for i in range(n):
        # both halves grow from the foot to the crown
        half, j = i % 2, i // 2
        u = (j + .6) / (n / 2) * math.pi
        a = math.pi / 2 + (u if half else -u)
        x, y = CX + RX * math.cos(a), CY + RY * math.sin(a)
        g = math.degrees(math.atan2(RY * math.cos(a), -RX * math.sin(a))) + (0 if half else 180)
        for side, pig in ((30, 'green'), (-30, 'green')):
            with S.at(x, y, 1, g + side):
                S.fill([(-6, 0, 'c'), (14, -12), (36, -8), (52, 0, 'c'), (36, 8), (14, 12)], pig, 3.6)
                S.line([(0, 0), (24, 1), (44, 0)], 2.6, 'end')
        if j % 3 == 1:
            S.fill(circ(x, y, 6.5), 'red', 3)
    for x, y, turn in ((CX, CY - RY, 0), (CX, CY + RY, 0), (CX - RX, CY, 90), (CX + RX, CY, 90)):
        with S.at(x, y, 1, turn):
            for d in (-1, 1):
                S.limb([(-24, -d * 22), (0, 0), (24, d * 22)], [13, 15, 13], 'red', 4)
            S.fill(circ(0, 0, 9), 'gold', 3.6)


def dancer(S):
    """stands on one foot, the other leg crossed behind; a wand in each hand, the sash about her"""
    # sash behind
    S.fill([(352, 430, 'c'), (392, 470), (400, 540), (384, 610), (404, 680, 'c'), (378, 690, 'c'), (360, 620), (372, 540), (364, 480),
        (336, 448, 'c')], 'red', 4.6)
    for p in ([(372, 470), (386, 530), (374, 610)], [(378, 620), (384, 650), (394, 680)]):
        fold(S, p, 5)
    # crossed leg
    bare(S, [(372, 676), (330, 716), (268, 720)], [46, 40, 23], 4.6, 's')
    S.fill([(276, 708, 'c'), (276, 732, 'c'), (262, 746), (250, 768), (238, 766), (240, 742), (252, 716, 'c')], 'flesh', 4.2)
    bare(S, [(318, 588), (352, 632), (374, 678)], [74, 62, 46], 4.6, 'e')
    bare(S, [(284, 590), (290, 690), (298, 788)], [76, 52, 25], 4.8)
    S.line([(276, 690), (290, 698), (304, 692)], 3)
    S.fill([(286, 780, 'c'), (311, 780, 'c'), (312, 806, 'c'), (270, 810), (248, 808), (254, 798), (276, 794)], 'flesh', 4.2)
    for u in (256, 264, 272):
        S.line([(u, 800), (u - 3, 808)], 2.4, 'flat')
    # hair down the back, trunk
    S.fill([(276, 292), (250, 330), (244, 400), (250, 450), (300, 470), (348, 450), (354, 400), (348, 330), (322, 292),
        (300, 284)], 'hair', 4.5)
    S.fill([(284, 374, 'c'), (282, 400), (252, 412), (240, 440), (256, 484), (264, 524), (248, 572), (256, 622, 'c'), (346, 618, 'c'),
        (354, 572), (336, 524), (344, 484),
            (360, 440), (348, 412), (318, 400), (316, 374, 'c')], 'flesh', 4.8)
    S.fill(circ(300, 552, 3.8), 'blush', 2.4)
    S.line([(300, 500), (298, 530), (300, 546)], 2.8)
    S.comb([(357, 446), (344, 486), (336, 524), (352, 570)], 188, 17, 12, 4)
    face(S, 300, 344, .8, .5, False, 'f', 4.8)
    for a, b in (([(290, 296), (268, 316), (264, 356), (266, 410), (276, 486)], [(282, 290), (250, 318), (246, 366), (244, 430),
            (262, 500)]),
                 ([(306, 296), (330, 312), (334, 352), (332, 410), (320, 486)], [(314, 290), (348, 316), (352, 362), (354, 430),
                 (336, 500)])):
        S.fill(a + b[::-1], 'hair', 4.2)
        locks(S, (a, b), 3, 2.8)
    S.fill([(264, 334, 'c'), (266, 306), (288, 288), (316, 292), (338, 310), (338, 334, 'c'), (322, 312), (300, 304),
        (280, 312)], 'hair', 4.2)
    for i in range(7):          # wreath
        x, y = pol(300, 334, 44, 206 + i * 21.5)
        S.fill(circ(x, y, 6.6), 'red' if i % 2 else 'gold', 3)
    # sash across the loins, its end falling at the side
    S.fill([(376, 540, 'c'), (334, 574), (286, 584), (238, 562, 'c'), (214, 606), (224, 660), (204, 716), (214, 744, 'c'), (236, 732),
        (256, 742, 'c'), (250, 700),
            (264, 652), (272, 634), (300, 654), (340, 632), (388, 562, 'c')], 'red', 4.8)
    for p in ([(240, 574), (234, 630), (230, 726)], [(254, 584), (252, 640), (240, 724)], [(270, 592), (300, 616), (320, 628)],
            [(366, 560), (334, 594), (296, 604)],
              [(376, 566), (346, 612), (312, 636)]):
        fold(S, p, 5.5)
    # arms with the wands
    bare(S, [(254, 434), (212, 484), (220, 540)], [38, 36, 22], 4.6)
    grip(S, 222, 562, (221, 540), .76, lambda: (S.limb([(182, 562), (262, 562)],
        [12, 12], 'gold', 3.8), S.fill(circ(180, 562, 9), 'red', 3.4), S.fill(circ(264, 562, 9), 'red', 3.4)))
    bare(S, [(346, 434), (386, 474), (400, 414)], [38, 36, 22], 4.6)
    grip(S, 402, 390, (401, 412), .76, lambda: (S.limb([(362, 390), (438, 390)],
        [12, 12], 'gold', 3.8), S.fill(circ(360, 390, 9), 'red', 3.4), S.fill(circ(440, 390, 9), 'red', 3.4)))


def angel(S, x, y, k=1):
    """half figure on a cloud, looking to the right"""
    with S.at(x, y, k):
        for d in (False, True):
            wing(S, 24 if d else -24, 34, .44, -30 if d else 30, d, ('blue', 'gold', 'gold'), (62, 100), 6, 8)
        halo(S, 0, -24, 66, 5)
        S.fill([(-24, 36, 'c'), (-54, 50), (-60, 100, 'c'), (60, 100, 'c'), (54, 50), (24, 36, 'c'), (0, 44)], 'red', 5)
        for p in ([(-24, 56), (-30, 78), (-30, 98)], [(0, 60), (0, 80), (0, 98)], [(24, 56), (30, 78), (30, 98)]):
            fold(S, p, 6)
        S.limb([(-24, 38), (0, 52), (24, 38)], [13, 13, 13], 'gold', 4)
        S.limb([(0, 12), (0, 42)], [36, 40], 'flesh', 4.4)
        S.fill([(-34, -52), (-48, -20), (-42, 20), (42, 20), (48, -20), (34, -52), (0, -68)], 'hair', 4.6)
        face(S, 2, -14, .86, .5, True, 'f', 5)
        curls(S, [(-40, 16), (-42, -8), (-38, -32), (-22, -50), (0, -56), (22, -50), (38, -32), (42, -8), (40, 16)], 14, 'hair', 4)
        for i, (u, v, r) in enumerate(((-54, 104, 24), (54, 104, 24), (-20, 108, 26), (20, 108, 26))):
            S.fill(circ(u, v, r), 'white', 4.6)
            S.line([pol(u, v, r * .55, a) for a in (190, 230, 270, 310, 350)], 3.4)


def draw(S):
    mandorla(S)
    dancer(S)
    angel(S, 134, 252, .72)
    eagle(S, 464, 254, .72)
    for x in (120, 480):
        halo(S, x, 830, 68, 4.4)
    bull_face(S, 120, 836, .72)
    lion_face(S, 480, 832, .7, locks='fire')
    for x in (120, 480):
        cloud_ring(S, x, 904, 46, 14, 6, 18, 4, 176, ('white', 'sky'))
