"""What the mix consists of, measured before its parts are added up and cannot be told apart any more.

    part NAME LUFS                        the loudness of a part of the mix, or of all
    key PART KEY LEVEL                    a key struck alone at one velocity: its fundamental, in dB
    note BAR BEAT PART KEY TUNE REST ALL  a note of the tune: the dB of its own voice, of everything else and of
                                          both, in the ear's band around its fundamental as it begins

The tests ask of these numbers whether the tune is heard, and of the packed music whether they are its own."""

import numpy as np

from . import score, seabed
from .arrangement import beat_of
from .circle import Circle
from .synthesis import RATE, loudness

AFTER, WINDOW = .02, .4     # seconds: where a note is measured
STRUCK = 4.8                # seconds that a key struck alone may ring
BEAT = 60 / seabed.BEATS_PER_MINUTE


def pitch_of(key):
    return 440 * 2 ** ((key - 69) / 12)


def in_band(piece, pitch):
    """dB of a piece within the ear's equivalent rectangular band around a pitch (Glasberg and Moore)."""
    half = 24.7 * (4.37 * pitch / 1000 + 1) / 2
    window = np.hanning(len(piece))[:, None]
    power = (np.abs(np.fft.rfft(piece * window, axis=0)) ** 2).sum(1)
    pitches = np.fft.rfftfreq(len(piece), 1 / RATE)
    inside = (pitches >= pitch - half) & (pitches <= pitch + half)
    return 10 * np.log10(power[inside].sum() / (window ** 2).sum() / len(piece) * 2 + 1e-20)


def notes(groups, music, melody):
    for note in melody:
        start = int((beat_of(note.bar, note.beat) * BEAT + AFTER) * RATE)
        place = slice(start, start + int(WINDOW * RATE))
        own, everything, pitch = groups[note.part][place], music[place], pitch_of(note.key)
        yield 'note %d %g %s %d %.1f %.1f %.1f' % (note.bar, note.beat, note.part, note.key, in_band(own, pitch),
                                                   in_band(everything - own, pitch), in_band(everything, pitch))


def keys(melody):
    for part in seabed.VOICES:
        used = sorted({note.key for note in melody if note.part == part})
        circle = Circle(int(STRUCK * RATE) * len(used))
        alone = [(i * STRUCK / BEAT, key, 2, 62) for i, key in enumerate(used)]
        sound = seabed.coloured(part, circle.folded(seabed.played(part, alone, STRUCK * len(used) + 2)), circle)
        for i, key in enumerate(used):
            start = int((i * STRUCK + AFTER) * RATE)
            yield 'key %s %d %.1f' % (part, key, in_band(sound[start:start + RATE], pitch_of(key)))


def table():
    """The table as the bytes of a file."""
    groups = seabed.mixed()
    music = sum(groups.values())
    melody = score.read(seabed.score_path()).melody
    lines = ['# Measured by balance.py, which says what the columns are.']
    lines += ['part %s %.1f' % (name, loudness(sound)) for name, sound in sorted(groups.items())]
    lines += ['part all %.1f' % loudness(music)]
    lines += keys(melody)
    lines += notes(groups, music, melody)
    return ('\n'.join(lines) + '\n').encode()
