#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Draws the program's pictures: draw.py FOLDER writes them there.

Each is drawn twice: in the pixels of the design, and for dense screens in three
by three pixels for each of them, as NAME@3x.png.

Needs python3-pil, python3-numpy and fonts-urw-base35.

The title picture is an engraving made by calculation: a small scene (a
crossword, a pencil, a cup, a disc) is traced point by point, and each surface
gets its own ruling, whose lines thicken where the surface is dark.  The icons
are drawn pixel by pixel in icons.txt.
"""
import math
import struct
import sys
from pathlib import Path

import numpy as np
from PIL import Image, ImageDraw, ImageFilter, ImageFont

FONTS = "/usr/share/fonts/opentype/urw-base35/"

# ------------------------------------------------------------ the engraving

DENSE = 3                         # pixels to one of the design, along each side
CROSSWORD = ("##.С..#.. .Н#Л#.М.. #ОЛОВКА#. "
             ".С.В##ПАС .##ОАЗА#. ...#В.#.. "
             "..#.И...# ......#.. #..#.....").split()
CELLS = len(CROSSWORD)
MARGIN = 0.7                      # of the sheet around the crossword, in cells
SHEET_TURN = math.radians(14)
TEXEL = 64                        # of the crossword's drawing, a cell

EYE, LOOK, FOCAL = np.array([4.2, -12.5, 15.5]), np.array([6.05, 4.85, 0.0]), 3.45
SUN = np.array([-0.56, 0.19, 0.80])        # throws the shadows
LAMP = np.array([-0.78, -0.33, 0.53])      # shades the cup
DISC, DISC_RADIUS = np.array([11.2, 9.3]), 3.6
CUP = np.array([2.2, 11.6])
TIP, END = np.array([5.15, 1.55, 0.36]), np.array([12.9, 2.75, 0.36])
LENGTH = float(np.linalg.norm(END - TIP))
AXIS = (END - TIP) / LENGTH
ACROSS = np.array([-AXIS[1], AXIS[0], 0.0])
BARREL = LENGTH - 1.7             # where the pencil's metal ring begins


def crossword_drawing():
    """The sheet seen from above, as a picture of light and ink."""
    side = int((CELLS + 2 * MARGIN) * TEXEL)
    picture = Image.new("L", (side, side), 255)
    draw = ImageDraw.Draw(picture)
    font = ImageFont.truetype(FONTS + "P052-Bold.otf", int(TEXEL * 0.82))
    start, end = MARGIN * TEXEL, (MARGIN + CELLS) * TEXEL
    for r, row in enumerate(CROSSWORD):
        for c, letter in enumerate(row):
            x, y = start + c * TEXEL, start + r * TEXEL
            if letter == "#":
                draw.rectangle([x, y, x + TEXEL, y + TEXEL], fill=0)
            elif letter != ".":
                draw.text((x + TEXEL / 2, y + TEXEL * 0.8), letter, 0, font, "ms")
    for k in range(CELLS + 1):
        at, half = start + k * TEXEL, 5 if k in (0, CELLS) else 2
        draw.rectangle([start - half, at - half, end + half, at + half], fill=0)
        draw.rectangle([at - half, start - half, at + half, end + half], fill=0)
    return np.asarray(picture) < 128


def along_pencil(p):
    """Position along the pencil from its tip, and across it both ways."""
    q = p - TIP
    return q @ AXIS, q @ ACROSS, q[:, 2]


def pencil(p):
    """Distance to the pencil: a hexagon sharpened by a cone, ring, rubber."""
    s, a, b = along_pencil(p)
    rho = np.hypot(a, b)
    hexagon = np.maximum(np.abs(b), np.abs(a) * 0.866 + np.abs(b) * 0.5) - 0.36
    cone = (rho - 0.03 - s * 0.20) * 0.98
    body = np.maximum(np.maximum(hexagon, cone), np.maximum(s - BARREL, -s))
    wave = 0.025 * np.sin((s - LENGTH) * 22) * (np.abs(s - LENGTH + 1.2) < 0.45)
    ring = np.maximum(rho - 0.385 - wave, np.abs(s - LENGTH + 1.2) - 0.5)
    rubber = np.maximum(rho - 0.36, np.abs(s - LENGTH + 0.5) - 0.42)
    return np.minimum(np.minimum(body, ring), rubber)


def cup(p):
    """Distance to the cup of coffee with its handle and saucer."""
    (x, y), z = (p[:, :2] - CUP).T, p[:, 2]
    rho = np.hypot(x, y)
    wall = 0.95 + 0.95 * np.sqrt(np.clip(z / 2.6, 0, 1))
    shell = np.maximum(np.abs(rho - wall + 0.07) - 0.07, np.abs(z - 1.35) - 1.25) * 0.8
    coffee = np.maximum(rho - wall + 0.05, np.abs(z - 1.1) - 1.0) * 0.8
    out, side = x * 0.878 + y * 0.479, y * 0.878 - x * 0.479
    handle = np.hypot(np.hypot(out - 1.75, (z - 1.45) * 0.9) - 0.78, side * 0.8) - 0.16
    handle = np.maximum(handle, wall - rho - 0.02)
    lip = 0.12 + 0.35 * np.clip((rho - 1.3) / 1.7, 0, 1) ** 1.5
    saucer = np.maximum(rho - 3.0, np.abs(z - lip) - 0.07) * 0.8
    return np.minimum(np.minimum(shell, handle), np.minimum(saucer, coffee))


def bodies(p):
    """Distance to the nearest thing that stands on the table."""
    return np.minimum(pencil(p), cup(p))


def march(start, way, far, steps):
    """Follow rays until they meet a body; how far, and whether they did."""
    t, hit = np.full(len(way), 0.02), np.zeros(len(way), bool)
    active = np.arange(len(way))
    for _ in range(steps):
        p = start[active] + way[active] * t[active, None]
        gap = bodies(p)
        near = gap < 0.004
        hit[active[near]] = True
        t[active] += np.where(near, 0, np.maximum(gap, 0.004) * 0.9)
        leaving = (p[:, 2] > 3.4) & (way[active, 2] > 0)
        active = active[~near & (t[active] < far[active]) & ~leaving]
    return t, hit


def normals(p):
    """The directions the bodies' surfaces face."""
    steps = np.eye(3) * 0.004
    slope = np.stack([bodies(p + e) - bodies(p - e) for e in steps], 1)
    return slope / np.maximum(np.linalg.norm(slope, axis=1, keepdims=True), 1e-9)


def sheet_place(p):
    """Position on the turned sheet, in cells from its middle, right and down."""
    x, y = p[:, 0] - CELLS / 2, p[:, 1] - CELLS / 2
    cos, sin = math.cos(SHEET_TURN), math.sin(SHEET_TURN)
    return x * cos + y * sin, x * sin - y * cos


def ruled(coordinate, dark):
    """Ink of a ruling, one line a unit, taking the share `dark` of it."""
    return np.abs(coordinate % 1.0 - 0.5) * 2 < dark


def spread(mask, reach):
    """The mask grown by `reach` samples on every side."""
    picture = Image.fromarray(mask.astype(np.uint8) * 255)
    return np.asarray(picture.filter(ImageFilter.MaxFilter(2 * reach + 1))) > 0


def contours(kinds, depth, normal, reach):
    """Lines where one thing ends and another begins, or a surface folds."""
    edge = np.zeros(kinds.shape, bool)
    for e, k, d, n in ((edge, kinds, depth, normal),
                       (edge.T, kinds.T, depth.T, normal.transpose(1, 0, 2))):
        e[1:] |= (k[1:] != k[:-1]) | (np.abs(d[1:] - d[:-1]) > 0.25)
        e[1:] |= np.sum(n[1:] * n[:-1], axis=2) < 0.72
    return spread(edge, reach)


def trace(sx, sy, width, height):
    """Where the rays through points of the picture end, and how it looks there:
    distance, whether on a body, place, normal; whether in shadow, and how far
    away the thing is that throws it."""
    ahead = (LOOK - EYE) / np.linalg.norm(LOOK - EYE)
    right = np.array([ahead[1], -ahead[0], 0]) / math.hypot(ahead[0], ahead[1])
    way = (ahead * FOCAL + np.outer((sx * 2 - width) / height, right)
           - np.outer(sy / height * 2 - 1, np.cross(right, ahead)))
    way /= np.linalg.norm(way, axis=1, keepdims=True)
    near, level = (3.3 - EYE[2]) / way[:, 2], -EYE[2] / way[:, 2]
    t, hit = march(EYE + way * near[:, None], way, level - near, 90)
    t = np.where(hit, t + near, level)
    p = EYE + way * t[:, None]
    normal = np.tile([0.0, 0.0, 1.0], (len(p), 1))
    normal[hit] = normals(p[hit])
    suns = np.broadcast_to(SUN, p.shape)
    away, shaded = march(p + normal * 0.03, suns, np.full(len(p), 14.0), 60)
    return t, hit, p, normal, shaded, away


def engraving(width, height, density):
    """The scene as black lines on white; an array of light from 0 to 1."""
    samples = 4 if density == 1 else 2     # rays a pixel, along each side
    fine = samples * density               # and a pixel of the design
    shape = (height * fine, width * fine)
    sy, sx = ((np.indices(shape) + 0.5) / fine).reshape(2, -1)
    t, hit, p, normal, shaded, away = trace(sx, sy, width, height)
    is_pencil = hit & (pencil(p) < cup(p))
    is_cup = hit & ~is_pencil
    rho, phi = np.hypot(*(p[:, :2] - DISC).T), np.arctan2(*(p[:, 1::-1] - DISC[::-1]).T)
    disc = ~hit & (rho < DISC_RADIUS) & (rho > 0.42)
    flat = ~hit & ~disc
    u, v = sheet_place(p)
    edge = CELLS / 2 + MARGIN
    sheet = flat & (np.maximum(np.abs(u), np.abs(v)) < edge)

    # Print and shadows on the sheet and the table.
    printed = crossword_drawing()
    row, column = (np.clip(((w + edge) * TEXEL).astype(int), 0, len(printed) - 1) for w in (v, u))
    ink = sheet & printed[row, column]
    cast = flat & shaded
    ink |= cast & ruled((sx + sy) / 3.4, 0.62)
    ink |= cast & ruled((sx - sy * 0.55) / 3.4, 0.42 - 0.3 * np.clip(away / 6, 0, 1))
    above = p + SUN / SUN[2] * 0.2
    thin = flat & ~sheet & (np.max(np.abs(sheet_place(above)), axis=0) < edge)
    thin |= flat & (rho > 0.42) & (np.hypot(*(above[:, :2] - DISC).T) < DISC_RADIUS)
    ink |= thin

    # The disc: rings, brighter along two beams.
    beams = 0.9 * np.abs(np.cos(phi - 0.9)) ** 10 + 0.55 * np.abs(np.cos(phi - 2.6)) ** 22
    gloss = np.select([rho > DISC_RADIUS - 0.18, rho > 1.25, rho > 1.05],
                      [0.10, 0.68 - 0.68 * beams, 0.05], 0.16)
    for ring in (1.05, 1.25, DISC_RADIUS - 0.18):
        ink |= disc & (np.abs(rho - ring) < 0.025)

    # The pencil: lines along its faces, around its point, ring and rubber.
    s, a, b = along_pencil(p)
    light = np.clip(normal @ SUN, 0, 1) * np.where(shaded & (away > 0.3), 0.3, 1) * 1.05
    dark, angle = np.clip(1 - light, 0, 1), np.arctan2(b, a)
    cut = is_pencil & (s < 2.2) & (np.abs(np.hypot(a, b) - 0.03 - s * 0.2) < 0.012)
    tail = is_pencil & (s >= BARREL)
    across = np.where(normal[:, 2] > 0.9, a, b)

    # The cup: level lines on its walls, crossed where dark; rings elsewhere.
    x, y = (p[:, :2] - CUP).T
    out = np.hypot(x, y)
    light = np.clip(normal @ LAMP, 0, 1) * np.where(shaded & (away > 0.25), 0.45, 1.15)
    dim = np.clip(1 - light, 0, 1)
    coffee = is_cup & (np.abs(p[:, 2] - 2.06) < 0.06) & (out < 1.8) & (normal[:, 2] > 0.9)
    china, steep = is_cup & ~coffee, np.abs(normal[:, 2]) < 0.75
    ink |= china & steep & ruled(np.arctan2(y, x) * 16 / math.pi, np.clip(dim * 1.5 - 0.95, 0, 0.4))

    # The surfaces: which points, their ruling, the share of ink, what they belong to.
    kinds = np.where(sheet, 1, 0)
    for where, coordinate, share, kind in (
            (disc, rho / 0.2, np.where(shaded, np.maximum(gloss, 0.75), gloss), 2),
            (is_pencil & ~cut & ~tail, across / 0.105, np.clip(dark + 0.18, 0, 0.86), 3),
            (cut & (s >= 0.55), angle * 3.2, np.clip(dark * 0.9 - 0.1, 0, 0.7), 4),
            (cut & (s < 0.55), angle * 2, np.clip(dark * 0.6 + 0.6, 0, 1), 5),
            (tail & (s < BARREL + 1), s / 0.11, np.clip(dark * 1.1, 0.1, 0.85), 6),
            (tail & (s >= BARREL + 1), angle * 3.5, np.clip(dark, 0, 0.8), 7),
            (china & steep, p[:, 2] / 0.2, np.clip(dim * 0.95 - 0.1, 0, 0.66), 8),
            (china & ~steep, out / 0.25, np.clip(dim * 0.85, 0, 0.6), 8),
            (coffee, sy / 3, 0.8, 9)):
        ink |= where & ruled(coordinate, share)
        kinds[where] = kind

    # Contours, and the table's level lines, which keep clear of the things.
    lines = contours(kinds.reshape(shape), t.reshape(shape), normal.reshape(shape + (3,)),
                     max(1, fine // 5))
    lines |= ink.reshape(shape)
    light = 1 - lines.reshape(height * density, samples, width * density, samples).mean(axis=(1, 3))
    taken = (kinds > 0) | cast | thin
    clear = spread(taken.reshape(shape), 2 * fine)[::samples, ::samples]
    table = table_lines(width, height).repeat(density, 0).repeat(density, 1)
    return np.minimum(light, np.where(clear, 1, table))


def table_lines(width, height):
    """Level lines a few pixels apart, thinning out in an uneven oval."""
    y = np.arange(2, height, 4)[:, None]
    x, k = np.arange(width) + 0.5, np.arange(len(y))[:, None]
    half = width * 0.49 * np.sqrt(np.clip(1 - ((y / height - 0.52) / 0.47) ** 2, 0, 1))
    left = width / 2 - half + 13 * ((k * 0.618) % 1.0)
    right = width / 2 + half - 13 * ((k * 0.618 + 0.41) % 1.0)
    light = np.ones((height, width))
    light[2::4] = 1 - 0.62 * np.clip(np.minimum(x - left, right - x) / 26, 0, 1)
    return light

# -------------------------------------------------------- the title picture

SIDE = 420
PANEL = (56, 140)                 # the engraving's upper left corner
STEP = 28                         # of the faint crossword in the blue field


def blue_field():
    """A vertical gradient, dithered between few blues, with faint cells."""
    bayer = np.array([[0, 8, 2, 10], [12, 4, 14, 6], [3, 11, 1, 9], [15, 7, 13, 5]])
    y, x = np.mgrid[0:SIDE, 0:SIDE]
    step = np.floor((1 - (y / SIDE) ** 0.9) * 40 + (bayer[y % 4, x % 4] + 0.5) / 16) / 40
    field = np.stack([step * 40, step * 76, 72 + step * 140], axis=2)
    dark = ((x // STEP) * 7 + (y // STEP) * 11) % 6 == 0
    line = (x % STEP == 0) | (y % STEP == 0)
    field *= np.where(dark, 0.84, 1.0)[..., None]
    return np.where(line[..., None], field + (14, 20, 30), field)


def lettering(text, size, baseline, density):
    """A line of lettering across the middle, as a mask from 0 to 1."""
    fine = 4 * density
    face = ImageFont.truetype(FONTS + "C059-BdIta.otf", size * fine)
    mask = Image.new("L", (SIDE * fine, SIDE * fine), 0)
    ImageDraw.Draw(mask).text((SIDE * fine // 2, baseline * fine), text, 255, face, "ms")
    return np.asarray(mask.resize((SIDE * density, SIDE * density), Image.BOX)) / 255.0


def title_colours(density):
    """The picture as an array of colours."""
    colours = blue_field().repeat(density, 0).repeat(density, 1)
    blend = lambda under, over, mask: under + (np.asarray(over) - under) * mask[..., None]
    for text, size, baseline, top, bottom in (
            ("Vostrand KALVON", 41, 56, (255, 255, 255), (200, 220, 255)),
            ("Multimedia", 56, 116, (255, 244, 170), (255, 190, 40))):
        mask = lettering(text, size, baseline, density)
        shifts = range(1, 3 * density + 1)
        shadow = np.max([np.roll(mask, (k, k), (0, 1)) for k in shifts], axis=0)
        colours = blend(colours, (0, 0, 32), shadow)
        row = np.arange(SIDE * density) / density
        share = np.clip((row - baseline + size * 0.72) / (size * 0.72), 0, 1)
        fill = np.array(top) + np.outer(share, np.subtract(bottom, top))
        colours = blend(colours, fill[:, None, :], mask)
    x, y = PANEL
    left, top = x * density, y * density
    colours[top:, left:] = engraving(SIDE - x, SIDE - y, density)[..., None] * 255
    colours[top - density:top, left - density:] = (0, 0, 0)
    colours[top - density:, left - density:left] = (0, 0, 0)
    return colours


def title_palette():
    """Greys, blues, and the lettering's white and gold with their edges."""
    ramp = lambda a, b, n: [tuple(np.add(a, np.subtract(b, a) * k / (n - 1))) for k in range(n)]
    colours = (ramp((0, 0, 0), (255, 255, 255), 48) + ramp((0, 0, 64), (60, 100, 240), 96)
               + ramp((0, 0, 32), (230, 238, 255), 48) + ramp((0, 0, 32), (255, 215, 100), 32)
               + ramp((255, 190, 40), (255, 244, 170), 32))
    return np.round(colours).astype(int)


def nearest(colours, palette):
    """Each pixel's nearest entry of the palette."""
    rows = [((row[:, None] - palette) ** 2).sum(axis=2).argmin(axis=1) for row in colours]
    return np.array(rows, np.uint8)

# ---------------------------------------------------------------- the files

# The sixteen colours of the time, in their usual order, and the program icon's
# letters for them ('?': none).
SIXTEEN = [bytes.fromhex(colour) for colour in (
    "000000 800000 008000 808000 000080 800080 008080 808080 "
    "c0c0c0 ff0000 00ff00 ffff00 0000ff ff00ff 00ffff ffffff").split()]
LETTERS = "#r?on??gsR?YB??W"


def picture_header(width, height, bits, size, palette):
    """What bitmaps and icons share: the picture's description and palette."""
    return (struct.pack("<IiiHHIIiiII", 40, width, height, 1, bits, 0, size, 0, 0, 1 << bits, 0)
            + b"".join(struct.pack("4B", b, g, r, 0) for r, g, b in palette))


def bitmap(indexes, palette, padding=0):
    """A Windows bitmap of 256 colours; rows run from the bottom up."""
    height, width = indexes.shape      # the width is a multiple of four
    pixels = indexes[::-1].tobytes() + bytes(padding)
    head = struct.pack("<2sIHHI", b"BM", 1078 + len(pixels), 0, 0, 1078)
    return head + picture_header(width, height, 8, len(pixels), palette) + pixels


def small_icons(drawings):
    """The small icons' indexes by name: 0 for black, 255 for white."""
    for name, *rows in zip(*map(str.split, drawings.split("\n"))):
        inside = [[0 if c == "#" else 255 for c in row] for row in rows]
        yield name, np.pad(np.array(inside, np.uint8), 1)


def icon(drawing):
    """A Windows icon holding one picture of 32 by 32 in sixteen colours."""
    picture, mask = b"", b""
    for row in reversed(drawing.split()):
        codes = [0 if c == "." else LETTERS.index(c) for c in row]
        picture += bytes(a << 4 | b for a, b in zip(codes[::2], codes[1::2]))
        mask += int("".join("1" if c == "." else "0" for c in row), 2).to_bytes(4, "big")
    image = picture_header(32, 64, 4, len(picture + mask), SIXTEEN) + picture + mask
    return struct.pack("<HHHBBBBHHII", 0, 1, 1, 32, 32, 16, 0, 1, 4, len(image), 22) + image


def smoothed(picture):
    """Three by three pixels for each: stairs of two shades become slopes."""
    padded = np.pad(picture, 1, "edge")
    near = {(r, c): padded[1 + r:padded.shape[0] - 1 + r, 1 + c:padded.shape[1] - 1 + c]
            for r in (-1, 0, 1) for c in (-1, 0, 1)}
    larger = picture.repeat(3, 0).repeat(3, 1)
    for r, c in ((-1, -1), (-1, 1), (1, -1), (1, 1)):
        row, column = near[r, 0], near[0, c]
        corner = (row == column) & (row != near[-r, 0]) & (column != near[0, -c])
        part = larger[1 + r::3, 1 + c::3]
        part[corner] = row[corner]
    return larger


def save_dense(path, picture):
    """Few colours are enough, and make a small file."""
    image = Image.fromarray(picture.astype(np.uint8))
    if image.mode == "RGB":
        image = image.quantize(256, Image.Quantize.MEDIANCUT, dither=Image.Dither.NONE)
    image.save(path.with_name(path.stem + f"@{DENSE}x.png"), optimize=True)


def main():
    folder = Path(sys.argv[1])
    folder.mkdir(parents=True, exist_ok=True)
    _, small, program = Path(__file__).with_name("icons.txt").read_text().split("\n\n")
    greys = [(k, k, k) for k in range(256)]
    files = {name: bitmap(drawing, greys) for name, drawing in small_icons(small)}
    files["kalvon.ico"] = icon(program)
    files["title.bmp"] = bitmap(nearest(title_colours(1), title_palette()), title_palette(), 2)
    for name, content in files.items():
        (folder / name).write_bytes(content)
    for name, drawing in small_icons(small):
        save_dense(folder / name, smoothed(drawing))
    save_dense(folder / "title.bmp", np.clip(title_colours(DENSE), 0, 255))


if __name__ == "__main__":
    main()
