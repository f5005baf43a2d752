# SPDX-License-Identifier: GPL-3.0-or-later
"""The drawing kit: outlines, scenes and the writing of scenes as SVG.

A scene is a display list of marks: filled shapes, brush lines, hatches. It says what is drawn and with which pigment;
the renderers of the decks decide how each kind of mark looks, and write the list several times, once for each of their
plates.

Lengths are in drawing units, of which a card has 600 x 1080, y growing downwards; angles are in degrees, 0 to the
right, growing clockwise. A curve is given by the points (x, y) that it runs through; a third element 'c' makes a point
a corner. An outline is the path data of SVG. In scenes S (or F, for a frame) is the scene, k a scale, w and lw the
width of a line or contour, pig a pigment, rot a turn in degrees and flip a mirroring from left to right.
"""
import math
import random
from contextlib import contextmanager
from dataclasses import dataclass
from typing import NamedTuple, Optional

__all__ = ['CARD', 'Layer', 'Mark', 'Scene', 'circ', 'normals', 'path', 'pol', 'poly', 'rect', 'ribbon', 'sample']

CARD = (600, 1080)              # drawing units of a card
TENSION = 1 / 6                 # distance of a point's control points, as a share of the chord between its neighbours
CAP_BULGE = .8                  # depth of a ribbon's rounded end, in half widths
TIP_WIDTH = .3                  # what a wedge of hatching keeps of its width at its end
UNEVENNESS = .12                # of the step, how far the lines of a hatched field stray


# ---------- curves and outlines ----------
def _cubic(before, start, end, after):
    """The cubic from start to end as (control point, control point, end)."""
    return ((start[0] + (end[0] - before[0]) * TENSION, start[1] + (end[1] - before[1]) * TENSION),
            (end[0] - (after[0] - start[0]) * TENSION, end[1] - (after[1] - start[1]) * TENSION), end[:2])


def _is_corner(point):
    return len(point) > 2


def _runs(pts):
    """The pieces of an open curve that are smooth from one corner to the next."""
    runs, run = [], [pts[0]]
    for point in pts[1:]:
        run.append(point)
        if _is_corner(point):
            runs.append(run)
            run = [point]
    if len(run) > 1:
        runs.append(run)
    return runs


def _cubics(pts, closed):
    """The curve through the points as its start and a list of cubics."""
    pts = list(pts)
    corners = [i for i, point in enumerate(pts) if _is_corner(point)]
    if closed and not corners:
        n = len(pts)
        return pts[0], [_cubic(pts[i - 1], pts[i], pts[(i + 1) % n], pts[(i + 2) % n]) for i in range(n)]
    if closed:
        pts = pts[corners[0]:] + pts[:corners[0]] + [pts[corners[0]]]
    cubics = []
    for run in _runs(pts):
        padded = [run[0]] + run + [run[-1]]
        cubics += [_cubic(*padded[i:i + 4]) for i in range(len(run) - 1)]
    return pts[0], cubics


def path(pts, closed=True):
    """Outline of the smooth curve through the points."""
    start, cubics = _cubics(pts, closed)
    curves = ''.join('C' + ' '.join(f'{x:.1f} {y:.1f}' for x, y in cubic) for cubic in cubics)
    return f'M{start[0]:.1f} {start[1]:.1f}{curves}' + ('Z' if closed else '')


def poly(pts, closed=True):
    """Outline of straight lines between the points."""
    return 'M' + 'L'.join(f'{p[0]:.1f} {p[1]:.1f}' for p in pts) + ('Z' if closed else '')


def sample(pts, closed=False, n=10):
    """Places on the smooth curve through the points, n for each stretch between two of them."""
    start, cubics = _cubics(pts, closed)
    places = [start[:2]]
    for c1, c2, end in cubics:
        for i in range(1, n + 1):
            t = i / n
            u = 1 - t
            places.append(tuple(u ** 3 * p0 + 3 * u * u * t * p1 + 3 * u * t * t * p2 + t ** 3 * p3
                                for p0, p1, p2, p3 in zip(start, c1, c2, end)))
        start = end
    return places


def normals(places):
    """Unit vector square to a polyline at each of its places, to the right of its course as the card is seen."""
    out = []
    for i in range(len(places)):
        a, b = places[max(0, i - 1)], places[min(len(places) - 1, i + 1)]
        dx, dy = b[0] - a[0], b[1] - a[1]
        length = math.hypot(dx, dy) or 1
        out.append((-dy / length, dx / length))
    return out


def _eased(widths):
    """A function of t in 0..1 that passes through the widths at even steps and levels off at each."""
    def width(t):
        x = t * (len(widths) - 1)
        i = min(int(x), len(widths) - 2)
        f = x - i
        f = f * f * (3 - 2 * f)
        return widths[i] * (1 - f) + widths[i + 1] * f
    return width


def _round_end(place, normal, half_width, direction):
    """Half an ellipse around an end of a ribbon; direction is 1 where the ribbon ends and -1 where it starts."""
    (x, y), (nx, ny) = place, normal
    tx, ty = ny * direction, -nx * direction
    turns = [k * math.pi / 9 for k in range(1, 9)]
    return [(x + nx * half_width * math.cos(a) * direction + tx * half_width * math.sin(a) * CAP_BULGE,
             y + ny * half_width * math.cos(a) * direction + ty * half_width * math.sin(a) * CAP_BULGE) for a in turns]


def ribbon(pts, width, n=10, caps=''):
    """Polygon of a band along the curve. The width is a function of t in 0..1 or a list of widths at even steps; caps
    names the ends that are rounded: 's' the start, 'e' the end. The right-hand edge comes first, the left-hand one
    follows backwards."""
    places = sample(pts, n=n)
    across = normals(places)
    last = len(places) - 1
    if isinstance(width, (list, tuple)):
        width = _eased(width)
    halves = [width(i / last) / 2 for i in range(last + 1)]
    right = [(p[0] + q[0] * h, p[1] + q[1] * h) for p, q, h in zip(places, across, halves)]
    left = [(p[0] - q[0] * h, p[1] - q[1] * h) for p, q, h in zip(places, across, halves)]
    end = _round_end(places[-1], across[-1], halves[-1], 1) if 'e' in caps else []
    start = _round_end(places[0], across[0], halves[0], -1) if 's' in caps else []
    return right + end + left[::-1] + start


def circ(cx, cy, r, ry=None):
    """Outline of a circle, or of an ellipse with the half axes r and ry."""
    ry = ry or r
    return f'M{cx - r:.1f} {cy:.1f}A{r} {ry} 0 1 1 {cx + r:.1f} {cy:.1f}A{r} {ry} 0 1 1 {cx - r:.1f} {cy:.1f}Z'


def rect(x, y, w, h, r=0):
    """Outline of a rectangle from its upper left corner; r rounds the corners."""
    if not r:
        return f'M{x} {y}h{w}v{h}h{-w}Z'
    across, down = w - 2 * r, h - 2 * r
    return (f'M{x + r} {y}h{across}q{r} 0 {r} {r}v{down}q0 {r} {-r} {r}'
            f'h{-across}q{-r} 0 {-r} {-r}v{-down}q0 {-r} {r} {-r}Z')


def pol(cx, cy, r, deg):
    """The point at a distance and an angle from a centre."""
    a = math.radians(deg)
    return (cx + r * math.cos(a), cy + r * math.sin(a))


# ---------- display list ----------
# How the width of a brush line runs over its length, as a share of the whole width.
PROFILES = {'both': lambda t: max(.12, math.sin(math.pi * t) ** .7), 'end': lambda t: max(.1, (1 - t) ** .8),
            'start': lambda t: max(.1, t ** .8), 'flat': lambda t: 1.0}


class Clip(NamedTuple):
    """A shape outside of which nothing is drawn, and the clip that it lies in itself."""
    transform: str
    d: str
    outer: Optional['Clip']


class Lettering(NamedTuple):
    """One line of text, centred on x, standing on y; spacing is added between its letters."""
    text: str
    x: float
    y: float
    size: float
    font: str
    spacing: float


@dataclass
class Mark:
    """One entry of a display list. Its kind tells the renderers what to make of it:

    fill      shape of a pigment with a contour of the width w (0: none)
    wash      colour without a contour, of the given opacity
    stroke    outline drawn with the even width w
    line      brush line, given as the shape that it covers
    hatch     the same for shading
    leaf      solid gold, of the engraved deck
    ring      gold moulding of the width w along an outline, of the enamel deck
    text      lettering
    """
    kind: str
    d: str = ''
    pig: str = ''
    w: float = 0
    opacity: float = 1
    lettering: Optional[Lettering] = None
    transform: str = ''
    clip: Optional[Clip] = None
    chased: bool = False            # drawn as if cut into gold: dark on bright where the deck engraves


def _outline(shape, closed=True):
    """Shapes may be given as an outline or as the points of a curve."""
    return shape if isinstance(shape, str) else path(shape, closed)


class Scene:
    """A display list in the making. The seed fixes all that the drawing leaves to chance."""

    def __init__(self, seed=1):
        self.items = []
        self.random = random.Random(seed)
        self.chased = False
        self._transform, self._clip = '', None

    def add(self, kind, d='', **properties):
        """Puts down a mark under the transform and the clip in force."""
        self.items.append(Mark(kind, d, transform=self._transform, clip=self._clip, chased=self.chased, **properties))

    # ----- contexts
    @contextmanager
    def _inside(self, transform, clip):
        outer = self._transform, self._clip
        self._transform, self._clip = transform, clip
        try:
            yield self
        finally:
            self._transform, self._clip = outer

    def at(self, x=0, y=0, k=1, rot=0, flip=False):
        """Context in which the origin lies at x, y, turned, enlarged and mirrored."""
        steps = [self._transform, f'translate({x} {y})']
        if rot:
            steps.append(f'rotate({rot})')
        if k != 1 or flip:
            steps.append(f'scale({-k if flip else k} {k})')
        return self._inside(' '.join(steps).strip(), self._clip)

    def clip(self, d):
        """Context in which only what lies inside the outline is drawn."""
        return self._inside(self._transform, Clip(self._transform, d, self._clip))

    # ----- marks
    def fill(self, shape, pig, w=5):
        """Closed shape of a pigment with a contour."""
        self.add('fill', _outline(shape), pig=pig, w=w)

    def wash(self, shape, pig, opacity=1):
        """Closed shape of colour alone: a blush, lips, a highlight."""
        self.add('wash', _outline(shape), pig=pig, opacity=opacity)

    def stroke(self, shape, w=4):
        """Outline or curve of even width."""
        self.add('stroke', _outline(shape, False), w=w)

    def line(self, pts, w=4, prof='both', kind='line', n=8):
        """Brush line that swells to the width w; prof tells which ends taper (both, end, start; flat: none), n how
        finely the curve is followed."""
        profile = PROFILES[prof]
        self.add(kind, poly(ribbon(pts, lambda t: w * profile(t), n)))

    def dot(self, x, y, r=3):
        """Dot of the ink that lines are drawn with."""
        self.add('line', circ(x, y, r))

    def limb(self, pts, widths, pig, w=5, caps=''):
        """Band of a pigment along a curve; widths and caps as in ribbon."""
        self.fill(poly(ribbon(pts, widths, caps=caps)), pig, w)

    def comb(self, pts, ang, length, n=14, w=5, jitter=.25):
        """Wedges of hatching: n strokes that start on the curve and run out in one direction. The length may be a
        function of the place 0..1 on the curve; jitter is the share by which it varies."""
        places = sample(pts, n=20)
        a = math.radians(ang)
        for i in range(n):
            t = (i + .5) / n
            start = places[int(t * (len(places) - 1))]
            reach = (length(t) if callable(length) else length) * (1 + self.random.uniform(-jitter, jitter))
            end = (start[0] + math.cos(a) * reach, start[1] + math.sin(a) * reach)
            middle = ((start[0] + end[0]) / 2, (start[1] + end[1]) / 2)
            self.add('hatch', poly(ribbon([start, middle, end], lambda t: w * (1 - t) ** .8 + TIP_WIDTH, 6)))

    def hatch(self, x0, y0, x1, y1, step=9, w=3, ang=0):
        """Parallel lines that cover at least the box from x0, y0 to x1, y1: for use inside a clip."""
        cx, cy = (x0 + x1) / 2, (y0 + y1) / 2
        reach = math.hypot(x1 - x0, y1 - y0) / 2
        a = math.radians(ang)
        offset = -reach
        while offset < reach:
            v = offset + self.random.uniform(-UNEVENNESS, UNEVENNESS) * step
            places = [(cx + u * math.cos(a) - v * math.sin(a), cy + u * math.sin(a) + v * math.cos(a))
                      for u in (-reach, 0, reach)]
            self.add('hatch', poly(ribbon(places, lambda t: w, 3)))
            offset += step

    def text(self, x, y, text, size, font, spacing=0):
        """Line of text centred on x, standing on y."""
        self.add('text', lettering=Lettering(text, x, y, size, font, spacing))


# ---------- writing ----------
class Layer:
    """A drawing as SVG, one of the plates that a renderer needs. A pen is a function that gives for a mark the
    attributes it is drawn with, a list of such for several coats, or None for nothing."""

    def __init__(self, width=CARD[0], height=CARD[1], ground=None):
        self.width, self.height, self.ground = width, height, ground
        self._body, self._defs, self._clip_names = [], [], {}

    def _define(self, transform, d):
        """Name of the clip path of a shape."""
        if (transform, d) not in self._clip_names:
            name = f'k{len(self._clip_names)}'
            self._clip_names[transform, d] = name
            self._defs.append(f'<clipPath id="{name}"><path d="{d}" transform="{transform}"/></clipPath>')
        return self._clip_names[transform, d]

    def _clipped(self, element, clip):
        """The element in one group for each clip that it lies in. A clip path on a clip path would say the same, but
        the renderer heeds only the inner one of these."""
        while clip:
            element = f'<g clip-path="url(#{self._define(clip.transform, clip.d)})">{element}</g>'
            clip = clip.outer
        return element

    @staticmethod
    def _element(mark, attributes):
        place = f' transform="{mark.transform}"' if mark.transform else ''
        if mark.kind != 'text':
            return f'<path d="{mark.d}"{place} {attributes}/>'
        text, x, y, size, font, spacing = mark.lettering
        return (f'<text x="{x}" y="{y}" font-family="{font}" font-size="{size}" text-anchor="middle" '
                f'letter-spacing="{spacing}"{place} {attributes}>{text}</text>')

    def put(self, marks, pen, inside=None):
        """Draws a display list, cut to the outline `inside`."""
        body = []
        for mark in marks:
            coats = pen(mark)
            if coats is None:
                continue
            for attributes in coats if isinstance(coats, list) else [coats]:
                body.append(self._clipped(self._element(mark, attributes), mark.clip))
        if inside:
            body = [f'<g clip-path="url(#{self._define("", inside)})">', *body, '</g>']
        self._body += body

    def svg(self):
        """The whole drawing."""
        w, h = self.width, self.height
        ground = f'<rect width="{w}" height="{h}" fill="{self.ground}"/>' if self.ground else ''
        return (f'<svg xmlns="http://www.w3.org/2000/svg" width="{w}" height="{h}" viewBox="0 0 {w} {h}">'
                f'<defs>{"".join(self._defs)}</defs>{ground}{"".join(self._body)}</svg>')
