# SPDX-License-Identifier: GPL-3.0-or-later
"""beasts, wings and bare or sleeved limbs: what several of the figure scenes share; every part is drawn around its own origin"""
import math

from drawing import *      # the vocabulary of scenes, see drawing.py


# ---------- limbs ----------
def width_at(widths, t):
    """the width list of a limb read at t in 0..1"""
    x = t * (len(widths) - 1)
    i = min(int(x), len(widths) - 2)
    return widths[i] + (widths[i + 1] - widths[i]) * (x - i)


def shade(S, pts, widths, n=9, reach=.34, w=4, away=(.7, .7), span=(.04, .96)):
    """wedges along that side of a limb which looks away from the light"""
    ps = sample(pts, n=10)
    ns = normals(ps)
    mean = sum(q[0] * away[0] + q[1] * away[1] for q in ns)
    side = 1 if mean > 0 else -1
    for i in range(n):
        t = span[0] + (span[1] - span[0]) * (i + .5) / n
        j = round(t * (len(ps) - 1))
        p, q, h = ps[j], ns[j], width_at(widths, t) / 2 * side
        r = h * (1 - 2 * reach * S.random.uniform(.75, 1.15))
        S.line([(p[0] + q[0] * h, p[1] + q[1] * h), (p[0] + q[0] * r, p[1] + q[1] * r)], w, 'end', kind='hatch', n=3)


def bare(S, pts, widths, lw=4.5, caps='s', pig='flesh', n=9, w=3.2):
    """a naked arm or leg with its shading"""
    S.limb(pts, widths, pig, lw, caps)
    shade(S, pts, widths, n, .22, w)


def sleeve(S, shoulder, elbow, wrist, pig, ws=(62, 78, 68, 44), cuff='gold', k=1, below=None):
    """a clothed arm: forearm, upper arm over it, cuff; below is the pigment of the forearm where it differs"""
    a, b, c = shoulder, elbow, wrist
    ws = [v * k for v in ws]
    S.limb([b, ((b[0] * .5 + c[0] * .5), (b[1] * .5 + c[1] * .5)), c], [ws[2], (ws[2] + ws[3]) / 2, ws[3]], below or pig, 5 * k, 's')
    shade(S, [b, c], [ws[2], ws[3]], 7, .3, 4 * k)
    m = ((a[0] + b[0]) / 2, (a[1] + b[1]) / 2)
    S.limb([a, m, b], [ws[0], ws[1], ws[2] + 6 * k], pig, 5 * k, 'se')
    shade(S, [a, m, b], [ws[0], ws[1], ws[2]], 10, .3, 4.4 * k)
    t = math.atan2(c[1] - b[1], c[0] - b[0])
    fx, fy, nx, ny = math.cos(t), math.sin(t), -math.sin(t), math.cos(t)
    for u in (-.22, .16):           # creases at the elbow
        S.line([(b[0] + nx * ws[2] * .42 + fx * 8 * u, b[1] + ny * ws[2] * .42), (b[0] + fx * 16 * u, b[1] + fy * 16 * u),
                (b[0] - nx * ws[2] * .1 + fx * 26 * u, b[1] - ny * ws[2] * .1 + fy * 26 * u)], 4.4 * k, 'end')
    if cuff:
        S.limb([(c[0] - fx * 13 * k, c[1] - fy * 13 * k), (c[0] + fx * 13 * k, c[1] + fy * 13 * k)],
            [ws[3] + 13 * k, ws[3] + 7 * k], cuff, 4.4 * k)
        S.line([(c[0] + nx * ws[3] * .5, c[1] + ny * ws[3] * .5), (c[0] + fx * 4, c[1] + fy * 4),
            (c[0] - nx * ws[3] * .5, c[1] - ny * ws[3] * .5)], 2.6 * k)


def _turned(x, y, wrist):
    """rotation and mirror that bring a hand's wrist to the arm with the thumb uppermost"""
    a = math.degrees(math.atan2(wrist[1] - y, wrist[0] - x))
    return (a - 180, True) if abs(a) > 90 else (a, False)


def grip(S, x, y, wrist, k=1, rod=None):
    """fist at x, y of an arm that comes from wrist"""
    rot, flip = _turned(x, y, wrist)
    hand_fist(S, x, y, k, rot, flip, rod=rod)


def pinch(S, x, y, wrist, k=.86):
    """thumb and forefinger at x, y of an arm that comes from wrist"""
    rot, flip = _turned(x, y, wrist)
    hand_pinch(S, x, y, k, rot, flip)


# ---------- wings ----------
def plume(S, x, y, ang, length, w, pig, bend=0, lw=3.8, quill=True):
    """one feather from its root"""
    a, b = pol(x, y, length * .5, ang + bend * .5), pol(x, y, length, ang + bend)
    pts = [(x, y), a, b]
    S.fill(poly(ribbon(pts, lambda t: w * min(1, .55 + t) * math.sqrt(max(0, 1 - max(0, (t - .72) / .28) ** 2)) + .4, 14)), pig, lw)
    if quill:
        S.line([(x, y), a, pol(x, y, length * .86, ang + bend * .92)], 2.6, 'end')


def wing(S, x, y, k=1, rot=0, flip=False, pigs=('blue', 'red', 'gold'), reach=(92, 168), n=9, lw=3.8):
    """feathered wing, root at the origin, spread to the left; reach gives the directions of the first and the last quill.
    A small wing takes few feathers and a heavy lw, so that its lines survive the reduction"""
    arm = [(6, 8), (-34, -52), (-92, -78), (-150, -52)]
    ps = sample(arm, n=12)
    with S.at(x, y, k, rot, flip):
        for row, (pig, size) in enumerate(zip(pigs, (1, .56, .3))):
            for i in range(n - row):
                t = i / (n - row - 1)
                p = ps[int((.08 + .92 * t) * (len(ps) - 1))]
                L = (120 + 175 * math.sin(math.pi * (.12 + .62 * t))) * size
                plume(S, p[0], p[1], reach[0] + (reach[1] - reach[0]) * t, L, (333 - 30 * row) / n, pig, 10, lw, k > .5)
        S.limb(arm, [30, 28, 26, 20], pigs[2], lw * 1.15, 'se')
        if k > .5:
            for t in (.2, .36, .52, .68, .84):
                p = ps[int(t * (len(ps) - 1))]
                S.line([(p[0] - 3, p[1] - 9), (p[0] + 3, p[1]), (p[0] + 1, p[1] + 10)], 3)


def bat_wing(S, x, y, k=1, flip=False, skin='blue', ribs='gold'):
    """devil's wing, root at the origin, spread to the left and upward"""
    wrist, tips = (-84, -128), [(-196, -98), (-214, 10), (-168, 96), (-92, 146)]
    with S.at(x, y, k, 0, flip):
        edge = [(12, 34, 'c'), (-26, -52), wrist + ('c',), (-140, -134)]
        for i, p in enumerate(tips):
            edge.append(p + ('c',))
            q = tips[i + 1] if i + 1 < len(tips) else (10, 120)
            edge.append(((p[0] + q[0]) / 2 * .84 + wrist[0] * .16, (p[1] + q[1]) / 2 * .84 + wrist[1] * .16))
        S.fill(edge + [(10, 120, 'c')], skin, 5)
        for i, p in enumerate(tips):
            m = ((p[0] + wrist[0]) / 2 - 14 + i * 4, (p[1] + wrist[1]) / 2 + 2)
            for u in (.3, .5, .7, .88):
                a = (wrist[0] + (p[0] - wrist[0]) * u, wrist[1] + (p[1] - wrist[1]) * u)
                S.line([a, (a[0] + 14 + 8 * i, a[1] + 26 - 3 * i)], 4.4, 'end', kind='hatch')
            S.limb([wrist, m, p], [13, 9, 5], ribs, 3.6)
        S.limb([(8, 30), (-30, -50), wrist], [30, 20, 16], ribs, 4.4, 's')
        S.fill([(wrist[0] + 8, wrist[1] + 6, 'c'), (wrist[0] + 4, wrist[1] - 16), (wrist[0] - 14, wrist[1] - 30, 'c'),
                (wrist[0] - 8, wrist[1] - 12), (wrist[0] - 8, wrist[1] + 4, 'c')], ribs, 3.4)


# ---------- clouds ----------
def cloud_ring(S, x, y, rx, ry, n=18, r=30, a0=0, a1=360, pigs=('sky', 'white')):
    """billows along an ellipse, alternating in pigment, each with a turn of line inside"""
    for i in range(n):
        a = math.radians(a0 + (a1 - a0) * i / (n if a1 - a0 == 360 else n - 1))
        px, py = x + rx * math.cos(a), y + ry * math.sin(a)
        S.fill(circ(px, py, r * (1 if i % 2 else .86)), pigs[i % 2], 4)
        for u in (.66, .36):
            S.line([(px + r * u * math.cos(a + d), py + r * u * math.sin(a + d)) for d in (-1.2, -.6, 0, .6, 1.2)], 3)


# ---------- lions ----------
def mane(S, n, r, length, a0, a1, pig, w=30, curl=26):
    """flame locks round the origin"""
    for i in range(n):
        a = a0 + (a1 - a0) * i / (n - 1)
        p = [pol(0, 0, r * .7, a), pol(0, 0, r + length * .4, a + curl * .35), pol(0, 0, r + length, a + curl)]
        S.fill(poly(ribbon(p, lambda t: w * (1 - t) ** .75 + .6, 10)), pig, 3.8)
        S.line([p[0], p[1], pol(0, 0, r + length * .8, a + curl * .9)], 3, 'end')


def lion_profile(S, x, y, k=1, rot=0, flip=False, pig='hair', locks='gold'):
    """lion's head in profile to the left, the jaws wide open"""
    with S.at(x, y, k, rot, flip):
        mane(S, 13, 66, 62, -118, 118, locks, 40)
        # lower jaw, gullet, tongue
        S.fill([(10, 20, 'c'), (-30, 62), (-66, 84), (-104, 92), (-122, 82), (-118, 70, 'c'), (-96, 64), (-66, 46),
            (-30, 10, 'c')], pig, 4.6)
        S.fill([(-108, -6, 'c'), (-60, 10), (-30, 4), (-18, 20), (-34, 44), (-66, 60), (-108, 74, 'c'), (-84, 40), (-84, 14)], 'dark', 4)
        S.fill([(-26, 26, 'c'), (-48, 22), (-76, 36), (-98, 38), (-116, 52), (-102, 60), (-72, 56), (-40, 48, 'c')], 'red', 3.6)
        S.line([(-36, 34), (-66, 42), (-100, 50)], 2.8)
        for tx, ty, h in ((-108, 68, 22), (-90, 64, 13), (-74, 56, 11), (-60, 48, 9)):
            S.fill([(tx - 5, ty + 4, 'c'), (tx + 1, ty - h, 'c'), (tx + 7, ty + 1, 'c')], 'white', 2.6)
        # skull and muzzle
        S.fill([(44, -44), (16, -72), (-20, -78), (-46, -62, 'c'), (-80, -56), (-112, -48), (-126, -34), (-124, -14), (-108, -2),
                (-84, 4), (-60, 14), (-34, 12), (-14, 26), (20, 52), (50, 30), (58, -8)], pig, 5)
        for tx, ty, h in ((-112, -4, 26), (-92, 2, 13), (-76, 8, 11), (-60, 13, 9)):
            S.fill([(tx - 5, ty - 3, 'c'), (tx - 1, ty + h, 'c'), (tx + 7, ty, 'c')], 'white', 2.6)
        S.fill([(-128, -38, 'c'), (-122, -50), (-106, -50), (-104, -40), (-116, -30, 'c')], 'dark', 3)
        S.line([(-116, -30), (-106, -20), (-108, -4)], 3)
        S.line([(-100, -38), (-72, -44), (-50, -38)], 3.4)
        for p in ((-100, -18), (-88, -22), (-92, -10), (-78, -14)):
            S.dot(p[0], p[1], 2.6)
        S.line([(-84, 2), (-54, 8), (-40, -6), (-44, -20)], 3.4, 'end')
        S.line([(-20, 20), (2, 10), (8, -10)], 4, 'end')
        eye(S, -36, -36, 1.25, .9, -2.6)
        S.line([(-58, -44), (-40, -58), (-12, -52)], 6)
        S.fill([(10, -62, 'c'), (8, -92), (28, -104), (48, -84), (44, -54, 'c')], pig, 4.4)
        S.line([(20, -66), (20, -82), (30, -90)], 3.4, 'end')
        S.comb([(50, -20), (46, 20), (20, 46)], 200, 22, 9, 4)
        # whisker locks on the cheek
        with S.at(24, 6, .62):
            mane(S, 8, 44, 52, -70, 130, locks, 34)


# ---------- vessels and water ----------
def jar(S, x, y, k=1, rot=0, pig='gold', band='red'):
    """two-bellied ewer whose slender neck is at the origin, the mouth upward"""
    with S.at(x, y, k, rot):
        S.fill([(-24, 108, 'c'), (-18, 96), (18, 96), (24, 108, 'c'), (22, 118, 'c'), (-22, 118, 'c')], pig, 4)
        S.fill([(-13, 4, 'c'), (-15, 18), (-36, 40), (-38, 66), (-24, 92), (-12, 100, 'c'), (12, 100, 'c'), (24, 92), (38, 66), (36, 40),
            (15, 18), (13, 4, 'c')], pig, 4.4)
        S.fill([(-38, 50, 'c'), (0, 60), (38, 50, 'c'), (37, 70, 'c'), (0, 80), (-37, 70, 'c')], band, 3.6)
        S.fill([(-30, -46, 'c'), (-24, -28), (-12, -14), (-12, 12, 'c'), (12, 12, 'c'), (12, -14), (24, -28), (30, -46, 'c')], pig, 4.4)
        S.fill(circ(0, -46, 30, 7), 'dark', 3.6)
        for u in (-1, 0, 1):
            S.line([(u * 8, 26), (u * 14, 38), (u * 16, 48)], 2.6)
        S.comb([(36, 42), (37, 66), (22, 92)], 190, 14, 7, 3.4)


def water(S, pts, w=26, pig='sky', lw=4):
    """a falling stream with running lines"""
    S.limb(pts, [w * .8, w, w, w * 1.1], pig, lw)
    ps = sample(pts, n=6)
    ns = normals(ps)
    for u in (-.24, .04, .28):
        S.line([(p[0] + q[0] * w * u, p[1] + q[1] * w * u) for p, q in list(zip(ps, ns))[1:-1]], 3)


def flower(S, x, y, r, pig='red', heart='gold', n=5):
    """open blossom of n petals"""
    for i in range(n):
        S.fill(circ(*pol(x, y, r * .62, i * 360 / n - 90), r * .46), pig, 3)
    S.fill(circ(x, y, r * .36), heart, 3)


# ---------- stars ----------
def star(S, x, y, r, n=8, front='gold', back='red', lw=4, rot=-90):
    """star of n half-lit rays before n rays of another pigment"""
    def ray(a, R, half, pig, lit):
        tip, l, q, m = pol(x, y, R, a), pol(x, y, r * .3, a - half), pol(x, y, r * .3, a + half), (x, y)
        S.fill(poly([l, tip, q, m]), pig, lw)
        S.fill(poly([m, tip, q]), lit, lw * .6)
    if back:
        for i in range(n):
            ray(rot + (i + .5) * 360 / n, r * .74, 180 / n, back, back)
    for i in range(n):
        ray(rot + i * 360 / n, r, 150 / n, front, 'fire' if back else front)
    S.fill(circ(x, y, r * .2), front, lw)


# ---------- the four living beings and other heads ----------
def halo(S, x, y, r, lw=4):
    S.fill(circ(x, y, r), 'gold', lw)
    S.stroke(circ(x, y, r * .84), lw * .6)


def lion_face(S, x, y, k=1, pig='hair', locks='gold'):
    """lion's head from the front"""
    with S.at(x, y, k):
        mane(S, 15, 46, 54, 0, 336, locks, 44)
        with S.at(0, 4, .7):
            mane(S, 14, 46, 42, 12, 350, locks, 40)
        for d in (-1, 1):
            S.fill(circ(d * 42, -40, 16), pig, 4.4)
            S.fill(circ(d * 42, -38, 7), 'blush', 3)
        S.fill([(0, -54), (34, -44), (46, -10), (38, 26), (26, 48), (0, 58), (-26, 48), (-38, 26), (-46, -10), (-34, -44)], pig, 5)
        S.fill([(-15, 14, 'c'), (0, 18), (15, 14, 'c'), (8, 28), (0, 33), (-8, 28)], 'dark', 3.4)
        for d in (-1, 1):
            eye(S, d * 22, -10, 1.1, 1, 0)
            S.line([(d * 38, -22), (d * 22, -30), (d * 8, -22)], 5)
            S.line([(d * 7, -22), (d * 10, 0), (d * 15, 14)], 3.6)
            S.line([(0, 32), (d * 6, 42), (d * 20, 42), (d * 28, 34)], 3.8)
            for q in ((18, 28), (26, 24), (24, 32)):
                S.dot(d * q[0], q[1], 2.2)
        S.line([(-8, 50), (0, 53), (8, 50)], 3)
        S.comb([(45, -12), (38, 26), (22, 48)], 200, 13, 8, 3.6)


def bull_face(S, x, y, k=1, pig='wood'):
    """bull's head, nearly from the front"""
    with S.at(x, y, k):
        for d in (-1, 1):
            S.fill([(d * 24, -44, 'c'), (d * 56, -50), (d * 78, -74), (d * 76, -102, 'c'), (d * 92, -74), (d * 82, -42), (d * 52, -26),
                (d * 26, -24, 'c')], 'pearl', 4.6)
            S.line([(d * 74, -54), (d * 80, -64)], 3)
            S.line([(d * 62, -43), (d * 66, -54)], 3)
            S.fill([(d * 34, -18, 'c'), (d * 62, -22), (d * 82, -8, 'c'), (d * 64, 6), (d * 36, 2, 'c')], pig, 4.4)
            S.line([(d * 42, -8), (d * 58, -10), (d * 70, -6)], 3)
        S.fill([(0, -58), (30, -50), (42, -24), (36, 8), (28, 40), (34, 62), (24, 82), (0, 88), (-24, 82), (-34, 62), (-28, 40), (-36, 8),
                (-42, -24), (-30, -50)], pig, 5)
        S.fill([(0, 42), (26, 46), (33, 64), (24, 81), (0, 87), (-24, 81), (-33, 64), (-26, 46)], 'flesh', 4)
        for d in (-1, 1):
            S.fill(circ(d * 14, 58, 6.4, 5), 'dark', 3)
            eye(S, d * 22, -8, 1.15, 1, 0)
            S.line([(d * 38, -22), (d * 22, -28), (d * 10, -18)], 5)
            S.line([(d * 10, 2), (d * 14, 24), (d * 12, 40)], 3.6)
        S.line([(-16, 73), (0, 77), (16, 73)], 4)
        curls(S, [(-20, -46), (20, -46), (0, -40), (-9, -56), (10, -57)], 12, pig, 3.6)
        S.comb([(41, -22), (35, 8), (28, 38)], 192, 14, 8, 4)


def eagle(S, x, y, k=1, flip=False):
    """eagle with raised wings, looking to the left"""
    with S.at(x, y, k, 0, flip):
        for d in (False, True):
            wing(S, 26 if d else -26, 16, .46, -34 if d else 34, d, ('wood', 'gold', 'gold'), (62, 106), 6, 8)
        for a in (-16, 0, 16):
            plume(S, 0, 50, 90 + a, 68, 26, 'wood', 0, 4)
        S.fill([(-14, -40, 'c'), (-34, -6), (-36, 34), (-18, 66), (0, 74), (20, 66), (38, 34), (36, -6), (18, -44, 'c')], 'gold', 4.8)
        for yy, m in ((2, 3), (18, 4), (34, 3), (50, 2)):
            for i in range(m):
                u = (i - (m - 1) / 2) * 16
                S.line([(u - 7, yy), (u, yy + 9), (u + 7, yy)], 3.2)
        halo(S, -2, -54, 52, 4.8)
        S.fill([(22, -40), (24, -66), (6, -84), (-18, -80), (-30, -62), (-26, -44), (-16, -30, 'c'), (-6, -22, 'c'), (2, -30, 'c'),
            (10, -20, 'c'), (22, -34, 'c')], 'gold', 4.6)
        S.fill([(-22, -72, 'c'), (-44, -70), (-56, -54), (-52, -38, 'c'), (-44, -50), (-26, -50, 'c')], 'fire', 4)
        S.line([(-50, -56), (-40, -58), (-26, -58)], 3)
        eye(S, -12, -62, .92, .9, -2)
        S.line([(-26, -70), (-12, -76), (4, -70)], 4)
        for d in (-1, 1):
            for u in (-9, 0, 9):
                S.limb([(d * 17, 66), (d * 17 + u, 84)], [9, 6], 'fire', 3.2, 'e')


def dog_howling(S, x, y, k=1, flip=False, pig='white', collar='red'):
    """seated dog that looks to the right and lifts its muzzle"""
    with S.at(x, y, k, 0, flip):
        S.limb([(-46, 92), (-84, 96), (-102, 70), (-92, 40)], [22, 20, 17, 6], pig, 4.4)
        S.limb([(26, 20), (40, 66), (38, 104)], [34, 25, 18], pig, 4.4)
        S.fill([(30, 100, 'c'), (52, 98), (64, 110, 'c'), (28, 112, 'c')], pig, 4)
        S.fill([(-6, -56, 'c'), (-34, -20), (-56, 24), (-66, 72), (-56, 106, 'c'), (20, 106, 'c'), (28, 70), (52, 26), (54, -14),
            (40, -52, 'c')], pig, 4.8)
        S.stroke([(-30, 104), (-2, 92), (2, 62), (-22, 44), (-44, 50)], 4)
        S.fill([(-34, 100, 'c'), (-8, 96), (16, 98), (28, 112, 'c'), (-38, 113, 'c')], pig, 4)
        S.limb([(34, -6), (24, 50), (20, 102)], [38, 29, 20], pig, 4.4, 's')
        S.fill([(10, 98, 'c'), (32, 96), (48, 109, 'c'), (46, 114, 'c'), (8, 114, 'c')], pig, 4)
        for u in (22, 34):
            S.line([(u, 103), (u + 3, 112)], 2.8, 'start')
        # head thrown back, jaws open
        S.fill([(38, -56, 'c'), (58, -76), (78, -98), (82, -110, 'c'), (66, -104), (42, -92), (26, -80, 'c')], pig, 4.4)
        S.fill([(30, -86, 'c'), (52, -100), (80, -112, 'c'), (68, -122), (46, -116), (32, -104, 'c')], 'red', 3.4)
        S.fill([(-10, -50, 'c'), (-10, -84), (4, -108), (26, -122), (46, -146), (62, -160), (74, -152), (66, -132), (46, -108), (34, -92),
            (36, -66), (42, -46, 'c'),
                (20, -34)], pig, 4.6)
        S.fill(circ(66, -155, 7.5), 'dark', 3)
        S.fill(circ(24, -104, 3.6), 'dark', 2.6)
        S.line([(14, -106), (22, -114), (32, -112)], 3)
        S.fill([(8, -98, 'c'), (-14, -104), (-36, -86), (-36, -66, 'c'), (-14, -70), (8, -78, 'c')], pig, 4.2)
        S.line([(-2, -88), (-16, -88), (-28, -78)], 3)
        S.limb([(-14, -46), (14, -32), (48, -42)], [16, 16, 16], collar, 3.8)
        S.fill(circ(20, -22, 7), 'gold', 3.2)
        for p in ([(-22, -6), (-36, 22), (-44, 48)], [(-8, 4), (-16, 24), (-22, 36)], [(44, -18), (42, 4), (36, 22)]):
            S.line(p, 4, 'end', kind='hatch')
        S.comb([(-62, 60), (-60, 84), (-50, 104)], 0, 16, 7, 3.6)


def dog_leaping(S, x, y, k=1, flip=False, pig='white', collar='red'):
    """dog on its hind legs, forepaws lifted to the right"""
    with S.at(x, y, k, 0, flip):
        S.limb([(-66, 44), (-98, 26), (-108, -10), (-88, -34)], [20, 18, 15, 6], pig, 4.4)
        S.limb([(-38, 50), (-10, 92), (-34, 118), (-30, 150)], [46, 32, 21, 18], pig, 4.4)
        S.fill([(-42, 146, 'c'), (-18, 144), (-2, 158, 'c'), (-44, 160, 'c')], pig, 4)
        S.limb([(44, -34), (74, -22), (98, -44)], [34, 25, 18], pig, 4.4, 'se')
        S.fill([(20, -84, 'c'), (-24, -58), (-56, -12), (-80, 40), (-70, 76), (-40, 90), (-14, 66), (24, 30), (60, -10),
            (66, -58, 'c')], pig, 4.8)
        S.limb([(-54, 52), (-28, 98), (-62, 124), (-62, 154)], [60, 40, 23, 19], pig, 4.4, 's')
        S.fill([(-74, 148, 'c'), (-50, 146), (-32, 162, 'c'), (-76, 163, 'c')], pig, 4)
        S.limb([(38, -22), (72, 0), (104, -14)], [40, 27, 19], pig, 4.4, 'se')
        S.fill([(28, -76, 'c'), (22, -108), (34, -134), (60, -142), (84, -130), (116, -122), (122, -110), (104, -100), (116, -90),
            (106, -80), (80, -84), (68, -60, 'c')], pig, 4.6)
        S.fill([(122, -122, 'c'), (128, -112), (118, -104), (108, -114, 'c')], 'dark', 3)
        S.line([(104, -100), (90, -100), (80, -106)], 3.4, 'end')
        S.fill(circ(76, -122, 3.8), 'dark', 2.6)
        S.line([(66, -128), (76, -134), (86, -128)], 3)
        S.fill([(52, -138, 'c'), (30, -140), (12, -118), (16, -92, 'c'), (36, -98), (54, -114, 'c')], pig, 4.2)
        S.line([(42, -126), (28, -116), (24, -104)], 3)
        S.limb([(24, -80), (44, -64), (70, -66)], [16, 16, 16], collar, 3.8)
        S.fill(circ(54, -54, 7), 'gold', 3.2)
        for p in ([(-36, -20), (-54, 10), (-60, 32)], [(-22, -14), (-34, 10), (-38, 24)], [(0, -46), (-14, -30), (-22, -14)]):
            S.line(p, 4, 'end', kind='hatch')
        S.comb([(58, -6), (24, 32), (-10, 66)], 230, 18, 10, 4)
