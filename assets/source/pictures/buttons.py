"""The buttons. Each exists twice: bare maple with burnt words, and, for the pointer above it, lit
enamel in a brass frame. Both have the same outline and the same words in the same place."""

import random
from dataclasses import dataclass
from typing import Optional, Tuple

from . import lettering
from .palette import (BRASS, BRASS_EDGE, BURNT_LINE, BURNT_LINE_LIP, CARVING, ENAMEL, IVORY, MAPLE, MAPLE_EDGE,
                      MAPLE_GRAIN, SHINE)
from .shapes import lozenge, plate, plate_shadow
from .svg import UNITS_PER_HEIGHT, Drawing, number, numbers

# --- icons, centred on (0, 0), about 30 units in radius
BULB = ('M0 -32C-14 -32 -24 -22 -24 -9C-24 2 -17 7 -13 14C-11.5 16.6 -11 19 -11 21L11 21C11 19 11.5 16.6 13 14'
        'C17 7 24 2 24 -9C24 -22 14 -32 0 -32ZM-11 -10C-11 -16 -6 -20 -1 -20.5L-1 -16C-4 -15.5 -7 -13 -7 -10Z'
        'M-10.5 24L10.5 24L10.5 28L-10.5 28ZM-7.5 31L7.5 31C6.5 34 3.5 36 0 36C-3.5 36 -6.5 34 -7.5 31Z')
LIST = ('M-30 -20a8 8 0 1 0 16 0a8 8 0 1 0 -16 0ZM-8 -24L30 -24L30 -16L-8 -16Z'
        'M-30 0a8 8 0 1 0 16 0a8 8 0 1 0 -16 0ZM-8 -4L30 -4L30 4L-8 4Z'
        'M-30 20a8 8 0 1 0 16 0a8 8 0 1 0 -16 0ZM-8 16L30 16L30 24L-8 24Z')
HOUSE = 'M0 -31L34 -1L28 5L0 -19.5L-28 5L-34 -1ZM-23 7L0 -13L23 7L23 30L7 30L7 11L-7 11L-7 30L-23 30Z'
UP = 'M0 -24L30 14L13 14L13 15L0 -1L-13 15L-13 14L-30 14ZM0 4L22 32L-22 32Z'
DOWN = 'M0 24L-30 -14L-13 -14L-13 -15L0 1L13 -15L13 -14L30 -14ZM0 -4L-22 -32L22 -32Z'


@dataclass
class Style:
    """How words are cut: their colour, and the colour and opacity of the cut's dark and lit lips."""
    fill: str
    shade: Optional[Tuple[str, float]] = None
    lip: Optional[Tuple[str, float]] = None


RAISED = Style(fill=IVORY, lip=('#1A0C02', .65))
CARVED = Style(fill=CARVING, shade=('#2A1505', .35), lip=('#FFF4D6', .9))


@dataclass
class Board:
    """A plate's place, and the corners of an edge that are not scooped like the rest."""
    x: float
    y: float
    width: float
    height: float
    scoop: float
    top: Optional[float] = None
    bottom: Optional[float] = None

    def inset(self, by, scoop_less):
        def corner(radius):
            return None if radius is None else 0

        return plate(self.x + by, self.y + by, self.width - 2 * by, self.height - 2 * by,
                     max(self.scoop - scoop_less, 0), corner(self.top), corner(self.bottom))

    @property
    def sharp_top(self):
        return self.top is not None


def _grain(drawing, board, seed):
    """Thin wavy strokes that keep clear of the scooped corners."""
    chance = random.Random(seed)
    x, y, width, height, inset = board.x, board.y, board.width, board.height, board.scoop
    count = int(height / 6)
    for i in range(count):
        line = y + inset * .55 + (height - inset * 1.1) * (i + chance.random() * .8) / count
        beside_corner = line < y + inset or line > y + height - inset
        edge = inset * (1.25 if beside_corner else .55)
        start = x + edge + chance.random() ** 2 * width * .45
        end = x + width - edge - chance.random() ** 2 * width * .45
        if end - start < width * .12:
            continue
        third = (end - start) / 3
        bends = [(chance.random() - .5) * 3.4 for _ in range(3)]
        drawing.path('M%s %sC%s %s %s %s %s %s' % numbers(
            start, line, start + third, line + bends[0], start + 2 * third, line + bends[1], end, line + bends[2] * .4),
            stroke=MAPLE_GRAIN, width=.8 + chance.random() * 1.6, opacity=.42 * (.35 + .65 * chance.random()))


def maple_plate(drawing, board, seed):
    x, y, width, height = board.x, board.y, board.width, board.height
    plate_shadow(drawing, x, y, width, height, board.scoop, steps=7, strength=.10, fall=3, top=board.top,
                 bottom=board.bottom)
    drawing.path(plate(x, y, width, height, board.scoop, board.top, board.bottom), fill=MAPLE_EDGE)
    drawing.path(board.inset(1.92, 0), fill=drawing.linear(0, y, 0, y + height, MAPLE))
    _grain(drawing, board, seed)
    line = board.inset(11, 3)
    drawing.path(line, stroke=BURNT_LINE_LIP, width=1.7, opacity=.75, at=(1.2, 1.2))
    drawing.path(line, stroke=BURNT_LINE, width=1.7, opacity=.75)


def enamel_plate(drawing, board, enamel):
    light, middle, deep = ENAMEL[enamel]
    x, y, width, height = board.x, board.y, board.width, board.height
    plate_shadow(drawing, x, y, width, height, board.scoop, steps=7, strength=.11, fall=0, colour='#FFE9A8',
                 top=board.top, bottom=board.bottom)
    drawing.path(plate(x, y, width, height, board.scoop, board.top, board.bottom), fill=BRASS_EDGE)
    drawing.path(board.inset(1.4, 0), fill=drawing.linear(x, y, x + width * .55, y + height, BRASS))
    drawing.path(board.inset(7.5, 1.5), fill='#241303')
    inset = 9
    drawing.path(board.inset(inset, 1.5), fill=drawing.linear(
        0, y + inset, 0, y + height - inset, [(0, deep), (.07, middle), (.72, middle), (1, light)]))
    drawing.path(board.inset(inset, 1.5), fill=drawing.radial(
        x + width * .5, y + height * 1.25, width * .5, [(0, light, .5), (1, light, 0)]))
    _gloss(drawing, board, inset)


def _gloss(drawing, board, inset):
    """The sky in the enamel's upper half; faint where the words are, which it must not wash out."""
    x, y, width, height = board.x, board.y, board.width, board.height
    scoop = 0 if board.sharp_top else board.scoop - 3
    left, right = x + inset + 3.5, x + width - inset - 3.5
    top, middle = y + inset + 3.5, y + inset + (height - 2 * inset) * .5
    right_corner = left_corner = ''
    if scoop:
        right_corner = 'A%s %s 0 0 0 %s %s' % numbers(scoop, scoop, right, top + scoop)
        left_corner = 'A%s %s 0 0 0 %s %s' % numbers(scoop, scoop, left + scoop, top)
    edge = middle - height * .10
    dip = middle + height * .03
    drawing.path('M%s %sH%s%sV%sC%s %s %s %s %s %sV%s%sZ' % (
        number(left + scoop), number(top), number(right - scoop), right_corner, number(edge),
        *numbers(right - width * .25, dip, left + width * .25, dip, left, edge), number(top + scoop), left_corner),
        fill=drawing.linear(0, top, 0, middle, [(0, SHINE, .36), (.4, SHINE, .10), (1, SHINE, .02)]))


def _board_and_style(drawing, board, enamel, seed):
    if enamel is None:
        maple_plate(drawing, board, seed)
        return CARVED
    enamel_plate(drawing, board, enamel)
    return RAISED


SIDE_LETTERING, SIDE_WORD_ROOM = 56, 176
HALF_LETTERING, HALF_WORD_ROOM = 74, 250


def side_lettering(words):
    """The size at which all of the words fit beside their signs: the buttons stand below one another."""
    return min(lettering.size_that_fits(word, SIDE_LETTERING, 1, SIDE_WORD_ROOM) for word in words)


def half_lettering(words):
    return min(lettering.size_that_fits(word, HALF_LETTERING, 2, HALF_WORD_ROOM) for word in words)


def side_button(word, icon, size, enamel, seed):
    """Hint, Moves and Menu beside the board. No enamel gives the bare face."""
    width, height, margin = 300, .06880733944954 * UNITS_PER_HEIGHT, 9
    drawing = Drawing(width, height)
    style = _board_and_style(drawing, Board(margin, margin - 2, width - 2 * margin, height - 2 * margin, 15), enamel, seed)
    icon_middle, word_left = 58, 102     # the same on all three: one column of signs, one of words
    data, _ = lettering.outline(word, size, 1)
    middle = height / 2 - 2
    lettering.engraved(drawing, icon, icon_middle, middle - 1, style, 1.8, rule='evenodd', scale=.84)
    lettering.engraved(drawing, data, word_left, lettering.baseline(middle, size), style, 1.8)
    return drawing


def large_button(words, enamel, seed, width=566, height=244, size=104, side_room=118):
    """The title page's buttons and, wider, the dialogues'."""
    drawing = Drawing(width, height)
    margin = 14
    style = _board_and_style(drawing, Board(margin, margin - 3, width - 2 * margin, height - 2 * margin, 26), enamel, seed)
    middle = height / 2 - 3
    size = lettering.size_that_fits(words, size, 2, width - 2 * margin - side_room)
    data, words_width = lettering.outline(words, size, 2)
    lettering.engraved(drawing, data, width / 2 - words_width / 2, lettering.baseline(middle, size), style, 2.4)
    for side in (-1, 1):
        lettering.engraved(drawing, lozenge(11, 15), width / 2 + side * (words_width / 2 + 30), middle, style, 1.8)
    return drawing


def dialogue_button(words, enamel, seed):
    return large_button(words, enamel, seed, width=846, height=236, size=98, side_room=160)


def harder_half(word, size, enamel, seed):
    """The upper half of the plate that Harder and Easier share; its lower edge is straight."""
    margin, height = 9, .08703703703704 * UNITS_PER_HEIGHT
    board = Board(margin, margin, 400 - 2 * margin, height - margin - 1.5, 18, bottom=0)
    return _half(word, size, UP, board, height, (margin + height - 1.5) / 2, -3, enamel, seed)


def easier_half(word, size, enamel, seed):
    margin, height = 9, .08703703703704 * UNITS_PER_HEIGHT
    board = Board(margin, 1.5, 400 - 2 * margin, height - margin - 5, 18, top=0)
    return _half(word, size, DOWN, board, height, (1.5 + height - margin - 3) / 2, 3, enamel, seed)


def _half(word, size, icon, board, height, middle, icon_shift, enamel, seed):
    width = 400
    drawing = Drawing(width, height)
    style = _board_and_style(drawing, board, enamel, seed)
    data, word_width = lettering.outline(word, size, 2)
    left = (width - (60 + 18 + word_width)) / 2
    lettering.engraved(drawing, icon, left + 30, middle + icon_shift, style, 1.8, rule='evenodd')
    lettering.engraved(drawing, data, left + 78, lettering.baseline(middle, size), style, 1.8)
    return drawing
