# SPDX-License-Identifier: GPL-3.0-or-later
"""The Hanged Man: a rope from the living tau holds cross and inverted triangle; the rayed head shines upside down over the water."""
import math

from emblems import *      # the vocabulary of scenes, see drawing.py

NUM, HEB, GLYPH, FOCUS = 'XII', 'מ', 'water', (300, 690)


def tau(S):
    """gallows of living wood: two trunks, a beam, lopped boughs in leaf"""
    for side in sides(S):
        S.limb([(206, 960), (200, 700), (208, 420), (200, 160)], [46, 36, 34, 34], 'deep', 3.4)
        for u in (-10, -3, 4, 11):
            S.line([(206 + u * 1.2, 950), (200 + u * .9, 700), (208 + u * .9, 420), (200 + u * .9, 200)], 2)
        for yy, s in ((300, -1), (400, 1), (520, -1), (630, 1), (750, -1)):
            bx = 204 + s * 14
            S.limb([(204, yy), (bx + s * 12, yy - 18)], [18, 12], 'deep', 2.6)
            S.fill(circ(bx + s * 13, yy - 20, 7, 6), 'leaf', 2)
            for a in (-24, 24):
                blade(S, bx + s * 8, yy - 6, 44, 18, (-60 if s > 0 else -120) + a * 1.4 + s * 18)
        S.limb([(206, 930), (226, 968), (262, 984)], [28, 20, 5], 'deep', 3)
        S.limb([(206, 930), (184, 968), (150, 984)], [28, 20, 5], 'deep', 3)
    S.limb([(72, 172), (200, 162), (300, 168), (400, 162), (528, 172)], [30, 38, 34, 38, 30], 'deep', 3.4, 'se')
    for u in (-11, -4, 4, 11):
        S.line([(80, 172 + u * .8), (200, 162 + u), (300, 168 + u * .9), (400, 162 + u), (520, 172 + u * .8)], 1.9)
    for side in sides(S):
        for bx, a in ((110, -112), (150, -76), (190, -108), (238, -60)):
            blade(S, bx, 150, 46, 20, a - 16)
            blade(S, bx, 150, 46, 20, a + 26)


def knot(S, x, y):
    """rope from the beam, coiled three times, ending in the ring of the cross"""
    rope(S, [(x, y - 60), (x, y + 48)], 15)
    for i in range(3):
        rope(S, [(x - 27, y - 78 + 15 * i), (x, y - 72 + 15 * i), (x + 27, y - 78 + 15 * i)], 14, 8)


def cross(S, x, y):
    """golden cross with a rose at the crossing, ringed at the head"""
    S.fill(circ(x, y - 66, 18), 'leaf', 2.6)
    S.fill(circ(x, y - 66, 9), 'deep', 2.4)
    arms = [(u * c - v * s, u * s + v * c) for c, s in ((1, 0), (0, 1), (-1, 0), (0, -1))
            for u, v in ((13, -13), (46, -12), (56, -22), (62, 0), (56, 22), (46, 12), (13, 13))]
    with chased(S):
        S.fill(poly([(x + a, y + b) for a, b in arms]), 'leaf', 2.8)
        S.stroke(poly([(x + a * .84, y + b * .84) for a, b in arms]), 2)
    rosebloom(S, x, y, .42)


def triangle(S, x, y, R):
    """inverted triangle of water in three rules, waves inside"""
    for q, pig, w in ((1, 'deep', 4), (.9, 'night', 1.6), (.78, 'deep', 3)):
        S.fill(poly([pol(x, y, R * q, 90 + 120 * i) for i in range(3)]), pig, w)
    for i in range(3):
        a, b = pol(x, y, R * .94, 90 + 120 * i), pol(x, y, R * .94, 210 + 120 * i)
        for j in range(17):
            f = (j + .5) / 17
            S.dot(a[0] + (b[0] - a[0]) * f, a[1] + (b[1] - a[1]) * f, 2.2)
    with S.clip(poly([pol(x, y, R * .74, 90 + 120 * i) for i in range(3)])):
        for row in range(12):
            yy = y - R * .36 + 15 * row
            S.line([(x - 150 + 12 * i, yy + (5 if (i // 1) % 2 else -5)) for i in range(26)], 2.8 if row % 2 else 1.8, 'flat')
    S.fill(circ(x, y - 12, 36), 'deep', 3)
    ring(S, x, y - 12, 31, 1.2)
    S.fill([(x, y - 38, 'c'), (x + 15, y - 10), (x + 11, y + 4), (x, y + 10), (x - 11, y + 4), (x - 15, y - 10)], 'leaf', 2)


def rayed_head(S, x, y):
    """golden face turned upside down in a nimbus; the hair hangs down like rays"""
    with S.at(x, y, 1, 180):
        glory(S, 0, 0, 112, 170, 88, 1.8)
        S.fill(circ(0, 0, 114), 'night', 3)
        ring(S, 0, 0, 108, 1.2)
        for i in range(24):
            a = 15 * i
            tip = pol(0, 0, 104, a)
            S.fill(poly([pol(0, 0, 62, a - 7.5), tip, pol(0, 0, 62, a + 7.5)]), 'leaf' if i % 2 else 'deep', 2)
        S.fill(circ(0, 0, 70), 'deep', 2.6)
        for i in range(19):
            a = 180 + 180 * i / 18
            S.limb([pol(0, -8, 34, a), pol(0, -14, 56, a + 6 * math.cos(i * 2)), pol(0, -16, 84 + 10 * (i % 2), a - 5 + 10 * (i % 2))],
                   [13, 12, 2], 'ind', 2)
        with chased(S):
            face(S, 0, 0, 1.16, 0, sex='f', lw=3)
        for side in sides(S, 0):
            S.fill([(0, -70, 'c'), (30, -62), (48, -34), (51, -4), (46, 14, 'c'), (40, -4), (30, -30), (14, -42), (0, -44, 'c')],
                   'ind', 2.6)
            for i in range(1, 4):
                S.line([(1, -70 + 6.5 * i), (28 - 3 * i, -58 + 6 * i), (45 - 2.4 * i, -28 + 4 * i), (47 - 1.6 * i, 2)], 1.7)


def draw(S):
    glory(S, 300, 300, 60, 250, 72, 1.7)
    tau(S)
    water(S, 880, 1000, 15)
    for r in (40, 84, 132):
        S.stroke(circ(300, 918, r, r * .16), 2)
    triangle(S, 300, 466, 128)
    knot(S, 300, 230)
    cross(S, 300, 356)
    rayed_head(S, 300, 716)
