#!/usr/bin/env python3
"""Changes cntr/ in one place at a time and asks whether a test notices; see docs/robustness.md."""

import argparse
import collections
import fnmatch
import os
import pathlib
import queue
import random
import sys
import threading
import time

import survivors
from mutants import Source
from workplace import Workplace

ROOT = pathlib.Path(__file__).resolve().parents[2]
KNOWN = ROOT / "tests/mutation/survivors.md"


def files():
    """Every source of cntr/ and every header that is not public."""
    inner = (ROOT / "cmake/inner_headers.txt").read_text(encoding="utf-8").splitlines()
    sources = [str(path.relative_to(ROOT)) for path in (ROOT / "cntr").rglob("*.cpp")]
    return sorted(sources + [name for name in inner if name.startswith("cntr/")])


def all_mutants():
    return [m for name in files() for m in Source(name, (ROOT / name).read_text(encoding="utf-8")).mutants()]


class Run:
    def __init__(self, mutants, known, seconds, workers, rounds):
        self.waiting = queue.SimpleQueue()
        for mutant in mutants:
            self.waiting.put(mutant)
        self.known = known
        self.seconds = seconds
        self.end = None
        self.lock = threading.Lock()
        self.verdicts = []
        self.last_killer = {}
        self.folder = ROOT / "build/mutation"
        self.folder.mkdir(parents=True, exist_ok=True)
        jobs = max(1, (os.cpu_count() or 1) // workers)
        self.places = [Workplace(ROOT, self.folder / str(i + 1), jobs, rounds) for i in range(workers)]

    def start(self):
        threads = []
        with open(self.folder / "verdicts.txt", "w", encoding="utf-8") as self.log:
            for place in self.places:  # one after the other: the second one finds what the first has compiled
                place.prepare()
                self.end = self.end or time.monotonic() + self.seconds
                threads.append(threading.Thread(target=self.work, args=(place,)))
                threads[-1].start()
            for thread in threads:
                thread.join()

    def work(self, place):
        while time.monotonic() < self.end:
            try:
                mutant = self.waiting.get_nowait()
            except queue.Empty:
                return
            if survivors.key(mutant) in self.known:
                verdict = "known"
            else:
                verdict = place.verdict(mutant, self.last_killer.get(mutant.path))
            with self.lock:
                self.note(mutant, verdict)

    def note(self, mutant, verdict):
        self.verdicts.append((mutant, verdict))
        self.log.write(f"{verdict}\t{mutant}\n")
        self.log.flush()
        if verdict == "survived":
            print(f"survived: {mutant}", flush=True)
        if "/" in verdict:
            self.last_killer[mutant.path] = verdict


def share(part, whole):
    return f"{100 * part / whole:.1f} %" if whole else "-"


def report(verdicts):
    """The table by file; returns the number of survivors that no row explains."""
    rows = collections.defaultdict(collections.Counter)
    for mutant, verdict in verdicts:
        kind = "killed" if "/" in verdict else verdict
        rows[mutant.path][kind] += 1
        rows["all"][kind] += 1
    print("\nkilled, known survivors, new ones; killed of all and of those that are not known; not built")
    for name in sorted(rows, key=lambda name: (name == "all", name)):
        killed, known, new, broken = (rows[name][kind] for kind in ("killed", "known", "survived", "not built"))
        shares = share(killed, killed + known + new), share(killed, killed + new)
        print(f"{name:<40} {killed:>5} {known:>5} {new:>5} {shares[0]:>9} {shares[1]:>9} {broken:>5}")
    return rows["all"]["survived"]


def is_wanted(mutant, globs):
    names = (mutant.path, f"{mutant.path}:{mutant.line}")
    return any(fnmatch.fnmatch(name, glob) for name in names for glob in globs)


def main():
    parser = argparse.ArgumentParser(prog="./dev mutate", description=__doc__)
    parser.add_argument("--seconds", type=float, default=1500, help="to spend on mutants, from the first worker's start on")
    parser.add_argument(
        "--file", action="append", metavar="GLOB", help="only mutants of these files, or file:line; may be repeated"
    )
    parser.add_argument("--seed", type=int, default=1, help="of the order in which mutants are taken")
    parser.add_argument("--workers", type=int, default=os.cpu_count() or 1, help="each has a copy of the tree")
    parser.add_argument("--rounds", default="0.1", help="the share of the random shapes that the tests try")
    parser.add_argument("--known", action="store_true", help="try the known survivors again, and no others")
    parser.add_argument("--list", action="store_true", help="list the mutants and try none")
    options = parser.parse_args()

    everything = all_mutants()
    known = survivors.read(KNOWN)
    mutants = [m for m in everything if is_wanted(m, options.file or ["*"])]
    if options.known:
        mutants = [m for m in mutants if survivors.key(m) in known]
    if options.list:
        print(*mutants, f"{len(mutants)} mutants", sep="\n")
        return 0

    random.Random(options.seed).shuffle(mutants)
    run = Run(mutants, set() if options.known else known, options.seconds, options.workers, options.rounds)
    run.start()
    new = report(run.verdicts)
    print(f"{len(run.verdicts)} of {len(mutants)} mutants tried")
    gone = known - {survivors.key(m) for m in everything}
    for file, line, change in sorted(gone):
        print(f"no longer a mutant, though {KNOWN.name} has it: {file}: {change}: {line}")
    if not options.known:
        return 1 if new or gone else 0
    killed = [mutant for mutant, verdict in run.verdicts if "/" in verdict]
    for mutant in killed:
        print(f"killed, though {KNOWN.name} has it: {mutant}")
    return 1 if killed or gone else 0


if __name__ == "__main__":
    sys.exit(main())
