"""Reads a score: text lines of sections, chords and melody notes.

    section BAR NAME  HARP BASS  MARIMBA CELESTA CHOIR PAD  what accompanies from a bar on
    chord BAR BARS NAME  BASS | PAD VOICES | HARP NOTES     the harmony from a bar on
    mel PART BAR BEAT NOTE BEATS VELOCITY                   one note of a melody

Bars and beats count from 1; notes are written A4, C#5; # at the start of a line begins a comment. The
harp's and the bass's patterns are named in arrangement.py, the other four are velocities."""

from collections import namedtuple

Score = namedtuple('Score', 'sections chords melody')
Section = namedtuple('Section', 'bar name harp bass marimba celesta choir pad')
Chord = namedtuple('Chord', 'bar bars bass pad harp')
Note = namedtuple('Note', 'part bar beat key beats velocity')

_STEPS = {'C': 0, 'C#': 1, 'D': 2, 'D#': 3, 'E': 4, 'F': 5, 'F#': 6, 'G': 7, 'G#': 8, 'A': 9, 'A#': 10, 'B': 11}


def key(name):
    """The number of a note's key, 60 for C4."""
    return _STEPS[name[:-1]] + 12 * (int(name[-1]) + 1)


def read(path):
    """The score, its lines in the order of the file."""
    score = Score([], [], [])
    with open(path) as file:
        for line in file:
            words = line.split()
            if not words or line.startswith('#'):
                continue
            if words[0] == 'section':
                _, bar, name, harp, bass, *velocities = words
                score.sections.append(Section(int(bar), name, harp, bass, *map(int, velocities)))
            elif words[0] == 'chord':
                head, pad, harp = line.split('|')
                _, bar, bars, _, bass = head.split()
                score.chords.append(Chord(int(bar), int(bars), key(bass), [key(name) for name in pad.split()],
                                          [key(name) for name in harp.split()]))
            else:
                _, part, bar, beat, name, beats, velocity = words
                score.melody.append(Note(part, int(bar), float(beat), key(name), float(beats), int(velocity)))
    return score
