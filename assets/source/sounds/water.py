"""The water that is heard behind the music: the swell of the sea, and bubbles that rise from it."""

import math
import random

import numpy as np

from .synthesis import RATE

SWELLS = 16                 # in the loop, ten seconds each
CLUSTERS = 22


def sea(circle):
    """Slow swells of dark noise, and the foam on their crests."""
    chance = np.random.default_rng(3)
    deep = chance.standard_normal((circle.length, 2))
    deep = circle.filtered(deep, circle.high_pass(60, 1) * circle.low_pass(320, 1)
                           / np.sqrt(1 + (circle.pitches / 150) ** 1.0))
    deep /= np.sqrt((deep ** 2).mean())
    turn = 2 * np.pi * circle.places / circle.length
    swell = (.5 + .5 * np.cos(SWELLS * turn + .04 * np.pi * np.sin(3 * turn))) ** 1.5
    foam = circle.filtered(chance.standard_normal((circle.length, 2)), circle.high_pass(900, 1) * circle.low_pass(2600, 2))
    foam /= np.sqrt((foam ** 2).mean())
    return deep * (.25 + .75 * swell[:, None]) + foam * (swell[:, None] ** 3) * .30


def bubbles(circle):
    """Clusters of rising bubbles: tones that climb as they fade."""
    chance = random.Random(44)
    sound = np.zeros((circle.length, 2))
    for _ in range(CLUSTERS):
        cluster = chance.random() * circle.length
        for _ in range(chance.randrange(3, 9)):
            pitch = chance.uniform(380, 1100)
            decay = chance.uniform(.05, .12)
            t = np.arange(int(decay * 5 * RATE)) / RATE
            climb = pitch * (1 + .9 * (1 - np.exp(-t / decay)) * chance.uniform(.15, .5))
            tone = np.sin(2 * np.pi * np.cumsum(climb) / RATE) * np.exp(-t / decay) * np.minimum(1, t / .004)
            side, strength = chance.uniform(-.7, .7), chance.uniform(.3, 1)
            start = int(cluster + chance.uniform(0, 1.4) * RATE)
            places = (start + np.arange(len(t))) % circle.length
            sound[places, 0] += tone * strength * math.cos((side + 1) * math.pi / 4)
            sound[places, 1] += tone * strength * math.sin((side + 1) * math.pi / 4)
    return circle.filtered(sound, circle.low_pass(2500, 1))
