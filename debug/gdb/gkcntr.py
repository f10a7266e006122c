"""gkcntr's values and shapes in gdb: source this file, or name it in ~/.gdbinit."""
import os
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
try:
    import gkcntr_printers
    import gkcntr_svg
finally:
    sys.path.pop(0)

gkcntr_printers.register()
gkcntr_svg.register()
