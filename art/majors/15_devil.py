# SPDX-License-Identifier: GPL-3.0-or-later
"""The Devil: antlered and bat-winged on a drum, one hand raised, a torch in the other; a cord through the drum's ring holds two horned
imps by the neck, loosely enough to slip."""
from beasts import *      # the vocabulary of scenes, see drawing.py

TITLE, NUM = 'LE DIABLE', 'XV'
FIELD, PATTERN = 'crimson', 'damask'


def flame(S, x, y, k=1, lean=0):
    """a tongue of fire standing on x, y"""
    with S.at(x, y, k):
        S.fill([(-20, 4, 'c'), (-28, -26), (-12, -48), (-16 + lean, -78, 'c'), (2 + lean, -62), (8 + lean, -100, 'c'), (22, -60),
            (30, -30), (20, 4, 'c')], 'fire', 3.8)
        S.fill([(-9, 4, 'c'), (-13, -18), (-2, -36), (3 + lean * .5, -60, 'c'), (14, -30), (11, 4, 'c')], 'gold', 3)


def antlers(S, x, y, k=1, pig='gold'):
    """pair of stag's antlers springing from x, y"""
    for d in (False, True):
        with S.at(x, y, k, 0, d):
            for p, w in (([(-30, -30), (-58, -38), (-66, -60)], [12, 9, 3]), ([(-42, -50), (-30, -66), (-32, -86)], [11, 8, 3])):
                S.limb(p, w, pig, 3.6)
            S.limb([(-12, 8), (-26, -28), (-48, -54), (-54, -92)], [19, 16, 13, 3], pig, 4, 's')


def pointed_ear(S, x, y, k, flip):
    with S.at(x, y, k, 0, flip):
        S.fill([(0, -12, 'c'), (-20, -26), (-38, -30, 'c'), (-28, -6), (0, 14, 'c')], 'flesh', 4)
        S.line([(-4, 0), (-16, -10), (-28, -22)], 2.6)


def fur(S, x0, x1, y, length, n, pig):
    """skirt of shaggy locks"""
    for row in (1, 0):
        for i in range(n):
            x = x0 + (x1 - x0) * (i + (.5 if row else 0)) / (n - (0 if row else 1)) if n > 1 else x0
            x = min(x, x1)
            f = (x - (x0 + x1) / 2) / ((x1 - x0) / 2)
            L = length * (1 if row else .66) * (1 - .22 * abs(f))
            S.fill([(x - 13, y - 4, 'c'), (x - 12, y + L * .5), (x + f * 10, y + L, 'c'), (x + 12, y + L * .5),
                (x + 13, y - 4, 'c')], pig, 3.6)


def talons(S, x, y, k, flip, pig='gold'):
    """three clawed toes, pointing to the left"""
    with S.at(x, y, k, 0, flip):
        for dx, dy in ((22, -3), (2, -1), (-20, 0)):
            S.fill([(dx + 10, dy - 16, 'c'), (dx - 12, dy - 14), (dx - 30, dy + 2), (dx - 34, dy + 12, 'c'), (dx - 14, dy + 6),
                (dx + 8, dy + 6, 'c')], pig, 3.8)


def devil(S):
    """the master of the card, feet on the drum"""
    for x, d in ((262, False), (338, True)):
        bat_wing(S, x, 330, 1.0, d, 'blue', 'gold')
    # legs
    for d in (-1, 1):
        p = [(300 + d * 26, 450), (300 + d * 58, 540), (300 + d * 40, 628)]
        S.limb(p, [72, 54, 30], 'green', 5, 's')
        shade(S, p, [72, 54, 30], 11, .28, 4.4)
        for u in range(7):
            q = sample(p, n=8)[2 + 2 * u]
            S.line([(q[0] - 8, q[1] - 4), (q[0] - 4, q[1] + 10)], 4, 'end')
            S.line([(q[0] + 6, q[1] - 8), (q[0] + 8, q[1] + 6)], 4, 'end')
        talons(S, 300 + d * 38, 636, .82, d > 0)
    # trunk
    S.fill([(276, 288, 'c'), (240, 298), (228, 330), (244, 390), (250, 460, 'c'), (350, 460, 'c'), (356, 390), (372, 330), (360, 298),
        (324, 288, 'c')], 'flesh', 5)
    S.comb([(370, 332), (356, 390), (350, 440)], 186, 18, 13, 4.4)
    for d in (-1, 1):
        S.line([(300 + d * 54, 348), (300 + d * 36, 368), (300 + d * 10, 358)], 4)
        S.fill(circ(300 + d * 32, 348, 4.4), 'blush', 2.6)
    S.line([(300, 318), (299, 350), (300, 396)], 3)
    S.line([(278, 412), (300, 420), (322, 412)], 3)
    S.fill(circ(300, 404, 4), 'blush', 2.4)
    fur(S, 252, 348, 452, 66, 6, 'green')
    S.limb([(246, 446), (300, 458), (354, 446)], [22, 22, 22], 'red', 4.2)
    S.fill(circ(300, 456, 10), 'gold', 3.4)
    head(S)


def head(S):
    """face with goat's beard, ears and antlered cap"""
    S.limb([(300, 258), (300, 300)], [52, 62], 'flesh', 4)
    for i in range(9):      # mane of fire round the jaw
        a = 6 + i * 21
        q = pol(300, 226, 74 + 8 * (i % 2), a)
        S.fill([pol(300, 226, 40, a - 16) + ('c',), pol(300, 226, 58, a - 7), q + ('c',), pol(300, 226, 58, a + 9),
            pol(300, 226, 40, a + 16) + ('c',)], 'fire', 3.6)
    pointed_ear(S, 264, 216, 1, False)
    pointed_ear(S, 336, 216, 1, True)
    face(S, 300, 224, 1.04, .1, False, 'm', mood=5)
    for d in (-1, 1):
        S.fill([(299, 250, 'c'), (299 + d * 16, 246), (299 + d * 36, 258, 'c'), (299 + d * 18, 259), (299, 256, 'c')], 'dark', 2.8)
    S.fill([(284, 268, 'c'), (290, 296), (292, 322, 'c'), (300, 304), (308, 322, 'c'), (310, 296), (316, 268, 'c'), (300, 276)], 'dark', 3)
    antlers(S, 300, 186, .74)
    S.fill([(258, 204, 'c'), (260, 182), (276, 168), (300, 163), (324, 168), (340, 182), (342, 204, 'c'), (322, 190), (300, 194),
        (278, 190)], 'red', 4.4)
    S.comb([(326, 172), (338, 184), (340, 198)], 196, 14, 6, 3.4)


def drum(S):
    """round pedestal with mouldings and the ring for the cords"""
    S.fill([(236, 668, 'c'), (364, 668, 'c'), (360, 780, 'c'), (240, 780, 'c')], 'red', 5)
    S.comb([(362, 676), (360, 774)], 180, 34, 18, 4.6)
    for y, w in ((646, 84), (780, 92)):
        S.fill([(300 - w, y, 'c'), (300, y + 9), (300 + w, y, 'c'), (300 + w - 4, y + 26, 'c'), (300, y + 35),
            (304 - w, y + 26, 'c')], 'gold', 4.8)
        S.line([(306 - w, y + 13), (300, y + 22), (294 + w, y + 13)], 3)
    S.fill([(188, 812, 'c'), (300, 822), (412, 812, 'c'), (420, 846, 'c'), (300, 858), (180, 846, 'c')], 'stone', 5)
    S.comb([(184, 842), (300, 853), (416, 842)], 270, 13, 34, 4)


def cord(S, neck):
    """twisted rope from the drum's ring to a neck"""
    mid = ((neck[0] + 300) / 2, max(neck[1], 724) + 22)
    p = [(300, 730), mid, neck]
    S.limb(p, [10, 10, 10], 'gold', 3.4)
    for q in sample(p, n=9)[1:-1]:
        S.line([(q[0] - 3, q[1] - 4), (q[0] + 3, q[1] + 4)], 2.4, 'flat')


def imp(S, flip):
    """small captive left of the drum, hands behind the back"""
    with S.at(300, 0, 1, 0, flip):
        # tail
        S.limb([(-196, 822), (-232, 850), (-238, 812), (-222, 790)], [13, 10, 8, 6], 'green', 3.8)
        S.fill([(-226, 796, 'c'), (-240, 780), (-222, 764, 'c'), (-210, 786), (-216, 796, 'c')], 'green', 3.6)
        for a, b in (((-184, 826), (-204, 914)), ((-152, 826), (-136, 914))):
            p = [a, ((a[0] + b[0]) / 2 + (b[0] - a[0]) * .14, 868), b]
            bare(S, p, [44, 36, 22], n=8, caps='')
            talons(S, b[0] + 2, b[1] + 6, .56, True)
        S.limb([(-194, 734), (-226, 776), (-188, 806)], [31, 30, 22], 'flesh', 4.4, 's')
        S.limb([(-142, 734), (-112, 776), (-146, 806)], [31, 30, 22], 'flesh', 4.4, 's')
        S.fill([(-184, 712, 'c'), (-204, 722), (-206, 752), (-194, 796), (-204, 836, 'c'), (-134, 838, 'c'), (-142, 796), (-130, 752),
            (-132, 722), (-152, 712, 'c')], 'flesh', 4.8)
        x = -206 if flip else -130
        S.comb([(x, 752), (x + (10 if flip else -10), 790), (x + (4 if flip else -4), 828)], 8 if flip else 186, 15, 9, 3.6)
        S.line([(-188, 752), (-178, 758), (-170, 754)], 3)
        S.line([(-162, 754), (-154, 758), (-146, 752)], 3)
        S.dot(-167, 800, 2.6)
        fur(S, -196, -140, 818, 40, 4, 'green')
        S.limb([(-202, 816), (-168, 824), (-136, 816)], [13, 13, 13], 'red', 3.4)
        S.limb([(-168, 690), (-168, 716)], [30, 36], 'flesh', 4)
        pointed_ear(S, -192, 656, .7, False)
        pointed_ear(S, -140, 656, .7, True)
        face(S, -166, 662, .74, .5, True, 'm', 4.8, mood=2)
        for d in (False, True):
            with S.at(-166, 630, 1, 0, d):
                S.limb([(-16, 4), (-30, -16), (-24, -44)], [15, 12, 3], 'gold', 3.6)
        S.fill([(-196, 652, 'c'), (-196, 630), (-182, 616), (-166, 611), (-150, 616), (-136, 630), (-135, 652, 'c'), (-150, 640),
            (-166, 643), (-182, 640)], 'blue', 4)


def draw(S):
    ground(S, 866, [(-10, 880), (90, 866), (200, 874), (330, 864), (450, 874), (610, 866)], 'dark')
    for x, y, k in ((70, 946, .8), (236, 948, .62), (300, 950, .85), (362, 948, .6), (534, 946, .8)):
        flame(S, x, y, k, 6 if x < 300 else -6)
    devil(S)
    drum(S)
    imp(S, False)
    imp(S, True)
    for d in (-1, 1):
        S.limb([(300 + d * 150, 706), (300 + d * 132, 716), (300 + d * 114, 706)], [11, 11, 11], 'gold', 3.4)
        cord(S, (300 + d * 116, 712))
    S.limb([pol(300, 737, 15, a) for a in range(-90, 271, 30)], [8, 8], 'gold', 3.6)
    S.fill(circ(300, 718, 9), 'gold', 3.6)
    # arms: the open hand, the torch
    bare(S, [(246, 318), (166, 386), (144, 280)], [54, 48, 28], caps='s')
    hand_open(S, 143, 284, 1.0, -6)
    bare(S, [(354, 318), (384, 420), (456, 404)], [54, 48, 28], caps='s')
    flame(S, 490, 322, 1.0, 6)

    def torch():
        S.limb([(486, 486), (489, 400), (492, 330)], [12, 17, 27], 'wood', 4.4)
        S.limb([(490, 342), (491, 318)], [36, 42], 'gold', 4)
    grip(S, 488, 402, (452, 405), 1.0, torch)
