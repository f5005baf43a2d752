# SPDX-License-Identifier: GPL-3.0-or-later
import math

from drawing import *      # the vocabulary of scenes, see drawing.py
TITLE, NUM = 'LE SOLEIL', 'XVIIII'
FIELD, PATTERN = 'lapis', 'stars'
def rays(S, x, y, r0, r1, n=8):
    for i in range(2*n):   # fine lines between
        a = (i+.5)*180/n
        for d in (-3.4, 0, 3.4): S.line([pol(x, y, r0+4, a+d), pol(x, y, r0+(r1-r0)*(.62 if d == 0 else .46), a+d)], 3, 'end')
    for i in range(n):     # wavy
        a = math.radians(i*360/n+180/n-90); L = r1-r0
        def P(u, v): return (x+math.cos(a)*(r0-8+u*L)-math.sin(a)*v, y+math.sin(a)*(r0-8+u*L)+math.cos(a)*v)
        c = [P(0, 0), P(.25, 13), P(.5, -13), P(.75, 11), P(1, -4)]
        S.fill(poly(ribbon(c, lambda t: 42*(1-t)**.9+.5)), 'red', 4.5)
        S.line([P(.05, 0), P(.25, 13), P(.5, -13), P(.72, 9)], 4, 'end')
    for i in range(n):     # straight, half lit
        a = i*360/n-90; b = 180/n*.62
        tip = pol(x, y, r1+6, a); l = pol(x, y, r0-6, a-b); r = pol(x, y, r0-6, a+b)
        S.fill(poly([l, tip, r]), 'gold', 4.5)
        m = pol(x, y, r0-6, a); S.fill(poly([m, tip, r]), 'fire', 2.6)
        with S.clip(poly([m, tip, r])):
            S.comb([r, ((r[0]+tip[0])/2, (r[1]+tip[1])/2), tip], a+200, 15, 15, 4)

def drop(S, x, y, k, pig):
    with S.at(x, y, k):
        S.fill([(0, -24, 'c'), (5, -8), (11, 6), (8, 17), (0, 21), (-8, 17), (-11, 6), (-5, -8)], pig, 3.6); S.line([(-5, 4), (-5, 11), (-1, 15)], 2.4)

def twin(S, flip, coat, sash):
    with S.at(300, 0, 1, 0, flip):     # drawn left of the axis, looking to the right
        for q in (([(-92, 800), (-98, 850), (-104, 902)], -1), ([(-54, 800), (-44, 850), (-40, 902)], 1)):
            p = q[0]; S.limb(p, [40, 36, 22], 'flesh', 4.5); S.comb([(p[0][0]+16, 806), (p[1][0]+15, 850), (p[2][0]+9, 896)], 180, 10, 9, 3)
            x = p[2][0]; S.fill(path([(x-11, 898, 'c'), (x+11, 898, 'c'), (x+24, 908), (x+42, 914), (x+44, 922, 'c'), (x-13, 922, 'c')]), 'flesh', 4)
        S.limb([(-104, 640), (-134, 700), (-126, 752)], [38, 36, 24], 'flesh', 4.5, 's')
        # tunic
        S.fill([(-76, 618, 'c'), (-104, 626), (-112, 660), (-106, 706), (-118, 760), (-126, 812, 'c'), (-98, 820), (-72, 814), (-46, 820), (-18, 810, 'c'), (-26, 760), (-36, 706), (-28, 660), (-34, 628), (-56, 618, 'c')], coat, 5)
        for p in ([(-98, 716), (-104, 760), (-108, 808)], [(-82, 718), (-86, 770), (-86, 812)], [(-66, 718), (-64, 770), (-62, 814)], [(-50, 716), (-44, 760), (-40, 808)]): fold(S, p, 5.5)
        S.comb([(-32, 650), (-40, 700), (-32, 760), (-26, 800)], 188, 16, 12, 4)
        S.limb([(-110, 702), (-72, 712), (-34, 702)], [17, 17, 17], sash, 4)
        S.fill(circ(-126, 760, 13, 16), 'flesh', 4); S.line([(-132, 768), (-128, 758), (-130, 752)], 2); S.line([(-122, 772), (-120, 762)], 2)
        S.limb([(-68, 590), (-67, 622)], [28, 32], 'flesh', 4); S.limb([(-88, 624), (-67, 632), (-46, 624)], [9, 9, 9], sash, 3.4)
        # head
        S.fill([(-78, 498), (-108, 516), (-118, 552), (-112, 584), (-96, 600), (-70, 596), (-40, 560), (-40, 510)], 'hair', 4)
        face(S, -64, 560, .76, .7, True, 'f', 4.6)
        curls(S, [(-100, 590), (-111, 566), (-112, 540), (-103, 517), (-84, 503), (-62, 500), (-42, 510)], 15, 'hair', 3.4)
        # arm on the other's shoulder
        S.limb([(-46, 648), (-14, 662), (22, 650)], [36, 31, 22], 'flesh', 4.5, 's')
        S.comb([(-38, 664), (-14, 676), (16, 662)], 270, 9, 8, 3)
        S.fill([(16, 640, 'c'), (34, 634), (50, 636), (54, 646), (44, 656), (22, 660, 'c')], 'flesh', 3.8); S.line([(34, 642), (46, 642), (52, 644)], 2); S.line([(34, 649), (44, 650), (50, 650)], 2)

def draw(S):
    x, y = 300, 296
    rays(S, x, y, 108, 214); sunface(S, x, y, 1.08)
    cols = ['red', 'sky', 'gold']
    for i, (dx, dy) in enumerate(((-224, 20), (224, 20), (-196, 150), (196, 150), (-128, 236), (128, 236), (-236, -120), (236, -120), (-78, 250), (78, 250), (-230, 96), (230, 96))):
        drop(S, x+dx, y+dy, .95, cols[(i//2) % 3])
    # wall
    S.fill(rect(-20, 706, 640, 190), 'red', 5)
    r = 0
    for yy in range(736, 896, 27):
        S.line([(-10, yy), (150, yy+1), (300, yy-1), (450, yy+1), (610, yy)], 3.4, 'flat')
        for xx in range(-20+(r % 2)*36, 620, 72):
            S.line([(xx, yy-26), (xx+1, yy-1)], 3.4, 'flat')
            if S.random.random() < .4: S.comb([(xx+6, yy-22), (xx+6, yy-4)], 0, 12, 3, 3)
        r += 1
    S.fill(rect(-20, 684, 640, 26), 'gold', 5); S.comb([(0, 688), (300, 688), (600, 688)], 90, 8, 60, 3.4)
    ground(S, 888)
    for q in ((60, 912, .9), (545, 914, .9), (300, 930, .8), (180, 938, .55), (420, 938, .55)): tuft(S, *q)
    twin(S, True, 'sky', 'red'); twin(S, False, 'blue', 'gold')
