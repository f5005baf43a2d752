#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Turns waltz.abc into the program's background music, ../../data/Are You Lonesome Tonight.mid.

The file keeps the name under which the program looks for its song; the music is our own. Needs abc2midi (abcmidi).
"""
import os
import subprocess
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
SONG = os.path.join(os.path.dirname(os.path.dirname(HERE)), 'data', 'Are You Lonesome Tonight.mid')


def end_with_the_music(midi):
    """The file with its first track, which holds the tempi only, ending at the last of them. abc2midi lets that track
    run on for some bars after the last note, and a player that repeats the file would wait for it in silence."""
    start = midi.index(b'MTrk')
    body_start = start + 8
    body_end = body_start + int.from_bytes(midi[start + 4:body_start], 'big')
    tempo = midi.rindex(b'\xff\x51\x03', body_start, body_end)
    body = midi[body_start:tempo + 6] + b'\x00\xff\x2f\x00'
    return midi[:start + 4] + len(body).to_bytes(4, 'big') + body + midi[body_end:]


def main():
    """abc2midi only prints its complaints and still succeeds, so any of them ends the run."""
    done = subprocess.run(['abc2midi', os.path.join(HERE, 'waltz.abc'), '-o', SONG], capture_output=True, text=True, check=True)
    complaints = [line for line in done.stdout.splitlines() if line.startswith(('Error', 'Warning'))]
    if complaints:
        sys.exit('\n'.join(complaints))
    with open(SONG, 'rb+') as f:
        midi = end_with_the_music(f.read())
        f.seek(0)
        f.write(midi)
        f.truncate()


if __name__ == '__main__':
    main()
