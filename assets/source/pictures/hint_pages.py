"""Pictures as large as the board, for the pages that explain it: arrows from a page's words to what
they speak of, and rings round what the board does not show at that time."""

from . import arrows, chips, marks
from .palette import POLISHED_EDGE, POLISHED_RING
from .panes import small_pane
from .shapes import capsule
from .svg import UNITS_PER_HEIGHT, Drawing

WIDTH, HEIGHT = 3200, 2000


def _at(x, y):
    """A place on the board, in game heights from the lower left, in the picture's units."""
    return x * UNITS_PER_HEIGHT, (1 - y) * UNITS_PER_HEIGHT


def _pane(drawing, left, top, width, height):
    small_pane(drawing, *_at(left, top), width * UNITS_PER_HEIGHT, height * UNITS_PER_HEIGHT)


def _ring(drawing, centre, rx, ry):
    cx, cy = centre
    drawing.path(capsule(cx, cy + 2, rx, ry), stroke=POLISHED_EDGE, width=13, opacity=.75)
    drawing.path(capsule(cx, cy, rx, ry), stroke=drawing.linear(0, cy - ry, 0, cy + ry, POLISHED_RING), width=7)


def _arrow(drawing, start, control1, control2, end):
    """A curved arrow between places on the board, lit over its own height."""
    points = [_at(*place) for place in (start, control1, control2, end)]
    heights = [y for _, y in points]
    arrows.paint(drawing, arrows.outline(*points), min(heights), max(heights))


def first_stage():
    """The words' plate, and the tick beside the buttons in a ring."""
    drawing = Drawing(WIDTH, HEIGHT)
    _pane(drawing, .63, .655, .80, .345)
    centre = _at(.5, .285)
    _ring(drawing, centre, 98, 98.01)
    drawing.embed(marks.checkmark(), centre[0] - 75, centre[1] - 75)
    _arrow(drawing, (.78, .31), (.74, .25), (.64, .245), (.557, .275))
    return drawing


def second_stage(stone=chips.chip):
    """The words' plate, and a ringed column of stones where the next line's pieces appear."""
    drawing = Drawing(WIDTH, HEIGHT)
    _pane(drawing, .63, .655, .90, .345)
    middle = .5025
    _ring(drawing, _at(.5, middle), 94, 320)
    for k, name in enumerate(('Yellow', 'Red', 'Green', 'Blue')):
        x, y = _at(.5, middle + .075 * (k - 1.5))
        drawing.embed(stone(name), x - chips.SIZE / 2, y - chips.SIZE / 2)
    _arrow(drawing, (.70, .31), (.66, .24), (.57, .25), (.534, .345))
    return drawing


def hint_and_moves():
    """Two arrows, from the words to the buttons Hint and Moves."""
    drawing = Drawing(WIDTH, HEIGHT)
    for y in (.275, .2):
        _arrow(drawing, (.60, y + .052), (.54, y + .060), (.47, y + .04), (.388, y + .008))
    return drawing


def delete_button():
    """An arrow from the words to the button that removes the second line."""
    drawing = Drawing(WIDTH, HEIGHT)
    _arrow(drawing, (.80, .705), (.72, .70), (.66, .76), (.648, .842))
    return drawing
