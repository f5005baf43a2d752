# SPDX-License-Identifier: GPL-3.0-or-later
"""The engraver's tools: what the gold engravings are composed of besides figures and things."""
import math

from glyphs import SIGNS, glyph
from kit import circ, pol, poly

__all__ = ['SIGNS', 'dots', 'glyph', 'radial', 'ring', 'rosette', 'star']

WAVES = 12                      # crests of a rosette's line in one round


def radial(S, x, y, inner, outer, n, w=1.6, a0=0, a1=360, prof='end'):
    """n rays about a centre, from the angle a0 up to but not at a1. The radii they start and end at may be functions of
    the number of the ray."""
    for i in range(n):
        a = a0 + (a1 - a0) * i / n
        start, end = (r(i) if callable(r) else r for r in (inner, outer))
        S.line([pol(x, y, start, a), pol(x, y, end, a)], w, prof)


def ring(S, x, y, r, w=2):
    """Circle of the line width w."""
    S.stroke(circ(x, y, r), w)


def dots(S, x, y, r, n, size=2, a0=0, a1=360):
    """n dots on an arc from the angle a0 up to but not at a1."""
    for i in range(n):
        S.dot(*pol(x, y, r, a0 + (a1 - a0) * i / n), size)


def star(S, x, y, r, n=4, waist=.22, pig='leaf', a0=-90):
    """Star of n points, the first at the angle a0; waist is the radius between two points as a share of r."""
    S.fill(poly([pol(x, y, r * waist if i % 2 else r, a0 + i * 180 / n) for i in range(2 * n)]), pig, 0)


def rosette(S, x, y, outer, inner, n, w=1, steps=240):
    """Engine turning: n lines that wind round the centre between two radii, each drawn in so many steps."""
    for j in range(n):
        phase = 2 * math.pi * j / n
        places = []
        for i in range(steps):
            t = 2 * math.pi * i / steps
            r = (outer + inner) / 2 + (outer - inner) / 2 * math.sin(WAVES * t + phase)
            places.append((x + r * math.cos(t), y + r * math.sin(t)))
        S.stroke(poly(places), w)
