# SPDX-License-Identifier: GPL-3.0-or-later
"""figure kit: faces, hair, hands, crowns; every part is drawn around its own origin"""
from kit import *

def eye(S, x, y, k=1, far=1, look=0, w=1):
    with S.at(x, y, k):
        f = far
        S.fill(path([(-10*f, 1, 'c'), (-3*f, -5), (4*f, -5), (10*f, 0.5, 'c'), (3*f, 4.5), (-4*f, 4.5)]), 'white', 0)
        S.fill(circ(look, -0.4, 4.3), 'iris', 0)
        S.dot(look, -0.4, 3.4, k='line'); S.wash(circ(look-1.2, -2, 1.2), 'white')
        S.line([(-12*f, 2.5), (-4*f, -5.5), (4*f, -5.8), (12*f, 1)], 3.4*w)
        S.line([(-7*f, 4.2), (0, 5.6), (7*f, 3.8)], 1.7*w)
        S.line([(-11*f, -5.5), (-2*f, -10), (10*f, -6)], 1.6*w)

def face(S, x, y, k=1, turn=0, flip=False, sex='m', lw=4, skin='flesh', mood=0, look=None, age=0):
    """turn 0 front .. 1 three-quarter to the viewer's left (flip for right)"""
    t = -turn*.8
    with S.at(x, y, k, flip=flip):
        l = 36-5*turn; r = 36+1*turn; jaw = 27 if sex == 'f' else 30
        S.fill(path([(-l, -22), (-l-1+2*turn, 4), (-jaw-2+1*turn, 26), (-15+5*t, 45), (4*t, 51), (15+4*t, 45), (jaw+2+2*t, 27), (r, 4), (r, -24), (24, -46), (0, -54), (-24, -46)]), skin, lw)
        out = path([(-l, -22), (-l-1+2*turn, 4), (-jaw-2+1*turn, 26), (-15+5*t, 45), (4*t, 51), (15+4*t, 45), (jaw+2+2*t, 27), (r, 4), (r, -24), (24, -46), (0, -54), (-24, -46)])
        with S.clip(out): _features(S, turn, t, sex, mood, look, age, l, r)

def _features(S, turn, t, sex, mood, look, age, l, r):
    if 1:
        S.wash(circ(-19+9*t, 17, 9.5, 8), 'blush', .55, 3); S.wash(circ(20+5*t, 17, 10, 8), 'blush', .55, 3)
        lk = (-2.2*turn) if look is None else look
        eye(S, -17+10*t, -5, 1, 1-.22*turn, lk); eye(S, 17+6*t, -5, 1, 1, lk)
        b = 3.6 if sex == 'm' else 2.6
        S.line([(-30+10*t, -13), (-20+10*t, -20+mood), (-7+10*t, -16+2*mood)], b)
        S.line([(31+4*t, -13), (20+5*t, -20+mood), (6+7*t, -16+2*mood)], b)
        # nose: one line from the brow, in the old manner
        n = 13*t
        S.line([(-6+10*t, -15), (-5+n, -2), (-8+n*1.15, 12), (-8+n*1.15, 17), (0+n, 20.5)], 3, 'both')
        S.line([(0+n, 20.5), (6+n, 19), (7+n*.8, 14)], 2.4)
        m = 11*t; my = 33
        S.wash(path([(-11+m, my), (-4+m, my-4.5), (0+m, my-3), (4+m, my-4.5), (11+m, my), (4+m, my+5.5), (-4+m, my+5.5)]), 'lip', .9)
        S.line([(-13+m, my-1.5), (-5+m, my+.6), (0+m, my-.4), (5+m, my+.6), (13+m, my-1.5)], 2.8)
        S.line([(-5+m, my+7.2), (0+m, my+8), (5+m, my+7.2)], 1.8)
        S.line([(-5+m, 43), (0+m, 45), (5+m, 43)], 1.4)
        if turn > .3:  # shade on the far cheek edge is left to the light side; near jaw gets wedges
            S.comb([(r-1, -6), (r-4, 14), (26+t*2, 32), (14, 45)], 196, 9, 9, 2.4)
        else: S.comb([(35, -2), (31, 22), (16, 44)], 190, 7, 8, 2.2)
        if age: 
            S.line([(-16, -30), (0, -33), (16, -30)], 1.6); S.line([(-14, -37), (0, -40), (14, -37)], 1.4)

def curls(S, pts, r, pig='hair', lw=3.5):
    """mass of curls along a line: ball, spiral line"""
    for i, (x, y) in enumerate(pts):
        S.fill(circ(x, y, r), pig, lw)
        sg = 1 if i % 2 else -1
        S.line([(x-r*.6*sg, y+r*.25), (x-r*.2*sg, y-r*.55), (x+r*.5*sg, y-r*.2), (x+r*.3*sg, y+r*.4), (x-r*.1*sg, y+r*.25)], 2.4, 'end')

def locks(S, edge_pairs, n, w=2.2, k='line'):
    """strand lines between two guide curves (same point count)"""
    a, b = edge_pairs
    for i in range(1, n):
        f = i/n
        S.line([(p[0]*(1-f)+q[0]*f, p[1]*(1-f)+q[1]*f) for p, q in zip(a, b)], w)

def finger(S, pts, w=12, lw=3, skin='flesh'):
    ps = sample(pts, n=6)
    S.fill(poly(_cap(ps, w)), skin, lw)

def _cap(ps, w, tip=.82):
    ns = normals(ps); m = len(ps)-1
    ws = [w*(1-(1-tip)*i/m)/2 for i in range(m+1)]
    L = [(p[0]+q[0]*h, p[1]+q[1]*h) for p, q, h in zip(ps, ns, ws)]
    R = [(p[0]-q[0]*h, p[1]-q[1]*h) for p, q, h in zip(ps, ns, ws)]
    e = ps[-1]; nx, ny = ns[-1]; h = ws[-1]; tx, ty = ny, -nx
    cap = [(e[0]+nx*h*math.cos(a)+tx*h*math.sin(a), e[1]+ny*h*math.cos(a)+ty*h*math.sin(a)) for a in (math.radians(d) for d in (30, 60, 90, 120, 150))]
    return L+cap+R[::-1]

def hand_fist(S, x, y, k=1, rot=0, flip=False, lw=3.2, skin='flesh', rod=None):
    """fist closed round an upright rod through the origin; wrist at the right, fingers wrap to the left. rod() draws the rod between palm and fingers"""
    with S.at(x, y, k, rot, flip):
        S.fill(path([(34, -13, 'c'), (12, -20), (-4, -22), (-10, -12), (-10, 16), (-2, 22), (14, 19), (34, 12, 'c')]), skin, lw)
    if rod: rod()
    with S.at(x, y, k, rot, flip):
        for i, yy in enumerate((-15, -5, 5, 14)):
            finger(S, [(14, yy-1), (2, yy-1.5), (-11+(1 if i in (0, 3) else 0)+i*.6, yy)], 11.5-(i == 3)*1.5, lw, skin)
        finger(S, [(26, -9), (14, -16), (0, -23)], 11, lw, skin)
        S.line([(-2, -25.5), (1.5, -24), (2, -20.5)], 1.4)

def hand_pinch(S, x, y, k=1, rot=0, flip=False, lw=3.2, skin='flesh'):
    """hand reaching to the left, thumb and forefinger meeting at the origin; wrist at right"""
    with S.at(x, y, k, rot, flip):
        finger(S, [(44, 10), (26, 20), (12, 19)], 11, lw, skin)
        finger(S, [(44, 6), (24, 14), (8, 13)], 11, lw, skin)
        S.fill(path([(66, -13, 'c'), (46, -17), (30, -14), (22, -2), (26, 12), (42, 16), (66, 12, 'c')]), skin, lw)
        finger(S, [(36, 3), (18, 8), (3, 6)], 11, lw, skin)
        finger(S, [(36, -9), (18, -14), (6, -8), (1, -1)], 11, lw, skin)
        S.line([(28, -1), (34, 3), (42, 3)], 1.8)

def hand_open(S, x, y, k=1, rot=0, flip=False, lw=3.2, skin='flesh'):
    """open palm, fingers up, wrist at the origin below"""
    with S.at(x, y, k, rot, flip):
        for a, b in (((-12, -36), (-17, -62)), ((-4, -40), (-6, -70)), ((5, -40), (5, -69)), ((13, -36), (16, -61))):
            finger(S, [a, ((a[0]+b[0])/2, (a[1]+b[1])/2), b], 10.5, lw, skin)
        S.fill(path([(-11, 4, 'c'), (-17, -18), (-19, -36), (-10, -43), (4, -44), (17, -40), (18, -24), (12, 4, 'c')]), skin, lw)
        finger(S, [(12, -12), (22, -24), (29, -40)], 11.5, lw, skin)
        S.wash(path([(8, -2), (4, -18), (14, -28), (17, -22), (13, -8)]), skin)
        S.line([(4, -10), (6, -22), (14, -30)], 2); S.line([(-13, -28), (-3, -32), (8, -35)], 1.8); S.line([(-14, -22), (-4, -24), (6, -28)], 1.6)

def crown(S, x, y, k=1, points=5, pig='gold', lw=4, w=46, h=34):
    with S.at(x, y, k):
        n = points; top = []
        for i in range(n):
            px = -w+2*w*i/(n-1)
            top += [(px*1.12, -h-(6 if i == n//2 else 0), 'c')]
            if i < n-1: top += [(px+w/(n-1), -h*.38, 'c')]
        S.fill(path([(-w*.86, 6, 'c')]+top+[(w*.86, 6, 'c'), (0, 12)]), pig, lw)
        for i in range(n):
            px = (-w+2*w*i/(n-1))*1.12
            S.fill(circ(px, -h-4-(6 if i == n//2 else 0), 5), 'pearl', 3)
        S.fill(path([(-w*.88, 4, 'c'), (0, 10), (w*.88, 4, 'c'), (w*.86, -8, 'c'), (0, -2), (-w*.86, -8, 'c')]), pig, 3)
        for i, c in zip((-2, -1, 0, 1, 2), ('blue', 'red', 'green', 'red', 'blue')):
            S.fill(circ(i*w*.36, 2.6-abs(i)*1.5+(.4 if not i else 0), 3.6), c, 2)

if __name__ == '__main__':
    S = Scene(); 
    for i, t in enumerate((0, .5, 1)):
        face(S, 100+200*i, 110, 1.6, t, sex='fm'[i % 2])
        face(S, 100+200*i, 300, 1.0, t, flip=True, sex='mf'[i % 2])
    hand_fist(S, 100, 460, 1.8, rod=lambda: S.limb([(100, 380), (100, 540)], [14, 14], 'gold'))
    hand_pinch(S, 260, 470, 1.8); hand_open(S, 470, 530, 1.6)
    crown(S, 120, 690, 1.5); curls(S, [(300, 660), (330, 650), (360, 655), (315, 690), (345, 690)], 20)
    L = Layer(600, 760, '#f2e6c8')
    P = dict(flesh='#f0c9a2', white='#fff', iris='#3a6aa0', blush='#d9603a', lip='#b8322a', gold='#e0b040', pearl='#fff', blue='#2a5c9c', red='#b02820', green='#3c7a3c', hair='#e0b040')
    def pen(i):
        if i['k'] == 'fill': return f'fill="{P[i["pig"]]}" stroke="#1a1210" stroke-width="{i["w"]}" stroke-linejoin="round"'
        if i['k'] == 'wash': return f'fill="{P[i["pig"]]}" opacity="{i["o"]}"'
        return 'fill="#1a1210"'
    L.put(S.items, pen); open('kit.svg', 'w').write(L.svg())
