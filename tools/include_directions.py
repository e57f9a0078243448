#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks which way the includes of a source tree point.

    include_directions.py ROOT

A file includes only what stands on its own floor or below, headers form no circle, and Qt stays
in the toolkit. The files of the host need the standard library, the host's own headers and two of
Qt's core. Prints file:line for each breach and fails if there is one.
"""

import pathlib
import re
import sys
from typing import NamedTuple

# The first pattern that fits a path gives its floor. Paths are relative to src/. The rooms of the
# toolkit stand one above the other, so that they form no circle.
FLOORS = (
    (r"files/", 0),
    (r"shell/toolkit/events/", 0.1),
    (r"shell/toolkit/drawing/", 0.2),
    (r"shell/toolkit/desktop/", 0.3),
    (r"shell/toolkit/controls/", 0.4),
    (r"shell/toolkit/input/", 0.5),
    (r"shell/toolkit/media/", 0.6),
    (r"shell/toolkit/windows/", 0.7),
    (r"shell/forms/", 1),
    (r"document/crossword_state\.", 1),
    (r"letters/", 2),
    (r"(document|display|solving|multimedia)/", 3),
    (r"shell/main\.cpp$", 5),
    (r"shell/[^/]+$", 4),
)

# The state stands on floor 1 but knows of no form, and of the toolkit only its run-time errors.
STATE = re.compile(r"document/crossword_state\.")
FOR_STATE = re.compile(r"document/crossword_state\.|files/run_time_error\.")
TOOLKIT = re.compile(r"shell/toolkit/")
PRIVATE_HEADER = re.compile(r"shell/toolkit/.+_p\.h$")

# What the files of the host need: their own headers, the standard library, the host, Qt's core.
FILES = re.compile(r"files/")
FOR_FILES = re.compile(
    r"files/\w+\.h$|[a-z]\w*$|(fcntl|unistd)\.h$|sys/\w+\.h$|(QString|QUtf8StringView)$"
)

# Qt's headers: <QLabel>, <QtWidgets>, <QtWidgets/QLabel>, <qlabel.h>, <private/qlabel_p.h>.
QT = re.compile(r"(Q[A-Z]\w*|Qt\w*/.+|q\w+\.h|private/q\w+_p\.h)$")
INCLUDE = re.compile(r'\s*#\s*include\s*([<"])([^>"]+)[>"]')


class Include(NamedTuple):
    line: int
    name: str


def read_tree(folder):
    """The includes of each source file below a folder, by its path relative to that folder."""
    tree = {}
    for path in sorted(folder.rglob("*")):
        if path.suffix in (".cpp", ".h"):
            lines = path.read_text(encoding="utf-8").splitlines()
            matches = ((number, INCLUDE.match(line)) for number, line in enumerate(lines, 1))
            tree[path.relative_to(folder).as_posix()] = [
                Include(number, match.group(2)) for number, match in matches if match
            ]
    return tree


def floor_of(name):
    return next((floor for pattern, floor in FLOORS if re.match(pattern, name)), None)


def may_use_qt(name):
    return bool(TOOLKIT.match(name)) and (name.endswith(".cpp") or bool(PRIVATE_HEADER.match(name)))


def breach(name, include, tree):
    """What is wrong with one include of a file in src/, or None."""
    if FILES.match(name):
        fits = FOR_FILES.match(include.name)
        return None if fits else f'"{include.name}" is more than the files of the host may know'
    if QT.match(include.name) and not may_use_qt(name):
        return f"<{include.name}> is Qt's, which stays in the toolkit"
    if include.name not in tree:
        beside = (pathlib.PurePosixPath(name).parent / include.name).as_posix()
        return f'"{include.name}" is to be named from src/' if beside in tree else None
    if not include.name.endswith(".h"):
        return f'"{include.name}" is no header'
    if PRIVATE_HEADER.match(include.name) and not may_use_qt(name):
        return f'"{include.name}" is private to the toolkit'
    if STATE.match(name) and not FOR_STATE.match(include.name):
        return f'"{include.name}" is more than the state may know'
    floor, included_floor = floor_of(name), floor_of(include.name)
    if floor is not None and included_floor is not None and included_floor > floor:
        return f'"{include.name}" is on floor {included_floor}, above floor {floor}'
    return None


def circles(tree):
    """Each include that closes a circle of headers, as its place and the circle."""
    done, road, found = set(), [], []

    def walk(name):
        road.append(name)
        for include in tree[name]:
            if include.name in road:
                circle = [*road[road.index(include.name):], include.name]
                found.append((name, include.line, "circle of headers: " + " -> ".join(circle)))
            elif include.name in tree and include.name not in done:
                walk(include.name)
        done.add(road.pop())

    for name in tree:
        if name.endswith(".h") and name not in done:
            walk(name)
    return found


def check(root):
    """All breaches below a root folder, as lines of the form file:line: text."""
    tree = read_tree(root / "src")
    if not tree:
        return [f"{root / 'src'}: no sources here"]
    found = [(name, 1, "is on no floor") for name in tree if floor_of(name) is None]
    for name, includes in tree.items():
        for include in includes:
            text = breach(name, include, tree)
            if text:
                found.append((name, include.line, text))
    found += circles(tree)
    return [f"src/{name}:{line}: {text}" for name, line, text in sorted(found)]


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    breaches = check(pathlib.Path(sys.argv[1]))
    for line in breaches:
        print(line)
    if breaches:
        sys.exit(f"{len(breaches)} includes point the wrong way")
    print("Every include points the right way.")


if __name__ == "__main__":
    main()
