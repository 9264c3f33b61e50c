"""Instruments of the General MIDI sound font, played by FluidSynth without its own room or chorus."""

import os
import struct
import subprocess
import tempfile
import warnings

import numpy as np
from scipy.io import wavfile

from .synthesis import RATE

SOUND_FONT = '/usr/share/sounds/sf2/FluidR3_GM.sf2'
DRUMS = 9                   # the channel on which notes are drums
TICKS = 960                 # of a beat


def _length(value):
    """A number as MIDI files write them: seven bits to a byte, the highest first."""
    parts = [value & 127]
    value >>= 7
    while value:
        parts.insert(0, value & 127 | 128)
        value >>= 7
    return bytes(parts)


def _midi(events, beat, setup, end):
    """A file of one track. Events are (tick, order, message); the beat is in microseconds."""
    track = b'\x00\xff\x51\x03' + struct.pack('>I', beat)[1:] + setup
    last = 0
    for tick, _, message in events:
        track += _length(tick - last) + message
        last = tick
    track += _length(max(end - last, 0)) + b'\xff\x2f\x00'
    return b'MThd' + struct.pack('>IHHH', 6, 0, 1, TICKS) + b'MTrk' + struct.pack('>I', len(track)) + track


def _rendered(midi, gain):
    with tempfile.TemporaryDirectory() as folder:
        score, sound = os.path.join(folder, 'score.mid'), os.path.join(folder, 'sound.wav')
        with open(score, 'wb') as file:
            file.write(midi)
        subprocess.run(['fluidsynth', '-niq', '-R', '0', '-C', '0', '-g', str(gain), '-r', str(RATE), '-O', 'float',
                        '-T', 'wav', '-F', sound, SOUND_FONT, score],
                       check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        with warnings.catch_warnings():
            warnings.simplefilter('ignore')     # FluidSynth's header has a chunk that scipy does not know
            return wavfile.read(sound)[1].astype(np.float64)


def play_notes(notes, seconds, program=None, channel=0, gain=.8):
    """Notes as (seconds, key, seconds, velocity)."""
    per_second = 2 * TICKS
    events = []
    for start, key, length, velocity in notes:
        events.append((int(start * per_second), 1, bytes((0x90 | channel, key, velocity))))
        events.append((int((start + length) * per_second), 0, bytes((0x80 | channel, key, 0))))
    events.sort()
    setup = b'' if program is None else bytes((0, 0xC0 | channel, program))
    return _rendered(_midi(events, 500000, setup, int(seconds * per_second)), gain)[:int(seconds * RATE)]


def play_part(notes, program, beats_per_minute, seconds):
    """Notes as (beat, key, beats, velocity)."""
    events = []
    for beat, key, length, velocity in notes:
        beat = max(beat, 0)
        events.append((int(beat * TICKS), 1, bytes((0x90, key, velocity))))
        events.append((int((beat + length) * TICKS), 0, bytes((0x80, key, 0))))
    events.sort(key=lambda event: event[:2])
    setup = b'\x00' + bytes((0xC0, program)) + b'\x00\xb0\x5b\x00' + b'\x00\xb0\x5d\x00'    # no room, no chorus
    end = int(seconds * beats_per_minute / 60 * TICKS)
    return _rendered(_midi(events, int(60e6 / beats_per_minute), setup, end), .5)
