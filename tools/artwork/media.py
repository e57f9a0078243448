#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Makes the media of the sample crosswords: media.py FOLDER writes them there.

Needs python3-pil and python3-numpy.  Pictures are drawn four times as large
and scaled down; sounds and the video are calculated.
"""
import io
import math
import struct
import sys
from pathlib import Path

import numpy as np
from PIL import Image, ImageDraw

FINE = 4                # pixels of a drawing for one of the picture
INK = (40, 36, 60)


class Drawing:
    """A picture in the making; positions and sizes are those of the finished one."""

    def __init__(self, width, height, colour):
        self.size = width, height
        self.image = Image.new("RGB", (width * FINE, height * FINE), colour)
        self.draw = ImageDraw.Draw(self.image)

    @staticmethod
    def scaled(points):
        return [(x * FINE, y * FINE) for x, y in points]

    def area(self, points, fill, ink=INK, width=1.2):
        points = self.scaled(points)
        self.draw.polygon(points, fill)
        if ink:
            self.draw.line(points + points[:2], ink, round(width * FINE), "curve")

    def line(self, points, ink=INK, width=1.2):
        self.draw.line(self.scaled(points), ink, round(width * FINE), "curve")

    def disc(self, x, y, radius, fill, ink=INK, width=1.2, flat=1.0):
        (left, top), (right, bottom) = self.scaled(
            [(x - radius, y - radius * flat), (x + radius, y + radius * flat)])
        self.draw.ellipse([left, top, right, bottom], fill, ink, round(width * FINE) if ink else 0)

    def fade(self, top, bottom, above, below):
        """A rectangle over the whole width whose colour changes from above to below."""
        for y in range(round(top * FINE), round(bottom * FINE)):
            part = (y - top * FINE) / ((bottom - top) * FINE)
            colour = tuple(round(a + (b - a) * part) for a, b in zip(above, below))
            self.draw.line([(0, y), (self.image.width, y)], colour)

    def finished(self):
        return self.image.resize(self.size, Image.LANCZOS)


def curve(*points, steps=16):
    """Points of a smooth line through the given ones."""
    points = [points[0], *points, points[-1]]
    result = []
    for p, q, r, s in zip(points, points[1:], points[2:], points[3:]):
        for t in np.linspace(0, 1, steps, endpoint=False):
            result.append(tuple(
                0.5 * (2 * b + (c - a) * t + (2 * a - 5 * b + 4 * c - d) * t * t
                       + (3 * b - a - 3 * c + d) * t ** 3) for a, b, c, d in zip(p, q, r, s)))
    return result + [points[-1]]


def bitmap(drawing):
    """The bytes of a bitmap of 256 colours."""
    file = io.BytesIO()
    picture = drawing.finished().quantize(256, Image.Quantize.MEDIANCUT, dither=Image.Dither.NONE)
    picture.save(file, "BMP")
    return file.getvalue()


# ------------------------------------------------------------ pictures

def boat():
    d = Drawing(160, 130, (0, 0, 0))
    d.fade(0, 66, (120, 170, 214), (250, 226, 190))
    d.disc(122, 34, 13, (255, 236, 150), None)
    d.area(curve((0, 66), (20, 48), (44, 58), (70, 44), (104, 60), (132, 50), (160, 66))
           + [(160, 70), (0, 70)], (126, 150, 128), None)
    d.fade(66, 130, (140, 190, 206), (44, 96, 140))
    for k in range(26):
        y = 71 + k * 2.3
        x = (k * 67) % 150
        d.line([(x, y), (x + 6 + k * 0.5, y)], (206, 230, 236), 0.7)
    for k in range(7):
        d.line([(116 - k, 72 + 6 * k), (128 + k, 72 + 6 * k)], (255, 240, 190), 1.3)
    d.area(curve((22, 108), (80, 118), (140, 104), (120, 122), (50, 124), steps=8), (36, 78, 118),
           None)
    inside = curve((18, 88), (48, 96), (84, 97), (118, 93), (143, 82))
    d.area(inside + curve((143, 82), (110, 86), (60, 87), (18, 88)), (126, 78, 44))
    for x, half in ((50, 6), (84, 7), (114, 6)):
        d.area([(x - half, 89), (x + half, 88), (x + half - 1, 93), (x - half, 94)], (196, 140, 84))
    d.area(inside + curve((143, 82), (132, 104), (112, 113), (50, 113), (30, 104), (18, 88)),
           (182, 62, 48))
    d.line(curve((23, 96), (50, 103), (84, 104), (118, 100), (138, 91)), (240, 214, 168), 1.6)
    for end, blade in (((34, 118), (26, 124)), ((106, 122), (112, 129))):
        start = (70, 82) if end[0] < 70 else (92, 80)
        d.line([start, end], (108, 70, 36), 2.2)
        d.line([end, blade], (214, 170, 110), 4.5)
    return bitmap(d)


def spruce():
    d = Drawing(150, 150, (0, 0, 0))
    d.fade(0, 118, (38, 52, 104), (126, 150, 196))
    d.area(curve((0, 118), (50, 110), (110, 120), (150, 112)) + [(150, 150), (0, 150)],
           (238, 244, 252), None)
    for x, y, radius in np.random.default_rng(5).uniform((0, 0, 0.7), (150, 114, 1.6), (60, 3)):
        d.disc(x, y, radius, (236, 242, 255), None)
    d.area([(70, 112), (80, 112), (82, 132), (68, 132)], (112, 74, 44))
    for low, high, half in ((118, 76, 44), (94, 54, 35), (70, 34, 26), (48, 18, 17)):
        left = curve((75, high), (75 - half * 0.45, (low + high) / 2), (75 - half, low))
        right = curve((75 + half, low), (75 + half * 0.45, (low + high) / 2), (75, high))
        hem = curve((75 - half, low), (75 - half / 2, low + 4), (75, low + 1),
                    (75 + half / 2, low + 4), (75 + half, low))
        d.area(left + hem + right, (28, 112, 62), (14, 62, 40))
        d.line(hem, (226, 240, 240), 1.6)
    chain = ((58, 45, 90), (48, 64, 102), (40, 88, 112))
    for left, y, right in chain:
        d.line(curve((left, y), ((left + right) / 2, y + 7), (right, y - 4)), (250, 214, 92), 1.3)
    balls = ((66, 44, 0), (84, 40, 1), (56, 62, 2), (76, 62, 0), (94, 66, 3), (48, 88, 1),
             (68, 86, 3), (88, 90, 2), (104, 92, 0), (42, 112, 2), (62, 112, 0), (84, 114, 1),
             (106, 113, 3))
    colours = ((214, 44, 52), (250, 196, 60), (90, 160, 232), (214, 120, 200))
    for x, y, kind in balls:
        d.disc(x, y, 4, colours[kind], (60, 24, 48), 0.9)
        d.disc(x - 1.3, y - 1.4, 1, (255, 255, 255), None)
    star = [(75 + r * math.sin(k * math.pi / 5), 16 - r * math.cos(k * math.pi / 5))
            for k, r in enumerate((11, 4.6) * 5)]
    d.area(star, (255, 224, 96), (150, 96, 20))
    for x, colour, ribbon in ((40, colours[0], colours[1]), (100, colours[2], (255, 255, 255))):
        d.area([(x, 122), (x + 20, 122), (x + 20, 138), (x, 138)], colour)
        d.line([(x + 10, 122), (x + 10, 138)], ribbon, 3)
        d.line(curve((x + 4, 117), (x + 10, 122), (x + 16, 117)), ribbon, 2)
    return bitmap(d)


def whale():
    d = Drawing(160, 130, (0, 0, 0))
    d.fade(0, 62, (176, 214, 240), (232, 244, 250))
    d.fade(62, 130, (70, 150, 190), (14, 52, 104))
    for x, lean in ((48, -15), (52, -5), (56, 5), (60, 15)):
        d.line(curve((54, 42), (54 + lean * 0.4, 22), (x + lean, 16 + abs(lean) * 0.6)),
               (120, 176, 216), 2)
    body = curve((12, 72), (18, 54), (44, 44), (82, 50), (112, 66), (132, 70), (140, 60))
    tail = curve((140, 60), (132, 46), (122, 40)) + curve((122, 40), (138, 40), (144, 50)) + \
        curve((144, 50), (148, 38), (158, 36)) + curve((158, 36), (158, 50), (148, 62))
    under = curve((148, 62), (140, 82), (112, 96), (70, 104), (34, 98), (16, 86), (12, 72))
    d.area(body + tail + under, (54, 84, 128))
    d.area(curve((13, 76), (40, 84), (74, 84), (100, 88), (112, 95), (70, 104), (34, 98), (16, 86),
                 (13, 76)), (214, 226, 232))
    for k in range(6):
        d.line(curve((24 + k * 4, 83 + k * 2.6), (54 + k * 5, 90 + k * 2), (92 - k * 2, 91 + k)),
               (146, 168, 184), 0.8)
    d.line(curve((13, 76), (28, 80), (44, 78)), INK, 1.4)
    d.disc(44, 70, 2.6, (255, 255, 255), INK, 0.9)
    d.disc(43.6, 70, 1.2, INK, None)
    d.area(curve((66, 86), (60, 104), (74, 114), (88, 116), (84, 100), (80, 87), steps=8),
           (40, 66, 106))
    for k in range(5):
        y = 62 + k * 1.4
        d.line(curve((0, y), (40, y + 3), (80, y), (120, y + 3), (160, y)) if k % 2 == 0 else
               curve((0, y + 2), (40, y), (80, y + 2), (120, y), (160, y + 2)),
               (150, 204, 224), 0.5)
    for k in range(12):
        d.disc(10 + (k * 47) % 146, 106 + (k * 13) % 20, 1 + k % 3 * 0.6, None, (140, 190, 220), 0.6)
    return bitmap(d)


# ------------------------------------------------------------ sound and music


def chunk(name, content):
    return name + struct.pack("<I", len(content)) + content + b"\0" * (len(content) % 2)


def riff(kind, content):
    return chunk(b"RIFF", kind + content)


def tone():
    """The A to which instruments are tuned, as a struck bar gives it."""
    rate = 22050
    t = np.arange(int(rate * 2.4)) / rate
    wave = sum(level * np.sin(2 * math.pi * 440 * part * t) * np.exp(-t * fall) for part, level, fall
               in ((1, 0.6, 1.6), (2, 0.16, 2.6), (3.98, 0.12, 6), (9.1, 0.05, 14)))
    wave *= np.minimum(1, t / 0.004) * np.minimum(1, (t[-1] - t) / 0.2)
    samples = (wave * 30000).astype("<i2").tobytes()
    form = struct.pack("<HHIIHH", 1, 1, rate, rate * 2, 2, 16)
    return riff(b"WAVE", chunk(b"fmt ", form) + chunk(b"data", samples))


# A tune of our own, in beats of a quarter; "-" is a rest. It begins with an upbeat.
MELODY = """A4 F#5:2 E5 D5:2 A4 E5:2 D5 C#5:3 G5:2 F#5 E5:2 C#5 D5 E5 F#5 A5:2 A4
F#5:2 E5 D5 F#5 A5 B5:2 A5 G5:3 E5 G5 B5 A5 G5 E5 D5:2 F#5 D5:2 -"""
# A letter for each bar, the accompaniment in them: one bass note, then a chord twice.
BARS = "DDAAAADD DDGGEADD".replace(" ", "")
CHORDS = {"D": ("D3", "F#3 A3 D4"), "A": ("A2", "G3 A3 C#4"), "G": ("G2", "G3 B3 D4"),
          "E": ("E3", "G3 B3 E4")}
BEAT = 96


def pitch(name):
    steps = {"C": 0, "D": 2, "E": 4, "F": 5, "G": 7, "A": 9, "B": 11}
    return 12 * (int(name[-1]) + 1) + steps[name[0]] + (1 if "#" in name else 0)


def track(channel, instrument, notes):
    """notes: (beat, beats, pitch, loudness)."""
    events = [(0, bytes([0xC0 | channel, instrument]))]
    for beat, beats, key, loud in notes:
        events.append((round(beat * BEAT), bytes([0x90 | channel, key, loud])))
        events.append((round((beat + beats) * BEAT) - 6, bytes([0x80 | channel, key, 0])))
    return ordered_track(events)


def ordered_track(events):
    content, now = b"", 0
    for at, event in sorted(events, key=lambda e: e[0]):
        wait = at - now
        content += bytes([0x80 | wait >> 7, wait & 0x7F] if wait > 127 else [wait]) + event
        now = at
    content += b"\0\xff\x2f\0"
    return b"MTrk" + struct.pack(">I", len(content)) + content


def waltz():
    melody, beat = [], 0
    for word in MELODY.split():
        name, _, beats = word.partition(":")
        beats = int(beats or 1)
        if name != "-":
            melody.append((beat, beats, pitch(name), 84 if name[-1] > "4" else 96))
        beat += beats
    bass, chords = [], []
    for bar, letter in enumerate(BARS):
        low, high = CHORDS[letter]
        bass.append((1 + bar * 3, 1, pitch(low), 70))
        for when in (2, 3):
            chords += [(when + bar * 3, 0.6, pitch(name), 48) for name in high.split()]
    tempo = ordered_track([(0, b"\xff\x51\x03" + (60_000_000 // 172).to_bytes(3, "big"))])
    tracks = [tempo, track(0, 48, melody), track(1, 43, bass), track(2, 45, chords)]
    return b"MThd" + struct.pack(">IHHH", 6, 1, len(tracks), BEAT) + b"".join(tracks)


# ------------------------------------------------------------ video

WIDTH, HEIGHT, RATE, FRAMES = 160, 120, 12, 84
SOUND_RATE = 11025


def car(d, x, y, paint, number, turn):
    d.area(curve((x - 24, y), (x - 24, y - 8), (x - 10, y - 9), (x - 4, y - 16), (x + 6, y - 16),
                 (x + 10, y - 9), (x + 26, y - 5), (x + 27, y), steps=5), paint)
    d.disc(x + 2, y - 14, 4.5, (250, 240, 220))
    d.area([(x - 27, y - 15), (x - 19, y - 15), (x - 19, y - 10), (x - 27, y - 10)], paint)
    d.disc(x - 8, y - 4.5, 4, (255, 255, 255), None)
    d.line([(x - 8, y - 7), (x - 8, y - 2)] if number == 1 else
           curve((x - 10, y - 6), (x - 8, y - 7), (x - 7, y - 5), (x - 10, y - 2), (x - 6, y - 2),
                 steps=4), INK, 1.1)
    for wheel in (x - 16, x + 17):
        d.disc(wheel, y, 6.5, (44, 44, 52), (20, 20, 24))
        d.disc(wheel, y, 2.8, (206, 206, 214), None)
        d.line([(wheel - 2.6 * math.cos(turn), y - 2.6 * math.sin(turn)),
                (wheel + 2.6 * math.cos(turn), y + 2.6 * math.sin(turn))], (70, 70, 80), 1)


def race_frame(k):
    """Two cars race past trees to the finish; the second one wins by a length."""
    d = Drawing(WIDTH, HEIGHT, (150, 204, 244))
    way = 5.0 * min(k, FRAMES - 22)
    for n in range(4):
        x = (n * 60 - way * 0.25) % 240 - 40
        d.area(curve((x - 46, 54), (x - 16, 34), (x + 10, 38), (x + 48, 54)), (126, 174, 138), None)
    d.area([(0, 52), (160, 52), (160, 120), (0, 120)], (104, 176, 84), None)
    for n in range(4):
        x = (n * 57 - way * 0.7) % 228 - 30
        d.area([(x - 2, 52), (x + 2, 52), (x + 2, 62), (x - 2, 62)], (116, 78, 44), None)
        d.disc(x, 44, 11, (52, 132, 66), (30, 88, 44))
    d.area([(0, 66), (160, 66), (160, 113), (0, 113)], (112, 112, 120), None)
    for y in (66, 113):
        d.line([(0, y), (160, y)], (246, 246, 246), 1.6)
    for n in range(7):
        x = (n * 32 - way) % 224 - 32
        d.area([(x, 88.5), (x + 16, 88.5), (x + 16, 91), (x, 91)], (246, 246, 246), None)
    finish = 5.0 * (FRAMES - 22) + 126 - way
    if finish < 170:
        for row in range(12):
            for side in range(2):
                shade = (250, 250, 250) if (row + side) % 2 == 0 else (30, 30, 34)
                d.area([(finish + side * 4, 66 + row * 3.92), (finish + side * 4 + 4, 66 + row * 3.92),
                        (finish + side * 4 + 4, 69.92 + row * 3.92),
                        (finish + side * 4, 69.92 + row * 3.92)], shade, None)
    last = max(0, k - (FRAMES - 22))
    first_x = 62 + 14 * math.sin(k / 11) - 0.4 * last + 4.4 * last
    second_x = 40 + 0.42 * k + 9 * math.sin(k / 8 + 2) + 5.6 * last
    car(d, first_x, 79 + 0.6 * math.sin(k * 1.9), (222, 58, 52), 1, k * 1.1)
    car(d, second_x, 103 + 0.6 * math.sin(k * 2.3), (58, 96, 214), 2, k * 1.2)
    return d.finished()


def shades(picture):
    """The picture in shades of five bits, the bottom row first."""
    rgb = (np.asarray(picture).astype(int) * 31 + 127) // 255
    return rgb[::-1]


def word(colour):
    red, green, blue = (int(round(c)) for c in colour)
    return red << 10 | green << 5 | blue


def two_colours(pixels):
    """The two colours that stand best for some pixels, and which pixel takes the first."""
    bright = pixels @ np.array([3, 6, 1])
    first = bright > (bright.min() + bright.max()) / 2
    if not first.any():
        return pixels.mean(axis=0), pixels.mean(axis=0), first
    return pixels[first].mean(axis=0), pixels[~first].mean(axis=0), first


def coded_block(block):
    """A block of 4 by 4 as one, two or eight colours, with the pixels that a player shows."""
    flat = block.reshape(16, 3)
    if (np.ptp(flat, axis=0) <= 1).all():
        colour = word(flat.mean(axis=0))
        if colour >> 10 == 1:
            colour ^= 1 << 10       # This red means a skip.
        return struct.pack("<H", 0x8000 | colour)
    first, second, chosen = two_colours(flat)
    guess = np.where(chosen[:, None], first, second)
    if np.abs(guess - flat).max() <= 3:
        # The last pixel must take the second colour.
        if chosen[15]:
            first, second, chosen = second, first, ~chosen
        flags = sum(1 << n for n in range(16) if chosen[n])
        return struct.pack("<HHH", flags, word(first), word(second))
    flags, words = 0, []
    for quarter in range(4):
        places = [n for n in range(16) if (n // 8) * 2 + (n % 4) // 2 == quarter]
        first, second, chosen = two_colours(flat[places])
        if quarter == 3 and chosen[-1]:
            first, second, chosen = second, first, ~chosen
        flags |= sum(1 << n for n, taken in zip(places, chosen) if taken)
        words += [word(first), word(second)]
    words[0] |= 0x8000
    return struct.pack("<9H", flags, *words)


def coded_frame(frame, before):
    result, skipped = b"", 0
    for y in range(0, HEIGHT, 4):
        for x in range(0, WIDTH, 4):
            block = frame[y:y + 4, x:x + 4]
            if before is not None and (block == before[y:y + 4, x:x + 4]).all():
                skipped += 1
                continue
            if skipped:
                result += struct.pack("<H", 0x8400 + skipped)
                skipped = 0
            result += coded_block(block)
    return result + (struct.pack("<H", 0x8400 + skipped) if skipped else b"")


def engines():
    t = np.arange(SOUND_RATE * FRAMES // RATE) / SOUND_RATE
    wave = np.zeros_like(t)
    for pitch_of, level in ((70, 0.20), (83, 0.18)):
        turn = np.cumsum(pitch_of * (1 + 0.35 * np.sin(t * 1.3 + pitch_of)) / SOUND_RATE)
        wave += level * sum(np.sin(2 * math.pi * turn * n) / n for n in (1, 2, 3, 5))
    wave *= np.minimum(1, t / 0.5) * np.minimum(1, (t[-1] - t) / 1.2)
    return (128 + wave * 110).clip(0, 255).astype(np.uint8).tobytes()


def stream(kind, handler, scale, rate, length, size, form):
    head = kind + handler + struct.pack("<IIIIIIIIIII", 0, 0, 0, scale, rate, 0, length, 0,
                                        0xFFFFFFFF, size, 0) + struct.pack("<HH", WIDTH, HEIGHT)
    return chunk(b"LIST", b"strl" + chunk(b"strh", head) + chunk(b"strf", form))


def race():
    sound, movie, index, before = engines(), b"", b"", None
    for k in range(FRAMES):
        frame = shades(race_frame(k))
        step = SOUND_RATE / RATE
        for name, content in ((b"00dc", coded_frame(frame, before)),
                              (b"01wb", sound[int(k * step):int((k + 1) * step)])):
            key = 0x10 if k == 0 or name == b"01wb" else 0
            index += name + struct.pack("<III", key, len(movie) + 4, len(content))
            movie += chunk(name, content)
        before = frame
    picture = struct.pack("<IiiHH4sIiiII", 40, WIDTH, HEIGHT, 1, 16, b"CRAM", 0, 0, 0, 0, 0)
    pcm = struct.pack("<HHIIHH", 1, 1, SOUND_RATE, SOUND_RATE, 1, 8)
    head = struct.pack("<14I", 1_000_000 // RATE, 0, 0, 0x110, FRAMES, 0, 2, 0, WIDTH, HEIGHT, 0, 0,
                       0, 0)
    return riff(b"AVI ", chunk(b"LIST", b"hdrl" + chunk(b"avih", head)
                               + stream(b"vids", b"msvc", 1, RATE, FRAMES, 0, picture)
                               + stream(b"auds", b"\0\0\0\0", 1, SOUND_RATE, len(sound), 1, pcm))
                + chunk(b"LIST", b"movi" + movie) + chunk(b"idx1", index))


# ------------------------------------------------------------ files

MAKERS = {"camac.bmp": boat, "jela.bmp": spruce, "kit.bmp": whale, "ton.wav": tone,
          "valcer.mid": waltz, "trka.avi": race}


def main(folder):
    for name, make in MAKERS.items():
        (folder / name).write_bytes(make())


if __name__ == "__main__":
    main(Path(sys.argv[1]))
