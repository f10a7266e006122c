#!/usr/bin/env python3
"""Every link leads somewhere: in the pages of the tree, to a file and a heading of it; in the reference built from them,
to a page and an anchor of it. Every page of docs/ is part of that reference, and every picture of one of the pages. What
the README says about speed is what docs/performance.md says.

usage: pages.py ROOT [HTML]; without the folder of the reference the pages alone are looked at"""
import re
import sys
from html.parser import HTMLParser
from pathlib import Path
from urllib.parse import unquote

# Doxygen names this section at the head of a class that has nothing but private ones in it.
WITHOUT_SECTION = "#nested-classes"
ELSEWHERE = re.compile(r"^[a-z]+:", re.IGNORECASE)


def pages_of(root):
    return sorted([*root.glob("*.md"), *(root / "docs").rglob("*.md")])


def prose(page):
    """The text without its samples, in which brackets are no links."""
    text = re.sub(r"^```.*?^```$", "", page.read_text(encoding="utf-8"), flags=re.MULTILINE | re.DOTALL)
    text = re.sub(r"^    .*$", "", text, flags=re.MULTILINE)
    return re.sub(r"`[^`]*`", "", text)


def headings_of(page):
    """Headings as a link names them: small letters, dashes for spaces, no punctuation."""
    headings = re.findall(r"^#+ +(.*)$", page.read_text(encoding="utf-8"), flags=re.MULTILINE)
    return {re.sub(r"[^\w\- ]", "", heading.strip().lower()).replace(" ", "-") for heading in headings}


def broken_in_pages(root):
    for page in pages_of(root):
        for link in re.findall(r"\]\(([^)\s]+)\)", prose(page)):
            if ELSEWHERE.match(link):
                continue
            file, _, heading = link.partition("#")
            target = (page.parent / file).resolve() if file else page
            if not target.exists():
                yield f"{page.relative_to(root)}: {link}: there is no such file"
            elif heading and heading not in headings_of(target):
                yield f"{page.relative_to(root)}: {link}: there is no such heading"


class Links(HTMLParser):
    """What a page of the reference links to, and the anchors that it has."""

    def __init__(self, text):
        super().__init__()
        self.links, self.anchors = set(), set()
        self.feed(text)

    def handle_starttag(self, tag, attributes):
        for name, value in attributes:
            if name in ("href", "src", "data") and value:
                self.links.add(value)
            elif name == "id" or (name == "name" and tag == "a"):
                self.anchors.add(value)


def broken_in_reference(html):
    texts = {file.name: file.read_text(encoding="utf-8") for file in html.glob("*.html")}
    read = {name: Links(text) for name, text in texts.items()}
    for name, page in sorted(read.items()):
        for link in re.findall(r"\[\w[^\]<>]*\]\([\w./#-]+\)", texts[name]):
            yield f"{name}: {link}: shown as it is written"
        for link in sorted(page.links):
            if ELSEWHERE.match(link) or link == WITHOUT_SECTION:
                continue
            file, _, anchor = unquote(link).partition("#")
            if file and not (html / file).exists():
                yield f"{name}: {link}: there is no such file"
            elif anchor and (file or name) in read and anchor not in read[file or name].anchors:
                yield f"{name}: {link}: there is no such anchor"


def pictures_not_shown(root):
    shown = "".join(page.read_text(encoding="utf-8") for page in pages_of(root))
    for picture in sorted((root / "docs" / "images").rglob("*.*")):
        if picture.relative_to(root / "docs").as_posix() not in shown:
            yield f"{picture.relative_to(root)}: no page shows it"


def rows_of(page):
    return [[cell.strip() for cell in line.strip("|").split("|")]
            for line in page.read_text(encoding="utf-8").splitlines() if line.startswith("|")]


def other_figures(root):
    """The README's table has for each operation the figures of the shape "star", fresh and repeated."""
    kept = {(row[0], row[1], size): re.search(r"star ([\d.]+)", row[column])
            for row in rows_of(root / "docs" / "performance.md") if len(row) == 6
            for size, column in (("1 000", 2), ("100 000", 3))}
    head = []
    for row in rows_of(root / "README.md"):
        if row[0] == "operation":
            head = row
        elif head and not row[0].startswith("---"):
            for column, figure in list(zip(head, row))[1:]:
                found = kept.get((row[0], *column.split(", ")))
                if figure and (not found or found.group(1) != figure):
                    yield f"README.md: {row[0]}, {column}: {figure} is not the figure of docs/performance.md"


def missing_in_reference(root, html):
    titles = {re.sub(r"\s+", " ", title) for file in html.glob("*.html")
              for title in re.findall(r'<div class="title">(.*?)\s*</div>', file.read_text(encoding="utf-8"), re.DOTALL)}
    for page in pages_of(root / "docs"):
        title = re.search(r"^# +(.*)$", page.read_text(encoding="utf-8"), re.MULTILINE).group(1).strip()
        if title not in titles:
            yield f"{page.relative_to(root)}: not part of the reference"


def main():
    root = Path(sys.argv[1]).resolve()
    wrong = [*broken_in_pages(root), *pictures_not_shown(root), *other_figures(root)]
    if len(sys.argv) > 2:
        html = Path(sys.argv[2])
        wrong += list(broken_in_reference(html)) + list(missing_in_reference(root, html))
    print("\n".join(wrong) if wrong else "the pages hold together")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
