"""What the recipes are made of: struck bodies, noise, filters, a room. All at 48 kHz, stereo as (frames, 2).

Everything drawn by chance comes from generators with fixed seeds: the same bytes every time."""

import numpy as np
from scipy.io import wavfile
from scipy.signal import butter, fftconvolve, lfilter

RATE = 48000


def decibels(level):
    """The factor of a level in dB."""
    return 10 ** (level / 20.)


def frames(seconds):
    return int(seconds * RATE)


def silence(seconds):
    return np.zeros((frames(seconds), 2))


def struck(seconds, modes, chance, attack=.0004, detune=0):
    """A body that is struck once: its modes as (Hz, strength, seconds to fall to 1/e), one channel.

    With detune every mode has a twin beside it, as real metal has: they begin together, so that the stroke is
    the loudest moment, and then beat slowly. Every mode must
    have time to fall by 48 dB, or its end would be heard."""
    if max(decay for _, _, decay in modes) * 5.5 > seconds:
        raise ValueError('a mode rings longer than %g seconds' % seconds)
    t = np.arange(frames(seconds)) / RATE
    body = np.zeros(len(t))
    for pitch, strength, decay in modes:
        if pitch > 17500:       # nobody hears it, and it would come back as something lower
            continue
        phase = chance.random() * .6
        body += strength * np.sin(2 * np.pi * pitch * t + phase) * np.exp(-t / decay)
        if detune:
            twin = pitch * (1 + detune * (chance.random() - .5))
            body += .6 * strength * np.sin(2 * np.pi * twin * t + phase) * np.exp(-t / (decay * .9))
    return body * np.minimum(1, t / attack)


def tap(seconds, low, high, decay, chance):
    """The noise of the hammer itself, between two pitches."""
    b, a = butter(2, [low / (RATE / 2), high / (RATE / 2)], 'band')
    length = frames(seconds)
    return lfilter(b, a, chance.standard_normal(length)) * np.exp(-np.arange(length) / RATE / decay)


def low_pass(sound, pitch, order=1):
    b, a = butter(order, pitch / (RATE / 2))
    return lfilter(b, a, sound, axis=0)


def high_pass(sound, pitch, order=1):
    b, a = butter(order, pitch / (RATE / 2), 'high')
    return lfilter(b, a, sound, axis=0)


def softened(sound, level, pitch=6000):
    """Everything well above the pitch lowered by the level (dB, negative): what is heard a hundred times
    must not be sharp."""
    treble = high_pass(sound, pitch)
    return sound - treble * (1 - decibels(level))


def place(stage, sound, at, strength=1., side=0.):
    """Adds a sound to the stage at a time; a sound of one channel goes to a side, from -1 to 1."""
    start, length = frames(at), len(sound)
    if start + length > len(stage):
        raise ValueError('a sound at %g s does not fit on its stage' % at)
    if sound.ndim == 1:
        stage[start:start + length, 0] += sound[:length] * strength * np.cos((side + 1) * np.pi / 4)
        stage[start:start + length, 1] += sound[:length] * strength * np.sin((side + 1) * np.pi / 4)
    else:
        stage[start:start + length] += sound[:length] * strength


def in_room(sound, reverberation, strength, seed=5, brightness=6000, distance=.008):
    """The sound with the room's answer: noise that falls by 60 dB in the reverberation time (seconds)."""
    chance = np.random.default_rng(seed)
    t = np.arange(int(reverberation * 1.2 * RATE)) / RATE
    answer = np.zeros((len(sound), 2))
    for channel in (0, 1):
        echo = low_pass(chance.standard_normal(len(t)), brightness)
        echo = high_pass(echo * 10 ** (-3 * t / reverberation) * np.minimum(1, t / .004), 180)
        echo /= np.sqrt((echo ** 2).sum())
        echo = np.concatenate([np.zeros(frames(distance)), echo])
        source = sound[:, channel] * .8 + sound[:, 1 - channel] * .2
        answer[:, channel] = fftconvolve(source, echo)[:len(sound)]
    return sound + answer * strength


def rounded(sound, level):
    """The sound with its peaks pressed together, most of all what stands above the level (dB, to the highest)."""
    sound = sound / abs(sound).max()
    return np.tanh(sound / decibels(level))


def finished(sound, peak, fade=.06, quiet=-66, onset=-40):
    """As 16-bit samples: silence cut off at both ends, the end faded to nothing, the peak in dB below full
    scale. `quiet` and `onset` say, in dB below the peak, where the sound is over and where it begins."""
    sound = sound / abs(sound).max()
    loudness = np.abs(sound).max(1)
    start = max(int(np.argmax(loudness > decibels(onset))) - frames(.0012), 0)
    sound, loudness = sound[start:], loudness[start:]
    end = np.where(loudness > decibels(quiet))[0][-1] + 1
    sound = sound[:min(end + frames(.02), len(sound))]
    tail = min(frames(fade), len(sound) // 3)
    sound[-tail:] *= (.5 + .5 * np.cos(np.pi * np.arange(tail) / tail))[:, None]
    sound[:24] *= np.linspace(0, 1, 24)[:, None]
    return dithered(sound / abs(sound).max() * decibels(peak), np.random.default_rng(1), .5)


def dithered(sound, chance, strength):
    """Rounded to 16 bits, with the noise that hides the rounding."""
    noise = (chance.random(sound.shape) - chance.random(sound.shape)) * strength
    return np.clip(np.round(sound * 32767 + noise), -32768, 32767).astype(np.int16)


def loudness(sound):
    """The integrated loudness in LUFS, as ITU-R BS.1770 has it for 48 kHz."""
    heard = lfilter([1.53512485958697, -2.69169618940638, 1.19839281085285], [1, -1.69065929318241, .73248077421585], sound, axis=0)
    heard = lfilter([1, -2, 1], [1, -1.99004745483398, .99007225036621], heard, axis=0)
    tenths = (heard ** 2).sum(1)[:len(heard) // 4800 * 4800].reshape(-1, 4800).mean(1)
    blocks = np.convolve(tenths, np.ones(4) / 4, 'valid')
    blocks = blocks[blocks > 10 ** ((-70 + .691) / 10)]
    return -.691 + 10 * np.log10(blocks[blocks > blocks.mean() / 10].mean())


def write_wav(file, samples):
    wavfile.write(file, RATE, samples)
