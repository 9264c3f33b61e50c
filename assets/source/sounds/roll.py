"""The roll for a reached goal: a crescendo of cymbals, and a stroke with harp and bells in it."""

import numpy as np

from .soundfont import DRUMS, play_notes
from .synthesis import RATE, frames, high_pass, in_room, low_pass, place, softened

CRASH, SECOND_CRASH = 49, 57                # drums of the sound font
CELESTA, GLOCKENSPIEL, HARP = 8, 9, 46      # its programs
STROKE = 3.0                                # seconds until the goal flies up
END = 5.9
# A and E, which fit every bar of the music, spread upwards into the stroke: seconds, key, velocity.
ARPEGGIO = ((2.76, 57, 70), (2.84, 64, 76), (2.92, 69, 82), (3.0, 76, 92), (3.0, 81, 84), (3.12, 88, 70))


def mallets(chance):
    """Two hands with two soft mallets each: their strokes overlap, and no rate of them stands out."""
    strokes, t = [], 0.0
    while t < STROKE - .03:
        share = t / STROKE
        for _ in range(2):
            velocity = int(np.clip(22 + 62 * share ** 1.5 + chance.normal(0, 7), 6, 100))
            cymbal = (CRASH, SECOND_CRASH)[int(chance.integers(0, 2))]
            strokes.append((max(0, t + chance.normal(0, .016)), cymbal, .6, velocity))
        t += .058 - .012 * share
    return play_notes(sorted(strokes), 6.6, channel=DRUMS, gain=.5)


def mean_level(sound, seconds):
    window = frames(seconds)
    return np.sqrt(np.convolve((sound ** 2).mean(1), np.ones(window) / window, 'same') + 1e-14)


def crescendo(cymbals):
    """Dark at first, opening up as the roll grows by 22 dB, whatever single strokes do."""
    time = np.arange(len(cymbals)) / RATE
    grown = np.clip(time / STROKE, 0, 1)[:, None]
    roll = low_pass(cymbals, 1500, 2) * (1 - grown) ** 1.5 * 2
    roll += low_pass(cymbals, 4200, 2) * (1 - abs(2 * grown - 1)) * .9
    roll += cymbals * grown ** 1.6
    # Felt, not wood: what rises at once is held back, and the strokes merge.
    roll *= np.minimum(1, 1.15 * mean_level(roll, .15) / mean_level(roll, .01))[:, None]
    gain = 10 ** ((-22 + 22 * grown[:, 0] ** 1.25) / 20) / mean_level(roll, .16)
    settled = frames(STROKE - .1)
    gain[settled:] = gain[settled]
    return roll * np.minimum(gain / gain[settled], 200)[:, None]


def tone(length):
    """The arpeggio by a harp, and by a celesta that a glockenspiel takes over from above."""
    sound = np.zeros((length, 2))
    for at, key, velocity in ARPEGGIO:
        bells = GLOCKENSPIEL if key > 75 else CELESTA
        for program, strength in ((HARP, 1), (bells, .6)):
            note = play_notes([(0, key, 2.6, velocity)], 3.2, program=program)
            place(sound, note[:length - frames(at)], at, strength)
    sound = in_room(sound, 1.8, .25, brightness=6000)
    return sound / abs(sound).max()


def cymbal_roll():
    roll = crescendo(mallets(np.random.default_rng(8)))
    stroke = play_notes([(0, CRASH, 3, 104), (.012, SECOND_CRASH, 3, 84)], 3.4, channel=DRUMS, gain=.5)
    place(roll, stroke[:len(roll) - frames(STROKE)], STROKE, .6)
    time = np.arange(len(roll)) / RATE
    roll *= np.exp(-np.maximum(time - STROKE - 1.2, 0) / .40)[:, None]
    roll = softened(in_room(high_pass(roll, 180), 1.6, .20, brightness=8000), -10, 4500)
    return (roll / abs(roll).max() * .62 + tone(len(roll)) * .60)[:frames(END)]
