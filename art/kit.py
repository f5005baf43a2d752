# SPDX-License-Identifier: GPL-3.0-or-later
"""Drawing kit: a scene is a display list of shapes, brush lines and hatches; renderers turn it into layers."""
import math, random

# ---------- geometry ----------
def _cr(p0, p1, p2, p3, k=1/6):
    return ((p1[0]+(p2[0]-p0[0])*k, p1[1]+(p2[1]-p0[1])*k),
            (p2[0]-(p3[0]-p1[0])*k, p2[1]-(p3[1]-p1[1])*k), p2[:2])

def _runs(pts, closed):
    """split a point list at corner points (x, y, 'c') into smooth runs"""
    n = len(pts); corner = [len(p) > 2 for p in pts]
    if closed:
        if not any(corner): return [('loop', pts)]
        s = corner.index(True); pts = pts[s:]+pts[:s]+[pts[s]]
    corner = [len(p) > 2 for p in pts]
    out, cur = [], [pts[0]]
    for p, c in list(zip(pts, corner))[1:]:
        cur.append(p)
        if c: out.append(('run', cur)); cur = [p]
    if len(cur) > 1: out.append(('run', cur))
    return out

def segs(pts, closed=False):
    """cubic segments through pts; returns (start, [(c1,c2,p)...])"""
    res, start = [], None
    for kind, r in _runs(list(pts), closed):
        n = len(r)
        if kind == 'loop':
            start = r[0]
            for i in range(n): res.append(_cr(r[i-1], r[i], r[(i+1) % n], r[(i+2) % n]))
        else:
            if start is None: start = r[0]
            for i in range(n-1):
                a = r[i-1] if i else r[0]; d = r[i+2] if i+2 < n else r[-1]
                res.append(_cr(a, r[i], r[i+1], d))
    return start, res

def path(pts, closed=True):
    s, ss = segs(pts, closed)
    d = f'M{s[0]:.1f} {s[1]:.1f}'+''.join('C'+' '.join(f'{v[0]:.1f} {v[1]:.1f}' for v in g) for g in ss)
    return d+('Z' if closed else '')

def poly(pts, closed=True):
    return 'M'+'L'.join(f'{p[0]:.1f} {p[1]:.1f}' for p in pts)+('Z' if closed else '')

def sample(pts, closed=False, n=10):
    s, ss = segs(pts, closed); out = [s[:2]]; p = s
    for c1, c2, q in ss:
        for i in range(1, n+1):
            t = i/n; u = 1-t
            out.append((u**3*p[0]+3*u*u*t*c1[0]+3*u*t*t*c2[0]+t**3*q[0],
                        u**3*p[1]+3*u*u*t*c1[1]+3*u*t*t*c2[1]+t**3*q[1]))
        p = q
    return out

def normals(ps):
    ns = []
    for i in range(len(ps)):
        a = ps[max(0, i-1)]; b = ps[min(len(ps)-1, i+1)]
        dx, dy = b[0]-a[0], b[1]-a[1]; L = math.hypot(dx, dy) or 1
        ns.append((-dy/L, dx/L))
    return ns

def ribbon(pts, width, n=10, caps=''):
    """variable width outline: width is a function of t in 0..1, or a list of widths at the points"""
    ps = sample(pts, n=n); ns = normals(ps); m = len(ps)-1
    if isinstance(width, (list, tuple)):
        ws = width
        def width(t):
            x = t*(len(ws)-1); i = min(int(x), len(ws)-2); f = x-i; f = f*f*(3-2*f)
            return ws[i]*(1-f)+ws[i+1]*f
    L = [(p[0]+q[0]*width(i/m)/2, p[1]+q[1]*width(i/m)/2) for i, (p, q) in enumerate(zip(ps, ns))]
    R = [(p[0]-q[0]*width(i/m)/2, p[1]-q[1]*width(i/m)/2) for i, (p, q) in enumerate(zip(ps, ns))]
    def cap(i, sg):
        p, q, h = ps[i], ns[i], width(1 if i else 0)/2; tx, ty = q[1]*sg, -q[0]*sg
        return [(p[0]+q[0]*h*math.cos(a)*sg+tx*h*math.sin(a)*.8, p[1]+q[1]*h*math.cos(a)*sg+ty*h*math.sin(a)*.8) for a in (k*math.pi/9 for k in range(1, 9))]
    return L+(cap(len(ps)-1, 1) if 'e' in caps else [])+R[::-1]+(cap(0, -1) if 's' in caps else [])

PROF = {'both': lambda t: max(.12, math.sin(math.pi*t)**.7), 'end': lambda t: max(.1, (1-t)**.8),
        'start': lambda t: max(.1, t**.8), 'flat': lambda t: 1.0}

def circ(cx, cy, r, ry=None):
    ry = ry or r
    return f'M{cx-r:.1f} {cy:.1f}A{r} {ry} 0 1 1 {cx+r:.1f} {cy:.1f}A{r} {ry} 0 1 1 {cx-r:.1f} {cy:.1f}Z'

def rect(x, y, w, h, r=0):
    if not r: return f'M{x} {y}h{w}v{h}h{-w}Z'
    return f'M{x+r} {y}h{w-2*r}q{r} 0 {r} {r}v{h-2*r}q0 {r} {-r} {r}h{-(w-2*r)}q{-r} 0 {-r} {-r}v{-(h-2*r)}q0 {-r} {r} {-r}Z'

def pol(cx, cy, r, deg): a = math.radians(deg); return (cx+r*math.cos(a), cy+r*math.sin(a))

# ---------- display list ----------
class Scene:
    def __init__(s, seed=1): s.items = []; s.xf = ['']; s.clips = [None]; s.rnd = random.Random(seed); s.inv = False
    def add(s, **k): k['inv'] = s.inv; k['xf'] = s.xf[-1]; k['clip'] = s.clips[-1]; s.items.append(k); return k.get('d')
    # context
    def at(s, x=0, y=0, k=1, rot=0, flip=False):
        t = f'translate({x} {y})'+(f' rotate({rot})' if rot else '')+(f' scale({-k if flip else k} {k})' if k != 1 or flip else '')
        return _X(s, (s.xf[-1]+' '+t).strip(), None)
    def clip(s, d): return _X(s, s.xf[-1], (s.xf[-1], d, s.clips[-1]))
    # marks
    def fill(s, d, pig, w=5): return s.add(k='fill', d=d if isinstance(d, str) else path(d), pig=pig, w=w)
    def wash(s, d, pig, o=1, blur=0): s.add(k='wash', d=d if isinstance(d, str) else path(d), pig=pig, o=o, blur=blur)
    def line(s, pts, w=4, prof='both', k='line', n=8):
        f = PROF[prof]; s.add(k=k, d=poly(ribbon(pts, lambda t: w*f(t), n)))
    def stroke(s, d, w=4, k='stroke'): s.add(k=k, d=d if isinstance(d, str) else path(d, False), w=w)
    def dot(s, x, y, r=3, k='line'): s.add(k=k, d=circ(x, y, r))
    def limb(s, pts, widths, pig, w=5, caps=''): return s.fill(poly(ribbon(pts, widths, caps=caps)), pig, w)
    def comb(s, pts, ang, length, n=14, w=5, jitter=.25, k='hatch', curve=0):
        """woodcut wedge hatching: strokes starting on the curve pts, going in direction ang"""
        ps = sample(pts, n=20); a = math.radians(ang)
        for i in range(n):
            t = (i+.5)/n; p = ps[int(t*(len(ps)-1))]
            L = (length(t) if callable(length) else length)*(1+s.rnd.uniform(-jitter, jitter))
            q = (p[0]+math.cos(a)*L, p[1]+math.sin(a)*L)
            m = ((p[0]+q[0])/2-math.sin(a)*curve*L, (p[1]+q[1])/2+math.cos(a)*curve*L)
            s.add(k=k, d=poly(ribbon([p, m, q], lambda t: w*(1-t)**.8+.3, 6)))
    def hatch(s, x0, y0, x1, y1, step=9, w=3, ang=0, k='hatch'):
        """parallel hatch over a box (use inside clip())"""
        cx, cy = (x0+x1)/2, (y0+y1)/2; R = math.hypot(x1-x0, y1-y0)/2; a = math.radians(ang)
        y = -R
        while y < R:
            j = s.rnd.uniform(-.12, .12)*step
            p = [(cx+u*math.cos(a)-(y+j)*math.sin(a), cy+u*math.sin(a)+(y+j)*math.cos(a)) for u in (-R, 0, R)]
            s.add(k=k, d=poly(ribbon(p, lambda t: w, 3))); y += step
    def text(s, x, y, t, size, font, anchor='middle', k='text', sp=0): s.add(k=k, t=t, x=x, y=y, size=size, font=font, anchor=anchor, sp=sp)

class _X:
    def __init__(s, sc, xf, clip): s.sc, s.xf, s.clip = sc, xf, clip
    def __enter__(s): s.sc.xf.append(s.xf); s.sc.clips.append(s.clip or s.sc.clips[-1]); return s.sc
    def __exit__(s, *a): s.sc.xf.pop(); s.sc.clips.pop()

# ---------- layer writers ----------
class Layer:
    """writes a display list as SVG; pen(item) -> attribute string or None"""
    def __init__(s, W=600, H=1080, bg=None): s.W, s.H, s.b, s.defs, s.n, s.seen = W, H, [], [], 0, {}; s.bg = bg
    def clipid(s, c):
        if c in s.seen: return s.seen[c]
        xf, d, up = c; s.n += 1; i = f'k{s.n}'; s.seen[c] = i
        u = f' clip-path="url(#{s.clipid(up)})"' if up else ''
        s.defs.append(f'<clipPath id="{i}"{u}><path d="{d}" transform="{xf}"/></clipPath>'); return i
    def put(s, items, pen):
        for it in items:
            a = pen(it)
            if a is None: continue
            for one in (a if isinstance(a, list) else [a]):
                xf = f' transform="{it["xf"]}"' if it['xf'] else ''
                if it['k'] in ('text', 'gtext'):
                    e = f'<text x="{it["x"]}" y="{it["y"]}" font-family="{it["font"]}" font-size="{it["size"]}" text-anchor="{it["anchor"]}" letter-spacing="{it["sp"]}"{xf} {one}>{it["t"]}</text>'
                else: e = f'<path d="{it["d"]}"{xf} {one}/>'
                if it['clip']: e = f'<g clip-path="url(#{s.clipid(it["clip"])})">{e}</g>'
                s.b.append(e)
    def svg(s, extra=''):
        bg = f'<rect width="{s.W}" height="{s.H}" fill="{s.bg}"/>' if s.bg else ''
        return f'<svg xmlns="http://www.w3.org/2000/svg" width="{s.W}" height="{s.H}" viewBox="0 0 {s.W} {s.H}"><defs>{"".join(s.defs)}{extra}</defs>{bg}{"".join(s.b)}</svg>'
