"""Arrows of polished brass with a dark edge, so that they read on wood, glass and stones alike.

All of them, straight or curved, have the same head and the same swelling shaft."""

import math

from .palette import POLISHED, POLISHED_EDGE, SHADOW
from .svg import Drawing, numbers

TAIL_WIDTH, NECK_WIDTH = 11, 24
HEAD_LENGTH, HEAD_WIDTH = 54, 68
EDGE = 7
_STEPS = 16


class _Curve:
    """A cubic: its points, and its direction at them."""

    def __init__(self, start, control1, control2, end):
        self.points = (start, control1, control2, end)

    def at(self, t):
        u = 1 - t
        weights = (u ** 3, 3 * u * u * t, 3 * u * t * t, t ** 3)
        return tuple(sum(w * p[axis] for w, p in zip(weights, self.points)) for axis in (0, 1))

    def direction(self, t):
        u = 1 - t
        legs = [(b[0] - a[0], b[1] - a[1]) for a, b in zip(self.points, self.points[1:])]
        weights = (3 * u * u, 6 * u * t, 3 * t * t)
        dx, dy = (sum(w * leg[axis] for w, leg in zip(weights, legs)) for axis in (0, 1))
        length = math.hypot(dx, dy)
        return dx / length, dy / length

    def parameter_before_end(self, distance):
        """Where the curve is that far from its end, so that the head can cover the rest."""
        t = 1.0
        while t > .5 and math.dist(self.at(t), self.points[3]) < distance:
            t -= .004
        return t


def outline(start, control1, control2, end):
    """An arrow along the cubic, its tip at the end."""
    curve = _Curve(start, control1, control2, end)
    neck = curve.parameter_before_end(HEAD_LENGTH * .86)
    left, right = [], []
    for i in range(_STEPS + 1):
        share = i / _STEPS
        (x, y), (dx, dy) = curve.at(neck * share), curve.direction(neck * share)
        half = (TAIL_WIDTH + (NECK_WIDTH - TAIL_WIDTH) * share) / 2
        left.append((x + dy * half, y - dx * half))
        right.append((x - dy * half, y + dx * half))
    neck_x, neck_y = curve.at(neck)
    length = math.dist((neck_x, neck_y), end)
    dx, dy = (end[0] - neck_x) / length, (end[1] - neck_y) / length
    base_x, base_y = end[0] - dx * HEAD_LENGTH, end[1] - dy * HEAD_LENGTH
    half = HEAD_WIDTH / 2
    head = [(base_x + dy * half, base_y - dx * half), end, (base_x - dy * half, base_y + dx * half)]
    return 'M' + 'L'.join('%s %s' % numbers(*point) for point in left + head + right[::-1]) + 'Z'


def paint(drawing, data, top, bottom):
    """The path as brass, lit from the top to the bottom given, on its own shadow."""
    drawing.path(data, fill=SHADOW, opacity=.22, stroke=SHADOW, width=EDGE + 4, at=(1.5, 5))
    drawing.path(data, fill=SHADOW, opacity=.25, stroke=SHADOW, width=EDGE, at=(1, 3))
    drawing.path(data, fill=POLISHED_EDGE, stroke=POLISHED_EDGE, width=EDGE)
    drawing.path(data, fill=drawing.linear(0, top, 0, bottom, POLISHED))


def arrow_picture(width, height, start, control1, control2, end):
    drawing = Drawing(width, height)
    paint(drawing, outline(start, control1, control2, end), 0, height)
    return drawing


def over_three():
    return arrow_picture(340, 130, (24, 112), (70, -8), (262, -12), (310, 102))


def over_two():
    return arrow_picture(200, 112, (24, 94), (40, 0), (140, -4), (168, 88))


def pointer():
    return arrow_picture(160, 160, (30, 48), (34, 86), (74, 120), (138, 138))


def up():
    return arrow_picture(110, 170, (55, 154), (55, 110), (55, 60), (55, 12))


def left():
    return arrow_picture(200, 110, (188, 54), (130, 54), (70, 54), (12, 54))
