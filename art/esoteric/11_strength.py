# SPDX-License-Identifier: GPL-3.0-or-later
"""Strength: the golden lion held between two gentle hands, the lemniscate above, a chain of roses as his only bond."""
from emblems import *      # the vocabulary of scenes, see drawing.py

NUM, HEB, GLYPH, FOCUS = 'XI', 'ט', 'leo', (300, 400)


def garland(S):
    """roses on a leafy cord that hangs from wrist to wrist"""
    cord = [(134, 716), (150, 790), (214, 850), (300, 872), (386, 850), (450, 790), (466, 716)]
    S.line(cord, 5, 'flat')
    for i, (x, y, a) in enumerate(along(cord, 26)):
        for s in (-1, 1):
            blade(S, x, y, 40, 18, a + s * (52 if i % 2 else 70))
    for i, (x, y, a) in enumerate(along(cord, 7)):
        rosebloom(S, x, y, (.56, .7, .86, 1.08)[min(i, 6 - i)], gold=i == 3)


def tamer(S):
    """right arm: the open hand lies on the lion's mane"""
    arm(S, 150, 690, -30, 330, 1.35)
    hand_open(S, 148, 686, 2.0, -24, True, lw=2.4)


def draw(S):
    x, y = 300, 406
    glory(S, x, y, 206, 380, 120, 1.9)
    medallion(S, x, y, 206, 26, 'beads')
    radial(S, x, y, 120, lambda i: 166 if i % 2 else 152, 96, 1.3)
    lion_head(S, x, y + 2, 1.36)
    lemniscate(S, 300, 166, 104, 92, 22)
    star(S, 300, 166, 22, 8, .34)
    land(S, [(36, 858), (150, 872), (300, 862), (450, 872), (564, 858)], 'night', 13, 6, .7)
    for side in sides(S):
        tamer(S)
    glory(S, 300, 962, 40, 120, 64, 1.7, 180, 360)
    for a in range(9):
        flame(S, 300, 968, 70 - 6 * abs(a - 4), 22, (a - 4) * 17)
    garland(S)
    S.fill(circ(300, 964, 26), 'deep', 3)
    glyph(S, 'leo', 300, 962, .32, 15)
