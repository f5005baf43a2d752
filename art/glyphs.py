# SPDX-License-Identifier: GPL-3.0-or-later
"""Glyphs of the zodiac, the planets and the elements, as strokes of a broad nib in a box from -50 to 50.

Each glyph is a list of strokes, each stroke the points of a curve.
"""
import math

from kit import poly, sample

NIB_ANGLE = -38                 # degrees at which the nib is held
NIB_EDGE = .42                  # width of a stroke along the nib's edge, as a share of one across it


def _round(x, y, r):
    """Circle whose ends overlap a little, as a pen closes it."""
    return [(x + r * math.cos(math.radians(a)), y + r * math.sin(math.radians(a))) for a in range(-120, 246, 24)]


def _mirrored(stroke):
    """The stroke with left and right exchanged."""
    return [(-p[0], *p[1:]) for p in stroke]


def _turned(stroke):
    """The stroke turned by half a turn."""
    return [(-p[0], -p[1]) for p in stroke]


RAM_HORN = [(0, 48), (0, 8), (-6, -22), (-20, -42), (-38, -36), (-42, -16), (-30, -4)]
CRAB_CLAW = [(-37, -10), (-30, -30), (-4, -39), (24, -36), (44, -24)]
FISH = [(-38, -47), (-20, -24), (-15, 0), (-20, 24), (-38, 47)]
LETTER_M = [[(-48, -28), (-40, -40), (-33, -28), (-32, 34)], [(-32, -20), (-22, -39), (-12, -28), (-11, 34)]]
UPWARD = [[(-45, 36), (0, -42)], [(0, -42), (45, 36)], [(45, 36), (-45, 36)]]
DOWNWARD = [_turned(stroke) for stroke in UPWARD]

# In the order of the year.
SIGNS = {
    'aries': [RAM_HORN, _mirrored(RAM_HORN)],
    'taurus': [_round(0, 17, 27), [(-40, -46), (-28, -20), (0, -10), (28, -20), (40, -46)]],
    'gemini': [[(-38, -46), (-20, -38), (0, -36), (20, -38), (38, -46)], [(-38, 46), (-20, 38), (0, 36), (20, 38), (38, 46)],
               [(-15, -37), (-15, 37)], [(15, -37), (15, 37)]],
    'cancer': [_round(-25, -9, 12), CRAB_CLAW, _round(25, 9, 12), _turned(CRAB_CLAW)],
    'leo': [_round(-24, 10, 14),
            [(-12, 2), (-20, -20), (-12, -42), (8, -46), (22, -32), (20, -6), (8, 20), (8, 40), (22, 47), (38, 36)]],
    'virgo': LETTER_M + [[(-11, -20), (-1, -39), (9, -28), (9, 18), (18, 38), (34, 48)],
                         [(9, -12), (24, -27), (36, -14), (30, 10), (8, 38), (-6, 48)]],
    'libra': [[(-46, 42), (46, 42)],
              [(-46, 18), (-12, 18, 'c'), (-25, 0), (-23, -24), (0, -40), (23, -24), (25, 0), (12, 18, 'c'), (46, 18)]],
    'scorpio': LETTER_M + [[(-11, -20), (-1, -39), (9, -28), (9, 24), (16, 42), (32, 44), (44, 28)],
                           [(34, 26), (47, 22, 'c'), (50, 38)]],
    'sagittarius': [[(-40, 44), (42, -42)], [(6, -42), (43, -43, 'c'), (42, -6)], [(-32, 0), (-2, 32)]],
    'capricorn': [[(-48, -30), (-40, -40), (-31, -28), (-24, 22)],
                  [(-24, 14), (-20, -22), (-4, -40), (8, -26), (8, 18), (0, 40), (-18, 47)],
                  [(8, 16), (22, 0), (38, 8), (38, 28), (22, 34), (8, 18)]],
    'aquarius': [[(-48, -4, 'c'), (-30, -26, 'c'), (-16, -6, 'c'), (2, -26, 'c'), (16, -6, 'c'), (34, -26, 'c'), (48, -8, 'c')],
                 [(-48, 26, 'c'), (-30, 4, 'c'), (-16, 24, 'c'), (2, 4, 'c'), (16, 24, 'c'), (34, 4, 'c'), (48, 22, 'c')]],
    'pisces': [FISH, _mirrored(FISH), [(-40, 0), (40, 0)]]}

PLANETS = {
    'sun': [_round(0, 0, 36), _round(0, 0, 4)],
    'mars': [_round(-10, 12, 27), [(10, -8), (42, -42)], [(16, -43), (43, -43, 'c'), (43, -14)]],
    'mercury': [_round(0, -6, 21), [(-24, -48), (-14, -32), (0, -27), (14, -32), (24, -48)], [(0, 15), (0, 50)],
                [(-18, 34), (18, 34)]],
    'venus': [_round(0, -17, 25), [(0, 10), (0, 50)], [(-19, 31), (19, 31)]],
    'jupiter': [[(-36, -24), (-28, -41), (-10, -43), (-1, -28), (-10, -4), (-38, 20, 'c'), (42, 20, 'c')], [(20, -46), (20, 48)]],
    'moon': [[(14, -44), (-18, -34), (-32, 0), (-18, 34), (14, 44)], [(14, -44), (-2, -22), (-4, 0), (-2, 22), (14, 44)]],
    'saturn': [[(-8, -48), (-8, 14)], [(-24, -34), (8, -34)], [(-8, -4), (10, -16), (22, -2), (12, 20), (12, 36), (24, 44)]]}

# The mother letters have no planet but an element.
ELEMENTS = {'fire': UPWARD, 'air': UPWARD + [[(-40, 10), (40, 10)]], 'water': DOWNWARD, 'earth': DOWNWARD + [[(-40, -10), (40, -10)]]}

GLYPHS = {**SIGNS, **PLANETS, **ELEMENTS}


def nib(pts, w):
    """Outline of one stroke of the nib along the curve; w is its width straight across the nib."""
    places = sample(pts, n=10)
    right, left = [], []
    for i, (x, y) in enumerate(places):
        a, b = places[max(0, i - 1)], places[min(len(places) - 1, i + 1)]
        course = math.atan2(b[1] - a[1], b[0] - a[0])
        half = w / 2 * (NIB_EDGE + (1 - NIB_EDGE) * abs(math.sin(course - math.radians(NIB_ANGLE))))
        nx, ny = -math.sin(course), math.cos(course)
        right.append((x + nx * half, y + ny * half))
        left.append((x - nx * half, y - ny * half))
    return poly(right + left[::-1])


def glyph(S, name, x, y, k=.5, w=13, kind='leaf'):
    """Draws a glyph about x, y, 100 k units in size, as marks of the given kind; w is the nib's width before
    scaling."""
    with S.at(x, y, k):
        for stroke in GLYPHS[name]:
            S.add(kind, nib(stroke, w))
