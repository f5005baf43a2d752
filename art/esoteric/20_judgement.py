# SPDX-License-Identifier: GPL-3.0-or-later
"""Judgement: winged trumpet with the banner of the cross sounding out of the cloud; hands rise from the waters and from flaming graves."""
import math

from emblems import *      # the vocabulary of scenes, see drawing.py

NUM, HEB, GLYPH, FOCUS = 'XX', 'ש', 'fire', (300, 330)


def trumpet(S):
    """long trumpet on the axis, bell below, with the square banner"""
    S.fill(circ(300, 176, 15, 8), 'leaf', 2.4)
    S.limb([(300, 182), (300, 430), (300, 520), (300, 566)], [11, 16, 26, 60], 'leaf', 3)
    S.fill([(268, 556, 'c'), (256, 590), (226, 622, 'c'), (300, 640), (374, 622, 'c'), (344, 590), (332, 556, 'c')], 'leaf', 3)
    S.fill(circ(300, 622, 75, 17), 'leaf', 3)
    S.fill(circ(300, 623, 64, 12), 'dark', 2)
    with chased(S):
        for y, w in ((540, 17), (556, 29), (572, 35), (590, 41)):
            S.line([(300 - w, y), (300, y + 6), (300 + w, y)], 2.4, 'flat')
        for i in range(-4, 5):
            S.line([(300 + i * 7, 566), (300 + i * 9.6, 586), (300 + i * 14, 606)], 2.2, 'end')
        S.line([(305, 196), (305, 500)], 2, 'both')
    for y, w in ((250, 12), (262, 12), (484, 18), (498, 20), (514, 22)):
        S.fill(rect(300 - w, y - 4, 2 * w, 9, 4), 'deep', 2.2)


def banner(S):
    """square cloth with the cross, hung before the shaft on two cords, fringed below"""
    for s in (-1, 1):
        S.line([(300, 262), (300 + s * 74, 296)], 3.4, 'flat')
    cloth = [(222, 296, 'c'), (300, 302), (378, 296, 'c'), (374, 372), (380, 452, 'c'), (300, 460), (220, 452, 'c'), (226, 372)]
    S.fill(cloth, 'deep', 3.4)
    S.fill([(300 + (p[0] - 300) * .88, 377 + (p[1] - 377) * .88) + tuple(p[2:]) for p in cloth], 'night', 1.8)
    with S.clip(path([(300 + (p[0] - 300) * .88, 377 + (p[1] - 377) * .88) + tuple(p[2:]) for p in cloth])):
        for y in range(290, 470, 7):
            S.line([(220, y), (300, y + 4), (380, y)], 1.2, 'flat')
    arms = [(u * c - v * s, u * s + v * c) for c, s in ((1, 0), (0, 1), (-1, 0), (0, -1))
            for u, v in ((13, -13), (62, -17), (62, 17), (13, 13))]
    S.fill(poly([(300 + a, 378 + b) for a, b in arms]), 'leaf', 2.8)
    with chased(S):
        S.stroke(poly([(300 + a * .86, 378 + b * .86) for a, b in arms]), 2)
        S.fill(circ(300, 378, 11), 'dark', 2)
    S.fill(circ(300, 378, 6), 'leaf', 0)
    for i in range(14):
        x = 226 + 11.4 * i
        S.line([(x, 456 + 4 * math.sin(math.pi * i / 13)), (x, 474 + 4 * math.sin(math.pi * i / 13))], 3, 'start')
    S.limb([(214, 296), (386, 296)], [8, 8], 'deep', 2.4, 'se')


def grave(S, x, y, w, h, hands):
    """open stone chest seen from the front with flames in it, from which a pair of hands rises at the scale given"""
    S.fill(poly([(x - w * .8, y - h * .3), (x + w * .8, y - h * .3), (x + w, y), (x - w, y)]), 'deep', 3)
    for f in (-1, 1, -.72, .72, 0):
        flame(S, x + f * w * .84, y + 4, h * (.86 if f else .7), h * .3, f * 12)
    rising(S, x, y - 26, hands)
    front = poly([(x - w, y), (x + w, y), (x + w * .9, y + h * .6), (x - w * .9, y + h * .6)])
    S.fill(front, 'night', 3.2)
    with S.clip(front):
        S.hatch(x - w, y, x + w, y + h * .6, 6, 1.2, 90)
    S.fill(rect(x - w * 1.08, y - 6, w * 2.16, 15, 3), 'ind', 2.8)
    for i in range(5):
        px = x + (i - 2) * w * .34
        r, foot, top = w * .12, y + h * .52, y + h * .3
        S.fill(f'M{px - r:.1f} {foot:.1f}V{top:.1f}A{r:.1f} {r * 1.17:.1f} 0 0 1 {px + r:.1f} {top:.1f}V{foot:.1f}Z', 'deep', 2.2)
        S.fill(circ(px, y + h * .34, w * .045), 'leaf', 0)


def rising(S, x, y, k):
    """two hands lifted out of their sleeves"""
    with S.at(x, y, k):
        for side in sides(S, 0):
            S.fill(poly([(12, 70), (14, 6), (38, 6), (44, 70)]), 'ind', 3)
            S.fill([(10, 2, 'c'), (26, 6), (42, 2, 'c'), (40, 16, 'c'), (26, 20), (12, 16, 'c')], 'leaf', 2.2)
            hand_open(S, 26, 3, 1, 4, True, lw=2.6)


def draw(S):
    glory(S, 300, 330, 60, 560, 136, 1.9)
    S.fill(circ(300, 330, 172), 'night', 3)
    ring(S, 300, 330, 166, 1.2)
    for i in range(36):
        S.fill(poly([pol(300, 330, 148, 10 * i - 5), pol(300, 330, 164, 10 * i), pol(300, 330, 148, 10 * i + 5)]),
               'leaf' if i % 3 == 0 else 'deep', 1.6)
    ring(S, 300, 330, 146, 2.6)
    S.fill(circ(300, 330, 142), 'deep', 1.6)
    radial(S, 300, 330, 40, lambda i: 136 if i % 2 else 124, 80, 1.4)
    for side in sides(S):
        wing(S, 20, 262, 1.12, -8, n=14, spread=(108, -14), gold=True)
    trumpet(S)
    for side in sides(S):
        puffs(S, ((96, 128, 17), (70, 142, 21), (36, 140, 25), (58, 168, 19), (16, 166, 24), (30, 186, 16)))
    puffs(S, ((300, 150, 24), (300, 178, 19)))
    banner(S)
    for i in range(7):
        f = (i - 3) / 3
        S.line([(300 + 52 * f, 648), (300 + 90 * f, 700 + 16 * (1 - abs(f)))], 3.6, 'start')
        star(S, 300 + 104 * f, 722 + 18 * (1 - abs(f)), 8, 4, .3)
    peak(S, (92, 700), (-40, 900), (230, 900), 'night', .22)
    peak(S, (508, 700), (370, 900), (640, 900), 'night', .22)
    water(S, 850, 1000, 17)
    for side in (-1, 1):
        grave(S, 300 + side * 172, 868, 66, 100, .92)
    grave(S, 300, 920, 88, 104, 1.3)
