"""The title: the game's name down a tall pane that looks into the sea, the four stones on its floor."""

import random

from . import chips, emblems, lettering
from .captions import brass_letters
from .palette import BRASS, BRASS_EDGE, POLISHED_EDGE, SHINE
from .shapes import plate, plate_shadow
from .svg import Drawing, numbers

WIDTH, HEIGHT = 500, 1700
X, Y, W, H = 22, 18, 456, 1656      # the frame
SCOOP = 54
GLASS = 15                          # the frame's width
MIDDLE = WIDTH / 2

_FRAME = [(0, '#FFF3CC'), (.12, '#E9C878'), (.3, '#B58636'), (.5, '#F3DA97'), (.7, '#9A7030'), (.88, '#E9C878'),
          (1, '#B98A3C')]
_WATER = [(0, '#12334F'), (.35, '#123E5C'), (.75, '#0F5066'), (1, '#0B3A4C')]
_SUNLIGHT = [(0, '#9FE3EA', .34), (.5, '#7FCBD8', .12), (1, '#7FCBD8', 0)]
_FAR_SWELL, _MIDDLE_SWELL, _NEAR_SWELL = ((1350, '#1C6C7E', '#124F63'), (1402, '#C99B4E', '#7E5520'),
                                          (1452, '#E3BD73', '#9A6C2C'))
_KELP = [(0, '#3FA57B'), (1, '#0F5A4A')]


def title():
    drawing = Drawing(WIDTH, HEIGHT)
    _frame(drawing)
    _shafts(drawing)
    _swell(drawing, 0, _FAR_SWELL)
    _swell(drawing, 1, _MIDDLE_SWELL)
    for x, length, lean in ((X + 58, 420, 1), (X + 92, 300, -1), (X + W - 104, 360, -1), (X + W - 142, 250, 1)):
        _kelp(drawing, x, length, lean)
    _swell(drawing, 2, _NEAR_SWELL)     # in front, so that the kelp grows out of the sand
    _bubbles(drawing)
    _sun(drawing)
    _name(drawing)
    drawing.path(plate(X + 27, Y + 27, W - 54, H - 54, SCOOP - 8), stroke='#E9C878', width=2.2, opacity=.55)
    for k, stone in enumerate(('Yellow', 'Red', 'Green', 'Blue')):
        scale = .60
        settled = 6 if k in (1, 2) else 0
        half = chips.SIZE / 2 * scale
        drawing.embed(chips.chip(stone), MIDDLE + (k - 1.5) * 92 - half, 1508 - half + settled, scale)
    return drawing


def _frame(drawing):
    plate_shadow(drawing, X, Y, W, H, SCOOP, steps=12, strength=.065, fall=8)
    drawing.path(plate(X, Y, W, H, SCOOP), fill='#2A1708')
    drawing.path(plate(X + 2, Y + 2, W - 4, H - 4, SCOOP), fill=drawing.linear(X, Y, X + W, Y + H * .9, _FRAME))
    drawing.path(plate(X + 12, Y + 12, W - 24, H - 24, SCOOP - 1), fill='#150A03')
    water = plate(X + GLASS, Y + GLASS, W - 2 * GLASS, H - 2 * GLASS, SCOOP - 1)
    drawing.path(water, fill=drawing.linear(0, Y, 0, Y + H, _WATER))
    drawing.path(water, fill=drawing.radial(WIDTH * .36, Y + H * .12, W * 1.25, _SUNLIGHT))


def _shafts(drawing):
    """Light coming down through the water; shares of the pane's width at the top and at the foot."""
    def across(share):
        left, right = X + GLASS + 6, X + W - GLASS - 6
        return min(max(left + (W - 2 * GLASS - 12) * share, left), right)

    for top_left, top_right, foot_left, foot_right, strength in (
            (.20, .36, -.10, .16, .10), (.46, .52, .34, .46, .09), (.60, .82, .62, .98, .08)):
        top, foot = Y + GLASS + 4, Y + H * .66
        drawing.path('M%s %sL%s %sL%s %sL%s %sZ' % numbers(
            across(top_left), top, across(top_right), top, across(foot_right), foot, across(foot_left), foot),
            fill=drawing.linear(0, Y, 0, foot, [(0, '#DFFBFF', strength * 1.8), (1, '#DFFBFF', 0)]))


def _swell(drawing, order, swell):
    """A wavy band across the foot, following the glass's scooped corners."""
    line, light, deep = swell
    left, right = X + GLASS + 3, X + W - GLASS - 3
    data = 'M%s %s' % numbers(left, line)
    for k in range(4):
        start, end = left + (right - left) * k / 4, left + (right - left) * (k + 1) / 4
        up = 22 if (k + order) % 2 else -22
        data += 'C%s %s %s %s %s %s' % numbers(start + (end - start) * .37, line + up, start + (end - start) * .63,
                                               line + up, end, line)
    radius, floor = SCOOP - 1, Y + H - GLASS - 2
    corner = floor - radius
    data += 'L%s %sA%s %s 0 0 0 %s %sL%s %sA%s %s 0 0 0 %s %sZ' % numbers(
        right, corner, radius, radius, X + W - GLASS - radius, floor,
        X + GLASS + radius, floor, radius, radius, left, corner)
    drawing.path(data, fill=drawing.linear(0, line - 20, 0, Y + H, [(0, light), (1, deep)]))


def _kelp(drawing, x, length, lean):
    foot = 1480
    drawing.path('M%s %sC%s %s %s %s %s %s' % numbers(
        x, foot, x + lean * 34, foot - length * .33, x - lean * 36, foot - length * .66, x + lean * 6, foot - length),
        stroke='#0A3A33', width=7, opacity=.9)
    green = drawing.linear(0, foot - length, 0, foot, _KELP)
    for k in range(1, 15):
        t = k / 15.
        stem_y = foot - length * t
        stem_x = x + lean * (34 * 3 * (1 - t) ** 2 * t - 36 * 3 * (1 - t) * t * t + 6 * t ** 3)
        side = 1 if k % 2 else -1
        leaf = 62 * (1.1 - t * .62)

        def point(along, rise):
            return stem_x + side * leaf * along, stem_y - leaf * rise

        drawing.path('M%s %sC%s %s %s %s %s %sC%s %s %s %s %s %sZ' % numbers(
            stem_x, stem_y, *point(.05, .55), *point(.55, .62), *point(.72, 1.02), *point(.86, .42), *point(.52, .04),
            stem_x, stem_y), fill=green)


def _bubbles(drawing):
    """Fifteen of them, none behind the name."""
    chance = random.Random(12)
    for _ in range(15):
        x, y = X + 60 + chance.random() * (W - 120), 330 + chance.random() * 740
        radius = 4 + chance.random() * 9
        if abs(x - MIDDLE) < 95:
            x = MIDDLE + (1 if x > MIDDLE else -1) * (105 + chance.random() * 60)
        drawing.circle(x, y, radius, fill=drawing.radial(
            x, y, radius, [(0, '#FFFFFF', .02), (.75, '#D9FBFF', .16), (1, '#E9FFFF', .6)]))
        drawing.circle(x - radius * .35, y - radius * .35, radius * .2, fill=SHINE, opacity=.8)


def _sun(drawing):
    drawing.circle(MIDDLE, 196, 104, fill=drawing.radial(MIDDLE, 196, 104, [(0, '#FFE9A0', .45), (1, '#FFE9A0', 0)]))
    sun = emblems.sun(1.95)
    drawing.path(sun, fill='#03121A', opacity=.6, at=(MIDDLE + 2.5, 199.5), stroke='#03121A', width=4)
    drawing.path(sun, fill=drawing.linear(-40, -66, 40, 66, BRASS), stroke=BRASS_EDGE, width=2.5, at=(MIDDLE, 196))


def _name(drawing):
    size, first, step = 176, 412, 148
    for k, letter in enumerate('VEYRAND'):
        data, width = lettering.outline(letter, size)
        x, base = MIDDLE - width / 2, first + k * step
        drawing.path(data, fill='#020C12', opacity=.55, at=(x + 4, base + 6), stroke='#020C12', width=9)
        drawing.path(data, fill=POLISHED_EDGE, stroke=POLISHED_EDGE, width=8, at=(x, base))
        drawing.path(data, fill=brass_letters(drawing, -size * .66, 2), at=(x, base))
        drawing.path(data, stroke='#FFF9E2', width=1.3, opacity=.5, at=(x, base))
