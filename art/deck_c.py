# SPDX-License-Identifier: GPL-3.0-or-later
"""deck C: gold line engraving on midnight blue; emblematic, axial compositions"""
import sys, importlib, time
from props import *; from fx import *; from glyphs import *
FILLS = dict(night='#0b1238', deep='#070b25', ind='#16205a', glow='#24307a', flesh='#131c52', white='#10184a', gold='#1a2260', red='#141b50', blue='#0e1644', sky='#17235c', hair='#18225c', iris='#050818', pearl='#cfa94e', wood='#10184a', stone='#121a4e', dark='#050818', green='#0e1644', earth='#0a1134', fire='#1d2668', leaf='#e6c36a', bone='#1a2460')
HEB, FONT = 'Stam Ashkenaz CLM', 'Quattrocento'
GOLDC = [(0, '#7a5320'), (.3, '#b9873a'), (.55, '#e3bd66'), (.8, '#f8e6ae'), (1, '#fff8e0')]

# ---- engraver's tools
def radial(S, x, y, f0, f1, n, w=1.6, a0=0, a1=360, prof='end', k='line'):
    for i in range(n):
        a = a0+(a1-a0)*i/n; S.line([pol(x, y, f0(i) if callable(f0) else f0, a), pol(x, y, f1(i) if callable(f1) else f1, a)], w, prof, k)
def ring(S, x, y, r, w=2): S.stroke(circ(x, y, r), w)
def dots(S, x, y, r, n, s=2, a0=0): 
    for i in range(n): S.dot(*pol(x, y, r, a0+360*i/n), s)
def star(S, x, y, r, n=4, q=.22, fill='leaf', a0=-90):
    S.fill(poly([pol(x, y, r if i % 2 == 0 else r*q, a0+i*180/n) for i in range(2*n)]), fill, 0)
def rosette(S, x, y, R, r, n, w=1, m=240):
    """guilloche: n turned epitrochoid lines between radii r and R"""
    for j in range(n):
        ph = 2*math.pi*j/n; p = []
        for i in range(m):
            t = 2*math.pi*i/m; q = (R+r)/2+(R-r)/2*math.sin(12*t+ph); p.append((x+q*math.cos(t), y+q*math.sin(t)))
        S.stroke(poly(p), w)
def stipple(S, inside, n, rmin=.7, rmax=1.9, tries=40):
    """inside(x, y) -> density 0..1 over the card"""
    c = 0
    for _ in range(n*tries):
        x, y = S.rnd.uniform(40, 560), S.rnd.uniform(60, 1000)
        if S.rnd.random() < inside(x, y): S.dot(x, y, S.rnd.uniform(rmin, rmax)); c += 1
        if c >= n: break

def frame_c(num, heb, gl):
    F = Scene(4)
    F.stroke(rect(18, 18, 564, 1044, 26), 2.2); F.stroke(rect(27, 27, 546, 1026, 20), 5); F.stroke(rect(37, 37, 526, 1006, 14), 1.4)
    for x, y, r in ((37, 37, 0), (563, 37, 90), (563, 1043, 180), (37, 1043, 270)):    # corner fans
        with F.at(x, y, 1, r):
            F.fill('M0 0H64A64 64 0 0 1 0 64Z', 'deep', 2.4); F.stroke('M56 0A56 56 0 0 1 0 56', 1.4)
            radial(F, 0, 0, 16, 52, 9, 2.4, 5, 95, 'both'); F.fill('M0 0H15A15 15 0 0 1 0 15Z', 'leaf', 0); dots(F, 0, 0, 60, 28, 1.6, 4)
    # head: letter in a disc, wings of moon phases
    F.fill('M196 37C220 66 236 96 300 96C364 96 380 66 404 37Z', 'deep', 2.4)
    F.fill(circ(300, 66, 43), 'deep', 3); F.stroke(circ(300, 66, 37), 1.2); dots(F, 300, 66, 40, 48, 1)
    F.text(300, 83, heb, 50, HEB)
    for d in (-1, 1):
        for i, (dx, r) in enumerate(((116, 9), (146, 7.5), (172, 6))):
            x, y = 300+d*dx, 60; F.fill(circ(x, y, r), 'deep', 1.6)
            F.add(k='line', d=f'M{x} {y-r}A{r} {r} 0 0 {1 if d > 0 else 0} {x} {y+r}A{r*(1+.5*i)} {r*(1+.5*i)} 0 0 {0 if d > 0 else 1} {x} {y-r}Z')
    # foot: numeral with the glyphs
    F.fill('M150 1043C158 1006 176 984 214 984H386C424 984 442 1006 450 1043Z', 'deep', 2.6); F.stroke('M160 1043C168 1012 184 992 216 992H384C416 992 432 1012 440 1043', 1.3)
    F.text(300, 1031, num, 40, FONT, sp=5)
    n = 24+len(num)*13
    for d in (-1, 1): star(F, 300+d*(n+6), 1018, 9)
    for d in (-1, 1):
        F.fill(circ(300+d*206, 1016, 21), 'deep', 2.4); F.stroke(circ(300+d*206, 1016, 17.5), 1); glyph(F, gl, 300+d*206, 1016, .22, 17)
    return F

def render(m, seed=3, sc=2, frame=None):
    rng = np.random.default_rng(seed); sh = (int(1080*sc), int(600*sc)); yy, xx = np.mgrid[0:sh[0], 0:sh[1]].astype(np.float32)
    S = Scene(seed); m.draw(S); F = (frame or frame_c)(m.NUM, m.HEB, m.GLYPH)
    box = rect(38, 38, 524, 1004, 14)
    def lay(pen):
        l = Layer(); l.b.append(f'<clipPath id="bx"><path d="{box}"/></clipPath><g clip-path="url(#bx)">'); l.put(S.items, pen); l.b.append('</g>'); l.put(F.items, pen); return raster(l.svg(), sc)
    lw = .62
    def p_fill(i):
        if i['k'] == 'fill': return f'fill="{FILLS[i["pig"]]}"'
    def p_line(i):      # white = gold; fills erase
        if i['inv']:        # dark drawing on solid gold
            if i['k'] == 'fill': return f'fill="{"#000" if i["pig"] in ("iris", "lip", "dark") else "#fff"}" stroke="#000" stroke-width="{max(1.1, i["w"]*lw) if i["w"] else 0}"'
            if i['k'] == 'stroke': return f'fill="none" stroke="#000" stroke-width="{max(.9, i["w"]*lw)}"'
            if i['k'] == 'wash': return {'lip': 'fill="#000"', 'white': 'fill="#fff"'}.get(i['pig'])
            return 'fill="#000"'
        if i['k'] == 'fill':
            f = '#fff' if i['pig'] in ('leaf', 'pearl') else '#000'
            return f'fill="{f}" stroke="#fff" stroke-width="{max(1.1, i["w"]*lw) if i["w"] else 0}" stroke-linejoin="round"'
        if i['k'] == 'stroke': return f'fill="none" stroke="#fff" stroke-linecap="round" stroke-width="{max(.9, i["w"]*lw)}"'
        if i['k'] == 'hatch': return 'fill="#fff" opacity=".8"'
        if i['k'] in ('line', 'leaf', 'text'): return 'fill="#fff"'
        if i['k'] == 'wash' and i['pig'] == 'lip': return 'fill="#fff" opacity=".75"'
    fil = lay(p_fill); ln = lay(p_line); g = ln[..., 0]*ln[..., 3]
    cx, cy = m.FOCUS; r = np.hypot((xx-cx*sc)/(380*sc), (yy-cy*sc)/(620*sc))
    bg = ramp(np.clip(r+.08*fbm(sh, 120, rng, 3), 0, 1.3)/1.3, [(0, '#2b3a8f'), (.22, '#1a2568'), (.5, '#0f1742'), (1, '#060918')])
    st = rng.random(sh).astype(np.float32); st = nd.gaussian_filter((st > .9998).astype(np.float32), 1.0)*5; st += nd.gaussian_filter((rng.random(sh) > .99996).astype(np.float32), 1.9)*16
    bg = np.clip(bg+(st*.5)[..., None]*np.array([.9, .92, 1.0], np.float32), 0, 1)
    a = fil[..., 3]; fr = np.where(a[..., None] > .02, fil[..., :3]/np.maximum(a[..., None], .02), 0)
    light = np.clip(1.25-.75*r, .5, 1.3); img = mix(bg, fr*light[..., None], a*.93)
    # gold: foil with slow reflections and a bevel
    b = nd.gaussian_filter(g, 1.1); gy, gx = np.gradient(b)
    v = .60+.20*np.sin((xx*.55+yy)/(95*sc)+1.5*fbm(sh, 200, rng, 2))+.13*fbm(sh, 30, rng, 2)-1.1*(gx+gy)+.18*np.clip(.6-r, -.5, .6)
    gold = ramp(np.clip(v, 0, 1), GOLDC)
    halo = nd.gaussian_filter(g, 5*sc/2); wide = nd.gaussian_filter(g, 26*sc/2)
    img = img+halo[..., None]*hexf('#c98b2e')*.20+wide[..., None]*hexf('#7a5a9a')*.16
    img = mix(img, gold, np.clip(g*1.08, 0, 1))
    t = 1+.02*fbm(sh, 8, rng, 2); return np.clip(img*t[..., None], 0, 1)

if __name__ == '__main__':
    for n in sys.argv[1:]:
        m = importlib.import_module('c_'+n); t = time.time(); im = render(m); print(n, round(time.time()-t, 2), 's')
        save(im, f'c_{n}.png', 600); save(im, f'c_{n}.jpg', 600)
