"""A copy of the tree in which mutants are built and tested; each worker has its own."""

import os
import shutil
import signal
import subprocess
import time

# The programs that ask cntr/ everything, and their arguments.
PROGRAMS = {
    "cntr/cntr_test": [],
    "cntr/region_test": [],
    "cntr/repair_test": [],
    "cntr/cntr_oracle_test": [],
    "cntr/search/search_test": [],
    "ch_core/ch_core_test": [],
    "memory/memory_test": [],
    "reference/reference_test": [],
    "bits/bits": ["--part", "0/20"],
}
# Counts the instructions of fixed works: a search that finds the same by looking at more is found out here.
WORKS = "instructions/instructions"
# An index out of range ends the program instead of reading what happens to be there.
OPTIONS = [
    "-DCMAKE_CXX_COMPILER=g++",
    "-DCMAKE_BUILD_TYPE=Release",
    "-DCMAKE_CXX_FLAGS_RELEASE=-O1 -D_GLIBCXX_ASSERTIONS",
    "-DBUILD_SHARED_LIBS=OFF",
    "-DGKCNTR_EXAMPLES=OFF",
    "-DGKCNTR_CAIRO=OFF",
    "-DGKCNTR_PEERS=OFF",
    "-DGKCNTR_WERROR=OFF",
    # A program is run as a test and not, before that, as part of its building.
    "-DCMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE=PRE_TEST",
]
MEMORY_KIB = 4 * 1024 * 1024
PATIENCE = 10  # times the usual


class NotBuilt(Exception):
    pass


def files_below(folder):
    for place, folders, names in os.walk(folder):
        if place == str(folder):
            folders[:] = [name for name in folders if name not in ("build", ".git")]
        for name in names:
            yield os.path.relpath(os.path.join(place, name), folder)


class Workplace:
    def __init__(self, root, folder, jobs, rounds):
        self.root = root
        self.tree = folder / "tree"
        self.build_folder = folder / "build"
        self.jobs = jobs
        self.usual = {}
        # Unchanged sources are compiled again after each mutant; a cache, where there is one, remembers them.
        self.environment = os.environ | {
            "CCACHE_DIR": str(folder.parent / "ccache"),
            "CCACHE_BASEDIR": str(folder),
            "GKCNTR_ORACLE_ROUNDS": rounds,
            "GKCNTR_REPAIR_ROUNDS": rounds,
            "GTEST_FAIL_FAST": "1",
            "GTEST_BRIEF": "1",
        }

    def prepare(self):
        """Copies what has changed, builds, and takes the time of each program."""
        self.copy()
        command = ["cmake", "-S", self.tree, "-B", self.build_folder, "-G", "Ninja", *OPTIONS]
        if shutil.which("ccache"):
            command.append("-DCMAKE_CXX_COMPILER_LAUNCHER=ccache")
        if shutil.which("ld.lld"):
            command.append("-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=lld")
        self.call(command)
        self.build(*(name.rsplit("/", 1)[1] for name in (*PROGRAMS, WORKS)))
        self.call([*self.count_command(), "--renew"])
        for name in (*PROGRAMS, WORKS):
            began = time.monotonic()
            if not self.passes(name, seconds=600):
                raise SystemExit(f"{name} fails without any mutant")
            self.usual[name] = time.monotonic() - began

    def copy(self):
        wanted = set(files_below(self.root))
        for name in set(files_below(self.tree)) - wanted:
            (self.tree / name).unlink()
        for name in wanted:
            source, target = self.root / name, self.tree / name
            if not target.exists() or source.read_bytes() != target.read_bytes():
                target.parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(source, target)

    def call(self, command):
        done = subprocess.run(command, env=self.environment, capture_output=True, text=True)
        if done.returncode != 0:
            raise NotBuilt(done.stdout + done.stderr)

    def build(self, *targets):
        self.call(["cmake", "--build", self.build_folder, "--parallel", str(self.jobs), "--target", *targets])

    def count_command(self):
        """Counts of this build are only compared with counts of this build."""
        script = self.tree / "cmake/checks/instructions.sh"
        return ["bash", script, self.build_folder / "tests" / WORKS, self.build_folder / "counts.txt"]

    def passes(self, name, seconds):
        command = self.count_command() if name == WORKS else [self.build_folder / "tests" / name, *PROGRAMS[name]]
        # Nothing that a mutant does takes the machine with it.
        limited = f'ulimit -c 0 -v {MEMORY_KIB}; exec "$@"'
        process = subprocess.Popen(
            ["sh", "-c", limited, "sh", *command],
            env=self.environment,
            stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL,
            start_new_session=True,
        )
        try:
            return process.wait(seconds) == 0
        except subprocess.TimeoutExpired:
            return False
        finally:
            if process.poll() is None:
                os.killpg(process.pid, signal.SIGKILL)
                process.wait()

    def verdict(self, mutant, first):
        """The program that kills it, "survived" or "not built". The program `first` is asked before the others."""
        place = self.tree / mutant.path
        code = place.read_text(encoding="utf-8")
        place.write_text(mutant.apply(code), encoding="utf-8")
        try:
            self.build("gkcntr_inner")
            for name in sorted((*PROGRAMS, WORKS), key=lambda name: (name != first, self.usual[name])):
                self.build(name.rsplit("/", 1)[1])
                if not self.passes(name, PATIENCE * self.usual[name] + 5):
                    return name
            return "survived"
        except NotBuilt:
            return "not built"
        finally:
            place.write_text(code, encoding="utf-8")
