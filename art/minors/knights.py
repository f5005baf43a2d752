# SPDX-License-Identifier: GPL-3.0-or-later
"""The four knights on horseback.

Batons: the horse rears in a long caparison, the staff is raised. Cups: a white horse at a walk, the bareheaded rider
offers the cup. Swords: in full armour, an armoured horse at the gallop, the sword swung. Coins: a heavy brown horse that
stands, the rider looks at the coin before him.
"""
from minors.bodies import *      # the vocabulary of scenes, see drawing.py
from minors.kings import sword_handle, tall_sword


def field(S, tufts, pts=None):
    """ground with tufts of grass"""
    ground(S, 886, pts)
    for x, y, k in tufts:
        tuft(S, x, y, k)


def rider_coat(S, pig, skirt=None, trim='gold'):
    """trunk of a rider above the saddle, with the coat's skirt over hip and thigh; origin of the figure at x = 340"""
    S.fill([(340, 292, 'c'), (298, 292), (270, 312), (268, 360), (292, 430), (296, 480), (268, 560, 'c'), (330, 588), (404, 560, 'c'),
            (386, 480), (390, 430), (412, 360), (410, 312), (382, 292)], pig, 5)
    S.comb([(408, 362), (388, 430), (384, 466)], 190, 22, 10, 4.6)
    S.fill([(294, 476, 'c'), (270, 530), (256, 574, 'c'), (300, 590), (330, 600), (372, 592), (416, 570, 'c'), (402, 520), (388, 476, 'c')],
           skirt or pig, 4.8)
    for p in ([(308, 494), (296, 540), (290, 578)], [(330, 496), (328, 550), (328, 590)], [(352, 494), (362, 540), (370, 584)],
              [(372, 492), (386, 530), (396, 572)]):
        fold(S, p, 7)
    S.limb([(292, 470), (340, 482), (390, 470)], [19, 19, 19], trim, 4.2)
    S.fill(circ(340, 480, 12), 'gold', 4)


# ---------- batons ----------
def caparison(S):
    """long cloth over chest and haunches, cut in points at its hem"""
    chest = [(184, 440, 'c'), (212, 400), (250, 420), (280, 470), (296, 560), (292, 690, 'c'), (272, 722, 'c'), (252, 694, 'c'),
             (232, 728, 'c'), (212, 694, 'c'), (190, 722, 'c'), (176, 684, 'c'), (164, 600),
             (168, 520)]
    S.fill(chest, 'red', 5)
    croup = [(408, 482, 'c'), (452, 474), (500, 500), (524, 560), (522, 690, 'c'), (500, 724, 'c'), (480, 694, 'c'), (460, 728, 'c'),
             (440, 694, 'c'), (418, 722, 'c'), (400, 690, 'c'), (396, 580)]
    S.fill(croup, 'red', 5)
    for p in ([(200, 440), (196, 560), (200, 690)], [(236, 440), (246, 560), (244, 690)], [(424, 500), (420, 600), (424, 690)],
              [(484, 510), (496, 600), (492, 690)]):
        fold(S, p, 8)
    for x, y in ((218, 520), (224, 620), (456, 540), (460, 630)):
        bloom(S, x, y, .56, 0, 'gold', 'white')
    S.comb([(288, 560), (286, 670)], 186, 16, 9, 4.4)
    S.comb([(518, 570), (516, 670)], 186, 18, 10, 4.4)


def knight_batons(S):
    field(S, ((80, 926, 1), (300, 934, .8), (536, 920, .8)))
    with S.at(-26, 30), turned(S, 440, 860, 11):
        horse(S, 'white', 'rear', 'hair', 'green', 'dark', -8, caparison)
        saddle(S, 'green')
    with S.at(-8, 46):
        rider_coat(S, 'gold', 'green', 'red')
        reins(S, (270, 450), 'green', 4, (-46, -58))
        rider_leg(S, (330, 556), (262, 628), (296, 744), 'blue')
        arm(S, (288, 330), (248, 424), (286, 446), 'green', 'red', .86)
        hand_fist(S, 264, 448, .92, 6)
        # the staff carried upright beside him
        grip(S, (392, 330), (400, 446), (470, 422), 'green', lambda S: knotty_staff(S, (462, 520), (490, 190)), 'red', .9, rot=4)
        head(S, 340, 206, .94, .7, hair=hair_bob, hat=hat_cap, hat_pigs=('blue', 'red', 'red'), collar=collar_jagged)


def knotty_staff(S, foot, top):
    """short staff, thicker above, with two cut twigs"""
    S.limb([foot, between(foot, top), top], [22, 28, 38], 'wood', 4.8)
    shade(S, between(foot, top, .1), between(foot, top, .95), 30, 14, 11, 4)
    for t in (.2, .5, .75):
        c, e = between(foot, top, t), between(foot, top, t + .1)
        S.line([c, e], 4)
    x, y = top
    S.fill(circ(x, y, 19, 14), 'gold', 4.2)
    S.stroke(circ(x, y, 9, 6), 2.8)
    for t, rot in ((.62, -4), (.8, 130)):
        leaf(S, *between(foot, top, t), .66, rot)


# ---------- cups ----------
def breast_straps(S, pig='red', drops='gold'):
    """breast-band and crupper with hanging bells"""
    for pts in ([(176, 520), (216, 560), (268, 576)], [(430, 570), (480, 574), (514, 548)]):
        S.limb(pts, [17, 17, 17], pig, 4.2)
        for i, (x, y) in enumerate(sample(pts, n=3)):
            if 0 < i < 6:
                S.line([(x, y + 8), (x, y + 20)], 3.4, 'flat')
                S.fill(circ(x, y + 27, 8), drops, 3.4)


def knight_cups(S):
    with S.at(600, 0, 1, 0, True):
        field(S, ((76, 924, .9), (250, 934, .8), (420, 930, 1)))
        horse(S, 'white', 'walk', 'stone', 'blue', 'dark', -28, lambda S: breast_straps(S, 'blue'))
        saddle(S, 'red')
        # cloak that flies behind
        S.fill([(352, 296, 'c'), (412, 320), (462, 400), (500, 470), (548, 500, 'c'), (520, 560), (470, 590), (420, 560), (392, 500, 'c'),
                (380, 400)], 'blue', 5)
        for p in ([(400, 340), (440, 440), (510, 510)], [(396, 380), (424, 470), (474, 560)]):
            fold(S, p, 8)
        arm(S, (392, 330), (424, 424), (330, 450), 'blue', 'white', .86)
        reins(S, (276, 444), 'blue', -28)
        hand_fist(S, 290, 448, .92, 4)
        rider_coat(S, 'sky', 'sky', 'gold')
        for y in (340, 372, 404, 436):
            S.fill(circ(336, y, 6), 'gold', 3)
        rider_leg(S, (330, 548), (262, 624), (296, 740), 'red', 'gold', False)
        goblet(S, 152, 218, 1.2)
        grip(S, (288, 330), (246, 432), (158, 272), 'blue', None, 'white', .88, rot=44)
        head(S, 340, 206, .92, .85, hair=hair_curls, hat=hat_circlet, hat_pigs=('red', 'red', 'white'), collar=collar_linen)


# ---------- swords ----------
def barding(S):
    """plates on the horse's chest, neck and croup"""
    S.fill([(172, 520, 'c'), (190, 478), (240, 470), (286, 500), (290, 600), (262, 650), (210, 650), (176, 604)], 'sky', 5)
    for p in ([(180, 540), (230, 530), (286, 540)], [(176, 580), (230, 574), (288, 584)], [(186, 618), (230, 614), (278, 622)]):
        S.line(p, 4.4)
    S.fill([(420, 486, 'c'), (462, 484), (500, 512), (516, 566), (500, 628), (440, 640, 'c'), (418, 570)], 'sky', 5)
    for p in ([(426, 530), (470, 524), (508, 540)], [(424, 572), (470, 568), (512, 580)], [(432, 610), (470, 606), (504, 614)]):
        S.line(p, 4.4)
    for pts in ([(176, 512), (190, 640)], [(500, 510), (504, 620)]):
        for x, y in sample(pts, n=4):
            S.fill(circ(x + 8, y, 4.4), 'gold', 2.6)
    with turned(S, *NECK_ROOT, -38):
        for i in range(4):
            x, y = 196 + i * 15, 336 + i * 31
            S.fill([(x - 20 + i * 2, y - 10, 'c'), (x + 16, y - 14, 'c'), (x + 28, y + 16, 'c'), (x - 10 - i * 2, y + 22, 'c')], 'sky', 4.4)
    S.comb([(284, 520), (284, 600)], 190, 16, 8, 4)


def knight_swords(S):
    field(S, ((66, 930, .9), (330, 936, .8), (500, 930, .9)))
    with S.at(-2, 14), turned(S, 450, 870, 5):
        horse(S, 'stone', 'gallop', 'red', 'red', 'dark', -38, barding)
        with turned(S, *NECK_ROOT, -38):
            S.fill([(164, 318, 'c'), (140, 344), (110, 396), (100, 424, 'c'), (126, 414), (146, 376), (172, 350, 'c')], 'sky', 4.4)
            S.fill(poly([(140, 346), (104, 322), (150, 362)]), 'gold', 3.8)
        saddle(S, 'blue')
    with S.at(10, 34):
        # cape in the wind
        S.fill([(350, 300, 'c'), (420, 310), (470, 350), (540, 340, 'c'), (520, 400), (534, 452, 'c'), (470, 460), (410, 440),
                (380, 400, 'c')], 'red', 5)
        for p in ([(400, 330), (460, 370), (526, 362)], [(396, 360), (450, 410), (516, 420)], [(392, 390), (430, 430), (490, 450)]):
            fold(S, p, 7)
        rider_coat(S, 'sky', 'red', 'gold')
        S.line([(336, 306), (334, 466)], 5, 'flat')
        for p in ([(276, 380), (300, 404), (332, 412)], [(404, 380), (380, 404), (338, 412)], [(290, 430), (310, 444), (332, 448)],
                  [(394, 430), (370, 444), (338, 448)]):
            S.line(p, 4)
        arm(S, (394, 330), (428, 424), (340, 458), 'sky', 'gold', .84)
        reins(S, (282, 456), 'red', -36, (-20, -6))
        hand_fist(S, 294, 456, .92, 6)
        rider_leg(S, (330, 552), (258, 620), (300, 734), 'sky', 'gold')
        S.fill(circ(262, 618, 25), 'gold', 4.4)
        S.fill(circ(262, 618, 10), 'red', 3.4)
        with turned(S, 176, 316, -30):
            tall_sword(S, 176, 296, 0, 226)
        grip(S, (286, 330), (232, 424), (176, 316), 'sky', swung_handle, 'gold', .88, rot=52)
        for d in (-1, 1):
            S.fill([(340 + d * 36, 296, 'c'), (340 + d * 80, 300), (340 + d * 88, 344), (340 + d * 52, 360, 'c')], 'gold', 4.6)
            S.line([(340 + d * 50, 310), (340 + d * 70, 324), (340 + d * 66, 346)], 4)
        head(S, 340, 212, .9, .6, hair=hair_none, hat=hat_helmet, hat_pigs=('red', 'gold', 'white'), mood=2, collar=collar_gold)


def swung_handle(S):
    """grip of the swung sword, at the sword's own lean"""
    with turned(S, 176, 316, -30):
        sword_handle(S, 176, 290)


# ---------- coins ----------
def knight_coins(S):
    with S.at(600, 0, 1, 0, True):
        field(S, ((60, 924, .9), (330, 936, .9), (540, 924, .8)))
        horse(S, 'wood', 'stand', 'dark', 'green', 'stone', -28, lambda S: breast_straps(S, 'green'))
        for x, y in ((186, 846), (232, 846), (416, 840), (480, 838)):
            for d in (-10, 0, 10):
                S.fill(poly(ribbon([(x + d * .6, y - 6), (x + d, y + 14), (x + d * 1.5, y + 34)], lambda t: 15 * (1 - t) ** .6 + 1)),
                       'dark', 3.2)
        saddle(S, 'gold', 'red')
        arm(S, (394, 330), (436, 420), (376, 478), 'red', 'gold', .86, puffed=True)
        rider_coat(S, 'green', 'green', 'red')
        S.fill([(322, 296, 'c'), (358, 296, 'c'), (352, 468, 'c'), (330, 468, 'c')], 'gold', 4)
        for y in (330, 366, 402, 438):
            S.limb([(318, y - 6), (340, y), (362, y - 6)], [9, 11, 9], 'red', 3.2)
        reins(S, (330, 482), 'green', -28)
        hand_fist(S, 346, 486, .92, -40)
        rider_leg(S, (336, 548), (270, 620), (286, 742), 'gold', 'green', False)
        disc(S, 160, 224, 84)
        arm(S, (288, 330), (246, 436), (206, 352), 'red', 'gold', .88, puffed=True)
        with S.at(38, 0), turned(S, 158, 330, -26):
            for x, y in ((142, 290), (157, 282), (172, 288)):
                finger(S, [(x, 322), (x, 306), (x, y)], 13, 3.4)
            S.fill([(140, 350, 'c'), (176, 350, 'c'), (182, 330), (174, 312), (144, 312), (136, 330)], 'flesh', 3.8)
        head(S, 340, 226, .9, .75, hair=hair_bob, hair_pig='wood', beard=beard_round, hat=hat_turban, hat_pigs=('gold', 'red', 'white'),
             collar=collar_linen)


DRAW = {'bastos': knight_batons, 'copas': knight_cups, 'espadas': knight_swords, 'oros': knight_coins}
