# SPDX-License-Identifier: GPL-3.0-or-later
"""Parts of figures: faces, hair, hands, crowns.

Every part is drawn around its own origin; x and y place it, k scales it, rot turns it and flip mirrors it. A face is
about 100 units high, a hand about 70 long.
"""
import math

from kit import circ, normals, path, poly, sample

__all__ = ['crown', 'curls', 'eye', 'face', 'finger', 'hand_fist', 'hand_open', 'hand_pinch', 'locks']

FINGERTIP = .82                 # width of a finger at its tip, as a share of that at its root


# ---------- faces ----------
def eye(S, x, y, k=1, far=1, look=0, w=1):
    """Almond eye, about 24 units wide. far narrows the farther eye of a turned head, look moves the iris to the right,
    w scales the width of the lines."""
    with S.at(x, y, k):
        S.fill([(-10 * far, 1, 'c'), (-3 * far, -5), (4 * far, -5), (10 * far, .5, 'c'), (3 * far, 4.5), (-4 * far, 4.5)],
               'white', 0)
        S.fill(circ(look, -.4, 4.3), 'iris', 0)
        S.dot(look, -.4, 3.4)
        S.wash(circ(look - 1.2, -2, 1.2), 'white')
        S.line([(-12 * far, 2.5), (-4 * far, -5.5), (4 * far, -5.8), (12 * far, 1)], 3.4 * w)
        S.line([(-7 * far, 4.2), (0, 5.6), (7 * far, 3.8)], 1.7 * w)
        S.line([(-11 * far, -5.5), (-2 * far, -10), (10 * far, -6)], 1.6 * w)


def face(S, x, y, k=1, turn=0, flip=False, sex='m', lw=4, mood=0, look=None, age=0):
    """Face without hair. turn goes from 0, frontal, to 1, three quarters to the viewer's left (flip for the right).
    mood lowers the brows by so many units and their inner ends by twice that: sternness, or dread if it is negative.
    look moves the eyes, which by default follow the turn; age adds wrinkles to the brow."""
    t = -turn * .8                  # how far the features slide towards the turn
    left, right = 36 - 5 * turn, 36 + 1 * turn
    jaw = 27 if sex == 'f' else 30
    with S.at(x, y, k, flip=flip):
        outline = path([(-left, -22), (-left - 1 + 2 * turn, 4), (-jaw - 2 + 1 * turn, 26), (-15 + 5 * t, 45), (4 * t, 51),
                        (15 + 4 * t, 45), (jaw + 2 + 2 * t, 27), (right, 4), (right, -24), (24, -46), (0, -54), (-24, -46)])
        S.fill(outline, 'flesh', lw)
        with S.clip(outline):
            _blush(S, t)
            _eyes_and_brows(S, turn, t, sex, mood, look)
            _nose(S, t)
            _mouth_and_chin(S, t)
            _cheek_shade(S, turn, t, right)
            if age:
                S.line([(-16, -30), (0, -33), (16, -30)], 1.6)
                S.line([(-14, -37), (0, -40), (14, -37)], 1.4)


def _blush(S, t):
    S.wash(circ(-19 + 9 * t, 17, 9.5, 8), 'blush', .55)
    S.wash(circ(20 + 5 * t, 17, 10, 8), 'blush', .55)


def _eyes_and_brows(S, turn, t, sex, mood, look):
    if look is None:
        look = -2.2 * turn
    eye(S, -17 + 10 * t, -5, 1, 1 - .22 * turn, look)
    eye(S, 17 + 6 * t, -5, 1, 1, look)
    brow = 3.6 if sex == 'm' else 2.6
    S.line([(-30 + 10 * t, -13), (-20 + 10 * t, -20 + mood), (-7 + 10 * t, -16 + 2 * mood)], brow)
    S.line([(31 + 4 * t, -13), (20 + 5 * t, -20 + mood), (6 + 7 * t, -16 + 2 * mood)], brow)


def _nose(S, t):
    """One line from the brow, in the old manner, and the wing of the nose."""
    n = 13 * t
    S.line([(-6 + 10 * t, -15), (-5 + n, -2), (-8 + n * 1.15, 12), (-8 + n * 1.15, 17), (0 + n, 20.5)], 3)
    S.line([(0 + n, 20.5), (6 + n, 19), (7 + n * .8, 14)], 2.4)


def _mouth_and_chin(S, t):
    m, y = 11 * t, 33
    S.wash([(-11 + m, y), (-4 + m, y - 4.5), (0 + m, y - 3), (4 + m, y - 4.5), (11 + m, y), (4 + m, y + 5.5), (-4 + m, y + 5.5)],
           'lip', .9)
    S.line([(-13 + m, y - 1.5), (-5 + m, y + .6), (0 + m, y - .4), (5 + m, y + .6), (13 + m, y - 1.5)], 2.8)
    S.line([(-5 + m, y + 7.2), (0 + m, y + 8), (5 + m, y + 7.2)], 1.8)
    S.line([(-5 + m, 43), (0 + m, 45), (5 + m, 43)], 1.4)


def _cheek_shade(S, turn, t, right):
    """The light comes from the upper left: wedges along the jaw on the right, longer ones on a turned head."""
    if turn > .3:
        S.comb([(right - 1, -6), (right - 4, 14), (26 + t * 2, 32), (14, 45)], 196, 9, 9, 2.4)
    else:
        S.comb([(35, -2), (31, 22), (16, 44)], 190, 7, 8, 2.2)


# ---------- hair ----------
def curls(S, pts, r, pig='hair', lw=3.5):
    """Mass of curls: at each of the points a ball of the radius r with a spiral line, turned left and right by
    turns."""
    for i, (x, y) in enumerate(pts):
        S.fill(circ(x, y, r), pig, lw)
        side = 1 if i % 2 else -1
        S.line([(x - r * .6 * side, y + r * .25), (x - r * .2 * side, y - r * .55), (x + r * .5 * side, y - r * .2),
                (x + r * .3 * side, y + r * .4), (x - r * .1 * side, y + r * .25)], 2.4, 'end')


def locks(S, edges, n, w=2.2):
    """Strands that part the space between two curves of as many points each into n."""
    a, b = edges
    for i in range(1, n):
        f = i / n
        S.line([(p[0] * (1 - f) + q[0] * f, p[1] * (1 - f) + q[1] * f) for p, q in zip(a, b)], w)


# ---------- hands ----------
def finger(S, pts, w=12, lw=3):
    """Finger along a curve from its root, where it is w wide, to its round tip."""
    places = sample(pts, n=6)
    across = normals(places)
    last = len(places) - 1
    halves = [w * (1 - (1 - FINGERTIP) * i / last) / 2 for i in range(last + 1)]
    right = [(p[0] + q[0] * h, p[1] + q[1] * h) for p, q, h in zip(places, across, halves)]
    left = [(p[0] - q[0] * h, p[1] - q[1] * h) for p, q, h in zip(places, across, halves)]
    (ex, ey), (nx, ny), h = places[-1], across[-1], halves[-1]
    tip = [(ex + nx * h * math.cos(a) + ny * h * math.sin(a), ey + ny * h * math.cos(a) - nx * h * math.sin(a))
           for a in map(math.radians, (30, 60, 90, 120, 150))]
    S.fill(poly(right + tip + left[::-1]), 'flesh', lw)


def hand_fist(S, x, y, k=1, rot=0, flip=False, lw=3.2, rod=None):
    """Fist closed round an upright rod through the origin: wrist at the right, fingers wrapped to the left. rod() draws
    what it holds, between palm and fingers, in the coordinates of the scene."""
    with S.at(x, y, k, rot, flip):
        S.fill([(34, -13, 'c'), (12, -20), (-4, -22), (-10, -12), (-10, 16), (-2, 22), (14, 19), (34, 12, 'c')], 'flesh', lw)
    if rod:
        rod()
    with S.at(x, y, k, rot, flip):
        for i, knuckle in enumerate((-15, -5, 5, 14)):
            outermost = i in (0, 3)
            finger(S, [(14, knuckle - 1), (2, knuckle - 1.5), (-11 + (1 if outermost else 0) + i * .6, knuckle)],
                   10 if i == 3 else 11.5, lw)
        finger(S, [(26, -9), (14, -16), (0, -23)], 11, lw)
        S.line([(-2, -25.5), (1.5, -24), (2, -20.5)], 1.4)


def hand_pinch(S, x, y, k=1, rot=0, flip=False, lw=3.2):
    """Hand reaching to the left, thumb and forefinger meeting at the origin; wrist at the right."""
    with S.at(x, y, k, rot, flip):
        finger(S, [(44, 10), (26, 20), (12, 19)], 11, lw)
        finger(S, [(44, 6), (24, 14), (8, 13)], 11, lw)
        S.fill([(66, -13, 'c'), (46, -17), (30, -14), (22, -2), (26, 12), (42, 16), (66, 12, 'c')], 'flesh', lw)
        finger(S, [(36, 3), (18, 8), (3, 6)], 11, lw)
        finger(S, [(36, -9), (18, -14), (6, -8), (1, -1)], 11, lw)
        S.line([(28, -1), (34, 3), (42, 3)], 1.8)


def hand_open(S, x, y, k=1, rot=0, flip=False, lw=3.2):
    """Open palm, fingers up, thumb to the right; the wrist is at the origin."""
    with S.at(x, y, k, rot, flip):
        for root, tip in (((-12, -36), (-17, -62)), ((-4, -40), (-6, -70)), ((5, -40), (5, -69)), ((13, -36), (16, -61))):
            finger(S, [root, ((root[0] + tip[0]) / 2, (root[1] + tip[1]) / 2), tip], 10.5, lw)
        S.fill([(-11, 4, 'c'), (-17, -18), (-19, -36), (-10, -43), (4, -44), (17, -40), (18, -24), (12, 4, 'c')], 'flesh', lw)
        finger(S, [(12, -12), (22, -24), (29, -40)], 11.5, lw)
        S.wash([(8, -2), (4, -18), (14, -28), (17, -22), (13, -8)], 'flesh')
        S.line([(4, -10), (6, -22), (14, -30)], 2)
        S.line([(-13, -28), (-3, -32), (8, -35)], 1.8)
        S.line([(-14, -22), (-4, -24), (6, -28)], 1.6)


# ---------- crowns ----------
def crown(S, x, y, k=1, points=5, pig='gold', lw=4, w=46, h=34):
    """Open crown with pearls on its points and jewels on its rim. The origin is on the rim; w is half its width, h the
    height of the points, of which the middle one stands out."""
    with S.at(x, y, k):
        across = [-w + 2 * w * i / (points - 1) for i in range(points)]
        lift = [6 if i == points // 2 else 0 for i in range(points)]
        teeth = []
        for i, px in enumerate(across):
            teeth.append((px * 1.12, -h - lift[i], 'c'))
            if i < points - 1:
                teeth.append((px + w / (points - 1), -h * .38, 'c'))
        S.fill([(-w * .86, 6, 'c')] + teeth + [(w * .86, 6, 'c'), (0, 12)], pig, lw)
        for px, up in zip(across, lift):
            S.fill(circ(px * 1.12, -h - 4 - up, 5), 'pearl', 3)
        S.fill([(-w * .88, 4, 'c'), (0, 10), (w * .88, 4, 'c'), (w * .86, -8, 'c'), (0, -2), (-w * .86, -8, 'c')], pig, 3)
        for i, jewel in zip((-2, -1, 0, 1, 2), ('blue', 'red', 'green', 'red', 'blue')):
            S.fill(circ(i * w * .36, 2.6 - abs(i) * 1.5 + (0 if i else .4), 3.6), jewel, 2)
