"""What the view adds to the board while it is played on: lights, rings, plates for words, dust.

None of these is ever a thing of the board: they lie on it for a moment and take no press. What must
be soft is made of gradients and stacked outlines, as everywhere.
"""

import math
import random

from .palette import (BRASS, BRASS_EDGE, BRASS_PLATE, CHIP, EXTRA_DARK, FOCUS_EDGE, IVORY, IVORY_PLATE, LIMIT, RIBBON,
                      RIBBON_EDGE, SHADOW, SHINE, WARM_LIGHT)
from .shapes import plate, plate_shadow, scalloped_disc
from .svg import UNITS_PER_HEIGHT, Drawing, number, numbers

FIELD = 1.01 * UNITS_PER_HEIGHT     # from the panel's edge to the board's
ROW = .075 * UNITS_PER_HEIGHT


def _box(x, y, width, height):
    return 'M%s %sH%sV%sH%sZ' % numbers(x, y, x + width, y + height, x)


def row_light():
    """On the wood under the line that is played on."""
    drawing = Drawing(FIELD, ROW)
    drawing.path(_box(0, 0, FIELD, ROW), fill=drawing.linear(
        0, 0, FIELD, 0, [(0, '#FFB765', .26), (.55, '#FFB765', .17), (1, '#FFB765', .03)]))
    for y in (0, ROW - 3.6):
        drawing.path(_box(0, y, FIELD, 3.6), fill=drawing.linear(
            0, 0, FIELD, 0, [(0, '#FFE7AE', .85), (.6, '#FFE7AE', .55), (1, '#FFE7AE', 0)]))
    return drawing


def row_flash():
    """The same place for a moment, when another line was tried."""
    drawing = Drawing(FIELD, ROW)
    drawing.path(_box(0, 0, FIELD, ROW), fill=drawing.linear(
        0, 0, FIELD, 0, [(0, WARM_LIGHT, .34), (.6, WARM_LIGHT, .22), (1, WARM_LIGHT, .06)]))
    return drawing


def ring():
    """Round a stone on which the lifted one may be dropped."""
    size = .086 * UNITS_PER_HEIGHT
    drawing = Drawing(size, size)
    drawing.circle(size / 2, size / 2, 77, stroke=EXTRA_DARK, width=14, opacity=.8)
    drawing.circle(size / 2, size / 2, 77, stroke=drawing.linear(30, 20, 150, 160, BRASS), width=6.8)
    return drawing


def halo():
    """Round a thing, and not on it: the light over the thing itself is the shine's."""
    size = .096 * UNITS_PER_HEIGHT
    drawing = Drawing(size, size)
    drawing.circle(size / 2, size / 2, size / 2, fill=drawing.radial(
        size / 2, size / 2, size / 2,
        [(0, WARM_LIGHT, 0), (.74, WARM_LIGHT, 0), (.76, WARM_LIGHT, .62), (.86, '#FFD27A', .28), (1, '#FFC04A', 0)]))
    return drawing


def shine():
    size = .075 * UNITS_PER_HEIGHT
    drawing = Drawing(size, size)
    drawing.circle(size / 2, size / 2, size * .42, fill=drawing.radial(
        size / 2, size * .62, size * .55, [(0, '#FFF3CC', .2), (.7, '#FFF3CC', .08), (1, '#FFF8E6', .03)]))
    return drawing


def limit_edge():
    """The board's right edge lights up: no line may pass it."""
    width, height = .06 * UNITS_PER_HEIGHT, .13 * UNITS_PER_HEIGHT
    drawing = Drawing(width, height)
    for step in range(10, 0, -1):
        grow = step * 4.4
        drawing.path('M%s %sa%s %s 0 0 1 %s 0V%sa%s %s 0 0 1 %s 0Z' % numbers(
            width / 2 - grow, 50, grow, grow, 2 * grow, height - 50, grow, grow, -2 * grow),
            fill=LIMIT, opacity=.055)
    for side in (-1, 1):
        drawing.path(_box(width / 2 + side * 7 - 2.6, 55, 5.2, ROW), fill=EXTRA_DARK)
    drawing.path(_box(width / 2 - 4.6, 55, 9.2, ROW), fill=LIMIT)
    return drawing


def limit_ring():
    """The place of the last stone a line can hold."""
    size = .075 * UNITS_PER_HEIGHT
    drawing = Drawing(size, size)
    radius, count = 66.0, 14
    for colour, width in ((EXTRA_DARK, 8), (LIMIT, 4.6)):
        for i in range(count):
            start, end = 2 * math.pi * (i + .2) / count, 2 * math.pi * (i + .8) / count
            drawing.path('M%s %sA%s %s 0 0 1 %s %s' % numbers(
                size / 2 + radius * math.sin(start), size / 2 - radius * math.cos(start), radius, radius,
                size / 2 + radius * math.sin(end), size / 2 - radius * math.cos(end)), stroke=colour, width=width)
    return drawing


def limit_row():
    """The last row a line can stand in."""
    drawing = Drawing(FIELD, ROW)
    drawing.path(_box(0, 0, FIELD, ROW), fill=drawing.linear(
        0, 0, FIELD, 0, [(0, LIMIT, .16), (.8, LIMIT, .12), (1, LIMIT, 0)]))
    for y in (0, ROW - 6):
        drawing.path(_box(0, y, FIELD, 6), fill=drawing.linear(
            0, 0, FIELD, 0, [(0, LIMIT, 1), (.8, LIMIT, .8), (1, LIMIT, 0)]))
    return drawing


# --- where the keyboard stands: light between two dark lines, so that it is seen on any ground. A little
# larger than what it goes round.

FOCUS_ROOM = 18      # outside the light's middle
FOCUS_DARK, FOCUS_LIGHT = 17, 8.4


def _focus(width, height, data):
    drawing = Drawing(width + 2 * FOCUS_ROOM, height + 2 * FOCUS_ROOM)
    path = data(FOCUS_ROOM, FOCUS_ROOM)
    drawing.path(path, stroke=FOCUS_EDGE, width=FOCUS_DARK)
    drawing.path(path, stroke=IVORY, width=FOCUS_LIGHT)
    return drawing


def focus_round(radius):
    return _focus(2 * radius, 2 * radius, lambda x, y: 'M%s %sa%s %s 0 1 0 %s 0a%s %s 0 1 0 %s 0Z' % numbers(
        x, y + radius, radius, radius, 2 * radius, radius, radius, -2 * radius))


def focus_plate(width, height, scoop, top=None, bottom=None):
    return _focus(width, height, lambda x, y: plate(x, y, width, height, scoop, top, bottom))


# --- plates for words: drawn in steps of width, so that their corners are never stretched

SHADOW_ROOM = 20        # round every plate
TIP_WIDTHS = range(180, 661, 60)        # thousandths of the game's height
TIP_HEIGHTS = {1: 56, 2: 92, 3: 128}
WHISPER_WIDTHS = range(240, 561, 40)
WHISPER_HEIGHTS = range(80, 231, 30)    # of large words in several lines, on the widest
HEADING_WIDTHS = range(240, 901, 60)
NOSE = (60, 40)


def _plate_drawing(width, height):
    drawing = Drawing(2 * width + 2 * SHADOW_ROOM, 2 * height + 2 * SHADOW_ROOM)
    return drawing, SHADOW_ROOM, SHADOW_ROOM, 2 * width, 2 * height


def _ivory(drawing, x, y, w, h, scoop):
    plate_shadow(drawing, x, y, w, h, scoop, steps=9, strength=.075, fall=5)
    drawing.path(plate(x, y, w, h, scoop), fill=BRASS_EDGE)
    drawing.path(plate(x + 1.6, y + 1.6, w - 3.2, h - 3.2, scoop), fill=drawing.linear(x, y, x + w * .6, y + h, BRASS))
    drawing.path(plate(x + 6.5, y + 6.5, w - 13, h - 13, scoop - 1), fill='#5A3C12')
    drawing.path(plate(x + 8, y + 8, w - 16, h - 16, scoop - 1), fill=drawing.linear(0, y, 0, y + h, IVORY_PLATE))


def tip_plate(width, lines):
    drawing, x, y, w, h = _plate_drawing(width, TIP_HEIGHTS[lines])
    _ivory(drawing, x, y, w, h, 16)
    return drawing


def tip_nose(turn):
    """Points at what the tip explains; drawn pointing up and turned by quarters, clockwise."""
    width, height = NOSE if turn % 2 == 0 else NOSE[::-1]
    drawing = Drawing(width, height)
    tones = (IVORY_PLATE[0][1], '#F7EFDC', IVORY_PLATE[1][1], '#F7EFDC')

    def turned(points):
        for _ in range(turn):
            points = [(-y, x) for x, y in points]
        return 'M' + 'L'.join('%s %s' % numbers(width / 2 + px, height / 2 + py) for px, py in points) + 'Z'

    drawing.path(turned([(-26, 19), (0, -18), (26, 19)]), fill=BRASS_EDGE)
    drawing.path(turned([(-24, 19), (0, -15.5), (24, 19)]), fill='#D9B465')
    drawing.path(turned([(-18, 20), (0, -6.5), (18, 20)]), fill=tones[turn])
    return drawing


def whisper_plate(width, height=50):
    drawing, x, y, w, h = _plate_drawing(width, height)
    drawing.path(plate(x, y, w, h, 18), fill=EXTRA_DARK, opacity=.78 if height == 50 else .94)  # buttons lie behind
    drawing.path(plate(x + 6, y + 6, w - 12, h - 12, 15), stroke='#C79A66', width=1.8, opacity=.55)
    return drawing


def heading_plate(width):
    drawing, x, y, w, h = _plate_drawing(width, 79)
    _ivory(drawing, x, y, w, h, 22)
    drawing.path(plate(x + 16, y + 16, w - 32, h - 32, 17), stroke='#C9A86A', width=1.6, opacity=.8)
    return drawing


def brass_plate():
    """What a solved puzzle brought is engraved on it."""
    drawing, x, y, w, h = _plate_drawing(560, 156)
    plate_shadow(drawing, x, y, w, h, 34, steps=12, strength=.07, fall=9)
    drawing.path(plate(x, y, w, h, 34), fill=BRASS_EDGE)
    drawing.path(plate(x + 2, y + 2, w - 4, h - 4, 34), fill=drawing.linear(x, y, x + w * .6, y + h, BRASS))
    drawing.path(plate(x + 9, y + 9, w - 18, h - 18, 32), fill=drawing.linear(0, y, 0, y + h, BRASS_PLATE))
    drawing.path(plate(x + 25.6, y + 26.2, w - 50, h - 50, 24), stroke='#FFF4CF', width=2, opacity=.8)
    drawing.path(plate(x + 24, y + 24, w - 50, h - 50, 24), stroke='#7A5518', width=2.2, opacity=.8)
    for cx in (x + 58, x + w - 58):
        for cy in (y + 46, y + h - 46):
            drawing.circle(cx, cy, 8, fill='#7A5518')
            drawing.circle(cx, cy - .8, 6.6, fill=drawing.linear(cx - 5, cy - 5, cx + 5, cy + 5, BRASS))
    return drawing


# --- a puzzle is solved

def line_glow():
    """A band of light behind a line; as long as the line, and soft on all sides."""
    width, height = .8 * UNITS_PER_HEIGHT, .11 * UNITS_PER_HEIGHT
    drawing = Drawing(width, height)
    count = 44
    for i in range(count):
        away = abs((i + .5) / count * 2 - 1)
        strength = .46 * (1 - away ** 2) ** 2
        y = height * i / count
        drawing.path(_box(0, y, width, height / count), fill=drawing.linear(0, 0, width, 0, [
            (0, '#FFD27A', 0), (.05, '#FFD27A', strength * .22), (.12, '#FFDB90', strength * .8), (.2, '#FFE3A0', strength),
            (.8, '#FFE3A0', strength), (.88, '#FFDB90', strength * .8), (.95, '#FFD27A', strength * .22), (1, '#FFD27A', 0)]))
    return drawing


def spark():
    """The light that runs along the line."""
    size = .13 * UNITS_PER_HEIGHT
    drawing = Drawing(size, size)
    c = size / 2
    drawing.circle(c, c, c, fill=drawing.radial(
        c, c, c, [(0, '#FFF8E6', .95), (.22, '#FFE9A8', .8), (.5, '#FFD27A', .35), (1, '#FFC04A', 0)]))
    star = 'M0 %s' % number(-c * .86)
    for i in range(4):
        angle = math.pi / 2 * i
        for turn, radius in ((.25, .11), (1, .86)):
            at = angle + math.pi / 2 * turn
            star += 'L%s %s' % numbers(c * radius * math.sin(at), -c * radius * math.cos(at))
    drawing.path(star + 'Z', fill='#FFF8E6', opacity=.92, at=(c, c))
    return drawing


def dust(stone):
    """What a stone becomes: grains of its own colours, denser in the middle."""
    size = .12 * UNITS_PER_HEIGHT
    drawing = Drawing(size, size)
    chance = random.Random(['Yellow', 'Red', 'Green', 'Blue'].index(stone) + 31)
    colours = (CHIP[stone]['light'], CHIP[stone]['face'], CHIP[stone]['deep'])
    for i in range(44):
        angle, distance = chance.random() * 2 * math.pi, chance.random() ** .7 * size * .46
        drawing.circle(size / 2 + distance * math.sin(angle), size / 2 + distance * math.cos(angle),
                       2.2 + chance.random() * 5.2, fill=colours[i % 3], opacity=.55 + .4 * chance.random())
    return drawing


# --- a rank is achieved

MEDALS = 11
_METALS = {
    'bronze': [(0, '#F2C49A'), (.3, '#C98A55'), (.6, '#8F5526'), (1, '#C08048')],
    'silver': [(0, '#FFFFFF'), (.3, '#CFD6DC'), (.6, '#88939C'), (1, '#D6DDE2')],
    'gold': [(0, '#FFF6D2'), (.3, '#F3CE6E'), (.6, '#B5812A'), (1, '#EBC368')],
}
_GLASSES = {
    'bronze': [(0, '#3F9BA8'), (.65, '#1F6B7B'), (1, '#0D3F4E')],
    'silver': [(0, '#5C88DE'), (.65, '#2C56B8'), (1, '#132A6B')],
    'gold': [(0, '#DE6A52'), (.65, '#A82A1C'), (1, '#5E100B')],
}


def _star(points, outer, inner):
    data = ''
    for i in range(points * 2):
        angle, radius = math.pi * i / points, outer if i % 2 == 0 else inner
        data += ('L' if data else 'M') + '%s %s' % numbers(radius * math.sin(angle), -radius * math.cos(angle))
    return data + 'Z'


_CROWN = 'M-62 30L-70 -34L-36 -6L0 -62L36 -6L70 -34L62 30Z'


def medal(rank):
    """Each rank's own: its star has a ray more than the one before, its metal shows how far one has come.

    The last has a crown."""
    drawing = Drawing(620, 420)
    c, cy = 310, 190
    metal = 'bronze' if rank <= 4 else 'silver' if rank <= 8 else 'gold'
    for side in (-1, 1):
        ribbon = 'M%s %sC%s %s %s %s %s %sL%s %sL%s %sC%s %s %s %s %s %sZ' % numbers(
            c + side * 90, cy - 20, c + side * 150, cy + 20, c + side * 200, cy + 60, c + side * 240, cy + 130,
            c + side * 212, cy + 122, c + side * 186, cy + 160, c + side * 150, cy + 100, c + side * 110, cy + 80,
            c + side * 80, cy + 70)
        for width, opacity in ((14, .10), (7, .16)):
            drawing.path(ribbon, fill=SHADOW, opacity=opacity, stroke=SHADOW, width=width, at=(2, 6))
        drawing.path(ribbon, fill=drawing.linear(c, cy, c + side * 230, cy + 120, RIBBON), stroke=RIBBON_EDGE, width=3)
    for radius, opacity in ((174, .07), (168, .10), (162, .16)):
        drawing.circle(c + 1, cy + 8, radius, fill=SHADOW, opacity=opacity)
    coin = scalloped_disc(c, cy, 148, 170, 24)
    drawing.path(coin, fill=BRASS_EDGE, stroke=BRASS_EDGE, width=4)
    drawing.path(coin, fill=drawing.linear(c - 120, cy - 120, c + 120, cy + 130, _METALS[metal]))
    drawing.circle(c, cy, 128, fill=drawing.linear(c + 100, cy + 100, c - 100, cy - 100, _METALS[metal]))
    drawing.circle(c, cy, 114, fill='#0A1216')
    drawing.circle(c, cy, 110, fill=drawing.radial(c, cy, 112, _GLASSES[metal], (c + 10, cy + 20)))
    if rank == MEDALS:
        for at, fill, opacity in ((5, '#000000', .45), (0, '#FFF8E6', 1)):
            drawing.path(_CROWN, fill=fill, opacity=opacity, at=(c + at * .6, cy + at))
            drawing.path(_box(-62, 40, 124, 16), fill=fill, opacity=opacity, at=(c + at * .6, cy + at))
    else:
        star = _star(rank + 3, 78, 26 + 2.2 * rank)
        drawing.path(star, fill='#000000', opacity=.45, at=(c + 3, cy + 5))
        drawing.path(star, fill='#FFF8E6', at=(c, cy))
        drawing.circle(c, cy, 13, fill=_GLASSES[metal][1][1])
    drawing.path('M%s %sA100 100 0 0 1 %s %sC%s %s %s %s %s %sZ' % numbers(
        c - 92, cy + 20, c + 60, cy - 80, c + 8, cy - 72, c - 62, cy - 42, c - 92, cy + 20),
        fill=drawing.linear(c - 80, cy - 80, c, cy, [(0, SHINE, .45), (1, SHINE, .02)]))
    return drawing


# --- great moments

def rays():
    """Light that fans out from behind the crest of a page."""
    size = UNITS_PER_HEIGHT
    drawing = Drawing(size, size)
    c = size / 2
    light = drawing.radial(c, c, c, [(0, WARM_LIGHT, .62), (.3, WARM_LIGHT, .30), (.65, WARM_LIGHT, .09), (1, WARM_LIGHT, 0)])
    count = 14
    for i in range(count):
        angle = 2 * math.pi * (i + .18) / count
        half = math.pi / count * (.52 if i % 2 else .34)
        drawing.path('M%s %sL%s %sL%s %sZ' % numbers(
            c, c, c + 1.2 * c * math.sin(angle - half), c - 1.2 * c * math.cos(angle - half),
            c + 1.2 * c * math.sin(angle + half), c - 1.2 * c * math.cos(angle + half)), fill=light)
    drawing.circle(c, c, c * .42, fill=drawing.radial(
        c, c, c * .42, [(0, '#FFF3CC', .55), (.5, WARM_LIGHT, .2), (1, WARM_LIGHT, 0)]))
    return drawing


def trail():
    """Behind a stone that rises; as long as it likes, for it is stretched."""
    width, height = 33, 145
    drawing = Drawing(width, height)
    drawing.path('M0 0H%sL%s %sH%sZ' % numbers(width, width * .56, height, width * .44), fill=drawing.linear(
        0, 0, 0, height, [(0, '#FFF3CC', .34), (.5, '#FFF3CC', .14), (1, '#FFF3CC', 0)]))
    return drawing


def move_seal():
    """A new move is open: one stone becomes another."""
    size = .19 * UNITS_PER_HEIGHT
    drawing = Drawing(size, size)
    c = size / 2
    for radius, opacity in ((172, .07), (165, .10), (158, .16)):
        drawing.circle(c + 1, c + 8, radius, fill=SHADOW, opacity=opacity)
    coin = _star(16, 162, 146)
    drawing.path(coin, fill=BRASS_EDGE, stroke=BRASS_EDGE, width=6, at=(c, c))
    drawing.path(coin, fill=drawing.linear(-120, -120, 120, 130, BRASS), at=(c, c))
    drawing.circle(c, c, 128, fill=drawing.linear(c + 100, c + 100, c - 100, c - 100, BRASS))
    drawing.circle(c, c, 114, fill='#0A1216')
    drawing.circle(c, c, 110, fill=drawing.radial(c, c, 112, _GLASSES['bronze'], (c + 10, c + 20)))
    for side, stone in ((-1, 'Red'), (1, 'Green')):
        x = c + side * 62
        drawing.circle(x + 2, c + 5, 36, fill='#000000', opacity=.4)
        drawing.circle(x, c, 36, fill=drawing.linear(x - 26, c - 26, x + 26, c + 26, BRASS))
        drawing.circle(x, c, 29, fill=drawing.radial(
            x, c, 30, [(0, CHIP[stone]['light']), (.6, CHIP[stone]['face']), (1, CHIP[stone]['deep'])]))
    arrow = 'M-24 -8H2V-24L28 0L2 24V8H-24Z'
    drawing.path(arrow, fill='#000000', opacity=.45, at=(c + 2, c + 4))
    drawing.path(arrow, fill='#FFF8E6', at=(c, c))
    drawing.path('M%s %sA100 100 0 0 1 %s %sC%s %s %s %s %s %sZ' % numbers(
        c - 92, c + 20, c + 60, c - 80, c + 8, c - 72, c - 62, c - 42, c - 92, c + 20),
        fill=drawing.linear(c - 80, c - 80, c, c, [(0, SHINE, .4), (1, SHINE, .02)]))
    return drawing


def pictures():
    """Name -> a function that returns the Drawing."""
    known = {
        'RowLight': row_light, 'RowFlash': row_flash, 'Ring': ring, 'Halo': halo, 'Shine': shine, 'LimitEdge': limit_edge,
        'LimitRing': limit_ring, 'LimitRow': limit_row, 'BrassPlate': brass_plate, 'LineGlow': line_glow,
        'Spark': spark, 'Rays': rays, 'Trail': trail, 'MoveSeal': move_seal,
        'FocusStone': lambda: focus_round(83), 'FocusDelete': lambda: focus_round(58),
        'FocusPanel': lambda: focus_plate(322, 160, 21), 'FocusTitle': lambda: focus_plate(582, 262, 26),
        'FocusAnswer': lambda: focus_plate(862, 254, 26),
        'FocusHarder': lambda: focus_plate(418, 196, 21, bottom=0),
        'FocusEasier': lambda: focus_plate(418, 196, 21, top=0),
    }
    for turn, name in ((0, 'Up'), (1, 'Right'), (2, 'Down'), (3, 'Left')):
        known['TipNose' + name] = lambda turn=turn: tip_nose(turn)
    for width in TIP_WIDTHS:
        for lines in TIP_HEIGHTS:
            known['TipPlate-%d-%d' % (width, lines)] = lambda width=width, lines=lines: tip_plate(width, lines)
    for width in WHISPER_WIDTHS:
        known['WhisperPlate-%d' % width] = lambda width=width: whisper_plate(width)
    for height in WHISPER_HEIGHTS:
        known['WhisperPlate-%d-%d' % (WHISPER_WIDTHS[-1], height)] = lambda height=height: whisper_plate(
            WHISPER_WIDTHS[-1], height)
    for width in HEADING_WIDTHS:
        known['HeadingPlate-%d' % width] = lambda width=width: heading_plate(width)
    for rank in range(1, MEDALS + 1):
        known['Medal-%d' % rank] = lambda rank=rank: medal(rank)
    for stone in ('Yellow', 'Red', 'Green', 'Blue'):
        known[stone + 'Dust'] = lambda stone=stone: dust(stone)
    return known
