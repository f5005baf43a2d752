# SPDX-License-Identifier: GPL-3.0-or-later
"""The Emperor: bearded, turned to the left before his throne, legs crossed, the sceptre held out, the eagle shield at the seat."""
from regal import *      # the vocabulary of scenes, see drawing.py

TITLE, NUM = "L'EMPEREVR", 'IIII'
FIELD, PATTERN = 'emerald', 'damask'


def throne(S):
    """seat seen from the side, its scrolled back at the right"""
    S.limb([(486, 900), (480, 720), (488, 540), (516, 400), (500, 330)], [40, 38, 36, 32, 26], 'gold', 5)
    for y, x in ((800, 483), (700, 481), (600, 485), (500, 496)):
        S.fill(poly([(x, y-20), (x+10, y), (x, y+20), (x-10, y)]), 'red', 3)
    S.fill(circ(494, 316, 24), 'gold', 4.6)
    S.line([(508, 318), (496, 330), (484, 318), (494, 306), (500, 316)], 4)
    S.fill(rect(318, 648, 176, 240), 'gold', 5)
    S.fill(rect(334, 668, 144, 200), 'red', 4.4)
    S.fill([(290, 640, 'c'), (300, 616), (400, 608), (496, 616), (504, 640), (496, 664, 'c'), (300, 664, 'c')], 'red', 5)
    S.fill(rect(292, 656, 214, 20, 4), 'gold', 4.4)
    S.fill(rect(296, 878, 244, 30, 4), 'gold', 5)
    S.comb([(304, 884), (420, 884), (532, 884)], 90, 10, 26, 4)


def leg(S, hip, knee, ankle, toe):
    """hosed leg with garter and shoe; toe is the shoe's turn in degrees"""
    limb(S, [hip, between(hip, knee, .5), knee], [74, 72, 56], 'sky', 5, 'e')
    c = between(knee, ankle, .42)
    limb(S, [knee, c, ankle], [54, 52, 30], 'sky', 5, 's', 12)
    g = between(knee, ankle, .16)
    dx, dy = unit(knee, ankle)
    S.limb([(g[0]-dy*28, g[1]+dx*28), (g[0]+dx*5, g[1]+dy*5), (g[0]+dy*28, g[1]-dx*28)], [13, 13, 13], 'gold', 4)
    with S.at(*ankle, 1, toe):
        shoe(S, 0, 26, False, 1.02, 'red')


def coat(S):
    """short red coat over both thighs, chain with the medallion, belt"""
    S.fill([(316, 346, 'c'), (262, 346), (238, 372), (240, 440), (258, 520), (240, 590), (198, 664, 'c'), (246, 686), (300, 676),
            (356, 690), (416, 664, 'c'),
            (394, 590), (378, 520), (396, 440), (402, 372), (372, 346)], 'red', 5.2)
    for p in ([(276, 560), (256, 620), (226, 664)], [(300, 566), (286, 620), (262, 674)], [(322, 566), (322, 620), (312, 672)],
               [(342, 562), (356, 620), (352, 680)],
              [(362, 556), (384, 610), (392, 664)]):
        fold(S, p, 7)
    S.comb([(398, 420), (380, 500), (374, 530)], 188, 24, 10, 4.8)
    S.comb([(384, 570), (400, 616), (412, 656)], 200, 22, 7, 4.4)
    S.line([(308, 400), (310, 460), (312, 528)], 4, 'flat')
    band(S, [(200, 660), (246, 680), (300, 670), (356, 684), (414, 660)], 20, n=11, gems=('blue', 'pearl'))
    band(S, [(256, 532), (316, 548), (380, 532)], 25, n=6, gems=('blue', 'pearl'))
    clasp(S, 312, 544, 19, 'blue')
    for i, (x, y) in enumerate(sample([(250, 360), (270, 420), (306, 456), (346, 420), (384, 360)], n=5)):
        S.fill(circ(x, y, 8.5), 'gold', 3.4)
        S.dot(x, y, 2.6)
    clasp(S, 306, 478, 26, 'green')


def draw(S):
    ground(S, 896)
    tuft(S, 92, 922, .95)
    tuft(S, 300, 936, .7)
    throne(S)
    S.fill([(360, 352, 'c'), (424, 372), (466, 470), (480, 560), (500, 640, 'c'), (430, 656), (380, 620, 'c')], 'blue', 5.2)
    fold(S, [(420, 420), (446, 520), (462, 636)], 8)
    leg(S, (340, 620), (268, 690), (186, 866), 4)
    leg(S, (356, 630), (226, 692), (302, 842), -24)
    shield(S, 424, 786, .92, -4, 'blue')
    coat(S)
    arm(S, (394, 392), (446, 500), (398, 552), 'blue', 1, 'red', bulge=-10)
    fist(S, (446, 500), (398, 552), lambda: None, 1.02)
    arm(S, (250, 392), (196, 510), (148, 492), 'blue', 1, 'red', bulge=8)
    fist(S, (196, 510), (148, 492), lambda: sceptre(S, 230, 110, 29), 1.12, -21)
    # collar of ermine
    S.fill([(246, 352, 'c'), (262, 330), (312, 350), (366, 330), (396, 352, 'c'), (384, 392), (348, 384), (314, 404), (280, 386),
            (254, 392)], 'white', 4.6)
    for x, y in ((264, 368), (288, 366), (314, 384), (344, 366), (372, 368), (330, 372), (300, 376)):
        S.line([(x, y-8), (x-1, y+8)], 5.4, 'start')
    # head
    hair_back(S, 314, 256, 1.0, 'white', 56, 62)
    S.limb([(314, 290), (316, 344)], [50, 56], 'flesh', 4)
    face(S, 308, 254, 1.06, .85, age=1)
    beard(S, 308, 254, 1.06, .85, 112, 'white')
    with S.at(308, 254):
        a, b = [(34, -44), (40, -18), (42, 10), (50, 36)], [(52, -40), (62, -12), (62, 18), (66, 44)]
        S.fill(a+[(58, 52)]+b[::-1], 'white', 4)
        locks(S, (a, b), 3, 2.6)
    S.fill([(260, 214, 'c'), (256, 176), (274, 146), (310, 136), (346, 146), (364, 176), (360, 214, 'c'), (310, 224)], 'red', 5)
    S.comb([(348, 152), (362, 180), (358, 206)], 190, 20, 7, 4.4)
    crown(S, 310, 206, 1.22, 5)
