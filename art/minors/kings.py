# SPDX-License-Identifier: GPL-3.0-or-later
"""The four kings, enthroned.

Batons: a youngish man on a wooden chair, knees apart, the staff planted before him. Cups: white-bearded, sideways on a shell
throne, the cup on his knee. Swords: in armour with moon faces on the shoulders, sword upright, orb. Coins: out of doors on
a folding chair, legs crossed at ease, the coin on his thigh.
"""
from minors.bodies import *      # the vocabulary of scenes, see drawing.py


def tall_sword(S, x, y, rot=0, length=372):
    """the sword of the court figures: guard about the origin, point up"""
    with S.at(x, y, 1, rot):
        n = length
        S.fill([(-15, -30, 'c'), (-14, -n + 42), (0, -n, 'c'), (14, -n + 42), (15, -30, 'c')], 'sky', 5)
        S.line([(0, -36), (0, -n * .54), (0, -n + 27)], 5, 'end')
        S.comb([(13, -60), (12, -n + 52)], 180, 9, 22, 3)
        S.fill([(-66, -36, 'c'), (-74, -24), (-60, -14), (0, -22), (60, -14), (74, -24), (66, -36, 'c'), (0, -34)], 'gold', 4.6)
        for d in (-1, 1):
            S.fill(circ(d * 68, -24, 9), 'gold', 4)


def sword_handle(S, x, y, pig='red'):
    """grip and pommel below the guard of tall_sword"""
    S.limb([(x, y - 20), (x, y + 74)], [16, 16], pig, 4.2)
    S.fill(circ(x, y + 82, 13), 'gold', 4.4)


def meadow(S, y=896):
    ground(S, y)
    for x, k in ((66, .8), (534, .8)):
        tuft(S, x, y + 26, k)


# ---------- swords ----------
def cuirass(S):
    """gilt breastplate with tassets"""
    S.fill([(300, 346, 'c'), (250, 342), (216, 362), (220, 440), (236, 520), (222, 572, 'c'), (300, 590), (378, 572, 'c'), (364, 520),
            (380, 440), (384, 362), (350, 342)], 'gold', 5.2)
    S.line([(300, 350), (300, 580)], 5, 'flat')
    for c in mirrored(S):
        with c:
            S.stroke([(-70, 380), (-56, 420), (-10, 436)], 3.4)
            S.stroke([(-64, 470), (-44, 500), (-8, 508)], 3.4)
            for i in range(5):
                x, y = i * 15, i * 4
                S.fill([(-70 + x, 556 + y, 'c'), (-60 + x, 556 + y, 'c'), (-58 + x, 580 + y), (-66 + x, 592 + y), (-73 + x, 578 + y)],
                       'red' if i % 2 else 'gold', 3.4)
    S.comb([(378, 380), (374, 450), (360, 530)], 186, 26, 13, 4.6)


def moon_shoulders(S):
    """shoulder pieces shaped as moons with faces"""
    for c in mirrored(S):
        with c:
            S.fill([(-96, 340, 'c'), (-60, 344), (-44, 372), (-62, 402), (-98, 410, 'c'), (-78, 386), (-78, 362)], 'gold', 4.6)
            S.line([(-66, 366), (-60, 372), (-64, 380)], 3.4)
            S.line([(-74, 360), (-66, 357)], 3.4)
            S.line([(-72, 390), (-64, 388)], 3.4)
            S.dot(-70, 367, 3)


def orb_in_hand(S):
    """orb with a cross, held before the right knee"""
    S.limb([(424, 530), (418, 562)], [58, 52], 'gold', 4.4)
    S.fill(circ(386, 592, 32), 'sky', 4.6)
    S.limb([(356, 592), (386, 598), (416, 592)], [10, 10, 10], 'gold', 3)
    S.limb([(386, 562), (386, 590)], [9, 9], 'gold', 3)
    S.fill('M382 520h8v14h13v8h-13v20h-8v-20h-13v-8h13Z', 'gold', 3.4)
    for yy, xx in ((602, 384), (593, 380), (584, 382)):
        finger(S, [(424, yy - 8), (404, yy), (xx + 10, yy + 6)], 13, 3.4)
    S.fill([(402, 562, 'c'), (434, 562, 'c'), (436, 586), (426, 604), (410, 604), (404, 590)], 'flesh', 3.8)


def king_swords(S):
    meadow(S)
    throne_posts(S)
    feet(S, 'red')
    lap_front(S, 'blue')
    for c in mirrored(S):
        with c:
            S.fill([(-64, 342, 'c'), (-112, 372), (-134, 470), (-150, 580), (-170, 700, 'c'), (-104, 660), (-64, 590, 'c')], 'red', 5)
            fold(S, [(-92, 440), (-110, 540), (-140, 640)], 8)
            S.comb([(-152, 660), (-126, 655), (-104, 640)], 270, 30, 7, 5)
    cuirass(S)
    S.limb([(226, 540), (300, 556), (374, 540)], [20, 20, 20], 'red', 4.4)
    S.fill(circ(300, 556, 15), 'gold', 4.4)
    S.fill(circ(300, 556, 6), 'blue', 3)
    arm(S, (378, 392), (432, 470), (424, 548), 'blue', None)
    orb_in_hand(S)
    tall_sword(S, 122, 566, 2)
    grip(S, (224, 388), (208, 556), (123, 594), 'blue', lambda S: sword_handle(S, 122, 566), rot=0)
    moon_shoulders(S)
    head(S, 300, 262, 1, .35, hair=hair_waves, beard=beard_full, hat=hat_crown, collar=collar_linen, age=1)


# ---------- batons ----------
def planted_staff(S, x, head_y, foot_y=896):
    """tall staff with a leafy head, standing on the ground"""
    S.limb([(x, foot_y), (x, head_y)], [22, 26], 'green', 4.8)
    for y in (head_y + 80, head_y + 200, head_y + 330, head_y + 470):
        S.line([(x - 6, y - 14), (x - 4, y + 16)], 4)
        S.stroke(circ(x + 4, y + 34, 4, 7), 2.8)
    S.comb([(x + 11, head_y + 30), (x + 10, foot_y - 20)], 180, 10, 40, 3.6)
    S.fill([(x - 13, head_y + 14, 'c'), (x - 26, head_y - 20), (x - 22, head_y - 62), (x, head_y - 96, 'c'), (x + 22, head_y - 62),
            (x + 26, head_y - 20), (x + 13, head_y + 14, 'c')], 'gold', 4.6)
    S.line([(x, head_y), (x, head_y - 74)], 4.4, 'end')
    S.line([(x - 10, head_y - 8), (x - 12, head_y - 52)], 3.4, 'end')
    S.line([(x + 10, head_y - 8), (x + 12, head_y - 52)], 3.4, 'end')
    S.fill(rect(x - 19, head_y + 6, 38, 16, 6), 'red', 4)


def king_batons(S):
    meadow(S)
    throne_ladder(S)
    # legs apart under a short robe
    hose_leg(S, (262, 640), (214, 700), (212, 854), 'red', 1.06, -1, 'blue')
    hose_leg(S, (338, 640), (388, 700), (392, 854), 'red', 1.06, 1, 'blue')
    for c in mirrored(S):
        with c:
            S.fill(rect(-116, 782, 58, 20, 6), 'gold', 4)
    S.fill([(238, 552, 'c'), (180, 620), (150, 690), (158, 742, 'c'), (230, 748), (286, 700, 'c'), (300, 660), (314, 700, 'c'), (370, 748),
            (442, 742, 'c'), (450, 690), (420, 620), (362, 552, 'c')], 'green', 5.2)
    for c in mirrored(S):
        with c:
            fold(S, [(-30, 590), (-76, 640), (-104, 700), (-104, 736)], 9)
            fold(S, [(-20, 600), (-46, 660), (-54, 716)], 8)
            fold(S, [(-50, 586), (-110, 640), (-136, 700)], 8)
            S.limb([(-143, 736), (-108, 746), (-70, 746), (-34, 722), (-14, 696)], [22, 22, 22, 22, 20], 'gold', 4.4)
    S.comb([(444, 690), (430, 730), (400, 738)], 200, 20, 8, 4.4)
    torso(S, 'green', 80, 60)
    S.fill([(280, 346, 'c'), (320, 346, 'c'), (316, 470), (322, 566, 'c'), (300, 574), (278, 566, 'c'), (284, 470)], 'red', 4.4)
    for y in (400, 436, 472, 508):
        S.limb([(276, y - 6), (300, y), (324, y - 6)], [12, 12, 12], 'gold', 3.4)
    belt(S, 'gold', 562, 68, 'red')
    grip(S, (374, 392), (446, 494), (404, 592), 'red', None, rot=62, puffed=True)
    planted_staff(S, 118, 262)
    grip(S, (226, 392), (196, 520), (118, 520), 'red', lambda S: S.limb([(118, 470), (118, 570)], [25, 25], 'green', 4.8), rot=0,
         puffed=True)
    head(S, 300, 262, 1, .6, True, hair=hair_bob, hair_pig='wood', beard=beard_goatee, hat=hat_brim_crown,
         hat_pigs=('blue', 'red', 'white'), collar=collar_ruff)


# ---------- cups ----------
def king_cups(S):
    meadow(S)
    throne_shell(S)
    feet(S, 'gold', spread=44)
    S.fill([(240, 350, 'c'), (196, 380), (180, 480), (200, 600), (400, 600), (440, 700), (452, 884, 'c'), (400, 880), (420, 480),
            (404, 380), (360, 350, 'c')], 'blue', 5)
    lap_side(S, 'red')
    torso(S, 'red', 82, 66)
    for p in ([(262, 400), (268, 480), (256, 556)], [(340, 400), (334, 480), (346, 556)]):
        fold(S, p, 8)
    belt(S, 'gold', 566, 72, 'red')
    # mantle thrown over the far knee
    S.fill([(374, 560, 'c'), (330, 596), (280, 622), (250, 690), (300, 700), (352, 720), (392, 790), (420, 884, 'c'), (452, 880, 'c'),
            (450, 740), (432, 620)], 'blue', 5)
    for p in ([(380, 590), (330, 630), (284, 680)], [(396, 600), (380, 660), (400, 760), (430, 870)], [(410, 600), (424, 700), (440, 860)]):
        fold(S, p, 8)
    S.limb([(252, 692), (300, 700), (352, 722), (392, 792), (420, 884)], [16, 16, 16, 16, 16], 'white', 4)
    arm(S, (378, 396), (438, 492), (372, 570), 'blue', 'white')
    hand_pinch(S, 318, 588, .92, -12)
    # the cup stands on the knee, held by the stem
    goblet(S, 178, 536, 1.36)
    grip(S, (226, 396), (262, 540), (180, 592), 'blue', None, 'white', rot=-10)
    head(S, 304, 262, 1, .8, hair=hair_waves, hair_pig='white', beard=beard_long, hat=hat_tall_crown, hat_pigs=('red', 'blue', 'white'),
         collar=collar_gold, age=1)


# ---------- coins ----------
def king_coins(S):
    ground(S, 884, [(-10, 800), (90, 770), (200, 806), (330, 780), (450, 800), (610, 764)])
    for x, y, k in ((70, 850, .9), (520, 840, .9), (86, 922, .8), (470, 930, .8)):
        tuft(S, x, y, k)
    chair_folding(S)
    # far leg planted, near leg laid across it
    hose_leg(S, (250, 620), (196, 690), (204, 866), 'red', 1.08, -1, 'blue')
    hose_leg(S, (340, 634), (400, 716), (262, 754), 'red', 1.08, -1, 'blue')
    S.fill([(232, 548, 'c'), (176, 600), (150, 660), (170, 716), (230, 706), (300, 690), (352, 724), (412, 764), (446, 718), (430, 640),
            (368, 548, 'c')], 'gold', 5.2)
    for p, w in (([(270, 590), (220, 640), (190, 706)], 9), ([(300, 600), (280, 640), (262, 696)], 8),
                 ([(330, 596), (350, 650), (380, 730)], 9), ([(352, 590), (390, 640), (424, 710)], 8)):
        fold(S, p, w)
    S.limb([(166, 712), (230, 704), (300, 688), (352, 722), (410, 760)], [22, 22, 22, 22, 22], 'blue', 4.4)
    S.comb([(442, 690), (434, 730), (414, 756)], 210, 22, 8, 4.4)
    torso(S, 'gold', 84, 66)
    for c in mirrored(S):
        with c:
            S.fill([(-14, 350, 'c'), (-70, 350, 'c'), (-66, 420), (-40, 500), (-22, 572, 'c'), (-6, 572, 'c'), (-10, 460)], 'blue', 4.6)
            fold(S, [(-44, 380), (-36, 460), (-18, 550)], 6)
    belt(S, 'red', 562, 72)
    # one fist in the side, the other steadies the coin on the thigh
    arm(S, (222, 396), (142, 470), (206, 556), 'blue', 'red')
    S.fill([(192, 548, 'c'), (222, 540), (244, 552), (240, 578), (212, 588), (196, 576, 'c')], 'flesh', 3.8)
    for y in (556, 566, 576):
        S.line([(214, y), (238, y - 2)], 2.6)
    arm(S, (376, 396), (468, 452), (440, 512), 'blue', 'red')
    S.fill([(412, 520, 'c'), (452, 512, 'c'), (470, 536), (462, 570), (420, 572), (404, 544)], 'flesh', 3.8)
    disc(S, 424, 618, 78)
    for x in (404, 420, 436, 451):
        finger(S, [(x + 2, 534), (x, 548), (x - 2, 562)], 14, 3.4)
    head(S, 300, 258, 1, .6, True, hair=hair_bob, hair_pig='stone', beard=beard_round, beard_pig='stone', hat=hat_brim_crown,
         hat_pigs=('red', 'blue', 'white'), collar=collar_ermine, age=1)


DRAW = {'bastos': king_batons, 'copas': king_cups, 'espadas': king_swords, 'oros': king_coins}
