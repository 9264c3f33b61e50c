"""The signs on the buttons that walk through something step by step, carved in maple or ivory on enamel."""

from .palette import CARVING
from .svg import Drawing, numbers

SIDE = 80
IVORY = '#FFF8E6'
BAR = 9


def _triangle(drawing, fill, tip, base):
    middle = SIDE / 2
    drawing.path('M%s %sL%s %sL%s %sZ' % numbers(base, middle - 22, base, middle + 22, tip, middle), fill=fill)


def _bar(drawing, fill, x):
    drawing.path('M%s %sH%sV%sH%sZ' % numbers(x, 18, x + BAR, 62, x), fill=fill)


def sign(name, fill):
    drawing = Drawing(SIDE, SIDE)
    if name == 'First':
        _bar(drawing, fill, 18)
        _triangle(drawing, fill, 29, 62)
    elif name == 'Back':
        _triangle(drawing, fill, 22, 56)
    elif name == 'Run':
        _triangle(drawing, fill, 62, 24)
    elif name == 'Pause':
        _bar(drawing, fill, 25)
        _bar(drawing, fill, 46)
    elif name == 'On':
        _triangle(drawing, fill, 58, 24)
    else:
        _triangle(drawing, fill, 51, 18)
        _bar(drawing, fill, 53)
    return drawing


def pictures():
    """Name -> a function that returns the Drawing."""
    known = {}
    for name in ('First', 'Back', 'Run', 'Pause', 'On', 'Last'):
        known['Step' + name] = lambda name=name: sign(name, CARVING)
        known['Step%s-Lit' % name] = lambda name=name: sign(name, IVORY)
    return known
