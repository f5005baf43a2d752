#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Holds the drawings against what the decks can render, and the pictures in ../data against what they must show.

    test_art.py         prints each fault and ends with 1 if there is any
"""
import itertools
import math
import os
import sys

import numpy as np
from PIL import Image

import back
import deck_a
import deck_b
import deck_c
import make_art
import moon
from kit import Scene
from minors import courts, pips

NEAR = 20                   # units: symbols closer than this would hide each other
LIT = 30                    # grey value above which a pixel of the Moon counts as lit
FULL_SIZE = 720             # pixels of a card's height; the backs are as high


def drawings():
    """(name, pen that looks up pigments, marks) of every card, every frame and the backs."""
    def drawn(draw):
        S = Scene(3)
        draw(S)
        return S.items

    for number in range(1, 23):
        major, emblem = (make_art.scene_module(package, number) for package in ('majors', 'esoteric'))
        marks = drawn(major.draw)
        for deck, frame in ((deck_a, deck_a.frame_a), (deck_b, deck_b.frame_b)):
            yield f'{major.__name__} in {deck.__name__}', deck.colour_pen, marks + frame(major.NUM, major.TITLE).items
        frame = deck_c.frame_c(emblem.NUM, emblem.HEB, emblem.GLYPH)
        yield emblem.__name__, deck_c.fill_pen, drawn(emblem.draw) + frame.items
    for suit in make_art.SUITS:
        numbers = [pips.card(suit, index) for index in range(1, 11)]
        for card in numbers + [courts.card(suit, court) for court in make_art.COURTS]:
            yield card.title, deck_b.colour_pen, drawn(card.draw)
    yield 'back of the majors', deck_a.colour_pen, drawn(back.enamel_scene) + back.enamel_frame('', '').items
    yield 'back of the suits', deck_c.fill_pen, drawn(back.Engraving.draw) + back.engraved_frame('', '', '').items


def pixels(directory, name, mode):
    """A finished picture as an array of 0 to 255."""
    return np.asarray(Image.open(os.path.join(make_art.DATA, directory, name)).convert(mode)).astype(float)


def unknown_pigments():
    """Each deck has a colour for every pigment that it is asked for."""
    for name, pen, marks in drawings():
        for mark in marks:
            try:
                pen(mark)
            except KeyError as pigment:
                yield f'{name}: no colour for {pigment}'
                break


def miscounted_pips():
    """A number card has a place of its own for every symbol it stands for."""
    for suit, index in itertools.product(make_art.SUITS, range(1, 11)):
        places = pips.positions(suit, index)
        if len(places) != index:
            yield f'{index} of {suit}: {len(places)} places'
        if any(math.dist(a[:2], b[:2]) < NEAR for a, b in itertools.combinations(places, 2)):
            yield f'{index} of {suit}: two symbols in one place'


def lopsided_backs():
    """A back turned by half is the same back, but for what the compression does."""
    for name in ('reverso', 'reverso2'):
        picture = pixels('amenores', name + '.jpg', 'RGB')
        if picture.shape[0] != FULL_SIZE:
            yield f'{name}: {picture.shape[0]} pixels high'
        if np.abs(picture - picture[::-1, ::-1]).mean() > .2:
            yield f'{name} tells which way up it lies'


def wrong_moons():
    """The lit part of the disc is (1 - cos elongation) / 2, on the right while the Moon waxes and on the left after."""
    for step in range(31):
        picture = pixels('lunagif', f'moon{step}.gif', 'L')
        size = picture.shape[0]
        row, column = np.mgrid[0:size, 0:size] - (size - 1) / 2
        disc = np.hypot(row, column) < size / 2 * .965
        elongation = math.radians(360 / 30 * step)
        expected = (1 - math.cos(elongation)) / 2
        if abs(moon.lit_share(step) - expected) > 1e-6:
            yield f'moon.lit_share({step}) is {moon.lit_share(step):.3f}, not {expected:.3f}'
        if abs((picture[disc] > LIT).mean() - expected) > .035:
            yield f'moon {step}: {(picture[disc] > LIT).mean():.3f} of the disc is lit, not {expected:.3f}'
        to_the_right = picture[disc & (column > 0)].mean() - picture[disc & (column < 0)].mean()
        if .05 < expected < .95 and (to_the_right > 0) != (math.sin(elongation) > 0):
            yield f'moon {step} is lit on the wrong side'


def main():
    faults = [fault for check in (unknown_pigments, miscounted_pips, lopsided_backs, wrong_moons) for fault in check()]
    print('\n'.join(faults) or 'all is well')
    sys.exit(1 if faults else 0)


if __name__ == '__main__':
    main()
