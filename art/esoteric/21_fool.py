# SPDX-License-Identifier: GPL-3.0-or-later
"""The Fool: butterfly before the sun over the abyss; staff with bundle, white rose and small dog on the cliff's edge."""
import math

from emblems import *      # the vocabulary of scenes, see drawing.py

NUM, HEB, GLYPH, FOCUS = 'XXI', 'א', 'air', (300, 330)


def wing_cell(S, outline, eye=None):
    """one wing: broad border with dots, inner field with rays, an eye spot"""
    S.fill(outline, 'ind', 3.2)
    cx = sum(p[0] for p in outline) / len(outline)
    cy = sum(p[1] for p in outline) / len(outline)
    inner = [(cx + (p[0] - cx) * .78, cy + (p[1] - cy) * .78) + tuple(p[2:]) for p in outline]
    for x, y, _ in along([p[:2] for p in outline] + [outline[0][:2]], 26):
        q = (cx + (x - cx) * .88, cy + (y - cy) * .88)
        S.fill(circ(*q, 3.4), 'leaf', 0)
    S.fill(inner, 'deep', 2.4)
    with S.clip(path(inner)):
        for a in range(0, 90):
            S.line([(0, 0), pol(0, 0, 240, -90 + 2.4 * a)], 1.3, 'start')
    if eye:
        x, y, r = eye
        S.fill(circ(x, y, r), 'leaf', 2.6)
        S.fill(circ(x, y, r * .68), 'deep', 2)
        star(S, x, y, r * .6, 8, .4)


def butterfly(S, x, y, k):
    """butterfly with open wings, seen from above"""
    with S.at(x, y, k):
        for side in sides(S, 0):
            wing_cell(S, [(8, 10, 'c'), (60, 16), (112, 40), (124, 84), (98, 128), (74, 122), (66, 156, 'c'), (40, 126), (22, 78)],
                      (80, 76, 23))
            wing_cell(S, [(8, 0, 'c'), (30, -62), (92, -122), (166, -140, 'c'), (176, -96), (156, -40), (112, 8), (54, 20)], (118, -72, 29))
            S.line([(4, -44), (20, -92), (48, -116)], 3, 'flat')
            S.fill(circ(50, -118, 5), 'leaf', 0)
        S.fill(sym([(0, -20), (11, -8), (13, 20), (9, 70), (0, 104)]), 'leaf', 2.6)
        S.fill(circ(0, -22, 15, 18), 'leaf', 2.6)
        S.fill(circ(0, -44, 10), 'leaf', 2.4)
        with chased(S):
            for i in range(8):
                w = 11 - .9 * i
                S.line([(-w, 6 + 11 * i), (0, 10 + 11 * i), (w, 6 + 11 * i)], 2.2, 'flat')
            S.line([(0, -34), (0, -8)], 2)


def cliff(S):
    """rock of the left half, stepped and hatched facet by facet"""
    facets = [[(36, 790), (120, 770), (150, 830), (60, 850)], [(120, 770), (226, 778), (196, 836), (150, 830)],
              [(226, 778), (286, 792), (262, 846), (196, 836)], [(60, 850), (150, 830), (130, 920), (36, 930)],
              [(150, 830), (196, 836), (214, 904), (130, 920)], [(196, 836), (262, 846), (240, 900), (214, 904)],
              [(36, 930), (130, 920), (150, 1000), (36, 1060)], [(130, 920), (214, 904), (226, 980), (150, 1000)],
              [(214, 904), (240, 900), (232, 970), (226, 980)], [(36, 1060), (150, 1000), (226, 980), (214, 1060)],
              [(36, 790), (60, 850), (36, 930)]]
    for i, q in enumerate(facets):
        S.fill(poly(q), ('ind', 'night', 'deep')[i % 3], 2.8)
        with S.clip(poly(q)):
            S.hatch(30, 760, 300, 1070, (11, 6.5, 9)[i % 3], 1.4, (70, -24, 48, 12, 82, -50, 30)[i % 7])


def depth(S):
    """abyss of the right half: ever smaller peaks, mist lines below"""
    for top, left, right, pig in (((440, 780), (330, 960), (580, 960), 'night'), ((534, 736), (430, 960), (660, 960), 'ind'),
                                  ((372, 846), (270, 1000), (470, 1000), 'deep')):
        peak(S, top, left, right, pig, .26)
    for i in range(7):
        y = 934 + 11 * i
        S.line([(240, y), (330, y - 8), (430, y + 5), (564, y - 5)], 2.6 if i % 2 else 1.7)


def bundle(S):
    """staff leaning over the edge, the knotted bundle at its upper end"""
    S.limb([(180, 806), (256, 690), (352, 542)], [15, 14, 12], 'deep', 3)
    for x, y, a in along([(180, 806), (352, 542)], 24):
        S.line([pol(x, y, 5.5, a - 126), pol(x, y, 5.5, a + 54)], 1.8, 'flat')
    with S.at(352, 552):
        for a in (-150, -32):
            blade(S, 0, 8, 54, 26, a, 'ind', 2.6)
        S.fill([(-8, 6, 'c'), (-34, 44), (-48, 92), (-24, 128), (8, 134), (42, 122), (56, 84), (36, 40), (10, 6, 'c')], 'ind', 3.4)
        for pts in ([(-4, 16), (-24, 60), (-26, 112)], [(0, 16), (2, 70), (4, 126)], [(4, 16), (28, 56), (34, 108)]):
            S.line(pts, 2.2, 'end')
        for px, py in ((-26, 82), (18, 66), (6, 104), (38, 92), (-10, 56)):
            star(S, px, py, 11, 6, .42)
        S.fill(circ(0, 4, 14, 11), 'leaf', 2.6)
        with chased(S):
            S.line([(-9, 0), (0, 6), (9, 2)], 2.2)


def rose(S):
    """white rose on its stalk at the very edge"""
    S.line([(266, 790), (282, 766), (302, 728)], 5, 'flat')
    for x, y, a in ((272, 782, 10), (281, 766, -158), (291, 750, 20)):
        blade(S, x, y, 36, 19, a)
    rosebloom(S, 308, 712, .94, gold=True)


def draw(S):
    x, y = 300, 336
    glory(S, x, y, 202, 380, 120, 1.9)
    for i in range(24):
        a = 15 * i
        if i % 2:
            A = math.radians(a)
            P = lambda u, v: (x + math.cos(A) * u - math.sin(A) * v, y + math.sin(A) * u + math.cos(A) * v)
            S.fill(poly(ribbon([P(150, 0), P(164, 6), P(178, -6), P(194, 3)], lambda t: 19 * (1 - t) ** .9 + .5)), 'deep', 2.4)
        else:
            S.fill(poly([pol(x, y, 150, a - 6), pol(x, y, 200, a), pol(x, y, 150, a + 6)]), 'deep', 2.4)
            S.fill(poly([pol(x, y, 150, a), pol(x, y, 200, a), pol(x, y, 150, a + 6)]), 'leaf', 1)
    medallion(S, x, y, 152, 22, 'turned', 5, rays=72)
    butterfly(S, x, y + 4, .98)
    depth(S)
    cliff(S)
    rose(S)
    bundle(S)
    leaping_dog(S, 104, 742, 1.02)
