#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks which way the includes of a source tree point.

    include_directions.py ROOT

A file includes only what stands in its own row of the table below or in a row before it, headers
form no circle, and Qt stays in the toolkit, but for two headers of its core. Prints file:line for
each breach and fails if there is one.
"""

import pathlib
import re
import sys
from typing import NamedTuple


class Row(NamedTuple):
    """Files by their paths below src/, and which of the rows before them they may know."""

    files: str
    knows: str = ""
    system: str = r"[a-z]\w*$"  # The headers of the standard library.


TOOLKIT = r"shell/toolkit/|files/"
HOST = r"[a-z]\w*$|[\w/]+\.h$"
RECORD = r"document/(crossword_state|news)\."

# From the lowest up; the first row that fits a path is its own.
ROWS = (
    Row(r"files/", "files/", HOST),
    Row(r"letters/", "letters/"),
    Row(r"crossword/", "crossword/|files/"),
    Row(r"exchange/", "exchange/|crossword/|letters/|files/", HOST),
    Row(r"printing/", "printing/|crossword/|letters/|files/", HOST),
    Row(r"converter/", "converter/|printing/|exchange/|crossword/|letters/|files/", HOST),
    Row(r"shell/toolkit/events/", TOOLKIT, HOST),
    Row(r"shell/toolkit/drawing/", TOOLKIT, HOST),
    Row(r"shell/toolkit/desktop/", TOOLKIT, HOST),
    Row(r"shell/toolkit/controls/", TOOLKIT, HOST),
    Row(r"shell/toolkit/input/", TOOLKIT, HOST),
    Row(r"shell/toolkit/media/", TOOLKIT, HOST),
    Row(r"shell/toolkit/windows/", TOOLKIT, HOST),
    Row(r"shell/toolkit/paper/", TOOLKIT, HOST),
    Row(r"shell/forms/", "shell/forms/|" + TOOLKIT),
    Row(RECORD, RECORD + "|crossword/|letters/"),
    Row(r"display/"),
    Row(r"multimedia/"),
    Row(r"document/"),
    Row(r"solving/"),
    Row(r"shell/(?!main\.cpp)[^/]+$"),
    Row(r"shell/main\.cpp$"),
)

# What the files of the host take from Qt's core library.
CORE_FOR_FILES = {"QString", "QUtf8StringView"}

PRIVATE_HEADER = re.compile(r"shell/toolkit/.+_p\.h$")

# Qt's headers: <QLabel>, <QtWidgets>, <QtWidgets/QLabel>, <qlabel.h>, <private/qlabel_p.h>.
QT = re.compile(r"(Q[A-Z]\w*|Qt\w+(/.+)?|q\w+\.h|private/q\w+_p\.h)$")
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


def row_of(name):
    """The number of the row in which a file stands, or None."""
    return next((n for n, row in enumerate(ROWS) if re.match(row.files, name)), None)


def may_use_qt(name):
    if name.startswith(("exchange/", "printing/", "converter/")):  # Only what they use is linked.
        return True
    in_toolkit = name.startswith("shell/toolkit/")
    return in_toolkit and (name.endswith(".cpp") or bool(PRIVATE_HEADER.match(name)))


def breach(name, include, tree):
    """What is wrong with one include of a file in src/, or None."""
    row = row_of(name)
    if row is None:
        return "is in no row"
    if include.name not in tree:
        beside = (pathlib.PurePosixPath(name).parent / include.name).as_posix()
        if beside in tree:
            return f'"{include.name}" is to be named from src/'
        if QT.match(include.name):
            core = name.startswith("files/") and include.name in CORE_FOR_FILES
            return None if core or may_use_qt(name) else f"<{include.name}> stays in the toolkit"
        fits = re.match(ROWS[row].system, include.name)
        return None if fits else f"<{include.name}> is not for this folder"
    if not include.name.endswith(".h"):
        return f'"{include.name}" is no header'
    if PRIVATE_HEADER.match(include.name) and not may_use_qt(name):
        return f'"{include.name}" is private to the toolkit'
    if row_of(include.name) > row or not re.match(ROWS[row].knows, include.name):
        return f'"{include.name}" is above this file, or not for it'
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
    found = []
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
