"""The music, "Along the Seabed": the score, arranged, played part by part, mixed on a circle and packed.

Everything after the instruments wraps around the loop's length, so the loop is seamless by construction.
The lossy packing leaves a small step at the seam all the same: the file begins a second before the loop
and ends a second after it, and whoever plays it cuts that off and cross-fades."""

import io
import math
import os
import random
import subprocess

import numpy as np

from . import arrangement, score
from .circle import Circle, to_side
from .soundfont import play_part
from .synthesis import RATE, decibels, dithered, write_wav

BEATS_PER_MINUTE = 72
BARS = 24
LOOP = int(BARS * 4 * 60 / BEATS_PER_MINUTE * RATE)     # exactly 80 seconds
TAIL = 14                                               # seconds that the last notes may ring
GUARD = RATE                                            # frames before and after the loop in the file
LOUDNESS = -26.5                                        # of the whole, root of the mean square, in dB

PROGRAMS = dict(pad=89, choir=52, bass=35, harp=46, vib=11, low=71, cel=8, mar=12)
LEVELS = dict(pad=-6, choir=-10, bass=-5, harp=-2, vib=-1.5, low=-4.5, cel=-8, mar=-9)      # dB
HALL = dict(pad=-9, choir=-5, bass=-22, harp=-7, vib=-6, low=-5, cel=-4, mar=-5)            # dB below the level


def played_parts(circle):
    path = os.path.join(os.path.dirname(os.path.abspath(__file__)), 'seabed.score')
    parts = arrangement.arranged(*score.read(path))
    seconds = LOOP / RATE + TAIL
    return {name: circle.folded(play_part(notes, PROGRAMS[name], BEATS_PER_MINUTE, seconds)) for name, notes in parts.items()}


def coloured(parts, circle):
    """Each part's place in spectrum and space, then the echoes of the bright ones."""
    low, high = circle.low_pass, circle.high_pass
    parts['pad'] = circle.chorus(circle.filtered(parts['pad'], low(4200, 1) * high(130, 1)), 17, 3.5, 14, .5)
    parts['choir'] = circle.chorus(circle.filtered(parts['choir'], low(5000, 1) * high(180, 1)), 23, 3, 12, .5)
    parts['bass'] = circle.filtered(parts['bass'], low(900, 1) * high(32, 2))
    parts['harp'] = to_side(circle.filtered(parts['harp'], low(9000, 1) * high(70, 1)), -.22)
    parts['vib'] = to_side(circle.filtered(parts['vib'], low(9000, 1)), .16)
    parts['low'] = to_side(circle.filtered(parts['low'], low(2600, 1) * high(140, 1)), -.08)
    parts['cel'] = circle.filtered(parts['cel'], low(14000, 1) * high(400, 1))
    parts['mar'] = to_side(circle.filtered(parts['mar'], low(4500, 1)), .34)
    beat = 60 / BEATS_PER_MINUTE
    parts['vib'] = parts['vib'] + .55 * circle.echoes(parts['vib'], beat * .75, .42, 4)
    parts['cel'] = parts['cel'] + .9 * circle.echoes(parts['cel'], beat * .75, .55, 6)
    parts['mar'] = parts['mar'] + .8 * circle.echoes(parts['mar'], beat * .5, .5, 5)
    return parts


def levelled(parts):
    """Brings every part to the same loudness where it plays: the balance is then LEVELS alone."""
    for name, sound in parts.items():
        moments = np.sqrt((sound.reshape(-1, 4800, 2) ** 2).mean((1, 2)))
        playing = moments[moments > moments.max() * decibels(-24)]
        sound /= np.sqrt((playing ** 2).mean())
    return parts


def sea(circle):
    """Slow swells of dark noise, eight in the loop, a little foam on their crests."""
    chance = np.random.default_rng(3)
    deep = chance.standard_normal((LOOP, 2))
    deep = circle.filtered(deep, circle.high_pass(60, 1) * circle.low_pass(320, 1)
                           / np.sqrt(1 + (circle.pitches / 150) ** 1.0))
    deep /= np.sqrt((deep ** 2).mean())
    swell = (.5 + .5 * np.cos(2 * np.pi * (8 * circle.places / LOOP + .02 * np.sin(2 * np.pi * 3 * circle.places / LOOP)))) ** 1.5
    foam = circle.filtered(chance.standard_normal((LOOP, 2)), circle.high_pass(900, 1) * circle.low_pass(2600, 2))
    foam /= np.sqrt((foam ** 2).mean())
    return deep * (.25 + .75 * swell[:, None]) + foam * (swell[:, None] ** 3) * .10


def bubbles(circle):
    """Fifteen clusters of rising bubbles: tones that climb as they fade."""
    chance = random.Random(44)
    sound = np.zeros((LOOP, 2))
    for _ in range(15):
        cluster = chance.random() * LOOP
        for _ in range(chance.randrange(3, 9)):
            pitch = chance.uniform(380, 1100)
            decay = chance.uniform(.05, .12)
            t = np.arange(int(decay * 5 * RATE)) / RATE
            climb = pitch * (1 + .9 * (1 - np.exp(-t / decay)) * chance.uniform(.15, .5))
            tone = np.sin(2 * np.pi * np.cumsum(climb) / RATE) * np.exp(-t / decay) * np.minimum(1, t / .004)
            side, strength = chance.uniform(-.7, .7), chance.uniform(.3, 1)
            start = int(cluster + chance.uniform(0, 1.4) * RATE)
            places = (start + np.arange(len(t))) % LOOP
            sound[places, 0] += tone * strength * math.cos((side + 1) * math.pi / 4)
            sound[places, 1] += tone * strength * math.sin((side + 1) * math.pi / 4)
    return circle.filtered(sound, circle.low_pass(2500, 1))


def mixed():
    """The loop as 16-bit samples."""
    circle = Circle(LOOP)
    parts = levelled(coloured(played_parts(circle), circle))
    dry = sum(sound * decibels(LEVELS[name]) for name, sound in parts.items())
    wet = sum(sound * decibels(LEVELS[name] + HALL[name]) for name, sound in parts.items())
    music = np.sqrt((dry ** 2).mean())
    water, rising = sea(circle), bubbles(circle)
    dry = dry + water * music * decibels(-17) + rising * music * decibels(1)
    wet = wet + rising * music * decibels(-1)
    mix = dry + circle.hall(wet, 11, 4.6) * .9
    # Softer treble, no rumble, and a dip where low mids pile up.
    dip = 1 - .22 * np.exp(-(np.log2(np.maximum(circle.pitches, 1) / 190)) ** 2 / 1.2)
    mix = circle.filtered(mix, circle.shelf(9000, -2) * circle.high_pass(30, 2) * dip)
    mix = mix / np.sqrt((mix ** 2).mean()) * decibels(LOUDNESS)
    return dithered(mix, np.random.default_rng(9), 1)


def ogg():
    """The packed file, guards included. The stream's number is fixed, or it would be drawn anew each time."""
    loop = mixed()
    guarded = np.concatenate([loop[-GUARD:], loop, loop[:GUARD]])
    file = io.BytesIO()
    write_wav(file, guarded)
    return subprocess.run(['oggenc', '--quiet', '--quality', '5', '--serial', '1907', '--output', '-', '-'],
                          input=file.getvalue(), check=True, stdout=subprocess.PIPE).stdout
