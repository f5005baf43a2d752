# SPDX-License-Identifier: GPL-3.0-or-later
"""The vocabulary of the scenes: all that the kit, the figures and the things have to offer, in one import.

Scenes and the helpers they share (regal, beasts, emblems, the minors' own) import this with a star, or a helper which
hands it on; they are read like a description, and most of their words are these. Everything else in this folder imports
by name.
"""
from figures import *
from kit import *
from props import *
