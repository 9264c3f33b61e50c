"""Takes the letters that the pictures need out of the font, into letters.json.

Only this asks for the font and for the tools that read it; drawing the pictures asks for neither. Run it
(tools/assets letters) when a picture gets a word with a letter or a pair of letters that is new."""

import json
import subprocess

from fontTools.pens.recordingPen import RecordingPen
from fontTools.ttLib import TTFont

from . import languages

BOLD = '/usr/share/fonts/opentype/linux-libertine/LinBiolinum_RB.otf'
WORDS = ('Hint', 'Moves', 'Menu', 'Classic', 'Endless', 'Quit', 'Continue Game', 'Start New Game', 'Harder', 'Easier',
         'Points', 'Stage', 'Par', 'V', 'E', 'Y', 'R', 'A', 'N', 'D', 'G', 'B')


def _advances(text):
    """How far the pen moves at each letter; HarfBuzz knows the pairs that stand closer together."""
    shaped = json.loads(subprocess.check_output(
        ['hb-shape', '--output-format=json', '--no-clusters', '--features=-liga', BOLD, text]))
    return [glyph['ax'] for glyph in shaped]


def _path(glyph):
    pen = RecordingPen()
    glyph.draw(pen)
    letters = {'moveTo': 'M', 'lineTo': 'L', 'curveTo': 'C', 'closePath': 'Z'}
    return [[letters[operation]] + [round(coordinate, 1) for point in points for coordinate in point]
            for operation, points in pen.value]


def letters_json():
    font = TTFont(BOLD)
    glyphs, names = font.getGlyphSet(), font.getBestCmap()
    words = list(WORDS) + [word for code in languages.others() for word in languages.on_pictures(code)]
    letters = sorted(set(''.join(words)))
    pairs = sorted({word[i:i + 2] for word in words for i in range(len(word) - 1)})
    single = {letter: _advances(letter)[0] for letter in letters}
    closer = {pair: sum(_advances(pair)) - single[pair[0]] - single[pair[1]] for pair in pairs}
    lines = ['{', '"unitsPerEm": %d,' % font['head'].unitsPerEm, '"pairs": {']
    lines.append(',\n'.join('%s: %d' % (json.dumps(pair), by) for pair, by in closer.items() if by))
    lines += ['},', '"letters": {']
    lines.append(',\n'.join('%s: {"advance": %d, "path": %s}' % (
        json.dumps(letter), single[letter], json.dumps(_path(glyphs[names[ord(letter)]]))) for letter in letters))
    return '\n'.join(lines + ['}', '}', '']).encode()
