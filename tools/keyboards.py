#!/usr/bin/env -S python3 -B
# SPDX-License-Identifier: MIT
"""Makes the tables of docs/keyboards.md: which letters each keyboard types.

    keyboards.py PROGRAM_FOLDER

Starts the program of the folder on a display of its own, once for each script, code layout and
keyboard, without and with the choice of all keyboards. Each key of the keyboard is pressed in a
letter box of its own: plain, with Shift, and with Caps Lock. The letters are read out of the file
that the program saves.
"""

import contextlib
import itertools
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time

KEYBOARDS = {"us": ["us"], "rs latin": ["rs", "-variant", "latin"], "rs": ["rs"]}
SETTINGS = list(itertools.product(("Latinica", "Cirilica"), ("YU ASCII", "Unikod")))
SHOWN = {"Latinica": "Latin", "Cirilica": "Cyrillic", "Unikod": "Unicode"}

ALPHABET = "ABVGD\\E@ZIJKLQMNWOPRST]UFHC^X["
LETTERS = "A B V G D Đ E Ž Z I J K L Lj M N Nj O P R S T Ć U F H C Č Dž Š"
NAMES = dict(zip(ALPHABET, LETTERS.split()))

# Codes of the keys on the X server's keyboard: the rows that bear signs, from the top.
KEYS = [49, *range(10, 22), *range(24, 36), *range(38, 49), 51, *range(52, 62)]
ENTER, SHIFT, CAPS_LOCK = 36, 50, 66
STATES = ("plain", "Shift", "Caps Lock")

BOXES = 15
ROWS_OF_STATE = -(-len(KEYS) // BOXES)
ROWS = ROWS_OF_STATE * len(STATES)

# Places in the main form.
LOAD_BUTTON, SAVE_BUTTON = (30, 17), (74, 17)


def box(number):
    return 360 + 19 * number, 19


def first_cell(row):
    return 214, 58 + 28 * row


def wait_for(what, attempt):
    for _ in range(200):
        if answer := attempt():
            return answer
        time.sleep(0.05)
    sys.exit(f"Waited in vain for {what}.")


def xdotool(*words):
    done = subprocess.run(["xdotool", *map(str, words)], capture_output=True, text=True)
    return done.stdout.strip()


def find_window(name):
    return xdotool("search", "--onlyvisible", "--name", name)


def write_crossword(path):
    """A word across in each row, every letter of which is solved by A."""
    lines = ["", "Naziv: Tastature", f"Dimenzije:X={BOXES:3} Y={ROWS:3}", "Opis: "]
    lines += ["Nastavak broj: 1", *["Oznaka: 0"] * 4]
    for row, column in itertools.product(range(ROWS), range(BOXES)):
        across, down = column == 0, row == 0
        lines.append(f"A$0${across:d}${down:d}$00")
        clues = ("a" if across else "") + "$" + ("d" if down else "") + "$"
        lines.append(f"0{across:d}{down:d}$$$${clues}" if across or down else "")
    path.write_bytes("".join(line + "\r\n" for line in lines).encode())


def saved_letters(path):
    """The user's letters, row by row; None where there is none."""
    cells = path.read_bytes().decode().split("\r\n")[9::2][: ROWS * BOXES]
    letters = [cell[1] if cell[1] != "$" else None for cell in cells]
    return [letters[at : at + BOXES] for at in range(0, len(letters), BOXES)]


@contextlib.contextmanager
def display():
    reader, writer = os.pipe()
    server = subprocess.Popen(
        ["Xvfb", "-displayfd", str(writer), "-screen", "0", "1024x768x24"],
        pass_fds=[writer],
        stderr=subprocess.DEVNULL,
    )
    os.close(writer)
    with open(reader) as number:
        os.environ["DISPLAY"] = ":" + number.readline().strip()
    quiet = {"stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL}
    manager = subprocess.Popen("openbox", **quiet)
    try:
        yield
    finally:
        for process in (manager, server):
            process.terminate()
            process.wait()


@contextlib.contextmanager
def program(folder, script, layout, all_keyboards):
    """The started program with the crossword on show; gives its window."""
    where = "\\".join(folder.parts[1:])
    settings = ["Vostrand Kalvon Multimedia", f"Staza:c:\\{where}"]
    settings += [f"Pismo:{script}", f"Tastatura:{layout}", ""]
    (folder / "m_kalvon_ini.txt").write_bytes("\r\n".join(settings).encode())
    config = folder / "config/kalvon/kalvon.conf"
    config.parent.mkdir(parents=True, exist_ok=True)
    config.write_text(f"[General]\nall_keyboards={all_keyboards:d}\n")
    homes = {"XDG_CONFIG_HOME": folder / "config", "XDG_STATE_HOME": folder / "state"}
    shutil.rmtree(folder / "state", ignore_errors=True)
    write_crossword(folder / "slova.qvm")
    process = subprocess.Popen(
        [folder / "kalvon", "--zoom", "100"],
        env={**os.environ, **homes, "QT_QPA_PLATFORM": "xcb"},
        stderr=subprocess.DEVNULL,
    )
    try:
        window = wait_for("the program", lambda: find_window("^Vostrand"))
        time.sleep(0.5)
        xdotool("mousemove", "--window", window, *LOAD_BUTTON, "click", 1)
        wait_for("the dialog", lambda: find_window("^Ucitavanje"))
        time.sleep(0.5)
        xdotool("key", "--delay", 80, "Down", "Return")
        time.sleep(0.7)
        yield window
    finally:
        process.terminate()
        process.wait()


def press_keys(window, state, first_row):
    """Each key in a box of its own, row by row."""
    modifier = ["keydown", SHIFT] if state == "Shift" else []
    release = ["keyup", SHIFT] if state == "Shift" else []
    for row in range(ROWS_OF_STATE):
        words = ["mousemove", "--window", window, *first_cell(first_row + row), "click", 1]
        if first_row + row == 0:
            words = []  # The word is selected since the load, and a click would turn its direction.
        for number, key in enumerate(KEYS[row * BOXES : (row + 1) * BOXES]):
            words += ["mousemove", "--window", window, *box(number), "click", 1]
            words += [*modifier, "key", "--delay", 2, key, *release]
        xdotool(*words, "key", ENTER)


def typed_letters(folder, keyboard, script, layout, all_keyboards):
    """The letters that the keys gave, for each state."""
    subprocess.run(["setxkbmap", "us"], check=True)
    with program(folder, script, layout, all_keyboards) as window:
        subprocess.run(["setxkbmap", *KEYBOARDS[keyboard]], check=True)
        time.sleep(0.3)
        for number, state in enumerate(STATES):
            if state == "Caps Lock":
                xdotool("key", CAPS_LOCK)
            press_keys(window, state, number * ROWS_OF_STATE)
        xdotool("key", CAPS_LOCK)
        crossword = folder / "slova.qvm"
        before = crossword.stat().st_mtime_ns
        xdotool("mousemove", "--window", window, *SAVE_BUTTON, "click", 1)
        wait_for("the save", lambda: crossword.stat().st_mtime_ns != before)
        rows = saved_letters(crossword)
    typed = {}
    for number, state in enumerate(STATES):
        rows_of_state = rows[number * ROWS_OF_STATE : (number + 1) * ROWS_OF_STATE]
        typed[state] = {letter for row in rows_of_state for letter in row if letter}
    return typed


def row(*cells):
    print("| " + " | ".join(cells) + " |")


def print_counts(typed):
    choices = itertools.product(("off", "on"), STATES)
    row("Script", "Code layout", "Keyboard", *(f"{state}, {choice}" for choice, state in choices))
    row(*["---"] * 3, *["--:"] * 6)
    for (script, layout), keyboard in itertools.product(SETTINGS, KEYBOARDS):
        both = [typed[script, layout, keyboard, choice] for choice in (False, True)]
        counts = [str(len(states[state])) for states in both for state in STATES]
        row(SHOWN[script], SHOWN.get(layout, layout), f"`{keyboard}`", *counts)


def print_letters(typed):
    columns = [(*setting, keyboard) for setting in SETTINGS for keyboard in KEYBOARDS]
    row("Letter", *(f"{SHOWN[a]}, {SHOWN.get(b, b)}, `{keys}`" for a, b, keys in columns))
    row("---", *[":-:"] * len(columns))
    for letter in ALPHABET:
        marks = []
        for column in columns:
            both = [typed[(*column, choice)] for choice in (False, True)]
            off, on = (letter in states["plain"] | states["Shift"] for states in both)
            marks.append("yes" if off else "choice" if on else "–")
        row(NAMES[letter], *marks)


def require_packages():
    lists = '"${virtual_display_packages[@]}" "${keyboard_packages[@]}"'
    packages = pathlib.Path(__file__).with_name("packages.sh")
    script = f'source "$0" && require_packages {lists}'
    subprocess.run(["bash", "-c", script, packages], check=True, stdout=sys.stderr)


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    require_packages()
    typed = {}
    with tempfile.TemporaryDirectory() as scratch, display():
        folder = pathlib.Path(scratch) / "program"
        folder.mkdir()
        shutil.copy(pathlib.Path(sys.argv[1]) / "kalvon", folder)
        for case in itertools.product(SETTINGS, KEYBOARDS, (False, True)):
            (script, layout), keyboard, choice = case
            letters = typed_letters(folder, keyboard, script, layout, choice)
            typed[script, layout, keyboard, choice] = letters
    print_counts(typed)
    print()
    print_letters(typed)


main()
