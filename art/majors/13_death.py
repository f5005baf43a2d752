# SPDX-License-Identifier: GPL-3.0-or-later
"""Death, the card without a name: a skeleton mows a black field in which heads, and a hand lie."""
import math

from drawing import *      # the vocabulary of scenes, see drawing.py

TITLE, NUM = '', 'XIII'
FIELD, PATTERN = 'emerald', 'stars'
RIBS = (62, 72, 78, 78, 72, 60, 46)     # half widths of the ribs from the top


def bone(S, a, b, w=17, lw=4):
    """long bone from a to b with two knuckles at each end"""
    S.limb([a, ((a[0] + b[0]) / 2, (a[1] + b[1]) / 2), b], [w * 1.25, w * .72, w * 1.25], 'bone', lw)
    course = math.atan2(b[1] - a[1], b[0] - a[0])
    nx, ny = -math.sin(course), math.cos(course)
    for end in (a, b):
        for side in (-1, 1):
            S.fill(circ(end[0] + nx * side * w * .42, end[1] + ny * side * w * .42, w * .52), 'bone', lw)
        S.fill(circ(*end, w * .5), 'bone', 0)
    S.line([(a[0] * .75 + b[0] * .25 + nx * 2, a[1] * .75 + b[1] * .25 + ny * 2),
            (a[0] * .3 + b[0] * .7 + nx * 2, a[1] * .3 + b[1] * .7 + ny * 2)], 3)


def skull(S, x, y, k):
    """skull turned a little to the left"""
    with S.at(x, y, k):
        S.fill([(-38, 20, 'c'), (-30, 34), (-32, 56), (-14, 66), (10, 64), (26, 46), (34, 26, 'c')], 'bone', 4.4)
        S.fill([(-40, 26), (-46, 6), (-52, -14), (-44, -46), (-8, -64), (36, -52), (56, -14), (46, 20), (20, 34), (-14, 38)],
               'bone', 5)
        S.fill([(-34, -8), (-38, 8), (-24, 14), (-12, 6), (-12, -10), (-22, -16)], 'dark', 3.4)
        S.fill([(6, -12), (2, 6), (16, 14), (30, 6), (30, -12), (18, -18)], 'dark', 3.4)
        S.fill([(-10, 14, 'c'), (-16, 26), (-8, 30), (-4, 22), (2, 29), (6, 24), (-2, 14, 'c')], 'dark', 2.4)
        S.line([(-32, 42), (-6, 46), (24, 40)], 4)
        for i in range(7):
            S.line([(-28 + i * 8, 35 + abs(i - 3) * -.4), (-27 + i * 7.6, 52)], 3.2)
        S.comb([(50, -30), (54, -8), (44, 16), (26, 30)], 196, 17, 11, 4)
        S.line([(-20, -40), (0, -48), (16, -42)], 3)
        S.line([(20, -56), (26, -44), (22, -34), (30, -26)], 2.4)


def head_in_soil(S, x, y, k, sex, crowned, flip):
    """severed head in the black earth, crowned or with curls"""
    with S.at(x, y, k, 0, flip):
        S.fill([(-44, -20), (-50, 20), (-40, 50), (40, 50), (50, 20), (44, -20), (24, -54), (-24, -54)], 'hair', 4.6)
        face(S, 0, 0, .92, .6, False, sex, 4.6)
        if crowned:
            crown(S, 0, -42, .95, 5)
        else:
            curls(S, [(-38, -16), (-32, -38), (-12, -52), (12, -53), (32, -38), (40, -14)], 14, 'hair', 3.4)
        S.fill([(-74, 58, 'c'), (-60, 36), (-30, 42), (0, 52), (28, 40), (58, 34), (76, 58, 'c'), (0, 74)], 'dark', 4)
        S.wash([(-76, 60), (0, 56), (78, 60), (60, 84), (-60, 84)], 'dark')


def field(S):
    """black earth with tufts"""
    S.fill([(-10, 806, 'c'), (100, 790), (220, 806), (340, 792), (470, 806), (610, 790, 'c'), (610, 1100, 'c'), (-10, 1100, 'c')],
           'dark', 5)
    for x, y, k in ((92, 822, .8), (236, 930, .8), (430, 934, .75), (530, 830, .8), (64, 936, .7), (330, 836, .6)):
        tuft(S, x, y, k)


def far_limbs(S):
    """the leg and the upper arm that are behind the scythe"""
    bone(S, (326, 610), (396, 700), 21)
    bone(S, (398, 712), (440, 818), 18)
    S.fill([(430, 812, 'c'), (452, 812), (452, 828), (420, 838), (392, 836, 'c'), (398, 826)], 'bone', 4)
    bone(S, (366, 352), (452, 408), 16)


def scythe(S):
    """shaft from the upper right to the lower left, blade sweeping to the left"""
    S.limb([(532, 270), (440, 438), (330, 650), (246, 790)], [16, 15, 15, 16], 'wood', 5)
    S.fill([(250, 772, 'c'), (200, 790), (130, 776), (70, 720, 'c'), (92, 776), (140, 818), (200, 832), (246, 806, 'c')], 'sky', 5)
    S.line([(236, 800), (180, 808), (120, 782)], 4)
    S.limb([(238, 762), (252, 800)], [26, 26], 'gold', 4)
    S.limb([(424, 420), (462, 440)], [11, 11], 'wood', 4)


def trunk(S):
    """spine, pelvis, ribs with the breastbone, collarbones"""
    for x, y in sample([(290, 306), (306, 380), (318, 460), (314, 540), (306, 596)], n=4):
        S.fill(circ(x, y, 13.5, 10), 'bone', 4)
    S.fill([(308, 574, 'c'), (268, 566), (250, 590), (262, 626), (292, 636), (308, 620, 'c'), (326, 638), (356, 626), (366, 588),
            (346, 566)], 'bone', 5)
    S.fill(circ(284, 602, 11), 'dark', 3.4)
    S.fill(circ(334, 602, 11), 'dark', 3.4)
    S.comb([(362, 584), (356, 616), (334, 632)], 200, 14, 6, 4)
    for i, w in enumerate(RIBS):
        x, y = 302 + i * 2.4, 356 + i * 25
        for side in (-1, 1):
            S.limb([(x + side * 6, y - 6), (x + side * w * .6, y - 14), (x + side * w, y + 6), (x + side * w * .84, y + 24),
                    (x + side * w * .44, y + 30)], [11, 12, 11, 10, 7], 'bone', 3.8)
    S.limb([(302, 346), (306, 430), (309, 500)], [17, 15, 9], 'bone', 4)
    S.limb([(228, 344), (262, 332), (302, 346)], [14, 11, 14], 'bone', 4)
    S.limb([(302, 346), (340, 330), (372, 346)], [14, 11, 14], 'bone', 4)


def near_leg(S):
    """the leg in front, with its foot"""
    bone(S, (282, 612), (228, 720), 23)
    bone(S, (226, 734), (262, 850), 20)
    S.fill([(250, 842, 'c'), (276, 842), (278, 860), (248, 876), (204, 876), (192, 868), (228, 858, 'c')], 'bone', 4.2)
    for i in range(3):
        S.line([(206 + i * 12, 866), (202 + i * 12, 875)], 3, 'flat')
    S.fill(circ(227, 727, 13), 'bone', 4.2)


def arms(S):
    """forearms, and the hands that clasp the shaft"""
    bone(S, (454, 416), (424, 474), 15)
    S.fill(circ(453, 412, 10), 'bone', 4)
    bone(S, (228, 352), (214, 470), 18)
    bone(S, (216, 482), (352, 556), 16)
    S.fill(circ(214, 476, 12), 'bone', 4)
    for x, y in ((376, 560), (420, 476)):
        with S.at(x, y, 1, 28):
            for i in range(4):
                S.limb([(-20, -13 + i * 9), (0, -15 + i * 9), (16, -11 + i * 9)], [9, 8, 7], 'bone', 3.2)


def head(S):
    """neck and skull"""
    S.limb([(284, 286), (292, 330)], [24, 24], 'bone', 4)
    for y in (296, 308, 320):
        S.line([(276, y), (302, y - 1)], 3)
    skull(S, 276, 218, 1.2)


def draw(S):
    field(S)
    far_limbs(S)
    scythe(S)
    trunk(S)
    near_leg(S)
    arms(S)
    head(S)
    # what is mown
    head_in_soil(S, 130, 884, .78, 'f', False, True)
    head_in_soil(S, 470, 890, .8, 'm', True, False)
    hand_open(S, 340, 922, .95, -10)
    S.fill([(326, 918, 'c'), (340, 912), (356, 918, 'c'), (352, 932), (330, 932)], 'red', 3.4)
