# SPDX-License-Identifier: GPL-3.0-or-later
"""The sixteen court cards. They carry no numeral; the figure's rank and suit stand in the title."""
from minors import kings, knights, pages, queens

FIGURES = {'sota': pages.DRAW, 'caballo': knights.DRAW, 'reina': queens.DRAW, 'rey': kings.DRAW}


class Court:
    """one court card: what the renderer needs of it"""
    def __init__(self, suit, court):
        self.suit, self.court = suit, court
        self.num = ''
        self.title = f'{court.upper()} DE {suit.upper()}'

    def draw(self, S):
        FIGURES[self.court][self.suit](S)


def card(suit, court):
    return Court(suit, court)
