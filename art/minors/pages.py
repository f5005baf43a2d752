# SPDX-License-Identifier: GPL-3.0-or-later
"""The four pages, standing.

Batons: both hands on a club as tall as himself. Cups: walking, a wreath in the hair, the cup half veiled by a cloth. Swords:
feathered cap and short cape, the sword shouldered, a hand on the scabbard. Coins: legs apart, looking up at the coin he
holds aloft, purse at the belt.
"""
from minors.bodies import *      # the vocabulary of scenes, see drawing.py
from minors.kings import sword_handle, tall_sword


def field(S, tufts):
    """ground with tufts of grass"""
    ground(S, 892)
    for x, y, k in tufts:
        tuft(S, x, y, k)


# ---------- batons ----------
def standing_club(S):
    """rough trunk that stands on the ground, thicker above"""
    S.fill([(122, 906, 'c'), (128, 700), (118, 500), (108, 300), (100, 176, 'c'), (172, 176, 'c'), (170, 300), (166, 500), (162, 700),
            (166, 906, 'c'), (144, 914)], 'wood', 5.2)
    for x, y, rot in ((108, 300, -62), (164, 400, 58), (120, 640, -60), (160, 760, 60)):
        with S.at(x, y, 1, rot):
            S.fill([(-13, 14, 'c'), (-13, -28, 'c'), (13, -28, 'c'), (14, 14, 'c')], 'wood', 4.6)
            S.fill(circ(0, -28, 13, 6), 'gold', 3.6)
    for pts in ([(122, 200), (126, 320), (132, 440)], [(146, 190), (146, 330), (144, 420)], [(136, 560), (140, 680), (138, 800)],
                [(152, 640), (150, 760), (152, 880)]):
        S.line(pts, 5)
    S.comb([(168, 200), (164, 400), (158, 640), (160, 890)], 186, 16, 40, 4.6)
    S.fill(circ(136, 176, 37, 15), 'gold', 4.6)
    S.stroke(circ(136, 176, 22, 8), 3)


def page_batons(S):
    field(S, ((70, 930, .8), (470, 922, 1), (530, 934, .7)))
    shoe_leg(S, 284, 640, 262, 'red', 'gold', -1)
    shoe_leg(S, 338, 640, 372, 'red', 'gold', 1)
    coat(S, 'green', 'green', 672, 110)
    S.fill([(292, 320, 'c'), (308, 320, 'c'), (310, 490), (306, 668, 'c'), (294, 668, 'c'), (290, 490)], 'gold', 4)
    for x in range(198, 412, 24):
        S.fill([(x - 6, 668, 'c'), (x + 18, 668, 'c'), (x + 6, 700)], 'gold', 4)
    S.limb([(250, 494), (300, 506), (350, 494)], [22, 22, 22], 'red', 4.4)
    S.fill(rect(288, 490, 24, 28, 4), 'gold', 3.8)
    standing_club(S)
    grip(S, (370, 366), (352, 500), (150, 470), 'blue', None, 'gold', rot=-4)
    grip(S, (230, 366), (258, 420), (144, 392), 'blue', None, 'gold', .98, rot=4)
    head(S, 300, 232, 1.08, .75, hair=hair_bob, hat=hat_cap, hat_pigs=('red', 'blue', 'white'), collar=collar_jagged)


# ---------- cups ----------
def page_cups(S):
    field(S, ((90, 926, 1), (520, 924, .9), (440, 936, .7)))
    shoe_leg(S, 330, 700, 384, 'gold', 'red', -1)
    shoe_leg(S, 270, 700, 214, 'gold', 'red', -1)
    # long coat, open at the side, swinging with the step
    S.fill([(300, 322, 'c'), (248, 322), (222, 340), (220, 390), (250, 470), (246, 520), (214, 640), (180, 790, 'c'), (240, 806),
            (300, 780, 'c'), (330, 800), (372, 812), (424, 784, 'c'),
            (392, 640), (356, 520), (350, 470), (380, 390), (378, 340), (352, 322)], 'sky', 5.2)
    S.fill([(300, 782, 'c'), (310, 640), (316, 540, 'c'), (348, 540), (388, 650), (424, 784, 'c'), (372, 812), (330, 800)], 'blue', 4.8)
    for p, w in (([(268, 540), (244, 650), (218, 786)], 9), ([(286, 544), (276, 660), (258, 790)], 8),
                 ([(330, 560), (344, 680), (350, 796)], 8), ([(344, 560), (374, 680), (396, 786)], 8)):
        fold(S, p, w)
    S.comb([(386, 660), (404, 720), (416, 776)], 196, 24, 11, 4.8)
    S.comb([(376, 396), (350, 470), (350, 500)], 188, 22, 9, 4.8)
    S.limb([(186, 776), (242, 792), (298, 768)], [18, 18, 18], 'gold', 4.2)
    S.limb([(302, 770), (334, 788), (374, 798), (420, 772)], [18, 18, 18, 18], 'gold', 4.2)
    for y in (352, 384, 416, 448, 480):
        S.fill(circ(292, y, 7), 'red', 3.2)
    S.limb([(250, 510), (300, 522), (352, 508)], [20, 20, 20], 'red', 4.4)
    S.fill(circ(300, 520, 13), 'gold', 4.2)
    # the cup is carried before him, the cloth falls over hand and foot
    arm(S, (366, 368), (404, 500), (280, 500), 'red', 'gold')
    goblet(S, 156, 416, 1.62)
    S.fill([(82, 516, 'c'), (110, 496), (156, 504), (204, 492), (250, 500, 'c'), (262, 560), (240, 640, 'c'), (212, 610), (192, 660, 'c'),
            (160, 616), (128, 668, 'c'), (112, 612), (84, 640, 'c'), (74, 570)],
           'white', 4.8)
    for p in ([(104, 516), (100, 560), (92, 616)], [(140, 520), (134, 580), (130, 640)], [(180, 516), (188, 580), (192, 634)],
              [(222, 516), (232, 560), (236, 612)]):
        fold(S, p, 6)
    S.comb([(254, 540), (252, 590), (240, 628)], 196, 20, 8, 4)
    arm(S, (232, 368), (262, 486), (216, 514), 'red', 'gold')
    with S.at(184, 520, 1, -6):
        for dy in (-12, 0, 12):
            finger(S, [(16, dy), (-6, dy - 2), (-26, dy)], 13, 3.4)
        S.fill([(36, -20, 'c'), (12, -20), (2, -10), (2, 14), (14, 22), (36, 20, 'c')], 'flesh', 3.8)
        finger(S, [(20, -14), (0, -24), (-18, -24)], 12, 3.4)
    head(S, 300, 232, 1.06, .9, hair=hair_waves, hat=hat_wreath, hat_pigs=('red', 'white'), collar=collar_linen)


# ---------- swords ----------
def page_swords(S):
    field(S, ((80, 928, .9), (510, 928, 1), (300, 940, .7)))
    # cape behind
    S.fill([(300, 324, 'c'), (246, 330), (206, 380), (184, 480), (170, 590), (176, 640, 'c'), (240, 624), (300, 630), (360, 624),
            (424, 640, 'c'), (430, 590), (416, 480), (394, 380), (354, 330)], 'gold', 5)
    shoe_leg(S, 276, 630, 244, 'blue', 'red', -1)
    shoe_leg(S, 330, 630, 368, 'red', 'blue', 1)
    coat(S, 'red', 'blue', 646, 92)
    for x0, pig in ((-92, 'red'), (0, 'blue')):
        for i in range(4):
            x = 300 + x0 + i * 23
            S.fill([(x, 642, 'c'), (x + 23, 646, 'c'), (x + 20, 668), (x + 11, 678), (x + 3, 668)], pig, 4)
    for y in (360, 400, 440):
        S.limb([(262, y - 12), (300, y), (338, y - 12)], [9, 11, 9], 'gold', 3.4)
    # scabbard hung from the belt
    S.limb([(352, 510), (410, 650), (450, 760)], [24, 22, 16], 'dark', 4.8)
    S.limb([(440, 732), (452, 766)], [20, 13], 'gold', 4)
    S.limb([(350, 504), (362, 534)], [28, 28], 'gold', 4)
    S.limb([(250, 492), (300, 504), (352, 492)], [20, 20, 20], 'gold', 4.4)
    S.fill(rect(289, 490, 22, 26, 4), 'red', 3.6)
    arm(S, (372, 366), (444, 466), (384, 512), 'red', 'white')
    S.fill([(386, 496, 'c'), (362, 494), (344, 504), (342, 528), (366, 540), (394, 532, 'c')], 'flesh', 3.8)
    for y in (508, 517, 526):
        S.line([(346, y), (366, y + 2)], 2.6)
    # the sword leans on the other shoulder
    tall_sword(S, 148, 494, -6, 360)
    grip(S, (228, 366), (232, 510), (152, 522), 'blue', sword_handle_turned, 'white', rot=-8)
    head(S, 300, 244, 1.04, .6, True, hair=hair_curls, hat=hat_brim, hat_pigs=('blue', 'red', 'white'), collar=collar_linen)


def sword_handle_turned(S):
    """the shouldered sword's grip, at the sword's own lean"""
    with S.at(148, 494, 1, -6):
        sword_handle(S, 0, 0)


# ---------- coins ----------
def page_coins(S):
    field(S, ((76, 930, .9), (524, 926, .9)))
    stem(S, [(462, 900), (458, 830), (468, 770)], 8)
    leaf(S, 460, 846, .76, -40)
    leaf(S, 460, 860, .7, 220, False)
    bloom(S, 470, 752, .86, 0)
    shoe_leg(S, 270, 620, 214, 'red', 'blue', -1, 1.06)
    shoe_leg(S, 334, 620, 376, 'green', 'blue', 1, 1.06)
    coat(S, 'gold', 'gold', 640, 104)
    for d, pig in ((-1, 'blue'), (1, 'blue')):
        with S.at(300, 0, 1, 0, d > 0):
            S.fill([(-16, 320, 'c'), (-46, 318, 'c'), (-40, 420), (-28, 500, 'c'), (-12, 500, 'c')], pig, 4.2)
            S.limb([(-102, 634), (-52, 646), (0, 640)], [20, 20, 20], pig, 4.2)
    S.limb([(248, 494), (300, 506), (352, 494)], [20, 20, 20], 'red', 4.4)
    # purse
    S.limb([(338, 500), (346, 540)], [9, 9], 'red', 3.6)
    S.fill([(326, 538, 'c'), (312, 576), (322, 604), (348, 612), (374, 602), (382, 574), (366, 538, 'c')], 'red', 4.6)
    S.line([(328, 556), (346, 562), (366, 554)], 4)
    S.fill(circ(346, 562, 7), 'gold', 3.4)
    S.comb([(380, 570), (372, 596)], 195, 16, 5, 4)
    S.fill(circ(300, 504, 13), 'gold', 4.2)
    arm(S, (372, 366), (452, 452), (394, 510), 'blue', 'white', puffed=True)
    S.fill([(398, 494, 'c'), (370, 494), (352, 508), (354, 532), (378, 538), (404, 528, 'c')], 'flesh', 3.8)
    for y in (508, 517, 526):
        S.line([(356, y), (376, y + 2)], 2.6)
    # the coin held aloft
    arm(S, (230, 366), (142, 446), (140, 356), 'blue', 'white', puffed=True)
    S.fill([(118, 342, 'c'), (160, 342, 'c'), (166, 314), (156, 288), (122, 288), (112, 314)], 'flesh', 3.8)
    disc(S, 138, 226, 84)
    for x, dy in ((116, 0), (131, -6), (147, -6)):
        finger(S, [(x, 328), (x - 1, 308), (x - 1, 288 + dy)], 14, 3.4)
    finger(S, [(158, 330), (172, 312), (176, 288)], 14, 3.4)
    head(S, 312, 236, 1.04, .85, hair=hair_none, hat=hat_hood, hat_pigs=('red', 'gold', 'white'), collar=collar_jagged)


DRAW = {'bastos': page_batons, 'copas': page_cups, 'espadas': page_swords, 'oros': page_coins}
