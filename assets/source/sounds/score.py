"""Reads a score: text lines of chords and melody notes.

    chord BAR BARS NAME  BASS | PAD VOICES | HARP NOTES     the harmony from a bar on
    mel PART BAR BEAT NOTE BEATS VELOCITY                   one note of a melody

Bars and beats count from 1; notes are written A4, C#5; # at the start of a line begins a comment."""

from collections import namedtuple

Chord = namedtuple('Chord', 'bar bars bass pad harp')
Note = namedtuple('Note', 'part bar beat key beats velocity')

_STEPS = {'C': 0, 'C#': 1, 'D': 2, 'D#': 3, 'E': 4, 'F': 5, 'F#': 6, 'G': 7, 'G#': 8, 'A': 9, 'A#': 10, 'B': 11}


def key(name):
    """The number of a note's key, 60 for C4."""
    return _STEPS[name[:-1]] + 12 * (int(name[-1]) + 1)


def read(path):
    """The chords and the melody notes, in the order of the file."""
    chords, melody = [], []
    with open(path) as file:
        for line in file:
            words = line.split()
            if not words or line.startswith('#'):
                continue
            if words[0] == 'chord':
                head, pad, harp = line.split('|')
                _, bar, bars, _, bass = head.split()
                chords.append(Chord(int(bar), int(bars), key(bass), [key(name) for name in pad.split()],
                                    [key(name) for name in harp.split()]))
            else:
                _, part, bar, beat, name, beats, velocity = words
                melody.append(Note(part, int(bar), float(beat), key(name), float(beats), int(velocity)))
    return chords, melody
