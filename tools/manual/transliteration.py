# SPDX-License-Identifier: MIT
"""Serbian text from Latin to Cyrillic."""

import re

LETTERS = dict(zip("abvgdđežzijklmnoprstćufhcčš", "абвгдђежзијклмнопрстћуфхцчш"))
DIGRAPHS = {"lj": "љ", "nj": "њ", "dž": "џ"}

# Beginnings of words in which two letters meet that usually are one; the bar stands between them.
TWO_LETTERS = (
    "in|jekc", "in|jekt", "kon|jug", "kon|junk", "kon|jekt", "tan|jug", "van|jezi", "jedan|jedin",
    "nad|živ", "nad|žnj", "nad|žup", "nad|žanr", "od|živ", "od|žal", "od|žden", "pod|žanr",
    "pod|žup", "pred|živ", "sred|živ",
)  # fmt: skip
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
