# SPDX-License-Identifier: GPL-3.0-or-later
"""The four queens, enthroned.

Batons: loose long hair, a sun-backed seat, the great staff leaning on her shoulder, a flower in her hand. Cups: under a
canopy, a covered cup in one hand and a wavy sceptre in the other. Swords: in a wimple under a pointed arch, sword upright,
the free hand raised. Coins: before a rose hedge, turned to the coin she holds up.
"""
from minors.bodies import *      # the vocabulary of scenes, see drawing.py
from minors.kings import meadow, sword_handle, tall_sword


def bodice(S, pig, panel, lace='gold', w=70, waist=46):
    """fitted bodice with a laced front and a square neck"""
    torso(S, pig, w, waist, 350, 560)
    S.fill([(262, 352, 'c'), (338, 352, 'c'), (322, 460), (312, 560, 'c'), (288, 560, 'c'), (278, 460)], panel, 4.2)
    for y in range(396, 546, 30):
        h = 26 - (y - 396) * .1
        S.line([(300 - h, y), (300 + h, y + 18)], 4.4, 'flat')
        S.line([(300 + h, y), (300 - h, y + 18)], 4.4, 'flat')
    for y in range(396, 570, 30):
        h = 27 - (y - 396) * .1
        for d in (-1, 1):
            S.fill(circ(300 + d * h, y, 5), lace, 2.8)


def girdle(S, pig='gold', drop=True):
    """narrow belt with a hanging end"""
    S.limb([(246, 552), (300, 566), (354, 552)], [17, 17, 17], pig, 4.2)
    if drop:
        S.limb([(300, 570), (302, 640), (298, 720)], [14, 14, 16], pig, 4)
        for y in range(592, 720, 24):
            S.fill(circ(300, y, 4.4), 'red', 2.4)
        S.fill([(288, 716, 'c'), (284, 744), (298, 756, 'c'), (312, 744), (308, 716, 'c')], pig, 4)
    S.fill(circ(300, 564, 14), pig, 4.2)
    S.fill(circ(300, 564, 6), 'blue', 2.8)


# ---------- batons ----------
def leaning_staff(S):
    """thick staff from the lap over the shoulder, lopped and sprouting"""
    a, b = (232, 700), (104, 196)
    S.limb([a, between(a, b), b], [26, 34, 48], 'wood', 5)
    for t in (.14, .3, .62, .76, .9):
        c = between(a, b, t)
        S.line([(c[0] - 5, c[1] - 18), (c[0] + 2, c[1] + 14)], 4)
    shade(S, between(a, b, .1), between(a, b, .96), 38, 26, 14)
    for t, rot in ((.58, -10), (.84, -20)):
        c = between(a, b, t)
        with S.at(c[0] + 14, c[1], 1, rot + 70):
            S.fill([(-11, 12, 'c'), (-11, -24, 'c'), (11, -24, 'c'), (12, 12, 'c')], 'wood', 4.4)
            S.fill(circ(0, -24, 11, 5), 'gold', 3.4)
    for t, rot, f in ((.7, 200, False), (.92, 190, False), (.95, -30, False)):
        c = between(a, b, t)
        leaf(S, c[0] + (16 if rot < 0 else -16), c[1], .72, rot, f)
    S.fill(circ(*b, 26, 12), 'gold', 4.4)
    S.stroke(circ(*b, 14, 6), 2.8)


def queen_batons(S):
    meadow(S)
    throne_sun(S)
    mantle(S, 'gold', None, -14)
    feet(S, 'green', 900, 20)
    gown(S, 'red', 'gold', 168)
    bodice(S, 'red', 'white')
    girdle(S)
    # flower in the far hand
    arm(S, (368, 398), (440, 500), (396, 566), 'red', 'white')
    stem(S, [(366, 640), (358, 590), (368, 520), (388, 470)], 8)
    leaf(S, 360, 560, .56, -170)
    bloom(S, 394, 456, .9, 10, 'white')
    hand_fist(S, 366, 586, 1, -40, True)
    head(S, 300, 262, 1, .5, sex='f', hair=hair_long, hat=hat_crown, collar=collar_linen)
    leaning_staff(S)
    grip(S, (232, 398), (244, 540), (177, 530), 'red', lambda S: S.limb([(190, 570), (166, 476)], [31, 33], 'wood', 4.8), 'white', rot=-10)


# ---------- cups ----------
def ciborium(S, x, y, k=1):
    """covered cup with a knob and a cross"""
    goblet(S, x, y, k)
    with S.at(x, y - 76 * k, k):
        S.fill([(-52, 4, 'c'), (-46, -26), (-18, -46), (0, -50), (18, -46), (46, -26), (52, 4, 'c'), (0, 18)], 'gold', 4.8)
        S.line([(-44, -4), (0, 6), (44, -4)], 3.4)
        for i in (-1, 0, 1):
            S.fill(circ(i * 24, -18 - 7 * (1 - abs(i)), 6), 'red' if i else 'blue', 3)
        S.fill(circ(0, -56, 9), 'red', 3.8)
        S.fill('M-4 -96h8v10h11v8h-11v15h-8v-15h-11v-8h11Z', 'gold', 3.4)


def wavy_sceptre(S):
    """sceptre whose blade winds like a flame"""
    pts = [(436, 700), (436, 560), (438, 470), (428, 420), (446, 370), (430, 320), (442, 286)]
    S.limb(pts[:3], [15, 15, 15], 'gold', 4.2)
    S.fill(poly(ribbon(pts[2:], lambda t: 26 * (1 - t ** 3) + 1)), 'sky', 4.6)
    S.line(pts[2:-1], 3.4, 'end')
    S.fill(circ(438, 474, 14), 'gold', 4.2)
    S.fill(circ(436, 704, 11), 'red', 4)


def queen_cups(S):
    meadow(S)
    throne_canopy(S)
    throne_base(S, 'gold', 110, 380)
    gown(S, 'sky', 'gold', 178, 'white')
    mantle(S, 'blue', 'gold', 4)
    S.fill([(262, 560, 'c'), (246, 660), (214, 770), (190, 872, 'c'), (300, 890), (410, 872, 'c'), (386, 770), (354, 660), (338, 560, 'c')],
           'sky', 4.8)
    for p, w in (([(276, 580), (258, 700), (232, 860)], 8), ([(290, 590), (284, 720), (272, 872)], 8),
                 ([(310, 590), (316, 720), (328, 872)], 8), ([(324, 580), (342, 700), (368, 860)], 8)):
        fold(S, p, w)
    S.comb([(356, 680), (378, 770), (400, 860)], 190, 18, 12, 4.4)
    S.fill([(196, 846, 'c'), (300, 866), (404, 846, 'c'), (412, 872, 'c'), (300, 892), (188, 872, 'c')], 'gold', 4.4)
    for i in range(-4, 5):
        S.fill(circ(300 + i * 23, 877 - 1.2 * i * i, 4.6), 'red', 2.6)
    torso(S, 'sky', 70, 48, 350, 560)
    S.limb([(252, 372), (300, 480), (346, 556)], [15, 15, 15], 'gold', 4)
    S.limb([(348, 372), (300, 480), (254, 556)], [15, 15, 15], 'gold', 4)
    S.fill(circ(300, 476, 17), 'red', 4.2)
    girdle(S, 'gold', False)
    grip(S, (370, 400), (376, 556), (436, 588), 'blue', wavy_sceptre, 'white', rot=8)
    ciborium(S, 168, 480, 1.16)
    grip(S, (230, 400), (250, 560), (170, 528), 'blue', None, 'white', rot=14)
    head(S, 300, 278, .96, .5, sex='f', hair=hair_braids, hat=hat_veil_crown, hat_pigs=('white', 'red', 'white'), collar=collar_gold)


# ---------- swords ----------
def queen_swords(S):
    meadow(S)
    throne_arch(S)
    mantle(S, 'dark', 'white', -24)
    gown(S, 'red', 'white', 150)
    torso(S, 'red', 74, 50, 350, 560)
    S.fill([(278, 352, 'c'), (322, 352, 'c'), (318, 460), (322, 560, 'c'), (278, 560, 'c'), (282, 460)], 'gold', 4.2)
    for y in range(390, 550, 32):
        S.fill(poly([(300, y - 10), (310, y), (300, y + 10), (290, y)]), 'red', 3)
    girdle(S)
    # the free hand raised, palm outwards
    arm(S, (372, 400), (448, 512), (470, 430), 'dark', 'white')
    hand_open(S, 472, 416, .94, 6)
    tall_sword(S, 122, 566, -1, 400)
    grip(S, (228, 400), (214, 556), (122, 594), 'dark', lambda S: sword_handle(S, 122, 566), 'white', rot=0)
    head(S, 300, 266, 1, .6, sex='f', hair=hair_wimple, hat=hat_crown, age=0, mood=2)


# ---------- coins ----------
def queen_coins(S):
    meadow(S)
    throne_hedge(S)
    lap_side(S, 'green', 'gold')
    S.fill([(376, 360, 'c'), (424, 400), (440, 500), (446, 640), (470, 780), (476, 888, 'c'), (420, 880, 'c'), (404, 700), (384, 560, 'c')],
           'red', 5)
    for p in ([(400, 420), (416, 560), (424, 700), (446, 868)], [(420, 520), (430, 660), (456, 860)]):
        fold(S, p, 8)
    torso(S, 'green', 72, 56, 350, 564)
    S.fill([(240, 352, 'c'), (276, 420), (300, 470, 'c'), (324, 420), (360, 352, 'c'), (330, 346), (270, 346)], 'white', 4.4)
    for x, y in ((268, 372), (288, 390), (312, 390), (332, 372), (300, 420), (286, 418), (316, 416), (300, 444)):
        S.line([(x, y - 5), (x, y + 8)], 5, 'end')
    for p in ([(250, 440), (258, 500), (262, 552)], [(350, 440), (342, 500), (338, 552)]):
        fold(S, p, 7)
    girdle(S, 'gold', False)
    # sceptre with a globe in the far arm
    S.limb([(352, 700), (410, 470), (436, 372)], [13, 13, 13], 'gold', 4.2)
    S.fill(circ(442, 350, 24), 'blue', 4.4)
    S.limb([(420, 356), (442, 350), (464, 344)], [8, 8, 8], 'gold', 3)
    S.fill(poly([pol(448, 318, 15 if i % 2 == 0 else 6, i * 45 - 90) for i in range(8)]), 'gold', 3.4)
    arm(S, (370, 398), (436, 516), (402, 560), 'red', 'white')
    hand_fist(S, 377, 584, 1, -52, True, rod=lambda: S.limb([(370, 634), (388, 556)], [13, 13], 'gold', 4.2))
    # the coin, raised before her eyes
    arm(S, (230, 396), (150, 500), (140, 420), 'red', 'white')
    S.fill([(118, 408, 'c'), (160, 408, 'c'), (166, 380), (156, 350), (122, 350), (112, 380)], 'flesh', 3.8)
    disc(S, 138, 300, 74)
    for x, dy in ((116, 0), (131, -6), (147, -6)):
        finger(S, [(x, 392), (x - 1, 372), (x - 1, 352 + dy)], 14, 3.4)
    finger(S, [(158, 394), (172, 376), (176, 352)], 14, 3.4)
    head(S, 300, 262, 1, .8, sex='f', hair=hair_waves, hair_pig='hair', hat=hat_tall_crown, hat_pigs=('green', 'red', 'white'))


DRAW = {'bastos': queen_batons, 'copas': queen_cups, 'espadas': queen_swords, 'oros': queen_coins}
