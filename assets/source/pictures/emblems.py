"""The signs on the stones, centred on (0, 0) and about 34 units in radius."""

import math
import re

from .shapes import disc
from .svg import number, numbers

_FLAME = ('M2 -38C5 -25 22 -17 24 4C25.5 21 14 33 0 33C-14 33 -25 22 -23 5C-22 -4 -16 -9 -13 -17'
          'C-9 -13 -7 -9 -6.5 -5C-2 -13 2 -24 2 -38Z'
          'M1 -2C-1 7 -10 10 -9.5 18C-9 24 -5 27.5 0 27.5C6 27.5 10 23 9.5 17C9 10 3 7 1 -2Z')
_LEAF = 'M-31 33C-37 6 -27 -27 32 -33C35 20 9 39 -19 27C-11 13 0 1 16 -14C-6 -3 -18 11 -25 33Z'
_WAVE = ('M-37 -5C-27 -5 -24 -20 -11 -22C1 -23.5 8 -14 3.5 -6.5C1.5 -10.5 -2.5 -12.5 -6 -11'
         'C-2 -1 8 -3.5 15 -10C21 -15.5 28 -18 37 -16C33.5 -13 30 -8 25 -3.5C15 5.5 0 8 -9 -0.5'
         'C-16 4.5 -25 7 -37 -5Z'
         'M-33 13C-24 22 -14 21 -6 15C3 24 16 23 24 15C28 11.5 31 10 35 10C32 15 29 19 25 23'
         'C16 31 4 31 -5 25C-15 31 -26 27 -33 13Z')


def _scaled(data, scale):
    """The path, whose coordinates are all absolute, made larger about (0, 0)."""
    text = ''
    for token in re.findall(r'[A-Za-z]|-?\d*\.?\d+', data):
        text += token if token.isalpha() else ' ' + number(float(token) * scale)
    return text


def flame(scale=1):
    return _scaled(_FLAME, scale)


def leaf(scale=1):
    return _scaled(_LEAF, scale)


def wave(scale=1):
    return _scaled(_WAVE, scale)


def sun(scale=1):
    """A disc and eight rays that stand free of it, every other one a little shorter."""
    data = ''
    for i in range(8):
        angle = math.radians(45 * i)
        length = (37 if i % 2 == 0 else 34) * scale

        def point(along, across):
            return '%s %s' % numbers(along * math.sin(angle) + across * math.cos(angle),
                                     -along * math.cos(angle) + across * math.sin(angle))

        foot, waist = 18.5 * scale, 25 * scale
        data += 'M%sQ%s %sQ%s %sZ' % (point(foot, -7.6 * scale), point(waist, -4.6 * scale), point(length, 0),
                                      point(waist, 4.6 * scale), point(foot, 7.6 * scale))
    return data + disc(14.8 * scale)


def dots(scale=1):
    """Three dots: any stone at all."""
    return ''.join(disc(7.5 * scale, x * scale) for x in (-21, 0, 21))


OF_CHIP = {'Yellow': sun, 'Red': flame, 'Green': leaf, 'Blue': wave, 'Grey': dots}
