# SPDX-License-Identifier: GPL-3.0-or-later
"""The Moon: a face in profile within the ray-crowned disc, drops drawn up from the earth; two dogs howl between two towers and a
crayfish climbs in the pool."""
import math

from beasts import *      # the vocabulary of scenes, see drawing.py

TITLE, NUM = 'LA LVNE', 'XVIII'
FIELD, PATTERN = 'night', 'stars'


def rays(S, x, y, r0, r1, n=16):
    """long and short spikes in turn, the long ones half lit"""
    for i in range(2 * n):
        a = (i + .5) * 180 / n
        S.line([pol(x, y, r0, a), pol(x, y, r0 + (r1 - r0) * .5, a)], 4.4, 'end')
    for i in range(n):
        a, long = i * 360 / n - 90, i % 2 == 0
        tip, l, q, m = pol(x, y, r1 if long else r0 + (r1 - r0) * .74, a), pol(x, y, r0 - 4, a - 8), pol(x, y, r0 - 4, a + 8), pol(x, y,
            r0 - 4, a)
        S.fill(poly([l, tip, q]), 'gold' if long else 'red', 4)
        if long:
            S.fill(poly([m, tip, q]), 'fire', 2.6)


def moon(S, x, y, k):
    """blue disc; the crescent's inner edge is a profile looking to the left"""
    with S.at(x, y, k):
        S.fill(circ(0, 0, 104), 'gold', 5)
        S.fill(circ(0, 0, 93), 'blue', 4)
        for yy in range(-64, 80, 16):
            w = math.sqrt(88 ** 2 - yy ** 2)
            S.line([(-w, yy), (-w * .6, yy + 2), (-w * .3 - 14, yy)], 3, 'end', kind='hatch')
        arc = [pol(0, 0, 92, a) for a in range(-104, 106, 15)]
        profile = [(-22, 89, 'c'), (-16, 78), (-34, 74), (-47, 64), (-44, 54), (-36, 48, 'c'), (-48, 42), (-47, 34), (-40, 30, 'c'),
            (-51, 25), (-48, 16),
                   (-42, 12, 'c'), (-58, 10), (-64, 2), (-56, -14), (-44, -34), (-36, -42, 'c'), (-42, -54), (-40, -68), (-30, -80),
                   (-22, -89, 'c')]
        crescent = arc[:-1] + profile
        S.fill([arc[0] + ('c',)] + arc[1:] + profile, 'pearl', 4.6)
        with S.clip(path(crescent)):
            S.wash(circ(-8, 22, 19), 'blush', .55)
            S.wash([(-50, 38), (-40, 30), (-24, 32), (-40, 40), (-50, 44)], 'lip', .85)
            S.wash([(-54, 22), (-40, 26), (-24, 31), (-42, 31), (-52, 27)], 'lip', .85)
            S.line([(-46, 31), (-34, 30), (-20, 33)], 4)
            S.line([(-50, 12), (-42, 14), (-38, 6), (-42, 0)], 3.4)
            S.line([(-40, 62), (-30, 60), (-24, 64)], 3)
            S.comb([pol(0, 0, 93, a) for a in range(-70, 92, 20)], 184, 20, 26, 4.4)
        # the eye of the profile: lid, iris, brow
        S.fill([(-36, -20, 'c'), (-24, -26), (-8, -19, 'c'), (-22, -12)], 'white', 0)
        S.fill(circ(-27, -19.5, 5.4), 'iris', 2)
        S.dot(-28, -19.5, 3)
        S.line([(-38, -22), (-24, -28), (-4, -18)], 4.6)
        S.line([(-34, -14), (-22, -11), (-10, -16)], 2.6)
        S.line([(-40, -40), (-22, -46), (2, -34)], 5.4)
        for p in ([(30, -66), (44, -30), (34, 4)], [(50, -54), (62, -20), (54, 20)], [(22, 26), (34, 44), (26, 66)]):
            S.line(p, 3.2)
        S.line([(14, -10), (24, 0), (20, 16), (10, 20)], 3.6)


def dew(S, x, y, pig):
    """a drop on its way upward: the point hangs below"""
    with S.at(x, y, .86, 180):
        S.fill([(0, -26, 'c'), (6, -8), (11, 7), (7, 18), (0, 21), (-7, 18), (-11, 7), (-6, -8)], pig, 3.8)
        S.line([(5, 6), (5, 12), (1, 15)], 2.4)


def tower(S, x, y, roofed, flip):
    """keep of ashlar, its foot at x, y; one has battlements, the other a cap of tiles"""
    with S.at(x, y, 1, 0, flip):
        body = poly([(-54, 0), (-48, -196), (48, -196), (54, 0)])
        S.fill(body, 'stone', 5)
        with S.clip(body):
            for r, yy in enumerate(range(-170, 10, 25)):
                S.line([(-60, yy), (0, yy + 3), (60, yy)], 3.2, 'flat')
                for xx in range(-72 + (r % 2) * 18, 70, 36):
                    S.line([(xx, yy - 24), (xx, yy)], 3, 'flat')
            S.comb([(52, -192), (54, 0)] if not flip else [(-52, -192), (-54, 0)], 0 if flip else 180, 24, 30, 4.2)
        S.fill(poly([(-62, -218), (62, -218), (56, -190), (-56, -190)]), 'gold', 4.6)
        if roofed:
            S.fill([(-60, -218, 'c'), (-40, -254), (-12, -280), (0, -300, 'c'), (12, -280), (40, -254), (60, -218, 'c')], 'red', 4.8)
            for yy, w in ((-236, 46), (-254, 30), (-272, 14)):
                S.line([(-w, yy), (0, yy + 6), (w, yy)], 3.2)
            S.fill(circ(0, -304, 8), 'gold', 3.6)
        else:
            for xx in (-62, -22, 18):
                S.fill(rect(xx, -248, 44, 32), 'stone', 4.6)
        window(S, 0, -128, .8)
        S.fill([(-22, 2, 'c'), (-22, -44), (0, -64), (22, -44), (22, 2, 'c')], 'dark', 4.4)


def pool(S):
    """basin with its rim of stones and waves"""
    S.fill([(-10, 800, 'c'), (60, 812), (120, 790), (200, 796), (300, 782), (400, 796), (480, 790), (540, 812), (610, 800, 'c'),
        (610, 1000, 'c'), (-10, 1000, 'c')], 'blue', 5.4)
    for p in ([(60, 848), (100, 838), (140, 848), (180, 840)], [(420, 842), (460, 850), (500, 840), (540, 848)],
            [(50, 886), (100, 876), (150, 886), (206, 878)],
              [(396, 880), (450, 888), (500, 878), (550, 888)], [(60, 926), (120, 916), (180, 926), (230, 920)],
              [(372, 922), (430, 930), (490, 918), (546, 928)]):
        S.line(p, 4.4)


def crayfish(S, x, y, k=1):
    """seen from above, climbing"""
    with S.at(x, y, k):
        for d in (False, True):
            with S.at(0, 0, 1, 0, d):
                S.line([(-8, -46), (-22, -78), (-10, -112)], 4.4, 'end')
                for i in range(4):
                    yy = -14 + i * 13
                    S.limb([(-16, yy), (-44, yy - 6 + i * 5), (-62, yy + 12 + i * 5)], [8, 7, 3], 'red', 3.2)
                S.limb([(-16, -26), (-46, -36), (-54, -62)], [15, 14, 13], 'red', 3.8, 's')
                S.fill([(-46, -58, 'c'), (-40, -78), (-48, -104, 'c'), (-56, -86, 'c'), (-72, -104, 'c'), (-78, -80),
                    (-64, -58, 'c')], 'red', 4)
                S.line([(-56, -86), (-56, -72)], 3)
        for i in range(4):
            w = 24 - i * 3
            S.fill([(-w, 28 + i * 13, 'c'), (0, 24 + i * 13), (w, 28 + i * 13, 'c'), (w - 3, 42 + i * 13, 'c'), (0, 48 + i * 13),
                (3 - w, 42 + i * 13, 'c')], 'red', 3.6)
        for a in (50, 90, 130):
            plume(S, 0, 78, a, 34, 24, 'red', 0, 3.6, False)
        S.fill([(0, -58), (13, -46), (23, -16), (24, 14), (14, 34), (0, 38), (-14, 34), (-24, 14), (-23, -16), (-13, -46)], 'red', 4.6)
        S.line([(-12, 8), (0, 16), (12, 8)], 3.2)
        S.line([(0, -30), (0, 8)], 3)
        for d in (-1, 1):
            S.fill(circ(d * 11, -46, 5), 'gold', 3)
        S.comb([(22, -14), (22, 14), (12, 32)], 186, 11, 6, 3.4)


def draw(S):
    x, y = 300, 272
    rays(S, x, y, 104, 160)
    moon(S, x, y, 1.04)
    pigs = ('red', 'gold', 'sky')
    for i, (dx, dy) in enumerate(((196, 4), (172, 92), (214, 124), (122, 152), (66, 190), (222, -82), (0, 198))):
        for d in ((-1, 1) if dx else (1,)):
            dew(S, x + d * dx, y + dy, pigs[i % 3])
    ground(S, 706, [(-10, 712), (90, 700), (200, 716), (300, 708), (400, 716), (510, 700), (610, 712)])
    tower(S, 116, 728, False, False)
    tower(S, 484, 728, True, True)
    pool(S)
    for q in ((70, 792, .7), (536, 792, .7), (300, 772, .7), (122, 786, .5), (480, 786, .5)):
        tuft(S, *q)
    dog_howling(S, 214, 654, .98, False, 'white', 'red')
    dog_howling(S, 386, 654, .98, True, 'wood', 'blue')
    crayfish(S, 300, 854, .8)
