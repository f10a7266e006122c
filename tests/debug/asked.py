# What the tests in gdb ask.
import os

import gdb

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))


def shown(expression):
    """As gdb's print shows it."""
    return gdb.execute("output " + expression, to_string=True)


def public_classes():
    """The classes of gkcntr_fwd.h whose objects hold something to look at."""
    without = {
        # scopes of enumerations and errors
        "gkContourDefs", "gkEllipseFitDefs", "gkMathError", "gkPel",
        # bases without data of their own to show, and errors, whose message tells
        "gkPersistent", "gkRepBase", "gkException", "gkExceptionWithString", "gkAssertionFailed", "gkBadPointer",
        "gk2XformBase", "gkUITablet",
        # what works on values and is none: archives, surfaces, the fitter's record and the generator
        "gkArchive", "gkArchiveFile", "gkArchiveMemory", "gkFileName", "gkRecordingTablet", "gkSvgTablet",
        "gkEllipseFitParams", "gkEllipseFitResults", "gkRandomUniform",
    }
    names = set()
    with open(os.path.join(ROOT, "gkcntr_fwd.h"), encoding="utf-8") as header:
        for line in header:
            words = line.rstrip(";\n").split("class ")
            if len(words) > 1 and not line.startswith("//"):
                names.add(words[-1])
    assert without <= names, without - names
    return names - without
