# SPDX-License-Identifier: GPL-3.0-or-later
"""Justice: enthroned, full face under a crown-like hat, the sword upright in her right hand and the level scales in her left."""
from regal import *      # the vocabulary of scenes, see drawing.py

TITLE, NUM = 'LA IVSTICE', 'VIII'
FIELD, PATTERN = 'crimson', 'damask'


def throne(S):
    """niche with a scallop shell behind the head, arms ending in balls, step"""
    S.fill(rect(124, 330, 352, 560), 'gold', 5)
    S.fill(rect(136, 340, 328, 540), 'sky', 4.4)
    with S.clip(rect(136, 340, 328, 540)):
        for i in range(-8, 10):
            S.line([(136+i*46, 330), (136+i*46+560, 890)], 2.6, 'flat')
            S.line([(464-i*46, 330), (464-i*46-560, 890)], 2.6, 'flat')
    c, r = (300, 344), 196
    for i in range(11):
        a0, a1 = 180+i*180/11, 180+(i+1)*180/11
        m = (a0+a1)/2
        S.fill([c+('c',), pol(*c, r*.9, a0)+('c',), pol(*c, r, m-4), pol(*c, r, m+4), pol(*c, r*.9, a1)+('c',)],
               'green' if i % 2 else 'gold', 4.4)
        S.line([pol(*c, 70, m), pol(*c, r*.88, m)], 4, 'start')
    for _ in halves(S):
        S.fill(rect(-216, 330, 50, 560), 'green', 5)
        S.comb([(-172, 350), (-172, 870)], 180, 14, 30, 3.8)
        for y in (420, 520, 620, 720, 820):
            S.fill(poly([(-191, y-20), (-179, y), (-191, y+20), (-203, y)]), 'gold', 3.4)
        S.fill(rect(-222, 322, 62, 20, 4), 'gold', 4.4)
        S.fill(circ(-191, 300, 22), 'gold', 4.6)
        S.stroke([(-211, 298), (-191, 306), (-171, 298)], 3)
        S.fill(circ(-191, 274, 8), 'red', 3.6)
    S.fill(rect(70, 876, 460, 34, 4), 'gold', 5)
    S.comb([(80, 882), (300, 882), (520, 882)], 90, 12, 44, 4)


def scales(S):
    """balance around its grip: ring above, level beam and two pans below"""
    S.limb([(0, -46), (0, 56)], [11, 12], 'gold', 4)
    S.fill('M-15 -58a15 15 0 1 1 30 0a15 15 0 1 1 -30 0Z', 'gold', 3.6)
    S.fill(circ(0, -58, 6.5), 'red', 2.6)
    for f in (-1, 1):
        for dx in (-30, 30):
            S.line([(f*60, 66), (f*60+dx, 182)], 3.4, 'flat')
        S.fill([(f*60-37, 182, 'c'), (f*60-26, 206), (f*60, 214), (f*60+26, 206), (f*60+37, 182, 'c')], 'gold', 4.4)
        S.fill(circ(f*60, 182, 37, 8), 'white', 3.6)
    S.fill([(-66, 66, 'c'), (-64, 54), (-20, 60), (0, 44), (20, 60), (64, 54), (66, 66, 'c'), (20, 74), (0, 71), (-20, 74)], 'gold', 4.2)
    for f in (-1, 1):
        S.fill(circ(f*60, 62, 8), 'red', 3.4)
    S.fill([(-7, 58, 'c'), (0, 108, 'c'), (7, 58, 'c')], 'gold', 3.2)


def draw(S):
    ground(S, 900)
    throne(S)
    # mantle
    S.fill([(300, 350, 'c'), (236, 354), (196, 392), (172, 520), (152, 700), (136, 884, 'c'), (464, 884, 'c'), (448, 700), (428, 520),
            (404, 392), (364, 354)], 'blue', 5.4)
    for _ in halves(S):
        fold(S, [(-122, 600), (-134, 720), (-146, 870)], 9)
    for x, f in ((262, False), (338, True)):
        shoe(S, x, 894, f, .9, 'blue')
    seated_skirt(S, 'red', 560, 884, 68, 116, 128, n_hem=11)
    # mantle drawn across the lap
    S.fill([(226, 566, 'c'), (188, 640), (182, 700, 'c'), (230, 744), (300, 760), (370, 744), (418, 700, 'c'), (412, 640),
            (374, 566, 'c'), (300, 590)], 'blue', 5.2)
    for p in ([(214, 620), (250, 690), (300, 712)], [(230, 600), (262, 658), (300, 672)], [(386, 620), (350, 690), (306, 712)],
               [(370, 600), (338, 658), (306, 672)]):
        fold(S, p, 8)
    S.comb([(412, 650), (412, 690), (376, 730)], 200, 22, 9, 4.6)
    S.limb([(184, 702), (230, 746), (300, 762), (370, 746), (416, 702)], [13]*5, 'gold', 4)
    # bodice
    S.fill([(300, 352, 'c'), (252, 350), (224, 372), (230, 440), (248, 510), (230, 580, 'c'), (300, 600), (370, 580, 'c'), (352, 510),
            (370, 440), (376, 372), (348, 350)], 'red', 5.2)
    S.comb([(368, 430), (352, 504), (364, 570)], 186, 22, 10, 4.6)
    band(S, [(236, 548), (300, 564), (364, 548)], 23, n=6, gems=('blue', 'pearl'))
    S.limb([(254, 352), (280, 440), (300, 552)], [17, 16, 15], 'gold', 4)
    S.limb([(346, 352), (320, 440), (300, 552)], [17, 16, 15], 'gold', 4)
    clasp(S, 300, 556, 21, 'blue')
    # sword and scales
    arm(S, (230, 394), (190, 540), (158, 548), 'blue', 1, 'red', bulge=-14)
    fist(S, (200, 544), (158, 552), lambda: sword(S, 390, 16, 'blue'), 1.1, 11)
    arm(S, (370, 394), (392, 500), (420, 496), 'blue', 1, 'red', bulge=16)
    fist(S, (380, 502), (420, 496), lambda: scales(S), 1.1, 8)
    # collar, hair, head
    S.fill([(240, 356, 'c'), (256, 336), (300, 352), (344, 336), (360, 356, 'c'), (338, 386), (300, 396), (262, 386)], 'gold', 4.6)
    for x, y in ((260, 362), (280, 374), (300, 378), (320, 374), (340, 362)):
        S.fill(circ(x, y, 5.4), 'red', 2.4)
    hair_back(S, 300, 268, 1.0, w=54, low=64)
    S.limb([(300, 304), (300, 352)], [46, 54], 'flesh', 4)
    S.comb([(322, 322), (325, 348)], 180, 13, 4, 3)
    face(S, 300, 268, 1.02, 0, sex='f')
    for f in (1, -1):      # plaits
        for i in range(5):
            S.fill(circ(300-f*(48+i*3.4), 258+i*20, 12), 'hair', 3.4)
            S.line([(300-f*(38+i*3.4), 252+i*20), (300-f*(50+i*3.4), 262+i*20), (300-f*(58+i*3.4), 258+i*20)], 2.6)
        S.fill(circ(300-f*64, 354, 7), 'red', 3)
    # hat: cap, crown band, the disc of clear sight
    S.fill([(252, 228, 'c'), (240, 186), (254, 148), (300, 128), (346, 148), (360, 186), (348, 228, 'c'), (300, 238)], 'red', 5)
    S.comb([(344, 150), (358, 186), (346, 222)], 190, 18, 8, 4.4)
    tiara_tier(S, 300, 226, 54, 1.25)
    S.fill(circ(300, 180, 15), 'gold', 4)
    S.fill(circ(300, 180, 7), 'sky', 3)
    S.fill(circ(300, 124, 9), 'gold', 3.6)
