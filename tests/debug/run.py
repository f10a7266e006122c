# gdb --batch -nx -ex "python tests = 'NAME'" -x run.py PROGRAM: the tests of NAME_test.py, in gdb, with the program
# stopped where every shape has been made.
import os
import sys
import unittest

import gdb

here = os.path.dirname(os.path.abspath(__file__))
root = os.path.dirname(os.path.dirname(here))
sys.dont_write_bytecode = True
sys.path[:0] = [here, os.path.join(root, "debug", "gdb")]

for setting in ("confirm off", "pagination off", "width 0", "disable-randomization off", "print elements 200"):
    gdb.execute("set " + setting)
gdb.execute("source " + os.path.join(root, "debug", "gdb", "gkcntr.py"))
gdb.execute("break shapes.cpp:made", to_string=True)
gdb.execute("run", to_string=True)
gdb.execute("up", to_string=True)

suite = unittest.defaultTestLoader.loadTestsFromName(tests + "_test")  # noqa: F821, given on the command line
result = unittest.TextTestRunner(stream=sys.stdout).run(suite)
gdb.execute("kill", to_string=True)
gdb.execute("quit %d" % (not result.wasSuccessful() or result.testsRun == 0))
