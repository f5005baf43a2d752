# SPDX-License-Identifier: GPL-3.0-or-later
"""raster finishing: numpy + scipy on layers rendered by rsvg-convert"""
import numpy as np, subprocess, io
from scipy import ndimage as nd
from PIL import Image

def raster(svg, sc=2, W=600):
    p = subprocess.run(['rsvg-convert', '-w', str(int(W*sc))], input=svg.encode(), capture_output=True, check=True)
    return np.asarray(Image.open(io.BytesIO(p.stdout)).convert('RGBA'), dtype=np.float32)/255

def hexf(h): return np.array([int(h[i:i+2], 16) for i in (1, 3, 5)], np.float32)/255

def noise(shape, cell, rng, ay=1):
    """smooth value noise -1..1, cell = feature size in px; computed coarse (cubic), enlarged linearly"""
    h, w = shape; f = max(1, int(min(cell, cell*ay)/4)); hh, ww = h//f+2, w//f+2
    gy, gx = int(h/(cell*ay))+4, int(w/cell)+4
    g = rng.standard_normal((gy, gx)).astype(np.float32)
    im = Image.fromarray(g, 'F').resize((ww, hh), Image.BICUBIC, box=(1, 1, 1+ww*f/cell, min(gy-.5, 1+hh*f/(cell*ay))))
    if f > 1: im = im.resize((ww*f, hh*f), Image.BILINEAR)
    return np.clip(np.asarray(im)[:h, :w]/1.6, -1, 1)

def fbm(shape, cell, rng, n=4, ay=1):
    t = 0; a = 1; s = 0
    for i in range(n): t = t+a*noise(shape, max(2, cell/2**i), rng, ay); s += a; a *= .55
    return t/s*1.6

def warp(img, dx, dy):
    h, w = img.shape[:2]; yy, xx = np.mgrid[0:h, 0:w].astype(np.float32)
    c = [yy+dy, xx+dx]
    if img.ndim == 2: return nd.map_coordinates(img, c, order=1, mode='nearest')
    return np.stack([nd.map_coordinates(img[..., k], c, order=1, mode='nearest', prefilter=False) for k in range(img.shape[2])], -1)

def sstep(a, b, x): t = np.clip((x-a)/(b-a), 0, 1); return t*t*(3-2*t)
def mix(a, b, t): 
    t = t[..., None] if getattr(t, 'ndim', 0) == 2 else t
    return a*(1-t)+b*t
def ramp(v, stops):
    xs = [s[0] for s in stops]; cs = np.array([hexf(s[1]) for s in stops]); return np.stack([np.interp(v, xs, cs[:, k]) for k in range(3)], -1).astype(np.float32)

def paper(shape, rng, base='#ecdcb6', dark='#b8925a'):
    h, w = shape; yy, xx = np.mgrid[0:h, 0:w].astype(np.float32)
    t = .5+.35*fbm(shape, w/5, rng)+.12*fbm(shape, 26, rng, 3)
    p = mix(hexf(base)*np.ones((h, w, 3), np.float32), hexf(dark), np.clip(t-.55, 0, 1)*.5)
    edge = np.minimum(np.minimum(xx, w-xx), np.minimum(yy, h-yy))/w
    p = mix(p, hexf(dark), np.clip(1-edge/.075-.25*fbm(shape, 90, rng), 0, 1)**2*.5)
    f = nd.gaussian_filter(rng.standard_normal(shape).astype(np.float32), (1.2, 4.5)); p *= (1+.012*f/f.std())[..., None]
    sp = sstep(.9990, .99995, rng.random(shape).astype(np.float32)); sp = nd.gaussian_filter(sp, 1.3); p *= (1-np.clip(sp*2.2, 0, .35))[..., None]
    for _ in range(7):    # foxing
        cx, cy, r = rng.uniform(0, w), rng.uniform(0, h), rng.uniform(4, 13)
        m = np.exp(-((xx-cx)**2+(yy-cy)**2)/(2*r*r))*(.7+.4*rng.random()); p = mix(p, hexf('#a8763c'), np.clip(m, 0, 1)*.3)
    return np.clip(p, 0, 1)

def save(img, path, w=None, q=88):
    im = Image.fromarray((np.clip(img, 0, 1)*255+.5).astype(np.uint8))
    if w: im = im.resize((w, round(w*im.height/im.width)), Image.LANCZOS)
    im.save(path, **({'quality': q, 'optimize': True, 'subsampling': 0} if path.endswith('jpg') else {}))
