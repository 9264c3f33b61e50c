"""From the score to the notes of each part: what pad, choir, bass, harp, marimba and celesta make of the
chords. The small irregularities of a hand at an instrument come from one generator with a fixed seed."""

import math
import random

PARTS = ('pad', 'choir', 'bass', 'harp', 'vib', 'low', 'cel', 'mar')
BEATS = 4                   # of a bar


def beat_of(bar, beat):
    return (bar - 1) * BEATS + (beat - 1)


class Arranger:
    """Collects notes as (beat, key, beats, velocity) for each part."""

    def __init__(self):
        self.parts = {part: [] for part in PARTS}
        self._chance = random.Random(1907)

    def _by_hand(self, beat):
        return beat + (self._chance.random() - .5) * .022

    def chord(self, chord):
        start = beat_of(chord.bar, 1)
        self._held(chord, start)
        for bar in range(chord.bars):
            self._bass(chord, start, bar)
            self._harp(chord, start, bar)
        self._marimba(chord, start)
        self._celesta(chord, start)

    def note(self, note):
        beat = beat_of(note.bar, note.beat)
        self.parts[note.part].append((self._by_hand(beat), note.key, note.beats * 1.02, note.velocity))

    def _held(self, chord, start):
        for voice, key in enumerate(chord.pad):
            self.parts['pad'].append((start + .02 * voice, key, chord.bars * BEATS + .35, 58))
        in_the_middle = 9 <= chord.bar <= 16
        for voice, key in enumerate(chord.pad[-3:]):
            self.parts['choir'].append((start + .02 * voice, key, chord.bars * BEATS + .2, 44 if in_the_middle else 32))

    def _bass(self, chord, start, bar):
        first = bar == 0
        self.parts['bass'].append((self._by_hand(start + BEATS * bar), chord.bass, 2.7 if first else 2.2, 66 if first else 56))
        if bar == chord.bars - 1 and chord.bars > 1:
            leading = chord.bass + 7 if chord.bass < 43 else chord.bass - 5
            self.parts['bass'].append((self._by_hand(start + BEATS * bar + 3), leading, 1.0, 48))

    def _harp(self, chord, start, bar):
        """A wave up and back in eighths; the second bar of a chord starts higher and thins out."""
        wave = list(range(7)) + [5] if bar == 0 else [2, 4, 6, 5, 4, 3]
        late = 0 if bar == 0 else 1.0
        for step, string in enumerate(wave):
            if bar == 1 and self._chance.random() < .18:
                continue
            velocity = 44 + int(16 * math.sin(math.pi * (step + .5) / len(wave))) + self._chance.randrange(-3, 4)
            beat = self._by_hand(start + BEATS * bar + late + step * .5)
            self.parts['harp'].append((beat, chord.harp[string], 2.5, velocity))

    def _marimba(self, chord, start):
        """Quiet strokes off the beat, like bubbles let go; none where the two halves begin."""
        if chord.bar in (1, 9):
            return
        for bar in range(chord.bars):
            for off in (1.75, 2.0, 3.5):
                if self._chance.random() < .62:
                    beat = self._by_hand(start + BEATS * bar + off)
                    self.parts['mar'].append((beat, self._chance.choice(chord.harp[3:6]), .5, 34 + self._chance.randrange(0, 8)))

    def _celesta(self, chord, start):
        """Glints in the gaps."""
        for bar in range(chord.bars):
            if self._chance.random() < .72:
                key = self._chance.choice(chord.harp[-3:]) + 12
                off = self._chance.choice((2.5, 3.0, 3.5))
                beat = self._by_hand(start + BEATS * bar + off)
                self.parts['cel'].append((beat, key, 1, 30 + self._chance.randrange(0, 10)))
                if self._chance.random() < .5:
                    beat = self._by_hand(start + BEATS * bar + off + .5)
                    key = self._chance.choice(chord.harp[-3:]) + 12
                    self.parts['cel'].append((beat, key, 1, 24 + self._chance.randrange(0, 8)))


def arranged(chords, melody):
    """Part -> its notes."""
    arranger = Arranger()
    for chord in chords:
        arranger.chord(chord)
    for note in melody:
        arranger.note(note)
    return arranger.parts
