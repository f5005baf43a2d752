# SPDX-License-Identifier: GPL-3.0-or-later
"""deck A: illuminated and gilded: the same scenes, painted with relief shading, gold leaf, tooled fields"""
import sys, importlib, time
from props import *; from fx import *
PAL = dict(crimson='#7a1222', flesh='#f3cda6', white='#f7efdc', iris='#2a5c96', blush='#d8552f', lip='#b2241f', gold='#d9a32c', pearl='#fbf6ea', blue='#1e4596', sky='#5f9bc6', red='#a8182a', green='#2c7350', hair='#d79a34', wood='#8f5a2b', stone='#c9b48c', earth='#4f6b35', dark='#141a33', fire='#e8651c', grey='#8f93a0', bone='#efe3c4')
METAL = {'gold', 'gold2'}
FIELD = dict(lapis=('#0d1c4a', '#2147a0', '#07112e'), crimson=('#5d0c1c', '#98182c', '#340510'), emerald=('#0b3a2c', '#15684a', '#05221b'), night=('#131a3e', '#34305f', '#080b1d'), plum=('#3a1140', '#6a2670', '#1f0724'))
FONT = 'Goudy Bookletter 1911'
X0, Y0, X1, Y1 = 54, 62, 546, 946      # inner opening

def opening(): # arched opening
    r = 92
    return f'M{X0} {Y1}V{Y0+r+26}C{X0} {Y0+r-22} {X0+22} {Y0+50} {X0+r-16} {Y0+40}C{X0+r+8} {Y0+34} {X0+r+20} {Y0+20} {X0+r+24} {Y0}H{X1-r-24}C{X1-r-20} {Y0+20} {X1-r-8} {Y0+34} {X1-r+16} {Y0+40}C{X1-22} {Y0+50} {X1} {Y0+r-22} {X1} {Y0+r+26}V{Y1}Z'

def leaf(F, x, y, k, rot, flip=False):
    """acanthus spray filling a spandrel corner; origin at the corner, growing to lower right"""
    with F.at(x, y, k, rot, flip):
        for p, w in (([(8, 8), (34, 20), (60, 14), (84, 24), (82, 40), (68, 42), (66, 32)], 13), ([(8, 8), (20, 34), (14, 60), (24, 84), (40, 82), (42, 68), (32, 66)], 13)):
            F.fill(poly(ribbon(p, lambda t: w*(1-t)**.6*(.6+.8*t)+2)), 'gold', 2.6)
        F.fill([(6, 6, 'c'), (24, 16), (42, 42), (52, 56, 'c'), (38, 46), (16, 24)], 'gold', 2.6)
        F.fill(circ(72, 33, 4.6), 'red', 2); F.fill(circ(33, 72, 4.6), 'red', 2)

def frame_a(num, title):
    F = Scene(5)
    o = opening()
    F.fill(f'M0 0H600V1080H0Z{o}', 'lapis', 0)                       # enamel ground of the frame
    F.fill('M8 8H592V1072H8ZM22 22V1058H578V22Z', 'gold', 2.6)          # outer moulding
    F.fill(f'M40 48H560V958H40Z{o}', 'crimson', 2.6)                  # spandrels
    for x, f in ((X0-8, False), (X1+8, True)): leaf(F, x, Y0-8, 1.0, 0, f)
    # inner moulding follows the arch
    F.add(k='ring', d=o, w=11); 
    F.fill('M34 42H566V964H34ZM42 50V956H558V50Z', 'gold', 2.2)
    # beads on the enamel border
    for y in range(64, 960, 32):
        for x in (28, 572): F.fill(circ(x, y, 4.2), 'gold', 1.6)
    for x in range(64, 560, 32):
        for y in (32, 1048): F.fill(circ(x, y, 4.2), 'gold', 1.6)
    for y in (988, 1020):
        for x in (28, 572): F.fill(circ(x, y, 4.2), 'gold', 1.6)
    # corner bosses
    for x, y in ((28, 28), (572, 28), (28, 1052), (572, 1052)):
        for a in range(45, 405, 90): F.fill(circ(*pol(x, y, 11, a), 9), 'gold', 2.2)
        F.fill(circ(x, y, 9), 'red', 2.4); F.wash(circ(x-2.5, y-3, 2.6), 'white', .9)
    # title panel
    F.fill('M40 972H560V1034H40Z', 'crimson', 2.6)
    F.fill('M34 966H566V1040H34ZM42 974V1032H558V974Z', 'gold', 2.2)
    for x, f in ((60, False), (540, True)):
        with F.at(x, 1003, 1, 0, f):
            for a in (-28, 0, 28): F.fill(poly(ribbon([(-6, 0), pol(0, 0, 14, a), pol(0, 0, 30, a*1.5)], lambda t: 11*math.sin(math.pi*min(1, t*.9+.1))+1)), 'gold', 2)
            F.fill(circ(-4, 0, 5), 'red', 2)
    size = 42 if len(title) < 14 else 36 if len(title) < 17 else 31
    F.text(300, 1003+size*.33, title, size, FONT, k='gtext', sp=3)
    # numeral medallion
    w = 30+13*len(num)
    F.fill(f'M{300-w} 12H{300+w}L{300+w+18} 38L{300+w} 64H{300-w}L{300-w-18} 38Z', 'lapis', 2.6)
    F.fill(f'M{300-w-2} 8H{300+w+2}L{300+w+24} 38L{300+w+2} 68H{300-w-2}L{300-w-24} 38ZM{300-w+2} 15L{300-w-14} 38L{300-w+2} 61H{300+w-2}L{300+w+14} 38L{300+w-2} 15Z', 'gold', 2.2)
    F.text(300, 51, num, 38, FONT, k='gtext', sp=3)
    return F

def damask(S, dx=64, dy=92):
    """ogee lattice with palmettes, drawn as gold line pattern"""
    for r in range(-1, 13):
        for c in range(-1, 11):
            x, y = c*dx+(dx/2 if r % 2 else 0), 40+r*dy
            y = 40+r*dy*.75
            S.line([(x, y-46), (x+20, y-26), (x+31, y)], 2.6, 'both'); S.line([(x, y-46), (x-20, y-26), (x-31, y)], 2.6, 'both')
            S.line([(x, y+46), (x+20, y+26), (x+31, y)], 2.6, 'both'); S.line([(x, y+46), (x-20, y+26), (x-31, y)], 2.6, 'both')
            for a, L in ((-90, 24), (-58, 19), (-122, 19), (-26, 15), (-154, 15)): S.line([(x, y+8), pol(x, y+6, L*.6, a), pol(x, y+4, L, a)], 6.5, 'both')
            S.line([(x, y+8), (x, y+26)], 3, 'end'); S.dot(x, y+8, 3.4); S.dot(x+32, y, 2.4)

def stars(S):
    for r in range(24):
        for c in range(13):
            x, y = 24+c*48+(24 if r % 2 else 0), 50+r*42
            k = 9 if (r+c) % 3 else 6
            for a in range(0, 180, 45): S.line([pol(x, y, k*(1 if a % 90 == 0 else .55), a), pol(x, y, k*(1 if a % 90 == 0 else .55), a+180)], 2.6, 'both')

GOLD = [(0, '#3a2206'), (.22, '#7d4f12'), (.42, '#b9822a'), (.60, '#e3b64e'), (.76, '#fbe39a'), (.90, '#fff8dc'), (1, '#fffdf2')]

def relief(mask_line, r, sh):
    d = nd.distance_transform_edt(mask_line < .5).astype(np.float32)
    hgt = (1-np.exp(-d/r))*r; hgt = nd.gaussian_filter(hgt, 1.4)
    gy, gx = np.gradient(hgt); return gx, gy, d

def render(scene, num, title, field='crimson', pattern=damask, seed=3, sc=2, fit=.955, oy=4, frame=None, op=None):
    rng = np.random.default_rng(seed); sh = (int(1080*sc), int(600*sc)); yy, xx = np.mgrid[0:sh[0], 0:sh[1]].astype(np.float32)
    S = Scene(seed)
    with S.at(300-300*fit, oy+526-526*fit, fit): scene(S)
    F = (frame or frame_a)(num, title); BG = Scene(9); pattern(BG)
    op = op or opening(); clip = f'<clipPath id="bx"><path d="{op}"/></clipPath>'
    pal = dict(PAL, lapis='#14285f', crimson='#6d1020')
    ev = ' fill-rule="evenodd"'
    def layers(pen, bg=None):
        l = Layer(bg=bg); l.b.append(clip+'<g clip-path="url(#bx)">'); l.put(S.items, pen); l.b.append('</g>'); l.put(F.items, pen); return raster(l.svg(), sc)
    def p_col(i):
        if i['k'] == 'fill': return f'fill="{pal[i["pig"]]}" stroke="{pal[i["pig"]]}" stroke-width="1"'+ev
        if i['k'] == 'ring': return f'fill="none" stroke="{pal["gold"]}" stroke-width="{i["w"]}"'
        if i['k'] == 'wash': return f'fill="{pal[i["pig"]]}" opacity="{i["o"]}"'
        if i['k'] == 'gtext': return f'fill="{pal["gold"]}"'
    def p_gold(i):
        if i['k'] in ('fill', 'wash'): return f'fill="{"#fff" if i["pig"] in METAL else "#000"}"'+ev
        if i['k'] == 'ring': return f'fill="none" stroke="#fff" stroke-width="{i["w"]}"'
    def p_ink(i):       # outlines + drawn lines
        if i['k'] == 'fill': return f'fill="#fff" stroke="#000" stroke-width="{max(i["w"]*.62, 1)}" stroke-linejoin="round"'+ev if i['w'] else 'fill="#fff"'+ev
        if i['k'] == 'ring': return [f'fill="none" stroke="#000" stroke-width="{i["w"]+3.4}"', f'fill="none" stroke="#fff" stroke-width="{i["w"]}"']
        if i['k'] == 'stroke': return f'fill="none" stroke="#000" stroke-linecap="round" stroke-width="{i["w"]*.7}"'
        if i['k'] == 'line': return 'fill="#000"'
    def p_hatch(i):
        if i['k'] in ('fill', 'ring'): return 'fill="#fff"'+ev if i['k'] == 'fill' else 'fill="none"'
        if i['k'] == 'hatch': return 'fill="#000"'
    def p_skin(i):
        if i['k'] == 'fill': return f'fill="{"#fff" if i["pig"] in ("flesh", "white", "iris") else "#000"}"'+ev
    col = layers(p_col); gm = layers(p_gold, '#000')[..., 0]; ink = 1-layers(p_ink, '#fff')[..., 0]; ha = 1-layers(p_hatch, '#fff')[..., 0]; skin = layers(p_skin, '#000')[..., 0]
    l = Layer(bg='#fff'); l.put(BG.items, lambda i: 'fill="#000"'); pat = 1-raster(l.svg(), sc)[..., 0]
    alpha = col[..., 3]; a0 = nd.gaussian_filter(alpha, 1)
    # field
    f = FIELD[field]; cx, cy = 300*sc, 420*sc; rr = np.hypot((xx-cx)/(330*sc), (yy-cy)/(520*sc))
    bg = ramp(np.clip(1-rr+.10*fbm(sh, 160*sc/2, rng, 3), 0, 1), [(0, f[2]), (.5, f[0]), (1, f[1])])
    # gold shader: env map by normal, leaf noise
    edges = (ink > .5) | (np.abs(nd.sobel(gm)) > .5)
    gx, gy, d = relief(edges.astype(np.float32), 9*sc/2*2, sh)
    leaf_n = fbm(sh, 46*sc/2, rng, 3)
    v = .55-.36*(gx+gy)+.11*leaf_n+.14*np.sin((xx*.6+yy)/(150*sc/2)+1.2*leaf_n)
    gold = ramp(np.clip(v, 0, 1), GOLD)
    pg = nd.gaussian_filter(pat, 1.0); py, px = np.gradient(pg)
    pv = .50-1.6*(px+py)+.12*leaf_n+.16*np.sin((xx*.6+yy)/(170*sc/2))
    bg = mix(bg, ramp(np.clip(pv, 0, 1), GOLD), np.clip(pat, 0, 1)*.62*(1-.45*np.clip(rr, 0, 1)))
    # shadow of the scene on the field
    shd = nd.shift(nd.gaussian_filter(alpha, 9*sc/2), (8*sc/2, 6*sc/2), order=0); bg = bg*(1-.55*np.clip(shd, 0, 1))[..., None]
    # paint
    rgb = np.where(alpha[..., None] > .02, col[..., :3]/np.maximum(alpha[..., None], .02), 0)
    gx2, gy2, d2 = relief(edges.astype(np.float32), 17*sc/2*2, sh)
    gx2, gy2 = nd.gaussian_filter(gx2, 2.2), nd.gaussian_filter(gy2, 2.2)
    lam = -(gx2*.75+gy2*.95); sk = 1-.62*skin
    tex = fbm(sh, 14, rng, 3, ay=1.8)*.05+fbm(sh, 90, rng, 2)*.07
    rim = np.exp(-d2/(7*sc/2))                                     # darker toward the outline, like layered glaze
    sat = rgb.mean(-1, keepdims=True); deep = np.clip(rgb*rgb*.92+.0, 0, 1)
    paint = mix(rgb, deep, np.clip(.62*rim*sk-.55*lam*sk, 0, .9))
    paint = np.clip(paint*(1+.30*np.clip(lam, -1, 1)*sk+tex)[..., None], 0, 1)
    paint = mix(paint, 1-(1-paint)*.55, np.clip(lam-.38, 0, 1)*.75*sk)
    img = mix(bg, paint, a0)
    img = mix(img, gold, np.clip(gm, 0, 1))
    # drawn shading strokes and outline: warm umber
    img = img*(1-np.clip(ha*(1-.35*gm), 0, 1)[..., None]*.55*(1-hexf('#4a2410')))
    img = img*(1-np.clip(ink, 0, 1)[..., None]*.93*(1-hexf('#2a130a')))
    # fine gold contour light on outer edges of the figures over the dark field
    edge = np.clip(nd.grey_dilation(alpha, 5)-alpha, 0, 1); inside = raster(f'<svg xmlns="http://www.w3.org/2000/svg" width="600" height="1080"><path d="{op}" fill="#fff"/></svg>', sc)[..., 3]
    img = mix(img, ramp(np.clip(v+.1, 0, 1), GOLD), nd.gaussian_filter(edge, .8)*inside*.85)
    txt = layers(lambda i: 'fill="#fff"' if i['k'] == 'gtext' else None)[..., 3]
    if txt.max() > 0:
        img = img*(1-.8*np.clip(nd.gaussian_filter(txt, 2.6*sc/2)*1.5, 0, 1)*(1-txt))[..., None]
        img = mix(img, ramp(np.clip(.74+.10*leaf_n+.10*np.sin(xx/(60*sc/2)), 0, 1), GOLD), txt)
    # inner shadow under the frame, slight vignette, soft varnish
    ins = nd.gaussian_filter(1-inside, 12*sc/2); img = img*(1-.55*np.clip(ins, 0, 1)*inside)[..., None]
    bloom = nd.gaussian_filter(np.clip(img-.72, 0, 1), (9, 9, 0)); img = np.clip(img+bloom*.55, 0, 1)
    return img

if __name__ == '__main__':
    F = dict(papess=('crimson', damask), death=('emerald', stars), magician=('emerald', damask), sun=('lapis', stars), tower=('plum', stars))
    for n in sys.argv[1:]:
        m = importlib.import_module('s_'+n); t = time.time(); im = render(m.draw, m.NUM, m.TITLE, *F.get(n, ('crimson', damask))); print(n, round(time.time()-t, 2), 's')
        save(im, f'a_{n}.png', 600); save(im, f'a_{n}.jpg', 600)
