# SPDX-License-Identifier: MIT
"""Serbian text from Latin to Cyrillic."""

import re

LETTERS = dict(zip("abvgdđežzijklmnoprstćufhcčš", "абвгдђежзијклмнопрстћуфхцчш"))
DIGRAPHS = {"lj": "љ", "nj": "њ", "dž": "џ"}

# Beginnings of words in which two letters meet that usually are one; the bar stands between them.
TWO_LETTERS = (
    "in|jekc", "in|jekt", "kon|jekt", "kon|jug", "kon|junk", "tan|jug", "van|jezi",
    "nad|žanr", "nad|živ", "nad|žnj", "nad|žup", "od|žal", "od|živ", "pod|žanr", "pred|živ",
)
BAR = "\N{ZERO WIDTH NON-JOINER}"

_two_letters = [
    (re.compile(rf"\b({before})({after})", re.IGNORECASE), rf"\1{BAR}\2")
    for before, after in (word.split("|") for word in TWO_LETTERS)
]
_units = re.compile("|".join([*DIGRAPHS, *LETTERS]), re.IGNORECASE)


def _cyrillic_unit(match):
    """A letter or digraph; Lj and LJ are both capitals of one letter."""
    latin = match.group()
    small = latin.lower()
    cyrillic = DIGRAPHS.get(small) or LETTERS[small]
    return cyrillic.upper() if latin[0].isupper() else cyrillic


def to_cyrillic(text):
    """The text in Cyrillic; what is no Serbian Latin letter stays."""
    for pattern, parted in _two_letters:
        text = pattern.sub(parted, text)
    return _units.sub(_cyrillic_unit, text).replace(BAR, "")
