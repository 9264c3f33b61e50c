"""From the score to the notes of each part: what pad, choir, bass, harp, marimba and celesta make of the
chords. The small irregularities of a hand at an instrument come from one generator with a fixed seed."""

import math
import random

PARTS = ('pad', 'choir', 'bass', 'harp', 'vib', 'low', 'cel', 'mar')
BEATS = 4                   # of a bar

# What the harp plays of a chord, as (beat, string, octaves up), in the chord's first bar and in the others.
HARP = {
    'wave': ([(.5 * i, string, 0) for i, string in enumerate((0, 1, 2, 3, 4, 5, 6, 5))],
             [(1 + .5 * i, string, 0) for i, string in enumerate((2, 4, 6, 5, 4, 3))]),
    'quarters': ([(0, 0, 0), (.5, 1, 0), (1.5, 3, 0), (3, 4, 0)],
                 [(0, 1, 0), (1.5, 4, 0), (2.5, 2, 0)]),
    # Out of the clarinet's register: low strings, then high ones.
    'wide': ([(0, 0, 0), (.5, 1, 0), (1, 2, 0), (2.5, 5, 1), (3, 6, 1)],
             [(1, 1, 0), (1.5, 2, 0), (2.5, 6, 1), (3, 5, 1)]),
    'drop': ([(0, 0, 0), (.06, 1, 0), (.12, 3, 0)],
             []),
}
HIGHEST_GLINT = 85          # C#6: above it lies the effects' register


def beat_of(bar, beat):
    return (bar - 1) * BEATS + (beat - 1)


class Arranger:
    """Collects notes as (beat, key, beats, velocity) for each part."""

    def __init__(self, sections):
        self.parts = {part: [] for part in PARTS}
        self._sections = sections
        self._chance = random.Random(1907)

    def _by_hand(self, beat):
        return beat + (self._chance.random() - .5) * .022

    def _section(self, bar):
        return [section for section in self._sections if section.bar <= bar][-1]

    def chord(self, chord):
        start = beat_of(chord.bar, 1)
        section = self._section(chord.bar)
        self._held(chord, start, section)
        for bar in range(chord.bars):
            self._bass(chord, start, bar, section)
            self._harp(chord, start, bar, section)
        if section.marimba:
            self._marimba(chord, start, section.marimba)
        if section.celesta:
            self._celesta(chord, start, section.celesta)

    def note(self, note):
        beat = beat_of(note.bar, note.beat)
        self.parts[note.part].append((self._by_hand(beat), note.key, note.beats * 1.02, note.velocity))

    def _held(self, chord, start, section):
        length = chord.bars * BEATS + .1
        for voice, key in enumerate(chord.pad):
            self.parts['pad'].append((start + .02 * voice, key, length, section.pad))
        if section.choir:
            for voice, key in enumerate(chord.pad[-3:]):
                self.parts['choir'].append((start + .02 * voice, key, length, section.choir))

    def _bass(self, chord, start, bar, section):
        """Walking: every bar, and a leading note before the chord changes. Held: once a chord."""
        first = bar == 0
        if section.bass == 'held':
            if first:
                self.parts['bass'].append((self._by_hand(start), chord.bass, 3.4, 54))
            return
        self.parts['bass'].append((self._by_hand(start + BEATS * bar), chord.bass, 2.7 if first else 2.2, 66 if first else 56))
        if bar == chord.bars - 1 and chord.bars > 1:
            leading = chord.bass + 7 if chord.bass < 43 else chord.bass - 5
            self.parts['bass'].append((self._by_hand(start + BEATS * bar + 3), leading, 1.0, 48))

    def _harp(self, chord, start, bar, section):
        pattern = HARP[section.harp][min(bar, 1)]
        for step, (at, string, up) in enumerate(pattern):
            velocity = 44 + int(14 * math.sin(math.pi * (step + .5) / len(pattern))) + self._chance.randrange(-3, 4)
            beat = self._by_hand(start + BEATS * bar + at)
            self.parts['harp'].append((beat, chord.harp[string] + 12 * up, 2.5, velocity))

    def _marimba(self, chord, start, velocity):
        """Quiet strokes off the beat, like bubbles let go."""
        for bar in range(chord.bars):
            for off in (1.75, 2.0, 3.5):
                if self._chance.random() < .62:
                    beat = self._by_hand(start + BEATS * bar + off)
                    key = self._chance.choice(chord.harp[3:6])
                    self.parts['mar'].append((beat, key, .5, velocity + self._chance.randrange(-4, 4)))

    def _celesta(self, chord, start, velocity):
        """Glints in the gaps, one or two at a time."""
        for bar in range(chord.bars):
            if self._chance.random() < .6:
                off = self._chance.choice((2.5, 3.0, 3.5))
                for glint in range(1 + (self._chance.random() < .5)):
                    key = self._chance.choice(chord.harp[-3:]) + 12
                    while key > HIGHEST_GLINT:
                        key -= 12
                    beat = self._by_hand(start + BEATS * bar + off + .5 * glint)
                    self.parts['cel'].append((beat, key, 1, velocity - 5 * glint + self._chance.randrange(0, 8)))


def arranged(score):
    """Part -> its notes."""
    arranger = Arranger(score.sections)
    for chord in score.chords:
        arranger.chord(chord)
    for note in score.melody:
        arranger.note(note)
    # A celesta doubles the vibraphone: of it only the stroke is left in the mix, as of a harder mallet.
    arranger.parts['mallet'] = [(beat, key, .5, velocity - 4) for beat, key, _, velocity in arranger.parts['vib']]
    return arranger.parts
