#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Tests how pages of the manual become Cyrillic: build_manual_test.py TOOLS"""

import sys
import unittest

sys.path.insert(0, sys.argv.pop(1))
from build_manual import CyrillicPage  # noqa: E402

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

class Manual(unittest.TestCase):
    def test_text_for_the_reader_becomes_cyrillic(self):
        lines = TEXT.strip().split("\n")
        for latin, cyrillic in zip(lines[::2], lines[1::2], strict=True):
            self.assertEqual(CyrillicPage().convert(latin), cyrillic)
        with self.assertRaises(ValueError):
            CyrillicPage().convert("<p>da")


if __name__ == "__main__":
    unittest.main()
