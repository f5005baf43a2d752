# SPDX-License-Identifier: GPL-3.0-or-later
"""The four aces: one great ornate emblem each.

Cups: a covered vessel like a towered shrine. Coins: a golden sun of coin with tendrils. Swords and batons: a hand out of a
cloud, the sword crowned with olive and palm, the club freshly cut and still in leaf.
"""
import math

from minors.suits import *      # the vocabulary of scenes, see drawing.py


def cloud_cuff(S, x, y, k, rot=0, flip=False, sleeve='red'):
    """cloud ruff from which a forearm comes out to the left; the wrist ends at the origin"""
    with S.at(x, y, k, rot, flip):
        for px, py, r in ((176, -70, 34), (214, -24, 40), (176, 74, 36), (216, 36, 38), (140, -84, 26), (140, 88, 26)):
            S.fill(circ(px, py, r), 'sky', 4.6)
            S.line([(px - r * .5, py + r * .3), (px - r * .1, py - r * .5), (px + r * .5, py - r * .2), (px + r * .2, py + r * .4)], 3.4,
                   'end')
        S.limb([(180, 4), (110, 2), (52, 0)], [116, 86, 62], sleeve, 5)
        for i, (a, b) in enumerate(((-40, -22), (-14, -10), (14, 8), (38, 24))):
            S.line([(164, a), (110, (a + b) / 2), (70, b)], 7 - i % 2, 'start')
        S.comb([(160, 50), (110, 40), (70, 32)], 262, 24, 14, 5)
        S.limb([(62, 0), (34, 0)], [76, 66], 'gold', 4.8)
        S.line([(50, -30), (46, 0), (50, 30)], 3.4)
        for d in (-1, 1):
            S.fill(circ(48, 18 * d, 5), 'blue', 2.6)
        for px, py, r in ((150, -50, 30), (160, 52, 30), (188, 4, 42), (146, 2, 24)):
            S.fill(circ(px + 26, py, r), 'white', 4.6)
            S.line([(px + 26 - r * .5, py + r * .3), (px + 26, py - r * .5), (px + 26 + r * .5, py), (px + 26, py + r * .4)], 3.4, 'end')


def drops(S, places, pigs=('red', 'gold', 'blue')):
    """tongues of fire that fall about the emblem, each pointing upwards"""
    for i, (x, y) in enumerate(places):
        S.fill([(x, y - 22, 'c'), (x + 9, y - 2), (x + 7, y + 10), (x, y + 14), (x - 7, y + 10), (x - 9, y - 2)], pigs[i % len(pigs)], 3.6)


def ace_cups(S):
    """covered vessel: foot, knop, bowl with arches, and a roof of pinnacles"""
    ground(S, 890)
    for x, y, k in ((88, 916, 1), (512, 914, 1), (170, 930, .7), (436, 932, .7)):
        tuft(S, x, y, k)
    with S.at(300, 526):
        S.fill([(-150, 374, 'c'), (-146, 346), (-96, 318), (-44, 286), (-30, 236, 'c'), (30, 236, 'c'), (44, 286), (96, 318), (146, 346),
                (150, 374, 'c'), (0, 396)], 'gold', 5.2)
        S.line([(-138, 352), (0, 372), (138, 352)], 4)
        for i in range(-4, 5):
            S.fill([(i * 27, 314 + 4 * (4 - abs(i)), 'c'), (i * 27 - 9, 330 + 3 * (4 - abs(i))), (i * 29, 350 + 3 * (4 - abs(i)), 'c'),
                    (i * 27 + 9, 330 + 3 * (4 - abs(i)))],
                   'red' if i % 2 else 'blue', 3.2)
        S.comb([(40, 276), (92, 318), (140, 350)], 200, 26, 16, 5)
        S.fill(rect(-24, 160, 48, 90), 'gold', 5)
        S.comb([(22, 166), (22, 246)], 180, 13, 10, 4)
        S.fill([(-62, 206), (-34, 182), (0, 176), (34, 182), (62, 206), (34, 230), (0, 236), (-34, 230)], 'red', 5)
        for d in (-1, 0, 1):
            S.fill(poly([(d * 34, 188), (d * 34 + 12, 206), (d * 34, 224), (d * 34 - 12, 206)]), 'gold', 3.6)
        bowl = [(-186, -40, 'c'), (-184, 20), (-150, 92), (-84, 144), (0, 164), (84, 144), (150, 92), (184, 20), (186, -40, 'c'), (0, -16)]
        S.fill(bowl, 'gold', 5.6)
        with S.clip(path(bowl)):
            for i in range(-3, 4):
                x = i * 52
                S.fill([(x * .3, 172, 'c'), (x * .8 - 20, 120), (x - 24, 70, 'c'), (x, 40 + 1.2 * abs(i), 'c'), (x + 24, 70, 'c'),
                        (x * .8 + 20, 120)], 'red' if i % 2 else 'gold', 4.2)
                S.line([(x * .5, 150), (x * .85, 110), (x, 66)], 4, 'both')
            S.comb([(184, 0), (160, 80), (96, 138), (20, 160)], 205, 40, 26, 6)
        S.fill([(-188, -44, 'c'), (0, -18), (188, -44, 'c'), (186, 6, 'c'), (0, 34), (-186, 6, 'c')], 'blue', 5)
        for i in range(-4, 5):
            y = -3 - 26 * (abs(i) / 4) ** 2 + 10
            if i % 2:
                S.fill(circ(i * 39, y, 11), 'red', 3.6)
            else:
                S.fill(poly([(i * 39, y - 15), (i * 39 + 15, y), (i * 39, y + 15), (i * 39 - 15, y)]), 'gold', 3.6)
        # roof: rim, outer pinnacles first, the spire last
        for d in (-1, 1):
            for x, top, w in ((146, -228, 25), (84, -296, 29)):
                pinnacle(S, d * x, -62 if x > 100 else -54, top, w, 'red' if x > 100 else 'blue')
        pinnacle(S, 0, -44, -392, 37, 'red')
        S.fill([(-194, -62, 'c'), (0, -36), (194, -62, 'c'), (192, -32, 'c'), (0, -6), (-192, -32, 'c')], 'gold', 5)
        S.comb([(-186, -40), (0, -14), (186, -40)], 270, 10, 44, 4)
    drops(S, [(96, 178), (504, 178), (152, 240), (448, 240), (76, 292), (524, 292), (206, 158), (394, 158)])
    for d in (-1, 1):
        with S.at(300, 526, 1, 0, d < 0):
            stem(S, [(150, 350), (196, 312), (214, 240), (196, 190)], 9)
            leaf(S, 204, 284, .74, -150)
            leaf(S, 212, 230, .6, -20)
            tulip(S, 196, 196, .98, -8)


def pinnacle(S, x, base, top, w, roof):
    """little tower with a pointed window, a steep roof and a ball"""
    h = base - top
    S.fill(rect(x - w, base - h * .5, 2 * w, h * .5 + 14), 'gold', 4.8)
    S.comb([(x + w - 2, base - h * .48), (x + w - 2, base)], 180, w * .5, int(h / 18), 4)
    S.fill([(x - w * .44, base - 14, 'c'), (x - w * .44, base - h * .26), (x, base - h * .4, 'c'), (x + w * .44, base - h * .26),
            (x + w * .44, base - 14, 'c')], 'dark', 4)
    S.fill([(x - w * 1.3, base - h * .48, 'c'), (x - w * .5, base - h * .66), (x, top, 'c'), (x + w * .5, base - h * .66),
            (x + w * 1.3, base - h * .48, 'c')], roof, 4.8)
    S.line([(x, base - h * .5), (x, base - h * .86)], 4, 'end')
    S.line([(x + w * .5, base - h * .5), (x + w * .24, base - h * .72)], 4, 'end')
    S.line([(x - w * .5, base - h * .5), (x - w * .24, base - h * .72)], 3, 'end')
    S.fill(circ(x, top - 4, w * .26), 'gold', 4)


def ace_coins(S):
    """the coin as a sun, flowers unfolding to the four corners; the whole card is the same upside down"""
    for c in quarters(S):
        with c:
            stem(S, [(0, -160), (20, -250), (86, -296), (150, -300), (186, -340)], 13)
            stem(S, [(120, -298), (190, -270), (214, -210)], 10)
            stem(S, [(40, -270), (30, -330), (62, -366)], 9)
            leaf(S, 60, -286, 1.0, -76)
            leaf(S, 100, -296, .9, 40, False, 'blue')
            leaf(S, 14, -224, .9, -30)
            leaf(S, 200, -258, .7, -120, False)
            tulip(S, 182, -334, 1.15, 30)
            bloom(S, 214, -204, .78, 0, 'sky')
            corn_bud(S, 62, -360, 1.05, 30)
    for c in halves(S):
        with c:
            tulip(S, 0, -306, 1.3, 0, 'blue')
    x, y = CENTRE
    for i in range(32):
        S.fill(poly(ribbon([pol(x, y, 190, i * 11.25), pol(x, y, 214, i * 11.25), pol(x, y, 238 if i % 2 == 0 else 222, i * 11.25)],
                           lambda t: 26 * (1 - t) ** .8 + .5)), 'gold' if i % 2 == 0 else 'red', 4)
    S.fill(circ(x, y, 200), 'gold', 5.6)
    S.stroke(circ(x, y, 188), 3)
    for i in range(40):
        S.fill(circ(*pol(x, y, 175, i * 9), 8), 'red' if i % 2 else 'white', 3)
    S.fill(circ(x, y, 160), 'blue', 5)
    S.stroke(circ(x, y, 150), 2.6)
    for i in range(12):
        a = i * 30
        S.fill([pol(x, y, 70, a - 15), pol(x, y, 112, a - 12), pol(x, y, 146, a) + ('c',), pol(x, y, 112, a + 12), pol(x, y, 70, a + 15)],
               'gold' if i % 2 else 'red', 4)
        S.line([pol(x, y, 80, a), pol(x, y, 126, a)], 5, 'end')
    S.fill(circ(x, y, 86), 'gold', 5)
    S.stroke(circ(x, y, 76), 2.8)
    for i in range(8):
        a = i * 45
        S.fill([pol(x, y, 20, a - 20), pol(x, y, 46, a - 21), pol(x, y, 68, a) + ('c',), pol(x, y, 46, a + 21), pol(x, y, 20, a + 20)],
               'white' if i % 2 else 'red', 3.8)
        S.line([pol(x, y, 26, a), pol(x, y, 54, a)], 4, 'end')
    S.fill(circ(x, y, 24), 'gold', 4.4)
    S.fill(circ(x, y, 9), 'blue', 3)


def olive(S, pts, k, fruit=True):
    """hanging branch with small paired leaves and fruit"""
    stem(S, pts, 8)
    ps = sample(pts, n=5)
    for i in range(2, len(ps) - 1, 2):
        (x, y), (x1, y1) = ps[i], ps[i + 1]
        a = math.degrees(math.atan2(y1 - y, x1 - x))
        for d in (-1, 1):
            with S.at(x, y, k, a + d * 46):
                S.fill([(0, 0, 'c'), (20, -9), (44, 0, 'c'), (20, 9)], 'green', 3.8)
                S.line([(6, 0), (32, 0)], 2.6, 'end')
        if fruit and i % 4 == 0:
            S.fill(circ(x, y + 14 * k, 8), 'red', 3.4)


def palm(S, pts, k):
    """feathered frond"""
    stem(S, pts, 9, 'gold')
    ps = sample(pts, n=6)
    for i in range(2, len(ps) - 1):
        (x, y), (x1, y1) = ps[i], ps[i + 1]
        a = math.degrees(math.atan2(y1 - y, x1 - x))
        length = k * (58 - 26 * i / len(ps))
        for d in (-1, 1):
            e = pol(x, y, length, a + d * 38)
            S.fill(poly(ribbon([(x, y), pol(x, y, length * .5, a + d * 48), e],
                               lambda t: 12 * math.sin(math.pi * min(1, t * .85 + .15)) + .6)), 'green', 3.2)


def ace_swords(S):
    """upright sword through an open crown, olive on one side and palm on the other, tongues of fire around"""
    drops(S, [(122, 560), (196, 560), (414, 560), (484, 570), (96, 640), (176, 650), (432, 648), (104, 230), (500, 230), (180, 160),
              (420, 160), (150, 262), (452, 262)])
    olive(S, [(262, 378), (200, 330), (140, 330), (98, 384), (92, 470)], .95)
    palm(S, [(338, 378), (400, 326), (460, 332), (500, 390), (502, 476)], .95)
    cloud_cuff(S, 354, 800, 1.08)
    broad_sword(S, 300, 726)
    crown_round(S, 300, 352)
    hand_fist(S, 304, 800, 2.0, 0, rod=lambda: sword_grip(S, 300, 726))
    for d in ((88, 900), (156, 862), (212, 914), (232, 800)):
        drops(S, [d], ('gold',))


def broad_sword(S, x, y):
    """great blade with a fuller, guard at (x, y)"""
    with S.at(x, y):
        S.fill([(-30, 0, 'c'), (-28, -280), (-24, -520, 'c'), (0, -596, 'c'), (24, -520, 'c'), (28, -280), (30, 0, 'c')], 'sky', 5.6)
        S.fill([(-9, -10, 'c'), (-8, -260), (0, -470, 'c'), (8, -260), (9, -10, 'c')], 'white', 3.8)
        S.comb([(28, -40), (26, -280), (22, -510)], 184, 14, 40, 4)


def sword_grip(S, x, y):
    """guard, bound grip and pommel of the great sword"""
    with S.at(x, y):
        S.limb([(0, 10), (0, 150)], [28, 26], 'red', 4.8)
        for yy in range(20, 150, 13):
            S.line([(-13, yy + 4), (13, yy - 4)], 3, 'flat')
        S.fill([(-114, -26, 'c'), (-130, -6), (-110, 14), (0, 4), (110, 14), (130, -6), (114, -26, 'c'), (0, -18)], 'gold', 5)
        for d in (-1, 1):
            S.fill(circ(d * 118, -6, 17), 'gold', 4.6)
            S.fill(circ(d * 118, -6, 7), 'blue', 3)
        S.fill(poly([(0, -20), (20, -4), (0, 12), (-20, -4)]), 'red', 4)
        S.fill(circ(0, 166, 25), 'gold', 4.8)
        S.fill(circ(0, 166, 11), 'blue', 3.4)


def crown_round(S, x, y):
    """open crown seen from the front, its far rim behind the blade"""
    with S.at(x, y):
        S.fill([(-100, 44, 'c'), (-124, -62, 'c'), (-84, -8, 'c'), (-66, -92, 'c'), (-30, -12, 'c'), (0, -110, 'c'), (30, -12, 'c'),
                (66, -92, 'c'), (84, -8, 'c'), (124, -62, 'c'),
                (100, 44, 'c'), (0, 66)], 'gold', 5.4)
        for px, py in ((-124, -68), (-66, -98), (0, -118), (66, -98), (124, -68)):
            S.fill(circ(px, py, 12), 'red', 4)
        for px, py in ((-78, 0), (-26, -20), (26, -20), (78, 0)):
            S.line([(px * .98, py + 8), (px * 1.02, py - 4)], 4)
        S.fill([(-104, 36, 'c'), (0, 58), (104, 36, 'c'), (98, 76, 'c'), (0, 100), (-98, 76, 'c')], 'gold', 5)
        for i in range(-3, 4):
            yy = 79 - 1.9 * i * i
            if i % 2:
                S.fill(circ(i * 27, yy, 9), 'blue', 3.4)
            else:
                S.fill(poly([(i * 27, yy - 13), (i * 27 + 12, yy), (i * 27, yy + 13), (i * 27 - 12, yy)]), 'red', 3.4)
        S.comb([(118, -50), (102, 20)], 190, 20, 7, 4.6)


def ace_batons(S):
    """a heavy club cut fresh from the tree, with sprouting leaves"""
    drops(S, [(100, 180), (168, 256), (92, 346), (500, 190), (432, 276), (508, 350), (140, 470), (462, 470), (96, 600), (190, 640),
              (110, 740), (186, 800), (430, 640), (500, 590)])
    cloud_cuff(S, 356, 790, 1.08, 0, False, 'blue')
    hand_fist(S, 306, 790, 2.1, 0, rod=lambda: club(S))
    for x, y, k, rot, flip in ((352, 330, 1.1, -40, False), (250, 300, 1.1, -140, True), (346, 520, 1.05, -36, False),
                               (250, 470, 1.05, -150, True), (262, 650, .9, -150, True),
                               (342, 640, .9, -30, False)):
        leaf(S, x, y, k, rot, flip)


def club(S):
    """shaft that swells towards the head, with stumps of lopped branches and a ring of cut wood on top"""
    for x, y, rot in ((244, 366, -58), (358, 420, 56), (254, 560, -56), (346, 560, 58), (268, 700, -60)):
        with S.at(x, y, 1, rot):
            S.fill([(-20, 26, 'c'), (-19, -24), (-20, -48, 'c'), (20, -48, 'c'), (19, -24), (22, 26, 'c')], 'wood', 5)
            S.fill(circ(0, -48, 20, 9), 'gold', 4)
            S.stroke(circ(0, -48, 10, 4), 2.6)
    S.fill([(226, 176, 'c'), (232, 300), (250, 420), (256, 560), (272, 700), (276, 860), (284, 922, 'c'), (322, 922, 'c'), (330, 860),
            (330, 700), (346, 560), (352, 420), (368, 300), (378, 176, 'c')], 'wood', 5.6)
    for pts in ([(262, 220), (270, 340), (284, 470)], [(300, 210), (302, 330), (306, 420)], [(334, 240), (330, 350), (326, 480)],
                [(280, 540), (288, 640), (294, 700)], [(312, 470), (312, 580), (308, 660)],
                [(296, 860), (300, 890), (300, 914)]):
        S.line(pts, 6)
    for x, y in ((316, 460), (284, 500), (310, 270), (304, 700)):
        S.stroke(circ(x, y, 9, 13), 3)
        S.dot(x, y, 3.4)
    S.comb([(374, 190), (364, 310), (350, 440), (342, 570), (328, 720)], 190, 24, 44, 5)
    S.fill(circ(302, 176, 76, 30), 'gold', 5.2)
    S.stroke(circ(302, 176, 56, 21), 3)
    S.stroke(circ(302, 176, 34, 12), 3)
    S.stroke(circ(302, 176, 14, 5), 3)


DRAW = {'bastos': ace_batons, 'copas': ace_cups, 'espadas': ace_swords, 'oros': ace_coins}
