# SPDX-License-Identifier: GPL-3.0-or-later
import math

from drawing import *      # the vocabulary of scenes, see drawing.py
from engraving import *      # the vocabulary of scenes, see drawing.py
NUM, HEB, GLYPH, FOCUS = 'XIX', 'ר', 'sun', (300, 400)
def sleeve(S, d):
    with S.at(300, 0, 1, 0, d > 0):
        S.fill([(-250, 990, 'c'), (-226, 900), (-184, 806, 'c'), (-142, 826, 'c'), (-150, 910), (-130, 990, 'c')], 'ind', 3.6)
        S.fill([(-192, 806, 'c'), (-186, 790, 'c'), (-134, 812, 'c'), (-140, 830, 'c')], 'leaf', 3)
        for i in range(7): S.line([(-240+i*17, 984), (-216+i*10, 900), (-182+i*6, 822)], 2.2, 'end')
        hand_open(S, -160, 806, 1.72, 14, lw=2.6)
def sunflower(S, x, y, k):
    with S.at(x, y, k):
        for i in range(20):
            a = i*18; S.fill(poly(ribbon([pol(0, 0, 24, a), pol(0, 0, 42, a), pol(0, 0, 62, a)], lambda t: 15*math.sin(math.pi*min(1, .15+.85*t))+.4)), 'ind', 2.2); S.line([pol(0, 0, 26, a), pol(0, 0, 50, a)], 1.6, 'end')
        S.fill(circ(0, 0, 28), 'deep', 3)
        for i in range(90):
            r = 2.75*math.sqrt(i); S.dot(*pol(0, 0, r, i*137.508), 1.25)
def draw(S):
    x, y = 300, 392
    radial(S, x, y, 262, lambda i: (560, 420, 500, 380)[i % 4], 144, 1.9)
    rosette(S, x, y, 262, 214, 6, .9, 480)
    S.fill(circ(x, y, 214), 'night', 3); ring(S, x, y, 208, 1.2); ring(S, x, y, 178, 1.2); S.stroke(circ(x, y, 172), 2.4)
    names = list(ZOD)
    for i, n in enumerate(names):
        a = -75+i*30; px, py = pol(x, y, 193, a); glyph(S, n, px, py, .2, 15)
        S.line([pol(x, y, 178, a+15), pol(x, y, 208, a+15)], 2, 'flat')
    S.fill(circ(x, y, 171), 'ind', 0)
    radial(S, x, y, 100, 168, 96, 1.5, k='line')
    for i in range(16):
        a = i*22.5-90; b = 7.6
        if i % 2 == 0:
            tip = pol(x, y, 168, a); S.fill(poly([pol(x, y, 92, a-b), tip, pol(x, y, 92, a+b)]), 'deep', 3); S.fill(poly([pol(x, y, 92, a), tip, pol(x, y, 92, a+b)]), 'leaf', 1)
        else:
            A = math.radians(a); P = lambda u, v: (x+math.cos(A)*u-math.sin(A)*v, y+math.sin(A)*u+math.cos(A)*v)
            S.fill(poly(ribbon([P(90, 0), P(108, 8), P(128, -8), P(146, 6), P(162, -2)], lambda t: 23*(1-t)**.9+.5)), 'deep', 3); S.line([P(92, 0), P(108, 8), P(128, -8), P(142, 4)], 2.2, 'end')
    S.chased = True; sunface(S, x, y, .94); S.chased = False
    ring(S, x, y, 99, 2.4)
    # horizon hills
    for j, (h, f) in enumerate(((700, 'night'), (748, 'deep'))):
        p = [(30, h+26), (130, h-8+j*22), (300, h+36-j*18), (470, h-8+j*22), (570, h+26)]
        S.fill(p[:1]+p[1:-1]+[(570, h+26, 'c'), (570, 1060, 'c'), (30, 1060, 'c')], f, 3)
        for i in range(1, 12): S.line([(q[0], q[1]+i*(5+i*.5)) for q in p], 1.5, 'both')
    for d in (-1, 1):
        S.line([(300+d*52, 990), (300+d*46, 900), (300+d*62, 800)], 5, 'flat')
        for yy, s in ((930, 1), (880, -1)):
            lx = 300+d*48; S.fill([(lx, yy, 'c'), (lx+d*s*18, yy-26), (lx+d*s*46, yy-30, 'c'), (lx+d*s*34, yy-8)], 'ind', 2.4); S.line([(lx, yy), (lx+d*s*20, yy-16), (lx+d*s*40, yy-27)], 1.5)
        sunflower(S, 300+d*62, 784, .92)
    S.line([(300, 990), (300, 860)], 5, 'flat'); sunflower(S, 300, 852, .8)
    for d in (-1, 1): sleeve(S, d)
