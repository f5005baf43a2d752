# SPDX-License-Identifier: GPL-3.0-or-later
"""The four suit symbols, the way they are woven together, and the plants that grow between them.

Every symbol is drawn around its own middle so that a table of places is all a layout needs; curved swords and staves are
drawn along a centre line, because interlacing has to know where two of them cross.
"""
import math

from drawing import *      # the vocabulary of scenes, see drawing.py

CENTRE = (300, 526)             # middle of the picture box, not of the card: the title band is higher than the numeral's
BLADES = ('sky', 'blue')        # two colours in turn keep neighbours apart when the eye counts
STAVES = ('wood', 'red')


# ---------- cups and coins ----------
def goblet(S, x, y, k=1):
    """footed cup with a jewelled band, 100 x 160 units about its middle"""
    with S.at(x, y + 76 * k, k):
        S.fill([(-46, 0, 'c'), (-44, -12), (-30, -22), (-12, -34, 'c'), (12, -34, 'c'), (30, -22), (44, -12), (46, 0, 'c'), (0, 9)], 'gold',
               4.6)
        S.line([(-38, -8), (0, 0), (38, -8)], 3)
        S.comb([(-34, -18), (0, -12), (34, -18)], 90, 9, 11, 3.4)
        S.fill(rect(-11, -58, 22, 26), 'gold', 4.2)
        S.fill([(-20, -46), (0, -56), (20, -46), (0, -36)], 'red', 4)
        S.fill([(-48, -146, 'c'), (-50, -108), (-38, -74), (0, -58), (38, -74), (50, -108), (48, -146, 'c'), (0, -134)], 'gold', 5)
        S.fill([(-49, -122, 'c'), (0, -110), (49, -122, 'c'), (49, -104, 'c'), (0, -90), (-49, -104, 'c')], 'blue', 4)
        for i in (-2, -1, 0, 1, 2):
            S.fill(circ(i * 18, -105.5 - abs(i) * 1.6 + 1.6 * (i == 0), 5), 'gold', 2.6)
        S.fill([(-49, -146), (-24, -156), (0, -158), (24, -156), (49, -146), (24, -136), (0, -134), (-24, -136)], 'red', 4.4)
        for i in (-2, -1, 0, 1, 2):
            leaf = [(i * 12, -62 + abs(i) * 2, 'c'), (i * 15 - 7, -76 + abs(i) * 2), (i * 16, -90 + abs(i) * 3, 'c'),
                    (i * 15 + 7, -76 + abs(i) * 2)]
            S.fill(leaf, 'gold', 3)
        S.comb([(46, -98), (36, -76), (10, -62)], 196, 15, 9, 4)


def disc(S, x, y, r, petals=8, rot=0):
    """gold coin: milled rim, red field, an open flower; line widths stay the same at every size"""
    S.fill(circ(x, y, r), 'gold', 5)
    S.stroke(circ(x, y, r * .88), 2.6)
    for i in range(32):
        S.line([pol(x, y, r * .99, i * 11.25), pol(x, y, r * .87, i * 11.25)], 3.2, 'flat')
    S.comb([pol(x, y, r * .85, a) for a in (-50, -20, 10, 40, 70)], 205, r * .1, 12, 4)
    S.fill(circ(x, y, r * .68), 'red', 4)
    for i in range(petals):
        a = rot + i * 360 / petals
        w = 150 / petals
        S.fill([pol(x, y, r * .18, a - w), pol(x, y, r * .44, a - w), pol(x, y, r * .63, a) + ('c',), pol(x, y, r * .44, a + w),
                pol(x, y, r * .18, a + w)], 'gold', 3.2)
        S.line([pol(x, y, r * .24, a), pol(x, y, r * .48, a)], 3.4, 'end')
    S.fill(circ(x, y, r * .2), 'blue', 3.4)
    S.fill(circ(x, y, r * .09), 'gold', 2.4)


# ---------- swords ----------
def hilt(S, x, y, rot, k=1, grip='red'):
    """cross-guard, grip and pommel; the blade leaves the origin upwards"""
    with S.at(x, y, k, rot):
        S.limb([(0, 2), (0, 40)], [13, 12], grip, 4)
        for yy in (14, 24, 34):
            S.line([(-6, yy + 2), (6, yy - 2)], 2.6, 'flat')
        S.fill(circ(0, 48, 10), 'gold', 4)
        S.fill([(-32, -4, 'c'), (-36, 6), (-28, 12), (0, 6), (28, 12), (36, 6), (32, -4, 'c'), (0, -8)], 'gold', 4)


def straight_sword(S, x, y, length, rot=0, k=1, pig='sky'):
    """upright sword with the guard at the origin, point `length` above it"""
    with S.at(x, y, k, rot):
        w, n = 15, length
        S.fill([(-w, -2, 'c'), (-w + 1, -n * .55), (-w + 2, -n + 42, 'c'), (0, -n, 'c'), (w - 2, -n + 42, 'c'), (w - 1, -n * .55),
                (w, -2, 'c')], pig, 5)
        S.line([(0, -8), (0, -n * .5), (0, -n + 26)], 5, 'end')
        S.comb([(w - 2, -26), (w - 3, -n + 50)], 180, 9, int(n / 14), 3)
    hilt(S, x, y, rot, 1.25 * k)


def blade(S, centre_line, width, pig):
    """curved blade: straight-sided band that runs to a point over its last tenth"""
    def taper(t):
        return width if t < .9 else width * max(.02, (1 - t) / .1) ** .7
    S.fill(poly(ribbon(centre_line, taper, n=16)), pig, 4.6)
    ps = sample(centre_line, n=16)
    S.line([p for p in ps[2:-5:3]] + [ps[-5]], 3.2, 'end')


# ---------- staves ----------
def staff(S, foot, head, width, pig):
    """plain shaft of a staff from foot to head with a few knots of the wood"""
    S.limb([foot, head], [width, width], pig, 4.6)
    dx, dy = head[0] - foot[0], head[1] - foot[1]
    n = math.hypot(dx, dy)
    px, py = -dy / n, dx / n
    for i, t in enumerate((.2, .36, .64, .8)):
        x, y, o = foot[0] + dx * t, foot[1] + dy * t, width * (.16 if i % 2 else -.16)
        S.line([(x + px * o - dx * .03, y + py * o - dy * .03), (x + px * o + dx * .03, y + py * o + dy * .03)], 3)
    edge = width * .44
    side = 1 if px > 0 else -1
    a, b = (foot[0] + px * edge * side, foot[1] + py * edge * side), (head[0] + px * edge * side, head[1] + py * edge * side)
    S.comb([a, b], math.degrees(math.atan2(-py * side, -px * side)), width * .3, int(n / 16), 3.2)


def ferrule(S, x, y, rot, width):
    """gold and blue cap on a staff's end, pointing up"""
    w = width * .5
    with S.at(x, y, 1, rot):
        S.fill([(-w - 3, 10, 'c'), (-w - 4, -8), (-w * .7, -22), (0, -30), (w * .7, -22), (w + 4, -8), (w + 3, 10, 'c')], 'gold', 4.2)
        S.fill(rect(-w - 5, 4, 2 * w + 10, 12, 3), 'blue', 4)
        S.line([(w * .3, -18), (w * .5, -6)], 3)


# ---------- interlacing ----------
def crossings(a, b):
    """points where two sampled lines cross, in order along the first"""
    out = []
    for p, q in zip(a, a[1:]):
        for r, s in zip(b, b[1:]):
            d = (q[0] - p[0]) * (s[1] - r[1]) - (q[1] - p[1]) * (s[0] - r[0])
            if abs(d) < 1e-9:
                continue
            t = ((r[0] - p[0]) * (s[1] - r[1]) - (r[1] - p[1]) * (s[0] - r[0])) / d
            u = ((r[0] - p[0]) * (q[1] - p[1]) - (r[1] - p[1]) * (q[0] - p[0])) / d
            if 0 <= t < 1 and 0 <= u < 1:
                out.append((p[0] + t * (q[0] - p[0]), p[1] + t * (q[1] - p[1])))
    return out


def weave(S, left, right, width, draw):
    """draws two families of bands over and under each other.

    left, right are lists of centre lines, draw(line, index, family) paints one band. The second family is painted over the
    first; at every other crossing the band below is painted once more, seen only through the band above it.
    """
    for family, lines in enumerate((left, right)):
        for i, line in enumerate(lines):
            draw(line, i, family)
    for i, a in enumerate(left):
        for j, b in enumerate(right):
            upper = sample(b, n=16)
            for n, (x, y) in enumerate(crossings(sample(a, n=16), upper)):
                if (i + j + n) % 2:
                    stretch = [p for p in upper if math.hypot(p[0] - x, p[1] - y) < 5 * width]
                    with S.clip(poly(ribbon(stretch, [width + 5, width + 5], n=2))):
                        draw(a, i, 0)


# ---------- plants ----------
def stem(S, pts, w=9, pig='green'):
    """stalk that thins towards its end"""
    S.limb(pts, [w, w, w, w * .7], pig, 3.6)


def leaf(S, x, y, k, rot, flip=False, pig='green'):
    """serrated leaf growing to the right from its stalk"""
    with S.at(x, y, k, rot, flip):
        S.fill([(0, 0, 'c'), (12, -20), (34, -25), (50, -14), (66, -12), (74, 0, 'c'), (56, 5), (46, 16), (26, 17), (10, 10)], pig, 3.8)
        S.line([(3, 0), (30, -4), (62, -2)], 3.2, 'end')
        for t in (18, 32, 46):
            S.line([(t, -3), (t + 9, -15)], 2.6, 'end')
            S.line([(t, -2), (t + 8, 9)], 2.6, 'end')


def bloom(S, x, y, k, rot=0, petals='red', eye_pig='gold'):
    """six-petalled flower"""
    with S.at(x, y, k, rot):
        for a in range(0, 360, 60):
            S.fill([pol(0, 0, 9, a - 50), pol(0, 0, 27, a - 32), pol(0, 0, 34, a), pol(0, 0, 27, a + 32), pol(0, 0, 9, a + 50)], petals,
                   3.8)
            S.line([pol(0, 0, 12, a), pol(0, 0, 26, a)], 3, 'end')
        S.fill(circ(0, 0, 12), eye_pig, 3.6)
        S.dot(0, 0, 3.6)


def tulip(S, x, y, k, rot=0, petals='red', heart='gold'):
    """half-open flower seen from the side, growing upwards from its stalk"""
    with S.at(x, y, k, rot):
        S.fill([(0, 0, 'c'), (-30, -16), (-40, -52), (-34, -66, 'c'), (-14, -50), (0, -78, 'c'), (14, -50), (34, -66, 'c'), (40, -52),
                (30, -16)], heart, 4)
        S.fill([(0, 2, 'c'), (-24, -10), (-34, -40), (-34, -66, 'c'), (-16, -44), (-2, -22, 'c')], petals, 4)
        S.fill([(0, 2, 'c'), (24, -10), (34, -40), (34, -66, 'c'), (16, -44), (2, -22, 'c')], petals, 4)
        S.line([(0, -34), (0, -62)], 3.4)
        S.line([(-14, -18), (-24, -40)], 3, 'end')
        S.line([(14, -18), (24, -40)], 3, 'end')
        S.fill([(-14, 4, 'c'), (-20, -8), (-8, -8), (0, -16), (8, -8), (20, -8), (14, 4, 'c')], 'green', 3.6)


def corn_bud(S, x, y, k, rot=0, pig='blue'):
    """closed bud, growing upwards"""
    with S.at(x, y, k, rot):
        S.fill([(0, 4, 'c'), (-15, -10), (-13, -30), (0, -50, 'c'), (13, -30), (15, -10)], pig, 3.8)
        S.line([(0, -8), (0, -36)], 3, 'end')
        S.fill([(0, 6, 'c'), (-14, 0), (-16, -16, 'c'), (-5, -8), (0, -18, 'c'), (5, -8), (16, -16, 'c'), (14, 0)], 'green', 3.4)


def quarters(S):
    """four contexts about the centre, each a mirror image of its neighbours: draw once in the upper right, get all four"""
    return [S.at(*CENTRE, 1, rot, flip) for rot, flip in ((0, False), (0, True), (180, False), (180, True))]


def halves(S):
    """two contexts about the centre, the second turned by half a turn"""
    return [S.at(*CENTRE, 1, rot) for rot in (0, 180)]
