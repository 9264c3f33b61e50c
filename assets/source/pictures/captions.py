"""Points, Stage and Par: words of inlaid brass, a fading rule with a lozenge on either side."""

from . import lettering
from .palette import BRASS_LETTERS, GROOVE, GROOVE_LIP
from .shapes import lozenge
from .svg import Drawing, numbers

LETTERING = 86
RULES_SPAN = 400            # the rules' outer ends, whatever the picture's width


def brass_letters(drawing, top, bottom):
    return drawing.linear(0, top, 0, bottom, BRASS_LETTERS)


def caption(word, width=400.0, height=120.0):
    drawing = Drawing(width, height)
    middle_x, middle_y = width / 2, height / 2
    size = lettering.size_that_fits(word, LETTERING, 4, RULES_SPAN - 110)
    data, word_width = lettering.outline(word, size, 4)
    left, base = middle_x - word_width / 2, lettering.baseline(middle_y, size)
    # The groove goes all round the letters: on light grain brass alone would be too pale to read.
    drawing.path(data, fill=GROOVE, opacity=.8, at=(left, base), stroke=GROOVE, width=6)
    drawing.path(data, fill=GROOVE_LIP, opacity=.35, at=(left + 1.6, base + 3.2))
    drawing.path(data, fill=GROOVE, at=(left, base), stroke=GROOVE, width=3)
    drawing.path(data, fill=brass_letters(drawing, -size * .66, size * .02), at=(left, base))
    for side in (-1, 1):
        _rule(drawing, middle_x + side * (word_width / 2 + 20), middle_x + side * (RULES_SPAN / 2 - 6), middle_y, side)
    return drawing


def _rule(drawing, start, end, y, side):
    if (end - start) * side < 24:
        return
    for dy, colour, opacity in ((-1.8, GROOVE, .6), (1.8, GROOVE_LIP, .3), (0, None, 1)):
        fading = [(0, colour, opacity), (1, colour, 0)] if colour else [(0, '#F0D089'), (1, '#A87C33', .0)]
        drawing.path('M%s %sL%s %sL%s %sZ' % numbers(start, y - 2.6 + dy, end, y + dy, start, y + 2.6 + dy),
                     fill=drawing.linear(start, 0, end, 0, fading))
    drawing.path(lozenge(8, 10), fill=GROOVE, opacity=.6, at=(start - side * 2 - .8, y - 1.4))
    drawing.path(lozenge(7.5, 9.5), fill=brass_letters(drawing, -10, 10), at=(start - side * 2, y))
