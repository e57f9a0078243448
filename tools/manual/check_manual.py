#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks the built manual.

    check_manual.py FOLDER SAMPLES

Every link, picture and fragment leads to something inside the manual, every page is listed in the
contents of its script and has its twin in the other, every picture is used and has a text, no Latin
letter is left in Cyrillic text, and the crossword that the manual prints is the sample of that name.
Prints file:line for each fault and fails if there is one.
"""

import html
import pathlib
import re
import sys
from html.parser import HTMLParser
from typing import NamedTuple

CONTENTS = "pocetak.htm"
CYRILLIC_FOLDER = "cirilica"
KEEPS_SCRIPT = {"code", "kbd", "samp", "style"}
EXAMPLE = re.compile(r'<pre id="proba"><code>(.*?)</code>', re.DOTALL)
VOID = {"br", "col", "hr", "img", "link", "meta", "wbr"}
LATIN_LETTER = re.compile(r"[A-Za-zĐđŽžĆćČčŠš]")


class Link(NamedTuple):
    line: int
    address: str


class Page(HTMLParser):
    """What the checks need of a page."""

    def __init__(self, path):
        super().__init__()
        self.path = path
        self.language = None
        self.fragments = set()
        self.links = []
        self.faults = []
        self._keeps_script = []  # Of each open element.
        self.feed(path.read_text(encoding="utf-8"))
        self.close()

    def _line(self):
        return self.getpos()[0]

    def _fault(self, text):
        self.faults.append((self._line(), text))

    def handle_starttag(self, tag, attrs):
        values = dict(attrs)
        if tag == "html":
            self.language = values.get("lang")
        if "id" in values:
            if values["id"] in self.fragments:
                self._fault(f"a second #{values['id']}")
            self.fragments.add(values["id"])
        for name in ("href", "src"):
            if name in values:
                self.links.append(Link(self._line(), values[name]))
        if tag == "img" and not (values.get("alt") or "").strip():
            self._fault(f"{values.get('src')} has no text")

        outer = bool(self._keeps_script) and self._keeps_script[-1]
        keeps = outer or tag in KEEPS_SCRIPT or values.get("translate") == "no"
        if not keeps:
            for name in ("alt", "title"):
                self._expect_script(values.get(name) or "")
        if tag not in VOID:
            self._keeps_script.append(keeps)

    def handle_endtag(self, tag):
        if self._keeps_script:
            self._keeps_script.pop()

    def handle_data(self, data):
        if not (self._keeps_script and self._keeps_script[-1]):
            self._expect_script(data)

    def _expect_script(self, text):
        if self.language == "sr-Cyrl" and LATIN_LETTER.search(text):
            self._fault(f"Latin letters in {' '.join(text.split())!r}")


def target_of(page, link):
    """The file that a link leads to, and its fragment; None for what is no file of the manual."""
    address, _, fragment = link.address.partition("#")
    if ":" in address or address.startswith("/"):
        return None, fragment
    return (page.path.parent / address).resolve() if address else page.path, fragment


def targets_of(page):
    return {target_of(page, link)[0] for link in page.links}


def link_faults(page, pages, folder):
    for link in page.links:
        target, fragment = target_of(page, link)
        if target is None or not target.is_relative_to(folder):
            yield link.line, f"{link.address} leads out of the manual"
        elif not target.is_file():
            yield link.line, f"{link.address} is not there"
        elif fragment and (target not in pages or fragment not in pages[target].fragments):
            yield link.line, f"{link.address} leads to no such fragment"


def listing_faults(page, pages):
    """The contents of a page's script list it, and it leads to its twin in the other script."""
    contents = pages.get(page.path.parent / CONTENTS)
    if contents is None or page.path not in targets_of(contents):
        yield 1, "is not in the contents"
    cyrillic = page.path.parent.name == CYRILLIC_FOLDER
    folder = page.path.parent
    other = folder.parent if cyrillic else folder / CYRILLIC_FOLDER
    if other / page.path.name not in targets_of(page):
        yield 1, "does not lead to the other script"
    if page.language != ("sr-Cyrl" if cyrillic else "sr-Latn"):
        yield 1, f"has the language {page.language}"


def example_faults(folder, sample):
    """The pages on the file format print the sample, line by line."""
    lines = sample.read_bytes().decode("ascii").splitlines()
    for page in ("datoteka.htm", f"{CYRILLIC_FOLDER}/datoteka.htm"):
        printed = EXAMPLE.search((folder / page).read_text(encoding="utf-8"))
        if printed is None or html.unescape(printed.group(1)).splitlines() != lines:
            yield f"{page}:1: does not print the sample {sample.name}"


def check(folder, samples):
    """All faults, as lines of the form file:line: text."""
    folder = folder.resolve()
    pages = {path: Page(path) for path in sorted(folder.rglob("*.htm"))}
    if not pages:
        return [f"{folder}: no pages here"]
    found = []
    for path, page in pages.items():
        faults = [*page.faults, *link_faults(page, pages, folder), *listing_faults(page, pages)]
        name = path.relative_to(folder).as_posix()
        found += [f"{name}:{line}: {text}" for line, text in sorted(faults)]
    used = set().union(*map(targets_of, pages.values()))
    unused = [path for path in sorted(folder.rglob("*.png")) if path not in used]
    found += [f"{path.relative_to(folder)}:1: no page shows it" for path in unused]
    return [*found, *example_faults(folder, samples / "proba.qvm")]


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    faults = check(*map(pathlib.Path, sys.argv[1:]))
    for line in faults:
        print(line)
    if faults:
        sys.exit(f"{len(faults)} faults in the manual")
    print("The manual is whole.")


if __name__ == "__main__":
    main()
