# SPDX-License-Identifier: GPL-3.0-or-later
"""The Empress: enthroned, full face, before a throne whose back spreads like wings; the sceptre with the orb, the shield with the eagle."""
import math

from regal import *      # the vocabulary of scenes, see drawing.py

TITLE, NUM = "L'IMPERATRICE", 'III'
FIELD, PATTERN = 'lapis', 'damask'


def throne(S):
    """winged back, seat and step"""
    for _ in halves(S):
        wing(S, [(-60, 470), (-104, 330), (-176, 222)], (92, 104), (250, 330), 8, (('sky', 1), ('red', .62), ('sky', .32)), 44, 'gold',
             (30, 26, 18))
        S.fill(circ(-180, 216, 17), 'gold', 4.4)
        S.fill(circ(-180, 216, 7), 'red', 3)
    S.fill(rect(96, 700, 408, 190), 'gold', 5)
    for _ in halves(S):
        S.fill(rect(-192, 716, 60, 150, 4), 'red', 4)
        for y in (748, 790, 832):
            S.fill(poly([(-162, y-18), (-146, y), (-162, y+18), (-178, y)]), 'gold', 3.4)
    S.fill(rect(72, 876, 456, 34, 4), 'gold', 5)
    S.comb([(82, 882), (300, 882), (518, 882)], 90, 12, 44, 4)


def mantle(S):
    """green mantle falling from the shoulders to both sides of the seat"""
    for _ in halves(S):
        S.fill([(-30, 352, 'c'), (-78, 366), (-116, 420), (-128, 540), (-140, 680), (-176, 800), (-188, 884, 'c'), (-120, 874),
                (-60, 880, 'c'), (-40, 560)], 'green', 5.2)
        fold(S, [(-108, 560), (-124, 700), (-156, 868)], 9)
        fold(S, [(-120, 690), (-130, 780), (-136, 872)], 7)


def gown(S):
    seated_skirt(S, 'red', 556, 884, 66, 118, 136)
    S.fill([(300, 350, 'c'), (252, 346), (222, 366), (226, 430), (246, 500), (232, 574, 'c'), (300, 592), (368, 574, 'c'), (354, 500),
            (374, 430), (378, 366), (348, 346)], 'red', 5.2)
    S.comb([(372, 430), (353, 500), (364, 566)], 186, 22, 10, 4.6)
    # neckline, front band, girdle with its hanging end
    S.fill([(258, 340, 'c'), (276, 372), (300, 384), (324, 372), (342, 340, 'c'), (300, 352)], 'flesh', 4)
    band(S, [(248, 344), (270, 380), (300, 396), (330, 380), (352, 344)], 21, n=7, gems=('blue', 'pearl'))
    band(S, [(300, 404), (300, 540)], 22, n=5, gems=('pearl', 'blue'))
    band(S, [(236, 538), (300, 556), (364, 538)], 24, n=5, gems=('green', 'pearl'))
    S.limb([(300, 566), (296, 640), (302, 720)], [19, 18, 18], 'gold', 4.2)
    clasp(S, 300, 558, 20, 'blue')
    for x in (294, 303, 312):
        S.line([(x, 722), (x-1, 744)], 4, 'end')


def draw(S):
    ground(S, 900)
    throne(S)
    mantle(S)
    for x, f in ((262, False), (338, True)):
        shoe(S, x, 892, f, .9, 'blue')
    gown(S)
    # shield arm, then the shield with her fingers over its edge
    arm(S, (370, 392), (444, 500), (456, 580), 'green', 1, 'red')
    shield(S, 410, 610, 1.0, 7, 'blue')
    for i in range(4):
        finger(S, [(490-i*2, 578+i*13), (474-i*2, 578+i*13), (460-i*2, 580+i*13)], 13, 3.2)
    arm(S, (230, 392), (194, 540), (150, 566), 'green', 1, 'red', bulge=-14)
    fist(S, (204, 560), (150, 566), lambda: sceptre(S, 312, 130, 29), 1.1, 2)
    # ermine collar of the mantle
    for _ in halves(S):
        S.fill([(-34, 334, 'c'), (-64, 346), (-92, 378), (-86, 408), (-64, 396), (-44, 362, 'c')], 'white', 4.4)
        for x, y in ((-58, 366), (-74, 386), (-72, 364)):
            S.line([(x, y-7), (x-2, y+7)], 5, 'start')
    hair_back(S, 300, 262, 1.04)
    S.limb([(300, 300), (300, 356)], [46, 54], 'flesh', 4)
    S.comb([(324, 318), (326, 350)], 180, 13, 4, 3)
    S.stroke([(276, 346), (300, 358), (324, 346)], 3.6)
    for i in range(7):
        S.fill(circ(276+i*8, 346+10*math.sin(math.pi*i/6), 5), 'pearl', 2.6)
    face(S, 300, 262, 1.02, .22, sex='f')
    hair_front(S, 300, 262, 1.04)
    crown(S, 300, 212, 1.28, 5)
