# SPDX-License-Identifier: GPL-3.0-or-later
"""Heads of the court figures: hair, beard and headgear to be combined freely.

Everything is drawn around the middle of the face, which looks straight ahead or a little to the viewer's left; flip turns it.
"""
import math

from minors.suits import *      # the vocabulary of scenes, see drawing.py


# ---------- hair behind the face ----------
def hair_bob(S, pig):
    """page's cut, rolled inwards at the jaw"""
    S.fill([(-26, -50), (-56, -26), (-62, 10), (-74, 38), (-62, 62), (-40, 58), (-30, 40), (30, 40), (40, 58), (62, 62), (74, 38), (62, 10),
            (56, -26), (26, -50)], pig, 4.6)
    for d in (-1, 1):
        for o in (0, 8, 16):
            S.line([(d * (40 + o), -24), (d * (48 + o), 10), (d * (52 + o * .9), 40), (d * (44 + o * .4), 52)], 3)


def hair_long(S, pig):
    """falls in strands over the shoulders"""
    S.fill([(-26, -50), (-58, -28), (-62, 20), (-72, 64), (-66, 112), (-80, 152), (-46, 146), (-36, 90), (36, 90), (46, 146), (80, 152),
            (66, 112), (72, 64), (62, 20), (58, -28),
            (26, -50)], pig, 4.6)
    for d in (-1, 1):
        for o in (0, 9, 18):
            S.line([(d * (40 + o), -22), (d * (46 + o * .8), 30), (d * (44 + o), 80), (d * (48 + o), 136)], 3.2)


def hair_curls(S, pig):
    """ball beside ball round the whole head"""
    curls(S, [pol(0, -4, 54, a) for a in range(-220, 50, 27)], 19, pig, 4)


def hair_waves(S, pig):
    """wavy and shoulder-long, parted in the middle"""
    S.fill([(-26, -50), (-52, -30), (-70, 0), (-58, 26), (-74, 50), (-64, 84, 'c'), (-40, 76), (0, 60), (40, 76), (64, 84, 'c'), (74, 50),
            (58, 26), (70, 0), (52, -30), (26, -50)], pig, 4.6)
    for d in (-1, 1):
        for o in (0, 8, 16):
            S.line([(d * (38 + o), -20), (d * (48 + o), 2), (d * (40 + o), 26), (d * (50 + o), 48), (d * (46 + o), 70)], 3)


def hair_wimple(S, pig):
    """linen that hides the hair and lies on the shoulders"""
    S.fill([(-50, -50), (-62, -10), (-60, 40), (-78, 84), (-50, 108), (0, 118), (50, 108), (78, 84), (60, 40), (62, -10), (50, -50)],
           'white', 4.8)
    for d in (-1, 1):
        fold(S, [(d * 55, -10), (d * 56, 40), (d * 66, 84)], 5)
        fold(S, [(d * 42, 34), (d * 38, 64), (d * 40, 98)], 5)


def hair_braids(S, pig):
    """two plaits that hang before the shoulders"""
    S.fill([(-26, -50), (-52, -30), (-58, 4), (-52, 40), (0, 50), (52, 40), (58, 4), (52, -30), (26, -50)], pig, 4.6)
    for d in (-1, 1):
        for o in (0, 8):
            S.line([(d * (38 + o), -20), (d * (46 + o), 6), (d * (42 + o), 34)], 3)
        for i in range(7):
            S.fill(circ(d * (52 + 6 * math.sin(i * .6)), 40 + i * 19, 14 - i * .6, 12), pig, 3.8)
            S.line([(d * 44, 44 + i * 19), (d * 54, 36 + i * 19), (d * 62, 40 + i * 19)], 2.8)
        S.fill(rect(d * 48 - 9, 162, 18, 11, 3), 'red', 3.4)
        S.fill([(d * 48 - 8, 172, 'c'), (d * 48 - 12, 190), (d * 48, 200, 'c'), (d * 48 + 12, 190), (d * 48 + 8, 172, 'c')], pig, 3.6)


def hair_none(S, pig):
    """nothing shows under the hat"""


# ---------- beards, over the face; b is the shift of the features by the turn ----------
def beard_full(S, pig, b):
    """parted in two points, with a moustache"""
    S.fill([(-38 + b * .2, 10, 'c'), (-32 + b * .4, 34), (-16 + b, 29), (-2 + b, 31), (12 + b, 29), (30, 34), (38, 10, 'c'), (38, 46),
            (22, 76), (5 + b * .3, 102, 'c'), (-1 + b * .6, 88),
            (-8 + b * .8, 102, 'c'), (-25 + b * .5, 76), (-38 + b * .3, 44)], pig, 4)
    mouth_in_beard(S, b)
    for x0, x1 in ((-26, -16), (-14, -8), (0, 0), (13, 7), (26, 17)):
        S.line([(x0 + b, 42), ((x0 + x1) / 2 + b * .8, 64), (x1 + b * .6, 86)], 3)
    moustache(S, pig, b)


def beard_long(S, pig, b):
    """an old man's, down to the breast"""
    S.fill([(-40 + b * .2, 2, 'c'), (-34 + b * .4, 32), (-16 + b, 29), (-2 + b, 31), (12 + b, 29), (32, 32), (39, 2, 'c'), (44, 50),
            (36, 96), (20, 132), (0 + b * .4, 158, 'c'), (-22, 132),
            (-38, 96), (-46 + b * .3, 50)], pig, 4.2)
    mouth_in_beard(S, b)
    for x0, x1, y in ((-34, -20, 110), (-22, -12, 124), (-10, -4, 136), (4, 4, 140), (18, 12, 128), (31, 22, 112)):
        S.line([(x0 + b * .6, 40), (x0 * 1.06, 66), ((x0 + x1) / 2 + 3, 92), (x1, y)], 3.2)
    moustache(S, pig, b)


def beard_round(S, pig, b):
    """short and curled"""
    pts = [(-36 + b * .3, 14), (-34 + b * .4, 34), (-22 + b * .6, 50), (-4 + b * .7, 58), (16 + b * .5, 52), (31, 36), (37, 16)]
    S.fill([(-37 + b * .2, 6, 'c'), (-30 + b * .5, 30), (-12 + b, 28), (10 + b, 28), (28, 30), (37, 6, 'c'), (38, 34), (18, 58),
            (-4 + b * .6, 62), (-28 + b * .5, 54), (-38 + b * .3, 32)], pig, 4)
    mouth_in_beard(S, b)
    curls(S, pts, 11, pig, 3.6)
    moustache(S, pig, b)


def beard_goatee(S, pig, b):
    """tuft on the chin and a moustache with turned-up ends"""
    S.fill([(-13 + b, 42, 'c'), (b, 39), (13 + b, 42, 'c'), (10 + b, 62), (b * .8, 84, 'c'), (-10 + b, 62)], pig, 4)
    for x in (-5, 0, 5):
        S.line([(x + b, 48), (x * .4 + b * .9, 72)], 2.8)
    for d in (-1, 1):
        S.limb([(b + 1, 25), (b + d * 16, 29), (b + d * 32, 18)], [7, 9, 3], pig, 3.2)


def mouth_in_beard(S, b):
    S.fill([(-13 + b, 34, 'c'), (-1 + b, 30), (11 + b, 34, 'c'), (-1 + b, 41)], 'lip', 2.6)


def moustache(S, pig, b):
    for d in (-1, 1):
        S.limb([(b - 2 + d * 36, 27), (b - 2 + d * 16, 20), (b - 1, 25)], [3, 12, 8], pig, 3.2)


# ---------- headgear ----------
def hat_crown(S, pigs):
    crown(S, -1, -46, 1.16, 5)


def hat_tall_crown(S, pigs):
    """closed crown: fleurons and two arches that meet under a ball"""
    S.fill([(-46, -44, 'c'), (-52, -84), (-30, -116), (0, -124), (30, -116), (52, -84), (46, -44, 'c')], pigs[0], 4.6)
    S.comb([(40, -104), (50, -80), (46, -50)], 186, 18, 7, 4)
    for d in (-1, 1):
        S.limb([(d * 46, -62), (d * 40, -104), (0, -124)], [12, 12, 12], 'gold', 3.8)
    S.limb([(0, -56), (0, -122)], [13, 12], 'gold', 3.8)
    S.fill(circ(0, -132, 11), 'gold', 4)
    band_with_fleurons(S, pigs[1])


def band_with_fleurons(S, stone):
    for x in (-46, -23, 0, 23, 46):
        S.fill([(x - 9, -52, 'c'), (x - 13, -68), (x, -84 + abs(x) * .1, 'c'), (x + 13, -68), (x + 9, -52, 'c')], 'gold', 3.8)
    S.fill([(-50, -56, 'c'), (0, -46), (50, -56, 'c'), (47, -32, 'c'), (0, -22), (-47, -32, 'c')], 'gold', 4.2)
    for i, x in enumerate((-32, -16, 0, 16, 32)):
        S.fill(circ(x, -37 - abs(x) * .12 + 2, 5), stone if i % 2 else 'white', 2.8)


def hat_brim_crown(S, pigs):
    """the old kings' hat: a broad brim like a lying eight and a crown upon it"""
    S.fill([(-50, -50, 'c'), (-50, -78, 'c'), (50, -78, 'c'), (50, -50, 'c')], pigs[1], 4.6)
    crown(S, 0, -70, 1.06, 5)
    brim(S, pigs)


def hat_brim(S, pigs):
    """broad brim like a lying eight, low round top"""
    S.fill([(-52, -50, 'c'), (-50, -92), (-28, -116), (0, -121), (28, -116), (50, -92), (52, -50, 'c')], pigs[1], 4.8)
    S.comb([(34, -104), (48, -80), (50, -54)], 190, 20, 8, 4.4)
    brim(S, pigs)


def brim(S, pigs):
    """the lying eight with its lining"""
    S.fill([(0, -52), (-50, -68), (-98, -80), (-132, -66), (-128, -40), (-96, -28), (-48, -38), (0, -30), (48, -38), (96, -28), (128, -40),
            (132, -66), (98, -80), (50, -68)], pigs[0], 4.8)
    S.fill([(0, -44), (-50, -58), (-94, -69), (-116, -58), (-112, -46), (-92, -40), (-48, -48), (0, -38), (48, -48), (92, -40), (112, -46),
            (116, -58), (94, -69), (50, -58)], pigs[1], 3.4)


def hat_cap(S, pigs):
    """soft cap with a rolled brim and a long feather"""
    for o in (0, 10):
        S.fill(poly(ribbon([(30, -66), (78, -96 - o), (108, -76 - o), (124 + o, -30)],
                           lambda t: (24 - o) * math.sin(math.pi * min(1, .2 + .8 * t)) ** .6 + 1)), pigs[2], 3.8)
    S.line([(34, -66), (78, -92), (106, -74), (120, -36)], 3.2)
    S.fill([(-54, -40, 'c'), (-62, -80), (-34, -104), (2, -104), (44, -96), (56, -66), (54, -40, 'c'), (0, -30)], pigs[0], 4.8)
    S.line([(-36, -62), (-20, -84), (8, -90)], 5)
    S.comb([(44, -88), (52, -66), (50, -48)], 190, 18, 7, 4.2)
    S.fill([(-58, -38), (-54, -56), (0, -48), (54, -56), (58, -38), (48, -26), (0, -18), (-48, -26)], pigs[1], 4.6)
    for x in (-36, -18, 0, 18, 36):
        S.line([(x - 4, -46 + abs(x) * -.1), (x + 3, -26 - abs(x) * .08)], 3)
    S.fill(circ(34, -54, 9), 'gold', 3.8)


def hat_turban(S, pigs):
    """wound cloth with a clasp"""
    S.fill([(-54, -32, 'c'), (-70, -62), (-56, -96), (0, -112), (56, -96), (70, -62), (54, -32, 'c'), (0, -22)], pigs[0], 4.8)
    for i, (a, b) in enumerate((((-60, -44), (40, -102)), ((-66, -66), (10, -108)), ((-40, -32), (58, -90)), ((-10, -28), (64, -70)),
                                ((22, -28), (62, -50)))):
        S.line([a, ((a[0] + b[0]) / 2 - 4, (a[1] + b[1]) / 2 + 10), b], 5)
    S.fill([(-12, -112, 'c'), (-13, -120), (0, -130, 'c'), (13, -120), (12, -112, 'c')], pigs[1], 4.2)
    S.fill(circ(0, -92, 13), 'gold', 4)
    S.fill(circ(0, -92, 5), pigs[1], 2.8)


def hat_helmet(S, pigs):
    """open helmet with raised visor, cheek plates and a plume"""
    for i, (pts, w) in enumerate((([(0, -108), (52, -140), (104, -112), (116, -50)], 40),
                                  ([(0, -108), (40, -122), (80, -92), (90, -40)], 30))):
        S.fill(poly(ribbon(pts, lambda t, w=w: w * math.sin(math.pi * min(1, .25 + .75 * t)) ** .6 + 1)), pigs[i], 4.4)
        S.line(pts, 3.2)
    S.fill([(-46, 30, 'c'), (-58, -20), (-54, -70), (-30, -104), (0, -114), (30, -104), (54, -70), (58, -20), (48, 34, 'c'), (32, 40),
            (38, -12), (30, -40), (0, -46), (-32, -40), (-40, -12), (-34, 36)],
           'sky', 4.8)
    S.comb([(40, -92), (54, -60), (54, 0)], 190, 16, 12, 4.2)
    S.fill([(-58, -42, 'c'), (-60, -66), (0, -80), (60, -66), (58, -42, 'c'), (30, -52), (0, -56), (-30, -52)], 'gold', 4.4)
    for x in (-36, -12, 12, 36):
        S.line([(x, -70 + abs(x) * .1), (x * 1.04, -58 + abs(x) * .1)], 3.6)
    S.line([(0, -110), (0, -82)], 5)
    S.fill(circ(0, -114, 8), 'gold', 3.8)


def hat_wreath(S, pigs):
    """chaplet of flowers"""
    for i, a in enumerate(range(-168, 0, 24)):
        x, y = pol(0, -22, 50, a)
        S.fill(circ(x, y, 12), 'green', 3.4)
        if i % 2 == 0:
            for b in range(0, 360, 72):
                S.fill(circ(*pol(x, y, 8, b + 18), 6.5), pigs[i // 2 % 2], 2.8)
            S.fill(circ(x, y, 5), 'gold', 2.6)


def hat_hood(S, pigs):
    """hood with a long tail wound over the shoulder and a jagged cape"""
    S.limb([(40, -70), (84, -60), (96, 0), (82, 54)], [40, 34, 26, 16], pigs[0], 4.6)
    S.comb([(98, -20), (96, 10), (86, 44)], 190, 14, 8, 4)
    S.fill([(-50, 30, 'c'), (-60, -20), (-50, -70), (-20, -96), (20, -98), (60, -76), (66, -20), (52, 34, 'c'), (34, 46), (40, -6),
            (24, -42), (0, -48), (-26, -42), (-42, -6), (-36, 42)], pigs[0], 4.8)
    S.stroke([(-36, 40), (-42, -6), (-27, -44), (0, -51), (26, -44), (42, -6), (36, 44)], 4)
    for p in ([(-48, 10), (-54, -20), (-46, -60)], [(50, 16), (56, -20), (48, -62)], [(-24, -84), (10, -82), (44, -70)]):
        S.line(p, 5)


def hat_veil_crown(S, pigs):
    """open crown over a veil that falls behind the shoulders"""
    S.fill([(-48, -40, 'c'), (-46, -66), (0, -76), (46, -66), (48, -40, 'c')], pigs[0], 4.4)
    crown(S, 0, -46, 1.06, 3, w=44, h=40)


def hat_none(S, pigs):
    """bareheaded"""


def hat_circlet(S, pigs):
    """narrow ring with one stone"""
    S.fill([(-40, -44, 'c'), (0, -36), (40, -44, 'c'), (40, -32, 'c'), (0, -24), (-40, -32, 'c')], 'gold', 3.8)
    S.fill(circ(0, -31, 7), pigs[0], 3.4)


# ---------- the head ----------
def head(S, x, y, k=1, turn=.4, flip=False, sex='m', hair=hair_bob, hair_pig='hair', beard=None, beard_pig=None, hat=hat_none,
         hat_pigs=('red', 'green', 'white'), age=0, mood=0,
         collar=None):
    """neck, hair, face, beard and hat; collar(S) is drawn after the neck and before the face"""
    with S.at(x, y, k, 0, flip):
        hair(S, hair_pig)
        if hair is not hair_wimple:
            S.fill([(-24, 30, 'c'), (-25, 66), (-38, 88, 'c'), (38, 88, 'c'), (25, 66), (24, 30, 'c')], 'flesh', 4)
            S.comb([(24, 44), (24, 70)], 188, 20, 7, 3.6)
        if collar:
            collar(S)
        face(S, 0, 0, 1, turn, sex=sex, age=age, mood=mood)
        if hair is hair_wimple:
            S.stroke([(-38, -22), (-38, 16), (-24, 46), (-4, 57), (18, 48), (36, 20), (38, -22)], 4)
        elif hair is not hair_none:
            fringe(S, hair, hair_pig)
        if beard:
            beard(S, beard_pig or hair_pig, -11 * turn * .8)
        hat(S, hat_pigs)


def fringe(S, hair, pig):
    """the hair that frames the face from above"""
    if hair is hair_curls:
        curls(S, [(-34, -42), (-12, -52), (12, -52), (34, -42)], 14, pig, 3.8)
        return
    S.fill([(0, -40, 'c'), (-26, -32), (-38, -6), (-46, 8, 'c'), (-50, -22), (-34, -52), (0, -60), (34, -52), (50, -22), (46, 8, 'c'),
            (38, -6), (26, -32)], pig, 4)
    for d in (-1, 1):
        S.line([(d * 6, -52), (d * 30, -42), (d * 42, -14)], 3)


# ---------- collars, drawn in head coordinates ----------
def collar_linen(S):
    """small white collar with gathers"""
    S.fill([(-54, 80), (-28, 68), (0, 82), (28, 68), (54, 80), (30, 104), (0, 112), (-30, 104)], 'white', 4.2)
    for x in (-36, -18, 0, 18, 36):
        S.line([(x, 84), (x, 98)], 4)


def collar_gold(S):
    """broad chain collar with a jewel"""
    S.fill([(-62, 82, 'c'), (-30, 76), (0, 86), (30, 76), (62, 82, 'c'), (44, 112), (0, 126), (-44, 112)], 'gold', 4.4)
    for i in range(-3, 4):
        S.fill(circ(i * 15, 104 - i * i * 1.6, 5), 'red' if i % 2 else 'blue', 2.8)


def collar_ermine(S):
    """white fur cape with black tails"""
    S.fill([(-84, 100), (-40, 74), (0, 88), (40, 74), (84, 100), (76, 138), (40, 146), (0, 154), (-40, 146), (-76, 138)], 'white', 4.6)
    for x, y in ((-60, 108), (-36, 122), (-12, 130), (12, 130), (36, 122), (60, 108), (-48, 94), (-22, 104), (22, 104), (48, 94), (0, 112),
                 (-62, 130), (62, 130)):
        S.line([(x, y - 5), (x, y + 8)], 5.4, 'end')


def collar_ruff(S):
    """stiff pleated ruff"""
    for i in range(11):
        x, y = pol(0, 62, 62, 8 + i * 16.4)
        S.fill(circ(x, 62 + (y - 62) * .58, 13, 12), 'white', 3.6)
    S.fill([(-30, 66, 'c'), (0, 76), (30, 66, 'c'), (36, 78), (0, 92), (-36, 78)], 'white', 3.6)


def collar_jagged(S):
    """cape cut in long points"""
    pts = [(-34, 72, 'c')]
    for i, x in enumerate((-82, -62, -42, -21, 0, 21, 42, 62, 82)):
        pts.append((x, (126 if i % 2 == 0 else 100) + 12 - abs(x) * .16, 'c'))
    S.fill(pts + [(34, 72, 'c'), (0, 84)], 'red', 4.4)
    for x in (-42, 0, 42):
        S.fill(circ(x, 132 - abs(x) * .16 + 6, 6), 'gold', 3)
