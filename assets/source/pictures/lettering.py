"""Words as outlines: the pictures must not depend on the fonts of the machine that shows them.

The letters are Linux Biolinum Bold's; letters.py took them out of the font into letters.json."""

import json
import os

from .svg import number, numbers

CAPITAL_HEIGHT = .645       # ems

with open(os.path.join(os.path.dirname(os.path.abspath(__file__)), 'letters.json')) as file:
    _FONT = json.load(file)


def outline(text, size, spacing=0):
    """The word's path with its pen starting at (0, 0) on the baseline, and the word's width.

    Pairs are kerned as the font says; `spacing` is added between the letters."""
    scale = size / _FONT['unitsPerEm']
    data = []
    pen = 0
    for i, character in enumerate(text):
        letter = _FONT['letters'][character]
        for operation, *coordinates in letter['path']:
            placed = [(coordinate + pen) * scale if k % 2 == 0 else -coordinate * scale
                      for k, coordinate in enumerate(coordinates)]
            data.append(operation + ' '.join(numbers(*placed)))
        pen += letter['advance'] + _FONT['pairs'].get(text[i:i + 2], 0) + spacing / scale
    return ''.join(data), pen * scale - spacing


def size_that_fits(text, size, spacing, room):
    """The largest size, no larger than the given one, at which the word is no wider than the room."""
    while size > 20 and outline(text, size, spacing)[1] > room:
        size -= 1
    return size


def baseline(middle, size):
    """Where the baseline lies when capitals are centred on the middle."""
    return middle + size * CAPITAL_HEIGHT / 2


def engraved(drawing, data, x, y, style, depth, rule='', scale=1.0):
    """A word or sign cut into its ground: dark above, lit below, as light falls from the upper left."""
    transform = '' if scale == 1 else 'scale(%s)' % number(scale)
    if style.shade:
        colour, opacity = style.shade
        drawing.path(data, fill=colour, opacity=opacity, at=(x - depth * .55, y - depth), transform=transform, rule=rule)
    if style.lip:
        colour, opacity = style.lip
        drawing.path(data, fill=colour, opacity=opacity, at=(x + depth * .55, y + depth), transform=transform, rule=rule)
    drawing.path(data, fill=style.fill, at=(x, y), transform=transform, rule=rule)
