#!/usr/bin/env python3
"""Makes the wave files of the game, every sample of them computed here.

    make_sounds.py [DIRECTORY]      (default: the directory of this program)

Python's standard library is all it needs, and every run gives the same bytes.
Output is 22,050 Hz, 16 bit, mono.  A table of lengths and levels is printed at
the end; the exit status is 1 if a file breaks one of the rules of check().

The game stands still while a HELD cue sounds, so those are short.  It goes on
during a FREE cue, which may take up to three seconds.

  ZELVO.WAV     held  start window: the signature motif, F C A G-F, on mallets
                      and a plucked bass over a warm chord
  STARTP.WAV    held  new game: drum pick-up and rising brass, "here we go"
  no-intel.WAV  held  the program ends: the motif going down, soft, a goodbye
  nocomply.wav  free  too little cash: two falling notes of a soft buzzer
  CHIP.WAV      held  a building is paid for: cash register, bell and coins
  REVIEW.WAV    free  zoning board: three knocks of a gavel, a murmuring room
  CLICK.WAV     held  tick of a coin; may be heard four times in a row
  PARK.WAV      held  a park is built: two birds and some leaves
  Golf.WAV      held  a golf course is built: stroke, ball in the cup, claps
  PLOPFUND.WAV  held  a lot is condemned: something heavy drops into mud
  EXPLODE.WAV   held  plane crash (and, not held, a strike): explosion
  SIREN.WAV     free  after a crash: a siren wails, passes and goes away
  FANFARE.WAV   free  a casino takes a lot: trumpets, then slot machine coins
  MALL.WAV      free  mall window: three-note chime, lounge chords, shoppers
  CSMART.WAV    free  the computer was clever: sly sneaking electronic phrase
  BEEBOP.WAV    held  repairs cannot be paid: a machine says "bee-bop"
  GOOD.WAV      free  good chance card: happy glockenspiel arpeggio
  OHNO.WAV      free  bad chance card: muted horn, falling wah-wah
  LOAN.WAV      free  the bank offers a loan: coins counted out, friendly bell
  NOLOAN.WAV    free  the bank refuses: vault door falls shut, bolts turn
  WEALTH.WAV    free  the player has won: the motif as a fanfare, cheering
  LOSLAFF.WAV   free  the player has lost: mocking synthetic "ha ha ha"
  DESPIC.WAV    held  after a win: the loser grumbles
"""

import array
import math
import os
import random
import sys
import wave
from collections import namedtuple

RATE = 22050
CEILING = 0.88          # highest sample, a little below -1 dBFS
KNEE = 0.5              # the limiter leaves everything below this alone
TARGET_DB = -18.0       # level of the loudest window of every file
WINDOW = 0.2            # seconds; about what the ear adds up
EAR_CUTOFF = 150.0      # Hz; what lies below hardly counts as loud
CONTROL = 32            # samples between two looks at a moving parameter

HELD, FREE = "held", "free"
Vowel = namedtuple("Vowel", "f1 f2 f3")
AH, OH, EE = Vowel(730, 1090, 2440), Vowel(480, 820, 2400), Vowel(290, 2250, 2900)
OO, EH, UH = Vowel(310, 870, 2250), Vowel(530, 1840, 2480), Vowel(600, 1150, 2390)
MM = Vowel(240, 950, 2100)


# --------------------------------------------------------------- small tools

def note(name):
    """Frequency of a note such as 'A4' or 'F#3'."""
    step = {"C": 0, "D": 2, "E": 4, "F": 5, "G": 7, "A": 9, "B": 11}[name[0]]
    step += name.count("#") - name.count("b")
    return 440.0 * 2.0 ** ((step - 9) / 12.0 + int(name[-1]) - 4)


def samples(seconds):
    return int(round(seconds * RATE))


def curve(*points):
    """Function of time through (time, value) points, straight in between."""
    def at(t):
        before = points[0]
        for point in points:
            if t < point[0]:
                width = point[0] - before[0]
                if width <= 0:
                    return point[1]
                return before[1] + (point[1] - before[1]) * (t - before[0]) / width
            before = point
        return before[1]
    return at


def moving(value):
    """Numbers are accepted wherever a function of time is."""
    return value if callable(value) else lambda _t: value


def scaled(freq, ratio):
    """`freq` times a ratio, whether it moves or not."""
    base = moving(freq)
    return lambda t: base(t) * ratio


def vibrato(freq, rate, depth, delay=0.0):
    """`freq` wavering by the fraction `depth`, setting in after `delay`."""
    base = moving(freq)
    return lambda t: base(t) * (1.0 + depth * min(1.0, max(0.0, (t - delay) / 0.15))
                                * math.sin(2 * math.pi * rate * t))


def mix(*parts):
    """Adds (start, gain, signal) parts."""
    total = [0.0] * max(samples(start) + len(signal) for start, _g, signal in parts)
    for start, gain, signal in parts:
        for i, value in enumerate(signal, samples(start)):
            total[i] += gain * value
    return total


def shape(signal, *points):
    """The signal under an envelope of (time, level) points."""
    level = curve(*points)
    out = []
    for begin in range(0, len(signal), CONTROL):
        low, high = level(begin / RATE), level((begin + CONTROL) / RATE)
        slope = (high - low) / CONTROL
        out.extend(value * (low + slope * i)
                   for i, value in enumerate(signal[begin:begin + CONTROL]))
    return out


def held(signal, attack, release):
    """Rises, stays and falls within the signal's own length."""
    end = len(signal) / RATE
    return shape(signal, (0, 0), (attack, 1), (end - release, 1), (end, 0))


def fading(signal, tau):
    """Exponential decay."""
    ratio, level, out = math.exp(-1.0 / (tau * RATE)), 1.0, []
    for value in signal:
        out.append(value * level)
        level *= ratio
    return out


def drive(signal, amount):
    """Soft overdrive."""
    return [math.tanh(amount * value) for value in signal]


# ------------------------------------------------------------------- sources

def noise(rng, seconds):
    return [rng.random() * 2.0 - 1.0 for _ in range(samples(seconds))]


def _step(phase, width):
    """Rounds the corner of a jump so that it does not alias."""
    if phase < width:
        x = phase / width
        return x + x - x * x - 1.0
    if phase > 1.0 - width:
        x = (phase - 1.0) / width
        return x * x + x + x + 1.0
    return 0.0


def tone(freq, seconds, kind="sine"):
    """Sine, saw or square wave; the frequency may be a function of time."""
    at, phase, out = moving(freq), 0.0, []
    for i in range(samples(seconds)):
        if i % CONTROL == 0:
            width = at(i / RATE) / RATE
        if kind == "sine":
            out.append(math.sin(2 * math.pi * phase))
        elif kind == "saw":
            out.append(2.0 * phase - 1.0 - _step(phase, width))
        else:
            half = phase + 0.5 if phase < 0.5 else phase - 0.5
            out.append((1.0 if phase < 0.5 else -1.0)
                       + _step(phase, width) - _step(half, width))
        phase += width
        if phase >= 1.0:
            phase -= 1.0
    return out


def ring(freq, seconds, tau):
    """One mode of a struck body: a sine that dies away."""
    radius, angle = math.exp(-1.0 / (tau * RATE)), 2 * math.pi * freq / RATE
    b1, b2 = 2 * radius * math.cos(angle), radius * radius
    y1, y2, out = 0.0, -math.sin(angle) / radius, []
    for _ in range(samples(seconds)):
        out.append(y1)
        y1, y2 = b1 * y1 - b2 * y2, y1
    return out


def struck(freq, seconds, modes):
    """A struck body, its modes given as (ratio, gain, decay time)."""
    return mix(*((0, gain, ring(freq * ratio, seconds, tau))
                 for ratio, gain, tau in modes if freq * ratio < 0.45 * RATE))


def plucked(rng, freq, seconds, damping=0.5):
    """A plucked string: a loop of noise that loses its edge as it turns."""
    loop = low_pass(noise(rng, 1.0 / freq - 0.5 / RATE), 2500)  # the filter adds half a sample
    middle = math.fsum(loop) / len(loop)
    loop = [value - middle for value in loop]
    out, last = [], 0.0
    for i in range(samples(seconds)):
        k = i % len(loop)
        value = loop[k]
        out.append(value)
        loop[k] = 0.998 * (value + damping * (last - value))
        last = value
    return out


# ------------------------------------------------------------------- filters

def low_pass(signal, cutoff):
    k, y, out = 1.0 - math.exp(-2 * math.pi * cutoff / RATE), 0.0, []
    for x in signal:
        y += k * (x - y)
        out.append(y)
    return out


def high_pass(signal, cutoff):
    return [x - y for x, y in zip(signal, low_pass(signal, cutoff))]


def resonant(signal, freq, q, kind="band"):
    """State variable filter ('low', 'band' or 'high'), which may be swept."""
    at, damp, s1, s2, out = moving(freq), 1.0 / q, 0.0, 0.0, []
    for i, x in enumerate(signal):
        if i % CONTROL == 0:
            g = math.tan(math.pi * min(at(i / RATE), 0.45 * RATE) / RATE)
            a1 = 1.0 / (1.0 + g * (g + damp))
            a2, a3 = g * a1, g * g * a1
        v3 = x - s2
        v1 = a1 * s1 + a2 * v3
        v2 = s2 + a2 * s1 + a3 * v3
        s1, s2 = 2 * v1 - s1, 2 * v2 - s2
        if kind == "band":
            out.append(damp * v1)
        else:
            out.append(v2 if kind == "low" else x - damp * v1 - v2)
    return out


def _comb(signal, delay, feedback, damping):
    line, last, out = [0.0] * delay, 0.0, []
    for i, x in enumerate(signal):
        y = line[i % delay]
        last = y + damping * (last - y)
        line[i % delay] = x + feedback * last
        out.append(y)
    return out


def _all_pass(signal, delay):
    line, out = [0.0] * delay, []
    for i, x in enumerate(signal):
        stored = line[i % delay]
        y = stored - 0.5 * x
        line[i % delay] = x + 0.5 * y
        out.append(y)
    return out


def room(signal, seconds, wet, damping=0.35):
    """The signal in a room whose echo takes `seconds` to die away."""
    dry = list(signal) + [0.0] * samples(min(seconds, 0.8))
    combs = []
    for delay in (557, 641, 743, 811):
        combs.append((0, 0.25, _comb(dry, delay, 10 ** (-3.0 * delay / RATE / seconds),
                                     damping)))
    tail = _all_pass(_all_pass(mix(*combs), 241), 83)
    return mix((0, 1.0, dry), (0, wet, tail))


# --------------------------------------------------------------- instruments

def mallet(freq, seconds=0.8, tau=0.3):
    return struck(freq, seconds, ((1, 1, tau), (2.0, 0.12, tau * 0.6),
                                  (3.98, 0.3, tau * 0.25), (9.6, 0.1, 0.02)))


def bell(freq, seconds=1.2, tau=0.4):
    return struck(freq, seconds, ((1, 1, tau), (2.01, 0.35, tau * 0.8),
                                  (2.76, 0.45, tau * 0.6), (5.4, 0.25, tau * 0.3),
                                  (8.9, 0.1, tau * 0.12)))


def coin(rng, tau=0.07):
    """A coin that meets another one."""
    freq = 2700 + 900 * rng.random()
    click = high_pass(fading(noise(rng, 0.02), 0.002), 3000)
    body = struck(freq, tau * 5, ((1, 0.7, tau), (1.52, 0.6, tau * 0.8),
                                  (2.13, 0.5, tau * 0.7), (2.83, 0.3, tau * 0.5)))
    return mix((0, 0.5, click), (0, 1.0, body))


def coins(rng, seconds, count, tau=0.06):
    """A shower of coins, thinning out."""
    return mix(*((seconds * rng.random() ** 1.3, 0.4 + 0.6 * rng.random(), coin(rng, tau))
                 for _ in range(count)))


def wood(rng, freq, tau=0.03):
    """A knock on wood."""
    body = struck(freq, tau * 8, ((1, 1, tau), (1.83, 0.7, tau * 0.7),
                                  (2.9, 0.5, tau * 0.45), (4.3, 0.3, tau * 0.3)))
    return mix((0, 1.0, body), (0, 0.6, low_pass(fading(noise(rng, 0.03), 0.004), 4000)))


def thud(freq, seconds, fall=0.5):
    """A heavy blow: a deep sine that sinks as it fades."""
    drop = curve((0, freq), (seconds * 0.25, freq * (1 + fall) / 2), (seconds, freq * fall))
    return fading(tone(drop, seconds), seconds / 4.5)


def drum(rng, seconds=0.18):
    """Snare drum."""
    wires = fading(high_pass(noise(rng, seconds), 1500), seconds / 5)
    return mix((0, 0.6, wires), (0, 0.7, thud(220, seconds, 0.7)))


def cymbal(rng, seconds):
    return fading(high_pass(noise(rng, seconds), 4500), seconds / 4)


def brass(freq, seconds, bright=5.0, release=0.06):
    """A horn: it opens as it is blown and shakes a little when held."""
    base = moving(freq)
    pitch = vibrato(lambda t: base(t) * (1 - 0.02 * max(0.0, 1 - t / 0.03)), 5.5, 0.006, 0.2)
    raw = mix((0, 0.6, tone(pitch, seconds, "saw")),
              (0, 0.4, tone(scaled(pitch, 1.004), seconds, "saw")))
    top = bright * base(0)
    opening = curve((0, base(0)), (0.05, top), (0.2, top * 0.75), (seconds, top * 0.6))
    return held(resonant(raw, opening, 0.9, "low"), 0.02, release)


def pad(freqs, seconds, cutoff=1100, attack=0.12, release=0.3):
    """A soft sustained chord."""
    parts = []
    for freq in freqs:
        parts += [(0, 0.5, tone(freq * 0.9975, seconds, "saw")),
                  (0, 0.5, tone(freq * 1.0025, seconds, "saw"))]
    return held(resonant(mix(*parts), cutoff, 0.7, "low"), attack, release)


def voice(rng, pitch, seconds, vowels, loudness, breath=((0, 0.0),)):
    """A throat: buzz and breath through three formants.

    `vowels` are (time, Vowel) points, `loudness` and `breath` (time, level).
    """
    buzz = low_pass(tone(pitch, seconds, "saw"), 1800)
    source = mix((0, 1.0, shape(buzz, *loudness)),
                 (0, 0.5, shape(noise(rng, seconds), *breath)))
    parts = []
    for index, (gain, q) in enumerate(((1.0, 6), (0.8, 9), (0.35, 12))):
        path = curve(*((t, vowel[index]) for t, vowel in vowels))
        parts.append((0, gain, resonant(source, path, q)))
    return mix(*parts)


def speaker(rng, seconds):
    """Somebody talking, too far away to be understood."""
    pitch = rng.choice((95, 110, 125, 170, 195, 215))
    t, vowels, loudness, notes = 0.0, [], [], []
    while t < seconds:
        length = 0.11 + 0.14 * rng.random()
        level = 0.0 if rng.random() < 0.15 else 0.5 + 0.5 * rng.random()
        vowels.append((t, rng.choice((AH, OH, EE, OO, EH, UH))))
        loudness += [(t, 0.05), (t + length * 0.35, level), (t + length * 0.7, level * 0.8)]
        notes.append((t, pitch * (0.9 + 0.25 * rng.random())))
        t += length
    return voice(rng, curve(*notes), seconds, vowels, loudness, ((0, 0.03),))


def murmur(rng, seconds, people):
    """A room full of talk."""
    return mix(*((0, 1.0, speaker(rng, seconds)) for _ in range(people)))


def cheering(rng, seconds, people):
    """Many people shouting for joy, over the roar of more of them."""
    parts = []
    for _ in range(people):
        low = rng.choice((150, 180, 260, 300)) * (0.9 + 0.2 * rng.random())
        start, long = 0.3 * rng.random(), seconds - 0.3
        shout = vibrato(curve((0, low), (0.25, low * 1.5), (long, low * 1.2)), 5 + rng.random(),
                        0.015)
        parts.append((start, 0.5 + 0.5 * rng.random(),
                      voice(rng, shout, long, ((0, EE), (0.2, EH), (long, AH)),
                            ((0, 0), (0.15, 1), (long, 0.5)), ((0, 0.1),))))
    roar = resonant(noise(rng, seconds), 1300, 0.8)
    return mix((0, 1.0, mix(*parts)), (0, 0.9, roar))


def clap(rng):
    return fading(resonant(noise(rng, 0.06), 900 + 900 * rng.random(), 1.6), 0.011)


def chirp(seconds, *pitches):
    """One syllable of a bird, its pitch gliding through `pitches`."""
    steps = len(pitches) - 1
    path = curve(*((seconds * i / steps, p) for i, p in enumerate(pitches)))
    song = mix((0, 1.0, tone(path, seconds)),
               (0, 0.12, tone(scaled(path, 2.0), seconds)))
    return held(song, seconds * 0.3, seconds * 0.5)


# -------------------------------------------------------- opening and closing

MOTIF = ((0.0, "F4"), (0.17, "C5"), (0.34, "A4"), (0.51, "G5"), (0.68, "F5"))


def opening(rng):
    parts = [(start, 0.9, mallet(note(name), 0.9, 0.34)) for start, name in MOTIF]
    parts += [(start, 0.25, bell(2 * note(name), 0.8, 0.25)) for start, name in MOTIF[3:]]
    parts += [(0.0, 1.5, plucked(rng, note("F2"), 0.7)),
              (0.34, 1.2, plucked(rng, note("C3"), 0.5)),
              (0.68, 1.6, plucked(rng, note("F2"), 0.9)),
              (0.0, 0.4, pad([note(n) for n in ("F3", "C4", "A4")], 0.75)),
              (0.62, 0.38, pad([note(n) for n in ("F3", "C4", "A4", "C5")], 0.98, 1500, 0.1))]
    return room(mix(*parts), 0.9, 0.35)


def start_of_game(rng):
    parts = [(t, g, drum(rng, 0.14)) for t, g in
             ((0.0, 0.9), (0.09, 1.0), (0.18, 1.2), (0.27, 0.9), (0.54, 1.5))]
    for start, name, length in ((0.0, "C4", 0.14), (0.18, "F4", 0.14), (0.36, "A4", 0.14),
                                (0.54, "C5", 0.6)):
        parts += [(start, 0.6, brass(note(name), length, 7)),
                  (start, 0.35, mallet(2 * note(name), 0.6))]
    parts += [(0.54, 0.3, brass(note(n), 0.6, 6)) for n in ("F4", "A4")]
    parts += [(0.54, 0.6, thud(95, 0.4)), (0.54, 0.7, cymbal(rng, 0.7))]
    return room(mix(*parts), 0.6, 0.25)


def goodbye(_rng):
    parts = [(start, gain, mallet(note(name), 0.6, 0.22)) for start, gain, name in
             ((0.0, 0.9, "C5"), (0.13, 0.8, "A4"), (0.26, 0.9, "F4"))]
    parts += [(0.26, 0.3, pad([note(n) for n in ("F3", "A3", "C4")], 0.5, 900, 0.05)),
              (0.26, 0.4, mallet(note("F3"), 0.5, 0.2))]
    return room(mix(*parts), 0.5, 0.3)


# -------------------------------------------------------------------- refusal

def refusal(_rng):
    def buzz(freq, seconds):
        raw = mix((0, 0.6, tone(freq, seconds, "square")),
                  (0, 0.5, tone(scaled(freq, 1.007), seconds, "saw")))
        return held(resonant(raw, curve((0, 1500), (seconds, 700)), 0.9, "low"), 0.02, 0.12)
    low = note("Eb3")
    return mix((0, 0.9, buzz(note("G3"), 0.26)),
               (0.3, 1.0, buzz(curve((0, low), (0.3, low), (0.6, low * 0.95)), 0.6)))


def bee_bop(rng):
    def speak(name, seconds, vowels, fade):
        return voice(rng, note(name), seconds, vowels,
                     ((0, 0), (0.012, 1), (seconds - fade, 0.85), (seconds, 0)))
    bee = speak("E4", 0.2, ((0, OO), (0.05, EE)), 0.03)
    bop = speak("A3", 0.2, ((0, OO), (0.035, AH), (0.15, AH), (0.2, OH)), 0.03)
    pips = [(0.0, 0.1, held(tone(note("E6"), 0.19, "square"), 0.005, 0.03)),
            (0.25, 0.1, held(tone(note("A5"), 0.18, "square"), 0.005, 0.03))]
    lips = low_pass(fading(noise(rng, 0.03), 0.006), 900)
    return mix((0, 1.0, bee), (0.25, 1.5, bop), (0.44, 0.6, lips), *pips)


# ------------------------------------------------------------- money and bank

def cash_register(rng):
    lever = mix((0, 0.9, wood(rng, 520, 0.014)), (0.055, 0.7, wood(rng, 780, 0.01)))
    drawer = shape(resonant(noise(rng, 0.2), curve((0, 700), (0.2, 1900)), 1.2),
                   (0, 0), (0.12, 0.8), (0.19, 0.2), (0.2, 0))
    return mix((0, 1.0, lever), (0.08, 1.3, drawer),
               (0.2, 0.8, bell(2093, 0.6, 0.2)), (0.2, 0.45, bell(2637, 0.6, 0.16)),
               (0.27, 0.55, coins(rng, 0.3, 9, 0.04)))


def click(rng):
    tick = high_pass(fading(noise(rng, 0.02), 0.0025), 1500)
    return mix((0, 1.0, tick), (0, 0.8, struck(2400, 0.12, ((1, 0.7, 0.02), (1.51, 0.6, 0.018),
                                                           (2.2, 0.4, 0.012)))),
               (0, 0.6, ring(900, 0.08, 0.008)))


def loan(rng):
    parts = [(0.13 * i + 0.015 * rng.random(), 0.7 + 0.05 * i, coin(rng, 0.05))
             for i in range(7)]
    parts += [(0.13 * i, 0.3, wood(rng, 700 + 40 * i, 0.01)) for i in range(7)]
    parts += [(0.98, 0.5, bell(note("E6"), 0.9, 0.3)), (1.12, 0.6, bell(note("A6"), 0.9, 0.32)),
              (1.12, 0.4, mallet(note("A5"), 0.8, 0.3))]
    return room(mix(*parts), 0.6, 0.2)


def vault(rng):
    hinge = shape(resonant(tone(vibrato(curve((0, 90), (0.35, 150)), 23, 0.2), 0.36, "saw"),
                           curve((0, 700), (0.35, 1200)), 7),
                  (0, 0), (0.08, 0.3), (0.3, 1), (0.36, 0))
    door = struck(118, 1.2, ((1, 1, 0.25), (1.62, 0.8, 0.22), (2.71, 0.7, 0.2), (4.3, 0.5, 0.16),
                             (6.1, 0.4, 0.12), (9.7, 0.25, 0.08)))
    slam = mix((0, 1.3, thud(85, 0.7, 0.45)), (0, 0.6, door),
               (0, 4.0, low_pass(fading(noise(rng, 0.25), 0.03), 1200)))
    bolt = mix((0, 0.6, wood(rng, 430, 0.018)), (0.01, 0.3, bell(1320, 0.3, 0.05)))
    return room(mix((0, 2.2, hinge), (0.36, 1.0, slam), (0.85, 1.3, bolt), (1.0, 1.5, bolt)),
                1.1, 0.45)


# --------------------------------------------------------------- city and lot

def zoning_board(rng):
    knocks = []
    for start, gain in ((0.0, 0.9), (0.33, 0.9), (0.66, 1.1)):
        knocks += [(start, gain, wood(rng, 410, 0.03)), (start, gain * 0.5, thud(150, 0.15))]
    talk = shape(murmur(rng, 2.7, 9), (0, 0.5), (0.3, 0.6), (0.9, 0.75), (1.6, 0.9), (2.7, 0.1))
    return room(mix((0, 1.3, mix(*knocks)), (0, 1.0, talk)), 0.8, 0.5)


def birds(rng):
    parts = [(0.02, 0.9, chirp(0.09, 3100, 4300, 3600)), (0.13, 1.0, chirp(0.1, 3400, 4900, 3500)),
             (0.26, 0.9, chirp(0.12, 4600, 3000))]
    parts += [(0.4 + 0.045 * i, 0.55 + 0.08 * (i % 2), chirp(0.04, 5200 + 150 * i, 4300))
              for i in range(5)]
    parts += [(0.6, 0.8, chirp(0.13, 2900, 3900, 3300))]
    leaves = shape(resonant(noise(rng, 0.78), 3500, 0.6), (0, 0.3), (0.3, 1), (0.78, 0.2))
    return room(mix((0, 0.12, leaves), *parts), 0.5, 0.25)


def golf(rng):
    swing = shape(resonant(noise(rng, 0.17), curve((0, 500), (0.15, 2600)), 2.5),
                  (0, 0), (0.13, 1), (0.17, 0))
    stroke = mix((0, 1.0, wood(rng, 1250, 0.012)),
                 (0, 2.0, high_pass(fading(noise(rng, 0.03), 0.003), 2500)))
    cup = mix(*((start, gain, struck(560, 0.1, ((1, 1, 0.022), (2.4, 0.5, 0.014),
                                               (3.9, 0.4, 0.008))))
                for start, gain in ((0, 1.0), (0.055, 0.6), (0.09, 0.4), (0.115, 0.25))))
    hands = mix(*((0.01 + 0.3 * rng.random(), 0.5 + 0.5 * rng.random(), clap(rng))
                  for _ in range(14)))
    return mix((0, 1.3, swing), (0.16, 1.0, stroke), (0.36, 0.55, cup), (0.45, 2.0, hands))


def plop(rng):
    fall = fading(tone(curve((0, 420), (0.05, 170), (0.16, 75), (0.3, 60)), 0.3), 0.1)
    bubble = held(tone(curve((0, 170), (0.13, 520)), 0.13), 0.02, 0.06)
    mud = fading(resonant(noise(rng, 0.35), curve((0, 1400), (0.3, 350)), 1.0), 0.07)
    drops = [(0.3 + 0.07 * i, 0.22, held(tone(curve((0, 500 + 130 * i), (0.05, 900 + 150 * i)),
                                             0.05), 0.01, 0.03)) for i in range(3)]
    return mix((0, 1.3, drive(fall, 1.6)), (0, 2.2, mud), (0.13, 0.75, bubble), *drops)


def explosion(rng):
    crack = fading(noise(rng, 0.08), 0.012)
    blast = resonant(noise(rng, 0.78), curve((0, 5000), (0.1, 1500), (0.4, 500), (0.78, 180)),
                     0.7, "low")
    rumble = fading(tone(vibrato(curve((0, 130), (0.15, 62), (0.78, 36)), 17, 0.12), 0.78), 0.3)
    debris = mix(*((0.12 + 0.5 * rng.random(), 0.2 + 0.2 * rng.random(),
                    fading(resonant(noise(rng, 0.05), 500 + 1500 * rng.random(), 2), 0.01))
                   for _ in range(16)))
    burst = mix((0, 1.8, crack), (0, 2.2, fading(blast, 0.22)), (0, 1.0, rumble), (0, 5.0, debris))
    return shape(drive(burst, 1.7), (0, 1), (0.55, 0.9), (0.78, 0))


def siren(_rng):
    wail = curve((0, 520), (0.5, 1150), (0.75, 1150), (1.2, 620), (1.65, 1100), (1.9, 1060),
                 (2.6, 540))
    passing = curve((0, 1.03), (1.1, 1.03), (1.7, 0.95), (3, 0.94))

    def pitch(t):
        return wail(t) * passing(t)
    raw = mix((0, 0.7, tone(pitch, 2.6, "saw")), (0, 0.5, tone(pitch, 2.6, "square")))
    horn = shape(resonant(raw, 1400, 0.8), (0, 0), (0.15, 0.55), (1.2, 1), (2.0, 0.5), (2.6, 0.05))
    return room(mix((0, 1.0, horn), (0.21, 0.25, horn)), 1.0, 0.35)


def casino_fanfare(rng):
    parts = []
    for start, first, second, length in (
            (0.0, "G4", "E4", 0.11), (0.13, "G4", "E4", 0.11), (0.26, "G4", "E4", 0.11),
            (0.39, "C5", "E4", 0.3), (0.72, "G4", "E4", 0.13), (0.88, "E5", "G4", 0.75)):
        parts += [(start, 0.7, brass(note(first), length, 7)),
                  (start, 0.35, brass(note(second), length))]
    parts += [(0.88, 0.4, brass(note("C5"), 0.75)), (0.88, 0.4, brass(note("C4"), 0.75)),
              (0.39, 0.8, drum(rng)), (0.88, 1.1, drum(rng)), (0.88, 0.7, cymbal(rng, 0.8))]
    parts += [(0.98 + 0.11 * i, 0.3, bell(note("E6" if i % 2 else "C6"), 0.3, 0.09))
              for i in range(8)]
    parts += [(1.05, 0.5, coins(rng, 1.2, 42, 0.05))]
    return room(mix(*parts), 0.7, 0.25)


def mall(rng):
    chime = [(t, 0.3, bell(note(n) / 2, 1.4, 0.4)) for t, n in
             ((0.0, "G5"), (0.28, "E5"), (0.56, "C6"))]
    chime += [(t, 0.45, mallet(note(n), 1.2, 0.5)) for t, n in
              ((0.0, "G5"), (0.28, "E5"), (0.56, "C6"))]
    lounge = []
    for start, names in ((1.0, ("C4", "E4", "G4", "B4")), (1.42, ("C4", "E4", "G4", "B4")),
                         (1.7, ("D4", "F4", "A4", "C5")), (2.26, ("C4", "E4", "A4", "B4"))):
        lounge += [(start, 0.22, mallet(note(n), 0.6, 0.22)) for n in names]
    lounge += [(t, 0.6, plucked(rng, note(n), 0.5)) for t, n in
               ((1.0, "C3"), (1.42, "G2"), (1.7, "D3"), (2.26, "C3"))]
    lounge += [(1.0 + 0.14 * i, 0.3 if i % 2 else 0.5,
                high_pass(fading(noise(rng, 0.06), 0.015), 5000)) for i in range(13)]
    lounge += [(t, 0.4, mallet(note(n), 0.6, 0.25)) for t, n in
               ((1.14, "E5"), (1.42, "G5"), (1.7, "F5"), (1.98, "D5"), (2.26, "E5"))]
    people = shape(murmur(rng, 3.0, 8), (0, 0.4), (0.8, 0.6), (2.4, 0.6), (3.0, 0.1))
    return room(mix(*chime, *lounge, (0, 1.0, people)), 1.0, 0.35)


# ------------------------------------------------------------------- fortunes

def sly_move(_rng):
    def sneak(freq, seconds, peak):
        raw = tone(freq, seconds, "square")
        return held(resonant(raw, curve((0, 300), (0.03, peak), (seconds, 350)), 4, "low"),
                    0.006, 0.03)
    parts = [(t, 0.8, sneak(note(n), 0.1, 1600)) for t, n in
             ((0.0, "C4"), (0.16, "Eb4"), (0.26, "E4"), (0.42, "G4"), (0.58, "F#4"))]
    parts += [(t, 0.5, sneak(note(n), 0.12, 600)) for t, n in
              ((0.0, "C3"), (0.32, "G2"), (0.64, "C3"))]
    parts += [(0.74, 0.6, sneak(curve((0, note("F4")), (0.06, note("Bb4")), (0.3, note("Bb4"))),
                                0.34, 3200)),
              (1.06, 0.9, held(tone(curve((0, 1400), (0.09, 2800)), 0.09), 0.01, 0.03)),
              (1.17, 0.9, held(tone(curve((0, 1900), (0.09, 3700)), 0.09), 0.01, 0.04))]
    return room(mix(*parts), 0.4, 0.2)


def good_card(_rng):
    parts = []
    for i, name in enumerate(("C5", "E5", "G5", "C6", "E6", "G6")):
        parts += [(0.085 * i, 0.8, bell(note(name), 0.9, 0.22)),
                  (0.085 * i, 0.4, mallet(note(name) / 2, 0.5, 0.2))]
    parts += [(0.6, 0.9, bell(note("C6"), 0.9, 0.3)), (0.6, 0.5, bell(note("E6"), 0.9, 0.3)),
              (0.6, 0.5, mallet(note("C5"), 0.8, 0.3))]
    parts += [(0.66 + 0.05 * i, 0.3, bell(note(n), 0.4, 0.1))
              for i, n in enumerate(("G6", "C7", "E7", "G7", "C8"))]
    return room(mix(*parts), 0.7, 0.3)


def bad_card(_rng):
    def wah(pitch, seconds, openings):
        raw = brass(pitch, seconds, 12, 0.12)
        return mix((0, 1.0, resonant(raw, curve(*openings), 3.5)),
                   (0, 0.25, low_pass(raw, 500)))
    first = wah(curve((0, note("D4")), (0.25, note("D4")), (0.4, note("C#4"))), 0.4,
                ((0, 350), (0.14, 1250), (0.4, 420)))
    start, end = note("Bb3"), note("E3")
    second = wah(vibrato(curve((0, start), (0.35, start), (1.15, end)), 6, 0.02, 0.1), 1.15,
                 ((0, 350), (0.16, 1200), (0.38, 480), (0.55, 950), (0.75, 420), (0.9, 700),
                  (1.15, 280)))
    return room(mix((0, 0.9, first), (0.44, 1.0, second)), 0.5, 0.2)


def grand_fanfare(rng):
    parts = []
    for start, name, length in ((0.0, "F4", 0.15), (0.17, "C5", 0.15), (0.34, "A4", 0.15),
                                (0.51, "G5", 0.2), (0.74, "F5", 1.5)):
        freq = note(name)
        parts += [(start, 0.7, brass(freq, length, 6, 0.05 if length < 1 else 0.4)),
                  (start, 0.4, brass(freq / 2, length, 6, 0.05 if length < 1 else 0.4))]
    parts += [(0.74, 0.35, brass(note(n), 1.5, 5, 0.4)) for n in ("F3", "C4", "A4", "C5")]
    parts += [(t, g, thud(88, 0.5, 0.9)) for t, g in
              ((0.0, 0.7), (0.34, 0.6), (0.51, 0.8), (0.74, 1.2))]
    parts += [(0.52 + 0.044 * i, 0.5 + 0.15 * i, drum(rng, 0.1)) for i in range(5)]
    parts += [(0.74, 0.6, cymbal(rng, 1.6))]
    crowd = shape(cheering(rng, 2.25, 12), (0, 0.2), (0.3, 1), (1.4, 0.9), (2.25, 0.1))
    hands = [(0.8 + 1.95 * rng.random(), 0.3 + 0.3 * rng.random(), clap(rng)) for _ in range(110)]
    return room(mix((0, 1.0, mix(*parts)), (0.72, 0.85, crowd), (0, 2.5, mix(*hands))), 1.0, 0.3)


def laugh(rng):
    parts, start = [], 0.0
    for i, length in enumerate((0.2, 0.19, 0.19, 0.2, 0.21, 0.24, 0.4)):
        high = (262, 247, 233, 220, 208, 196, 175)[i]
        pitch = curve((0, high * 1.02), (0.1, high * 1.12), (length, high * 0.85))
        mouth = ((0, UH), (0.06, AH), (length, AH if i < 6 else UH))
        ha = voice(rng, pitch, length, mouth,
                   ((0, 0), (0.05, 0), (0.085, 1), (length - 0.08, 0.7), (length, 0)),
                   ((0, 0), (0.03, 0.9), (0.07, 0.7), (0.11, 0.08), (length, 0)))
        robot = resonant(ha, 1600, 1.0)
        parts += [(start, 1.0, ha), (start, 0.25, drive(robot, 6))]
        start += length + 0.02
    return room(mix(*parts), 0.5, 0.2)


def grumble(rng):
    pitch = vibrato(curve((0, 92), (0.12, 118), (0.25, 88), (0.4, 124), (0.55, 84), (0.76, 66)),
                    31, 0.09)
    mouth = ((0, MM), (0.07, UH), (0.15, OH), (0.22, MM), (0.28, EH), (0.38, UH), (0.46, MM),
             (0.52, AH), (0.62, OH), (0.76, MM))
    level = ((0, 0), (0.04, 0.7), (0.12, 1), (0.2, 0.1), (0.23, 0.1), (0.29, 1), (0.37, 0.8),
             (0.44, 0.08), (0.53, 1), (0.64, 0.7), (0.76, 0))
    throat = voice(rng, pitch, 0.76, mouth, level, ((0, 0.1), (0.6, 0.15), (0.76, 0)))
    return mix((0, 1.0, throat), (0, 0.2, drive(throat, 3)))


# ------------------------------------------------------------------ the table

Sound = namedtuple("Sound", "file kind seconds longest fade trim make")

# `fade` is the length of the fade-out, `trim` what is added to the level in dB.
SOUNDS = (
    Sound("ZELVO.WAV", HELD, 1.58, 1.6, 0.35, 0.0, opening),
    Sound("STARTP.WAV", HELD, 1.26, 1.3, 0.25, 0.0, start_of_game),
    Sound("no-intel.WAV", HELD, 0.78, 0.8, 0.25, -1.0, goodbye),
    Sound("nocomply.wav", FREE, 0.92, 3.0, 0.05, -1.0, refusal),
    Sound("CHIP.WAV", HELD, 0.78, 0.8, 0.15, 0.0, cash_register),
    Sound("REVIEW.WAV", FREE, 2.80, 3.0, 0.40, 0.0, zoning_board),
    Sound("CLICK.WAV", HELD, 0.12, 0.15, 0.03, -3.0, click),
    Sound("PARK.WAV", HELD, 0.78, 0.8, 0.06, -1.0, birds),
    Sound("Golf.WAV", HELD, 0.78, 0.8, 0.06, 0.0, golf),
    Sound("PLOPFUND.WAV", HELD, 0.56, 0.8, 0.08, 1.0, plop),
    Sound("EXPLODE.WAV", HELD, 0.78, 0.79, 0.10, 2.0, explosion),
    Sound("SIREN.WAV", FREE, 2.90, 3.0, 0.40, -1.0, siren),
    Sound("FANFARE.WAV", FREE, 2.60, 3.0, 0.30, 0.0, casino_fanfare),
    Sound("MALL.WAV", FREE, 2.95, 3.0, 0.40, -1.0, mall),
    Sound("CSMART.WAV", FREE, 1.45, 3.0, 0.15, -1.0, sly_move),
    Sound("BEEBOP.WAV", HELD, 0.50, 0.8, 0.03, 0.0, bee_bop),
    Sound("GOOD.WAV", FREE, 1.50, 3.0, 0.35, 0.0, good_card),
    Sound("OHNO.WAV", FREE, 1.75, 3.0, 0.20, 0.0, bad_card),
    Sound("LOAN.WAV", FREE, 1.95, 3.0, 0.40, 0.0, loan),
    Sound("NOLOAN.WAV", FREE, 1.90, 3.0, 0.50, 0.0, vault),
    Sound("WEALTH.WAV", FREE, 2.98, 3.0, 0.35, 1.0, grand_fanfare),
    Sound("LOSLAFF.WAV", FREE, 1.95, 3.0, 0.20, 0.0, laugh),
    Sound("DESPIC.WAV", HELD, 0.78, 0.8, 0.04, 0.0, grumble),
)


# ------------------------------------------------------- levels and the files

def decibels(value):
    return 20 * math.log10(max(value, 1e-9))


def rms(signal):
    return math.sqrt(math.fsum(x * x for x in signal) / len(signal))


def loudest(signal):
    """RMS of the loudest window.

    A shorter signal counts as if silence followed, since a short sound is
    heard as softer than a long one of the same power.
    """
    width, hop = samples(WINDOW), samples(WINDOW / 20)
    heard = high_pass(signal, EAR_CUTOFF)
    energy = [math.fsum(x * x for x in heard[i:i + hop]) for i in range(0, len(heard), hop)]
    span = width // hop
    most = max(math.fsum(energy[i:i + span]) for i in range(max(1, len(energy) - span + 1)))
    return math.sqrt(most / width)


def limit(signal, gain):
    """Applies the gain, rounding off what would pass the ceiling."""
    space, out = CEILING - KNEE, []
    for x in signal:
        x *= gain
        over = abs(x) - KNEE
        if over > 0:
            x = math.copysign(KNEE + space * math.tanh(over / space), x)
        out.append(x)
    return out


def master(signal, seconds, fade, trim):
    """Exact length, no direct current, no clicks at the ends, the right level."""
    length = samples(seconds)
    signal = high_pass((list(signal) + [0.0] * length)[:length], 25.0)
    end = (length - 1) / RATE
    signal = shape(signal, (0, 0), (0.0015, 1), (end - fade, 1), (end - fade / 2, 0.35), (end, 0))
    goal = 10 ** ((TARGET_DB + trim) / 20)
    gain = goal / loudest(signal)
    for _ in range(4):      # what the limiter takes away is given back
        gain *= min(1.5, goal / loudest(limit(signal, gain)))
    return limit(signal, gain)


def write(path, signal):
    data = array.array("h", (int(round(x * 32767)) for x in signal))
    if sys.byteorder == "big":
        data.byteswap()
    with wave.open(path, "wb") as out:
        out.setnchannels(1)
        out.setsampwidth(2)
        out.setframerate(RATE)
        out.writeframes(data.tobytes())


def read(path):
    with wave.open(path, "rb") as source:
        data = array.array("h", source.readframes(source.getnframes()))
    if sys.byteorder == "big":
        data.byteswap()
    return [x / 32768 for x in data]


def check(sound, signal):
    """What is wrong with a finished file, as a list of words."""
    edge = max(abs(x) for x in signal[:1] + signal[-4:])
    return [word for word, wrong in (
        ("long", len(signal) / RATE > sound.longest),
        ("clipped", decibels(max(abs(x) for x in signal)) > -1.0),
        ("quiet", decibels(loudest(signal)) < TARGET_DB + sound.trim - 1.5),
        ("edge", edge > 0.01),
        ("dc", abs(math.fsum(signal) / len(signal)) > 0.002)) if wrong]


def main(arguments):
    folder = arguments[0] if arguments else os.path.dirname(os.path.abspath(__file__))
    print("file          kind  seconds  peak dB  RMS dB  loudest 200 ms dB")
    faults = 0
    for sound in SOUNDS:
        path = os.path.join(folder, sound.file)
        raw = sound.make(random.Random(sound.file))
        write(path, master(raw, sound.seconds, sound.fade, sound.trim))
        signal = read(path)
        wrong = check(sound, signal)
        faults += len(wrong)
        print("%-12s  %s  %7.3f  %7.1f  %6.1f  %17.1f  %s" % (
            sound.file, sound.kind, len(signal) / RATE, decibels(max(abs(x) for x in signal)),
            decibels(rms(signal)), decibels(loudest(signal)), " ".join(wrong)))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
