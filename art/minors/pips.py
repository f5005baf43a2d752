# SPDX-License-Identifier: GPL-3.0-or-later
"""The forty number cards, ace to ten.

Cups and coins stand at the places of a table and plants fill what is left. Swords and batons are two families of bands that
cross each other; odd numbers add a straight one, tens two. In all four suits `positions` names one place for every symbol the
card shows: the middle of a cup or coin, the guard of a sword, the head of a baton.
"""
import math

from minors.suits import *      # the vocabulary of scenes, see drawing.py
from minors import aces

NUMERALS = ('I', 'II', 'III', 'IIII', 'V', 'VI', 'VII', 'VIII', 'VIIII', 'X')
NAMES = ('AS', 'DOS', 'TRES', 'CUATRO', 'CINCO', 'SEIS', 'SIETE', 'OCHO', 'NUEVE', 'DIEZ')

# Places relative to the middle of the picture box: half of the table, the other half is its image turned by half a turn.
HALF_CUPS = {
    2: [(-118, 0)],
    4: [(-142, -236), (142, -236)],
    6: [(-150, -272), (150, -272), (-150, 0)],
    8: [(-168, -262), (0, -300), (168, -262), (-100, 0)],
    10: [(-172, -312), (172, -312), (-172, -104), (172, -104), (0, -164)],
}
HALF_COINS = {
    2: [(0, -208)],
    4: [(-138, -262), (138, -262)],
    6: [(0, -316), (-142, -152), (142, -152)],
    8: [(-156, -318), (156, -318), (-156, -106), (156, -106)],
    10: [(-166, -330), (166, -330), (-166, -110), (166, -110), (0, -220)],
}
# Odd numbers: the even table below plus one in the middle, except the three, which is a triangle.
TRIANGLE = {'copas': [(0, -202), (-132, 210), (132, 210)], 'oros': [(0, -226), (-126, 208), (126, 208)]}
# Seven and nine cups and coins have tables of their own, since a middle place would touch the neighbours' row.
OWN_HALF = {('copas', 7): [(-174, -256), (174, -256), (-174, 0)], ('copas', 9): [(-166, -268), (0, -268), (166, -268), (-166, 0)],
            ('oros', 7): [(-166, -272), (166, -272), (-166, 0)], ('oros', 9): [(-160, -322), (160, -322), (-160, -112), (160, -112)]}
CUP_SIZE = {2: 1.9, 3: 1.75, 4: 1.5, 5: 1.35, 6: 1.2, 7: 1.06, 8: 1.06, 9: 1.1, 10: 1.02}
COIN_SIZE = {2: 158, 3: 118, 4: 106, 5: 100, 6: 92, 7: 78, 8: 84, 9: 80, 10: 76}

# Swords: how far the blades bulge from the axis, their width and the room between two of one side.
BLADE_WIDTH = {1: 34, 2: 30, 3: 27, 4: 23}
BLADE_PITCH = {1: 0, 2: 50, 3: 42, 4: 35}
STAFF_WIDTH = {1: 46, 2: 38, 3: 32, 4: 27}
STAFF_PITCH = {1: 0, 2: 66, 3: 52, 4: 44}
STAFF_LEAN = 25                 # degrees off the vertical
STAFF_LENGTH = 376              # from the middle to the head


# ---------- where the symbols stand ----------
def parallels(n, pitch):
    """distances of n parallel bands from their common middle line"""
    return [pitch * (i - (n - 1) / 2) for i in range(n)]


def offset(line, distance):
    """line moved sideways, to the left of its direction"""
    ps = sample(line, n=8)
    return [(p[0] - q[0] * distance, p[1] - q[1] * distance) for p, q in zip(ps, normals(ps))]


def sword_lines(index):
    """centre lines, guard to point, of the curved swords: the left family, and the right one turned by half a turn"""
    n = index // 2 if index < 10 else 4
    master = [(146, 326), (64, 262), (-52, 178), (-134, 84), (-158, 0), (-134, -84), (-52, -178), (64, -262), (172, -340)]
    left = [[(300 + x, 526 + y) for x, y in offset(master, -d)] for d in parallels(n, BLADE_PITCH[n])]
    return left, [[(600 - x, 1052 - y) for x, y in line] for line in left]


def staff_lines(index):
    """centre lines, foot to head, of the crossed staves leaning to the left, to the right, and of the upright ones"""
    n = index // 2 if index < 10 else 4
    a = math.radians(STAFF_LEAN)
    ux, uy = math.sin(a) * STAFF_LENGTH, math.cos(a) * STAFF_LENGTH
    families = []
    for side in (-1, 1):
        lines = []
        for d in parallels(n, STAFF_PITCH[n]):
            x, y = 300 + d * math.cos(a), 526 + d * side * math.sin(a)
            lines.append([(x - side * ux, y + uy), (x + side * ux, y - uy)])
        families.append(lines)
    upright = [0] if index % 2 else [-32, 32] if index == 10 else []
    return families[0], families[1], [[(300 + d, 526 + 376), (300 + d, 526 - 376)] for d in upright]


def straight_swords(index):
    """(guard x, guard y, length, turn) of the straight swords inside the curved ones"""
    if index == 10:
        return [(262, 676, 318, 10), (338, 676, 318, -10)]
    return [(300, 714 if index < 9 else 676, 420 if index < 9 else 344, 0)] if index % 2 else []


def positions(suit, index):
    """one place for every symbol of the card"""
    if index == 1:
        return [CENTRE]
    if suit == 'espadas':
        left, right = sword_lines(index)
        return [line[0] for line in left + right] + [s[:2] for s in straight_swords(index)]
    if suit == 'bastos':
        return [line[1] for family in staff_lines(index) for line in family]
    if index == 3:
        places = TRIANGLE[suit]
    else:
        half = OWN_HALF.get((suit, index)) or (HALF_CUPS if suit == 'copas' else HALF_COINS)[index - index % 2]
        places = half + ([(0, 0)] if index % 2 else []) + [(-x, -y) for x, y in reversed(half)]
    return [(CENTRE[0] + x, CENTRE[1] + y) for x, y in places]


# ---------- plants among the cups ----------
def garden_cups_2(S):
    """two plants that spring from the axis and shelter the pair above and below"""
    for c in halves(S):
        with c:
            stem(S, [(0, 0), (0, -170), (0, -330)], 11)
            for f in (False, True):
                with S.at(0, 0, 1, 0, f):
                    stem(S, [(0, -190), (60, -214), (118, -204), (158, -236)], 9)
                    stem(S, [(118, -204), (170, -192), (204, -206)], 7)
                    stem(S, [(0, -270), (44, -292), (66, -330)], 8)
                    leaf(S, 40, -208, .84, -52)
                    leaf(S, 92, -208, .74, 54, True, 'blue')
                    leaf(S, 6, -232, .7, -30)
                    leaf(S, 4, -300, .6, -28)
                    tulip(S, 160, -232, .96, 14)
                    bloom(S, 206, -204, .6, 10, 'sky')
                    corn_bud(S, 70, -326, 1.05, 22)
            tulip(S, 0, -318, 1.1, 0, 'blue')
    bloom(S, *CENTRE, .76, 30)


def garden_cups_3(S):
    """a forked branch carries one cup and parts the two below"""
    x0, y0 = CENTRE
    with S.at(x0, y0):
        stem(S, [(0, 400), (0, 250), (0, 60), (0, -70)], 12)
        for f in (False, True):
            with S.at(0, 0, 1, 0, f):
                stem(S, [(0, 70), (80, 54), (150, 12), (164, -70), (132, -150)], 10)
                stem(S, [(164, -70), (204, -130), (206, -220), (186, -300)], 8)
                leaf(S, 74, 56, .84, 20, True)
                leaf(S, 100, 40, .8, -100)
                leaf(S, 160, -20, .74, 12, True, 'blue')
                leaf(S, 6, 20, .8, -48)
                leaf(S, 158, -96, .74, -150)
                tulip(S, 130, -146, .96, -22)
                leaf(S, 206, -190, .74, -150)
                leaf(S, 200, -250, .6, -40, False, 'blue')
                tulip(S, 186, -296, 1.05, -8, 'blue')
                stem(S, [(0, 330), (24, 352), (30, 376)], 7)
                leaf(S, 2, 150, .62, 26)
                leaf(S, 2, 230, .6, 30)
                corn_bud(S, 30, 372, .8, 150)
        bloom(S, 0, 70, .9, 30)
        bloom(S, 0, 330, .7, 0, 'sky')

def garden_cross(S, arm_x, arm_y, heart, petals='red'):
    """a four-armed plant about the middle: used where cups or coins keep to the corners"""
    for c in quarters(S):
        with c:
            stem(S, [(0, -20), (0, -arm_y * .5), (0, -arm_y)], 10)
            stem(S, [(10, 0), (arm_x * .5, -4), (arm_x, 0)], 10)
            stem(S, [(0, -arm_y * .62), (34, -arm_y * .7), (56, -arm_y * .92)], 7)
            leaf(S, 6, -arm_y * .4, .72, -44)
            leaf(S, arm_x * .36, -4, .7, -58)
            leaf(S, 6, -arm_y * .78, .55, -20, False, 'blue')
            leaf(S, arm_x * .7, -4, .58, -34, False, 'blue')
            corn_bud(S, 56, -arm_y * .9, .86, 24)
    for c in halves(S):
        with c:
            tulip(S, 0, -arm_y + 4, 1.05, 0, petals)
            tulip(S, arm_x - 4, 0, .92, 90, petals)
    if heart:
        bloom(S, *CENTRE, heart, 30, petals)


def garden_columns(S, petals=('red', 'sky')):
    """a tall plant up the axis between two columns, the same above and below, leaving the middle free"""
    for c in quarters(S):
        with c:
            stem(S, [(0, -60), (0, -220), (0, -340)], 9)
            stem(S, [(0, -134), (60, -154), (92, -196), (66, -234)], 8)
            stem(S, [(0, -136), (80, -126), (128, -106), (150, -122)], 7)
            leaf(S, 84, -176, .72, -20)
            leaf(S, 40, -142, .6, -70)
            leaf(S, 134, -108, .5, 30, False, 'blue')
            leaf(S, 0, -276, .62, -40)
            bloom(S, 64, -240, .62, 12, petals[1])
    for c in halves(S):
        with c:
            bloom(S, 0, -350, .95, 0, petals[0])


def garden_cups_6(S):
    """a vine with big flowers between the two columns"""
    for c in quarters(S):
        with c:
            stem(S, [(0, -4), (0, -160), (0, -330)], 10)
            stem(S, [(0, -96), (34, -124), (62, -136), (120, -134), (170, -136)], 8)
            stem(S, [(0, -250), (36, -276), (50, -310)], 8)
            leaf(S, 40, -128, .7, -80)
            leaf(S, 76, -134, .62, 28, False, 'blue')
            leaf(S, 4, -50, .74, -46)
            leaf(S, 4, -200, .74, -50)
            bloom(S, 176, -136, .8, 12, 'sky')
            corn_bud(S, 52, -304, .95, 16)
    for c in halves(S):
        with c:
            tulip(S, 0, -322, 1.1)
    bloom(S, *CENTRE, 1.15, 30)


def garden_cups_8(S):
    """sprays from the middle reach between the three rows"""
    for c in quarters(S):
        with c:
            stem(S, [(0, -20), (0, -90), (0, -170)], 9)
            stem(S, [(0, -100), (60, -132), (140, -122), (192, -136)], 8)
            leaf(S, 4, -60, .62, -30)
            leaf(S, 60, -130, .58, -70)
            leaf(S, 110, -128, .56, 34, False, 'blue')
            stem(S, [(196, -130), (214, -70), (200, -2)], 7)
            leaf(S, 212, -74, .6, 130)
            bloom(S, 200, -140, .72, 10, 'sky')
    for c in halves(S):
        with c:
            tulip(S, 0, -160, .82)
            bloom(S, 206, 0, .8, 30)
    bloom(S, *CENTRE, .84, 30)


def garden_cups_9(S):
    """trellis of small flowers between three rows of three"""
    for c in quarters(S):
        with c:
            stem(S, [(0, -134), (80, -128), (160, -140), (214, -128)], 8)
            stem(S, [(84, -130), (84, -60), (84, 0)], 7)
            stem(S, [(84, -130), (84, -220), (84, -330)], 7)
            leaf(S, 40, -132, .52, -40)
            leaf(S, 120, -134, .56, 36, False, 'blue')
            leaf(S, 86, -200, .48, -64)
            leaf(S, 82, -240, .48, -116, True)
            leaf(S, 86, -60, .44, -64)
            bloom(S, 84, -132, .62, 0)
            bloom(S, 84, -340, .56, 0, 'sky')
            corn_bud(S, 212, -132, .7, 80)
    for c in halves(S):
        with c:
            bloom(S, 84, 0, .5, 30, 'sky')
            bloom(S, 0, -134, .72, 30, 'sky')


def garden_cups_10(S):
    """the pair on the axis stands in a ring of leaves, flowers close it above, below and in the middle"""
    for c in quarters(S):
        with c:
            stem(S, [(0, -14), (52, -40), (84, -104), (84, -190), (44, -262), (0, -286)], 8)
            leaf(S, 78, -84, .52, -8)
            leaf(S, 84, -200, .56, 10, True)
            leaf(S, 62, -240, .56, -30)
            stem(S, [(0, -280), (0, -310), (0, -340)], 8)
            leaf(S, 0, -312, .62, -36, False, 'blue')
            stem(S, [(20, -10), (90, -2), (150, 0)], 8)
            leaf(S, 70, -4, .5, -50)
            leaf(S, 104, -2, .54, -30, False, 'blue')
    for c in halves(S):
        with c:
            tulip(S, 0, -330, .98)
            bloom(S, 168, 0, .66, 0, 'sky')
    bloom(S, *CENTRE, 1, 30)


def wreath(S, r):
    """white disc with a beaded rim that frames a symbol in the middle"""
    x, y = CENTRE
    S.fill(circ(x, y, r), 'white', 5)
    S.stroke(circ(x, y, r * .89), 3)
    n = 24
    for i in range(n):
        S.fill(circ(*pol(x, y, r * 1.065, i * 360 / n), r * .098), 'red' if i % 2 else 'gold', 3)


# ---------- plants among the coins ----------
def scroll(S):
    """the ribbon that winds between two coins in the shape of an S, with its shaded back"""
    x, y = CENTRE
    pts = [(214, -360), (206, -180), (150, -34), (0, 0), (-150, 34), (-206, 180), (-214, 360)]
    with S.at(x, y):
        S.limb([(226, -330), (206, -362), (176, -392)], [50, 46, 40], 'blue', 4.6)
        S.limb([(-226, 330), (-206, 362), (-176, 392)], [50, 46, 40], 'blue', 4.6)
        S.limb(pts, [44, 44, 50, 62, 50, 44, 44], 'white', 5)
        for d in (-1, 1):
            S.line(offset(pts, d * 15)[4:-4], 2.6)
        for i, (px, py) in enumerate(sample(pts, n=4)[1:-1]):
            if i % 2:
                S.dot(px, py, 4)
            else:
                S.fill(poly([(px, py - 11), (px + 9, py), (px, py + 11), (px - 9, py)]), 'red', 3.2)


def garden_coins_2(S):
    """the winding ribbon, with a flower in each empty corner"""
    for c in halves(S):
        with c:
            stem(S, [(-196, -120), (-210, -230), (-196, -330)], 9)
            leaf(S, -204, -180, .76, -128)
            leaf(S, -204, -190, .6, -40)
            leaf(S, -208, -262, .66, -60, False, 'blue')
            leaf(S, -206, -280, .56, -124, True)
            tulip(S, -194, -322, 1.05, 8)
            corn_bud(S, -192, -124, 1, 172)
            stem(S, [(112, -14), (160, 30), (196, 34)], 7)
            bloom(S, 200, 34, .84, 0, 'red')
    scroll(S)


def garden_coins_3(S):
    """two stalks rise beside the upper coin and knot between the three"""
    with S.at(*CENTRE):
        stem(S, [(0, 396), (0, 240), (0, 60), (0, -120)], 11)
        for f in (False, True):
            with S.at(0, 0, 1, 0, f):
                stem(S, [(0, 70), (96, 36), (178, -10), (196, -150), (180, -290)], 10)
                leaf(S, 84, 40, .86, -20)
                leaf(S, 130, 20, .7, 40, False, 'blue')
                leaf(S, 190, -70, .72, -150)
                leaf(S, 194, -160, .66, -30)
                leaf(S, 192, -224, .7, -160)
                tulip(S, 180, -284, 1.1, 6)
                bloom(S, 204, 32, .62, 0, 'sky')
                stem(S, [(0, 330), (40, 346), (70, 380)], 8)
                corn_bud(S, 70, 374, .9, 140)
                leaf(S, 20, 338, .6, 20)
        bloom(S, 0, 64, 1.02, 30)


def shield(S):
    """heraldic shield with two fields in the middle of the four coins"""
    with S.at(*CENTRE):
        for f in (False, True):
            with S.at(0, 0, 1, 0, f):
                stem(S, [(60, 0), (120, -8), (176, 0)], 9)
                leaf(S, 92, -4, .8, -46)
                leaf(S, 96, -2, .8, 46, True)
                tulip(S, 172, 0, .96, 90)
                for d in (-1, 1):
                    stem(S, [(30, 96 * d), (34, 140 * d), (8, 180 * d), (0, 260 * d)], 8)
                    leaf(S, 22, 160 * d, .8, 52 * d, d < 0)
                    leaf(S, 4, 226 * d, .6, 60 * d, d < 0, 'blue')
        for d in (-1, 1):
            tulip(S, 0, 254 * d, 1.15, 0 if d < 0 else 180, 'blue')
        S.fill([(-84, -112, 'c'), (-40, -104), (0, -116, 'c'), (40, -104), (84, -112, 'c'), (88, -10), (56, 72), (0, 118, 'c'), (-56, 72),
                (-88, -10)], 'gold', 5)
        S.fill([(-68, -92, 'c'), (0, -96, 'c'), (0, 96, 'c'), (-46, 56), (-72, -14)], 'red', 4)
        S.fill([(68, -92, 'c'), (0, -96, 'c'), (0, 96, 'c'), (46, 56), (72, -14)], 'blue', 4)
        S.limb([(-68, -44), (0, -10), (62, 30)], [26, 26, 26], 'gold', 4)
        S.comb([(78, -90), (80, -10), (50, 70)], 196, 12, 16, 4)
        bloom(S, 38, -60, .62, 0, 'white')
        bloom(S, -30, 36, .62, 0, 'white')


def garden_coins_6(S):
    """one stalk between the upper and the lower three, with leaves reaching into the gaps"""
    for c in quarters(S):
        with c:
            stem(S, [(0, -8), (0, -110), (0, -214)], 10)
            stem(S, [(10, 0), (90, -10), (170, 0)], 9)
            leaf(S, 2, -70, .56, -50)
            leaf(S, 60, -6, .72, -44)
            leaf(S, 124, -4, .6, -30, False, 'blue')
            stem(S, [(206, -262), (190, -310), (150, -326)], 8)
            leaf(S, 200, -290, .5, -60)
            corn_bud(S, 206, -264, .8, 174)
            bloom(S, 148, -330, .84, 0, 'sky')
    for c in halves(S):
        with c:
            tulip(S, 168, 0, 1.0, 90)
            corn_bud(S, 0, -166, 1)
    bloom(S, *CENTRE, 1.2, 30)


def garden_coins_8(S):
    """axis plant with four crossing sprays between the two columns"""
    for c in quarters(S):
        with c:
            stem(S, [(0, -4), (0, -160), (0, -330)], 10)
            stem(S, [(0, -170), (70, -196), (130, -210), (200, -212)], 8)
            stem(S, [(6, 0), (80, -4), (150, 0)], 8)
            leaf(S, 44, -186, .62, -62)
            leaf(S, 4, -60, .74, -50)
            leaf(S, 4, -100, .62, -30, False, 'blue')
            leaf(S, 4, -240, .74, -50)
            leaf(S, 4, -290, .56, -30, False, 'blue')
            leaf(S, 88, -2, .56, -38)
            bloom(S, 212, -212, .5, 0, 'sky')
    for c in halves(S):
        with c:
            tulip(S, 0, -322, 1.15)
            bloom(S, 172, 0, .74, 0, 'sky')
            bloom(S, 0, -172, .8)
    bloom(S, *CENTRE, 1.05, 30)


def garden_coins_9(S):
    """flowers above and below the ninth coin, sprays towards the gaps of the columns"""
    for c in quarters(S):
        with c:
            stem(S, [(0, -60), (0, -220), (0, -330)], 9)
            stem(S, [(0, -150), (50, -190), (120, -216), (196, -216)], 8)
            leaf(S, 2, -120, .66, -30)
            leaf(S, 40, -182, .6, -60)
            leaf(S, 4, -250, .66, -46, False, 'blue')
            bloom(S, 204, -216, .52, 0, 'sky')
    for c in halves(S):
        with c:
            tulip(S, 0, -322, 1.15)
            stem(S, [(90, 0), (140, 0), (170, 0)], 8)
            leaf(S, 104, -2, .5, -40)
            leaf(S, 104, 2, .5, 40, True)
            bloom(S, 190, 0, .66, 0, 'blue')


def garden_coins_10(S):
    """garlands hold the two coins of the axis"""
    for c in quarters(S):
        with c:
            stem(S, [(0, -6), (0, -70), (0, -150)], 9)
            stem(S, [(0, -290), (0, -320), (0, -360)], 9)
            stem(S, [(6, 0), (80, -6), (160, 0)], 8)
            leaf(S, 2, -60, .7, -26)
            leaf(S, 60, -4, .56, -40)
            leaf(S, 100, -4, .6, -28, False, 'blue')
            leaf(S, 2, -318, .72, -40)
            leaf(S, 196, -220, .5, -90)
            leaf(S, 196, -220, .5, -20)
    for c in halves(S):
        with c:
            for d in (-1, 1):
                bloom(S, 192 * d, -220, .62, 0, 'red')
            tulip(S, 0, -346, .92)
            bloom(S, 186, 0, .78, 0, 'sky')
    bloom(S, *CENTRE, .9, 30)


CUP_GARDENS = {2: garden_cups_2, 3: garden_cups_3, 4: lambda S: garden_cross(S, 176, 270, 1.2),
               5: lambda S: garden_cross(S, 196, 290, 0, 'blue'), 6: garden_cups_6, 7: garden_columns, 8: garden_cups_8,
               9: garden_cups_9, 10: garden_cups_10}
COIN_GARDENS = {2: garden_coins_2, 3: garden_coins_3, 4: shield, 5: lambda S: garden_cross(S, 186, 290, 0), 6: garden_coins_6,
                7: lambda S: garden_columns(S, ('blue', 'red')), 8: garden_coins_8, 9: garden_coins_9, 10: garden_coins_10}


# ---------- the cards ----------
def draw_cups(S, index):
    CUP_GARDENS[index](S)
    if index == 7:
        wreath(S, 92)
    for place in positions('copas', index):
        framed = index == 7 and place == CENTRE
        goblet(S, *place, .92 if framed else CUP_SIZE[index])


def draw_coins(S, index):
    COIN_GARDENS[index](S)
    for i, (x, y) in enumerate(positions('oros', index)):
        disc(S, x, y, COIN_SIZE[index], 8 if index < 6 else 6, 22.5 if i % 2 and index < 6 else 0)


def cut_flower(S, x, y, k, petals='red'):
    """tulip with a pair of leaves on a short stalk, for an opening that no plant reaches"""
    with S.at(x, y, k):
        stem(S, [(0, 56), (0, 26), (0, -2)], 9)
        leaf(S, 2, 34, .74, -34)
        leaf(S, -2, 34, .74, 34, True)
        tulip(S, 0, 0, 1, 0, petals)


def sword_flowers(S, index):
    """flowers inside the oval when no straight sword stands there, and on its two flanks"""
    crowded = index > 5
    if index % 2 == 0 and index < 10:
        k = {2: 1.25, 4: 1.1, 6: .95, 8: .8}[index]
        for c in quarters(S):
            with c:
                stem(S, [(0, -10), (0, -70 * k), (0, -130 * k)], 9)
                stem(S, [(0, -40 * k), (40 * k, -64 * k), (50 * k, -104 * k)], 7)
                leaf(S, 2, -20 * k, .9 * k, -18)
                leaf(S, 4, -84 * k, .56 * k, -40, False, 'blue')
                corn_bud(S, 50 * k, -100 * k, .9 * k, 14)
        for c in halves(S):
            with c:
                tulip(S, 0, -122 * k, 1.0 * k)
        bloom(S, *CENTRE, 1.05 * k, 30)
    if crowded:         # no room beside the oval: flowers in the four corners between its shoulders and the frame
        for c in quarters(S):
            with c:
                stem(S, [(224, -100), (216, -150), (196, -190)], 8)
                leaf(S, 218, -136, .56, -150)
                leaf(S, 214, -156, .5, -40, False, 'blue')
                bloom(S, 190, -202, .74)
    else:
        x = 224 - 24 * (index < 4)
        for c in quarters(S):
            with c:
                stem(S, [(x - 4, -20), (x - 14, -64), (x - 2, -112)], 8)
                leaf(S, x - 10, -50, .6, -60)
                leaf(S, x - 12, -62, .56, -128, True, 'blue')
                corn_bud(S, x - 2, -106, .9, 8)
        for d in (-1, 1):
            bloom(S, CENTRE[0] + d * (x - 2), CENTRE[1], .74)
    if index < 10:
        for c in halves(S):
            with c:
                cut_flower(S, 0, -346 if crowded else -322, .7 if crowded else .84)


def draw_swords(S, index):
    left, right = sword_lines(index)
    n = len(left)
    width = BLADE_WIDTH[n]
    sword_flowers(S, index)
    weave(S, left, right, width, lambda line, i, family: blade(S, line, width, BLADES[i % 2]))
    for line in left + right:
        (x, y), (x1, y1) = line[0], line[2]
        hilt(S, x, y, math.degrees(math.atan2(y1 - y, x1 - x)) + 90, width / 30 + .12)
    for x, y, length, turn in straight_swords(index):
        straight_sword(S, x, y, length, turn, .9 if index == 10 else 1)


def staff_flowers(S, index):
    """sprays in the four openings of the cross"""
    n = index // 2 if index < 10 else 4
    x = 78 + 19 * n
    for c in quarters(S):
        with c:
            stem(S, [(0, 0), (x, -2), (206, 0)], 9)
            stem(S, [(x - 6, -2), (x + 44, -34), (204, -88 + 4 * n)], 7)
            leaf(S, x + 20, -6, .74 - .04 * n, -66)
            leaf(S, 190, -56, .6, -110, True, 'blue')
            corn_bud(S, 206, -84 + 4 * n, 1, 16)
    for c in halves(S):
        with c:
            tulip(S, 176, 0, .9, 90)
            if index % 2 == 0 and index < 10:
                cut_flower(S, 0, -190 - 34 * n, 1.1 - .07 * n, 'blue')


def draw_batons(S, index):
    left, right, upright = staff_lines(index)
    width = STAFF_WIDTH[len(left)]
    staff_flowers(S, index)
    weave(S, left, right, width, lambda line, i, family: staff(S, *line, width, STAVES[(i + family) % 2]))
    for line in upright:
        staff(S, *line, width, 'green')
    for (x0, y0), (x1, y1) in left + right + upright:
        turn = math.degrees(math.atan2(x1 - x0, y0 - y1))
        ferrule(S, x1, y1, turn, width)
        ferrule(S, x0, y0, turn + 180, width)
    if upright:
        x, y = CENTRE
        half = width * .5 + 10 + max(0, upright[-1][0][0] - x)
        S.fill(rect(x - half, y - 22, 2 * half, 44, 8), 'gold', 4.6)
        for i in (-1, 0, 1):
            S.fill(circ(x + i * half * .62, y, 7), 'red' if i else 'blue', 3)
        S.comb([(x - half + 6, y + 19), (x, y + 19), (x + half - 6, y + 19)], 270, 8, int(half / 2), 3.4)


DRAW = {'bastos': draw_batons, 'copas': draw_cups, 'espadas': draw_swords, 'oros': draw_coins}


class Pip:
    """one number card: what the renderer needs of it"""
    def __init__(self, suit, index):
        self.suit, self.index = suit, index
        self.num = NUMERALS[index - 1]
        self.title = f'{NAMES[index - 1]} DE {suit.upper()}'

    def draw(self, S):
        if self.index == 1:
            aces.DRAW[self.suit](S)
        else:
            DRAW[self.suit](S, self.index)


def card(suit, index):
    return Pip(suit, index)
