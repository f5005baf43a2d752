# SPDX-License-Identifier: GPL-3.0-or-later
"""The Moon: a face in the crescent sheds drops of light between two towers; dog and wolf howl, the crayfish climbs from the pool."""
import math

from emblems import *      # the vocabulary of scenes, see drawing.py

NUM, HEB, GLYPH, FOCUS = 'XVIII', 'ק', 'pisces', (300, 320)


def moon(S, x, y):
    """full disc in which a golden crescent with a profile turns to the left"""
    for i in range(32):
        a = 11.25 * i
        reach = 196 if i % 2 == 0 else 176
        S.fill(poly([pol(x, y, 138, a - 5), pol(x, y, reach, a), pol(x, y, 138, a + 5)]), 'deep' if i % 2 == 0 else 'ind', 2.4)
        if i % 2 == 0:
            S.fill(poly([pol(x, y, 140, a), pol(x, y, reach, a), pol(x, y, 140, a + 5)]), 'leaf', 1)
    medallion(S, x, y, 146, 20, 'scales')
    R = 112
    with S.clip(circ(x, y, R + 6)):
        for i in range(40):
            S.line([(x - 130 + 6 * i, y - 120), (x - 130 + 6 * i, y + 120)], 1.2, 'both')
    profile = [(x + 46, y - 102, 'c'), (x + 14, y - 78), (x + 4, y - 52), (x + 3, y - 36), (x - 4, y - 22), (x - 24, y + 2),
               (x - 22, y + 9), (x - 8, y + 12, 'c'), (x - 6, y + 19), (x - 17, y + 25), (x - 15, y + 30), (x - 8, y + 32, 'c'),
               (x - 15, y + 36), (x - 14, y + 43), (x - 4, y + 48), (x - 4, y + 58), (x - 12, y + 68), (x + 2, y + 84), (x + 46, y + 102, 'c')]
    back = [pol(x, y, R, a) for a in (50, 30, 10, -10, -30, -50)]
    with chased(S):
        S.fill(profile + back, 'leaf', 3)
        S.line([(x + 8, y - 28), (x + 26, y - 38), (x + 46, y - 32)], 5)
        S.fill([(x + 8, y - 12, 'c'), (x + 20, y - 22), (x + 38, y - 12, 'c'), (x + 22, y - 5)], 'white', 2.4)
        S.fill(circ(x + 18, y - 12, 6), 'dark', 0)
        S.line([(x + 6, y - 13), (x + 20, y - 24), (x + 42, y - 11)], 3.6)
        S.line([(x - 12, y + 8), (x - 2, y + 4), (x - 2, y + 12)], 2.6)
        S.line([(x - 9, y + 32), (x + 2, y + 31), (x + 10, y + 28)], 3)
        S.line([(x - 2, y + 47), (x + 6, y + 48)], 2.2)
        S.line([(x + 18, y + 40), (x + 26, y + 54), (x + 20, y + 72)], 2.2)
        for i in range(15):
            a = -62 + 124 * i / 14
            S.line([pol(x, y, R - 3, a), pol(x, y, 84 - 10 * math.cos(math.radians(a * 1.4)), a + 2)], 3, 'end')


def tower(S):
    """tower of the right half at the edge of the known land"""
    S.fill(poly([(168, 566), (238, 566), (244, 800), (160, 800)]), 'ind', 3.4)
    with S.clip(poly([(168, 566), (238, 566), (244, 800), (160, 800)])):
        for j in range(14):
            y = 584 + 16.5 * j
            S.line([(156, y), (250, y)], 1.9, 'flat')
            for i in range(5):
                S.line([(160 + 20 * i + 10 * (j % 2), y), (160 + 20 * i + 10 * (j % 2), y + 16)], 1.7, 'flat')
    S.fill(poly([(206, 566), (238, 566), (244, 800), (210, 800)]), 'night', 2.6)
    with S.clip(poly([(206, 566), (238, 566), (244, 800), (210, 800)])):
        S.hatch(206, 560, 246, 804, 5, 1.4, 90)
    S.fill(rect(156, 540, 92, 26), 'deep', 3)
    for i in range(9):
        S.line([(162 + 10 * i, 545), (162 + 10 * i, 561)], 1.8, 'flat')
    for i in range(4):
        S.fill(rect(156 + 25 * i, 518, 17, 23), 'ind', 2.8)
    S.fill('M176 662V630A11 15 0 0 1 198 630V662Z', 'leaf', 2.6)
    S.fill('M181 662V632A6 9 0 0 1 193 632V662Z', 'deep', 1.6)


def hound(S, wolf):
    """howling head of the right half, muzzle toward the moon; the wolf is shaggy and dark"""
    with S.at(128, 822, 1.06):
        fur = [(84, 110, 'c'), (78, 62), (62, 22), (56, -8, 'c'), (70, -22), (66, -34, 'c'), (46, -40), (26, -34, 'c'), (10, -56),
               (-14, -86), (-22, -92), (-30, -88, 'c'), (-31, -80), (-22, -56), (-16, -44, 'c'), (-36, -56), (-42, -50), (-38, -40, 'c'),
               (-18, -16), (-6, 4), (-12, 40), (-22, 76), (-26, 110, 'c')]
        S.fill(fur, 'night' if wolf else 'ind', 3.2)
        S.fill([(-30, -90), (-21, -94), (-17, -86), (-25, -80)], 'leaf', 1.6)
        S.line([(-16, -44), (-8, -36), (2, -34)], 2.6, 'end')
        S.fill([(14, -40, 'c'), (18, -48), (27, -46, 'c'), (23, -38)], 'leaf', 1.8)
        S.fill([(38, -36, 'c'), (66, -40), (92, -20), (100, 6, 'c'), (76, 2), (54, -12)], 'deep' if wolf else 'ind', 2.8)
        S.line([(48, -28), (70, -24), (90, -4)], 2)
        if wolf:
            for i in range(7):
                for j in range(4):
                    px, py = -10 + 22 * j + i, 4 + 16 * i
                    S.line([(px, py), (px + 3, py + 12), (px - 2, py + 22)], 2.6, 'end')
        else:
            for i in range(6):
                S.line([(0 + 3 * i, 6 + 6 * i), (20 + 5 * i, 20 + 10 * i), (60 + 3 * i, 20 + 13 * i)], 1.8)
            S.fill([(-14, 52, 'c'), (26, 64), (77, 48, 'c'), (81, 68, 'c'), (28, 84), (-20, 70, 'c')], 'leaf', 2.4)
            with chased(S):
                for i in range(6):
                    S.dot(-4 + 15 * i, 65 + (6 if 0 < i < 5 else 1), 3)
        S.comb([(80, 40), (84, 72), (84, 106)], 190, 22, 9, 3)


def crayfish(S, x, y, k):
    """crayfish from above, climbing: claws up, jointed tail in the water"""
    with S.at(x, y, k):
        for flip in (False, True):
            with S.at(0, 0, 1, 0, flip):
                for i in range(4):
                    S.limb([(20, -8 + 11 * i), (48, -14 + 15 * i), (62, 8 + 17 * i)], [7, 5, 2], 'ind', 2.2)
                S.limb([(16, -30), (40, -52), (36, -82)], [10, 12, 11], 'ind', 2.6, 's')
                S.fill([(28, -78, 'c'), (16, -104), (24, -132), (40, -146, 'c'), (37, -118), (42, -112), (52, -136, 'c'), (58, -106),
                        (46, -78, 'c')], 'leaf', 2.4)
                S.line([(6, -50), (16, -96), (6, -150)], 2.4, 'end')
                S.fill(circ(9, -48, 4.5), 'leaf', 1.6)
        for i in range(5):
            w = 21 - 2.4 * i
            S.fill([(-w, 22 + 15 * i), (0, 28 + 15 * i), (w, 22 + 15 * i), (w - 1, 36 + 15 * i), (0, 42 + 15 * i), (-w + 1, 36 + 15 * i)],
                   'ind', 2.6)
        for a in (-52, 52, -26, 26, 0):
            S.fill(poly(ribbon([(0, 96), pol(0, 96, 18, a + 90), pol(0, 96, 38, a + 90)], [6, 18, 12], caps='e')), 'ind', 2.4)
        S.fill(sym([(0, -62, 'c'), (7, -48), (22, -32), (26, -4), (20, 24), (0, 32)]), 'ind', 3)
        both(S, [(4, -42), (16, -22), (4, -6)], 2)
        S.line([(0, -52), (0, 26)], 2)
        both(S, [(6, 0), (14, 8), (10, 24)], 1.8)


def draw(S):
    x, y = 300, 320
    glory(S, x, y, 200, 360, 128, 1.7)
    moon(S, x, y)
    for side in sides(S):
        yods(S, ((36, 548), (84, 520), (124, 556), (70, 600), (112, 640), (42, 650), (136, 486), (210, 462), (244, 420)))
    land(S, [(36, 792), (150, 776), (300, 730), (450, 776), (564, 792)], 'night', 18, 6, .7)
    track = [(300, 732), (308, 756), (284, 784), (318, 838), (300, 900)]
    S.limb(track, [3, 12, 26, 44, 84], 'deep', 2.8)
    for i, (tx, ty, _) in enumerate(along(track, 15)):
        S.line([(tx - 1.8 * i, ty), (tx + 1.8 * i, ty)], 1.7)
    for side in sides(S):
        tower(S)
    for side in sides(S):
        hound(S, side > 0)
    S.fill([(36, 926, 'c'), (150, 906), (300, 890), (450, 906), (564, 926, 'c'), (564, 1060, 'c'), (36, 1060, 'c')], 'deep', 3)
    with S.clip(path([(36, 926, 'c'), (150, 906), (300, 890), (450, 906), (564, 926, 'c'), (564, 1060, 'c'), (36, 1060, 'c')])):
        for r in range(50, 420, 22):
            S.stroke(circ(300, 950, r, r * .26), 1.8)
    crayfish(S, 300, 922, .62)
