"""The music, "Along the Seabed": the score, arranged, played part by part, mixed on a circle and packed.

Everything after the instruments wraps around the loop's length, so the loop is seamless by construction.
The lossy packing leaves a small step at the seam all the same: the file begins a second before the loop
and ends a second after it, and whoever plays it cuts that off and cross-fades."""

import functools
import io
import os
import subprocess

import numpy as np

from . import arrangement, score
from .circle import Circle, to_side
from .soundfont import play_part
from .synthesis import RATE, decibels, dithered, write_wav
from .water import bubbles, sea

BEATS_PER_MINUTE = 72
BARS = 48
LOOP = int(BARS * 4 * 60 / BEATS_PER_MINUTE * RATE)     # exactly 160 seconds
TAIL = 14                                               # seconds that the last notes may ring
GUARD = RATE                                            # frames before and after the loop in the file
LOUDNESS = -27.6                                        # of the whole, root of the mean square, in dB
PEAK = -12.3                                            # dB: packing adds a little

PROGRAMS = dict(pad=89, choir=52, bass=35, harp=46, vib=11, mallet=8, low=71, cel=8, mar=12)
LEVELS = dict(pad=-6.5, choir=-10, bass=-3.5, harp=-4.5, vib=-2, mallet=-9, low=-3.4, cel=-8.5, mar=-9)       # dB
HALL = dict(pad=-11, choir=-7, bass=-24, harp=-9, vib=-10, mallet=-12, low=-8, cel=-6, mar=-8)              # dB below the level
SEA, BUBBLES, BUBBLES_HALL = -9, -3, -5                 # dB to the instruments together

# The font's instruments are not even from key to key, and a rising tune must not sink. The vibraphone has a
# duller sample for velocities up to 64, so all of its strokes are harder than that, and a softer one from
# G#5 on; the clarinet's A sticks out.
HARDER = dict(vib=1.5)
SOFTER_SAMPLE = dict(vib=(80, 8.5))                     # the first key, and what it lacks in dB
EVENED = dict(low={61: 1.2, 62: 1.2, 64: .3, 69: -2.6}) # key -> dB, given by the velocity

# The tune's two voices, each with all that belongs to it.
VOICES = dict(vib=('vib', 'mallet'), low=('low',))


def score_path():
    return os.path.join(os.path.dirname(os.path.abspath(__file__)), 'seabed.score')


def played(name, notes, seconds):
    """The notes of one part, its keys evened."""
    harder, evened = HARDER.get(name, 1), EVENED.get(name, {})
    notes = [(beat, key, beats, max(1, min(127, round(velocity * harder * 10 ** (evened.get(key, 0) / 40)))))
             for beat, key, beats, velocity in notes]
    first, gain = SOFTER_SAMPLE.get(name, (128, 0))
    low = [note for note in notes if note[1] < first]
    high = [note for note in notes if note[1] >= first]
    sound = play_part(low, PROGRAMS[name], BEATS_PER_MINUTE, seconds)
    if high:
        above = play_part(high, PROGRAMS[name], BEATS_PER_MINUTE, seconds)
        length = min(len(sound), len(above))
        sound = sound[:length] + above[:length] * decibels(gain)
    return sound


def coloured(name, sound, circle):
    """A part's place in spectrum and space, and the echoes of the bright ones."""
    low, high, filtered = circle.low_pass, circle.high_pass, circle.filtered
    beat = 60 / BEATS_PER_MINUTE
    if name == 'pad':
        return circle.chorus(filtered(sound, low(4200, 1) * high(130, 1)), 17, 3.5, 14, .5)
    if name == 'choir':
        return circle.chorus(filtered(sound, low(5000, 1) * high(180, 1)), 23, 3, 12, .5)
    if name == 'bass':
        return warmed(filtered(sound, low(1600, 1) * high(32, 2)))
    if name == 'harp':
        return to_side(filtered(sound, low(9000, 1) * high(70, 1)), -.22)
    if name == 'vib':
        sound = to_side(filtered(sound, low(9000, 1)), .16)
        return sound + .30 * circle.echoes(sound, beat * .75, .42, 3)
    if name == 'mallet':
        return to_side(filtered(sound, high(1500, 2)), .16)
    if name == 'low':
        return to_side(filtered(sound, low(1100, 2) * high(140, 1)), -.08)
    if name == 'cel':
        sound = filtered(sound, low(14000, 1) * high(400, 1))
        return sound + .9 * circle.echoes(sound, beat * .75, .55, 6)
    sound = to_side(filtered(sound, low(4500, 1)), .34)
    return sound + .8 * circle.echoes(sound, beat * .5, .5, 5)


def warmed(bass):
    """Adds the second and third harmonic, by which small speakers show a bass that they cannot play."""
    peak = np.abs(bass).max()
    x = bass / peak
    return (x + .35 * (x * x - (x * x).mean(0)) + .18 * x ** 3) * peak


def levelled(sound):
    """A part at the same loudness as any other where it plays: the balance is then LEVELS alone."""
    moments = np.sqrt((sound.reshape(-1, 4800, 2) ** 2).mean((1, 2)))
    playing = moments[moments > moments.max() * decibels(-24)]
    return sound / np.sqrt((playing ** 2).mean())


def parts(circle):
    """Part -> its sound around the loop, at its level."""
    seconds = LOOP / RATE + TAIL
    notes = arrangement.arranged(score.read(score_path()))
    return {name: levelled(coloured(name, circle.folded(played(name, notes[name], seconds)), circle)) * decibels(LEVELS[name])
            for name in PROGRAMS}


@functools.lru_cache(maxsize=1)
def mixed():
    """What the mix consists of: 'vib' and 'low', the tune's voices, 'water', and 'rest'. Their sum is the music."""
    circle = Circle(LOOP)
    sounds = parts(circle)
    music = np.sqrt((sum(sounds.values()) ** 2).mean())
    dry = {'water': sea(circle) * music * decibels(SEA), 'rest': np.zeros((LOOP, 2))}
    rising = bubbles(circle) * music
    dry['water'] += rising * decibels(BUBBLES)
    wet = {'water': rising * decibels(BUBBLES_HALL), 'rest': np.zeros((LOOP, 2))}
    for name in list(sounds):
        voice = next((voice for voice, names in VOICES.items() if name in names), 'rest')
        sound = sounds.pop(name)
        dry[voice] = dry.get(voice, 0) + sound
        wet[voice] = wet.get(voice, 0) + sound * decibels(HALL[name])
    hall = circle.hall(11, 3.4)
    # Presence where the ear looks for it, no rumble, and a dip where low mids pile up.
    dip = 1 - .22 * np.exp(-(np.log2(np.maximum(circle.pitches, 1) / 190)) ** 2 / 1.2)
    response = circle.shelf(2200, 5) * circle.low_pass(13000, 1) * circle.high_pass(30, 2) * dip
    groups = {voice: circle.filtered(dry[voice] + circle.convolved(wet[voice], hall) * .9, response) for voice in dry}
    mix = sum(groups.values())
    gain = decibels(LOUDNESS) / np.sqrt((mix ** 2).mean())
    gain = gain * circle.kept_below(mix * gain, PEAK)
    for sound in groups.values():
        sound *= gain
    return groups


def ogg():
    """The packed file, guards included. The stream's number is fixed, or it would be drawn anew each time."""
    loop = dithered(sum(mixed().values()), np.random.default_rng(9), 1)
    guarded = np.concatenate([loop[-GUARD:], loop, loop[:GUARD]])
    file = io.BytesIO()
    write_wav(file, guarded)
    return subprocess.run(['oggenc', '--quiet', '--quality', '5', '--serial', '1907', '--output', '-', '-'],
                          input=file.getvalue(), check=True, stdout=subprocess.PIPE).stdout
