# SPDX-License-Identifier: GPL-3.0-or-later
"""engraver's furniture for the esoteric deck: glories, medallions, leaves, wings, water, clouds and the heads of beasts

Every part is drawn around its own origin. In `chased` mode gold shapes get dark contours, as if cut into leaf; everywhere
else shapes are dark with gold contours.
"""
import math
from contextlib import contextmanager

from drawing import *      # the vocabulary of scenes, see drawing.py
from engraving import *    # and the engraver's


# ---------- drawing aids ----------
def sides(S, x=300):
    """draw what follows twice, mirrored at the axis x; local x grows outwards, yields 1 for the right half and -1 for the left"""
    for flip in (False, True):
        with S.at(x, 0, 1, 0, flip):
            yield -1 if flip else 1


def sym(half):
    """closed outline from its right half, given from the axis above to the axis below"""
    back = [(-p[0],) + tuple(p[1:]) for p in half[::-1] if p[0] > .01]
    return list(half) + back


@contextmanager
def chased(S):
    """dark drawing on solid gold"""
    S.chased = True
    try:
        yield
    finally:
        S.chased = False


def both(S, pts, w=2, prof='both'):
    """one tapered line and its mirror image"""
    S.line(pts, w, prof)
    S.line([(-p[0],) + tuple(p[1:]) for p in pts], w, prof)


def along(pts, count, n=12):
    """count places at even steps along a curve: (x, y, direction in degrees)"""
    ps = sample(pts, n=n)
    steps = [0]
    for a, b in zip(ps, ps[1:]):
        steps.append(steps[-1] + math.hypot(b[0] - a[0], b[1] - a[1]))
    out, j = [], 0
    for i in range(count):
        goal = steps[-1] * (i + .5) / count
        while j < len(steps) - 2 and steps[j + 1] < goal:
            j += 1
        a, b = ps[j], ps[j + 1]
        f = (goal - steps[j]) / ((steps[j + 1] - steps[j]) or 1)
        out.append((a[0] + (b[0] - a[0]) * f, a[1] + (b[1] - a[1]) * f, math.degrees(math.atan2(b[1] - a[1], b[0] - a[0]))))
    return out


# ---------- light ----------
def glory(S, x, y, r0, reach, n=96, w=1.8, a0=0, a1=360):
    """rays of four alternating lengths"""
    radial(S, x, y, r0, lambda i: r0 + reach * (1, .5, .78, .4)[i % 4], n, w, a0, a1)


def facet_star(S, x, y, R, n=8, q=.3, a0=-90, w=2):
    """star whose rays have a bright and a dark facet"""
    for i in range(n):
        a, h = a0 + i * 360 / n, 180 / n
        tip = pol(x, y, R, a)
        S.fill(poly([(x, y), pol(x, y, R * q, a - h), tip]), 'deep', w)
        S.fill(poly([(x, y), pol(x, y, R * q, a + h), tip]), 'leaf', w)


def crescent(x, y, r, bite=.82, shift=.36, up=True):
    """outline of a crescent whose horns point up (or down): the disc r less a disc r * bite set off by r * shift"""
    d, b, s = r * shift, r * bite, 1 if up else -1
    t = (r * r - b * b + d * d) / (2 * d)
    h, yy, out = math.sqrt(r * r - t * t), y - s * t, 0 if up else 1
    return (f'M{x - h:.1f} {yy:.1f}A{r:.1f} {r:.1f} 0 {int(t > 0)} {out} {x + h:.1f} {yy:.1f}'
            f'A{b:.1f} {b:.1f} 0 {int(t > d)} {1 - out} {x - h:.1f} {yy:.1f}Z')


def medallion(S, x, y, R, band=28, edge='turned', n=5, rays=0):
    """dark disc in an ornamented ring; edge is turned, beads, dentils, scales or knot"""
    S.fill(circ(x, y, R), 'night', 3)
    ring(S, x, y, R - 6, 1.2)
    o, r = R - 6, R - 6 - band
    mid = (o + r) / 2
    if edge == 'turned':
        rosette(S, x, y, o, r, n, .9, 480)
    elif edge == 'beads':
        count = int(2 * math.pi * mid / (band * .95))
        for i in range(count):
            px, py = pol(x, y, mid, 360 * i / count)
            S.fill(circ(px, py, band * .36), 'leaf' if i % 4 == 0 else 'deep', 2)
            if i % 4:
                S.dot(px, py, 1.8)
    elif edge == 'dentils':
        count = int(2 * math.pi * mid / (band * .7) / 2) * 2
        for i in range(count):
            a, h = 360 * i / count, 180 / count
            S.fill(poly([pol(x, y, r + 2, a - h), pol(x, y, o - 2, a), pol(x, y, r + 2, a + h)]), 'ind', 1.8)
            S.line([pol(x, y, r + 3, a), pol(x, y, mid + 3, a)], 1.5, 'end')
            S.dot(*pol(x, y, o - 5, a + h), 1.5)
    elif edge == 'scales':
        for row in range(2):
            count = int(2 * math.pi * mid / (band * .62))
            for i in range(count):
                px, py = pol(x, y, o - 3 - band * .46 * (row + .55), 360 * (i + row / 2) / count)
                S.fill(circ(px, py, band * .33), 'deep', 1.8)
                ring(S, px, py, band * .18, 1.1)
    elif edge == 'knot':
        for j in range(3):
            turns = round(mid / 9)
            p = [pol(x, y, mid + (band / 2 - 3) * math.sin(math.radians(t * turns) + j * 2 * math.pi / 3), t) for t in range(0, 361, 1)]
            S.stroke(poly(p), 1.5)
    S.fill(circ(x, y, r), 'deep', 3)
    ring(S, x, y, r - 5, 1.2)
    if rays:
        radial(S, x, y, r * .3, lambda i: r * (.93 if i % 2 else .78), rays, 1.3)


# ---------- land, water, sky ----------
def land(S, pts, pig='night', n=12, gap=6, grow=.6, w=1.5):
    """hill or plain: everything below the curve, with contour lines sinking from it"""
    S.fill(path(list(pts[:-1]) + [pts[-1] + ('c',), (pts[-1][0], 1060, 'c'), (pts[0][0], 1060, 'c'), pts[0] + ('c',)]), pig, 3)
    for i in range(1, n + 1):
        S.line([(p[0], p[1] + i * (gap + i * grow)) for p in pts], w, 'both')


def water(S, y0, y1, n=14, x0=36, x1=564, amp=4, pig='deep'):
    """sheet of water: wavelets that widen toward the viewer"""
    S.fill(rect(x0, y0, x1 - x0, y1 - y0), pig, 0)
    for i in range(n):
        f = (i / n) ** 1.5
        y, length, a = y0 + 4 + (y1 - y0) * f, 26 + 60 * f, amp * (.35 + f)
        x = x0 - S.random.uniform(0, length)
        while x < x1:
            reach = length * S.random.uniform(1.4, 3.2)
            m = max(2, round(reach / length * 4))
            S.line([(x + reach * j / m, y + a * math.sin(j * math.pi / 2 + i)) for j in range(m + 1)], 2.2 + f)
            x += reach + length * S.random.uniform(.2, .7)


def puffs(S, places, pig='night', turns=(.78, .57, .36)):
    """cloud of turned puffs: (x, y, r) from back to front, each with arcs of these shares of r inside"""
    for x, y, r in places:
        S.fill(circ(x, y, r), pig, 2.8)
        for q in turns:
            S.stroke(f'M{x - r * q:.1f} {y}A{r * q:.1f} {r * q:.1f} 0 0 1 {x + r * q:.1f} {y}', 1.3)


def peak(S, top, left, right, pig='ind', snow=.3):
    """mountain: bright flank hatched thinly, dark flank closely, jagged snow line"""
    tx, ty = top
    ridge = [(tx, ty), (tx + (right[0] - left[0]) * .03, ty + (left[1] - ty) * .34),
             (tx - (right[0] - left[0]) * .02, ty + (left[1] - ty) * .66), (tx + (right[0] - left[0]) * .05, left[1])]
    S.fill(poly([left, top, right]), pig, 3)
    dark = ridge + [right]
    with S.clip(poly(dark)):
        S.hatch(ridge[0][0] - 20, ty, right[0], right[1], 6.5, 1.5, 62)
    S.line(ridge, 2.6, 'flat')
    for i in range(5):
        f = .3 + .13 * i
        x, y = tx + (left[0] - tx) * f, ty + (left[1] - ty) * f
        S.line([(x + 5, y + 2), (x + 16, y + 34 + 9 * i), (x + 12, y + 60 + 12 * i)], 2, 'end')
    if snow:
        a = (tx + (left[0] - tx) * snow, ty + (left[1] - ty) * snow)
        b = (tx + (right[0] - tx) * snow, ty + (right[1] - ty) * snow)
        line = [(a[0] + (b[0] - a[0]) * u, a[1] + (b[1] - a[1]) * u + (14 if i % 2 else -12))
                for i, u in enumerate((.2, .36, .5, .66, .82))]
        S.fill(poly([a, top, b] + line[::-1]), 'leaf', 1.5)
        with chased(S), S.clip(poly([top, b] + line[::-1][:3])):
            S.hatch(tx - 10, ty, b[0], b[1] + 16, 5.5, 1.5, 62)


def flame(S, x, y, h, w, rot=0):
    """flame of three tongues, gold at the heart, rising from x, y"""
    with S.at(x, y, 1, rot):
        for f, pig in ((1, 'deep'), (.7, 'ind'), (.4, 'leaf')):
            S.fill([(0, 0, 'c'), (-w * .5 * f, -h * .14 * f), (-w * .42 * f, -h * .42 * f), (-w * .06 * f, -h * .62 * f),
                    (w * .06 * f, -h * f, 'c'), (w * .34 * f, -h * .6 * f), (w * .5 * f, -h * .3 * f), (w * .3 * f, -h * .06 * f)],
                   pig, 2.4)


def yods(S, places, k=1):
    """drops of light in the form of the letter yod"""
    for x, y in places:
        with S.at(x, y, k):
            S.fill([(-7, -10, 'c'), (2, -9), (8, -4), (6, 8), (-3, 16, 'c'), (0, 6), (-2, 0), (-8, -2)], 'leaf', 0)


# ---------- plants ----------
def blade(S, x, y, length, width, rot, pig='ind', w=2.2):
    """leaf with midrib and veins, growing along rot"""
    with S.at(x, y, 1, rot):
        S.fill([(0, 0, 'c'), (length * .3, -width * .52), (length * .68, -width * .4), (length, 0, 'c'), (length * .66, width * .36),
                (length * .28, width * .46)], pig, w)
        S.line([(2, 0), (length * .5, -1), (length * .92, 0)], w * .75, 'end')
        for t in (.26, .44, .62):
            for s in (-1, 1):
                S.line([(length * t, 0), (length * (t + .16), s * width * .3)], w * .55, 'end')


def rosebloom(S, x, y, k=1, gold=False, rot=0):
    """heraldic rose of two rings of five petals with its barbs; r about 46"""
    with S.at(x, y, k, rot):
        for i in range(5):
            blade(S, *pol(0, 0, 30, -54 + 72 * i), 22, 12, -54 + 72 * i)
        for r, o, wide in ((40, 0, 36), (24, 36, 38)):
            for i in range(5):
                a = o + i * 72 - 90
                petal = [pol(0, 0, r * .2, a - 42), pol(0, 0, r * .86, a - wide), pol(0, 0, r * 1.12, a - 17), pol(0, 0, r * 1.02, a),
                         pol(0, 0, r * 1.12, a + 17), pol(0, 0, r * .86, a + wide), pol(0, 0, r * .2, a + 42)]
                if gold:
                    with chased(S):
                        S.fill(petal, 'leaf', 2.6)
                        for b in (-16, 0, 16):
                            S.line([pol(0, 0, r * .4, a + b * .6), pol(0, 0, r * .84, a + b)], 1.8)
                else:
                    S.fill(petal, 'ind', 2.6)
                    for b in (-16, 0, 16):
                        S.line([pol(0, 0, r * .92, a + b), pol(0, 0, r * .5, a + b * .7)], 1.6, 'end')
        S.fill(circ(0, 0, 9), 'deep' if gold else 'leaf', 2)
        if gold:
            dots(S, 0, 0, 5, 6, 1.2)


def wheat(S, pts, grains=9, k=1):
    """ear of wheat on its stalk; the ear takes the last third of the curve"""
    S.line(pts, 3.2 * k, 'flat')
    for x, y, a in along(pts, grains * 3)[-grains:]:
        for s in (-1, 1):
            with S.at(x, y, k, a + s * 24):
                with chased(S):
                    S.fill([(0, 0, 'c'), (9, -7), (20, -5), (28, 0, 'c'), (19, 6), (8, 6)], 'leaf', 2.6)
                S.line([(27, 0), (50, s * 4)], 1.7, 'end')
    x, y, a = along(pts, 40)[-1]
    with S.at(x, y, k, a):
        S.fill([(0, 0, 'c'), (12, -6), (28, 0, 'c'), (12, 6)], 'leaf', 0)
        S.line([(24, 0), (56, 0)], 1.6, 'end')


def pomegranate(S, x, y, k=1, rot=0, burst=True):
    """fruit with its crown, split open over golden seeds"""
    with S.at(x, y, k, rot):
        for a in (-40, -14, 14, 40):
            S.fill(poly([pol(0, -34, 8, a - 90 - 34), pol(0, -34, 30, a - 90), pol(0, -34, 8, a - 90 + 34)]), 'ind', 2.4)
        S.fill([(0, -38), (28, -32), (42, -2), (30, 30), (0, 40), (-30, 30), (-42, -2), (-28, -32)], 'ind', 3)
        S.comb([(38, -14), (40, 6), (28, 28), (8, 37)], 205, 13, 13, 2.6)
        if burst:
            S.fill([(-2, -26, 'c'), (14, -10), (15, 10), (2, 28, 'c'), (-14, 12), (-15, -10)], 'deep', 2.4)
            for gx, gy in ((0, -16), (-7, -6), (6, -7), (0, 3), (-8, 9), (8, 7), (1, 16)):
                S.fill(circ(gx, gy, 4.6, 5.4), 'leaf', 0)


def laurel(S, cx, cy, rx, ry, a0, a1, pairs, length=40, width=15, berries=True):
    """half of a wreath along an ellipse from angle a0 to a1"""
    pts = [(cx + rx * math.cos(math.radians(a0 + (a1 - a0) * i / 12)), cy + ry * math.sin(math.radians(a0 + (a1 - a0) * i / 12)))
           for i in range(13)]
    S.line(pts, 4, 'flat')
    for i, (x, y, a) in enumerate(along(pts, pairs)):
        for s in (-1, 1):
            blade(S, x, y, length, width, a + s * 32, 'ind', 2)
        if berries and i % 3 == 1:
            S.fill(circ(*pol(x, y, 13, a + 90), 4.5), 'leaf', 0)
        blade(S, x, y, length * .8, width * .7, a, 'ind', 1.8)


# ---------- wings ----------
def feather(S, p, a, length, w, bend=.12, pig='ind', lw=2.2):
    """one feather from p along the angle a"""
    with S.at(p[0], p[1], 1, a):
        f = lambda t: w * min(1, .45 + 1.4 * t) * (1 if t < .82 else math.sqrt(max(.02, 1 - ((t - .82) / .18) ** 2)))
        S.fill(poly(ribbon([(0, 0), (length * .5, bend * length * .6), (length, bend * length)], f)), pig, lw)
        S.line([(0, 0), (length * .5, bend * length * .6), (length * .9, bend * length * .95)], lw * .7, 'end')


def wing(S, x, y, k=1, rot=0, flip=False, n=12, spread=(100, -8), gold=False):
    """spread wing from the shoulder at the origin, reaching right: primaries, two rows of coverts, leading edge"""
    with S.at(x, y, k, rot, flip):
        edge = [(0, 0), (34, -44), (92, -68), (154, -58), (196, -22)]
        ps = sample(edge, n=14)
        m = len(ps) - 1
        for row, (reach, w) in enumerate(((1, 21), (.6, 19), (.3, 15))):
            for i in range(n):
                t = 1 - i / (n - 1)
                p = ps[int((.06 + .94 * t) * m)]
                a = spread[0] + (spread[1] - spread[0]) * t ** 1.1
                pig = 'leaf' if gold and row == 2 else ('ind', 'deep', 'ind')[row]
                if gold and row == 2:
                    with chased(S):
                        feather(S, p, a, reach * (74 + 86 * t), w, .1, pig)
                else:
                    feather(S, p, a, reach * (74 + 86 * t), w, .1, pig)
        S.limb(edge, [10, 18, 19, 15, 5], 'ind', 2.6, 's')
        S.line(edge, 1.6)


# ---------- cords, cloth, hands ----------
def rope(S, pts, w=13, turns=None):
    """twisted cord"""
    S.limb(pts, [w, w], 'deep', 2.6, 'se')
    ps = along(pts, turns or max(4, round(sum(math.dist(a[:2], b[:2]) for a, b in zip(pts, pts[1:])) / (w * .62))))
    for x, y, a in ps:
        S.line([pol(x, y, w * .56, a - 128), (x, y), pol(x, y, w * .56, a + 52)], 2.4)


def chain(S, pts, count, r=13):
    """links alternately seen flat and on edge"""
    for i, (x, y, a) in enumerate(along(pts, count)):
        with S.at(x, y, 1, a):
            if i % 2 == 0:
                S.fill(circ(0, 0, r, r * .66), 'leaf', 2)
                S.fill(circ(0, 0, r * .56, r * .28), 'deep', 1.6)
            else:
                S.fill(rect(-r * .95, -r * .24, r * 1.9, r * .48, 3), 'leaf', 0)


def arm(S, x, y, rot=0, length=200, wide=1, flip=False):
    """sleeve that hangs along +y from a golden cuff at the origin; draw the hand afterwards"""
    with S.at(x, y, 1, rot, flip):
        w = wide
        S.fill([(-24 * w, 6, 'c'), (-40 * w, length * .42), (-62 * w, length, 'c'), (62 * w, length, 'c'), (40 * w, length * .42),
                (24 * w, 6, 'c')], 'ind', 3.4)
        for i in range(9):
            f = (i - 4) / 4
            S.line([(54 * w * f, length - 3), (34 * w * f, length * .42), (17 * w * f, 12)], 2.2, 'end')
        S.fill([(-28 * w, -10, 'c'), (0, -5), (28 * w, -10, 'c'), (25 * w, 13, 'c'), (0, 18), (-25 * w, 13, 'c')], 'leaf', 2.4)
        with chased(S):
            for i in range(-2, 3):
                S.dot(i * 10 * w, 4, 2.4)


def lemniscate(S, x, y, a, b, w=25, pig='deep', overlap=5):
    """infinity band of three lines, passing over itself: `overlap` of its 96 steps to each side of the crossing lie on top"""
    p = [(x + a * math.cos(t) / (1 + math.sin(t) ** 2), y + b * math.sin(t) * math.cos(t) / (1 + math.sin(t) ** 2))
         for t in (2 * math.pi * i / 96 for i in range(96))]
    S.fill(poly(ribbon(p + p[:2], lambda t: w, 3)), pig, 3)
    S.fill(poly(ribbon(p[24 - overlap:25 + overlap], lambda t: w, 3)), pig, 0)
    for off in (-.28, 0, .28):
        q = p + p[:1]
        S.stroke(poly([(u[0] + n[0] * off * w, u[1] + n[1] * off * w) for u, n in zip(q, normals(q))], False), 2 if off else 4)


# ---------- heads ----------
def beast_eye(S, x, y, k=1, slit=False):
    """slanting almond eye, inner corner at the left"""
    with S.at(x, y, k, -14):
        S.fill([(-12, 2, 'c'), (-3, -7), (6, -7), (13, 0, 'c'), (4, 6), (-5, 6)], 'dark', 2)
        if slit:
            S.fill(rect(-7, -1.6, 14, 3.2), 'leaf', 0)
        else:
            S.fill(circ(1, -.6, 3.2), 'leaf', 0)


def lion_head(S, x, y, k=1, gold=True):
    """frontal lion of about 110 units around: three rings of locks, golden mask"""
    with S.at(x, y, k):
        for r, n, o, length, w in ((62, 22, 0, 54, 26), (52, 20, 9, 44, 24), (44, 16, 0, 36, 22)):
            for i in range(n):
                a = o + 360 * i / n + 90
                b = pol(0, 4, r, a)
                s = 1 if math.cos(math.radians(a)) > 0 else -1
                with S.at(b[0], b[1], 1, a):
                    S.fill([(-22, -w * .42, 'c'), (length * .3, -w * .5), (length * .72, -w * .1 + s * 6), (length, s * 13, 'c'),
                            (length * .6, w * .34 + s * 4), (length * .2, w * .5), (-22, w * .42, 'c')], 'ind' if r == 52 else 'deep', 2.4)
                    S.line([(-8, 0), (length * .4, 0), (length * .84, s * 10)], 1.7, 'end')
        for s in (-1, 1):
            S.fill(circ(s * 46, -48, 17), 'ind', 2.6)
            S.fill(circ(s * 45, -46, 9), 'deep', 1.8)
        with chased(S) if gold else S.at():
            pig = 'leaf' if gold else 'ind'
            S.fill(sym([(0, -64), (24, -62), (44, -48), (54, -18), (50, 14), (44, 44), (30, 68), (0, 78)]), pig, 3)
            S.fill(sym([(0, 60), (22, 58), (20, 76), (0, 86)]), pig, 2.6)
            S.fill(sym([(0, 20), (22, 22), (38, 38), (36, 58), (18, 68), (0, 58, 'c')]), pig, 2.6)
            S.line([(0, 36), (0, 58)], 3)
            S.fill(sym([(0, 14), (17, 13), (21, 20), (10, 33), (0, 38)]), 'dark', 2)
            both(S, [(10, -50), (16, -24), (13, -4), (17, 13)], 3)
            both(S, [(14, -28), (30, -36), (46, -30)], 5)
            both(S, [(34, 2), (42, 8), (47, 22)], 2)
            both(S, [(8, -60), (12, -48), (6, -34)], 2.2)
            S.line([(0, -60), (0, -38)], 2.4)
            for i in range(3):
                for s in (-1, 1):
                    S.dot(s * (17 + 7 * i), 46 + 3 * (i % 2), 1.9)
            both(S, [(30, 42), (52, 38), (66, 40)], 1.8, 'end')
            both(S, [(30, 50), (50, 52), (62, 58)], 1.8, 'end')
        for s in (False, True):
            with S.at(0, 0, 1, 0, s):
                beast_eye(S, 29, -13, 1.05)


def sphinx_head(S, x, y, k=1, gold=False, beard=True):
    """frontal head in a striped kerchief, about 100 units to each side; gold decides which stripes shine"""
    with S.at(x, y, k):
        S.fill(sym([(0, -80), (34, -76), (58, -50), (68, -10), (82, 44), (88, 96, 'c'), (42, 104, 'c'), (36, 40), (0, 40)]), 'ind', 3)
        with S.clip(path(sym([(0, -80), (34, -76), (58, -50), (68, -10), (82, 44), (88, 96, 'c'), (42, 104, 'c'), (36, 40), (0, 40)]))):
            for i in range(15):
                y0 = -66 + 12 * i
                band = [(-100, y0 + 26), (-44, y0 + 4), (0, y0 - 6), (44, y0 + 4), (100, y0 + 26)]
                S.limb(band, [5.5, 5.5], 'leaf' if gold else 'deep', 1.6)
        S.fill(sym([(0, 30), (26, 30), (28, 78), (40, 106, 'c'), (0, 112)]), 'deep', 2.6)
        face(S, 0, -8, 1.02, 0, sex='f', lw=3)
        if beard:
            S.fill(sym([(0, 38), (8, 40), (11, 78), (0, 86)]), 'leaf', 2)
            with chased(S):
                for i in range(4):
                    S.line([(-9, 48 + 9 * i), (9, 48 + 9 * i)], 2, 'flat')
        S.fill(path(sym([(0, -54), (22, -52), (42, -36, 'c'), (40, -48, 'c'), (24, -64), (0, -68)])), 'leaf', 2)
        S.fill([(0, -62, 'c'), (-9, -74), (-9, -92), (0, -100), (9, -92), (9, -74)], 'leaf', 2)
        with chased(S):
            S.line([(0, -66), (0, -92)], 2)
            S.line([(-5, -84), (5, -84)], 2)


# ---------- beasts in full ----------
def leaping_dog(S, x, y, k=1, rot=0, flip=False, jackal=False):
    """small dog springing to the right, in profile; the jackal is golden, with long ears laid back and no collar"""
    with S.at(x, y, k, rot, flip), chased(S) if jackal else S.at():
        coat, marks = ('leaf', 'dark') if jackal else ('ind', 'leaf')
        if jackal:
            for dx in (9, 0):
                S.fill([(14 + dx, -42, 'c'), (-8 + dx, -60), (-20 + dx, -80, 'c'), (6 + dx, -76), (28 + dx, -60, 'c')], coat, 3)
        S.fill([(-44, 30, 'c'), (-56, 6), (-66, -22), (-56, -34, 'c'), (-48, -10), (-32, 2), (-4, -18), (12, -44), (16, -66, 'c'),
                (24, -58), (34, -64), (42, -54), (60, -46), (62, -36), (44, -30), (36, -22), (34, -6), (58, -14), (62, -8), (38, 8),
                (18, 12), (-2, 24), (-2, 34), (12, 42), (10, 48), (-18, 48), (-22, 32), (-26, 48), (-46, 48, 'c')], coat, 3)
        if not jackal:
            S.fill([(16, -64, 'c'), (6, -50), (8, -34, 'c'), (20, -44), (24, -56)], 'deep', 2.4)
            S.fill([(10, -30, 'c'), (22, -22), (36, -22, 'c'), (35, -12, 'c'), (20, -12), (4, -22, 'c')], marks, 1.8)
        S.fill(circ(60, -43, 4.4), marks, 0)
        S.fill(circ(34, -50, 3), marks, 0)
        S.line([(60, -35), (48, -38), (42, -36)], 1.8)
        S.comb([(-4, 24), (-20, 30), (-40, 30)], -70, 16, 8, 2.4)
        S.line([(-26, 4), (-34, 20), (-24, 34)], 1.9)
        for i in range(4):
            S.line([(-24 + 9 * i, -6 * i), (-16 + 9 * i, 8 - 5 * i), (-10 + 10 * i, 14 - 5 * i)], 1.7)
