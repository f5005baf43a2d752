#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Renders the pictures of the program from their sources into ../data.

    make_art.py                      everything
    make_art.py --kind majors-a      one kind
    make_art.py --only sol19         one picture, by the stem of its file
    make_art.py --preview DIR        into DIR at 300x540 and single scale, for looking at a drawing in work
    make_art.py -j2                  two pictures at a time

Needs rsvg-convert, numpy, scipy, Pillow and the fonts listed in README.md.
"""
import argparse
import concurrent.futures
import importlib
import os
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, HERE)
DATA = os.path.join(os.path.dirname(HERE), 'data')

# The file stems of the major arcana in the program's own numbering: the Fool is 21, the World 22.
MAJORS = ['mago1', 'sacerdotisa2', 'emperatriz3', 'emperador4', 'sacerdote5', 'amantes6', 'carro7', 'justicia8',
          'ermitaño9', 'fortuna10', 'fuerza11', 'colgado12', 'muerte13', 'templanza14', 'diablo15', 'torre16',
          'estrella17', 'luna18', 'sol19', 'juicio20', 'loco21', 'mundo22']
SUITS = ['bastos', 'copas', 'espadas', 'oros']
COURTS = ['sota', 'caballo', 'reina', 'rey']


def scene_module(package, number):
    """The module NN_name.py of a package whose name begins with the card's number."""
    prefix = f'{number:02d}_'
    names = [n[:-3] for n in os.listdir(os.path.join(HERE, package)) if n.startswith(prefix) and n.endswith('.py')]
    return importlib.import_module(f'{package}.{names[0]}') if names else None


def seed_of(name):
    return sum(map(ord, name))


def major_a(number, scale):
    import deck_a
    m = scene_module('majors', number)
    return m and deck_a.render(m.draw, m.NUM, m.TITLE, m.FIELD, getattr(deck_a, m.PATTERN), scale=scale)


def major_b(number, scale):
    import deck_b
    m = scene_module('majors', number)
    return m and deck_b.render(m.draw, m.NUM, m.TITLE, seed=seed_of(MAJORS[number - 1]), scale=scale)


def major_c(number, scale):
    import deck_c
    m = scene_module('esoteric', number)
    return m and deck_c.render(m, scale=scale)


def minor(suit, index, scale):
    import deck_b
    from minors import pips, courts
    m = pips.card(suit, index) if index <= 10 else courts.card(suit, COURTS[index - 11])
    return m and deck_b.render(m.draw, m.num, m.title, seed=seed_of(suit) + 31 * index, scale=scale)


def card_back(name, scale):
    import back
    return getattr(back, name)(scale)


def minor_stem(suit, index):
    return f'{index}{suit}' if index <= 10 else f'{COURTS[index - 11]}-{suit}'


def jobs():
    """(kind, directory, stem, function, arguments) of every card picture."""
    out = []
    for kind, directory, f in (('majors-a', 'imagenes', major_a), ('majors-b', 'imagenes2', major_b),
                               ('majors-c', 'imagenes3', major_c)):
        out += [(kind, directory, stem, f, (i + 1,)) for i, stem in enumerate(MAJORS)]
    for suit in SUITS:
        out += [('minors', 'amenores', minor_stem(suit, i), minor, (suit, i)) for i in range(1, 15)]
    out += [('backs', 'amenores', 'reverso', card_back, ('suit_back',)),
            ('backs', 'amenores', 'reverso2', card_back, ('major_back',))]
    return out


def make_small_pictures(kind):
    """The pictures that are made by the set: the moons, the signs, the windows' own."""
    import moon, zodiac, window_pictures
    makers = {'moon': lambda: moon.make(DATA), 'zodiac': lambda: zodiac.make(DATA), 'windows': window_pictures.make}
    for name in makers if kind is None else [kind]:
        if name in makers:
            makers[name]()
            print(name, flush=True)


def run(job, preview):
    import fx
    kind, directory, stem, function, arguments = job
    image = function(*arguments, 1 if preview else 2)
    if image is None:
        return f'{kind} {stem}: no drawing yet'
    target = os.path.join(preview, f'{kind}-{stem}.png') if preview else os.path.join(DATA, directory, stem + '.jpg')
    os.makedirs(os.path.dirname(target), exist_ok=True)
    fx.save(image, target, 300 if preview else 400)
    return f'{kind} {stem}'


def main():
    p = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    p.add_argument('--kind')
    p.add_argument('--only', action='append')
    p.add_argument('--preview')
    p.add_argument('-j', type=int, default=1)
    a = p.parse_args()
    if not a.only and not a.preview:
        make_small_pictures(a.kind)
        if a.kind in ('moon', 'zodiac', 'windows'):
            return
    chosen = [j for j in jobs() if (not a.kind or j[0] == a.kind) and (not a.only or j[2] in a.only)]
    if not chosen:
        sys.exit('nothing of that name')
    with concurrent.futures.ProcessPoolExecutor(a.j) as pool:
        for line in pool.map(run, chosen, [a.preview] * len(chosen)):
            print(line, flush=True)


if __name__ == '__main__':
    main()
