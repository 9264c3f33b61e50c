"""Words as outlines: the pictures must not depend on the fonts of the machine that shows them."""

import json
import subprocess

from fontTools.pens.svgPathPen import SVGPathPen
from fontTools.pens.transformPen import TransformPen
from fontTools.ttLib import TTFont

from .svg import number

BOLD = '/usr/share/fonts/opentype/linux-libertine/LinBiolinum_RB.otf'
CAPITAL_HEIGHT = .645       # of Biolinum Bold, in ems

_font = None


def outline(text, size, spacing=0):
    """The word's path with its pen starting at (0, 0) on the baseline, and the word's width.

    HarfBuzz places the letters, so pairs are kerned; `spacing` is added between them."""
    global _font
    _font = _font or TTFont(BOLD)
    glyphs = _font.getGlyphSet()
    scale = size / _font['head'].unitsPerEm
    shaped = json.loads(subprocess.check_output(
        ['hb-shape', '--output-format=json', '--no-clusters', '--features=-liga', BOLD, text]))
    data = []
    x = 0
    for glyph in shaped:
        pen = SVGPathPen(glyphs, ntos=number)
        place = ((x + glyph.get('dx', 0)) * scale, -glyph.get('dy', 0) * scale)
        glyphs[glyph['g']].draw(TransformPen(pen, (scale, 0, 0, -scale) + place))
        data.append(pen.getCommands())
        x += glyph['ax'] + spacing / scale
    return ''.join(data), x * scale - spacing


def size_that_fits(text, size, spacing, room):
    """The largest size, no larger than the given one, at which the word is no wider than the room."""
    while size > 20 and outline(text, size, spacing)[1] > room:
        size -= 1
    return size


def baseline(middle, size):
    """Where the baseline lies when capitals are centred on the middle."""
    return middle + size * CAPITAL_HEIGHT / 2


def engraved(drawing, data, x, y, style, depth, rule='', scale=1.0):
    """A word or sign cut into its ground: dark above, lit below, as light falls from the upper left."""
    transform = '' if scale == 1 else 'scale(%s)' % number(scale)
    if style.shade:
        colour, opacity = style.shade
        drawing.path(data, fill=colour, opacity=opacity, at=(x - depth * .55, y - depth), transform=transform, rule=rule)
    if style.lip:
        colour, opacity = style.lip
        drawing.path(data, fill=colour, opacity=opacity, at=(x + depth * .55, y + depth), transform=transform, rule=rule)
    drawing.path(data, fill=style.fill, at=(x, y), transform=transform, rule=rule)
