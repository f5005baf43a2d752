#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Computes when the Sun enters each sign of the zodiac and writes the tables of ../data/fechas-db.

    sign_ingress.py             write the twelve tables
    sign_ingress.py --check     write nothing; compare with the printed equinoxes and solstices of ten years

A table holds one line for each stay of the Sun in its sign, from the Capricorn that was current on
1 January 1900 to the one that begins in December 2100, so that every instant between falls into one
line of one table:

    3/20/2005 12:33:24-4/19/2005 23:37:13

Month/day/year, universal time, CR LF line ends. A stay ends at the very second at which the next sign begins.

Method
    A sign begins when the apparent geocentric longitude of the Sun, counted on the true ecliptic and equinox
    of date, is a multiple of 30 degrees. The Sun is seen where it was when its light left it, from the Earth
    of the SOFA routine epv00 (a VSOP2000 solution fitted to JPL's DE405), with relativistic aberration for the
    Earth's barycentric velocity. Precession and nutation are those of IAU 2006/2000A.

Time scale
    The search runs in terrestrial time; universal time follows by subtracting the difference TT-UT1.
    For 1900 to 2026 that difference is the observed one (U.S. Naval Observatory and IERS, a value for each
    1 January, linear between them). For later years it is a forecast: a cubic that leaves the last observed
    value with the recent drift and meets, in the year 2500, the long-term parabola of Stephenson, Morrison and
    Hohenkerk (2016), -320 + 32.5 u^2 seconds with u in centuries since 1825. It yields 72 s for 2050 and
    96 s for 2100.

Accuracy
    Every ingress from 1899 to 2101 was compared, in terrestrial time so that only the Sun's place counts, with a
    second computation of other origin: the full VSOP87 with the nutation of IAU 1980 (package astronomia).
    It differs by at most 4.3 s from 1950 to 2026 and 7.7 s in all, and nearly all of that is the known error of its
    IAU 1976 precession (0.30" a century); with that removed the worst differences are 1.1 s and 1.3 s.
    The forty printed instants of --check are met within 1.0 s. PyEphem, whose solar longitude is good to about
    half an arc second, stays within 15 s from 1950 to 2026 and 18 s in all.
    Universal time is as good as TT-UT1: better than 1 s from 1956 to 2026 and about 1 s back to 1900;
    the forecast may be wrong by 5 s in 2050 and by some 25 s in 2100. Seconds are cut off, not rounded.

Needs python3-erfa and numpy.
"""
import argparse
import datetime
import math
import os
import warnings

import erfa
import numpy as np

TARGET = os.path.join(os.path.dirname(os.path.dirname(os.path.abspath(__file__))), 'data', 'fechas-db')
SIGNS = ['aries', 'tauro', 'geminis', 'cancer', 'leo', 'virgo',
         'libra', 'escorpio', 'sagitario', 'capricornio', 'acuario', 'piscis']
FIRST_YEAR, LAST_YEAR = 1900, 2100

J2000 = 2451545.0
SECONDS_A_DAY = 86400.0
TROPICAL_YEAR = 365.24219
LIGHT_DAYS_AN_AU = 499.004784 / SECONDS_A_DAY

# TT-UT1 in seconds on 1 January of each year, from 1900 on.
OBSERVED = [
    -2.70, -1.48, -0.08, 1.26, 2.59, 3.92, 5.20, 6.29, 7.68, 9.13,
    10.38, 11.64, 13.23, 14.69, 16.00, 17.19, 18.19, 19.13, 20.14, 20.86,
    21.41, 22.06, 22.51, 23.01, 23.46, 23.63, 23.95, 24.39, 24.34, 24.10,
    24.02, 23.98, 23.89, 23.93, 23.88, 23.91, 23.76, 23.91, 23.96, 24.04,
    24.35, 24.82, 25.30, 25.77, 26.27, 26.76, 27.27, 27.77, 28.25, 28.70,
    29.15, 29.57, 29.97, 30.36, 30.72, 31.07, 31.35, 31.68, 32.17, 32.67,
    33.15, 33.58, 33.99, 34.47, 35.03, 35.74, 36.55, 37.43, 38.29, 39.20,
    40.18, 41.17, 42.23, 43.37, 44.48, 45.48, 46.46, 47.52, 48.53, 49.59,
    50.54, 51.38, 52.17, 52.96, 53.79, 54.34, 54.87, 55.32, 55.82, 56.30,
    56.86, 57.57, 58.31, 59.12, 59.98, 60.79, 61.63, 62.30, 62.97, 63.47,
    63.83, 64.09, 64.30, 64.47, 64.57, 64.69, 64.85, 65.15, 65.46, 65.78,
    66.07, 66.32, 66.60, 66.91, 67.28, 67.64, 68.10, 68.59, 68.97, 69.22,
    69.36, 69.36, 69.29, 69.20, 69.18, 69.14, 69.11]
OBSERVED_FROM = 1900
OBSERVED_TO = OBSERVED_FROM + len(OBSERVED) - 1
RECENT_DRIFT = -0.03                      # seconds a year at the end of the observed values
PARABOLA_FROM = 2500


# Equinoxes and solstices of 1996 to 2005 as J. Meeus printed them (Astronomical Algorithms, 2nd ed., table 27.E):
# day and terrestrial time in March, June, September and December.
PRINTED = [
    '20 8:04:07, 21 2:24:46, 22 18:01:08, 21 14:06:56',
    '20 13:55:42, 21 8:20:59, 22 23:56:49, 21 20:08:05',
    '20 19:55:35, 21 14:03:38, 23 5:38:15, 22 1:57:31',
    '21 1:46:53, 21 19:50:11, 23 11:32:34, 22 7:44:52',
    '20 7:36:19, 21 1:48:46, 22 17:28:40, 21 13:38:30',
    '20 13:31:47, 21 7:38:48, 22 23:05:32, 21 19:22:34',
    '20 19:17:13, 21 13:25:29, 23 4:56:28, 22 1:15:26',
    '21 1:00:50, 21 19:11:32, 23 10:47:53, 22 7:04:53',
    '20 6:49:42, 21 0:57:57, 22 16:30:54, 21 12:42:40',
    '20 12:34:29, 21 6:47:12, 22 22:24:14, 21 18:36:01']


def parabola(year):
    """The long-term course of TT-UT1 in seconds, and its slope in seconds a year."""
    u = (year - 1825) / 100
    return -320 + 32.5 * u * u, 0.65 * u


def tt_minus_ut(year):
    """TT-UT1 in seconds for a decimal year."""
    if year <= OBSERVED_TO:
        return float(np.interp(year, np.arange(OBSERVED_FROM, OBSERVED_TO + 1), OBSERVED))
    span = PARABOLA_FROM - OBSERVED_TO
    t = (year - OBSERVED_TO) / span
    end, end_slope = parabola(PARABOLA_FROM)
    return (OBSERVED[-1] * (2 * t**3 - 3 * t**2 + 1) + RECENT_DRIFT * span * (t**3 - 2 * t**2 + t)
            + end * (3 * t**2 - 2 * t**3) + end_slope * span * (t**3 - t**2))


def decimal_year(jd):
    return 2000 + (jd - J2000) / 365.25


def apparent_longitude(jd):
    """Apparent geocentric longitude of the Sun in radians; jd is a Julian day of terrestrial time."""
    heliocentric, barycentric = erfa.epv00(jd, 0.0)
    sun_velocity = barycentric['v'] - heliocentric['v']
    distance = np.linalg.norm(heliocentric['p'])
    seen = -heliocentric['p'] - sun_velocity * distance * LIGHT_DAYS_AN_AU
    velocity = barycentric['v'] * LIGHT_DAYS_AN_AU       # in units of the speed of light
    direction = erfa.ab(seen / np.linalg.norm(seen), velocity, distance, np.sqrt(1 - velocity @ velocity))
    x, y, z = erfa.pnm06a(jd, 0.0) @ direction
    obliquity = erfa.obl06(jd, 0.0) + erfa.nut06a(jd, 0.0)[1]
    return np.arctan2(y * np.cos(obliquity) + z * np.sin(obliquity), x)


def ingress(year, sign):
    """Julian day (TT) at which the Sun enters the sign (0 = Aries) in the run of signs that begins in March of year."""
    wanted = np.radians(30 * sign)
    jd = J2000 + 78.8 + (year - 2000 + sign / 12) * TROPICAL_YEAR
    for _ in range(12):
        missing = np.remainder(wanted - apparent_longitude(jd) + np.pi, 2 * np.pi) - np.pi
        jd += missing / (2 * np.pi) * TROPICAL_YEAR
        if abs(missing) < 1e-10:
            break
    return jd


def universal_time(jd_tt):
    """The calendar instant of a Julian day (TT) in universal time, in whole seconds as a clock shows them."""
    days = jd_tt - J2000
    seconds = days * SECONDS_A_DAY - tt_minus_ut(decimal_year(jd_tt))
    return datetime.datetime(2000, 1, 1, 12) + datetime.timedelta(seconds=math.floor(seconds))


def stamp(t):
    return f'{t.month}/{t.day}/{t.year} {t.hour}:{t.minute:02d}:{t.second:02d}'


def stays():
    """(sign, begin, end) of every stay that touches the years covered, in order of time."""
    found = []
    for year in range(FIRST_YEAR - 1, LAST_YEAR + 1):
        found += [(sign, universal_time(ingress(year, sign))) for sign in range(12)]
    found.append((0, universal_time(ingress(LAST_YEAR + 1, 0))))
    runs = [(sign, begin, end) for (sign, begin), (_, end) in zip(found, found[1:])]
    return [run for run in runs if run[2].year >= FIRST_YEAR and run[1].year <= LAST_YEAR]


def write_tables():
    os.makedirs(TARGET, exist_ok=True)
    tables = {name: [] for name in SIGNS}
    for sign, begin, end in stays():
        tables[SIGNS[sign]].append(f'{stamp(begin)}-{stamp(end)}\r\n')
    for name, lines in tables.items():
        with open(os.path.join(TARGET, name + '.txt'), 'w', encoding='ascii', newline='') as f:
            f.writelines(lines)


def check():
    """Prints the largest distance of our equinoxes and solstices from the printed ones."""
    worst = (0,)
    for year, row in zip(range(1996, 2006), PRINTED):
        for season, entry in enumerate(row.split(',')):
            day, clock = entry.split()
            hours, minutes, seconds = map(int, clock.split(':'))
            printed = datetime.datetime(year, 3 + 3 * season, int(day), hours, minutes, seconds)
            ours = datetime.datetime(2000, 1, 1, 12) + datetime.timedelta(days=ingress(year, 3 * season) - J2000)
            worst = max(worst, (abs((ours - printed).total_seconds()), str(printed)))
    print(f'worst of {4 * len(PRINTED)}: {worst[0]:.1f} s at {worst[1]}')


if __name__ == '__main__':
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument('--check', action='store_true')
    # Both ends reach a little beyond the years for which the Earth's place carries a guarantee; the loss there is
    # far below a second.
    warnings.simplefilter('ignore', erfa.ErfaWarning)
    check() if parser.parse_args().check else write_tables()
