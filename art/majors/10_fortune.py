# SPDX-License-Identifier: GPL-3.0-or-later
"""The Wheel of Fortune: a wheel with a crank between two posts; one beast falls, one climbs, a crowned sphinx with a sword rests on top."""
from regal import *      # the vocabulary of scenes, see drawing.py

TITLE, NUM = 'LA ROVE DE FORTVNE', 'X'
FIELD, PATTERN = 'night', 'stars'
HUB, RIM = (300, 566), 158


def water(S):
    """the sea the frame stands on"""
    S.fill([(-10, 884, 'c'), (60, 872), (120, 886), (180, 872), (240, 886), (300, 872), (360, 886), (420, 872), (480, 886), (540, 872),
            (610, 884, 'c'), (610, 1100, 'c'), (-10, 1100, 'c')], 'sky', 5)
    for r, y in enumerate((900, 920, 940)):
        for x in range(40+30*(r % 2), 580, 62):
            S.line([(x-26, y), (x-10, y-8), (x+6, y), (x+24, y-6)], 4, 'both')


def frame(S):
    """two posts on a sledge, joined by the axle"""
    for x in (132, 468):
        S.limb([(x, 560), (x, 860)], [32, 34], 'wood', 5)
        S.comb([(x+16, 580), (x+17, 850)], 180, 12, 20, 3.8)
        S.line([(x-6, 590), (x-8, 700), (x-5, 840)], 2.8)
    for a, b in (((132, 780), (196, 868)), ((468, 780), (404, 868))):
        S.limb([a, b], [20, 20], 'wood', 4.4)
    S.fill(rect(76, 852, 448, 30, 4), 'wood', 5)
    S.line([(88, 866), (300, 864), (512, 867)], 3)
    S.comb([(84, 857), (300, 857), (516, 857)], 90, 10, 44, 3.8)
    S.limb([(132, 566), (468, 566)], [20, 20], 'stone', 4.4)
    for x in (132, 468):
        S.fill(rect(x-24, 540, 48, 52, 6), 'gold', 4.6)
        for dx in (-14, 14):
            for dy in (-16, 16):
                S.dot(x+dx, 566+dy, 3)


def wheel(S):
    """six spokes, rim of gold and red, studded"""
    x, y = HUB
    for i in range(6):
        a = i*60+30
        p, q = pol(x, y, 30, a), pol(x, y, RIM-22, a)
        S.limb([p, between(p, q, .5), q], [17, 22, 17], 'sky', 4.4)
        S.fill(circ(*between(p, q, .5), 14), 'gold', 3.8)
        S.fill(circ(*between(p, q, .5), 5.5), 'red', 2.6)
    # the rim is laid in short felloes, so that the space between the spokes stays open
    n = 24
    for i in range(n):
        a0, a1 = i*360/n, (i+1)*360/n+.5
        S.fill([pol(x, y, RIM-26, a0)+('c',), pol(x, y, RIM, a0)+('c',), pol(x, y, RIM+.8, (a0+a1)/2), pol(x, y, RIM, a1)+('c',),
                pol(x, y, RIM-26, a1)+('c',), pol(x, y, RIM-26, (a0+a1)/2)], 'gold' if i % 2 else 'red', 4)
    for r in (RIM+1, RIM-26):
        S.stroke(circ(x, y, r), 4.6)
    for i in range(n):
        S.fill(circ(*pol(x, y, RIM-13, (i+.5)*360/n), 4.4), 'pearl' if i % 2 == 0 else 'blue', 2.6)
    S.fill(circ(x, y, 38), 'gold', 5)
    S.fill(circ(x, y, 27), 'red', 3.8)
    S.fill(circ(x, y, 15), 'gold', 4)


def crank(S):
    """bent handle on the axle, turned by nobody"""
    S.limb([(300, 566), (356, 616)], [17, 17], 'stone', 4.4)
    S.limb([(352, 600), (350, 690)], [18, 18], 'stone', 4.4)
    S.limb([(344, 688), (408, 700)], [20, 17], 'wood', 4.4, 'se')
    S.fill(circ(353, 612, 12), 'gold', 4)
    S.fill(circ(351, 688, 11), 'gold', 4)
    S.fill(circ(300, 566, 11), 'gold', 4)


def paw(S, x, y, rot=0, pig='gold', k=1):
    """paw with three claws, toes to the left"""
    with S.at(x, y, k, rot):
        S.fill([(14, -12, 'c'), (-4, -14), (-20, -8), (-24, 2), (-16, 10), (14, 12, 'c')], pig, 3.6)
        S.line([(-8, -8), (-19, -5)], 2.6)
        S.line([(-8, 1), (-22, 2)], 2.6)


def climbing_dog(S):
    """hound in a blue coat that climbs the right side, muzzle up"""
    S.limb([(486, 700), (524, 716), (536, 762), (512, 784)], [16, 14, 11, 6], 'gold', 4)
    limb(S, [(486, 676), (520, 716), (476, 728)], [52, 40, 24], 'gold', 4.6, 'se', 7)
    paw(S, 452, 690, 40, 'gold', 1.1)
    limb(S, [(478, 720), (462, 704)], [24, 24], 'gold', 4, '', 4)
    S.fill([(452, 470, 'c'), (500, 474), (530, 530), (530, 610), (516, 680), (494, 700), (464, 680), (470, 600), (458, 530)], 'blue', 5)
    S.comb([(526, 530), (526, 610), (512, 672)], 186, 22, 10, 4.4)
    for p in ([(492, 560), (498, 620), (490, 680)], [(474, 600), (478, 640), (474, 676)]):
        fold(S, p, 6)
    S.limb([(466, 680), (490, 700), (518, 680)], [14, 14, 14], 'red', 3.8)
    limb(S, [(484, 500), (444, 524), (414, 492)], [38, 32, 22], 'gold', 4.6, 's', 6)
    paw(S, 408, 478, 60, 'gold', 1.1)
    # head thrown up, ear, collar
    S.limb([(448, 478), (482, 494), (516, 482)], [18, 18, 18], 'red', 4)
    S.fill([(456, 474, 'c'), (452, 436), (444, 404), (436, 366), (446, 356), (462, 360), (472, 388), (500, 400), (520, 432),
            (512, 476, 'c'), (484, 484)], 'gold', 4.8)
    S.fill([(488, 404, 'c'), (516, 406), (534, 440), (530, 470), (512, 468), (502, 436, 'c')], 'wood', 4.2)
    S.fill(circ(441, 361, 8), 'dark', 3)
    S.line([(452, 398), (462, 388), (461, 372)], 3.6)
    S.fill([(470, 408, 'c'), (478, 402), (488, 410, 'c'), (478, 416)], 'white', 0)
    S.dot(478, 409, 5)
    S.line([(466, 410), (477, 399), (491, 409)], 4)
    S.comb([(500, 440), (508, 470)], 200, 15, 5, 3.6)


def falling_ape(S):
    """ape in a red kilt that goes down on the left side, head first"""
    S.limb([(116, 470), (84, 450), (70, 404), (92, 376), (112, 392), (100, 410)], [15, 14, 12, 10, 8, 5], 'wood', 4)
    for p, (px, py), r in (([(144, 512), (136, 470), (166, 478)], (182, 484), 205), ([(112, 508), (86, 446), (148, 430)], (178, 436), 196)):
        limb(S, p, [42, 35, 22], 'wood', 4.6, 'se', 6)
        paw(S, px, py, r, 'flesh', .95)
    S.fill([(98, 520), (88, 580), (96, 640), (120, 664), (148, 650), (154, 590), (160, 530), (130, 500)], 'wood', 5)
    S.comb([(152, 600), (148, 636), (130, 656)], 200, 18, 6, 4)
    for y in (590, 606, 622):
        S.line([(104, y), (110, y+8), (114, y+18)], 3, 'end')
    S.fill([(82, 480, 'c'), (92, 520), (88, 570, 'c'), (120, 584), (158, 572, 'c'), (166, 530), (172, 486, 'c'), (150, 500), (128, 490),
            (104, 500)], 'red', 5)
    for p in ([(104, 574), (106, 530), (102, 506)], [(124, 580), (128, 540), (128, 498)], [(144, 574), (150, 530), (150, 506)]):
        fold(S, p, 6)
    S.limb([(86, 574), (120, 588), (158, 576)], [14, 14, 14], 'gold', 3.8)
    limb(S, [(142, 632), (186, 668), (204, 700)], [36, 30, 20], 'wood', 4.6, 's', 7)
    limb(S, [(102, 636), (74, 690), (92, 738)], [36, 30, 20], 'wood', 4.6, 's', 7)
    paw(S, 208, 708, 236, 'flesh', 1)
    paw(S, 96, 750, 256, 'flesh', 1)
    # head upside down, face to the viewer
    with S.at(130, 704, 1.02, 166):
        for f in (-1, 1):
            S.fill(circ(f*42, 0, 13, 15), 'flesh', 4)
            S.line([(f*42-4, -6), (f*42+3, 0), (f*42-3, 7)], 2.6)
        S.fill([(0, -46), (-34, -34), (-42, 2), (-34, 30), (0, 46), (34, 30), (42, 2), (34, -34)], 'wood', 4.8)
        S.fill([(0, -18, 'c'), (-20, -26), (-31, -8), (-22, 12), (-27, 26), (0, 42), (27, 26), (22, 12), (31, -8), (20, -26)], 'flesh', 4)
        for f in (-1, 1):
            eye(S, f*13, -8, .86, 1, -1)
        S.line([(-26, -20), (-12, -23), (0, -17), (12, -23), (26, -20)], 4)
        S.line([(-4, 10), (0, 13), (4, 10)], 4)
        S.line([(-18, 24), (0, 30), (18, 24)], 4)


def sphinx(S):
    """crowned sphinx on its board, winged, the sword shouldered"""
    S.fill(rect(196, 378, 208, 26, 5), 'gold', 5)
    S.comb([(202, 384), (300, 384), (398, 384)], 90, 10, 22, 3.8)
    S.limb([(368, 372), (412, 366), (426, 330), (408, 300), (396, 314)], [13, 12, 11, 9, 7], 'gold', 4)
    S.fill([(404, 316, 'c'), (390, 312), (384, 294), (398, 284, 'c'), (414, 298)], 'red', 3.6)
    for f in (False, True):
        with S.at(300, 0, 1, 0, f):
            wing(S, [(-28, 304), (-64, 250), (-118, 230)], (108, 138), (84, 66), 7, (('sky', 1), ('blue', .56)), 25, 'gold', (18, 16, 9))
    # haunches, breast, forelegs
    for f in (-1, 1):
        S.fill(circ(300+f*46, 344, 31, 34), 'gold', 4.8)
        paw(S, 300+f*62, 372, 0 if f < 0 else 180, 'gold', 1.05)
    S.comb([(374, 334), (372, 358)], 190, 14, 4, 3.6)
    S.fill([(268, 268, 'c'), (254, 300), (262, 350), (276, 376, 'c'), (324, 376, 'c'), (338, 350), (346, 300), (332, 268, 'c')], 'gold', 5)
    for x in (282, 318):
        limb(S, [(x, 312), (x, 346), (x, 370)], [32, 27, 24], 'gold', 4.4, '', 6)
        S.fill([(x-18, 378, 'c'), (x-17, 364), (x, 358), (x+17, 364), (x+18, 378, 'c')], 'gold', 4)
        for d in (-6, 6):
            S.line([(x+d, 367), (x+d, 377)], 3)
    S.fill([(262, 276, 'c'), (276, 312), (300, 326), (324, 312), (338, 276, 'c'), (300, 262)], 'red', 4.4)
    for x, y in ((280, 290), (300, 306), (320, 290)):
        S.fill(circ(x, y, 5), 'gold', 2.6)
    # sword arm
    limb(S, [(264, 296), (238, 342), (208, 344)], [36, 30, 22], 'gold', 4.4, 's', 6)
    with S.at(182, 342, .7):
        fist(S, (70, 0), (28, 0), lambda: sword(S, 300, 17, 'red'), .98, -4)
    # head and crown
    hair_back(S, 300, 212, .76, low=70)
    S.limb([(300, 244), (300, 276)], [34, 42], 'flesh', 4)
    face(S, 300, 212, .76, .2, sex='f', lw=4.6)
    hair_front(S, 300, 212, .76, low=62)
    crown(S, 300, 176, .9, 5)


def draw(S):
    water(S)
    frame(S)
    wheel(S)
    crank(S)
    climbing_dog(S)
    falling_ape(S)
    sphinx(S)
