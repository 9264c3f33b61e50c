"""The effects, one recipe each. Nothing in them is left to chance: each sounds the same at every hearing.

Their notes are A, B, C#, E and F#, which are at home in every bar of the music."""

import io

import numpy as np

from .roll import cymbal_roll
from .synthesis import finished, frames, in_room, low_pass, place, rounded, silence, softened, struck, tap, write_wav

# The modes of a free bar to its lowest, as of a glockenspiel.
SECOND_MODE, THIRD_MODE, FOURTH_MODE = 2.756, 5.404, 8.933
F4_SHARP, A4, E6, A6 = 369.99, 440.0, 1318.51, 1760.0
CHIMES = (1318.51, 1479.98, 1760.0, 1975.53, 2217.46)       # E6, F#6, A6, B6, C#7


def click():
    """A fingernail on wood. It plays whenever the pointer comes over something, so it is faint."""
    chance = np.random.default_rng(1)
    stage = silence(.16)
    wood = struck(.09, [(1900, 1, .009), (2900, .50, .006), (4100, .25, .0035), (760, .30, .011)], chance, .0003)
    wood[:frames(.01)] += .35 * tap(.01, 1500, 7000, .0012, chance)
    place(stage, wood, 0)
    return in_room(stage, .12, .10)


def marble():
    """A stone dropped on the board: it bounces four times, each time sooner and softer."""
    chance = np.random.default_rng(4)
    stage = silence(.9)
    at, strength, gap = 0, 1, .082
    for pitch in (1, 1.012, .994, 1.02, 1.0):
        glass = [(2310 * pitch, .75, .024), (3870 * pitch, .52, .018), (5480 * pitch, .24, .012), (7350 * pitch, .10, .008)]
        wood = [(220, .45 * strength, .035), (440, .72, .034), (740, .60, .028), (1175, .40, .020)]
        bounce = struck(.35, glass + wood, chance, .00025)
        bounce[:frames(.02)] += .5 * tap(.02, 900, 9000, .0016, chance)
        place(stage, bounce, at, strength, -.15 + .12 * at / .2)
        at, strength, gap = at + gap, strength * .50, gap * .70
    return rounded(in_room(stage, .35, .14), -4)


def no():
    """A muted bar struck twice, A and then F#: a refusal that small speakers play too."""
    chance = np.random.default_rng(6)
    stage = silence(1.0)
    for at, pitch, strength in ((0, A4, .9), (.15, F4_SHARP, 1)):
        bar = struck(.6, [(pitch, 1, .075), (pitch * .5, .30, .070), (pitch * 3.93, .22, .028), (pitch * 9.1, .06, .010)],
                     chance, .0012)
        bar[:frames(.03)] += .22 * tap(.03, 350, 2200, .005, chance)
        place(stage, bar, at, strength)
    return in_room(low_pass(stage, 3600), .4, .14)


def delete_ding():
    """A small bell, A6: a line is gone."""
    chance = np.random.default_rng(10)
    stage = silence(2.2)
    bell = struck(2.15, [(A6, 1, .34), (A6 * 2, .26, .22), (A6 * 2.52, .34, .16), (A6 * 3, .16, .16), (A6 * 4.49, .12, .06),
                         (A6 * 6.02, .06, .03), (A6 * .5, .14, .14)], chance, .0003, .0012)
    bell[:frames(.02)] += .14 * tap(.02, 3000, 10000, .0015, chance)
    place(stage, bell, 0)
    return softened(in_room(stage, .7, .16), -8)


def triangle():
    """Steel: a few strong partials near A major's E, A and C#, in a dense shimmer of weak ones."""
    chance = np.random.default_rng(12)
    stage = silence(3.7)
    strong = [(1318.5 * .997, .10, .5), (2217.5 * 1.003, .20, .6), (2637 * .998, .30, .65), (3520 * 1.004, .42, .60),
              (4435 * .997, .60, .55), (5274 * 1.003, .60, .50), (7040 * .998, .30, .42), (7902 * 1.004, .24, .35)]
    dense = [(1800 * 1.107 ** i * (1 + .05 * (chance.random() - .5)), .085 + .05 * chance.random(), .16 + .12 * chance.random())
             for i in range(19)]
    dense = [mode for mode in dense if mode[0] < 12500]
    for side in (-.45, .45):
        place(stage, struck(3.6, strong + dense, chance, .0003, .0022), 0, 1, side)
    place(stage, .3 * tap(.02, 5000, 14000, .0015, chance), 0)
    return softened(in_room(stage, .9, .14, brightness=9000), -9, 5500)


def glock_e2():
    """A glockenspiel's E, and softly the one below: a message opens."""
    chance = np.random.default_rng(21)
    stage = silence(4.6)
    bar = struck(4.4, [(E6, 1, .52), (E6 * SECOND_MODE, .30, .22), (E6 * THIRD_MODE, .10, .07), (E6 * FOURTH_MODE, .03, .03)],
                 chance, .0004, .0010)
    bar[:frames(.02)] += .10 * tap(.02, 2500, 9000, .0012, chance)
    place(stage, bar, 0)
    place(stage, struck(4.4, [(E6 / 2, .16, .35), (E6, .10, .30)], chance, .0015), 0, 1, .2)
    return softened(in_room(stage, 1.3, .14, brightness=7000), -5, 6000)


def chimes():
    """Twenty-two bars stroked from low to high, from left to right, two to a note, and five that ring on."""
    chance = np.random.default_rng(14)
    stage = silence(5.0)
    bars, at = 22, 0
    for i in range(bars):
        octave, note = divmod(i // 2, len(CHIMES))
        apart = (.0030 if i % 2 else -.0030) * (.6 + .4 * chance.random())
        pitch = CHIMES[note] * 2 ** octave * (1 + apart)
        decay = .50 - .26 * i / bars
        bar = struck(3.4, [(pitch, 1, decay), (pitch * SECOND_MODE, .22, decay * .4), (pitch * THIRD_MODE, .05, decay * .2)],
                     chance, .0005, .0012)
        strength = .42 + .5 * chance.random() * np.sin(np.pi * (i + 1) / (bars + 1)) + .12
        place(stage, bar, at, strength * (1 - .45 * i / bars), -.7 + 1.4 * i / (bars - 1))
        at += .030 + .014 * chance.random() + .020 * np.exp(-i / 4)
    for i in range(5):
        pitch = CHIMES[chance.integers(0, len(CHIMES))] * 2 ** chance.integers(0, 2)
        bar = struck(2.6, [(pitch, 1, .45), (pitch * SECOND_MODE, .15, .2)], chance, .0005, .0012)
        place(stage, bar, at + .05 + .09 * i + .05 * chance.random(), .16, chance.random() * 1.4 - .7)
    return softened(in_room(stage, 1.5, .20, brightness=8000), -8)


# Name -> recipe, and its finish: peak in dB, seconds of fading at the end, and the levels at which it is
# over and begins. The peaks keep the loudness where it belongs: a click is a hint, the roll a triumph.
EFFECTS = {
    'Click': (click, -14.5, .02, -50),
    'Marble': (marble, -9, .05, -60),
    'No': (no, -12, .06, -56),
    'CymbalRoll': (cymbal_roll, -6, .5, -60, -48),
    'DeleteDing': (delete_ding, -12, .2, -62),
    'Triangle': (triangle, -10.5, .3, -64),
    'GlockE2': (glock_e2, -12.5, .4, -64),
    'Chimes': (chimes, -9, .4, -62),
}


def wav(name):
    """The effect as the bytes of a WAV file."""
    recipe, *finish = EFFECTS[name]
    file = io.BytesIO()
    write_wav(file, finished(recipe(), *finish))
    return file.getvalue()
