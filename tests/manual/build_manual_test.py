#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Tests how the pages of the manual are made and put into Cyrillic.

    build_manual_test.py TOOLS
"""

import pathlib
import sys
import tempfile
import unittest

sys.path.insert(0, sys.argv.pop(1))
from build_manual import CyrillicPage, build  # noqa: E402
from transliteration import to_cyrillic  # noqa: E402

CONTENTS = (
    '<h1>Početak</h1><ol class="sadrzaj"><li><a href="b.htm">b</a></li>'
    '<li><a href="a.htm">a</a></li></ol>'
)
FRAME = (
    '<html lang="$language">$title<link href="${root}stil.css"><main>$content</main>'
    '<nav>$previous $next <a translate="no" href="$other_page">$other_script</a></nav></html>'
)


class Transliteration(unittest.TestCase):
    def test_letters_and_digraphs(self):
        for latin, cyrillic in (
            ("abvgdđežzijklmnoprstćufhcčš", "абвгдђежзијклмнопрстћуфхцчш"),
            ("ABVGDĐEŽZIJKLMNOPRSTĆUFHCČŠ", "АБВГДЂЕЖЗИЈКЛМНОПРСТЋУФХЦЧШ"),
            ("ljudi Ljudi LJUDI", "људи Људи ЉУДИ"),
            ("njiva Njiva NJIVA", "њива Њива ЊИВА"),
            ("džep Džep DŽEP", "џеп Џеп ЏЕП"),
            ("injekcija Injekcije INJEKCIJA", "инјекција Инјекције ИНЈЕКЦИЈА"),
            ("konjunkcija konjugacija konj", "конјункција конјугација коњ"),
            ("nadživeti odžaliti odžak", "надживети оджалити оџак"),
            ("Tanjug tanjir", "Танјуг тањир"),
            ("„Šta?“ – 12 × 3…", "„Шта?“ – 12 × 3…"),
        ):
            with self.subTest(latin):
                self.assertEqual(to_cyrillic(latin), cyrillic)


class Markup(unittest.TestCase):
    def test_only_text_for_the_reader_changes(self):
        for latin, cyrillic in (
            (
                '<p class="savet"><a href="slova.htm#lj">Slova</a> &amp; Đ&#382;</p>',
                '<p class="savet"><a href="slova.htm#lj">Слова</a> &amp; Ђ&#382;</p>',
            ),
            ('<img src="a.png" alt="Žuta reč">', '<img src="a.png" alt="Жута реч">'),
            ('<b title="Njiva">nj</b>', '<b title="Њива">њ</b>'),
            ("taster <kbd>Q</kbd> je", "тастер <kbd>Q</kbd> је"),
            ("<samp>Reši</samp> <code>a.qvm</code>", "<samp>Reši</samp> <code>a.qvm</code>"),
            (
                '<span translate="no">Lj<br><b title="lj">lj</b></span> lj',
                '<span translate="no">Lj<br><b title="lj">lj</b></span> љ',
            ),
            ("<!DOCTYPE html><!-- da --><hr>da", "<!DOCTYPE html><!-- da --><hr>да"),
        ):
            with self.subTest(latin):
                self.assertEqual(CyrillicPage().convert(latin), cyrillic)

    def test_open_element_is_refused(self):
        with self.assertRaises(ValueError):
            CyrillicPage().convert("<p>da")


class Build(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.source = pathlib.Path(folder.name) / "manual"
        self.result = pathlib.Path(folder.name) / "uputstvo"
        for name, text in {
            "pocetak.htm": CONTENTS,
            "a.htm": "<h1>Aždaja &amp; žaba</h1>",
            "b.htm": '<h1>Bunar</h1><img src="slike/b.png" alt="Bunar">',
            "okvir.htm": FRAME,
            "stil.css": "",
            "slike/b.png": "",
        }.items():
            path = self.source / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text, encoding="utf-8")

    def test_pages_follow_the_contents_in_both_scripts(self):
        build(self.source, self.result)
        self.assertEqual(
            (self.result / "b.htm").read_text(encoding="utf-8"),
            '<html lang="sr-Latn">Bunar<link href="stil.css"><main><h1>Bunar</h1>'
            '<img src="slike/b.png" alt="Bunar"></main>'
            '<nav><a rel="prev" href="pocetak.htm">← Početak</a> '
            '<a rel="next" href="a.htm">Aždaja &amp; žaba →</a> '
            '<a translate="no" href="cirilica/b.htm">Ћирилица</a></nav></html>',
        )
        self.assertEqual(
            (self.result / "cirilica" / "b.htm").read_text(encoding="utf-8"),
            '<html lang="sr-Cyrl">Бунар<link href="../stil.css"><main><h1>Бунар</h1>'
            '<img src="../slike/b.png" alt="Бунар"></main>'
            '<nav><a rel="prev" href="pocetak.htm">← Почетак</a> '
            '<a rel="next" href="a.htm">Аждаја &amp; жаба →</a> '
            '<a translate="no" href="../b.htm">Latinica</a></nav></html>',
        )
        self.assertNotIn('rel="next"', (self.result / "a.htm").read_text(encoding="utf-8"))
        self.assertTrue((self.result / "slike" / "b.png").is_file())
        self.assertFalse((self.result / "okvir.htm").exists())

    def test_page_outside_of_the_contents_is_refused(self):
        (self.source / "c.htm").write_text("<h1>C</h1>", encoding="utf-8")
        with self.assertRaises(ValueError):
            build(self.source, self.result)


if __name__ == "__main__":
    unittest.main()
