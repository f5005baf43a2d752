# SPDX-License-Identifier: GPL-3.0-or-later
"""The Pope: triple tiara and staff with the triple cross, blessing between two columns; two tonsured acolytes kneel before him."""
from regal import *      # the vocabulary of scenes, see drawing.py

TITLE, NUM = 'LE PAPE', 'V'
FIELD, PATTERN = 'plum', 'damask'


def triple_cross(S):
    """staff around its grip, three bars growing downwards"""
    S.limb([(0, -382), (0, 200)], [14, 15], 'gold', 4.4)
    for y, w in ((-356, 19), (-320, 28), (-280, 38)):
        S.fill([(-w, y-9, 'c'), (-w-8, y), (-w, y+9, 'c'), (0, y+6), (w, y+9, 'c'), (w+8, y), (w, y-9, 'c'), (0, y-6)], 'gold', 4)
    S.fill(circ(0, -386, 10), 'gold', 4)
    S.fill(circ(0, -246, 13), 'red', 3.6)


def acolyte(S, x, y, cope, hood, raised):
    """kneeling cleric in a cope, facing right, cut by the lower edge of the picture"""
    with S.at(x, y):
        S.fill([(-136, 250, 'c'), (-130, 160), (-106, 96), (-50, 68), (30, 66), (86, 96), (108, 160), (112, 250, 'c')], cope, 5.4)
        fold(S, [(-70, 110), (-86, 170), (-90, 240)], 9)
        fold(S, [(-30, 120), (-36, 180), (-34, 240)], 8)
        fold(S, [(14, 126), (20, 180), (30, 240)], 8)
        S.comb([(88, 106), (106, 160), (110, 236)], 188, 24, 10, 5)
        band(S, [(-96, 92), (-40, 128), (30, 126), (86, 96)], 25, n=8, gems=('red' if cope != 'red' else 'blue', 'pearl'))
        S.fill([(-54, 58, 'c'), (-64, 84), (-10, 112), (50, 86), (44, 58, 'c'), (0, 70)], hood, 4.6)
        fold(S, [(-44, 74), (-20, 92), (4, 94)], 6)
        if raised:
            limb(S, [(66, 150), (96, 130), (112, 84)], [50, 46, 34], cope, 4.6, 's', 6)
            S.limb([(108, 98), (114, 78)], [44, 42], 'gold', 4)
            hand_open(S, 116, 80, .78, 14, True)
        S.limb([(-4, 30), (-4, 72)], [48, 56], 'flesh', 4)
        S.fill([(-54, -20), (-60, 10), (-56, 36), (-40, 50), (-16, 48), (20, -10), (46, -24), (36, -52), (0, -64), (-38, -52)], 'hair', 4.6)
        face(S, 4, 4, .92, .75, True)
        S.fill([(-48, -16), (-44, -50), (-20, -74), (6, -78), (32, -70), (48, -46), (48, -16), (0, -24)], 'flesh', 4.4)
        S.line([(-20, -58), (4, -63), (26, -56)], 2.6)
        S.comb([(44, -52), (48, -36), (46, -24)], 200, 13, 5, 3)
        curls(S, [(-54, 36), (-59, 18), (-58, -1), (-50, -18), (-36, -29), (-20, -34), (-3, -36), (14, -35), (30, -31),
              (45, -22)], 11, 'hair', 3.4)
        S.fill([(-36, 2, 'c'), (-46, -4), (-46, 14), (-36, 22, 'c')], 'flesh', 3.4)


def throne(S):
    """panelled back between the columns, with its pointed arch"""
    S.fill([(150, 900, 'c'), (150, 330, 'c'), (196, 236), (300, 176, 'c'), (404, 236), (450, 330, 'c'), (450, 900, 'c')], 'gold', 5)
    S.fill([(172, 900, 'c'), (172, 338, 'c'), (212, 258), (300, 204, 'c'), (388, 258), (428, 338, 'c'), (428, 900, 'c')], 'sky', 4.6)
    for x in (188, 206, 394, 412):
        S.line([(x, 330), (x, 620)], 3.6)


def draw(S):
    ground(S, 900)
    throne(S)
    for x in (92, 508):
        column(S, x, 150, 900, 50)
    # alb and cope
    S.fill([(300, 360, 'c'), (250, 366), (232, 460), (212, 700), (204, 900, 'c'), (396, 900, 'c'), (388, 700), (368, 460),
            (350, 366)], 'blue', 5)
    for p in ([(276, 560), (262, 700), (256, 860)], [(324, 560), (338, 700), (344, 860)]):
        fold(S, p, 8)
    S.limb([(300, 400), (300, 860)], [40, 44], 'gold', 4.4)
    for y in (450, 520, 590, 660, 730):
        S.fill(f'M{295} {y-20}h10v15h15v10h-15v18h-10v-18h-15v-10h15Z', 'red', 3)
    for _ in halves(S):
        S.fill([(-16, 350, 'c'), (-70, 362), (-108, 420), (-132, 560), (-150, 720), (-158, 900, 'c'), (-84, 900, 'c'), (-72, 700),
                (-58, 520), (-44, 420), (-8, 388, 'c')], 'red', 5.4)
        fold(S, [(-100, 600), (-112, 720), (-120, 860)], 9)
        band(S, [(-10, 392), (-44, 430), (-58, 530), (-72, 700), (-82, 880)], 24, n=14, gems=('blue', 'pearl'))
    clasp(S, 300, 398, 25, 'blue')
    # blessing arm
    arm(S, (226, 396), (172, 540), (166, 470), 'red', .98, 'blue', bulge=-8)
    hand_blessing(S, 165, 460, 1.16, -4)
    # staff
    arm(S, (374, 396), (448, 530), (408, 544), 'red', .98, 'blue', bulge=-10)
    fist(S, (448, 530), (408, 544), lambda: triple_cross(S), 1.08, 25.5)
    # head
    S.fill([(250, 230), (238, 270), (242, 312), (258, 340), (342, 340), (358, 312), (362, 270), (350, 230)], 'white', 4.6)
    for _ in halves(S):
        S.limb([(-52, 232), (-60, 300), (-66, 372)], [17, 19, 24], 'gold', 4)
        S.line([(-66, 352), (-74, 352), (-56, 352)], 3)
    face(S, 300, 276, .98, .25, age=1)
    beard(S, 300, 276, .98, .25, 92, 'white', forked=False)
    S.fill([(250, 240, 'c'), (242, 190), (258, 142), (300, 112, 'c'), (342, 142), (358, 190), (350, 240, 'c'), (300, 252)], 'white', 5)
    S.comb([(338, 140), (354, 190), (348, 232)], 186, 20, 8, 4)
    for y, w in ((236, 54), (198, 54), (162, 44)):
        tiara_tier(S, 300, y, w, .92)
    S.fill(circ(300, 120, 10), 'gold', 4)
    # the two before him
    acolyte(S, 176, 736, 'green', 'white', False)
    with S.at(600, 0, 1, 0, True):
        acolyte(S, 176, 748, 'gold', 'red', True)
