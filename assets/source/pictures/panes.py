"""What messages lie on: the framed pane of sea glass, its smaller sister, the veil, a rule."""

import random

from .palette import (BRASS, BRASS_FRAME, BRASS_FRAME_INNER, FRAME_EDGE, FRAME_GRAIN, FRAME_WOOD, GEM, GLASS, GLASS_EDGE,
                      GLASS_LIGHT, GLASS_LINE, GLASS_LINE_CUT, GLASS_POOL, PLATE_GLASS, VEIL)
from .shapes import lozenge, plate, plate_shadow
from .svg import Drawing, numbers


def message_background():
    """The pane in its wooden frame. It is shown in two proportions, so there are no circles in it."""
    width, height = 2133.334, 1333.34
    drawing = Drawing(width, height)
    margin, scoop = 34, 74
    x, y, w, h = margin, margin - 6, width - 2 * margin, height - 2 * margin

    def ring(inset, tighter=0):
        return plate(x + inset, y + inset, w - 2 * inset, h - 2 * inset, scoop - tighter)

    def along_frame(ramp):
        return drawing.linear(x, y, x + w * .6, y + h, ramp)

    plate_shadow(drawing, x, y, w, h, scoop, steps=18, strength=.052, fall=9)
    drawing.path(ring(0), fill=FRAME_EDGE)
    drawing.path(plate(x + 2, y + 2, w - 4, h - 4, scoop), fill=along_frame(BRASS_FRAME))
    drawing.path(ring(11, 1), fill='#1A0E05')
    drawing.path(ring(13, 1), fill=drawing.linear(0, y, 0, y + h, FRAME_WOOD))
    _frame_grain(drawing, x, y, w, h)
    drawing.path(ring(38, 3), fill=along_frame(BRASS_FRAME_INNER))
    drawing.path(ring(43, 4), fill=GLASS_EDGE)
    glass = ring(46, 4)
    py, ph = y + 46, h - 92
    drawing.path(glass, fill=drawing.linear(0, py, 0, py + ph, GLASS))
    # Its light gathers along the edge; where words stand the glass is even.
    for step in range(12):
        drawing.path(ring(48 + step * 4.6, 4 + step * .7), stroke=GLASS_LIGHT, width=5.6,
                     opacity=.30 * (1 - step / 12.) ** 1.6)
    drawing.path(plate(x + 67.6, y + 68, w - 132, h - 132, scoop - 10), stroke=GLASS_LINE_CUT, width=2.4, opacity=.55)
    drawing.path(ring(66, 10), stroke=GLASS_LINE, width=2.2, opacity=.50)
    for cx, cy in ((width / 2, y + 25.5), (width / 2, y + h - 25.5), (x + 25.5, y + h / 2), (x + w - 25.5, y + h / 2)):
        _gems(drawing, cx, cy, across=cx == width / 2)
    return drawing


def _frame_grain(drawing, x, y, w, h):
    chance = random.Random(5)
    for k in range(3):
        for line in (y + 19 + k * 6, y + h - 19 - k * 6):
            start = x + 110 + chance.random() * 260
            while start < x + w - 420:
                end = min(start + 200 + chance.random() * 420, x + w - 120)
                drawing.path('M%s %sL%s %s' % numbers(start, line + chance.random() * 2, end, line + chance.random() * 2),
                             stroke=FRAME_GRAIN, width=1.4, opacity=.45)
                start = end + 30 + chance.random() * 120


def _gems(drawing, cx, cy, across):
    """A brass lozenge with a drop of glass between two small ones, set into the frame."""
    for step in (-1, 0, 1):
        size = 15 if step == 0 else 8
        x, y = (cx + step * 34, cy) if across else (cx, cy + step * 34)
        drawing.path(lozenge(size, size), fill='#120801', opacity=.8, at=(x + 1, y + 1.6))
        drawing.path(lozenge(size, size), fill=drawing.linear(-size * .7, -size * .7, size * .7, size * .7, BRASS),
                     at=(x, y))
        if step == 0:
            drawing.path(lozenge(8.5, 8.5), fill=drawing.linear(-6, -6, 6, 6, GEM), at=(x, y))


def small_pane(drawing, x, y, w, h):
    """A plate of the same glass without the wooden frame, for the pages that explain the hints."""
    scoop = 46
    plate_shadow(drawing, x, y, w, h, scoop, steps=12, strength=.06, fall=7)
    drawing.path(plate(x, y, w, h, scoop), fill=FRAME_EDGE)
    drawing.path(plate(x + 2, y + 2, w - 4, h - 4, scoop), fill=drawing.linear(x, y, x + w * .6, y + h, BRASS))
    drawing.path(plate(x + 11, y + 11, w - 22, h - 22, scoop - 2), fill=GLASS_EDGE)
    glass = plate(x + 14, y + 14, w - 28, h - 28, scoop - 3)
    drawing.path(glass, fill=drawing.linear(0, y + 14, 0, y + h - 14, PLATE_GLASS))
    drawing.path(glass, fill=drawing.radial(x + w * .3, y + h * .1, w * .6, [GLASS_POOL[0], GLASS_POOL[2]]))
    drawing.path(plate(x + 28, y + 28, w - 56, h - 56, scoop - 9), stroke=GLASS_LINE, width=2, opacity=.45)


def veil():
    drawing = Drawing(3200, 2000)
    drawing.path('M0 0H3200V2000H0Z', fill=drawing.radial(1600, 1000, 1900, VEIL))
    return drawing


def horizontal_line():
    """A hair of brass that fades at both ends, its shadow on the glass below it."""
    width, height = 1800, 12
    drawing = Drawing(width, height)
    drawing.path('M0 8L900 3.6L1800 8L900 11Z',
                 fill=drawing.linear(0, 0, width, 0, [(0, '#0B3B4A', 0), (.5, '#0B3B4A', .7), (1, '#0B3B4A', 0)]))
    drawing.path('M0 6L900 2L1800 6L900 8.4Z', fill=drawing.linear(
        0, 0, width, 0,
        [(0, '#F6DFA2', 0), (.12, '#EBCB7E', .7), (.5, '#FFF3CC'), (.88, '#EBCB7E', .7), (1, '#F6DFA2', 0)]))
    return drawing
