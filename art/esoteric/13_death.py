# SPDX-License-Identifier: GPL-3.0-or-later
"""Death: golden skull before two crossed scythes; beneath it the white rose blooms and the sun rises over the river between two towers."""
from emblems import *      # the vocabulary of scenes, see drawing.py

NUM, HEB, GLYPH, FOCUS = 'XIII', 'נ', 'scorpio', (300, 360)


def skull(S, x, y, k):
    """frontal skull of chased gold"""
    with S.at(x, y, k), chased(S):
        S.fill(sym([(0, 42), (40, 40), (42, 76), (36, 100), (20, 112), (0, 114)]), 'leaf', 3)
        S.fill(sym([(0, -98), (38, -92), (70, -66), (84, -26), (80, 8), (70, 26), (74, 42), (62, 56), (44, 60), (42, 80), (0, 86)]),
               'leaf', 3.2)
        for flip in (False, True):
            with S.at(0, 0, 1, 0, flip):
                S.fill([(15, 8), (26, -12), (48, -16), (62, -2), (60, 20), (44, 30), (24, 26)], 'dark', 2)
                S.line([(10, -10), (28, -26), (52, -28), (68, -14)], 4)
                S.comb([(80, -30), (80, 4), (70, 24)], 195, 15, 10, 3.2)
                S.comb([(66, -68), (78, -46)], 205, 16, 5, 3)
                S.line([(66, 32), (54, 42), (46, 58)], 2.6, 'end')
                S.line([(42, 78), (34, 84), (32, 100)], 2.4, 'end')
        S.fill(sym([(0, 22, 'c'), (6, 24), (14, 44), (8, 50), (0, 44, 'c')]), 'dark', 2)
        S.line([(-40, 70), (0, 73), (40, 70)], 2.2)
        for i in range(-4, 5):
            top, foot = 62 - abs(i) * .6, 84 - abs(i) * 1.4
            S.stroke(path([(i * 8 - 4, 71), (i * 8 - 3.4, top), (i * 8 + 3.4, top), (i * 8 + 4, 71)], False), 2)
            S.stroke(path([(i * 8 - 4, 74), (i * 8 - 3, foot), (i * 8 + 3, foot), (i * 8 + 4, 74)], False), 2)
        S.line([(-30, -70), (-14, -78), (-6, -64), (6, -72), (16, -62), (30, -70)], 1.8)
        S.line([(-6, -46), (0, -30), (6, -46)], 1.8)


def scythe(S):
    """scythe of the right half: shaft from the lower left, blade sweeping back over the ring"""
    S.limb([(-206, 672), (-60, 486), (60, 318), (162, 160)], [15, 15, 14, 13], 'deep', 3)
    for x, y, a in along([(-206, 672), (162, 160)], 44):
        S.line([pol(x, y, 6, a - 122), pol(x, y, 6, a + 58)], 1.8, 'flat')
    for t in (.2, .42):
        x, y = -206 + 368 * t, 672 - 512 * t
        S.limb([(x, y), (x - 26, y - 22)], [11, 12], 'deep', 2.6, 'e')
    blade_out = [(172, 176, 'c'), (150, 142), (96, 114), (30, 110), (-40, 130), (-104, 184, 'c'), (-40, 152), (24, 140), (84, 148),
                 (130, 176, 'c')]
    S.fill(blade_out, 'ind', 3.2)
    S.line([(152, 160), (96, 128), (30, 121), (-36, 138), (-92, 176)], 2)
    S.fill([(130, 176, 'c'), (84, 148), (24, 140), (-40, 152), (-104, 184, 'c'), (-40, 144), (26, 130), (92, 138), (142, 168, 'c')],
           'leaf', 0)
    S.fill(poly([(136, 168), (166, 132), (186, 148), (158, 188)]), 'leaf', 2.4)
    with chased(S):
        S.dot(152, 164, 3)
        S.dot(166, 146, 3)


def tower(S):
    """gate tower of the right half, far off on the bank"""
    S.fill(poly([(150, 756), (206, 756), (212, 872), (144, 872)]), 'night', 3)
    for i in range(8):
        S.line([(150, 768 + 13 * i), (208, 768 + 13 * i)], 1.5, 'flat')
    with S.clip(poly([(178, 756), (206, 756), (212, 872), (178, 872)])):
        S.hatch(178, 750, 214, 874, 5, 1.3, 90)
    S.fill(rect(142, 740, 72, 18), 'ind', 3)
    for i in range(4):
        S.fill(rect(142 + 19.5 * i, 726, 13.5, 15), 'ind', 2.6)
    S.fill('M168 806V790A10 12 0 0 1 188 790V806Z', 'leaf', 2.2)


def sunrise(S):
    """half disc with long rays on the horizon and its path over the river"""
    glory(S, 300, 872, 76, 250, 72, 2, 180, 360)
    S.fill('M232 872A68 68 0 0 1 368 872Z', 'leaf', 3)
    with chased(S):
        for r in (58, 48):
            S.stroke(f'M{300 - r} 872A{r} {r} 0 0 1 {300 + r} 872', 1.8)
        radial(S, 300, 872, 20, lambda i: 44 if i % 2 else 36, 24, 2.2, 180, 360)


def rose(S, x, y):
    """mystic rose, five-fold, on its thorned stem with leaves"""
    S.limb([(x, y + 20), (x - 6, y + 70), (x, y + 130)], [7, 6, 6], 'deep', 2.4)
    for s, yy in ((-1, 66), (1, 84)):
        blade(S, x - 3, y + yy, 52, 25, -90 + s * 58)
    for s, yy in ((1, 56), (-1, 96), (1, 108)):
        S.line([(x - 4, y + yy), (x - 4 + s * 12, y + yy - 7)], 4, 'end')
    rosebloom(S, x, y, 1.24)


def draw(S):
    x, y = 300, 366
    glory(S, x, y, 166, 380, 104, 1.8)
    for side in sides(S):
        scythe(S)
    medallion(S, x, y, 164, 26, 'scales', rays=72)
    for i in range(24):
        S.line([pol(x, y, 112, 15 * i), pol(x, y, 124, 15 * i)], 2.2)
    skull(S, x, y - 4, 1.06)
    sunrise(S)
    land(S, [(36, 866), (120, 852), (210, 872), (390, 872), (480, 852), (564, 866)], 'deep', 0)
    water(S, 874, 1000, 14)
    for side in sides(S):
        tower(S)
        S.fill([(270, 858, 'c'), (196, 866), (110, 878), (70, 916), (96, 958), (150, 1000, 'c'), (270, 1000, 'c')], 'night', 2.6)
        for i in range(6):
            S.line([(262, 872 + 14 * i), (180, 880 + 13 * i), (112 + 6 * i, 892 + 13 * i)], 1.6)
    rose(S, 300, 672)
