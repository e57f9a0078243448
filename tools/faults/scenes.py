# SPDX-License-Identifier: MIT
"""The works that are disturbed. Each has a scene of its own: its crosswords, settings, journals."""

import collections.abc
import os
import pathlib
import shutil
import struct
import subprocess
from typing import NamedTuple


class ScriptFailure(Exception):
    """The script cannot judge."""


class Scene(NamedTuple):
    program: pathlib.Path
    root: pathlib.Path

    @property
    def samples(self):
        """Made in the build to which the program belongs."""
        return self.program.resolve().parents[2] / "made_samples"

    @property
    def files(self):
        return self.root / "scene"

    def arguments(self, work):
        places = {"place": self.files / work.place, "journals": self.files / "state/journals"}
        return [self.program, *(argument.format(**places) for argument in work.arguments)]

    def run(self, arguments, strace=()):
        try:
            return subprocess.run(
                [*strace, *arguments], capture_output=True, text=True, timeout=30, check=False
            )
        except subprocess.TimeoutExpired as hanging:
            raise ScriptFailure(f"hangs: {hanging.cmd}") from hanging

    def journal(self, commands, place):
        journals = self.files / "state/journals"
        self.run([self.program, "journal", self.files / place / "zima1001.qvm", journals, commands])


def journal_in(scene):
    return next((scene.files / "state/journals").glob("*.journal"))


def three_installments(scene, place="crosswords"):
    folder = scene.files / place
    folder.mkdir(parents=True)
    for number, mode in ((1, 0o640), (2, 0o604), (3, 0o664)):
        path = folder / f"zima100{number}.qvm"
        shutil.copyfile(scene.samples / path.name, path)
        path.chmod(mode)
    # The owner, user 1, group, mask and others, each with rights and a number.
    entries = ((1, 6, -1), (2, 4, 1), (4, 0, -1), (16, 4, -1), (32, 0, -1))
    access = struct.pack("<I", 2) + b"".join(struct.pack("<HHi", *entry) for entry in entries)
    os.setxattr(folder / "zima1003.qvm", "system.posix_acl_access", access)


def left_by_a_kill(scene):
    three_installments(scene)
    for number in (1, 2, 3):
        (scene.files / f"crosswords/zima100{number}.qvt").write_text("a part of a file")


def large_crossword(scene):
    folder = scene.files / "crosswords"
    folder.mkdir(parents=True)
    header = "\r\nNaziv: Proba\r\nDimenzije:X=120 Y=120\r\nOpis:\r\nNastavak broj: 1\r\n"
    cells = "M$0$1$1$00\r\n011$$$$Prvo$Drugo$\r\n" + "A$0$0$0$00\r\n\r\n" * (120 * 120 - 1)
    text = header + "H1: 0\r\nV1: 0\r\nH2: 0\r\nV2: 0\r\n" + cells
    (folder / "velika.qvm").write_text(text, newline="")


def old_settings(scene):
    folder = scene.files / "program"
    folder.mkdir(parents=True)
    scene.run([scene.program, "settings", folder, "Latinica"])
    (folder / "m_kalvon_ini.txt").chmod(0o640)


def no_settings(scene):
    (scene.files / "program").mkdir(parents=True)


def no_journal(scene):
    three_installments(scene)
    (scene.files / "state").mkdir()


def with_journal(commands):
    def prepare(scene):
        three_installments(scene)
        scene.journal(commands, "crosswords")

    return prepare


def torn_journal(scene):
    with_journal("ABC")(scene)
    path = journal_in(scene)
    path.write_bytes(path.read_bytes()[:-5])


def moved_crossword(scene):
    three_installments(scene, "before")
    scene.journal("AB.", "before")
    (scene.files / "before").rename(scene.files / "crosswords")


def copied_crossword(scene):
    three_installments(scene, "before")
    scene.journal("AB.", "before")
    shutil.copytree(scene.files / "before", scene.files / "crosswords")


class Work(NamedTuple):
    name: str
    prepare: collections.abc.Callable
    arguments: tuple
    place: str = "crosswords"

    @property
    def commands(self):
        return self.arguments[-1] if self.arguments[0] == "journal" else None


SAVE = ("save", "{place}/zima1001.qvm", "X")
SETTINGS = ("settings", "{place}", "Cirilica")
JOURNAL = ("journal", "{place}/zima1001.qvm", "{journals}")
WORKS = (
    Work("save of three installments", three_installments, SAVE),
    Work("save where a kill has left files", left_by_a_kill, SAVE),
    Work("save of a large crossword", large_crossword, ("save", "{place}/velika.qvm", "X")),
    Work("settings", old_settings, SETTINGS, "program"),
    Work("settings for the first time", no_settings, SETTINGS, "program"),
    Work("journal, new", no_journal, (*JOURNAL, "ABC<>D.")),
    Work("journal, after an end", with_journal("ABC."), (*JOURNAL, "D<>E.")),
    Work("journal, after a kill", with_journal("ABC<"), (*JOURNAL, "<>DE.")),
    Work("journal, with a torn record", torn_journal, (*JOURNAL, "DE.")),
    Work("journal, written anew", with_journal("AB" + 80 * "+"), (*JOURNAL, "C.")),
    Work("journal of a moved crossword", moved_crossword, (*JOURNAL, "C.")),
    Work("journal of a copied crossword", copied_crossword, (*JOURNAL, "C.")),
)
