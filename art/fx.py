# SPDX-License-Identifier: GPL-3.0-or-later
"""What the finishing of pictures is made of: SVG to pixels, noise, blending, colour ramps, paper.

Pictures are float arrays of height x width (x channels) with values 0 to 1; masks and noise have no channels.
Everything that looks random draws from a numpy generator that the caller hands in, so the order of the calls is part of
a picture.
"""
import io
import subprocess

import numpy as np
from PIL import Image
from scipy import ndimage as nd

OCTAVE_GAIN = .55               # strength of each finer octave of noise
FOXING_SPOTS = 7


def raster(svg, scale=2, width=600):
    """RGBA pixels of a drawing that is `width` units wide, at `scale` pixels a unit."""
    command = ['rsvg-convert', '-w', str(int(width * scale))]
    png = subprocess.run(command, input=svg.encode(), capture_output=True, check=True).stdout
    return np.asarray(Image.open(io.BytesIO(png)).convert('RGBA'), dtype=np.float32) / 255


def hexf(colour):
    """#rrggbb as three floats."""
    return np.array([int(colour[i:i + 2], 16) for i in (1, 3, 5)], np.float32) / 255


def grid(shape):
    """Row and column of each pixel."""
    return np.mgrid[0:shape[0], 0:shape[1]].astype(np.float32)


# ---------- noise ----------
def noise(shape, cell, rng, stretch=1):
    """Smooth noise -1 to 1 whose features are about `cell` pixels wide and `stretch` times as high. Computed on a
    coarser grid with cubic interpolation and enlarged linearly, which is not to be seen and several times as fast."""
    h, w = shape
    tall = cell * stretch
    coarseness = max(1, int(min(cell, tall) / 4))
    coarse_h, coarse_w = h // coarseness + 2, w // coarseness + 2
    rows, columns = int(h / tall) + 4, int(w / cell) + 4
    values = rng.standard_normal((rows, columns)).astype(np.float32)
    box = (1, 1, 1 + coarse_w * coarseness / cell, min(rows - .5, 1 + coarse_h * coarseness / tall))
    image = Image.fromarray(values, 'F').resize((coarse_w, coarse_h), Image.BICUBIC, box=box)
    if coarseness > 1:
        image = image.resize((coarse_w * coarseness, coarse_h * coarseness), Image.BILINEAR)
    return np.clip(np.asarray(image)[:h, :w] / 1.6, -1, 1)


def fbm(shape, cell, rng, octaves=4, stretch=1):
    """Noise of several octaves, the coarsest of the size `cell`."""
    total, gain, gains = 0, 1, 0
    for i in range(octaves):
        total = total + gain * noise(shape, max(2, cell / 2 ** i), rng, stretch)
        gains += gain
        gain *= OCTAVE_GAIN
    return total / gains * 1.6


# ---------- arrays ----------
def warp(image, dx, dy):
    """The picture with each pixel taken from dx, dy pixels beside it."""
    if image.ndim == 3:
        return np.stack([warp(image[..., channel], dx, dy) for channel in range(image.shape[2])], -1)
    row, column = grid(image.shape)
    return nd.map_coordinates(image, [row + dy, column + dx], order=1, mode='nearest')


def sstep(low, high, x):
    """Smooth step from 0 at low to 1 at high."""
    t = np.clip((x - low) / (high - low), 0, 1)
    return t * t * (3 - 2 * t)


def mix(a, b, share):
    """a where the share is 0, b where it is 1; the share may be a number or a mask."""
    share = share[..., None] if getattr(share, 'ndim', 0) == 2 else share
    return a * (1 - share) + b * share


def ramp(values, stops):
    """Colours of a gradient: stops are (value, '#rrggbb') in rising order."""
    at = [value for value, _ in stops]
    colours = np.array([hexf(colour) for _, colour in stops])
    return np.stack([np.interp(values, at, colours[:, channel]) for channel in range(3)], -1).astype(np.float32)


# ---------- paper ----------
def paper(shape, rng, base='#ecdcb6', dark='#b8925a'):
    """A sheet of old handmade paper: cloudy, browned along the edges, with fibres, specks and a few spots of foxing."""
    h, w = shape
    row, column = grid(shape)
    cloud = .5 + .35 * fbm(shape, w / 5, rng) + .12 * fbm(shape, 26, rng, 3)
    sheet = mix(hexf(base) * np.ones((h, w, 3), np.float32), hexf(dark), np.clip(cloud - .55, 0, 1) * .5)
    from_edge = np.minimum(np.minimum(column, w - column), np.minimum(row, h - row)) / w
    sheet = mix(sheet, hexf(dark), np.clip(1 - from_edge / .075 - .25 * fbm(shape, 90, rng), 0, 1) ** 2 * .5)
    fibres = nd.gaussian_filter(rng.standard_normal(shape).astype(np.float32), (1.2, 4.5))
    sheet *= (1 + .012 * fibres / fibres.std())[..., None]
    specks = nd.gaussian_filter(sstep(.9990, .99995, rng.random(shape).astype(np.float32)), 1.3)
    sheet *= (1 - np.clip(specks * 2.2, 0, .35))[..., None]
    for _ in range(FOXING_SPOTS):
        x, y, r = rng.uniform(0, w), rng.uniform(0, h), rng.uniform(4, 13)
        spot = np.exp(-((column - x) ** 2 + (row - y) ** 2) / (2 * r * r)) * (.7 + .4 * rng.random())
        sheet = mix(sheet, hexf('#a8763c'), np.clip(spot, 0, 1) * .3)
    return np.clip(sheet, 0, 1)


def save(image, path, width=None, quality=88):
    """Writes a picture, reduced to a width in pixels if one is given; the quality concerns JPEG alone."""
    picture = Image.fromarray((np.clip(image, 0, 1) * 255 + .5).astype(np.uint8))
    if width:
        picture = picture.resize((width, round(width * picture.height / picture.width)), Image.LANCZOS)
    options = {'quality': quality, 'optimize': True, 'subsampling': 0} if path.endswith('jpg') else {}
    picture.save(path, **options)
