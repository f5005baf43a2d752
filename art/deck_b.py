# SPDX-License-Identifier: GPL-3.0-or-later
"""deck B: hand-coloured woodcut"""
import sys, importlib, time
from kit import *; from fx import *
PAL = dict(flesh='#edc5a0', white='#f3e7c8', iris='#2f5f96', blush='#cf5535', lip='#b0302a', gold='#e3a92a', pearl='#f3e7c8', blue='#1f4f8c', sky='#86aebb', red='#ae241f', green='#6b8446', hair='#e3a92a', wood='#d29a58', stone='#dcc8a0', earth='#dcc67c', dark='#23405f', fire='#d86a2a', grey='#b9b2a0', bone='#efe0c0')
FONT = 'Essays1743'

def frame_b(num, title):
    F = Scene(7)
    F.stroke(rect(36, 36, 528, 1008), 7); F.stroke([(36, 98), (300, 99), (564, 97)], 5.5); F.stroke([(36, 954), (300, 953), (564, 955)], 5.5)
    F.stroke(rect(25, 25, 550, 1030), 2.6)
    if num: F.text(300, 84, num, 46, FONT, sp=4)
    if title: F.text(300, 1016, title, 46 if len(title) < 15 else 40 if len(title) < 17 else 35, FONT, sp=2)
    return F

def render(scene, num, title, seed=3, sc=2, field=True):
    rng = np.random.default_rng(seed)
    S = Scene(seed); scene(S); F = frame_b(num, title)
    ink, col = Layer(bg='#fff'), Layer()
    box = rect(38, 98, 524, 856)
    for it in S.items: it['clip'] = it['clip'] or None
    K = '#000'
    def pi(i):
        if i['k'] == 'fill': return f'fill="#fff" stroke="{K}" stroke-width="{i["w"]*1.12}" stroke-linejoin="round"' if i['w'] else 'fill="#fff"'
        if i['k'] == 'stroke': return f'fill="none" stroke="{K}" stroke-linecap="round" stroke-width="{i["w"]}"'
        if i['k'] in ('line', 'hatch', 'text'): return f'fill="{K}"'
    def pc(i):
        if i['k'] == 'fill': return f'fill="{PAL[i["pig"]]}" stroke="{PAL[i["pig"]]}" stroke-width="1.5"'
        if i['k'] == 'wash' and i['pig'] != 'white': return f'fill="{PAL[i["pig"]]}" opacity="{i["o"]}"'
    L = [ink, col]
    for l, pen in ((ink, pi), (col, pc)):
        l.b.append('<clipPath id="bx"><path d="%s"/></clipPath><g clip-path="url(#bx)">' % box); l.put(S.items, pen); l.b.append('</g>'); l.put(F.items, pen)
    I = raster(ink.svg(), sc)[..., 0]; C = raster(col.svg(), sc); sh = I.shape
    # ink: wobble, spread, worn patches
    dx, dy = 1.5*fbm(sh, 22, rng, 2), 1.5*fbm(sh, 22, rng, 2)
    I = nd.gaussian_filter(warp(I, dx, dy), 1.7)+.06*noise(sh, 6, rng)
    k = 1-sstep(.46, .72, I)
    worn = np.clip(1-.25*np.clip(fbm(sh, 60, rng)-.25, 0, 1)-.8*sstep(.98, 1.25, .45*noise(sh, 5, rng)+.8*fbm(sh, 90, rng, 3)), .2, 1)
    k = k*worn*.95
    # colour: stencilled wash, slightly out of register, uneven, darker at the edges
    ex, ey = 3.2*fbm(sh, 130, rng, 2)+rng.uniform(-4, 4), 3.2*fbm(sh, 130, rng, 2)+rng.uniform(-4, 4)
    C = warp(C, ex, ey); a = C[..., 3]; rgb = np.where(a[..., None] > .01, C[..., :3], 1)
    a = nd.gaussian_filter(a, 1.2)
    den = .95+.10*fbm(sh, 140, rng, 3)+.045*fbm(sh, 40, rng, 2, ay=.35)
    lum = rgb.mean(-1); b = nd.gaussian_filter(lum, 7); den = den+.9*np.clip(b-lum, -.05, .2)
    den = np.clip(den, .5, 1.12)*a
    pap = paper(sh, rng)
    T = np.clip(rgb/hexf('#f6ead0'), 0, 1)
    out = pap*(1-den[..., None]*(1-T))
    out = out*(1-k[..., None]*(1-hexf('#1d1512')))
    # card corners
    return out

def round_card(img, bg=None, r=.045):
    h, w = img.shape[:2]; yy, xx = np.mgrid[0:h, 0:w].astype(np.float32); R = r*w
    d = np.hypot(np.maximum(0, np.maximum(R-xx, xx-(w-R))), np.maximum(0, np.maximum(R-yy, yy-(h-R))))
    m = 1-sstep(R-1.5, R+1.5, d)
    return np.dstack([img, m]) if bg is None else mix(np.ones_like(img)*hexf(bg), img, m)

if __name__ == '__main__':
    for n in sys.argv[1:]:
        m = importlib.import_module('s_'+n); t = time.time(); im = render(m.draw, m.NUM, m.TITLE, seed=sum(map(ord, n))); print(n, round(time.time()-t, 2), 's')
        save(im, f'b_{n}.png', 600); save(im, f'b_{n}.jpg', 600)
