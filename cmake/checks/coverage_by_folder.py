#!/usr/bin/env python3
"""usage: coverage_by_folder.py SUMMARY.json   (of gcovr --json-summary): lines and branches of each top folder."""
import json
import sys

KINDS = ("line", "branch")
folders = {}
with open(sys.argv[1], encoding="utf-8") as summary:
    for file in json.load(summary)["files"]:
        sums = folders.setdefault(file["filename"].split("/")[0], {kind: [0, 0] for kind in KINDS})
        for kind in KINDS:
            sums[kind][0] += file[kind + "_covered"]
            sums[kind][1] += file[kind + "_total"]
for folder, sums in sorted(folders.items()):
    shares = (f"{kind:>8} {done:5} of {all:5} {100 * done / max(all, 1):6.2f} %" for kind, (done, all) in sums.items())
    print(f"{folder:10}", *shares)
