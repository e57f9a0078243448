#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Shows the check of the manual manuals that are wrong in one place."""

import pathlib
import tempfile
import unittest

from manual_check import check

PAGE = '<html lang="{language}"><body>\n{body}\n<a translate="no" href="{twin}">x</a></body></html>'
CONTENTS = '<a href="pocetak.htm">{0}</a><a href="slova.htm#lj">{0}</a><img src="{1}" alt="{0}">'
LETTERS = '<p id="lj">{0} <kbd>Lj</kbd> <b translate="no">Alt<i>Lj</i></b></p>'


def good_manual():
    """Two pages in both scripts, and a picture, by name."""
    bodies = {"pocetak.htm": CONTENTS, "slova.htm": LETTERS}
    manual = {"slike/a.png": ""}
    for name, body in bodies.items():
        manual[name] = PAGE.format(
            language="sr-Latn", body=body.format("slovo", "slike/a.png"), twin=f"cirilica/{name}"
        )
        manual[f"cirilica/{name}"] = PAGE.format(
            language="sr-Cyrl", body=body.format("слово", "../slike/a.png"), twin=f"../{name}"
        )
    return manual


def faults_of(manual):
    with tempfile.TemporaryDirectory() as folder:
        for name, text in manual.items():
            path = pathlib.Path(folder) / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text, encoding="utf-8")
        return check(pathlib.Path(folder))


class ManualCheck(unittest.TestCase):
    def test_good_manual_passes(self):
        self.assertEqual(faults_of(good_manual()), [])

    def test_a_wrong_place_is_found_at_its_line(self):
        for name, old, new, fault in (
            ("slova.htm", "<p", '<a href="nema.htm">a</a><p', "nema.htm is not there"),
            ("slova.htm", "<p", '<a href="#nema">a</a><p', "no such fragment"),
            ("slova.htm", "<p", '<a href="https://example.org/">a</a><p', "out of the manual"),
            ("slova.htm", "<p", '<a href="../../tajna.htm">a</a><p', "out of the manual"),
            ("slova.htm", "<p", '<b id="lj">a</b><p', "a second #lj"),
            ("pocetak.htm", "slike/a.png", "slike/b.png", "slike/b.png is not there"),
            ("pocetak.htm", 'alt="slovo"', 'alt=" "', "has no text"),
            ("cirilica/slova.htm", "слово", "slovо", "Latin letters in 'slovо'"),
            ("cirilica/slova.htm", "<kbd>Lj</kbd>", "Č", "Latin letters in 'слово Č'"),
            ("cirilica/pocetak.htm", 'alt="слово"', 'alt="slovo"', "Latin letters in 'slovo'"),
        ):
            with self.subTest(file=name, change=new):
                manual = good_manual()
                self.assertIn(old, manual[name])
                manual[name] = manual[name].replace(old, new, 1)
                faults = faults_of(manual)
                self.assertEqual(len(faults), 1, faults)
                self.assertTrue(faults[0].startswith(f"{name}:2: "), faults)
                self.assertIn(fault, faults[0])

    def test_page_outside_of_the_contents_is_found(self):
        manual = good_manual()
        manual["pocetak.htm"] = manual["pocetak.htm"].replace("slova.htm#lj", "pocetak.htm")
        self.assertEqual(faults_of(manual), ["slova.htm:1: is not in the contents"])

    def test_page_without_a_way_to_the_other_script_is_found(self):
        manual = good_manual()
        manual["slova.htm"] = manual["slova.htm"].replace("cirilica/slova.htm", "pocetak.htm")
        self.assertEqual(faults_of(manual), ["slova.htm:1: does not lead to the other script"])

    def test_wrong_language_is_found(self):
        manual = good_manual()
        manual["slova.htm"] = manual["slova.htm"].replace("sr-Latn", "sr")
        self.assertEqual(faults_of(manual), ["slova.htm:1: has the language sr"])

    def test_picture_on_no_page_is_found(self):
        self.assertEqual(
            faults_of({**good_manual(), "slike/b.png": ""}), ["slike/b.png:1: no page shows it"]
        )

    def test_empty_folder_does_not_pass(self):
        self.assertEqual(len(faults_of({})), 1)


if __name__ == "__main__":
    unittest.main()
