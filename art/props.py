# SPDX-License-Identifier: GPL-3.0-or-later
"""Things: plants and ground, coins, cups, dice, windows, folds of cloth and the face of the sun."""
from figures import eye
from kit import circ, poly, pol, rect, ribbon

__all__ = ['coin', 'cup', 'die', 'fold', 'ground', 'sunface', 'tuft', 'window']


def tuft(S, x, y, k=1, n=5, pig='green'):
    """Tuft of n broad blades, about 70 units wide and 46 high; the origin is where it springs from the ground."""
    with S.at(x, y, k):
        for i in range(n):
            lean = (i - (n - 1) / 2) / ((n - 1) / 2)
            height = 46 - 16 * abs(lean)
            S.fill(poly(ribbon([(lean * 10, 2), (lean * 17, -height * .55), (lean * 34, -height)],
                               lambda t: 12 * (1 - t) ** .7 * (.55 + .9 * t) + .6)), pig, 2.6)
        S.line([(-34, 3), (-8, 0), (12, 2), (36, 1)], 3.4)


def ground(S, y, pts=None, pig='earth'):
    """Earth that fills the lower part of the card, below the curve through pts or, without these, gently rolling about
    y."""
    pts = pts or [(-10, y + 4), (90, y - 6), (200, y + 3), (330, y - 5), (450, y + 4), (610, y - 4)]
    S.fill(pts[:-1] + [pts[-1] + ('c',), (610, y + 260, 'c'), (-10, y + 260, 'c')], pig, 4)


def coin(S, x, y, r, pig='gold', lw=4):
    """Coin of the radius r with an eight-rayed star."""
    S.fill(circ(x, y, r), pig, lw)
    S.stroke(circ(x, y, r * .74), lw * .5)
    for i in range(8):
        S.line([pol(x, y, r * .16, i * 45), pol(x, y, r * .6, i * 45)], r * .17)


def cup(S, x, y, k=1, pig='gold', lw=4):
    """Chalice of wine, 54 units wide and 76 high; the origin is under its foot."""
    with S.at(x, y, k):
        S.fill([(-24, 0, 'c'), (-20, -9), (-6, -15), (6, -15), (20, -9), (24, 0, 'c'), (0, 5)], pig, lw)
        S.fill(circ(0, -23, 9, 8), pig, lw)
        S.fill([(-26, -76, 'c'), (-27, -54), (-18, -36), (0, -30), (18, -36), (27, -54), (26, -76, 'c'), (0, -70)], pig, lw)
        S.fill(circ(0, -76, 26, 6.5), 'red', lw * .8)
        for i in (-1, 0, 1):
            S.line([(i * 12, -38 + abs(i) * 4), (i * 15, -52), (i * 14, -66)], 2.4)
        S.line([(-22, -58), (0, -53), (22, -58)], 2.4)


def die(S, x, y, r=15, rot=0, lw=3):
    """Die seen from above its front edge, about 2 r in size; its front shows three."""
    with S.at(x, y, 1, rot):
        front = [(-r, -r * .5), (r * .3, -r * .5), (r * .3, r * .8), (-r, r * .8)]
        top = [(-r, -r * .5), (-r * .5, -r), (r * .8, -r), (r * .3, -r * .5)]
        side = [(r * .3, -r * .5), (r * .8, -r), (r * .8, r * .3), (r * .3, r * .8)]
        S.fill(poly(front), 'white', lw)
        S.fill(poly(top), 'white', lw)
        S.fill(poly(side), 'stone', lw)
        for dx, dy in ((-.68, -.18), (0, .48), (-.34, .15)):
            S.dot(dx * r, dy * r, 2.2)


def fold(S, pts, w=5):
    """Fold of cloth: a brush line that runs out at its end."""
    S.line(pts, w, 'end')


def sunface(S, x, y, k):
    """Golden disc of the radius 100 with the face of the sun, seen from the front."""
    with S.at(x, y, k):
        S.fill(circ(0, 0, 100), 'gold', 5)
        S.stroke(circ(0, 0, 91), 2.4)
        for side in (-1, 1):
            S.wash(circ(side * 46, 26, 20), 'blush', .6)
        for side in (-1, 1):
            eye(S, 36 * side, -12, 1.75, 1, 0, .9)
            S.line([(side * 64, -24), (side * 40, -44), (side * 12, -32)], 6)
        # nose
        S.line([(-12, -32), (-9, -8), (-15, 18), (-14, 29), (0, 34)], 4.6)
        S.line([(0, 34), (12, 31), (15, 21)], 4)
        # mouth and chin
        S.wash([(-28, 54), (-9, 47), (0, 50), (9, 47), (28, 54), (10, 66), (-10, 66)], 'lip', .9)
        S.line([(-34, 50), (-13, 55), (0, 52.5), (13, 55), (34, 50)], 4.6)
        S.line([(-12, 70), (0, 72), (12, 70)], 3)
        S.line([(-10, 82), (0, 85), (10, 82)], 2.6)
        S.comb([(88, -20), (90, 10), (72, 56), (38, 84)], 200, 15, 16, 4)
        S.line([(-26, -62), (0, -68), (26, -62)], 2.6)


def window(S, x, y, k=1):
    """Dark window with a pointed arch in a golden frame, 54 units wide and 84 high."""
    with S.at(x, y, k):
        S.fill([(-27, 40, 'c'), (-27, -16), (0, -44), (27, -16), (27, 40, 'c')], 'gold', 4)
        S.fill([(-17, 40, 'c'), (-17, -12), (0, -33), (17, -12), (17, 40, 'c')], 'dark', 3.5)
        S.fill(rect(-34, 38, 68, 13), 'gold', 4)
