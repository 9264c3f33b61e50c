"""The effects, one recipe each. Nothing in them is left to chance: each sounds the same at every hearing."""

import io

import numpy as np

from .soundfont import DRUMS, play_notes
from .synthesis import (RATE, finished, frames, high_pass, in_room, low_pass, place, silence, softened, struck, tap,
                        write_wav)

GLOCKENSPIEL, CELESTA = 9, 8                # programs of the sound font
CRASH, SECOND_CRASH = 49, 57                # its drums


def click():
    """A fingernail on wood. It plays whenever the pointer comes over something, so it is faint."""
    chance = np.random.default_rng(1)
    stage = silence(.16)
    wood = struck(.09, [(1180, 1, .009), (1930, .55, .006), (3240, .28, .0035), (520, .5, .012)], chance, .0003)
    wood += .35 * np.pad(tap(.01, 1500, 7000, .0012, chance), (0, len(wood) - frames(.01)))
    place(stage, wood, 0)
    return in_room(stage, .12, .10)


def marble():
    """A stone dropped on the board: it bounces four times, each time sooner and softer."""
    chance = np.random.default_rng(4)
    stage = silence(.9)
    for at, strength, pitch in ((0, 1, 1), (.082, .40, 1.012), (.141, .23, .994), (.182, .13, 1.02), (.210, .07, 1.0)):
        glass = [(2310 * pitch, .62, .020), (3870 * pitch, .42, .015), (5480 * pitch, .22, .010), (7350 * pitch, .10, .007)]
        wood = [(196, .70 * strength, .040), (402, .85, .032), (705, .55, .022), (1150, .35, .015)]
        bounce = struck(.35, glass + wood, chance, .00025)
        bounce[:frames(.02)] += .5 * tap(.02, 900, 9000, .0016, chance)
        place(stage, bounce, at, strength, -.15 + .12 * at / .2)
    return in_room(stage, .35, .16)


def no():
    """A muted bar struck twice, the second time a third lower."""
    chance = np.random.default_rng(6)
    stage = silence(1.0)
    for at, pitch, strength in ((0, 164.8, 1), (.15, 130.8, 1.05)):
        bar = struck(.5, [(pitch, 1, .085), (pitch * 2.0, .18, .05), (pitch * 3.93, .30, .030), (pitch * 9.1, .08, .012)],
                     chance, .0012)
        bar[:frames(.03)] += .22 * tap(.03, 250, 1600, .005, chance)
        place(stage, bar, at, strength)
    return in_room(low_pass(stage, 2600), .4, .14)


ROLL = 3.0                                  # seconds until the goal flies up


def cymbal_roll():
    """Soft mallets on two cymbals, ever faster and brighter, and a stroke when the goal flies."""
    chance = np.random.default_rng(8)
    strokes, t = [], 0.0
    while t < ROLL - .03:
        share = t / ROLL
        velocity = int(24 + 66 * share ** 1.5) + chance.integers(-4, 5)
        strokes.append((t, (CRASH, SECOND_CRASH)[len(strokes) % 2], .6, max(6, min(100, velocity))))
        t += .070 - .018 * share + (chance.random() - .5) * .010
    cymbals = play_notes(strokes, 6.6, channel=DRUMS, gain=.5)

    time = np.arange(len(cymbals)) / RATE
    grown = np.clip(time / ROLL, 0, 1)[:, None]
    # Dark at first, opening up as the roll grows.
    roll = low_pass(cymbals, 1500, 2) * (1 - grown) ** 1.5 * 2
    roll += low_pass(cymbals, 4200, 2) * (1 - abs(2 * grown - 1)) * .9
    roll += cymbals * grown ** 1.6

    # A crescendo of 25 dB, whatever single strokes do.
    window = int(.16 * RATE)
    power = np.convolve((roll ** 2).mean(1), np.ones(window) / window, 'same')
    gain = 10 ** ((-25 + 25 * grown[:, 0] ** 1.25) / 20) / np.sqrt(power + 1e-14)
    settled = int((ROLL - .1) * RATE)
    gain[settled:] = gain[settled]
    gain /= gain[settled]
    roll = roll * np.minimum(gain, 200)[:, None]

    stroke = play_notes([(0, CRASH, 3, 104), (0.012, SECOND_CRASH, 3, 84)], 3.4, channel=DRUMS, gain=.5)
    start = int(ROLL * RATE)
    length = min(len(stroke), len(roll) - start)
    roll[start:start + length] += stroke[:length] * .7
    roll[start:] *= np.exp(-np.maximum(time[start:] - ROLL - 1.6, 0) / .45)[:, None]
    return softened(in_room(high_pass(roll, 140), 1.6, .20, brightness=8000), -14, 4000)


def delete_ding():
    """A small bell, A6: a line is gone."""
    chance = np.random.default_rng(10)
    stage = silence(2.2)
    a6 = 1760
    bell = struck(2.0, [(a6, 1, .34), (a6 * 2.01, .22, .22), (a6 * 2.74, .45, .16), (a6 * 3.0, .10, .2), (a6 * 5.2, .22, .06),
                        (a6 * 8.1, .08, .025), (a6 * .5, .12, .12)], chance, .0003, .0012)
    bell[:frames(.02)] += .18 * tap(.02, 3000, 12000, .0015, chance)
    place(stage, bell, 0)
    return softened(in_room(stage, .7, .16), -8)


def triangle():
    """Eleven partials that belong to no scale, as a triangle's do not."""
    chance = np.random.default_rng(12)
    stage = silence(2.6)
    partials = [(1240, .10, .5), (2140, .24, .8), (3010, .32, .85), (3690, .42, .8), (4540, .75, .75), (5320, .62, .66),
                (6410, .55, .55), (7790, .38, .42), (9230, .26, .30), (10950, .16, .22), (12800, .09, .14)]
    for side in (-.45, .45):
        steel = [(pitch, strength, decay * .52) for pitch, strength, decay in partials]
        place(stage, struck(2.5, steel, chance, .0003, .0025), 0, 1, side)
    place(stage, .25 * tap(.02, 5000, 15000, .0015, chance), 0)
    return softened(in_room(stage, .9, .14, brightness=9000), -18, 3500)


def glock_e2():
    """A glockenspiel's E and, faintly, a celesta's: a message opens."""
    note = 88
    bar = play_notes([(0, note, 1.6, 92)], 2.6, program=GLOCKENSPIEL)
    shade = play_notes([(0, note, 1.6, 60)], 2.6, program=CELESTA)
    length = min(len(bar), len(shade))
    return softened(in_room(bar[:length] + .35 * shade[:length], 1.3, .22, brightness=7000), -20, 3000)


def chimes():
    """Twenty-two bars stroked from low to high, from left to right, and five that ring on."""
    chance = np.random.default_rng(14)
    stage = silence(4.2)
    bars, at, lowest = 22, 0, 1320
    for i in range(bars):
        pitch = lowest * 2 ** (i * 2.15 / (bars - 1)) * (1 + (chance.random() - .5) * .012)
        decay = .95 - .5 * i / bars
        bar = struck(2.2, [(pitch, 1, decay), (pitch * 2.756, .30, decay * .45), (pitch * 5.404, .08, decay * .2)], chance,
                     .0003, .0018)
        strength = .42 + .5 * chance.random() * np.sin(np.pi * (i + 1) / (bars + 1)) + .12
        place(stage, bar, at, strength * (1 - .25 * i / bars), -.7 + 1.4 * i / (bars - 1))
        at += .030 + .014 * chance.random() + .020 * np.exp(-i / 4.)
    for i in range(5):
        pitch = lowest * 2 ** (chance.random() * 2.0)
        bar = struck(1.6, [(pitch, 1, .6), (pitch * 2.756, .2, .25)], chance, .0003, .0018)
        place(stage, bar, at + .05 + .09 * i + .05 * chance.random(), .16, chance.random() * 1.4 - .7)
    return softened(in_room(stage, 1.5, .20, brightness=9000), -8)


# Name -> recipe, and its finish: peak in dB, seconds of fading at the end, and the levels at which it is
# over and begins. The peaks keep the loudness where it belongs: a click is a hint, the roll a triumph.
EFFECTS = {
    'Click': (click, -15, .02, -50),
    'Marble': (marble, -6, .05, -60),
    'No': (no, -7, .06, -56),
    'CymbalRoll': (cymbal_roll, -5, .5, -60, -48),
    'DeleteDing': (delete_ding, -11, .2, -60),
    'Triangle': (triangle, -12, .3, -58),
    'GlockE2': (glock_e2, -11, .3, -60),
    'Chimes': (chimes, -9, .4, -60),
}


def wav(name):
    """The effect as the bytes of a WAV file."""
    recipe, *finish = EFFECTS[name]
    file = io.BytesIO()
    write_wav(file, finished(recipe(), *finish))
    return file.getvalue()
