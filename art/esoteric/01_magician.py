# SPDX-License-Identifier: GPL-3.0-or-later
import math

from drawing import *      # the vocabulary of scenes, see drawing.py
from engraving import *      # the vocabulary of scenes, see drawing.py
NUM, HEB, GLYPH, FOCUS = 'I', 'ב', 'mercury', (300, 350)
def rose(S, x, y, k=1):
    with S.at(x, y, k):
        for r, n, o in ((23, 5, 0), (15, 5, 36)):
            for i in range(n):
                a = o+i*72-90; S.fill([pol(0, 0, r*.25, a-40), pol(0, 0, r*.95, a-34), pol(0, 0, r*1.15, a), pol(0, 0, r*.95, a+34), pol(0, 0, r*.25, a+40)], 'ind', 2.6)
        S.fill(circ(0, 0, 7), 'leaf', 0)
def vleaf(S, x, y, k, rot, flip=False):
    with S.at(x, y, k, rot, flip):
        S.fill([(0, 0, 'c'), (14, -13), (36, -12), (52, 0, 'c'), (34, 10), (12, 9)], 'ind', 2.4); S.line([(2, 0), (24, -2), (48, 0)], 1.8, 'end')
        for t in (14, 24, 34): S.line([(t, -1.5), (t+8, -9)], 1.2, 'end'); S.line([(t, -.5), (t+8, 7)], 1.2, 'end')
def lily(S, x, y, k, rot):
    with S.at(x, y, k, rot):
        for a in (-42, 42, -20, 20, 0): S.fill(poly(ribbon([(0, 0), pol(0, 0, 24, a-90), pol(0, 0, 46, a*1.25-90)], lambda t: 19*math.sin(math.pi*min(1, .12+.88*t))**.8+.4)), 'ind', 2.4); 
        for a in (-30, 0, 30): S.line([(0, -2), pol(0, 0, 30, a-90)], 1.4, 'end'); S.dot(*pol(0, 0, 33, a-90), 1.8)
def vine(S, d):
    with S.at(300, 0, 1, 0, d > 0):
        p = [(-206, 150), (-222, 230), (-200, 310), (-222, 390), (-200, 470), (-222, 550), (-200, 630), (-216, 716)]
        S.line(p, 4.4, 'flat')
        for i, (x, y) in enumerate(sample(p, n=2)):
            vleaf(S, x, y, .62, (-150 if i % 2 else -35)+(i*37 % 22), False)
        for i, (x, y) in enumerate(p[:-1]): (rose(S, x, y, 1.0) if i % 2 == 0 else lily(S, x, y+10, .82, 0))
def rays_below(S):
    radial(S, 300, 740, 60, lambda i: (190, 130, 160, 120)[i % 4], 60, 1.6, 180, 360)
def draw(S):
    x, y = 300, 372
    radial(S, x, 176, 70, lambda i: (360, 210, 300, 190)[i % 4], 120, 1.8)
    # halo ring
    S.fill(circ(x, y, 150), 'night', 3); ring(S, x, y, 144, 1.2); rosette(S, x, y, 144, 118, 5, .9, 480); ring(S, x, y, 118, 1.4); S.stroke(circ(x, y, 113), 2.6)
    radial(S, x, y, 30, lambda i: 110 if i % 2 else 92, 72, 1.4)
    # lemniscate
    p = [(300+118*math.cos(t)/(1+math.sin(t)**2), 172+104*math.sin(t)*math.cos(t)/(1+math.sin(t)**2)) for t in (2*math.pi*i/96 for i in range(96))]
    for w, pig in ((30, '#'),):
        S.fill(poly(ribbon([q for q in p]+[p[0], p[1]], lambda t: 25, 3)), 'deep', 3)
        S.fill(poly(ribbon(p[20:29], lambda t: 25, 3)), 'deep', 0)
        for off in (-7, 0, 7):
            ns = normals(p+[p[0]]); S.stroke(poly([(q[0]+n[0]*off, q[1]+n[1]*off) for q, n in zip(p, ns)], False), 2 if off else 4)
    star(S, 300, 172, 26, 8, .34, 'leaf')
    for d in (-1, 1): vine(S, d)
    # raised arm, sleeve and wand
    def rod():
        S.limb([(300, 236), (300, 520)], [13, 13], 'deep', 3); S.stroke('M300 240V516', 1.4)
        for yy, s in ((232, -1), (524, 1)):
            S.fill([(300, yy+s*34, 'c'), (287, yy+s*10), (293, yy-s*2, 'c'), (307, yy-s*2, 'c'), (313, yy+s*10)], 'leaf', 2); S.fill(circ(300, yy-s*2, 9), 'leaf', 2)
        for yy in (262, 272, 494, 484): S.line([(292, yy), (308, yy)], 2.4, 'flat')
    with S.at(300, 372, 1, 46):
        S.fill([(58, -24, 'c'), (150, -62), (222, -92, 'c'), (236, 0), (222, 92, 'c'), (150, 56), (58, 24, 'c')], 'ind', 3.4)
        for i in range(9): f = (i-4)/4; S.line([(226, 86*f), (150, 54*f), (66, 20*f)], 2.2, 'end')
        S.fill(poly([(52, -30), (74, -36), (74, 36), (52, 30)]), 'leaf', 2)
    hand_fist(S, 300, 372, 1.75, 36, lw=2.7, rod=rod)
    # cloud at the cuff
    for q in ((452, 250, 0), (476, 236, 0)): pass
    rays_below(S)
    # altar
    S.fill(poly([(166, 742), (434, 742), (470, 792), (130, 792)]), 'ind', 3.4)
    S.fill(poly([(130, 792), (470, 792), (470, 812), (130, 812)]), 'deep', 3); 
    for i in range(17): S.line([(140+i*20, 796), (150+i*20, 808)], 2, 'both')
    S.fill(poly([(152, 812), (448, 812), (448, 990), (152, 990)]), 'night', 3)
    for i in range(27): S.line([(440-i*4.6*(1+i*.02), 818), (440-i*4.6*(1+i*.02), 984)], 2.4*(1-i/30), 'flat')
    S.fill(circ(300, 900, 62), 'deep', 3); ring(S, 300, 900, 55, 1.2)
    S.fill(poly([pol(300, 900, 50, -90+120*i) for i in range(3)]), 'ind', 2.6); S.fill(poly([pol(300, 900, 50, 90+120*i) for i in range(3)]), 'ind', 2.6)
    S.stroke(poly([pol(300, 900, 50, -90+120*i) for i in range(3)]), 2.6); S.fill(circ(300, 900, 13), 'leaf', 0); dots(S, 300, 900, 58.5, 40, 1.4)
    # four emblems
    with S.at(214, 776, 1.5): cup(S, 0, 0, 1, 'ind', 2.6)
    with S.at(386, 724, 1):
        S.fill(circ(0, 0, 44), 'ind', 3.2); ring(S, 0, 0, 37, 1.4)
        q = [pol(0, 0, 36, -90+144*i) for i in range(5)]; S.stroke(poly(q), 4); dots(S, 0, 0, 40.5, 36, 1.2)
    with S.at(300, 764, 1, 14):    # sword standing
        S.fill([(-7, -36, 'c'), (-6, -150), (0, -172, 'c'), (6, -150), (7, -36, 'c')], 'ind', 2.6); S.line([(0, -40), (0, -160)], 1.8, 'end')
        S.fill([(-34, -40, 'c'), (-38, -32), (-30, -26), (0, -30), (30, -26), (38, -32), (34, -40, 'c'), (0, -37)], 'leaf', 2); S.limb([(0, -30), (0, 2)], [9, 8], 'deep', 2.6)
        for t in range(4): S.line([(-4, -24+t*7), (4, -21+t*7)], 1.6, 'flat')
        S.fill(circ(0, 6, 8), 'leaf', 2)
