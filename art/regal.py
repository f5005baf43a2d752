# SPDX-License-Identifier: GPL-3.0-or-later
"""What rulers, judges and travellers of the trumps have in common: clothed arms, beards, regalia, wings, furniture."""
import math

from drawing import *      # the vocabulary of scenes, see drawing.py


def halves(S, x=300):
    """Yields the side, -1 left and 1 right, with the scene mirrored about x for the right one: draw the left half around x = 0."""
    for side in (-1, 1):
        with S.at(x, 0, 1, 0, side > 0):
            yield side


def between(a, b, t):
    return (a[0]+(b[0]-a[0])*t, a[1]+(b[1]-a[1])*t)


def unit(a, b):
    """direction from a to b"""
    L = math.hypot(b[0]-a[0], b[1]-a[1]) or 1
    return ((b[0]-a[0])/L, (b[1]-a[1])/L)


# ---------- limbs ----------
def shade(S, pts, widths, n=9, w=4.4, depth=.34):
    """wedges along that edge of a limb which is turned away from the light at the top left"""
    out = ribbon(pts, widths)
    h = len(out)//2
    L, R = out[:h], out[h:][::-1]
    mean = lambda ps: (sum(p[0] for p in ps)/len(ps), sum(p[1] for p in ps)/len(ps))
    l, r = mean(L), mean(R)
    dark, lit, edge = (l, r, L) if (l[0]-r[0])*.8+(l[1]-r[1])*.6 > 0 else (r, l, R)
    ang = math.degrees(math.atan2(lit[1]-dark[1], lit[0]-dark[0]))
    S.comb(edge[::5], ang+8, sum(widths)/len(widths)*depth, n, w)


def limb(S, pts, widths, pig, lw=5, caps='', n=9):
    """a limb with its shaded edge"""
    S.limb(pts, widths, pig, lw, caps)
    shade(S, pts, widths, n)


def arm(S, shoulder, elbow, wrist, pig, k=1, lower=None, bulge=0):
    """A sleeved arm: forearm, upper arm over it, folds in the bend, cuff. `lower` is the pigment of the forearm when it differs;
    `bulge` bows the upper arm to its left, seen from the shoulder."""
    ux, uy = unit(shoulder, elbow)
    m = between(shoulder, elbow, .5)
    m = (m[0]+uy*bulge, m[1]-ux*bulge)
    fore = [between(elbow, wrist, -.12), between(elbow, wrist, .5), wrist]
    limb(S, fore, [60*k, 52*k, 42*k], lower or pig, 5, 's', 8)
    limb(S, [shoulder, m, elbow], [64*k, 78*k, 62*k], pig, 5, 'se', 10)
    a, b = unit(elbow, shoulder), unit(elbow, wrist)
    ix, iy = unit((0, 0), (a[0]+b[0], a[1]+b[1]))
    for j in (-1, 0, 1):
        c = (elbow[0]+a[0]*(10+14*j)*k, elbow[1]+a[1]*(10+14*j)*k)
        fold(S, [(c[0]+ix*30*k, c[1]+iy*30*k), (c[0]+ix*10*k+a[0]*5*k, c[1]+iy*10*k+a[1]*5*k),
             (c[0]-ix*(14-6*abs(j))*k, c[1]-iy*(14-6*abs(j))*k)], 6*k)
    bx, by = unit(wrist, elbow)
    S.limb([(wrist[0]+bx*20*k, wrist[1]+by*20*k), (wrist[0]-bx*4*k, wrist[1]-by*4*k)], [60*k, 54*k], 'gold', 4.4)
    p = (wrist[0]+bx*8*k, wrist[1]+by*8*k)
    S.line([(p[0]-by*24*k, p[1]+bx*24*k), (p[0]-bx*3*k, p[1]-by*3*k), (p[0]+by*24*k, p[1]-bx*24*k)], 3, 'both')


def fist(S, elbow, wrist, rod, k=1, lean=0):
    """A fist at the end of a forearm. rod() draws its prop around the origin, upright; the grip is square to the forearm,
    `lean` degrees excepted."""
    ang = math.degrees(math.atan2(elbow[1]-wrist[1], elbow[0]-wrist[0]))
    flip = wrist[0] > elbow[0]
    dx, dy = unit(elbow, wrist)
    x, y = wrist[0]+dx*29*k, wrist[1]+dy*29*k
    rot = ang-180 if flip else ang

    def prop():
        with S.at(x, y, 1, rot+lean):
            rod()
    hand_fist(S, x, y, k, rot, flip, rod=prop)


def shoe(S, x, y, flip=False, k=1, pig='red'):
    """pointed shoe, its heel at the origin, toe to the left"""
    with S.at(x, y, k, 0, flip):
        S.fill([(-18, -34, 'c'), (16, -34, 'c'), (18, -12), (22, 6, 'c'), (-8, 6), (-56, 8, 'c'), (-66, 0), (-44, -10),
                (-24, -18)], pig, 4.4)
        S.line([(-54, 0), (-20, -2), (16, -2)], 3)


# ---------- hair ----------
def hair_back(S, x, y, k=1, pig='hair', w=60, low=76):
    """mass of hair behind a head, waving out over the shoulders"""
    with S.at(x, y, k):
        S.fill([(0, -62), (-40, -50), (-w+8, -12), (-w+4, 22), (-w-10, 46), (-w-4, low), (-w+20, low+8), (-24, low-6), (24, low-6),
                (w-20, low+8), (w+4, low), (w+10, 46), (w-4, 22), (w-8, -12), (40, -50)], pig, 4.6)


def hair_front(S, x, y, k=1, pig='hair', low=70):
    """parted locks in front of the cheeks, one to each side"""
    for f in (1, -1):
        with S.at(x, y, k, 0, f < 0):
            a = [(-26, -46), (-40, -20), (-39, 12), (-58, 38), (-56, low)]
            b = [(-44, -42), (-60, -12), (-61, 16), (-76, 44), (-66, low+8)]
            S.fill(a+[(-44, low+2)]+b[::-1]+[(-22, -56)], pig, 4)
            locks(S, (a, b), 3, 2.6)


def fringe(S, x, y, k=1, pig='hair'):
    """parted hair over the brow, for heads without hat or crown"""
    with S.at(x, y, k):
        S.fill([(-47, -6, 'c'), (-50, -34), (-28, -62), (0, -68), (28, -62), (50, -34), (47, -6, 'c'), (36, -26), (16, -38),
                (2, -52, 'c'), (-12, -38), (-34, -26)], pig, 4)
        for s in (-1, 1):
            S.line([(s*5, -60), (s*24, -48), (s*40, -26)], 2.6)
            S.line([(s*14, -63), (s*34, -52), (s*46, -30)], 2.4)


def beard(S, x, y, k=1, turn=0, length=96, pig='hair', forked=True):
    """full beard and moustache over a face that was drawn at the same place"""
    m = -9*turn
    with S.at(x, y, k):
        end = [(14+m, length-8), (1+m*1.3, length+6), (-12+m, length-8)]
        if forked:
            end = [(10+m, length, 'c'), (1+m*1.1, length-18), (-9+m, length, 'c')]
        S.fill([(-38-m*.2, 4, 'c'), (-33, 30), (-17+m, 27), (m*1.1, 29), (17+m, 27), (32, 30), (37, 4, 'c'), (41, 42),
                (27+m*.4, length*.72)]+end+[(-27+m, length*.72), (-42, 42)], pig, 4.2)
        S.fill([(-14+m*1.1, 33, 'c'), (m*1.1, 29), (14+m*1.1, 33, 'c'), (m*1.1, 40)], 'lip', 2.6)
        for i in (-2, -1, 0, 1, 2):
            for j in (0, 1):
                x0, x1 = i*13+m*.8+j*5, i*9+m*1.1+j*4
                y0 = 44+5*j-abs(i)*5
                S.line([(x0, y0), ((x0+x1)/2+3*(-1)**i, (y0+length)/2-6), (x1, length-20-abs(i)*9-j*8)], 3)
        for s in (-1, 1):
            S.limb([(m*1.15+s*2, 25), (m+s*18, 20), (m*.6+s*38, 32)], [9, 13, 3], pig, 3.4)


# ---------- regalia ----------
def orb(S, x, y, r, pig='gold', girdle='red'):
    """imperial orb: ball, bands, cross"""
    S.fill(f'M{x-4} {y-r-r*1.05}h8v{r*.34}h{r*.36}v8h{-r*.36}V{y-r+4}h-8V{y-r-r*.71+8}h{-r*.36}v-8h{r*.36}Z', pig, 3.4)
    S.fill(circ(x, y, r), pig, 4.4)
    S.limb([(x-r, y-2), (x, y+r*.18), (x+r, y-2)], [r*.3]*3, girdle, 3)
    S.limb([(x, y-r), (x, y)], [r*.3, r*.3], girdle, 3)
    S.comb([(x+r*.94, y+r*.3), (x+r*.6, y+r*.8), (x+r*.1, y+r*.99)], 225, r*.32, 5, 3.4)


def sceptre(S, up=330, down=90, r=27):
    """sceptre of office around its grip: shaft with rings, orb and cross on top"""
    S.limb([(0, -up), (0, down)], [13, 15], 'gold', 4.4)
    for y in (-up*.8, -up*.52, down*.62):
        S.fill(rect(-11, y-6, 22, 11, 4), 'red', 3.4)
    S.fill(circ(0, down+4, 11), 'gold', 4)
    S.fill([(-14, -up+18, 'c'), (-10, -up+4), (-18, -up-8, 'c'), (18, -up-8, 'c'), (10, -up+4), (14, -up+18, 'c')], 'gold', 4)
    orb(S, 0, -up-r, r)


def sword(S, length=340, w=15, grip='red'):
    """upright sword around its grip: blade up"""
    S.fill([(-w, -40, 'c'), (-w+1, -length+40), (0, -length, 'c'), (w-1, -length+40), (w, -40, 'c')], 'sky', 5)
    S.line([(0, -46), (0, -length*.55), (0, -length+34)], 5, 'end')
    S.comb([(w-2, -70), (w-3, -length+46)], 180, w*.62, int(length/17), 3)
    S.fill([(-58, -52, 'c'), (-68, -40), (-54, -30), (0, -36), (54, -30), (68, -40), (58, -52, 'c'), (0, -48)], 'gold', 4.6)
    for x in (-62, 62):
        S.fill(circ(x, -40, 9), 'gold', 4)
    S.limb([(0, -36), (0, 44)], [16, 16], grip, 4.2)
    S.fill(circ(0, 52, 13), 'gold', 4.4)


def eagle(S, x, y, k=1, pig='gold', lw=3.6):
    """heraldic eagle displayed, head to the left, about 140 wide"""
    with S.at(x, y, k):
        for f in (1, -1):
            with S.at(0, 0, 1, 0, f < 0):
                for i in range(6):
                    t = i/5
                    p = between((-58, -46), (-20, -18), t)
                    q = between((-72, 34), (-24, 26), t)
                    S.limb([p, between(p, q, .6), q], [15, 17, 4], pig, lw)
                S.fill([(-10, -24, 'c'), (-30, -34), (-50, -58), (-66, -50), (-64, -30), (-48, -22), (-32, -10), (-14, 2, 'c')], pig, lw)
                S.line([(-56, -44), (-42, -30), (-18, -14)], 2.6)
                S.limb([(-10, 34), (-24, 48), (-28, 58)], [13, 10, 7], pig, lw)
                for a in (70, 105, 140):
                    S.line([(-28, 57), pol(-28, 57, 17, a)], 5, 'end')
        for dx in (-16, 16, 0):
            S.limb([(dx*.3, 34), (dx, 58), (dx*1.5, 82)], [10, 17, 5], pig, lw)
        S.fill([(0, -30), (-20, -12), (-19, 20), (0, 46), (19, 20), (20, -12)], pig, lw)
        for yy, w in ((-6, 11), (7, 12), (20, 8)):
            for s in (-1, 1):
                S.line([(s*w, yy), (s*w*.5, yy+7), (0, yy+1)], 2.6)
        S.fill([(12, -28, 'c'), (13, -50), (2, -66), (-14, -64), (-22, -54), (-36, -46, 'c'), (-24, -42), (-14, -44),
                (-10, -28, 'c')], pig, lw)
        S.line([(-22, -52), (-28, -47), (-22, -45)], 2.6)
        S.dot(-9, -55, 3)


def shield(S, x, y, k=1, rot=0, field='blue', pig='gold'):
    """heater shield with the eagle, 150 wide and 190 high"""
    with S.at(x, y, k, rot):
        for s, p, w in ((1, 'gold', 5), (.85, field, 4)):
            S.fill([(-76*s, -88*s, 'c'), (0, -96*s), (76*s, -88*s, 'c'), (76*s, -10*s), (52*s, 56*s), (0, 100*s, 'c'), (-52*s, 56*s),
                    (-76*s, -10*s)], p, w)
        eagle(S, 0, -8, .84, pig)


def tiara_tier(S, x, y, w, k=1):
    """one crown of a tiara, w its half width"""
    S.fill([(x-w, y, 'c'), (x-w-3, y-24*k, 'c'), (x-w*.66, y-11*k), (x-w*.36, y-26*k, 'c'), (x-w*.18, y-11*k), (x, y-31*k, 'c'),
            (x+w*.18, y-11*k),
            (x+w*.36, y-26*k, 'c'), (x+w*.66, y-11*k), (x+w+3, y-24*k, 'c'), (x+w, y, 'c'), (x, y+10*k)], 'gold', 4)
    for i in (-1, 0, 1):
        S.fill(circ(x+i*w*.52, y-1+(0 if i else 3), 4.6), 'red' if i else 'blue', 2.4)


# ---------- clothes ----------
def band(S, pts, w, pig='gold', n=7, gems=('red', 'blue'), lw=4.2, r=.24):
    """an ornamented border: band along a line with stones on it"""
    S.limb(pts, [w]*len(pts), pig, lw)
    ps = sample(pts, n=20)
    for i in range(n):
        x, y = ps[int((i+.5)/n*(len(ps)-1))]
        S.fill(circ(x, y, w*r), gems[i % len(gems)], 2.4)


def clasp(S, x, y, r, stone='red'):
    S.fill(circ(x, y, r), 'gold', 4.2)
    for a in range(0, 360, 45):
        S.dot(*pol(x, y, r*.76, a), 2.2)
    S.fill(circ(x, y, r*.5), stone, 3)


def seated_skirt(S, pig, top=560, low=880, waist=74, knee=132, hem=150, x=300, n_hem=13):
    """gown over the knees of an enthroned figure, with its jewelled hem"""
    h = low-top
    S.fill([(x-waist, top, 'c'), (x-knee+4, top+h*.26), (x-knee, top+h*.46), (x-knee+8, top+h*.72), (x-hem, low, 'c'),
            (x-hem*.5, low-10), (x, low+4), (x+hem*.5, low-10),
            (x+hem, low, 'c'), (x+knee-8, top+h*.72), (x+knee, top+h*.46), (x+knee-4, top+h*.26), (x+waist, top, 'c')], pig, 5.2)
    for _ in halves(S, x):
        fold(S, [(-waist*.5, top+h*.1), (-knee*.66, top+h*.3), (-knee*.8, top+h*.56), (-hem*.72, low-12)], 9)
        fold(S, [(-waist*.3, top+h*.16), (-knee*.4, top+h*.46), (-hem*.46, low-12)], 8)
        fold(S, [(-waist*.1, top+h*.2), (-knee*.16, top+h*.56), (-hem*.17, low-4)], 7)
        fold(S, [(-knee+4, top+h*.42), (-knee*.86, top+h*.6), (-hem*.9, low-26)], 7)
        S.line([(-knee*.86, top+h*.4), (-knee*.68, top+h*.34), (-knee*.5, top+h*.42)], 4)
    S.comb([(x+knee-2, top+h*.44), (x+knee-6, top+h*.7), (x+hem-4, low-24)], 186, 22, 10, 4.6)
    band(S, [(x-hem+1, low-11), (x-hem*.5, low-19), (x, low-6), (x+hem*.5, low-19), (x+hem-1, low-11)], 23, n=n_hem)


# ---------- furniture ----------
def column(S, x, y0, y1, w=56, pig='stone', capital='gold'):
    """fluted column with capital and base"""
    S.fill(poly([(x-w*.42, y0+40), (x+w*.42, y0+40), (x+w*.5, y1-36), (x-w*.5, y1-36)]), pig, 5)
    for d in (-.2, .02):
        S.line([(x+w*d, y0+52), (x+w*d*1.15, y1-46)], 3.6, 'both')
    S.comb([(x+w*.42, y0+50), (x+w*.5, y1-44)], 180, w*.3, int((y1-y0)/18), 4)
    S.fill(rect(x-w*.66, y0, w*1.32, 16, 3), capital, 4.4)
    S.fill([(x-w*.6, y0+16, 'c'), (x-w*.5, y0+32), (x-w*.44, y0+42, 'c'), (x+w*.44, y0+42, 'c'), (x+w*.5, y0+32),
            (x+w*.6, y0+16, 'c')], capital, 4.4)
    for d in (-.3, 0, .3):
        S.line([(x+w*d*.9, y0+40), (x+w*d*1.2, y0+20)], 3)
    S.fill(rect(x-w*.6, y1-40, w*1.2, 18, 6), capital, 4.4)
    S.fill(rect(x-w*.7, y1-22, w*1.4, 26, 3), capital, 4.4)


# ---------- wings ----------
def feather(S, p, q, w, pig, lw=3.4, bend=0):
    """one feather from p to its round tip q"""
    dx, dy = unit(p, q)
    m = between(p, q, .55)
    m = (m[0]-dy*bend, m[1]+dx*bend)

    def width(t):
        tip = 1 if t < .72 else max(.04, 1-((t-.72)/.28)**2)**.5
        return w*(.55+.45*math.sin(math.pi*min(1, t*.75+.12)))*tip
    S.fill(poly(ribbon([p, m, q], width)), pig, lw)
    S.line([between(p, q, .2), between(between(p, q, .6), m, .6), between(p, q, .88)], 2.6, 'end')


def wing(S, bone, ang, length, n=9, rows=(('sky', 1), ('blue', .64), ('gold', .34)), w=30, edge='gold', edge_w=(24, 20, 12)):
    """A wing: rows of feathers hanging from the bone, root first. `ang` and `length` are pairs, at the root and at the tip."""
    ps = sample(bone, n=24)
    for pig, f in rows:
        for i in range(n):
            t = 1-i/(n-1)
            p = ps[int(t*(len(ps)-1))]
            a = ang[0]+(ang[1]-ang[0])*t
            L = (length[0]+(length[1]-length[0])*t)*f*(1 if f < .9 else .94+.06*math.cos(i*2.1))
            feather(S, p, pol(*p, L, a), w*(.7+.3*f), pig, 3.4, -L*.05)
    S.limb(bone, edge_w, edge, 4.4, 'se')


# ---------- hands that rulers need ----------
def hand_laid(S, x, y, k=1, rot=0, flip=False):
    """hand laid flat on something, wrist at the origin, fingers to the left"""
    with S.at(x, y, k, rot, flip):
        S.fill([(6, -13, 'c'), (-14, -17), (-34, -14), (-56, -9), (-60, -3), (-52, 2), (-56, 8), (-46, 13), (-20, 17),
                (6, 12, 'c')], 'flesh', 3.6)
        S.line([(-30, -5), (-44, -4), (-54, -3)], 2.4)
        S.line([(-28, 4), (-40, 6), (-52, 7)], 2.4)
        finger(S, [(-6, -10), (-18, -20), (-32, -22)], 10, 3)


def hand_blessing(S, x, y, k=1, rot=0, flip=False):
    """palm to the viewer, two fingers raised and two bent, wrist at the origin below"""
    with S.at(x, y, k, rot, flip):
        for a, b in (((-3, -38), (-6, -78)), ((-13, -36), (-20, -70))):
            finger(S, [a, between(a, b, .5), b], 12, 3.2)
        S.fill([(-12, 4, 'c'), (-20, -18), (-21, -36), (-10, -42), (4, -42), (18, -36), (19, -20), (13, 4, 'c')], 'flesh', 3.6)
        for a, b in (((8, -42), (7, -20)), ((17, -38), (16, -18))):
            finger(S, [a, between(a, b, .5), b], 11.5, 3.2)
        finger(S, [(-17, -10), (-6, -20), (7, -22)], 11.5, 3.2)
        S.line([(-10, -2), (0, -5), (9, -2)], 2.4)
