#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Makes the user manual, in both scripts.

    build_manual.py SOURCE RESULT

SOURCE holds the Latin pages without their frame, the frame, the stylesheet and the pictures.
RESULT gets the Latin pages, and below cirilica/ the same pages in Cyrillic. The order of the pages
is that of the contents. Text in code, kbd and samp, and in elements marked translate="no", is what
stands on the screen, on a key or in a file: it keeps its script.
"""

import html
import pathlib
import re
import shutil
import string
import sys
from html.parser import HTMLParser

from transliteration import to_cyrillic

CONTENTS = "pocetak.htm"
FRAME = "okvir.htm"
CYRILLIC_FOLDER = "cirilica"

KEEPS_SCRIPT = {"code", "kbd", "samp", "style"}
SHOWN_ATTRIBUTES = re.compile(r'\b(alt|title)="([^"]*)"')
# Elements that have no end tag.
VOID = {"br", "col", "hr", "img", "link", "meta", "wbr"}


class CyrillicPage(HTMLParser):
    """Copies a page, with its text in Cyrillic."""

    def __init__(self):
        super().__init__(convert_charrefs=False)
        self.copied = []
        self._open = []  # Of each open element, whether what is in it keeps its script.

    def convert(self, page):
        self.feed(page)
        self.close()
        if self._open:
            raise ValueError(f"{len(self._open)} elements are not closed")
        return "".join(self.copied)

    def _keeps_script(self):
        return bool(self._open) and self._open[-1]

    def handle_starttag(self, tag, attrs):
        keeps = (
            self._keeps_script() or tag in KEEPS_SCRIPT or dict(attrs).get("translate") == "no"
        )
        text = self.get_starttag_text()
        if not keeps:
            text = SHOWN_ATTRIBUTES.sub(
                lambda match: f'{match.group(1)}="{to_cyrillic(match.group(2))}"', text
            )
        self.copied.append(text)
        if tag not in VOID:
            self._open.append(keeps)

    def handle_endtag(self, tag):
        self._open.pop()
        self.copied.append(f"</{tag}>")

    def handle_data(self, data):
        self.copied.append(data if self._keeps_script() else to_cyrillic(data))

    def handle_entityref(self, name):
        self.copied.append(f"&{name};")

    def handle_charref(self, name):
        self.copied.append(f"&#{name};")

    def handle_comment(self, data):
        self.copied.append(f"<!--{data}-->")

    def handle_decl(self, decl):
        self.copied.append(f"<!{decl}>")


def heading(page):
    """The text of a page's heading."""
    marked_up = re.search(r"<h1>(.*?)</h1>", page, re.DOTALL).group(1)
    return html.unescape(re.sub(r"<[^>]+>", "", marked_up))


def page_order(contents):
    """The names of the pages: the contents, and then what they list."""
    listed = re.search(r'<ol class="sadrzaj">(.*?)</ol>', contents, re.DOTALL).group(1)
    return [CONTENTS, *re.findall(r'href="([^"#]+)"', listed)]


def neighbour_link(relation, name, pages):
    """A link of the navigation, or nothing at an end of the manual."""
    if name is None:
        return ""
    label = html.escape(heading(pages[name]))
    arrows = {"prev": f"← {label}", "next": f"{label} →"}
    return f'<a rel="{relation}" href="{name}">{arrows[relation]}</a>'


def framed_page(frame, name, pages, cyrillic):
    """The whole page, in one script."""
    order = list(pages)
    place = order.index(name)
    root = "../" if cyrillic else ""
    content = pages[name].replace('src="slike/', f'src="{root}slike/')
    page = string.Template(frame).substitute(
        language="sr-Cyrl" if cyrillic else "sr-Latn",
        title=html.escape(heading(content)),
        root=root,
        content=content.strip(),
        previous=neighbour_link("prev", order[place - 1] if place else None, pages),
        next=neighbour_link("next", order[place + 1] if name != order[-1] else None, pages),
        other_page=f"../{name}" if cyrillic else f"{CYRILLIC_FOLDER}/{name}",
        other_language="sr-Latn" if cyrillic else "sr-Cyrl",
        other_script="Latinica" if cyrillic else "Ћирилица",
    )
    return CyrillicPage().convert(page) if cyrillic else page


def read_pages(source):
    """The pages by name, in the order of the contents."""
    found = {path.name: path for path in source.glob("*.htm") if path.name != FRAME}
    order = page_order(found[CONTENTS].read_text(encoding="utf-8"))
    if sorted(order) != sorted(found):
        raise ValueError(f"the contents list {sorted(order)}, the folder holds {sorted(found)}")
    return {name: found[name].read_text(encoding="utf-8") for name in order}


def build(source, result):
    """Makes the manual's folder."""
    frame = (source / FRAME).read_text(encoding="utf-8")
    pages = read_pages(source)
    (result / CYRILLIC_FOLDER).mkdir(parents=True, exist_ok=True)
    for name in pages:
        for cyrillic in (False, True):
            folder = result / CYRILLIC_FOLDER if cyrillic else result
            page = framed_page(frame, name, pages, cyrillic)
            (folder / name).write_text(page, encoding="utf-8")
    shutil.copy(source / "stil.css", result)
    (result / "slike").mkdir(exist_ok=True)
    for picture in source.glob("slike/*.png"):
        shutil.copy(picture, result / "slike")


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    build(pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2]))


if __name__ == "__main__":
    main()
