"""Shapes that several pictures share, as path data or painted straight away."""

import math

from .palette import SHADOW
from .svg import number, numbers


def plate(x, y, width, height, scoop, top=None, bottom=None):
    """The game's outline: a rectangle with scooped corners. `top` and `bottom` give the radius of that
    edge's corners where it differs; 0 leaves them square."""
    top = scoop if top is None else top
    bottom = scoop if bottom is None else bottom

    def corner(radius, end_x, end_y):
        return 'A%s %s 0 0 0 %s %s' % numbers(radius, radius, end_x, end_y) if radius else ''

    return 'M%s %sH%s%sV%s%sH%s%sV%s%sZ' % (
        number(x + top), number(y), number(x + width - top), corner(top, x + width, y + top),
        number(y + height - bottom), corner(bottom, x + width - bottom, y + height),
        number(x + bottom), corner(bottom, x, y + height - bottom),
        number(y + top), corner(top, x + top, y))


def plate_shadow(drawing, x, y, width, height, scoop, steps, strength, fall, colour=SHADOW, top=None, bottom=None):
    """A soft shadow, or a glow, of stacked outlines: Qt draws no blur."""
    for step in range(steps, 0, -1):
        grow = step * 1.3
        drawing.path(plate(x - grow, y - grow + fall, width + 2 * grow, height + 2 * grow, scoop, top, bottom),
                     fill=colour, opacity=strength * (1 - step / (steps + 1.)))


def lozenge(half_width, half_height):
    return 'M%s 0L0 %sL%s 0L0 %sZ' % numbers(-half_width, -half_height, half_width, half_height)


def capsule(cx, cy, rx, ry):
    """An upright box with round ends."""
    return 'M%s %sA%s %s 0 0 1 %s %sL%s %sA%s %s 0 0 1 %s %sZ' % numbers(
        cx - rx, cy - ry + rx, rx, rx, cx + rx, cy - ry + rx, cx + rx, cy + ry - rx, rx, rx, cx - rx, cy + ry - rx)


def disc(radius, x=0.0):
    return 'M%s 0a%s %s 0 1 0 %s 0a%s %s 0 1 0 %s 0Z' % numbers(
        x - radius, radius, radius, 2 * radius, radius, radius, -2 * radius)


def scalloped_disc(cx, cy, radius, bulge, count):
    """A coin with a wavy edge."""
    def point(distance, angle):
        return '%s %s' % numbers(cx + distance * math.sin(angle), cy - distance * math.cos(angle))

    data = ''
    for i in range(count):
        start, end = 2 * math.pi * i / count, 2 * math.pi * (i + 1) / count
        data += ('M' if i == 0 else 'L') + point(radius, start)
        data += 'Q' + point(bulge, (start + end) / 2) + ' ' + point(radius, end)
    return data + 'Z'
