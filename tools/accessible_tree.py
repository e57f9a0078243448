#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""What a screen reader finds in the program: prints the tree, or solves a crossword through it.

    tools/accessible_tree.py PROGRAM CROSSWORD [--solve]

PROGRAM is the built Serbian program, CROSSWORD a file with no further installment. It runs on a
display and a bus of its own; the packages are accessibility_packages in tools/packages.sh. To solve
means to press, write and read nothing but what stands in the tree, and then to save."""

import argparse
import collections
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time
import warnings

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402  # pylint: disable=wrong-import-position

# The binding names the successors of what it calls obsolete differently from release to release.
warnings.simplefilter("ignore", DeprecationWarning)

HEADER_LINES = 9
OWN_BUS = "KALVON_OWN_BUS"
SETTINGS = "Vostrand Kalvon Multimedia\r\nStaza:c:{}\r\nPismo:Latinica\r\nTastatura:YU ASCII\r\n"


class NotFound(Exception):
    """The tree lacks something."""


def until(answer, what):
    for _ in range(100):
        found = answer()
        if found:
            return found
        time.sleep(0.1)
    raise NotFound(what)


def walk(root, depth=0):
    yield root, depth
    for index in range(root.get_child_count()):
        child = root.get_child_at_index(index)
        if child:
            yield from walk(child, depth + 1)


def is_on(accessible, state):
    return accessible.get_state_set().contains(state)


class Program:
    def __init__(self, process):
        self.process = process
        self.root = until(self.application, "the program on the bus")
        self.root.set_cache_mask(Atspi.Cache.NONE)

    def application(self):
        desktop = Atspi.get_desktop(0)
        found = (desktop.get_child_at_index(i) for i in range(desktop.get_child_count()))
        return next((one for one in found if one and one.get_process_id() == self.process), None)

    def find(self, role, name):
        def found():
            return next(
                (
                    one
                    for one, _ in walk(self.root)
                    if one.get_role_name() == role
                    and one.get_name() == name
                    and is_on(one, Atspi.StateType.SHOWING)
                ),
                None,
            )

        return until(found, f"{role} “{name}”")

    def press(self, role, name):
        press(self.find(role, name))

    def load(self):
        self.press("push button", "Učitaj")
        self.press("push button", "Dalje")
        grid = self.find("table", "Mreža")
        until(grid.get_child_count, "the cells of the grid")

    def show(self):
        for one, depth in walk(self.root):
            states = [word for word, state in STATES.items() if is_on(one, state)]
            if not is_on(one, Atspi.StateType.VISIBLE):
                states.append("hidden")
            actions = action_names(one) if one.get_action_iface() else []
            line = f"{'  ' * depth}{one.get_role_name()}: {one.get_name()!r}"
            if one.get_description():
                line += f" – {one.get_description()!r}"
            if one.get_table_iface():
                line += f" {one.get_n_rows()} x {one.get_n_columns()}"
            if one.get_text_iface():
                line += f" text {Atspi.Text.get_text(one, 0, -1)!r}"
            print(line, *states, *actions)


STATES = {"selected": Atspi.StateType.SELECTED, "focused": Atspi.StateType.FOCUSED}


def action_names(accessible):
    return [accessible.get_action_name(i) for i in range(accessible.get_n_actions())]


def press(accessible):
    accessible.do_action(action_names(accessible).index("Press"))


def solutions(crossword):
    """The letters of the cells, row by row; none for a blocked one."""
    lines = crossword.read_text("latin-1").split("\n")[HEADER_LINES:]
    return [None if cell.startswith("$") else cell[:1] for cell in lines[::2] if cell.strip()]


def letter_of_key(stored):
    return chr(ord(stored) + 32)


class Told:
    """Counts what the program tells of."""

    KINDS = (
        "object:state-changed:selected",
        "object:state-changed:focused",
        "object:property-change:accessible-name",
        "object:property-change:accessible-description",
    )

    def __init__(self):
        self.count = collections.Counter()
        self.listener = Atspi.EventListener.new(lambda event: self.count.update([event.type]))
        for kind in self.KINDS:
            self.listener.register(kind)

    def show(self):
        while GLib.MainContext.default().iteration(False):
            pass
        for kind, times in sorted(self.count.items()):
            print(f"told {times} times: {kind}")


def solve_word(grid, boxes, letters):
    """Writes the word that is selected into its boxes, and the boxes into the grid."""
    cells = [grid.get_child_at_index(i) for i in range(grid.get_child_count())]
    word = [i for i, cell in enumerate(cells) if is_on(cell, Atspi.StateType.SELECTED)]
    for box, cell in zip(boxes, word):
        Atspi.EditableText.set_text_contents(box, letter_of_key(letters[cell]))
    print(grid.get_description())
    press(grid)


def solve(program, crossword):
    told = Told()
    letters = solutions(crossword)
    grid = program.find("table", "Mreža")
    boxes = [program.find("text", f"Slovo {place}") for place in range(1, 16)]
    for name, bar_name in (
        ("Vodoravna pitanja", "Listanje vodoravnih pitanja"),
        ("Uspravna pitanja", "Listanje uspravnih pitanja"),
    ):
        clues = program.find("list", name)
        bar = program.find("scroll bar", bar_name)
        last = int(Atspi.Value.get_maximum_value(bar))
        for place in range(1, last + 1):
            Atspi.Value.set_current_value(bar, place)
            press(clues.get_child_at_index(0))
            solve_word(grid, boxes, letters)
    print(program.find("status bar", "Bravo! Sva slova su na svom mestu.").get_name())
    program.press("push button", "Snimi")
    program.find("status bar", f"Snimljeno: {crossword.name}.")
    told.show()


def saved_right(crossword):
    lines = crossword.read_text("latin-1").split("\n")[HEADER_LINES:]
    return all(cell.startswith("$") or cell[0] == cell[1] for cell in lines[::2] if cell.strip())


def run(options):
    with tempfile.TemporaryDirectory() as folder:
        scratch = pathlib.Path(folder)
        crossword = scratch / options.crossword.name
        shutil.copy(options.crossword, crossword)
        shutil.copy(options.program, scratch)
        settings = SETTINGS.format(str(scratch).replace("/", "\\"))
        (scratch / "m_kalvon_ini.txt").write_text(settings, encoding="ascii", newline="")
        environment = {
            **os.environ,
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
            "QT_QPA_PLATFORM": "xcb",
            "XDG_STATE_HOME": f"{scratch}/state",
            "XDG_CONFIG_HOME": f"{scratch}/config",
        }
        running = subprocess.Popen([scratch / options.program.name], env=environment)
        try:
            program = Program(running.pid)
            program.load()
            if options.solve:
                solve(program, crossword)
            else:
                program.show()
        finally:
            running.terminate()
            ended = running.wait()
        if not options.solve or ended != 0:
            return ended
        right = saved_right(crossword)
        print("saved right" if right else "NOT SAVED RIGHT")
        return 0 if right else 1


def on_own_bus():
    """Runs this script anew, with a display and a bus that nobody else has."""
    reading, writing = os.pipe()
    with subprocess.Popen(
        ["Xvfb", "-displayfd", str(writing), "-noreset", "-screen", "0", "1280x1024x24"],
        pass_fds=[writing],
        stderr=subprocess.DEVNULL,
    ) as display:
        os.close(writing)
        with os.fdopen(reading) as number:
            environment = {**os.environ, "DISPLAY": ":" + number.readline().strip(), OWN_BUS: "1"}
        try:
            return subprocess.call(["dbus-run-session", "--", *sys.orig_argv], env=environment)
        finally:
            display.terminate()


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("program", type=pathlib.Path)
    parser.add_argument("crossword", type=pathlib.Path)
    parser.add_argument("--solve", action="store_true")
    options = parser.parse_args()
    return run(options) if OWN_BUS in os.environ else on_own_bus()


if __name__ == "__main__":
    sys.exit(main())
