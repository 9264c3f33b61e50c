"""Small signs: the tick of the first hint, the cross that removes a line, the lock, the badge."""

from .palette import (BRASS, BRASS_EDGE, BRASS_ROUND_OUTER, BRASS_SEAT, GARNET, GARNET_CROSS, IVORY, PAPER, POLISHED_EDGE,
                      RIBBON, RIBBON_EDGE, SHADOW, SHINE, STEEL, STEEL_EDGE, TICK, TICK_EDGE)
from .shapes import scalloped_disc
from .svg import Drawing, numbers

_TICK = ('M-52 4C-46 -4 -38 -10 -30 -13C-22 -3 -17 6 -12 17C4 -16 26 -42 54 -58C58 -55 60 -52 61 -48'
         'C34 -24 10 10 -8 52C-14 56 -22 57 -28 55C-34 36 -42 19 -52 4Z')
_TICK_SHINE = ('M-47 3C-42 -3 -36 -8 -31 -10C-24 0 -19 9 -13 21C3 -12 26 -40 54 -55C26 -36 6 -8 -11 30'
               'C-17 16 -26 4 -32 -4C-37 -3 -42 0 -47 3Z')


def checkmark():
    """A tick of green glass in a brass rim."""
    drawing = Drawing(150, 150)
    place = (72, 78)
    drawing.path(_TICK, fill=SHADOW, opacity=.25, stroke=SHADOW, width=13, at=(74, 82))
    drawing.path(_TICK, fill=POLISHED_EDGE, stroke=POLISHED_EDGE, width=13.5, at=place)
    drawing.path(_TICK, fill='#E9C878', stroke=drawing.linear(-50, -50, 50, 50, BRASS), width=10, at=place)
    drawing.path(_TICK, fill=TICK_EDGE, stroke=TICK_EDGE, width=2.4, at=place)
    drawing.path(_TICK, fill=drawing.linear(-20, -50, 10, 56, TICK), at=place)
    drawing.path(_TICK_SHINE, fill=SHINE, opacity=.5, at=place)
    return drawing


_CROSS = ('M-17 -11.5L-11.5 -17L0 -5.5L11.5 -17L17 -11.5L5.5 0L17 11.5L11.5 17L0 5.5L-11.5 17L-17 11.5L-5.5 0Z')


def delete():
    """A garnet in a brass bezel with a cross: a stone's small sister."""
    drawing = Drawing(99, 99)
    c, y = 49.5, 48.9
    for radius, opacity in ((46.5, .10), (45.2, .14), (44, .2)):
        drawing.circle(c + .6, c + 2, radius, fill=SHADOW, opacity=opacity)
    drawing.circle(c, y, 42.8, fill=BRASS_EDGE)
    drawing.circle(c, y, 41.6, fill=drawing.linear(18, 14, 80, 84, BRASS_ROUND_OUTER))
    drawing.circle(c, y, 36, fill=BRASS_SEAT)
    drawing.circle(c, y, 34.8, fill=drawing.radial(c, c, 35, GARNET, (c + 2, c + 8)))
    drawing.path(_CROSS, fill='#1E0703', opacity=.7, at=(c + 1.2, c + 1.2))
    drawing.path(_CROSS, fill=GARNET_CROSS, at=(c, y))
    drawing.path('M%s %sA31 31 0 0 1 %s %sC%s %s %s %s %s %sZ' % numbers(
        c - 28, c + 4, c + 17, c - 26, c, c - 22, c - 18, c - 12, c - 28, c + 4), fill=SHINE, opacity=.28)
    return drawing


_SHACKLE = ('M68 112L68 84C68 54 90 32 119 32C148 32 170 54 170 84L170 112L146 112L146 86C146 68 134 56 119 56'
            'C104 56 92 68 92 86L92 112Z')
_LOCK_BODY = ('M52 104C52 98 56 94 62 94L176 94C182 94 186 98 186 104L186 176C186 194 172 206 156 206L82 206'
              'C66 206 52 194 52 176Z')
_LOCK_FACE = ('M64 110C64 107 66 105 69 105L169 105C172 105 174 107 174 110L174 174C174 186 165 195 154 195'
              'L84 195C73 195 64 186 64 174Z')
_KEYHOLE = ('M119 124C109.500 124 102 131.500 102 141C102 147.500 105.500 152.500 110.500 155.500L106 180L132 180'
            'L127.500 155.500C132.500 152.500 136 147.500 136 141C136 131.500 128.500 124 119 124Z')


def lock():
    """A brass padlock with a steel shackle, beside the Endless button until that is unlocked."""
    drawing = Drawing(238, 238)
    for width, opacity in ((9, .10), (6, .14), (3, .2)):
        drawing.path(_LOCK_BODY, fill=SHADOW, opacity=opacity, stroke=SHADOW, width=width, at=(2, 5))
    drawing.path(_SHACKLE, fill=STEEL_EDGE, stroke=STEEL_EDGE, width=6)
    drawing.path(_SHACKLE, fill=drawing.linear(60, 30, 178, 110, STEEL))
    drawing.path(_LOCK_BODY, fill=POLISHED_EDGE, stroke=POLISHED_EDGE, width=6)
    drawing.path(_LOCK_BODY, fill=drawing.linear(52, 94, 176, 206, BRASS))
    face = [(0, '#B98A3C'), (.5, '#E6C579'), (1, '#F8E5B4')]
    drawing.path(_LOCK_FACE, fill=drawing.linear(64, 105, 174, 195, face), stroke='#7A5518', width=2)
    drawing.path(_KEYHOLE, fill='#FFF6D8', opacity=.8, at=(1.5, 2))
    drawing.path(_KEYHOLE, fill=POLISHED_EDGE)
    return drawing


_RIBBON_SHADOW = 'M98 150L92 290L150 256L208 290L202 150Z'
_RIBBON = 'M103 150L97 282L150 250L203 282L197 150Z'
_BOOK = ('M0 -22C-14 -34 -34 -38 -54 -34L-54 30C-34 26 -14 30 0 42C14 30 34 26 54 30L54 -34C34 -38 14 -34 0 -22Z')
_PAGES = ('M-3 -13L-3 29C-15 21 -31 18 -46 19L-46 -27C-30 -29 -14 -24 -3 -13Z'
          'M3 -13C14 -24 30 -29 46 -27L46 19C31 18 15 21 3 29Z')


def save_game_badge():
    """A medal with an open book and a ribbon behind it: a game to go on with."""
    drawing = Drawing(300, 300)
    c, cy = 150, 118
    drawing.path(_RIBBON_SHADOW, fill=SHADOW, opacity=.3, at=(3, 6))
    drawing.path(_RIBBON_SHADOW, fill=RIBBON_EDGE)
    drawing.path(_RIBBON, fill=drawing.linear(108, 0, 192, 0, RIBBON))
    for radius, opacity in ((107, .08), (104, .12), (101, .18)):
        drawing.circle(c + 1, cy + 5, radius, fill=SHADOW, opacity=opacity)
    coin = scalloped_disc(c, cy, 94, 108, 20)
    drawing.path(coin, fill=BRASS_EDGE, stroke=BRASS_EDGE, width=3)
    drawing.path(coin, fill=drawing.linear(70, 50, 230, 210, BRASS))
    drawing.circle(c, cy, 86, fill=drawing.linear(80, 60, 220, 200, [(0, '#8A6426'), (.5, '#E7C475'), (1, '#FFF3CC')]))
    drawing.circle(c, cy, 80, fill='#0A2A36')
    drawing.circle(c, cy, 77.5, fill=drawing.radial(
        c, cy, 78, [(0, '#3F9BA8'), (.65, '#23808F'), (1, '#0D4152')], (c + 6, cy + 12)))
    drawing.path(_BOOK, fill='#06222C', opacity=.7, at=(c + 2, cy + 4))
    drawing.path(_BOOK, fill=IVORY, at=(c, cy))
    drawing.path(_PAGES, fill=drawing.linear(-46, 0, 46, 0, PAPER), at=(c, cy))
    for side in (-1, 1):
        for line in range(3):
            y = cy - 3 + line * 12
            drawing.path('M%s %sQ%s %s %s %s' % numbers(c + side * 11, y, c + side * 24, y - 10, c + side * 40, y - 11),
                         stroke='#8A6A3A', width=3, opacity=.7)
    drawing.path('M%s %sA72 72 0 0 1 %s %sC%s %s %s %s %s %sZ' % numbers(
        c - 66, cy + 14, c + 44, cy - 57, c + 6, cy - 52, c - 44, cy - 30, c - 66, cy + 14),
        fill=drawing.linear(c - 56, cy - 56, c - 10, cy, [(0, SHINE, .5), (1, SHINE, .02)]))
    return drawing
