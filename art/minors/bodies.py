# SPDX-License-Identifier: GPL-3.0-or-later
"""Bodies the court figures share: arms, seated laps, standing legs and coats, mantles, and the horse with its gear.

A seated figure has its head at (300, 262), shoulders near y 385, waist at 560 and feet at 880; a standing one has its head
at (300, 226), waist at 500. The horse faces left; a card that wants it to face right flips the whole scene.
"""
import math

from minors.heads import *      # the vocabulary of scenes, see drawing.py

SIDES = (False, True)


def mirrored(S, x=300):
    """two contexts mirrored at the vertical axis through x: draw the left half, get both"""
    return [S.at(x, 0, 1, 0, f) for f in SIDES]


def shade(S, a, b, width, n, length, w=4.4):
    """wedges along that edge of a limb from a to b which is turned away from the light"""
    dx, dy = b[0] - a[0], b[1] - a[1]
    d = math.hypot(dx, dy) or 1
    nx, ny = -dy / d, dx / d
    if nx * .8 + ny * .6 < 0:
        nx, ny = -nx, -ny
    h = width / 2 - 3
    S.comb([(a[0] + nx * h, a[1] + ny * h), (b[0] + nx * h, b[1] + ny * h)], math.degrees(math.atan2(-ny, -nx)), length, n, w)


def turned(S, x, y, rot):
    """context that turns everything about the point (x, y)"""
    a = math.radians(rot)
    return S.at(round(x - x * math.cos(a) + y * math.sin(a), 2), round(y - x * math.sin(a) - y * math.cos(a), 2), 1, rot)


# ---------- arms ----------
def between(a, b, t=.5):
    return (a[0] + (b[0] - a[0]) * t, a[1] + (b[1] - a[1]) * t)


def arm(S, shoulder, elbow, wrist, pig, cuff='gold', k=1, fore_pig=None, puffed=False):
    """sleeve over upper arm and forearm with folds at the elbow and a cuff at the wrist"""
    fore_pig = fore_pig or pig
    m, f = between(shoulder, elbow, .5), between(elbow, wrist, .5)
    S.limb([elbow, f, wrist], [64 * k, 56 * k, 44 * k], fore_pig, 5, 's')
    shade(S, between(elbow, wrist, .2), between(elbow, wrist, .9), 52 * k, 8, 15 * k)
    # the fullest part of the sleeve leans away from the forearm
    away = between(wrist, m, 1.06)
    S.limb([shoulder, away, elbow], [62 * k, (92 if puffed else 78) * k, 64 * k], pig, 5, 'se')
    shade(S, between(shoulder, elbow, .2), between(shoulder, elbow, .85), 78 * k, 9, 20 * k)
    for t, w in ((.72, .34), (.86, .28), (.98, .22)):
        c = between(shoulder, elbow, t)
        toward = between(c, f, .5)
        S.line([between(c, toward, -w), between(between(c, toward, .2), shoulder, .05), between(c, toward, .75)], 6)
    if puffed:
        for t in (.3, .5, .7):
            c = between(shoulder, elbow, t)
            dx, dy = elbow[0] - shoulder[0], elbow[1] - shoulder[1]
            d = math.hypot(dx, dy)
            S.limb([(c[0] - dy / d * 30 * k, c[1] + dx / d * 30 * k), c, (c[0] + dy / d * 30 * k, c[1] - dx / d * 30 * k)], [3, 12, 3],
                   'gold', 3.2)
    if cuff:
        a, b = between(wrist, elbow, .26), between(wrist, elbow, -.12)
        S.limb([a, b], [58 * k, 52 * k], cuff, 4.4)
        dx, dy = b[0] - a[0], b[1] - a[1]
        d = math.hypot(dx, dy)
        c = between(a, b)
        S.line([(c[0] - dy / d * 22 * k, c[1] + dx / d * 22 * k), c, (c[0] + dy / d * 22 * k, c[1] - dx / d * 22 * k)], 3)


def grip(S, shoulder, elbow, hand, pig, rod, cuff='gold', k=1, rot=None, fore_pig=None, puffed=False):
    """arm with a fist at `hand`; rod(S) draws in scene coordinates, across the forearm, what the fist holds"""
    left = hand[0] < elbow[0]
    a = math.degrees(math.atan2(elbow[1] - hand[1], elbow[0] - hand[0]))
    turn = (a if left else a - 180) if rot is None else rot
    turn = (turn + 180) % 360 - 180
    r = math.radians(turn)
    reach = 32 * k * (1 if left else -1)
    arm(S, shoulder, elbow, (hand[0] + reach * math.cos(r), hand[1] + reach * math.sin(r)), pig, cuff, k, fore_pig, puffed)
    hand_fist(S, hand[0], hand[1], 1.1 * k, turn, not left, rod=rod and (lambda: rod(S)))


# ---------- seated ----------
def feet(S, pig, y=896, spread=30):
    """two pointed shoes that show below a hem"""
    for c in mirrored(S):
        with c:
            S.fill([(-spread, y - 46, 'c'), (-spread - 36, y - 46, 'c'), (-spread - 54, y - 24), (-spread - 74, y - 12),
                    (-spread - 78, y, 'c'), (-spread + 4, y, 'c')], pig, 4.4)
            S.line([(-spread - 8, y - 30), (-spread - 30, y - 26), (-spread - 44, y - 16)], 3)


def hem_line(y):
    return [(-142, y, 'c'), (-80, y - 10), (0, y + 4), (80, y - 10), (142, y, 'c')]


def lap_front(S, pig, hem='gold', studs=('red', 'green')):
    """robe of a figure enthroned face to face: two knees, folds that hang from them, an ornate hem"""
    S.fill([(222, 560, 'c'), (176, 640), (160, 720), (172, 800), (158, 872, 'c'), (220, 862), (300, 876), (380, 862), (442, 872, 'c'),
            (428, 800), (440, 720), (424, 640), (378, 560, 'c')], pig, 5.2)
    for c in mirrored(S):
        with c:
            fold(S, [(-30, 600), (-80, 660), (-104, 720), (-92, 800), (-96, 858)], 9)
            fold(S, [(-20, 620), (-50, 700), (-56, 780), (-60, 862)], 8)
            fold(S, [(-8, 640), (-20, 720), (-22, 800), (-24, 868)], 7)
            fold(S, [(-130, 700), (-118, 740), (-120, 800)], 7)
            S.line([(-108, 700), (-90, 690), (-70, 700)], 4)
            S.line([(-110, 714), (-90, 704), (-72, 714)], 4)
            S.comb([(-96, 740), (-88, 800), (-90, 856)], 0, 17, 10, 4)
    if hem:
        with S.at(300, 0):
            S.fill(hem_line(850) + hem_line(876)[::-1], hem, 4.4)
            for i in range(13):
                S.fill(circ(-128 + i * 21.4, 861 + 5 * math.sin(i * .52 - 1.5), 4.4), studs[i % 2], 2.2)


def gown(S, pig, hem='gold', width=176, panel=None):
    """a queen's gown: spreads from the waist over hidden knees to the ground"""
    w = width
    out = [(-62, 548, 'c'), (-96, 620), (-130, 700), (-w + 26, 800), (-w, 888, 'c'), (-w * .5, 876), (0, 894), (w * .5, 876), (w, 888, 'c'),
           (w - 26, 800), (130, 700), (96, 620), (62, 548, 'c')]
    with S.at(300, 0):
        S.fill(out, pig, 5.2)
        if panel:
            S.fill([(-26, 552, 'c'), (-40, 660), (-62, 770), (-84, 878, 'c'), (0, 892), (84, 878, 'c'), (62, 770), (40, 660),
                    (26, 552, 'c')], panel, 4.4)
    for c in mirrored(S):
        with c:
            fold(S, [(-40, 580), (-74, 680), (-112, 800), (-134, 872)], 9)
            fold(S, [(-58, 600), (-100, 700), (-138, 800), (-158, 874)], 8)
            fold(S, [(-24, 580), (-46, 690), (-72, 800), (-88, 870)], 8)
            fold(S, [(-8, 600), (-18, 700), (-30, 800), (-34, 878)], 7)
            S.line([(-120, 700), (-96, 676), (-66, 682)], 5)
            S.comb([(-96, 700), (-122, 800), (-138, 860)], -10, 18, 11, 4.2)
    if hem:
        with S.at(300, 0):
            edge = [(-w, 888, 'c'), (-w * .5, 876), (0, 894), (w * .5, 876), (w, 888, 'c')]
            S.fill([(-w + 8, 862, 'c'), (-w * .5, 850), (0, 868), (w * .5, 850), (w - 8, 862, 'c')] + edge[::-1], hem, 4.4)
            for i in range(-6, 7):
                S.line([(i * w / 6.6, 866 - 8 * math.sin(abs(i) * .52)), (i * w / 6.4, 878 - 8 * math.sin(abs(i) * .52))], 5)


def lap_side(S, pig, hem='gold'):
    """lap of a figure that sits with its knees towards the left"""
    S.fill([(224, 552, 'c'), (176, 592), (134, 640), (122, 690), (138, 760), (136, 830), (120, 884, 'c'), (190, 872), (270, 888),
            (340, 870), (412, 886, 'c'), (404, 800), (412, 700), (400, 620),
            (376, 552, 'c')], pig, 5.2)
    for p, w in (([(252, 600), (190, 630), (150, 676), (156, 760), (150, 868)], 9),
                 ([(290, 604), (230, 660), (196, 730), (200, 800), (188, 868)], 9), ([(320, 606), (272, 690), (244, 780), (240, 876)], 8),
                 ([(346, 610), (316, 700), (296, 800), (292, 876)], 8), ([(372, 620), (356, 720), (346, 800), (350, 866)], 8),
                 ([(392, 660), (386, 760), (390, 870)], 7)):
        fold(S, p, w)
    for dy in (0, 13):
        S.line([(136, 672 + dy), (160, 656 + dy), (186, 662 + dy)], 4)
    S.comb([(408, 680), (400, 780), (404, 868)], 186, 22, 14, 4.6)
    S.comb([(160, 720), (158, 790), (154, 850)], 0, 18, 9, 4)
    if hem:
        S.fill([(124, 862, 'c'), (190, 850), (270, 866), (340, 848), (408, 864, 'c'), (412, 888, 'c'), (340, 874), (270, 892), (190, 876),
                (118, 888, 'c')], hem, 4.4)
        for i in range(11):
            S.line([(140 + i * 26, 860 + 6 * math.sin(i * .9)), (138 + i * 26, 874 + 6 * math.sin(i * .9))], 5)


def hose_leg(S, hip, knee, ankle, pig, k=1, toe=-1, shoe='gold'):
    """leg in hose with a pointed shoe; toe -1 points to the left, 1 to the right"""
    S.limb([knee, between(knee, ankle), ankle], [50 * k, 46 * k, 30 * k], pig, 5, 's')
    shade(S, between(knee, ankle, .1), between(knee, ankle, .95), 42 * k, 11, 13 * k, 4)
    S.limb([hip, between(hip, knee), knee], [72 * k, 68 * k, 54 * k], pig, 5, 'e')
    shade(S, between(hip, knee, .1), between(hip, knee, .9), 64 * k, 9, 16 * k)
    with S.at(ankle[0], ankle[1], k, 0, toe > 0):
        S.fill([(-17, -12, 'c'), (17, -12, 'c'), (22, 12), (20, 30, 'c'), (-62, 30, 'c'), (-46, 18), (-22, 10)], shoe, 4.4)
        S.line([(-15, -4), (0, 0), (15, -4)], 3)


def mantle(S, pig, lining=None, spread=0):
    """long cloak that falls from the shoulders to the ground on both sides"""
    for c in mirrored(S):
        with c:
            S.fill([(0, 346, 'c'), (-62, 350), (-104, 386), (-132, 500), (-150 - spread * .4, 640), (-172 - spread * .7, 780),
                    (-188 - spread, 896, 'c'), (-120, 884), (-60, 892), (0, 880, 'c')], pig, 5.2)
            fold(S, [(-112, 470), (-132, 620), (-158, 780), (-166 - spread * .7, 884)], 9)
            fold(S, [(-100, 620), (-124, 760), (-138, 880)], 8)
            S.comb([(-150 - spread * .4, 660), (-168 - spread * .7, 780), (-180 - spread, 880)], 0, 20, 13, 4.6)
            if lining:
                S.fill([(-70, 356, 'c'), (-96, 460), (-106, 600), (-122, 740), (-140, 888, 'c'), (-116, 886, 'c'), (-96, 740), (-82, 600),
                        (-76, 460), (-52, 352, 'c')], lining, 4.2)


def torso(S, pig, w=76, waist=56, top=346, bottom=566):
    """trunk from the shoulders to the belt"""
    h = bottom - top
    with S.at(300, top):
        S.fill([(0, 0, 'c'), (-w * .62, -4), (-w, 18), (-w * .98, h * .4), (-waist, h * .84), (-waist - 6, h, 'c'), (0, h + 12),
                (waist + 6, h, 'c'), (waist, h * .84), (w * .98, h * .4), (w, 18), (w * .62, -4)],
               pig, 5.2)
        S.comb([(w - 3, 36), (w * .93, h * .42), (waist + 2, h * .8)], 188, 24, 12, 4.8)


def belt(S, pig, y=556, w=66, buckle='blue'):
    """broad belt with a round buckle"""
    S.limb([(300 - w, y - 14), (300, y), (300 + w, y - 14)], [22, 22, 22], pig, 4.4)
    S.fill(circ(300, y, 15), 'gold', 4.4)
    S.fill(circ(300, y, 6), buckle, 3)


# ---------- thrones ----------
def throne_base(S, pig, x=140, w=320, y=868):
    """step the feet stand on"""
    S.fill(rect(x, y, w, 34), pig, 5)
    S.comb([(x + 4, y + 6), (x + w / 2, y + 6), (x + w - 4, y + 6)], 90, 12, 40, 4)


def throne_posts(S, pig='gold', ball='red', back='green'):
    """two posts with balls, a latticed back between them"""
    for c in mirrored(S):
        with c:
            S.fill(poly([(-150, 300), (-116, 300), (-116, 890), (-150, 890)]), pig, 5)
            S.comb([(-119, 310), (-119, 880)], 180, 12, 40, 3.8)
            S.fill(circ(-133, 282, 22), ball, 4.6)
            S.fill(circ(-133, 252, 9), 'gold', 4)
            S.fill(rect(-156, 298, 46, 14, 3), pig, 4)
    d = poly([(184, 318), (416, 318), (416, 640), (184, 640)])
    S.fill(d, back, 5)
    with S.clip(d):
        for i in range(-3, 12):
            S.line([(150 + i * 40, 300), (150 + i * 40 + 330, 640)], 2.4, 'flat')
            S.line([(450 - i * 40, 300), (450 - i * 40 - 330, 640)], 2.4, 'flat')
    throne_base(S, pig)


def throne_ladder(S):
    """high wooden chair: turned posts sprouting leaves, slats across"""
    for y in (240, 330, 420, 510):
        S.fill([(160, y + 20, 'c'), (230, y), (300, y - 12), (370, y), (440, y + 20, 'c'), (440, y + 54, 'c'), (370, y + 38), (300, y + 30),
                (230, y + 38), (160, y + 54, 'c')], 'wood', 4.8)
        S.line([(180, y + 36), (300, y + 10), (420, y + 36)], 3)
    for c in mirrored(S):
        with c:
            S.limb([(-158, 196), (-158, 892)], [34, 34], 'wood', 5)
            S.comb([(-143, 210), (-143, 880)], 180, 12, 44, 3.8)
            for y in (300, 420, 540, 700, 820):
                S.fill(rect(-182, y, 48, 18, 6), 'gold', 4)
            for r in (-150, -110, -70, -30):
                leaf(S, -158, 190, .6, r)
            S.fill(circ(-158, 188, 17), 'red', 4.4)
            S.fill([(-190, 620, 'c'), (-196, 600), (-178, 586), (-100, 596), (-84, 616, 'c'), (-100, 632), (-178, 634)], 'wood', 4.8)
    throne_base(S, 'wood', 118, 364)


def throne_arch(S, pig='stone'):
    """stone throne with a pointed arch and a starry back"""
    for c in mirrored(S):
        with c:
            S.fill(poly([(-190, 330), (-150, 330), (-150, 892), (-190, 892)]), pig, 5)
            S.fill(circ(-170, 306, 22), 'red', 4.8)
            S.fill(circ(-170, 276, 9), 'gold', 4)
            S.fill(rect(-200, 326, 60, 18, 3), pig, 4.4)
            S.fill(rect(-200, 866, 60, 30, 3), pig, 4.4)
            for y in range(380, 860, 62):
                S.line([(-188, y), (-170, y + 2), (-152, y)], 3.4, 'flat')
            S.comb([(-153, 350), (-153, 860)], 180, 13, 40, 3.8)
    arch = [(150, 892, 'c'), (150, 380), (170, 250), (230, 178), (300, 138, 'c'), (370, 178), (430, 250), (450, 380), (450, 892, 'c')]
    S.fill(arch, pig, 5)
    inner = [(176, 880, 'c'), (176, 386), (194, 266), (244, 206), (300, 172, 'c'), (356, 206), (406, 266), (424, 386), (424, 880, 'c')]
    S.fill(inner, 'blue', 4.6)
    for r in range(4):
        for x in (200, 400, 220, 380):
            y = 300 + r * 64 + (32 if x in (220, 380) else 0)
            S.fill(poly([pol(x, y, 9 if i % 2 == 0 else 3.4, i * 45 - 90) for i in range(8)]), 'gold', 2.6)
    for a in (-60, -20, 20, 60):
        x, y = 300 + a * 1.6, 138 + abs(a) * 1.35
        S.fill(circ(x, y - 12, 10), pig, 4)
    S.fill(circ(300, 128, 10), 'gold', 4)
    throne_base(S, pig, 120, 360)


def throne_shell(S):
    """back of a great scallop, scrolled arms"""
    pts = [pol(300, 430, 214 + (12 if i % 2 else 0), -180 + i * 12) for i in range(16)]
    S.fill([(150, 540, 'c')] + pts + [(450, 540, 'c')], 'sky', 5.2)
    for i in range(1, 15):
        S.line([(300, 500), pol(300, 430, 206, -180 + i * 12)], 5 if i % 2 else 3.4, 'start')
    S.comb([pol(300, 430, 210, a) for a in (-60, -30, -5)], 200, 34, 14, 5)
    for c in mirrored(S):
        with c:
            S.fill([(-216, 600, 'c'), (-222, 560), (-196, 540), (-168, 556), (-172, 584), (-150, 592), (-132, 640), (-130, 888, 'c'),
                    (-178, 888, 'c'), (-180, 660), (-196, 616)], 'gold', 5)
            S.line([(-206, 580), (-196, 560), (-182, 572), (-192, 584)], 4, 'end')
            S.comb([(-134, 650), (-133, 880)], 180, 16, 20, 4.2)
            S.line([(-166, 660), (-164, 870)], 3.4, 'flat')
    throne_base(S, 'gold', 112, 376)


def throne_canopy(S):
    """tent over a seat: fringed roof, curtains drawn to the sides"""
    for c in mirrored(S):
        with c:
            S.fill([(-226, 200, 'c'), (-120, 196, 'c'), (-130, 330), (-164, 460), (-196, 560, 'c'), (-186, 640), (-170, 760),
                    (-176, 892, 'c'), (-240, 892, 'c'), (-238, 640), (-232, 400)], 'red', 5)
            for p in ([(-204, 214), (-206, 400), (-210, 540)], [(-180, 214), (-186, 380), (-202, 546)],
                      [(-152, 214), (-160, 360), (-190, 530)], [(-210, 590), (-214, 740), (-218, 884)],
                      [(-196, 600), (-194, 740), (-196, 884)]):
                fold(S, p, 7)
            S.limb([(-240, 566), (-212, 574), (-186, 564)], [18, 20, 18], 'gold', 4.2)
            S.fill([(-218, 580, 'c'), (-226, 616), (-214, 626), (-202, 616), (-208, 580, 'c')], 'gold', 3.8)
    S.fill([(58, 196, 'c'), (110, 166), (220, 128), (300, 114), (380, 128), (490, 166), (542, 196, 'c'), (542, 232, 'c'), (58, 232, 'c')],
           'blue', 5)
    for x in (120, 180, 240, 300, 360, 420, 480):
        S.line([(300 + (x - 300) * .2, 122), (x, 200)], 4.4, 'start')
    for i in range(12):
        x = 58 + i * 40.3
        S.fill([(x, 206, 'c'), (x + 40.3, 206, 'c'), (x + 36, 232), (x + 20, 246), (x + 4, 232)], 'gold' if i % 2 else 'red', 4)
        S.fill(circ(x + 20, 250, 5), 'gold', 2.6)


def throne_sun(S):
    """round back with rays on a low bench"""
    for i in range(15):
        a = -180 - 14 + i * 14.85
        S.fill(poly(ribbon([pol(300, 400, 176, a), pol(300, 400, 206, a), pol(300, 400, 244 if i % 2 == 0 else 222, a)],
                           lambda t: 32 * (1 - t) ** .8 + .5)), 'gold' if i % 2 == 0 else 'red', 4)
    S.fill([(120, 470, 'c')] + [pol(300, 400, 186, a) for a in range(-190, 11, 20)] + [(480, 470, 'c'), (450, 620, 'c'), (150, 620, 'c')],
           'gold', 5)
    S.fill([pol(300, 400, 160, a) for a in range(-200, 21, 20)] + [(440, 600), (160, 600)], 'green', 4.6)
    for a in range(-190, 11, 20):
        S.fill(circ(*pol(300, 400, 173, a), 6), 'red', 2.8)
    for c in mirrored(S):
        with c:
            S.fill(rect(-206, 600, 70, 28, 6), 'gold', 4.8)
            S.fill(poly([(-196, 628), (-146, 628), (-150, 892), (-192, 892)]), 'wood', 5)
            S.comb([(-150, 640), (-153, 880)], 180, 16, 18, 4.2)
            for y in (680, 760, 840):
                S.line([(-192, y), (-150, y)], 4, 'flat')
    throne_base(S, 'wood', 96, 408)


def throne_hedge(S):
    """rose hedge behind a turfed bench"""
    S.fill([(70, 640, 'c'), (66, 520), (84, 420), (76, 340), (110, 270), (170, 226), (240, 200), (300, 190), (360, 200), (430, 226),
            (490, 270), (524, 340), (516, 420), (534, 520), (530, 640, 'c')],
           'green', 5.2)
    for i, (x, y) in enumerate(sample([(92, 600), (92, 500), (100, 420), (104, 340), (150, 276), (220, 236), (300, 222), (380, 236),
                                       (450, 276), (496, 340), (500, 420), (508, 500), (508, 600)], n=2)):
        if i % 2 == 0:
            bloom(S, x, y, .62, i * 20, 'red' if i % 4 else 'white')
        else:
            leaf(S, x, y, .5, i * 47, False, 'green')
    for x, y in ((142, 380), (160, 470), (146, 560), (458, 380), (440, 470), (454, 560), (176, 330), (424, 330)):
        leaf(S, x, y, .56, (x * 7 + y * 3) % 360, x > 300)
    S.fill(rect(84, 610, 432, 40, 6), 'wood', 5)
    S.fill(poly([(100, 650), (500, 650), (492, 892), (108, 892)]), 'wood', 5)
    for x in (100, 170, 430, 500):
        S.line([(x, 656), (x, 884)], 4, 'flat')
    for y in (712, 774, 836):
        S.line([(104, y), (300, y + 4), (496, y)], 3.4, 'flat')
    S.comb([(494, 660), (488, 880)], 180, 22, 20, 4.6)


def chair_folding(S):
    """folding chair of crossed curved legs with a cushion, under the open sky"""
    for c in mirrored(S):
        with c:
            S.limb([(-172, 520), (-158, 640), (-60, 740), (70, 800), (150, 884)], [26, 28, 30, 28, 30], 'wood', 5, 'se')
            shade(S, (-60, 740), (70, 800), 28, 9, 11)
    S.fill(circ(300, 772, 17), 'gold', 4.4)
    for c in mirrored(S):
        with c:
            S.fill(circ(-172, 508, 21), 'gold', 4.6)
            S.line([(-182, 514), (-174, 498), (-162, 506), (-170, 516)], 3.4, 'end')
    S.fill([(128, 640, 'c'), (150, 612), (300, 602), (450, 612), (472, 640, 'c'), (450, 676), (300, 686), (150, 676)], 'red', 5)
    for x in (150, 450):
        S.fill([(x, 676, 'c'), (x - 10, 716), (x + 10, 716)], 'gold', 4)


# ---------- standing ----------
def shoe_leg(S, x, top, ankle_x, pig, shoe, toe, k=1):
    """leg of a standing figure: hose from the hem down to a pointed shoe on the ground"""
    S.limb([(x, top), ((x + ankle_x) / 2 + 2 * toe, (top + 860) / 2), (ankle_x, 868)], [56 * k, 50 * k, 28 * k], pig)
    S.comb([(x + 22, top + 20), ((x + ankle_x) / 2 + 20, (top + 860) / 2), (ankle_x + 12, 856)], 180, 14, 14, 4)
    S.line([((x + ankle_x) / 2 - 10, (top + 860) / 2 - 30), ((x + ankle_x) / 2 - 6, (top + 860) / 2 + 40)], 4)
    with S.at(ankle_x, 0, 1, 0, toe > 0):
        S.fill([(-16, 858, 'c'), (16, 858, 'c'), (22, 884), (20, 904, 'c'), (-66, 904, 'c'), (-52, 890), (-24, 882)], shoe, 4.4)
        S.line([(-14, 866), (0, 870), (14, 866)], 3)


def coat(S, left, right, hem=660, flare=96, waist=500, top=318):
    """belted coat in two halves that may differ in colour; skirt down to hem"""
    for pig, d in ((left, -1), (right, 1)):
        with S.at(300, 0, 1, 0, d > 0):
            S.fill([(0, top, 'c'), (-50, top), (-78, top + 18), (-82, top + 60), (-54, waist - 60), (-46, waist + 6),
                    (-66, (waist + hem) / 2), (-flare, hem, 'c'), (-flare * .5, hem + 10), (0, hem + 4, 'c')],
                   pig, 5)
            for x0, x1, w in ((-38, -.82, 8), (-24, -.54, 8), (-9, -.22, 7)):
                fold(S, [(x0, waist + 20), (x0 * 1.2, (waist + hem) / 2), (x1 * flare, hem - 4)], w)
    S.comb([(376, top + 66), (350, waist - 50), (344, waist - 8)], 188, 22, 11, 4.8)
    S.comb([(352, waist + 40), (372, (waist + hem) / 2 + 20), (300 + flare - 6, hem - 8)], 195, 20, 10, 4.8)


# ---------- the horse ----------
NECK_ROOT = (240, 480)
NECK = [(116, 470), (94, 462), (82, 444), (90, 420), (112, 392), (126, 356), (146, 330), (170, 312, 'c'), (206, 330), (236, 372),
        (252, 416)]
TRUNK = [(290, 476), (340, 492), (400, 486), (452, 480),
        (496, 506), (514, 560), (500, 620), (462, 652), (400, 668), (320, 680), (240, 676), (196, 650), (174, 600), (176, 540)]
THROAT = [(190, 486), (184, 436, 'c'), (164, 440), (146, 456), (134, 468)]

# hip or shoulder, knee or hock, fetlock, hoof; far legs first
GAITS = {
    'walk': ([(216, 616), (150, 700), (164, 790), (150, 818)], [(462, 600), (440, 720), (420, 820), (404, 872)],
             [(228, 620), (222, 742), (216, 838), (210, 876)], [(470, 590), (484, 716), (500, 824), (494, 874)]),
    'stand': ([(210, 616), (190, 744), (186, 838), (180, 876)], [(452, 600), (428, 722), (420, 830), (410, 874)],
              [(240, 620), (236, 744), (232, 838), (226, 876)], [(470, 590), (474, 716), (482, 826), (474, 874)]),
    'rear': ([(206, 600), (112, 634), (104, 716), (88, 742)], [(448, 590), (386, 690), (420, 776), (400, 822)],
             [(226, 610), (146, 690), (156, 768), (138, 794)], [(470, 580), (446, 700), (492, 782), (476, 828)]),
    'gallop': ([(204, 600), (96, 636), (82, 716), (68, 738)], [(452, 600), (452, 712), (508, 796), (504, 838)],
               [(224, 616), (132, 696), (120, 780), (104, 804)], [(470, 590), (420, 716), (462, 820), (450, 866)]),
}


def horse_leg(S, joints, pig, hind, hoof='dark'):
    hip, knee, fetlock, end = joints
    top = 104 if hind else 78
    S.limb([hip, between(hip, knee, .55), knee, between(knee, fetlock), fetlock, end], [top, top * .62, 40, 29, 29, 32], pig, 4.8, 's')
    shade(S, between(hip, knee, .5), knee, 46, 7, 13, 4)
    shade(S, knee, fetlock, 28, 7, 9, 3.4)
    a = math.degrees(math.atan2(end[1] - fetlock[1], end[0] - fetlock[0])) - 90
    with S.at(end[0], end[1], 1, a * .6):
        S.fill([(-18, -5, 'c'), (18, -5, 'c'), (20, 22, 'c'), (-30, 22, 'c')], hoof, 4.2)


def neck_point(p, turn):
    """point of neck or head after the neck has been bent down (negative) or up about its root"""
    a = math.radians(turn)
    x, y = p[0] - NECK_ROOT[0], p[1] - NECK_ROOT[1]
    return (NECK_ROOT[0] + x * math.cos(a) - y * math.sin(a), NECK_ROOT[1] + x * math.sin(a) + y * math.cos(a), *p[2:])


def tail(S, pig):
    """three long locks from the croup"""
    for i, o in enumerate((14, 0, -14)):
        S.fill(poly(ribbon([(490, 512), (510 + o * .3, 546), (508 + o * .4, 640), (500 + o, 740), (512 + o * .2, 800 - 20 * i)],
                           lambda t: (16 + 22 * math.sin(math.pi * min(1, t * .9 + .05))) * (1 - t ** 5) + 1)), pig, 4.4)
    for o in (8, 0, -8):
        S.line([(496, 534), (510 + o * .3, 590), (507 + o, 680), (502 + o, 760)], 3.4)


def mane(S, pig):
    """locks along the crest and between the ears"""
    crest = [(176, 306), (206, 322), (232, 352), (250, 392), (264, 430), (290, 462)]
    for i, (x, y) in enumerate(crest):
        S.fill(poly(ribbon([(x - 4, y - 6), (x + 16, y + 6), (x + 8, y + 40), (x + 22, y + 66)],
                           lambda t: (26 - 2 * (i == 0)) * (1 - t) ** .6 + 1)), pig, 4)
        S.line([(x + 4, y + 6), (x + 8, y + 34), (x + 16, y + 54)], 2.8)
    S.fill(poly(ribbon([(172, 308), (152, 316), (140, 344)], lambda t: 24 * (1 - t) ** .6 + 1)), pig, 3.8)


def horse_head(S, bridle, pig):
    """eye, nostril, mouth, ear and bridle over the body's outline"""
    S.fill([(158, 326, 'c'), (154, 296), (170, 276, 'c'), (184, 300), (180, 328, 'c')], pig, 4.4)
    S.line([(166, 320), (170, 294)], 4)
    S.line([(126, 372), (138, 364), (152, 372)], 4.6)
    S.fill([(128, 378, 'c'), (138, 370), (150, 379, 'c'), (138, 384)], 'white', 3)
    S.dot(138, 377, 4.6)
    S.line([(94, 436), (100, 428), (106, 438)], 5)
    S.line([(90, 456), (108, 458), (122, 450)], 3.6)
    S.line([(184, 436), (178, 412), (162, 396)], 4)
    S.comb([(186, 440), (190, 410), (184, 376)], 196, 16, 7, 4)
    for a, b, c in (((108, 398), (124, 412), (130, 464)), ((142, 336), (160, 372), (180, 426))):
        S.limb([a, b, c], [9, 9, 9], bridle, 3.4)
    S.limb([(126, 424), (150, 402), (166, 384)], [8, 8, 8], bridle, 3.2)
    S.fill(circ(126, 430, 8), 'gold', 3.4)


def reins(S, to, pig='red', neck=0, shift=(0, 0)):
    """from the bit to the rider's hand; shift is how far the rider's context lies from the horse's"""
    x, y = neck_point((126, 432), neck)[:2]
    bit = (x - shift[0], y - shift[1])
    S.limb([bit, between((bit[0] + 24, bit[1] + 40), to, .4), to], [8, 8, 8], pig, 3.4)


def horse(S, pig, gait, mane_pig='hair', bridle='red', hoof='dark', neck=0, gear=None):
    """the whole animal; gear(S) is drawn over body and legs, before mane and head"""
    far_fore, far_hind, fore, hind = GAITS[gait]
    tail(S, mane_pig)
    horse_leg(S, far_fore, pig, False, hoof)
    horse_leg(S, far_hind, pig, True, hoof)
    S.fill([neck_point(p, neck) for p in NECK] + TRUNK + [neck_point(p, neck) for p in THROAT], pig, 5.4)
    S.comb([(210, 664), (300, 680), (400, 668), (470, 646)], 270, 26, 26, 5)
    S.line([(196, 520), (206, 580), (236, 624)], 5)
    horse_leg(S, hind, pig, True, hoof)
    horse_leg(S, fore, pig, False, hoof)
    # hide the cap of the legs' upper ends inside the trunk
    S.fill([(190, 560), (230, 540), (262, 570), (262, 610), (240, 636), (206, 624)], pig, 0)
    S.fill([(420, 560), (460, 540), (500, 560), (504, 600), (480, 630), (440, 620)], pig, 0)
    if gear:
        gear(S)
    with turned(S, *NECK_ROOT, neck):
        mane(S, mane_pig)
        horse_head(S, bridle, pig)


def rider_leg(S, hip, knee, ankle, pig, boot='red', spur=True):
    """near leg over the saddle with the foot in a stirrup"""
    S.limb([between(ankle, hip, .6), (ankle[0] + 6, ankle[1] + 26)], [7, 7], 'gold', 3.2)
    hose_leg(S, hip, knee, ankle, pig, .84, -1, boot)
    with S.at(*ankle):
        S.stroke([(-34, 32), (-20, -14), (4, 30)], 5)
        S.limb([(-40, 32), (8, 32)], [9, 9], 'gold', 3.4)
        if spur:
            S.line([(14, 14), (30, 16)], 5, 'flat')
            S.fill(poly([pol(36, 16, 11 if i % 2 == 0 else 5, i * 30) for i in range(12)]), 'gold', 2.8)


def saddle(S, cloth, pig='wood'):
    """saddle-cloth with a fringe and a high saddle"""
    S.fill([(262, 476, 'c'), (300, 492), (360, 500), (428, 482, 'c'), (440, 560), (434, 640, 'c'), (350, 656), (272, 644, 'c'), (258, 560)],
           cloth, 4.8)
    S.stroke([(272, 628), (350, 640), (424, 626)], 3)
    for i in range(12):
        S.line([(278 + i * 13.4, 646 + 6 * math.sin(i * .28)), (277 + i * 13.4, 664 + 6 * math.sin(i * .28))], 5, 'end')
    S.fill([(268, 486, 'c'), (272, 450), (290, 446), (306, 480), (360, 486), (396, 474), (414, 436), (432, 442), (430, 492, 'c'),
            (350, 514)], pig, 4.8)
