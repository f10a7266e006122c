#!/usr/bin/env python3
"""gcov as gcovr calls it, but from gcov's JSON.

GCC 12's own text does not say that a branch is an exception's when it was never executed. Of an inline function every
object that includes it has a copy, most of them never executed, so gcovr would count those branches as missed. Here
they are left out, and what is left has the same number in every copy and in every instance of a template. Two threads that
count at once lose counts, and what gcov reckons from them may come out below zero: it counts as none.
"""
import json
import os
import subprocess
import sys

GCOV = os.environ.get("GCOV", "gcov")


def numbered_branches(entries, starts):
    """(number, branch) of all that are no exception's; functions that begin at different places stay apart."""
    for entry in entries:
        line, column = starts.get(entry.get("function_name"), (0, 0))
        decisions = [branch for branch in entry["branches"] if not branch["throw"]]
        for index, branch in enumerate(decisions):
            yield (line * 1000 + column) * 1000 + index, branch


def text_of(file, source):
    starts = {f["name"]: (f["start_line"], f["start_column"]) for f in file["functions"]}
    functions, lines = {}, {}
    for function in file["functions"]:
        functions.setdefault(function["start_line"], []).append(function)
    for entry in file["lines"]:
        lines.setdefault(entry["line_number"], []).append(entry)
    yield f"        -:    0:Source:{source}"
    with open(source, encoding="utf-8") as code:
        for number, content in enumerate(code, 1):
            for function in functions.get(number, []):
                count = function["execution_count"]
                yield f"function {function['demangled_name']} called {count} returned 100% blocks executed 100%"
            entries = lines.get(number, [])
            count = sum(max(entry["count"], 0) for entry in entries)
            shown = (count or "#####") if entries else "-"
            yield f"{shown:>9}:{number:5}:" + content.rstrip("\n")
            for place, branch in numbered_branches(entries, starts):
                mark = " (fallthrough)" if branch["fallthrough"] else ""
                yield f"branch {place} taken {max(branch['count'], 0)}{mark}"


def main(arguments):
    if not any(argument.endswith((".gcda", ".gcno")) for argument in arguments):
        os.execvp(GCOV, [GCOV, *arguments])
    output = subprocess.run([GCOV, *arguments, "--json-format", "--stdout"], check=True, stdout=subprocess.PIPE).stdout
    for document in output.decode().splitlines():
        data = json.loads(document)
        folder = data["current_working_directory"]
        for file in data["files"]:
            source = os.path.normpath(os.path.join(folder, file["file"]))
            if source.startswith("/usr/") or "/tests/" in source or not file["lines"]:
                continue
            name = source.replace("/", "#") + ".gcov"
            with open(name, "w", encoding="utf-8") as text:
                text.writelines(line + "\n" for line in text_of(file, source))
            print(f"File '{source}'\nCreating '{name}'\n")


main(sys.argv[1:])
