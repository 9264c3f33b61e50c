"""Sound on a circle: every effect here wraps around, so that what comes out is a loop without a seam.

Sounds are (N, 2) with the loop's N frames; what would ring past the end rings into the beginning."""

import math

import numpy as np
from scipy.ndimage import minimum_filter1d

from .synthesis import RATE


class Circle:
    """A loop's length, and the spectra that belong to it."""

    def __init__(self, length):
        self.length = length
        self.pitches = np.fft.rfftfreq(length, 1 / RATE)
        self.places = np.arange(length)

    # --- responses, to be multiplied and given to filtered

    def low_pass(self, pitch, order=2):
        return 1 / np.sqrt(1 + (self.pitches / pitch) ** (2 * order))

    def high_pass(self, pitch, order=2):
        return 1 / np.sqrt(1 + (pitch / np.maximum(self.pitches, 1e-3)) ** (2 * order))

    def shelf(self, pitch, level):
        gain = 10 ** (level / 20)
        return (1 + gain * (self.pitches / pitch) ** 2) / (1 + (self.pitches / pitch) ** 2)

    # --- effects

    def filtered(self, sound, response):
        return np.fft.irfft(np.fft.rfft(sound, axis=0) * response[:, None], n=self.length, axis=0)

    def folded(self, sound):
        """A longer sound, its tail laid over its beginning."""
        loop = np.zeros((self.length, 2))
        for start in range(0, len(sound), self.length):
            piece = sound[start:start + self.length]
            loop[:len(piece)] += piece
        return loop

    def echoes(self, sound, delay, feedback, count):
        """Echoes that change sides, each softer by the feedback."""
        sum_ = np.zeros_like(sound)
        shift = int(round(delay * RATE))
        echo = sound
        for _ in range(count):
            echo = (np.roll(echo, shift, 0) * feedback)[:, ::-1]
            sum_ = sum_ + echo
        return sum_

    def chorus(self, sound, cycles, depth, base, share):
        """A second voice whose delay sways between base - depth and base + depth milliseconds, a whole number
        of times in the loop."""
        voice = np.empty_like(sound)
        for channel in (0, 1):
            sway = np.sin(2 * np.pi * cycles * self.places / self.length + channel * np.pi / 2)
            place = (self.places - (base + depth * sway) * RATE / 1000) % self.length
            whole = place.astype(np.int64)
            rest = place - whole
            voice[:, channel] = (sound[whole, channel] * (1 - rest)
                                 + sound[(whole + 1) % self.length, channel] * rest)
        return sound * (1 - share) + voice * share

    def hall(self, seed, reverberation):
        """The spectrum of a large hall's answer: noise, the treble of which dies sooner."""
        chance = np.random.default_rng(seed)
        length = int(7 * RATE)
        t = np.arange(length) / RATE
        pitches = np.fft.rfftfreq(length, 1 / RATE)
        answer = np.zeros((self.length, 2))
        for low, high, share in ((90, 300, 1.05), (300, 1200, 1.0), (1200, 3500, .72), (3500, 8000, .40), (8000, 15000, .2)):
            for channel in (0, 1):
                noise = np.fft.rfft(chance.standard_normal(length))
                band = 1 / np.sqrt(1 + (low / np.maximum(pitches, 1)) ** 8) / np.sqrt(1 + (pitches / high) ** 8)
                noise = np.fft.irfft(noise * band, n=length)
                decay = 10 ** (-3 * t / (reverberation * share)) * np.minimum(1, t / .03)
                answer[:length, channel] += noise * decay * (1 if share > .5 else .6)
        answer = np.roll(answer, int(.022 * RATE), 0)
        answer = answer / np.sqrt((answer ** 2).sum(0))
        return np.fft.rfft(answer, axis=0)

    def convolved(self, sound, hall):
        """What a hall answers to a sound."""
        return np.fft.irfft(np.fft.rfft(sound, axis=0) * hall, n=self.length, axis=0)

    def kept_below(self, sound, level):
        """The gain, frame by frame, that keeps a sound's peaks below a level (dB). It moves within 20 ms."""
        width = int(.02 * RATE) | 1
        needed = np.minimum(1, 10 ** (level / 20) / np.maximum(np.abs(sound).max(1), 1e-9))
        needed = minimum_filter1d(needed, width, mode='wrap')
        window = np.hanning(width + 2)[1:-1]
        spread = np.concatenate([needed[-(width // 2):], needed, needed[:width // 2]])
        return np.convolve(spread, window / window.sum(), 'valid')[:, None]


def to_side(sound, side):
    """Moves a sound towards a side, from -1 to 1."""
    left, right = math.cos((side + 1) * math.pi / 4) * 1.414, math.sin((side + 1) * math.pi / 4) * 1.414
    return sound * np.array([min(left, 1.2), min(right, 1.2)])
