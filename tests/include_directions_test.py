#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Shows the check of include directions trees that are wrong in one place."""

import pathlib
import tempfile
import unittest

from include_directions import check

GOOD_TREE = {
    "shell/toolkit/form.h": ["#pragma once", "#include <string>", "class QWidget;"],
    "shell/toolkit/text_p.h": ["#include <QString>"],
    "shell/toolkit/form.cpp": [
        '#include "shell/toolkit/form.h"',
        "#include <QtWidgets/QLabel>",
        '#include "shell/toolkit/text_p.h"',
    ],
    "shell/forms/frm_glavni.h": ['#include "shell/toolkit/form.h"'],
    "shell/toolkit/run_time_error.h": ["#include <stdexcept>"],
    "document/crossword_state.h": [
        "#include <vector>",
        '#include "shell/toolkit/run_time_error.h"',
    ],
    "document/crossword_state.cpp": ['#include "document/crossword_state.h"'],
    "letters/letter_conversion.cpp": [
        '#include "document/crossword_state.h"',
        '#include "shell/forms/frm_glavni.h"',
    ],
    "display/grid_view.h": ['#include "document/crossword_state.h"'],
    "solving/word_editor.cpp": ['#include "display/grid_view.h"', "#include <queue>"],
    "shell/startup.h": [],
    "shell/startup.cpp": ['#include "shell/startup.h"', '#include "display/grid_view.h"'],
    "shell/main.cpp": ['#include "shell/startup.h"'],
}


def breaches_of(changes):
    with tempfile.TemporaryDirectory() as folder:
        root = pathlib.Path(folder)
        for name, lines in {**GOOD_TREE, **changes}.items():
            path = root / "src" / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text("\n".join(lines) + "\n", encoding="utf-8")
        return check(root)


class IncludeDirections(unittest.TestCase):
    def test_good_tree_passes(self):
        self.assertEqual(breaches_of({}), [])

    def test_wrong_includes_are_found_at_their_line(self):
        for name, include, text in (
            ("shell/toolkit/form.cpp", '"shell/forms/frm_glavni.h"', "above floor 0"),
            ("shell/forms/frm_glavni.h", '"display/grid_view.h"', "above floor 1"),
            ("letters/letter_conversion.cpp", '"display/grid_view.h"', "above floor 2"),
            ("display/grid_view.h", '"shell/startup.h"', "above floor 3"),
            ("document/crossword_state.cpp", '"shell/toolkit/form.h"', "more than the state may know"),
            ("display/grid_view.h", "<QString>", "is Qt's"),
            ("display/grid_view.h", "<QtGui/QImage>", "is Qt's"),
            ("shell/startup.cpp", "<qapplication.h>", "is Qt's"),
            ("shell/main.cpp", "<QApplication>", "is Qt's"),
            ("shell/toolkit/form.h", "<QWidget>", "is Qt's"),
            ("shell/toolkit/form.h", '"shell/toolkit/text_p.h"', "private to the toolkit"),
            ("shell/startup.cpp", '"shell/toolkit/text_p.h"', "private to the toolkit"),
            ("shell/startup.cpp", '"startup.h"', "named from src/"),
            ("shell/main.cpp", '"shell/startup.cpp"', "no header"),
        ):
            with self.subTest(file=name, include=include):
                found = breaches_of({name: ["// SPDX", f"  #  include {include}  // why"]})
                self.assertEqual(len(found), 1, found)
                self.assertTrue(found[0].startswith(f"src/{name}:2: "), found)
                self.assertIn(text, found[0])

    def test_circle_of_headers_is_found_once(self):
        found = breaches_of({
            "display/a.h": ['#include "solving/b.h"'],
            "solving/b.h": ["", '#include "multimedia/c.h"'],
            "multimedia/c.h": ['#include "display/a.h"'],
        })
        self.assertEqual(found, [
            "src/multimedia/c.h:1: circle of headers: "
            "display/a.h -> solving/b.h -> multimedia/c.h -> display/a.h"
        ])

    def test_header_that_includes_itself_is_a_circle(self):
        found = breaches_of({"shell/startup.h": ['#include "shell/startup.h"']})
        self.assertEqual(len(found), 1, found)
        self.assertIn("circle of headers", found[0])

    def test_file_without_a_floor_is_found(self):
        self.assertEqual(breaches_of({"odds/end.cpp": []}), ["src/odds/end.cpp:1: is on no floor"])

    def test_empty_tree_does_not_pass(self):
        with tempfile.TemporaryDirectory() as folder:
            self.assertEqual(len(check(pathlib.Path(folder))), 1)


if __name__ == "__main__":
    unittest.main()
