#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Tests how the pages of the manual are made: build_manual_test.py TOOLS"""

import pathlib
import sys
import tempfile
import unittest

sys.path.insert(0, sys.argv.pop(1))
from build_manual import CyrillicPage, build  # noqa: E402

TEXT = """
abvgdđežzijklmnoprstćufhcčš ĐEŽ
абвгдђежзијклмнопрстћуфхцчш ЂЕЖ
ljudi Ljudi LJUDI njiva Njiva NJIVA džep Džep DŽEP „Šta?“ – 12 × 3…
људи Људи ЉУДИ њива Њива ЊИВА џеп Џеп ЏЕП „Шта?“ – 12 × 3…
injekcija INJEKCIJA konjunkcija konjugacija konj nadživeti odžaliti odžak Tanjug tanjir
инјекција ИНЈЕКЦИЈА конјункција конјугација коњ надживети оджалити оџак Танјуг тањир
<p class="savet"><a href="slova.htm#lj">Slova</a> &amp; Đ&#382;</p>
<p class="savet"><a href="slova.htm#lj">Слова</a> &amp; Ђ&#382;</p>
<img src="a.png" alt="Žuta reč"><b title="Njiva">nj</b><!DOCTYPE html><!-- da --><hr>da
<img src="a.png" alt="Жута реч"><b title="Њива">њ</b><!DOCTYPE html><!-- da --><hr>да
<samp>Reši</samp> <code>a.qvm</code> taster <kbd>Q</kbd> je
<samp>Reši</samp> <code>a.qvm</code> тастер <kbd>Q</kbd> је
<span translate="no">Lj<br><b title="lj">lj</b></span> lj
<span translate="no">Lj<br><b title="lj">lj</b></span> љ
"""
SOURCE = {
    "pocetak.htm": '<h1>Početak</h1><ol class="sadrzaj"><li><a href="b.htm">b</a></li>'
    '<li><a href="a.htm">a</a></li></ol>',
    "a.htm": "<h1>Aždaja &amp; žaba</h1>",
    "b.htm": '<h1>Bunar</h1><img src="slike/b.png">',
    "okvir.htm": '<html lang="$language">$title<link href="${root}stil.css">$content'
    '$previous $next <a translate="no" href="$other_page">$other_script</a></html>',
    "stil.css": "",
    "slike/b.png": "",
}


class Manual(unittest.TestCase):
    def test_text_for_the_reader_becomes_cyrillic(self):
        lines = TEXT.strip().split("\n")
        for latin, cyrillic in zip(lines[::2], lines[1::2], strict=True):
            self.assertEqual(CyrillicPage().convert(latin), cyrillic)
        with self.assertRaises(ValueError):
            CyrillicPage().convert("<p>da")

    def test_pages_follow_the_contents_in_both_scripts(self):
        with tempfile.TemporaryDirectory() as folder:
            source, result = pathlib.Path(folder, "manual"), pathlib.Path(folder, "uputstvo")
            (source / "slike").mkdir(parents=True)
            for name, text in SOURCE.items():
                (source / name).write_text(text, encoding="utf-8")
            build(source, result)
            latin = (result / "b.htm").read_text(encoding="utf-8")
            self.assertIn('"sr-Latn">Bunar<link href="stil.css"><h1>Bunar</h1><img src="s', latin)
            self.assertIn('ba →</a> <a translate="no" href="cirilica/b.htm">Ћирилица', latin)
            self.assertEqual(
                (result / "cirilica" / "b.htm").read_text(encoding="utf-8"),
                '<html lang="sr-Cyrl">Бунар<link href="../stil.css"><h1>Бунар</h1>'
                '<img src="../slike/b.png"><a rel="prev" href="pocetak.htm">← Почетак</a> '
                '<a rel="next" href="a.htm">Аждаја &amp; жаба →</a> '
                '<a translate="no" href="../b.htm">Latinica</a></html>',
            )
            self.assertNotIn('rel="next"', (result / "a.htm").read_text(encoding="utf-8"))
            self.assertTrue((result / "slike" / "b.png").is_file())
            self.assertFalse((result / "okvir.htm").exists())
            (source / "c.htm").write_text("<h1>C</h1>", encoding="utf-8")
            with self.assertRaises(ValueError):
                build(source, result)


if __name__ == "__main__":
    unittest.main()
