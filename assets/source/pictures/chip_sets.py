"""The stones for those who see the glass ones badly: flat colours of high contrast in a white rim,
with the same signs, with letters, or with patterns that need neither colour nor sharp eyes.

Qt draws no clipped pictures, so whatever fills a stone is cut to its edge here."""

import math

from . import emblems, lettering
from .chips import CENTRE_X, CENTRE_Y, QUARTERS, SIZE
from .palette import FLAT
from .svg import Drawing, numbers

FACE_RADIUS = 59.6
MEDALLION = 35              # the quiet middle of a patterned stone, and its sign's
LETTERS = {'Yellow': 'Y', 'Red': 'R', 'Green': 'G', 'Blue': 'B'}


def _rim(drawing):
    drawing.circle(CENTRE_X, CENTRE_Y + 1.6, 71.5, fill='#000000', opacity=.35)
    for radius, colour in ((69.6, '#000000'), (67.4, '#FFFFFF'), (61.6, '#000000')):
        drawing.circle(CENTRE_X, CENTRE_Y, radius, fill=colour)


def _letter(drawing, name, x, y, size):
    data, width = lettering.outline(LETTERS[name], size)
    drawing.path(data, fill=FLAT[name][1], at=(x - width / 2, lettering.baseline(y, size)))


def _sign(drawing, name, x, y, scale):
    drawing.path(emblems.OF_CHIP[name](scale), fill=FLAT[name][1], at=(x, y))


def _chord(offset, angle):
    """The ends of a line across the face, so far from its centre, at an angle."""
    half = math.sqrt(FACE_RADIUS ** 2 - offset ** 2)
    along, across = (math.cos(angle), math.sin(angle)), (-math.sin(angle), math.cos(angle))
    return [(CENTRE_X + across[0] * offset + sign * half * along[0],
             CENTRE_Y + across[1] * offset + sign * half * along[1]) for sign in (-1, 1)]


def _lines(drawing, colour, width, offsets, angle):
    for offset in offsets:
        (x1, y1), (x2, y2) = _chord(offset, angle)
        drawing.path('M%s %sL%s %s' % numbers(x1, y1, x2, y2), stroke=colour, width=width, cap='butt')


def _dotted(drawing, ink):
    for radius, count, size in ((47.5, 14, 6.2),):
        for i in range(count):
            turn = 2 * math.pi * i / count
            drawing.circle(CENTRE_X + radius * math.sin(turn), CENTRE_Y - radius * math.cos(turn), size, fill=ink)


def _striped(drawing, ink):
    _lines(drawing, ink, 5.2, [20 * k - 10 for k in range(-2, 4)], -math.pi / 4)


def _chequered(drawing, ink):
    for angle in (0, math.pi / 2):
        _lines(drawing, ink, 4.2, (-52, -26, 0, 26, 52), angle)


def _waved(drawing, ink):
    for row in range(-4, 5):
        data, inside = '', False
        for step in range(-60, 61, 2):
            x, y = step, 17 * row + 4.2 * math.sin(step * math.pi / 15)
            if math.hypot(x, y) > FACE_RADIUS - 1.5:
                inside = False
                continue
            data += ('L' if inside else 'M') + '%s %s' % numbers(CENTRE_X + x, CENTRE_Y + y)
            inside = True
        if data:
            drawing.path(data, stroke=ink, width=4, cap='butt')


PATTERNS = {'Yellow': _dotted, 'Red': _striped, 'Green': _chequered, 'Blue': _waved}


def chip(kind, name):
    """A stone of one colour in the set `contrast`, `letters` or `patterns`."""
    drawing = Drawing(SIZE, SIZE)
    face, ink = FLAT[name]
    _rim(drawing)
    drawing.circle(CENTRE_X, CENTRE_Y, FACE_RADIUS, fill=face)
    if kind == 'patterns' and name in PATTERNS:
        PATTERNS[name](drawing, ink)
        drawing.circle(CENTRE_X, CENTRE_Y, MEDALLION, fill=ink)
        drawing.circle(CENTRE_X, CENTRE_Y, MEDALLION - 3, fill=face)
        _sign(drawing, name, CENTRE_X, CENTRE_Y, .72)
    elif kind == 'letters' and name in LETTERS:
        _letter(drawing, name, CENTRE_X, CENTRE_Y, 116)
    else:
        _sign(drawing, name, CENTRE_X, CENTRE_Y, 1.0 if name == 'Grey' else 1.12)
    return drawing


def multi_chip(kind):
    """A stone that stands for any colour: a quarter of each."""
    drawing = Drawing(SIZE, SIZE)
    _rim(drawing)
    x, y, radius = CENTRE_X, CENTRE_Y, FACE_RADIUS
    for name, right, down in QUARTERS:
        start, end = ((x + right * radius, y), (x, y + down * radius))
        if right * down < 0:
            start, end = end, start
        drawing.path('M%s %sL%s %sA%s %s 0 0 1 %s %sZ' % numbers(x, y, *start, radius, radius, *end),
                     fill=FLAT[name][0])
    for line in ((x, y - radius, x, y + radius), (x - radius, y, x + radius, y)):
        drawing.path('M%s %sL%s %s' % numbers(*line), stroke='#000000', width=5, cap='butt')
        drawing.path('M%s %sL%s %s' % numbers(*line), stroke='#FFFFFF', width=2.4, cap='butt')
    for name, right, down in QUARTERS:
        if kind == 'letters':
            _letter(drawing, name, x + right * 24, y + down * 24, 54)
        else:
            _sign(drawing, name, x + right * 25.5, y + down * 25, .56)
    return drawing


KINDS = ('contrast', 'letters', 'patterns')


def pictures():
    """Name -> a function that returns the Drawing: what stands for a glass stone, and for what shows some."""
    from . import hint_pages    # which shows glass stones unless told otherwise
    known = {}
    for kind in KINDS:
        for name in FLAT:
            known['%sChip-%s' % (name, kind)] = lambda kind=kind, name=name: chip(kind, name)
        known['MultiChip-' + kind] = lambda kind=kind: multi_chip(kind)
        known['HintStage2-' + kind] = lambda kind=kind: hint_pages.second_stage(lambda name: chip(kind, name))
    return known
