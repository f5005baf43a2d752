# SPDX-License-Identifier: GPL-3.0-or-later
"""The Hanged Man: hung by one foot from a beam between two lopped trunks, the free leg crossed behind, hands behind the back; his face
is at ease. The body is drawn standing and then turned, so its shaded side lies on the left here."""
from beasts import *      # the vocabulary of scenes, see drawing.py

TITLE, NUM = 'LE PENDV', 'XII'
FIELD, PATTERN = 'plum', 'damask'
DUSK = (-.7, -.7)       # direction away from the light once the body hangs


def stub(S, x, y, ang, w=30, length=40):
    """stump of a lopped branch with its red cut"""
    q = pol(x, y, length, ang)
    S.limb([(x, y), q], [w * 1.2, w], 'wood', 4.4)
    with S.at(q[0], q[1], 1, ang):
        S.fill(circ(0, 0, w * .26, w * .52), 'red', 3.8)
        S.line([(-1, -w * .22), (2, 0), (-1, w * .22)], 2.4)


def trunk(S, flip):
    """one of the two posts, drawn left of the axis"""
    with S.at(300, 0, 1, 0, flip):
        for y, ang, w in ((292, 222, 26), (452, 218, 28), (610, 222, 28), (760, 220, 28)):
            stub(S, -206, y, ang, w, 36)
        for y, ang in ((374, -40), (532, -42), (690, -40)):
            stub(S, -182, y, ang, 26, 44)
        S.fill([(-218, 156, 'c'), (-170, 150, 'c'), (-172, 300), (-166, 500), (-168, 700), (-162, 840), (-136, 924, 'c'), (-250, 924, 'c'),
                (-226, 840), (-220, 700), (-222, 500), (-216, 300)], 'wood', 5)
        S.fill(circ(-194, 153, 24, 8), 'red', 4)
        for x, a, b in ((-208, 230, 420), (-190, 320, 520), (-204, 480, 690), (-184, 610, 800), (-206, 720, 900), (-182, 820, 910)):
            S.line([(x, a), (x + 5, (a + b) / 2), (x - 2, b)], 4)
        x = -222 if flip else -168      # the side away from the light, mirrored with the post
        S.comb([(x, 240), (x + 2, 520), (x, 900)], 0 if flip else 180, 15, 44, 4)


def beam(S):
    """cross-beam with a knot of rope in its middle"""
    S.limb([(62, 202), (200, 198), (400, 202), (538, 198)], [38, 34, 34, 38], 'wood', 5)
    for a, b, y in ((80, 240, 192), (180, 420, 204), (360, 520, 196)):
        S.line([(a, y), ((a + b) / 2, y - 2), (b, y + 2)], 3.4)
    S.comb([(70, 220), (300, 216), (530, 217)], 270, 10, 56, 3.6)
    for x in (-12, 0, 12):
        S.limb([(300 + x, 178), (302 + x, 202), (300 + x, 224)], [11, 12, 11], 'gold', 3.4)
    for x in (-7, 7):
        S.limb([(300 + x, 222), (300 + x * .6, 252), (300 + x * 1.2, 290)], [9, 9, 9], 'gold', 3.4)


def hose(S):
    """the free leg folded behind the straight one"""
    S.limb([(104, 126), (34, 168), (-52, 176)], [50, 44, 26], 'red', 4.8, 's')
    shade(S, [(104, 126), (34, 168), (-52, 176)], [50, 44, 26], 10, .28, 4, DUSK)
    S.fill([(-44, 162, 'c'), (-46, 192, 'c'), (-60, 208), (-66, 236), (-80, 240), (-84, 212), (-76, 172, 'c')], 'gold', 4.2)
    S.limb([(20, 44), (62, 96), (104, 126)], [66, 60, 50], 'red', 4.8, 'e')
    shade(S, [(20, 44), (62, 96), (104, 126)], [66, 60, 50], 8, .28, 4, DUSK)
    S.limb([(-16, 46), (-12, 150), (0, 262)], [64, 52, 27], 'red', 5)
    shade(S, [(-16, 76), (-12, 150), (0, 262)], [60, 52, 27], 13, .28, 4, DUSK)
    S.line([(-2, 148), (8, 158), (4, 172)], 3)
    S.fill([(-15, 256, 'c'), (15, 256, 'c'), (22, 270), (48, 280), (60, 296, 'c'), (-18, 296, 'c')], 'gold', 4.2)
    for y in (248, 258):
        S.limb([(-17, y), (0, y + 4), (17, y)], [10, 10, 10], 'gold', 3.2)


def coat(S):
    """arms bound behind, buttoned jerkin with a flared skirt of two colours"""
    for d in (-1, 1):
        S.limb([(d * 112, -92), (d * 78, -40), (d * 30, -10)], [56, 46, 36], 'sky', 4.8, 's')
        S.limb([(d * 56, -158), (d * 92, -130), (d * 112, -88)], [56, 64, 58], 'sky', 4.8, 'se')
        shade(S, [(d * 56, -158), (d * 92, -130), (d * 112, -88)], [56, 64, 58], 8, .28, 4, DUSK)
        S.line([(d * 126, -80), (d * 108, -72), (d * 92, -76)], 4, 'end')
        S.line([(d * 120, -64), (d * 106, -60), (d * 94, -64)], 3.4, 'end')
    for d, pig in ((-1, 'blue'), (1, 'green')):
        S.fill([(0, -184, 'c'), (d * 30, -182), (d * 66, -168), (d * 72, -116), (d * 54, -50), (d * 45, 0), (d * 58, 50), (d * 74, 88, 'c'),
                (d * 36, 98), (0, 92, 'c')], pig, 5)
        for x, u in ((18, 24), (34, 44)):
            fold(S, [(d * x, 18), (d * (x + 3), 54), (d * (x + u * .3), 90)], 6)
    S.comb([(-70, -130), (-54, -50), (-46, 0)], 0, 20, 13, 4.4)
    for y in (-148, -122, -96, -70, -44, -20):
        S.fill(circ(0, y, 7), 'gold', 3.2)
    S.limb([(-46, 2), (0, 9), (46, 2)], [20, 20, 20], 'gold', 4.2)
    S.fill(rect(-11, -4, 22, 25, 4), 'red', 3.4)
    for d in (-1, 1):           # half-moon pockets
        S.fill([(d * 26, 34, 'c'), (d * 40, 58), (d * 56, 36, 'c'), (d * 42, 42)], 'gold', 3.4)


def head(S):
    """calm face; the hair falls away from it"""
    S.fill([(-30, -214), (-46, -250), (-48, -300), (-62, -348, 'c'), (-40, -334), (-32, -366, 'c'), (-14, -342), (2, -374, 'c'), (14, -342),
            (34, -364, 'c'), (40, -334), (60, -346, 'c'), (48, -300), (46, -250), (30, -214)], 'hair', 4.5)
    S.limb([(0, -212), (0, -176)], [44, 50], 'flesh', 4)
    for i in range(-2, 3):
        S.fill(circ(i * 15, -182 + abs(i) * 2, 12, 10), 'white', 3.4)
    face(S, 0, -254, 1.0, .2, False, 'm', mood=1)
    S.fill([(-40, -252, 'c'), (-34, -284), (-14, -296), (0, -290), (14, -296), (34, -284), (40, -252, 'c'), (50, -286), (46, -322),
        (52, -340, 'c'),
            (32, -328), (28, -352, 'c'), (10, -334), (0, -360, 'c'), (-10, -334), (-28, -352, 'c'), (-32, -328), (-52, -340, 'c'),
            (-46, -322), (-50, -286)], 'hair', 4)
    for x in (-36, -24, -12, 0, 12, 24, 36):
        S.line([(x * .9, -294 - 6 * (abs(x) < 20)), (x, -314), (x * 1.1, -338)], 2.8, 'end')


def draw(S):
    ground(S, 900, [(-10, 858), (80, 862), (160, 878), (240, 916), (300, 926), (360, 916), (440, 878), (520, 862), (610, 858)])
    trunk(S, False)
    trunk(S, True)
    for q in ((70, 928, .9), (214, 938, .7), (392, 938, .7), (536, 926, .9)):
        tuft(S, *q)
    beam(S)
    with S.at(300, 542, 1, 180):
        hose(S)
        coat(S)
        head(S)
