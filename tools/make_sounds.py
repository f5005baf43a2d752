#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Synthesises the short sounds of the program into ../data.

    boop.wav      a soft step, when something moves on by one
    Trumpet.wav   a short fanfare for three brass voices, when something has been achieved
    Url.wav       a chime, when a page is opened

16 bit, 44100 Hz, peak -6 dBFS. Each begins and ends at exactly zero, so that none clicks. Seeds are fixed.
Needs numpy and scipy.
"""
import os
import wave

import numpy as np
from scipy.signal import fftconvolve

RATE = 44100
PEAK = 0.5                                   # -6 dBFS
DATA = os.path.join(os.path.dirname(os.path.dirname(os.path.abspath(__file__))), 'data')


def pitch(name):
    """Frequency in Hz of a note such as 'C5' or 'Eb4'."""
    step = {'C': 0, 'D': 2, 'E': 4, 'F': 5, 'G': 7, 'A': 9, 'B': 11}[name[0]] + name.count('#') - name.count('b')
    return 440 * 2 ** ((12 * (int(name[-1]) + 1) + step - 69) / 12)


def clock(seconds):
    return np.arange(int(seconds * RATE)) / RATE


def fade(signal, attack, release):
    """Raised-cosine ends; the first and the last sample become exactly zero."""
    out = signal.copy()
    a, r = int(attack * RATE), int(release * RATE)
    out[..., :a] *= 0.5 - 0.5 * np.cos(np.pi * np.arange(a) / a)
    out[..., -r:] *= 0.5 + 0.5 * np.cos(np.pi * np.arange(1, r + 1) / r)
    return out


def place(track, signal, start):
    i = int(start * RATE)
    track[..., i:i + signal.shape[-1]] += signal


def room(dry, seconds, amount, seed):
    """The sound in a small hall: each channel convolved with its own decaying, darkened noise."""
    rng = np.random.default_rng(seed)
    t = clock(seconds)
    wet = []
    for channel in dry:
        tail = rng.standard_normal(t.size) * np.exp(-6.9 * t / seconds)
        tail = np.convolve(tail, np.hanning(17), 'same')
        tail[:int(0.012 * RATE)] = 0
        wet.append(fftconvolve(channel, tail / np.sqrt(np.sum(tail ** 2)))[:channel.size])
    return dry + amount * np.array(wet)


def write(name, signal):
    """Stores one channel (a vector) or two (a pair of rows)."""
    channels = np.atleast_2d(signal)
    samples = np.round(channels / np.abs(channels).max() * PEAK * 32767).astype('<i2')
    with wave.open(os.path.join(DATA, name), 'wb') as f:
        f.setnchannels(len(samples))
        f.setsampwidth(2)
        f.setframerate(RATE)
        f.writeframes(samples.T.tobytes())


def step_sound():
    """A muted mallet: a falling tone, a dull overtone and a breath of felt."""
    t = clock(0.19)
    frequency = 330 + 150 * np.exp(-t / 0.022)
    phase = 2 * np.pi * np.cumsum(frequency) / RATE
    tone = np.sin(phase) * np.exp(-t / 0.055) + 0.22 * np.sin(2.76 * phase) * np.exp(-t / 0.016)
    felt = np.convolve(np.random.default_rng(3).standard_normal(t.size), np.hanning(41) / 20, 'same')
    return fade(tone + 0.12 * felt * np.exp(-t / 0.01), 0.008, 0.06)


def brass(frequency, seconds, loud, seed):
    """One blown note. The overtones come in after the fundamental and fade before it, as the lips and the bell make
    them do; their phases are spread, which keeps the peaks low. The pitch slides in from just below and a vibrato
    sets in once a note is held."""
    rng = np.random.default_rng(seed)
    t = clock(seconds)
    attack, release = 0.035, min(0.12, seconds * 0.35)
    blow = np.clip(t / attack, 0, 1) ** 0.8 * np.clip((seconds - t) / release, 0, 1) ** 0.7
    blow *= 1 - 0.22 * np.clip((t - attack) / 0.12, 0, 1)
    held = np.clip((t - 0.28) / 0.35, 0, 1)
    blow *= 1 + held * 0.06 * np.sin(2 * np.pi * 5.3 * t)
    cents = -38 * np.exp(-t / 0.018) + held * 9 * np.sin(2 * np.pi * 5.3 * t) + 2.5 * rng.standard_normal()
    phase = 2 * np.pi * np.cumsum(frequency * 2 ** (cents / 1200)) / RATE
    sound = np.zeros_like(t)
    for n in range(1, int(min(24, 13000 / frequency)) + 1):
        formant = 0.35 + np.exp(-((np.log2(n * frequency) - np.log2(1350)) / 0.95) ** 2)
        sound += formant * (loud * blow) ** (0.75 + 0.17 * (n - 1)) * n ** -0.35 * np.sin(n * phase + 0.9 * n * n)
    breath = np.convolve(rng.standard_normal(t.size), np.hanning(9), 'same')
    return fade(sound + 0.02 * breath * blow, 0.003, 0.012)


# Start and length in seconds; notes of first trumpet, second trumpet and horn.
FANFARE = [
    (0.00, 0.13, 'F4', 'C4', 'F3'), (0.15, 0.13, 'A4', 'C4', 'F3'), (0.30, 0.30, 'C5', 'F4', 'A3'),
    (0.62, 0.13, 'Bb4', 'F4', 'Bb3'), (0.77, 0.13, 'D5', 'F4', 'Bb3'), (0.92, 0.30, 'C5', 'E4', 'C4'),
    (1.25, 1.15, 'F5', 'A4', 'F3')]
VOICES = [(0.92, -0.35, 1.0), (0.80, 0.40, 0.75), (0.70, 0.05, 0.95)]      # loudness, place from left to right, share


def fanfare():
    track = np.zeros((2, int(2.85 * RATE)))
    for row, (start, seconds, *notes) in enumerate(FANFARE):
        for voice, (note, (loud, side, share)) in enumerate(zip(notes, VOICES)):
            sound = share * brass(pitch(note), seconds, loud, 10 * row + voice)
            late = start + 0.006 * voice                                    # players are never quite together
            place(track[0], sound * np.sqrt((1 - side) / 2), late)
            place(track[1], sound * np.sqrt((1 + side) / 2), late)
    return fade(room(track, 0.9, 0.28, seed=5), 0.002, 0.35)


def bell(frequency, seconds):
    t = clock(seconds)
    partials = [(0.5, 0.25, 0.9), (1, 1, 0.42), (2.003, 0.5, 0.25), (2.74, 0.22, 0.14), (4.07, 0.16, 0.08), (5.4, 0.08, 0.05)]
    return fade(sum(a * np.sin(2 * np.pi * frequency * f * t) * np.exp(-t / d) for f, a, d in partials), 0.003, 0.25)


def chime():
    """Three small bells upward."""
    track = np.zeros((2, int(0.95 * RATE)))
    for start, note, loud, side in ((0, 'D6', 0.75, -0.3), (0.09, 'F#6', 0.8, 0.3), (0.19, 'A6', 1, 0)):
        sound = loud * bell(pitch(note), 0.74)
        place(track[0], sound * np.sqrt((1 - side) / 2), start)
        place(track[1], sound * np.sqrt((1 + side) / 2), start)
    return fade(room(track, 0.6, 0.16, seed=8), 0.002, 0.2)


if __name__ == '__main__':
    write('boop.wav', step_sound())
    write('Trumpet.wav', fanfare())
    write('Url.wav', chime())
