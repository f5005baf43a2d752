# SPDX-License-Identifier: GPL-3.0-or-later
from drawing import *      # the vocabulary of scenes, see drawing.py
from engraving import *      # the vocabulary of scenes, see drawing.py
NUM, HEB, GLYPH, FOCUS = 'XVI', 'פ', 'mars', (300, 330)
def yod(S, x, y, k):
    with S.at(x, y, k): S.fill([(-7, -10, 'c'), (2, -9), (8, -4), (6, 8), (-3, 16, 'c'), (0, 6), (-2, 0), (-8, -2)], 'leaf', 0)
def wave(S, y, n, r, f):
    for i in range(n):
        x = 30+i*(540/(n-1))
        S.fill(circ(x, y+r*.5, r), f, 2.4)
        for q in (.76, .54, .32): S.stroke(circ(x, y+r*.5, r*q), 1.3)
def rock(S, d):
    with S.at(300, 0, 1, 0, d > 0):
        fac = [[(-40, 800), (-110, 800), (-96, 842), (-60, 838)], [(-110, 800), (-150, 836), (-130, 880), (-96, 842)], [(-60, 838), (-96, 842), (-130, 880), (-84, 902), (-40, 880)], [(-150, 836), (-204, 872), (-190, 930), (-130, 880)], [(-130, 880), (-190, 930), (-120, 950), (-84, 902)], [(-40, 800), (-60, 838), (-40, 880), (0, 890), (0, 800)], [(-40, 880), (-84, 902), (-120, 950), (0, 960), (0, 890)]]
        for i, q in enumerate(fac):
            S.fill(poly(q), ('night', 'deep', 'ind')[i % 3], 2.6)
            with S.clip(poly(q)): S.hatch(-210, 790, 10, 970, (8, 5.5, 11)[i % 3], 1.3, (60, 20, -40, 75, 10, 50, -15)[i])
def draw(S):
    x, y = 300, 196
    radial(S, x, y, 100, lambda i: (640, 330, 480, 280)[i % 4], 128, 1.9)
    # eye in the triangle
    S.fill(circ(x, y, 92), 'night', 2.8); ring(S, x, y, 86, 1.2); rosette(S, x, y, 86, 68, 4, .9, 400); ring(S, x, y, 68, 1.3)
    T = [pol(x, y+8, 66, -90+120*i) for i in range(3)]; S.fill(poly(T), 'deep', 4); S.stroke(poly([pol(x, y+8, 53, -90+120*i) for i in range(3)]), 1.3)
    S.fill([(x-32, y+10, 'c'), (x-14, y-5), (x, y-9), (x+14, y-5), (x+32, y+10, 'c'), (x+14, y+22), (x, y+25), (x-14, y+22)], 'leaf', 2)
    S.fill(circ(x, y+8, 14), 'deep', 1); radial(S, x, y+8, 6, 13, 24, 1.4); S.fill(circ(x, y+8, 5), 'leaf', 0)
    # clouds left and right
    for d in (-1, 1):
        with S.at(300, 0, 1, 0, d > 0):
            for cx, cy, r in ((-196, 268, 30), (-232, 250, 34), (-250, 290, 30), (-160, 290, 26), (-212, 300, 36), (-250, 316, 26), (-176, 312, 22)):
                S.fill(circ(cx, cy, r), 'night', 2.8)
                for q in (.78, .58, .38): S.stroke(f'M{cx-r*q:.1f} {cy}A{r*q:.1f} {r*q:.1f} 0 0 1 {cx+r*q:.1f} {cy}', 1.3)
    # sea
    for j in range(5): wave(S, 846+j*32, 13 if j % 2 else 12, 27, 'deep' if j % 2 else 'night')
    for d in (-1, 1): rock(S, d)
    # tower, two faces
    def course(q, n, ang, light):
        S.fill(poly(q), 'ind' if light else 'night', 3.4)
        with S.clip(poly(q)):
            (a, b, c, e) = q
            for i in range(1, n):
                f = i/n; l = (a[0]+(e[0]-a[0])*f, a[1]+(e[1]-a[1])*f); r = (b[0]+(c[0]-b[0])*f, b[1]+(c[1]-b[1])*f); S.line([l, r], 1.9, 'flat')
                for k in range(4):
                    g = (k+(.25 if i % 2 else .75))/4; p = (l[0]+(r[0]-l[0])*g, l[1]+(r[1]-l[1])*g); S.line([p, (p[0], p[1]-(e[1]-a[1])/n)], 1.9, 'flat')
            if not light: S.hatch(300, 380, 430, 830, 4.6, 1.2, 90)
    course([(206, 428), (312, 452), (312, 846), (196, 806)], 15, 0, True); course([(312, 452), (394, 428), (404, 806), (312, 846)], 15, 0, False)
    # parapet
    S.fill(poly([(190, 390), (312, 416), (312, 456), (190, 428)]), 'ind', 3.2); S.fill(poly([(312, 416), (410, 390), (410, 428), (312, 456)]), 'deep', 3.2)
    for i in range(4):
        a, b = 190+i*33, 190+i*33+20; ya, yb = 390+(a-190)*.213, 390+(b-190)*.213; S.fill(poly([(a, ya-26), (b, yb-26), (b, yb), (a, ya)]), 'ind', 2.8)
    for i in range(3):
        a, b = 318+i*33, 318+i*33+20; ya, yb = 416-(a-312)*.265, 416-(b-312)*.265; S.fill(poly([(a, ya-26), (b, yb-26), (b, yb), (a, ya)]), 'deep', 2.8)
    for i in range(11): S.line([(196+i*11, 398+i*2.35), (196+i*11, 424+i*2.35)], 1.5, 'flat'); S.line([(318+i*8.6, 420-i*2.3), (318+i*8.6, 448-i*2.3)], 2, 'flat')
    with S.at(258, 560, 1): S.fill([(-20, 36, 'c'), (-20, -20), (0, -46), (20, -12), (20, 44, 'c')], 'leaf', 2.6); S.fill([(-13, 33, 'c'), (-13, -16), (0, -34), (14, -9), (14, 38, 'c')], 'deep', 2)
    with S.at(258, 690, 1): S.fill([(-20, 38, 'c'), (-20, -18), (0, -44), (20, -10), (20, 48, 'c')], 'leaf', 2.6); S.fill([(-13, 36, 'c'), (-13, -14), (0, -32), (14, -7), (14, 42, 'c')], 'deep', 2)
    with S.at(356, 624, 1): S.fill([(-16, 42, 'c'), (-16, -10), (0, -42), (16, -18), (16, 32, 'c')], 'leaf', 2.6); S.fill([(-10, 36, 'c'), (-10, -8), (0, -30), (11, -14), (11, 30, 'c')], 'deep', 2)
    # flames
    for fx, h, w in ((226, 70, 20), (378, 76, 20), (262, 100, 24), (344, 108, 24), (302, 92, 24)):
        by = 402 if 250 < fx < 360 else 386
        S.fill([(fx-w, by, 'c'), (fx-w*1.1, by-h*.4), (fx-w*.2, by-h*.66), (fx-w*.1, by-h, 'c'), (fx+w*.9, by-h*.6), (fx+w, by-h*.26), (fx+w*.8, by, 'c')], 'deep', 3)
        for q in (.7, .42): S.fill([(fx-w*q, by, 'c'), (fx-w*q, by-h*.36*q), (fx, by-h*.8*q, 'c'), (fx+w*q, by-h*.36*q), (fx+w*q*.8, by, 'c')], 'leaf' if q < .5 else 'deep', 2)
    # bolt
    S.fill(poly([(330, 262), (268, 356), (298, 352), (262, 430), (350, 330), (316, 334), (360, 268)]), 'leaf', 2.6)
    # crack
    S.line([(270, 430), (284, 500), (268, 540), (296, 610), (284, 660), (304, 720)], 8, 'end')
    # crown
    with S.at(456, 452, 1, 34): crown(S, 0, 0, 1.02, 5, 'ind', 2.8)
    with S.at(140, 470, 1, -30): S.fill(poly([(-26, -16), (18, -20), (28, 10), (-12, 22)]), 'ind', 2.8); S.fill(poly([(18, -20), (30, -28), (40, 0), (28, 10)]), 'deep', 2.6)
    for a, b, r in ((150, 566, 20), (448, 560, -30), (118, 640, 10), (470, 660, 50)):
        with S.at(a, b, .55, r): S.fill(poly([(-26, -16), (18, -20), (28, 10), (-12, 22)]), 'ind', 4); S.fill(poly([(18, -20), (30, -28), (40, 0), (28, 10)]), 'deep', 4)
    for i, (a, b) in enumerate(((92, 400), (118, 520), (88, 590), (160, 400), (154, 700), (96, 720), (172, 620), (120, 780), (174, 500), (80, 470))): yod(S, a, b, 1.05); yod(S, 600-a, b+14, 1.05)
