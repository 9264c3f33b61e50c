"""Writes the SVG that Qt draws: paths and gradients with opacity, and nothing else.

Qt ignores filters, clips, masks, patterns and style sheets, and silently drops a path it cannot
read. One unit is 1/2000 of the game's height, so that all pictures share one weight of line.
"""

UNITS_PER_HEIGHT = 2000.0


def number(value):
    """The shortest text of a number to two decimals, so that the same drawing is the same bytes."""
    text = ('%.2f' % value).rstrip('0').rstrip('.')
    return '0' if text in ('-0', '') else text


def numbers(*values):
    return tuple(number(value) for value in values)


def translated(x, y):
    return 'translate(%s %s)' % numbers(x, y)


class Drawing:
    """One picture: elements in the order they are painted, and the gradients they use."""

    def __init__(self, width, height):
        self.width, self.height = width, height
        self._gradients = []
        self._elements = []
        self._known = {}        # a gradient's text -> its reference, so that equal ones are written once
        self._embedded = 0

    # --- paints

    def linear(self, x1, y1, x2, y2, ramp):
        ends = 'x1="%s" y1="%s" x2="%s" y2="%s"' % numbers(x1, y1, x2, y2)
        return self._gradient('linearGradient', ends, ramp)

    def radial(self, cx, cy, radius, ramp, focus=None, transform=''):
        fx, fy = focus or (cx, cy)
        shape = 'cx="%s" cy="%s" r="%s" fx="%s" fy="%s"' % numbers(cx, cy, radius, fx, fy)
        if transform:
            shape += ' gradientTransform="%s"' % transform
        return self._gradient('radialGradient', shape, ramp)

    def _gradient(self, kind, shape, ramp):
        body = '%s gradientUnits="userSpaceOnUse" %s>%s</%s>' % (kind, shape, _stops(ramp), kind)
        if body not in self._known:
            name = 'g%d' % (len(self._known) + 1)
            self._known[body] = 'url(#%s)' % name
            self._gradients.append('<' + body.replace(' ', ' id="%s" ' % name, 1))
        return self._known[body]

    # --- elements

    def path(self, data, fill='none', stroke=None, width=0, opacity=1, at=None, transform='', rule='',
             cap='round'):
        """A path; `at` moves it there, `width` is the stroke's."""
        attributes = ' fill="%s"' % fill
        if stroke:
            attributes += ' stroke="%s" stroke-width="%s" stroke-linecap="%s" stroke-linejoin="round"' % (
                stroke, number(width), cap)
        if opacity != 1:
            if fill != 'none':
                attributes += ' fill-opacity="%s"' % number(opacity)
            if stroke:
                attributes += ' stroke-opacity="%s"' % number(opacity)
        if rule:
            attributes += ' fill-rule="%s"' % rule
        if at is not None:
            transform = (translated(*at) + ' ' + transform).strip()
        if transform:
            attributes += ' transform="%s"' % transform
        self._elements.append('<path d="%s"%s/>' % (data, attributes))

    def circle(self, x, y, radius, **look):
        self.ellipse(x, y, radius, radius, **look)

    def ellipse(self, x, y, rx, ry, **look):
        data = 'M%s %sa%s %s 0 1 0 %s 0a%s %s 0 1 0 %s 0Z'
        self.path(data % numbers(x - rx, y, rx, ry, 2 * rx, rx, ry, -2 * rx), **look)

    def embed(self, other, x, y, scale=1.0):
        """Paints another drawing here, its upper left corner at (x, y)."""
        self._embedded += 1
        prefix = 'e%d' % self._embedded
        self._gradients += [text.replace('id="g', 'id="%sg' % prefix) for text in other._gradients]
        body = ''.join(other._elements).replace('url(#g', 'url(#%sg' % prefix)
        self._elements.append('<g transform="%s scale(%s)">%s</g>' % (translated(x, y), number(scale), body))

    def text(self):
        """The file's content."""
        size = numbers(self.width, self.height)
        return ('<?xml version="1.0" encoding="UTF-8"?>\n'
                '<svg xmlns="http://www.w3.org/2000/svg" version="1.2" baseProfile="tiny" '
                'viewBox="0 0 %s %s" width="%s" height="%s">\n<defs>%s</defs>\n%s\n</svg>\n'
                % (size + size + ('\n'.join(self._gradients), '\n'.join(self._elements))))


def _stops(ramp):
    text = ''
    for offset, colour, *opacity in ramp:
        faint = ' stop-opacity="%s"' % number(opacity[0]) if opacity else ''
        text += '<stop offset="%s" stop-color="%s"%s/>' % (number(offset), colour, faint)
    return text
