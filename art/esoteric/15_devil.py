# SPDX-License-Identifier: GPL-3.0-or-later
"""The Devil: goat's head in the inverted pentagram on bat's wings; loose chains from the half-cube's ring, torches turned down."""
import math

from emblems import *      # the vocabulary of scenes, see drawing.py

NUM, HEB, GLYPH, FOCUS = 'XV', 'ע', 'capricorn', (300, 400)


def batwing(S, x, y, k):
    """membrane wing of the right half with claw and four finger bones"""
    with S.at(x, y, k):
        joint = (96, -128)
        tips = ((206, -120), (214, -20), (176, 62), (112, 112), (30, 118))
        out = [(0, 0, 'c'), (40, -70), joint + ('c',)]
        for i, t in enumerate(tips):
            out.append(t + ('c',))
            if i < 4:
                n = tips[i + 1]
                out.append(((t[0] + n[0]) / 2 - 20, (t[1] + n[1]) / 2 - 6))
        S.fill(out + [(10, 60)], 'ind', 3.2)
        with S.clip(path(out + [(10, 60)])):
            for j in range(1, 12):
                f = j / 12
                S.line([(joint[0] + (t[0] - joint[0]) * f, joint[1] + (t[1] - joint[1]) * f) for t in tips], 1.4, 'flat')
        for t in tips:
            S.limb([joint, ((joint[0] + t[0]) / 2 + 8, (joint[1] + t[1]) / 2 - 6), t], [8, 6, 2], 'deep', 2.4)
        S.limb([(0, 0), (40, -66), joint], [18, 14, 12], 'deep', 2.8, 'e')
        S.fill([(88, -128, 'c'), (86, -160), (108, -172, 'c'), (104, -146), (108, -126, 'c')], 'leaf', 2)


def pentagram(S, x, y, R):
    """inverted five-point star of interlaced double lines"""
    p = [pol(x, y, R, 90 + 72 * i) for i in range(5)]
    order = [p[0], p[2], p[4], p[1], p[3]]
    for a, b in zip(order, order[1:] + order[:1]):
        S.limb([a, b], [17, 17], 'deep', 2.8)
    for i, (a, b) in enumerate(zip(order, order[1:] + order[:1])):     # over and under
        S.limb([(a[0] + (b[0] - a[0]) * .28, a[1] + (b[1] - a[1]) * .28), (a[0] + (b[0] - a[0]) * .48, a[1] + (b[1] - a[1]) * .48)],
               [17, 17], 'deep', 0)
        n = math.dist(a, b)
        ux, uy = (b[1] - a[1]) / n * 8.5, -(b[0] - a[0]) / n * 8.5
        for s in (-1, 1):
            S.stroke(poly([(a[0] + (b[0] - a[0]) * f + s * ux, a[1] + (b[1] - a[1]) * f + s * uy) for f in (.28, .48)], False), 2.8)
        S.line([a, b], 2, 'flat')
    for q in p:
        S.fill(circ(*q, 13), 'leaf', 2.6)
        with chased(S):
            S.dot(*q, 4)


def goat(S, x, y, k):
    """frontal goat: ringed horns swept up and out, drooping ears, golden face and beard"""
    with S.at(x, y, k):
        for flip in (False, True):
            with S.at(0, 0, 1, 0, flip):
                S.fill([(34, -24, 'c'), (66, -28), (104, -10), (122, 22, 'c'), (92, 22), (56, 6)], 'ind', 2.8)
                S.line([(44, -16), (80, -8), (112, 14)], 2)
                pts = [(18, -50), (30, -98), (62, -142), (92, -176), (94, -214)]
                width = lambda t: 32 * (1 - t) ** .7 + 3
                with chased(S):
                    S.fill(poly(ribbon(pts, width)), 'leaf', 3)
                    ps = sample(pts, n=10)
                    ns, m = normals(ps), len(ps) - 1
                    for i in range(2, m - 2, 3):
                        h, p, q, c = width(i / m) / 2, ps[i], ns[i], ps[min(m, i + 2)]
                        S.line([(p[0] + q[0] * h, p[1] + q[1] * h), c, (p[0] - q[0] * h, p[1] - q[1] * h)], 2.4, 'flat')
        for i, (dx, length) in enumerate(((-15, 44), (15, 44), (-8, 62), (8, 62), (0, 82))):
            S.fill(poly(ribbon([(dx * .8, 80), (dx * 1.3, 84 + length * .5), (dx * .5, 88 + length)], lambda t: 17 * (1 - t) ** .7 + .6)),
                   'ind', 2.4)
            S.line([(dx * .8, 84), (dx * 1.1, 88 + length * .5), (dx * .5, 84 + length)], 1.6, 'end')
        with chased(S):
            S.fill(sym([(0, -66), (24, -64), (40, -46), (42, -18), (30, 18), (25, 54), (28, 74), (16, 92), (0, 96)]), 'leaf', 3.2)
            both(S, [(12, -30), (14, 8), (10, 44), (14, 62)], 2.8)
            both(S, [(24, 22), (20, 48), (22, 64)], 2, 'end')
            both(S, [(10, -22), (26, -34), (40, -32)], 5)
            S.fill(sym([(0, 66), (8, 64), (15, 68), (10, 78), (0, 80)]), 'dark', 2)
            S.line([(0, 80), (0, 87)], 2.4)
            S.line([(-17, 88), (-7, 87), (0, 89), (7, 87), (17, 88)], 2.6)
            for i in range(5):
                both(S, [(35 - 2 * i, 0 + 10 * i), (27 - 2 * i, 4 + 10 * i)], 2, 'end')
            S.line([(0, -62), (0, -40)], 2.2)
            both(S, [(9, -60), (6, -46), (9, -34)], 2)
        for flip in (False, True):
            with S.at(0, 0, 1, 0, flip):
                beast_eye(S, 26, -14, 1, True)
        for i, (dx, dy) in enumerate(((-13, -62), (13, -62), (0, -66))):
            S.fill(poly(ribbon([(dx, dy), (dx * 1.2, dy + 16), (dx * .6, dy + 30)], lambda t: 14 * (1 - t) ** .6 + .5)), 'ind', 2.2)


def torch(S):
    """torch of the right half turned down, smoke and flame licking back up its sides"""
    with S.at(232, 624):
        S.limb([(0, -40), (0, 96)], [12, 22], 'deep', 3)
        for i in range(7):
            S.line([(-7 - .4 * i, -26 + 15 * i), (7 + .4 * i, -34 + 15 * i)], 2.2, 'flat')
        S.fill(circ(0, -48, 9), 'leaf', 2.2)
        S.fill([(-20, 88, 'c'), (20, 88, 'c'), (27, 112, 'c'), (-27, 112, 'c')], 'leaf', 2.6)
        with chased(S):
            for i in range(5):
                S.line([(-18 + 9 * i, 92), (-21 + 10.5 * i, 108)], 2)
        for rot, h, w in ((150, 58, 30), (210, 58, 30), (180, 88, 46)):
            flame(S, 0, 108, h, w, rot)


def altar(S):
    """half-cube with the iron ring; two chains end in open collars"""
    S.fill(poly([(196, 820), (404, 820), (440, 866), (160, 866)]), 'ind', 3.4)
    S.fill(rect(160, 866, 280, 150), 'night', 3.4)
    with S.clip(rect(160, 866, 280, 150)):
        for j in range(6):
            y = 866 + 26 * j
            S.line([(160, y), (440, y)], 2, 'flat')
            for i in range(7):
                S.line([(164 + 46 * i + 23 * (j % 2), y), (164 + 46 * i + 23 * (j % 2), y + 26)], 2, 'flat')
    S.stroke(poly([(206, 827), (394, 827), (420, 859), (180, 859)]), 1.4)
    S.fill(circ(300, 900, 40), 'deep', 3.2)
    glyph(S, 'capricorn', 300, 898, .5, 14)
    for side in sides(S):
        chain(S, [(20, 842), (80, 876), (150, 946), (186, 906), (200, 886)], 15, 12)
        S.fill(circ(220, 866, 30, 22), 'leaf', 2.8)
        S.fill(circ(220, 866, 20, 13), 'deep', 2.4)
        S.fill(rect(213, 838, 14, 14, 3), 'leaf', 2)
    S.fill(circ(300, 840, 27, 17), 'leaf', 2.8)
    S.fill(circ(300, 840, 17, 9), 'deep', 2.4)


def draw(S):
    x, y = 300, 396
    glory(S, x, y, 196, 380, 104, 1.8)
    for side in sides(S):
        batwing(S, 70, 340, .9)
    medallion(S, x, y, 186, 22, 'dentils')
    ring(S, x, y, 152, 1.2)
    pentagram(S, x, y, 150)
    goat(S, x, y - 4, .84)
    land(S, [(36, 850), (160, 836), (300, 842), (440, 836), (564, 850)], 'deep', 16, 6, .6)
    glory(S, 300, 824, 24, 230, 72, 1.7, 180, 360)
    altar(S)
    for side in sides(S):
        torch(S)
