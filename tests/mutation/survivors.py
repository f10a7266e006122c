"""The known survivors: rows of the tables in survivors.md, each below the name of its file."""

import re

CELLS = re.compile(r"(?<!\\)\|")


def read(path):
    """The set of (file, line of code, change)."""
    known, file = set(), None
    for line in path.read_text(encoding="utf-8").splitlines():
        if line.startswith("## "):
            file = line[3:].strip().strip("`")
        elif line.startswith("| `"):
            code, changes = (cell.strip().replace(r"\|", "|") for cell in CELLS.split(line)[1:3])
            known |= {(file, code.strip("`"), change.strip()) for change in changes.split(";")}
    return known


def key(mutant):
    return (mutant.path, mutant.source, mutant.change)
