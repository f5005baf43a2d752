# SPDX-License-Identifier: GPL-3.0-or-later
"""The phases of the Moon: 30 pictures, 12 degrees of elongation apart, and the new moon once more as the 31st.

One disc is made (dark maria at their true places, craters, bright rays) and lit per pixel for each phase.
"""
import os
import sys

import numpy as np
from PIL import Image
from scipy.ndimage import gaussian_filter

from fx import fbm, hexf, mix, ramp, sstep

STEP = 12                   # degrees of elongation from one picture to the next
SIZE = 160                  # pixels of a picture
GROUND = '#0a0d24'          # the colour of the window behind the pictures

# Places are in radii of the disc, x to the right (lunar east), y up (north).
MARIA = [  # x, y, half width, half height
    (-.28, .52, .30, .26),      # Imbrium
    (.28, .45, .19, .17),       # Serenitatis
    (.46, .15, .24, .18),       # Tranquillitatis
    (.80, .29, .085, .12),      # Crisium
    (.73, -.10, .13, .20),      # Fecunditatis
    (.55, -.27, .10, .10),      # Nectaris
    (-.66, .22, .26, .42),      # Procellarum
    (-.25, -.36, .22, .17),     # Nubium
    (-.58, -.41, .12, .12),     # Humorum
    (-.02, .83, .48, .055),     # Frigoris
    (-.38, -.14, .17, .12),     # Cognitum
    (.05, .22, .10, .08),       # Vaporum
    (-.48, .02, .20, .16),      # Insularum
    (.90, -.02, .05, .10)]      # Smythii
RAYED = [  # x, y, length of the rays, strength
    (-.14, -.68, .90, 1.0),     # Tycho
    (-.33, .17, .34, .7),       # Copernicus
    (-.60, .14, .22, .6),       # Kepler
    (-.68, .40, .12, 1.0),      # Aristarchus
    (.60, .26, .10, .6),        # Proclus
    (.55, -.42, .12, .5)]       # Stevinus
NAMED_CRATERS = [  # x, y, radius
    (-.14, -.68, .05), (-.33, .17, .055), (-.60, .14, .03), (-.68, .40, .025), (-.05, -.85, .06), (.10, -.50, .07)]
SMALL_CRATERS = 900

# Grey of the lit ground by brightness: warm in the lights, as the eye sees it.
LIT = [(0, '#000000'), (.25, '#4b4743'), (.55, '#9f988c'), (.8, '#dad2c0'), (1, '#fffaf0')]
EARTHSHINE = np.array([.62, .78, 1.15], np.float32)
GLOW = np.array([.8, .85, 1], np.float32)


class Disc:
    """The near side: place, albedo and surface normal of each pixel."""

    def __init__(self, n=640, seed=11):
        rng = np.random.default_rng(seed)
        self.n, self.radius = n, n / 2 * .965
        row, column = np.mgrid[0:n, 0:n].astype(np.float32)
        self.x, self.y = (column - n / 2 + .5) / self.radius, -(row - n / 2 + .5) / self.radius
        self.r = np.hypot(self.x, self.y)
        self.z = np.sqrt(np.clip(1 - self.r ** 2, 0, 1))
        shape = self.x.shape
        mare = self.maria(rng)
        self.albedo = .84 - .40 * mare + .07 * fbm(shape, n / 16, rng, 4) + .04 * fbm(shape, n / 60, rng, 3)
        self.rays(rng)
        self.height = .0035 * fbm(shape, n / 24, rng, 5) * (1 - .7 * mare)
        self.craters(rng, mare)
        self.albedo = np.clip(self.albedo, .18, 1.15)
        down, right = np.gradient(self.height * self.radius)
        nx, ny, nz = self.x - right, self.y + down, self.z
        length = np.sqrt(nx * nx + ny * ny + nz * nz) + 1e-6
        self.nx, self.nz = nx / length, nz / length

    def maria(self, rng):
        """Share of dark lava, 0 to 1: ellipses with ragged shores that run together where they come near each other."""
        n, shape = self.n, self.x.shape
        wx, wy = (.10 * gaussian_filter(fbm(shape, n / 6, rng, 3), n / 90) + .022 * fbm(shape, n / 30, rng, 4) for _ in range(2))
        fields = [1 - np.hypot((self.x + wx - cx) / a, (self.y + wy - cy) / b) for cx, cy, a, b in MARIA]
        nearness = np.log(sum(np.exp(np.clip(9 * f, -40, 9)) for f in fields)) / 9
        return np.clip(sstep(-.12, .26, nearness) * (.86 + .34 * fbm(shape, n / 9, rng, 4)), 0, 1)

    def rays(self, rng):
        """Bright ejecta around the young craters."""
        for cx, cy, length, strength in RAYED:
            distance = np.hypot(self.x - cx, self.y - cy)
            direction = np.arctan2(self.y - cy, self.x - cx)
            spokes = np.zeros_like(self.x)
            for _ in range(11):
                at, width = rng.uniform(-np.pi, np.pi), rng.uniform(.02, .055)
                off = np.abs((direction - at + np.pi) % (2 * np.pi) - np.pi)
                spokes += np.exp(-(off / width) ** 2) * rng.uniform(.4, 1)
            halo = .26 * np.exp(-(distance / (length * .11)) ** 2)
            self.albedo += strength * (halo + .21 * spokes * np.exp(-distance / (length * .5)) * (distance > .015))

    def craters(self, rng, mare):
        """Bowls with raised rims, strewn over the sphere so that they crowd and flatten toward the limb."""
        radius = .007 + .075 * rng.uniform(0, 1, SMALL_CRATERS) ** 9
        around, cz = rng.uniform(0, 2 * np.pi, SMALL_CRATERS), rng.uniform(.12, 1, SMALL_CRATERS)
        out = np.sqrt(1 - cz * cz)
        named = np.array(NAMED_CRATERS).T
        radius = np.concatenate([radius, named[2]])
        cx = np.concatenate([out * np.cos(around), named[0]])
        cy = np.concatenate([out * np.sin(around), named[1]])
        cz = np.sqrt(np.clip(1 - cx * cx - cy * cy, 0, 1))
        for size, px, py, pz in zip(radius, cx, cy, cz):
            reach = int(size * 2.2 * self.radius) + 3
            column, row = int(px * self.radius + self.n / 2), int(-py * self.radius + self.n / 2)
            box = (slice(max(0, row - reach), row + reach), slice(max(0, column - reach), column + reach))
            if not self.x[box].size:
                continue
            d = np.sqrt((self.x[box] - px) ** 2 + (self.y[box] - py) ** 2 + (self.z[box] - pz) ** 2) / size
            on_land = mare[box].mean() < .4
            depth = size * (.17 if on_land else .05) * pz ** .5
            self.height[box] += depth * np.where(d < 1, (d * d - 1) * .62 + .28 * d ** 6, .28 * np.exp(-(d - 1) * 3.4))
            self.albedo[box] += (.022 * np.exp(-((d - 1) / .22) ** 2) - .015 * (d < .85)) * (1 if on_land else .5)


def lit_share(step):
    """The part of the disc that is lit in picture `step`."""
    return (1 - np.cos(np.radians(STEP * step))) / 2


def phase(disc, step):
    """Picture `step` as floating point RGB: north up, the waxing moon lit on the right."""
    elongation = np.radians(STEP * step)
    lx, lz = np.sin(elongation), -np.cos(elongation)
    day = sstep(-.05, .11, disc.x * lx + disc.z * lz)
    facing = disc.nx * lx + disc.nz * lz
    # Dust scatters light back to where it came from: a full moon is as bright at its limb as in the middle.
    dust = np.clip(facing + .04, 0, 1) / (np.clip(facing, 0, 1) * .72 + np.clip(disc.z, .06, 1) * .42 + .06)
    rgb = ramp(np.clip(disc.albedo * day * dust * .98, 0, 1), LIT)
    earth = .075 * (1 - lit_share(step)) * 2 * (.4 + .6 * disc.albedo) * (.5 + .5 * disc.z)
    rgb = rgb + (earth + .012)[..., None] * EARTHSHINE
    glow = np.exp(-np.clip(disc.r - 1, 0, 1) * 46) * .22 * lit_share(step)
    sky = hexf(GROUND) + glow[..., None] * GLOW
    inside = 1 - sstep(1 - 1.6 / disc.radius, 1 + .6 / disc.radius, disc.r)
    return np.clip(mix(sky, rgb, inside), 0, 1)


def make(data_dir):
    """Writes lunagif/moon0.gif to moon30.gif."""
    target = os.path.join(data_dir, 'lunagif')
    os.makedirs(target, exist_ok=True)
    disc = Disc()
    for step in range(31):
        picture = Image.fromarray((phase(disc, step % 30) * 255 + .5).astype(np.uint8))
        picture = picture.resize((SIZE, SIZE), Image.LANCZOS)
        # The roughness of the ground hides the steps of the palette, so no dithering is wanted.
        picture = picture.quantize(256, method=Image.MEDIANCUT, dither=Image.NONE)
        picture.save(os.path.join(target, f'moon{step}.gif'), optimize=True)


if __name__ == '__main__':
    make(sys.argv[1] if len(sys.argv) > 1 else os.path.join(os.path.dirname(os.path.dirname(os.path.abspath(__file__))), 'data'))
