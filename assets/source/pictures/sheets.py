"""What the map of the puzzles and the pages beside it are made of.

They belong to the view: none is ever a thing of the board. Plates are drawn once for each size that
is used, so that no corner is stretched.
"""

import math

from .buttons import Board, enamel_plate, maple_plate
from .extras import SHADOW_ROOM, _ivory, _plate_drawing, _star
from .palette import (BRASS, BRASS_EDGE, BRASS_PLATE, BRASS_SEAT, CARVING, MAPLE, RIBBON, RIBBON_EDGE, SHADOW,
                      SHINE)
from .panes import small_pane
from .shapes import plate, plate_shadow
from .svg import UNITS_PER_HEIGHT, Drawing, numbers

STONE = 72              # thousandths, the shadow's room included
BUTTONS = ((474, 70), (400, 74), (232, 74), (232, 66), (190, 60), (84, 70), (66, 58))
CARDS = ((474, 388), (474, 282), (968, 112), (230, 118), (154, 126))
PANES = ((968, 916), (968, 760), (950, 566), (490, 262))


def _stone():
    size = STONE * UNITS_PER_HEIGHT / 1000
    return Drawing(size, size), size / 2


def _shadow_under(drawing, c, radius):
    for grow, opacity in ((9, .10), (6, .14), (3, .20)):
        drawing.circle(c + 1, c + 5, radius + grow, fill=SHADOW, opacity=opacity)


def _rim(drawing, c, fill):
    _shadow_under(drawing, c, 58)
    drawing.circle(c, c, 58, fill=BRASS_EDGE)
    drawing.circle(c, c, 56.4, fill=drawing.linear(c - 40, c - 44, c + 40, c + 44, BRASS))
    drawing.circle(c, c, 51.2, fill=BRASS_SEAT)
    drawing.circle(c, c, 49.2, fill=fill)


def closed():
    """A place that has not been reached: an empty seat in the wood."""
    drawing, c = _stone()
    drawing.circle(c, c, 54, fill=drawing.radial(c, c, 54, [(0, '#2A190B'), (.7, '#1B0F06'), (1, '#0B0502')]))
    drawing.circle(c, c, 53, stroke='#0B0502', width=4)
    drawing.path('M%s %sA54 54 0 0 0 %s %s' % numbers(c - 50, c + 18, c + 50, c + 18), stroke='#9A7040', width=2.8,
                 opacity=.55)
    drawing.circle(c, c, 6.8, fill='#8A6A40')
    return drawing


def reached():
    """A place to be played: maple with a triangle."""
    drawing, c = _stone()
    _rim(drawing, c, drawing.linear(0, c - 50, 0, c + 50, MAPLE))
    drawing.path('M%s %sV%sL%s %sZ' % numbers(c - 14, c - 22, c + 22, c + 24, c), fill=CARVING)
    return drawing


def solved():
    """Sea glass, for the two numbers."""
    drawing, c = _stone()
    _rim(drawing, c, drawing.radial(c, c + 12, 62, [(0, '#2F8593'), (.7, '#1F6473'), (1, '#0F4050')]))
    drawing.path('M%s %sA44 44 0 0 1 %s %sC%s %s %s %s %s %sZ' % numbers(
        c - 40, c + 4, c + 26, c - 35, c, c - 31, c - 27, c - 17, c - 40, c + 4), fill=SHINE, opacity=.26)
    return drawing


def at_par():
    """Brass with a star above its number."""
    drawing, c = _stone()
    _shadow_under(drawing, c, 58)
    drawing.circle(c, c, 58, fill=BRASS_EDGE)
    drawing.circle(c, c, 56.4, fill=drawing.linear(c - 40, c - 44, c + 40, c + 44, BRASS))
    drawing.circle(c, c, 50, fill=drawing.linear(0, c - 50, 0, c + 50, BRASS_PLATE), stroke='#7A531C', width=2)
    drawing.path(_star(5, 20, 9), fill='#6B3A06', at=(c, c - 22))
    return drawing


def chosen():
    """Round the stone that the keys or the pointer are on."""
    size = .088 * UNITS_PER_HEIGHT
    drawing = Drawing(size, size)
    c = size / 2
    drawing.circle(c, c, 72, stroke='#120802', width=13, opacity=.85)
    drawing.circle(c, c, 72, stroke='#FFF8E6', width=7)
    return drawing


def star():
    drawing = Drawing(48, 48)
    drawing.path(_star(5, 22, 9.6), fill='#5A3206', at=(25, 26.5))
    drawing.path(_star(5, 21, 9.2), fill='#FFD873', at=(24, 25))
    return drawing


def button(width, height, enamel):
    drawing = Drawing(2 * width + 2 * SHADOW_ROOM, 2 * height + 2 * SHADOW_ROOM)
    board = Board(SHADOW_ROOM, SHADOW_ROOM, 2 * width, 2 * height, 24)
    if enamel:
        enamel_plate(drawing, board, enamel)
    else:
        maple_plate(drawing, board, width + height)
    return drawing


def card(width, height):
    drawing, x, y, w, h = _plate_drawing(width, height)
    _ivory(drawing, x, y, w, h, 28)
    drawing.path(plate(x + 16, y + 16, w - 32, h - 32, 22), stroke='#C9A86A', width=1.6, opacity=.8)
    return drawing


def pane(width, height):
    drawing, x, y, w, h = _plate_drawing(width, height)
    plate_shadow(drawing, x, y, w, h, 40, steps=9, strength=.08, fall=6)
    small_pane(drawing, x, y, w, h)
    return drawing


def puzzles_button():
    """On the title page, for the view alone."""
    drawing, x, y, w, h = _plate_drawing(220, 84)
    plate_shadow(drawing, x, y, w, h, 26, steps=10, strength=.08, fall=6)
    drawing.path(plate(x, y, w, h, 26), fill=BRASS_EDGE)
    drawing.path(plate(x + 2, y + 2, w - 4, h - 4, 26), fill=drawing.linear(x, y, x + w * .6, y + h, BRASS))
    drawing.path(plate(x + 9, y + 9, w - 18, h - 18, 24), fill=drawing.linear(0, y, 0, y + h, BRASS_PLATE))
    drawing.path(plate(x + 18, y + 18, w - 36, h - 36, 19), stroke='#7A5518', width=2, opacity=.8)
    return drawing


def tag(garnet):
    """Holds a move's number beside its line."""
    drawing = Drawing(.060 * UNITS_PER_HEIGHT, .060 * UNITS_PER_HEIGHT)
    c = drawing.width / 2
    for grow, opacity in ((5, .12), (3, .18)):
        drawing.circle(c, c + 4, 52 + grow, fill=SHADOW, opacity=opacity)
    drawing.circle(c, c, 52, fill=BRASS_EDGE)
    drawing.circle(c, c, 50.4, fill=drawing.linear(c - 36, c - 40, c + 36, c + 40, BRASS))
    fill = '#7A1F14' if garnet else drawing.linear(0, c - 44, 0, c + 44, BRASS_PLATE)
    drawing.circle(c, c, 44, fill=fill, stroke=BRASS_EDGE, width=2)
    return drawing


def ribbon():
    """Beside the line where the shortest way was left."""
    drawing = Drawing(360, 112)
    data = 'M6 6H354V106H6L40 56Z'
    drawing.path(data, fill=SHADOW, opacity=.3, at=(2, 4))
    drawing.path(data, fill=drawing.linear(0, 0, 360, 100, RIBBON), stroke=RIBBON_EDGE, width=3)
    return drawing


def seat():
    """An empty place of a line."""
    drawing = Drawing(.066 * UNITS_PER_HEIGHT, .066 * UNITS_PER_HEIGHT)
    c = drawing.width / 2
    drawing.circle(c, c, 62, fill=drawing.radial(c, c, 62, [(0, '#2A190B'), (.7, '#1B0F06'), (1, '#0B0502')]))
    drawing.circle(c, c, 61, stroke='#0B0502', width=4)
    return drawing


def day(kind):
    """A day of the calendar."""
    drawing = Drawing(.080 * UNITS_PER_HEIGHT, .080 * UNITS_PER_HEIGHT)
    c = drawing.width / 2
    if kind == 'Coming':
        drawing.circle(c, c, 58, fill='#174E5B', stroke='#0E3442', width=4)
    elif kind == 'Open':
        drawing.circle(c, c, 60, fill='#123F4B')
        for start in range(0, 360, 15):
            x1, y1, x2, y2 = (c + 60 * f(math.radians(start + turn)) for turn in (0, 9) for f in (math.cos, math.sin))
            drawing.path('M%s %sA60 60 0 0 1 %s %s' % numbers(x1, y1, x2, y2), stroke='#C9F3EE', width=3.6)
    else:
        drawing.circle(c, c, 66, fill=drawing.linear(c - 46, c - 50, c + 46, c + 50, BRASS), stroke=BRASS_EDGE, width=2)
        fill = drawing.linear(0, c - 57, 0, c + 57, BRASS_PLATE) if kind == 'AtPar' else '#0F4653'
        drawing.circle(c, c, 57, fill=fill, stroke=BRASS_SEAT, width=2)
    if kind == 'AtPar':
        drawing.circle(c + 46, c - 42, 31, fill='#5A3206', stroke='#E9C878', width=3)
        drawing.path(_star(5, 20, 9), fill='#FFE08A', at=(c + 46, c - 42))
    elif kind == 'Over':
        drawing.circle(c + 46, c - 42, 31, fill='#0B2F3A', stroke='#E9C878', width=3)
    return drawing


def disc():
    """Holds a number that is to be proud of."""
    drawing = Drawing(.166 * UNITS_PER_HEIGHT, .166 * UNITS_PER_HEIGHT)
    c = drawing.width / 2
    for grow, opacity in ((12, .10), (8, .14), (4, .20)):
        drawing.circle(c + 1, c + 6, 146 + grow, fill=SHADOW, opacity=opacity)
    drawing.circle(c, c, 146, fill=BRASS_EDGE)
    drawing.circle(c, c, 144, fill=drawing.linear(c - 100, c - 110, c + 100, c + 110, BRASS))
    drawing.circle(c, c, 128, fill=drawing.linear(0, c - 128, 0, c + 128, BRASS_PLATE), stroke='#7A531C', width=3)
    return drawing


def triangle(way, fill, edge):
    """Leads to what comes before or after."""
    drawing = Drawing(48, 48)
    drawing.path('M%s 7L%s 24L%s 41Z' % numbers(24 - 11 * way, 24 + 13 * way, 24 - 11 * way), fill=fill, stroke=edge,
                 width=2.4)
    return drawing


def cross():
    """In the place of the check mark: no."""
    drawing = Drawing(96, 96)
    for x in (24, 72):
        drawing.path('M%s 24L%s 72' % numbers(x, 96 - x), stroke='#2A0A06', width=22)
    for x in (24, 72):
        drawing.path('M%s 24L%s 72' % numbers(x, 96 - x), stroke='#C8402C', width=15)
    return drawing


def bar(fill, edge, dash=''):
    """A piece of a chart, drawn out to its length."""
    drawing = Drawing(48, 24)
    drawing.path('M0 0H48V24H0Z', fill=fill)
    if dash:
        for x in (2, 18, 34):
            drawing.path('M%s 1.5H%s' % numbers(x, x + 10), stroke=dash, width=3)
    if edge:
        drawing.path('M0 0V24M48 0V24', stroke=edge, width=2)
    return drawing


def pictures():
    """Name -> a function that returns the Drawing."""
    known = {
        'PuzzleClosed': closed, 'PuzzleReached': reached, 'PuzzleSolved': solved, 'PuzzleAtPar': at_par,
        'PuzzleChosen': chosen, 'PuzzleStar': star, 'PuzzlesButton': puzzles_button, 'MoveTag': lambda: tag(False),
        'MoveTagLeft': lambda: tag(True), 'LeftRibbon': ribbon, 'EmptySeat': seat,
    }
    known.update({
        'BrassDisc': disc, 'NotReachable': cross,
        'BackGold': lambda: triangle(-1, '#FFE9B0', '#3A2208'), 'OnGold': lambda: triangle(1, '#FFE9B0', '#3A2208'),
        'BackDark': lambda: triangle(-1, '#3B2210', '#3B2210'), 'OnDark': lambda: triangle(1, '#3B2210', '#3B2210'),
        'BarGold': lambda: bar('#F0CE7C', ''), 'BarPale': lambda: bar('#BEE6EA', '', '#3E8C98'),
        'BarPlain': lambda: bar('#BEE6EA', ''), 'BarOpen': lambda: bar('#174E5B', ''),
        'BarTrack': lambda: bar('#0C3340', ''),
    })
    for width, height in BUTTONS:
        name = 'SheetButton-%d-%d' % (width, height)
        known[name] = lambda width=width, height=height: button(width, height, None)
        known[name + '-Lit'] = lambda width=width, height=height: button(width, height, 'green')
    for width, height in CARDS:
        known['SheetCard-%d-%d' % (width, height)] = lambda width=width, height=height: card(width, height)
    for width, height in PANES:
        known['SheetPane-%d-%d' % (width, height)] = lambda width=width, height=height: pane(width, height)
    for kind in ('Coming', 'Open', 'AtPar', 'Over'):
        known['Day' + kind] = lambda kind=kind: day(kind)
    return known
