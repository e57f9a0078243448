#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Compares the crossword that the manual prints with the sample of the same name.

    example_test.py MANUAL SAMPLES
"""

import html
import pathlib
import re
import sys
import unittest

MANUAL, SAMPLES = (pathlib.Path(sys.argv.pop(1)) for _ in range(2))


class Example(unittest.TestCase):
    def test_both_scripts_print_the_sample(self):
        sample = (SAMPLES / "proba.qvm").read_bytes().decode("ascii").splitlines()
        for name in ("datoteka.htm", "cirilica/datoteka.htm"):
            with self.subTest(name):
                page = (MANUAL / name).read_text(encoding="utf-8")
                printed = re.search(r'<pre id="proba"><code>(.*?)</code>', page, re.DOTALL).group(1)
                self.assertEqual(html.unescape(printed).splitlines(), sample)


if __name__ == "__main__":
    unittest.main()
