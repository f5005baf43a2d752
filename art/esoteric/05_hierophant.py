# SPDX-License-Identifier: GPL-3.0-or-later
"""The Hierophant: hand raised in blessing within a lancet window under a rose; triple cross and crossed keys before the altar steps."""
from emblems import *      # the vocabulary of scenes, see drawing.py

NUM, HEB, GLYPH, FOCUS = 'V', 'ו', 'taurus', (300, 400)


def blessing(S, x, y, k):
    """hand with two fingers raised and two folded under the thumb; wrist at the origin"""
    with S.at(x, y, k):
        for pts, w in (([(-8, -34), (-10, -58), (-11, -84)], 11.5), ([(3, -36), (4, -62), (5, -90)], 12)):
            finger(S, pts, w, 2.4)
        S.fill([(-14, 4, 'c'), (-18, -16), (-18, -34), (-10, -42), (4, -43), (20, -38), (22, -20), (14, 4, 'c')], 'flesh', 2.4)
        S.limb([(23, -39), (22, -20)], [10.5, 10], 'flesh', 2.4, 'se')
        S.limb([(14, -44), (12, -22)], [11.5, 11], 'flesh', 2.4, 'se')
        finger(S, [(-14, -10), (-8, -22), (8, -26), (16, -25)], 11, 2.4)
        S.line([(-13, -8), (-6, -14), (2, -16)], 1.7)
        S.line([(-14, -37), (-8, -38), (-3, -37)], 1.5)
        for fx, fy in ((-10, -60), (4, -64)):
            S.line([(fx - 5, fy), (fx, fy + 2), (fx + 5, fy)], 1.5)


def lancet(x, y, w, h):
    """outline of a pointed window standing on (x, y)"""
    s = h - w * 1.55
    return f'M{x - w} {y}V{y - s}A{w * 2} {w * 2} 0 0 1 {x} {y - s - w * 1.732:.1f}A{w * 2} {w * 2} 0 0 1 {x + w} {y - s}V{y}Z'


def tracery(S):
    """window: moulded arch, rose with the bull's sign above, side lights with quatrefoils"""
    for w, h, pig, lw in ((236, 566, 'night', 3.4), (224, 548, 'deep', 1.6), (212, 530, 'night', 3.2)):
        S.fill(lancet(300, 668, w, h), pig, lw)
    for side in sides(S):
        S.fill(lancet(162, 668, 38, 300), 'deep', 3)
        S.stroke(lancet(162, 662, 31, 280), 1.3)
        with S.clip(lancet(162, 662, 31, 280)):
            for j in range(16):
                for i in range(-2, 3):
                    S.stroke(circ(162 + 18 * i, 370 + 19 * j, 12.6), 1)
        for a in range(4):
            S.fill(circ(*pol(168, 318, 15, 45 + 90 * a), 15), 'deep', 2.6)
        S.fill(circ(168, 318, 13), 'deep', 0)
        star(S, 168, 318, 13, 4, .3)
    x, y = 300, 216
    S.fill(circ(x, y, 72), 'deep', 3.4)
    ring(S, x, y, 66, 1.3)
    for i in range(12):
        px, py = pol(x, y, 51, 30 * i)
        S.fill(circ(px, py, 13.4), 'ind', 2.2)
        ring(S, px, py, 8, 1.2)
        S.line([pol(x, y, 26, 30 * i + 15), pol(x, y, 46, 30 * i + 15)], 2, 'flat')
    S.fill(circ(x, y, 30), 'leaf', 2.4)
    with chased(S):
        glyph(S, 'taurus', x, y + 1, .42, 14, kind='line')


def key(S, side):
    """key of the right half lying from the lower axis up and out; bow below, bit above"""
    with S.at(0, 852, .64, 45):
        S.limb([(0, 104), (0, -184)], [12, 12], 'deep', 2.8)
        S.stroke('M0 100V-180', 1.2)
        for y in (-94, -84, 84, 94):
            S.fill(rect(-10, y - 4, 20, 8, 3), 'leaf' if side > 0 else 'deep', 2)
        bit = [(5, -180), (50, -180), (50, -158), (38, -158), (38, -150), (50, -150), (50, -124), (5, -124)]
        S.fill(poly(bit), 'leaf' if side > 0 else 'ind', 2.8)
        with chased(S) if side > 0 else S.at():
            S.fill(rect(18, -160, 12, 16), 'dark' if side > 0 else 'deep', 2)
        for a in (-62, 62, 180):
            px, py = pol(0, 130, 21, a + 90)
            S.fill(circ(px, py, 21), 'leaf' if side > 0 else 'ind', 2.8)
        for a in (-62, 62, 180):
            px, py = pol(0, 130, 21, a + 90)
            S.fill(circ(px, py, 11), 'deep', 2.2)


def triple_cross(S, x, y0, y1):
    """papal staff: three bars shrinking upwards, knobbed ends"""
    S.limb([(x, y0 + 10), (x, y1)], [13, 15], 'deep', 2.8)
    S.stroke(f'M{x} {y0 + 14}V{y1}', 1.3)
    for dy, w in ((34, 22), (64, 33), (96, 44)):
        S.fill(rect(x - w, y0 + dy - 7, 2 * w, 14, 3), 'leaf', 2.4)
        for s in (-1, 1):
            S.fill(circ(x + s * w, y0 + dy, 10), 'leaf', 2.4)
            with chased(S):
                S.dot(x + s * w, y0 + dy, 3)
    S.fill(circ(x, y0 + 2, 11), 'leaf', 2.4)


def sanctuary(S):
    """sill of the window and the chequered floor before it"""
    S.fill(rect(38, 686, 524, 400), 'night', 0)
    S.fill(rect(40, 664, 520, 22), 'deep', 3)
    for i in range(37):
        S.line([(52 + 13.8 * i, 668), (58 + 13.8 * i, 682)], 2)
    land(S, [(36, 740), (300, 740), (564, 740)], 'deep', 0)
    rows = [740 + 10 * j + 3 * j * j for j in range(11)]
    for j, (y0, y1) in enumerate(zip(rows, rows[1:])):
        S.stroke(f'M36 {y0}H564', 1.5)
        for i in range(-14, 15):
            if (i + j) % 2 == 0:
                P = lambda u, y: (300 + u * 26 * (1 + (y - 740) / 190), y)
                tile = poly([P(i, y0), P(i + 1, y0), P(i + 1, y1), P(i, y1)])
                S.fill(tile, 'ind', 1.2)
                with S.clip(tile):
                    S.hatch(*P(i, y1), *P(i + 1, y0), 5, 1, 0) if j < 2 else S.hatch(P(i, y1)[0], y0, P(i + 1, y1)[0], y1, 6, 1.1, 0)


def draw(S):
    glory(S, 300, 400, 230, 330, 104, 1.8)
    tracery(S)
    glory(S, 300, 420, 60, 92, 72, 1.7)
    arm(S, 300, 546, 0, 126, 1.75)
    blessing(S, 300, 540, 2.45)
    sanctuary(S)
    glory(S, 300, 842, 134, 84, 72, 1.7, 190, 350)
    medallion(S, 300, 842, 138, 18, 'beads')
    for side in sides(S):
        key(S, side)
    triple_cross(S, 300, 706, 934)
