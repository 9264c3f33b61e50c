"""The stones: sea glass in a round brass bezel. 150 units square, the disc filling 0.915 of it."""

from . import emblems
from .palette import BRASS_EDGE, BRASS_ROUND_INNER, BRASS_ROUND_OUTER, BRASS_SEAT, CHIP, LIGHT, SHADOW, SHINE
from .svg import Drawing, numbers

SIZE = 150
CENTRE_X = 75
CENTRE_Y = 74.4             # raised by what the shadow needs below
GLASS_RADIUS = 60.4


def _bezel(drawing):
    for radius, opacity in ((73.5, .07), (72, .09), (70.5, .12), (69, .18)):
        drawing.ellipse(CENTRE_X + .8, 77.6, radius, radius * .985, fill=SHADOW, opacity=opacity)
    drawing.circle(CENTRE_X, CENTRE_Y, 68.6, fill=BRASS_EDGE)
    drawing.circle(CENTRE_X, CENTRE_Y, 67.4, fill=drawing.linear(30, 20, 118, 132, BRASS_ROUND_OUTER))
    drawing.circle(CENTRE_X, CENTRE_Y, 64.2, fill=drawing.linear(30, 20, 118, 132, BRASS_ROUND_INNER))
    drawing.circle(CENTRE_X, CENTRE_Y, 61.6, fill=BRASS_SEAT)


def _shine(drawing, strength=1.0):
    """The window's reflection along the upper left, and a thin light on the rim opposite."""
    x, y = CENTRE_X, CENTRE_Y
    crescent = 'M%s %sA55 55 0 0 1 %s %sC%s %s %s %s %s %sZ' % numbers(
        x - 50, y + 12, x + 33, y - 43, x + 6, y - 40, x - 34, y - 24, x - 50, y + 12)
    fading = [(0, SHINE, .85 * strength), (.35, SHINE, .42 * strength), (1, SHINE, .02)]
    drawing.path(crescent, fill=drawing.linear(x - 42, y - 44, x - 8, y - 2, fading))
    drawing.ellipse(x - 29, y - 36, 8.5, 4.6, fill=SHINE, opacity=.8 * strength,
                    transform='rotate(-40 %s %s)' % numbers(x - 29, y - 36))
    drawing.path('M%s %sA57 57 0 0 1 %s %s' % numbers(x + 55, y + 14, x + 12, y + 55.5), stroke=SHINE, width=1.8,
                 opacity=.38)


def _emblem(drawing, glass, data, x, y, relief=1.0):
    """A light emblem throws a shadow on its dark face; a dark one is cut in, its lower lip lit."""
    if glass['tone'] == LIGHT:
        drawing.path(data, fill=glass['rim'], opacity=.55, at=(x + 2.2 * relief, y + 2.8 * relief))
        drawing.path(data, fill=glass['rim'], opacity=.45, at=(x + 1.1 * relief, y + 1.4 * relief))
    else:
        drawing.path(data, fill=SHINE, opacity=.55, at=(x + 1.3 * relief, y + 1.7 * relief))
    drawing.path(data, fill=glass['emblem'], at=(x, y))


def chip(name):
    """A stone of one colour."""
    drawing = Drawing(SIZE, SIZE)
    glass = CHIP[name]
    _bezel(drawing)
    depth = [(0, glass['face']), (.74, glass['face']), (.93, glass['deep']), (1, glass['rim'])]
    drawing.circle(CENTRE_X, CENTRE_Y, GLASS_RADIUS,
                   fill=drawing.radial(CENTRE_X, CENTRE_Y, GLASS_RADIUS, depth, (CENTRE_X + 4, CENTRE_Y + 8)))
    # Light that has passed through the glass gathers at the lower right.
    for dx, dy, radius, near, middle in ((20, 27, 42, .75, (.45, .32)), (-22, -26, 50, .55, (.5, .2))):
        light = [(0, glass['light'], near), (middle[0], glass['light'], middle[1]), (1, glass['light'], 0)]
        drawing.circle(CENTRE_X, CENTRE_Y, GLASS_RADIUS - 1.5,
                       fill=drawing.radial(CENTRE_X + dx, CENTRE_Y + dy, radius, light))
    scale = 1.0 if name == 'Grey' else 1.06
    _emblem(drawing, glass, emblems.OF_CHIP[name](scale), CENTRE_X, CENTRE_Y)
    _shine(drawing)
    return drawing


# Quarter, its direction from the centre, in the order of painting.
QUARTERS = (('Yellow', -1, -1), ('Red', 1, -1), ('Blue', -1, 1), ('Green', 1, 1))


def multi_chip():
    """A stone that stands for any colour: a quarter of each."""
    drawing = Drawing(SIZE, SIZE)
    _bezel(drawing)
    x, y, radius = CENTRE_X, CENTRE_Y, GLASS_RADIUS
    arcs = {(-1, -1): (x - radius, y, x, y - radius), (1, -1): (x, y - radius, x + radius, y),
            (1, 1): (x + radius, y, x, y + radius), (-1, 1): (x, y + radius, x - radius, y)}
    for name, right, down in QUARTERS:
        glass = CHIP[name]
        x0, y0, x1, y1 = arcs[(right, down)]
        depth = [(0, glass['face']), (.7, glass['face']), (.92, glass['deep']), (1, glass['rim'])]
        drawing.path('M%s %sL%s %sA%s %s 0 0 1 %s %sZ' % numbers(x, y, x0, y0, radius, radius, x1, y1),
                     fill=drawing.radial(x, y, radius, depth))
    drawing.circle(x, y, radius - 1.5, fill=drawing.radial(x + 20, y + 27, 42, [(0, SHINE, .35), (1, SHINE, 0)]))
    cross = ((x, y - radius, x, y + radius), (x - radius, y, x + radius, y))
    for colour, width in (('#2A1605', 5.4), ('#E6C375', 2.8)):
        for line in cross:
            drawing.path('M%s %sL%s %s' % numbers(*line), stroke=colour, width=width, cap='butt')
    # Under the full reflection the yellow quarter's sun would look grey.
    _shine(drawing, .5)
    for name, right, down in QUARTERS:
        data = emblems.OF_CHIP[name](.56)
        _emblem(drawing, CHIP[name], data, x + right * 26.5, y + down * 26, .6)
    return drawing
