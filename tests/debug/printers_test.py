# The printers of debug/gdb. The expected lines are written by hand from what tests/debug/shapes.cpp makes.
import itertools
import random
import unittest

import gdb

import gkcntr_printers
from asked import public_classes, shown


class Printers(unittest.TestCase):
    maxDiff = None

    def shows(self, expression, text):
        self.assertEqual(text, shown(expression), expression)

    def test_values_are_one_line(self):
        self.shows("pixel", "(3, -4)")
        self.shows("drawn", "(0.5, 2)")
        self.shows("vector", "(1.5, -2)")
        self.shows("notANumber", "(nan, 1e+300)")
        self.shows("matrix", "[1 2; 3 4.5]")
        self.shows("xform", "[1 0; 0 1] + (10, 20)")
        self.shows("linear", "transform [1 0; 0 1] + (10, 20)")
        self.shows("rigid", "turned 0.5 rad, moved (1, 2)")
        self.shows("radian", "0.25 rad")
        self.shows("degree", "90 deg")
        self.shows("angle8", "64/256 turn")
        self.shows("color", "#ff0000, alpha 255")
        self.shows("edgelet", "(1, 2) magnitude 300 angle 128/256 turn")
        self.shows("inertia", "area 6 centre (1, 2) moments [1 0.5; 0.5 2]")

    def test_simple_shapes_are_one_line(self):
        self.shows("point", "(7, 8)")
        self.shows("line", "through (1, 2) along (0, 1)")
        self.shows("segment", "(1, 2) -- (3, 4)")
        self.shows("rect", "(1, 2) .. (5, 5)")
        self.shows("circle", "(1, 2) radius 3")
        self.shows("ellipse", "(1, 2) radii (4, 2) turned 0.5 rad")
        self.shows("polygon", "polygon of 3 vertices, non-zero = {[0] = (0, 0), [1] = (4, 0), [2] = (0, 3)}")

    def test_contours_have_their_vertices_below(self):
        self.shows("empty", "closed contour of 0 vertices, label 0")
        self.shows("triangle",
                   "closed contour of 3 vertices, label 7 = {[0] = (0, 0), [1] = (4, 0), [2] = (0, 3)}")
        self.shows("stroke", "open contour of 2 vertices, label 0 = {[0] = (0, 0), [1] = (4, 0)}")

    def test_contours_show_what_they_keep(self):
        self.shows("measured",
                   "closed contour of 3 vertices, label 1 = {kept length = 12, "
                   "kept encloseRects = 1 kept = {under the identity = (0, 0) .. (4, 3)}, "
                   "kept extremalVertices = 1 kept = {key 0 = 0 rad, value 0 = 1}, "
                   "[0] = (0, 0), [1] = (4, 0), [2] = (0, 3)}")

    def test_kept_results_show_themselves(self):
        self.shows("measured.caches_.length", "kept = {value = 12}")
        self.shows("measured.caches_.selfIntersecting", "not kept")
        self.shows("measured.caches_.encloseRects",
                   "1 kept = {under the identity = (0, 0) .. (4, 3)}")
        self.shows("triangle.caches_.rare", "none")
        self.assertTrue(shown("measured.caches_.rare").startswith("owned = {object = {exactCircle = not kept, "))

    def test_handles_tell_their_holders_and_the_object_s_own_class(self):
        self.shows("hole", "2 handles of gkRegion = {object = region of 3 vertices, label 0 = "
                           "{[0] = (1, 1), [1] = (2, 1), [2] = (1, 2)}}")
        self.shows("null", "null")
        self.assertTrue(shown("asPlain").startswith(
            "1 handle of gkRegionT<gkEdgelet> = {object = edgelet region of 3 vertices, 3 edgelets, label 9 = {"))

    def test_regions_have_holes_and_results_below(self):
        self.shows("region",
                   "region of 4 vertices, 1 hole, label 0 = {hole 0 = 2 handles of gkRegion = {object = "
                   "region of 3 vertices, label 0 = {[0] = (1, 1), [1] = (2, 1), [2] = (1, 2)}}, kept area = 81, "
                   "kept encloseRects = 1 kept = {under the identity = (0, 0) .. (9, 9)}, "
                   "[0] = (0, 0), [1] = (9, 0), [2] = (9, 9), [3] = (0, 9)}")

    def test_sets_have_their_regions_below(self):
        self.shows("set", "set of 1 region = {[0] = 1 handle of gkRegion = {object = region of 3 vertices, label 0 = "
                          "{[0] = (5, 5), [1] = (6, 5), [2] = (5, 6)}}}")

    def test_edgelet_shapes_have_their_edgelets_below(self):
        transform = "dataFromPointsXform = 1 handle of gk2XformLinear = {object = transform [1 0; 0 1] + (0, 0)}"
        self.shows("edgeContour",
                   "closed edgelet contour of 1 vertex, 1 edgelet, label 0 = {" + transform + ", "
                   "edgelet 0 = (5, 6) magnitude 10 angle 0/256 turn, [0] = (5, 6)}")
        text = shown("edgeRegion")
        self.assertTrue(text.startswith("edgelet region of 3 vertices, 3 edgelets, 1 edgelet hole, label 5 = "
                                        "{edgelet hole 0 = 2 handles of gkRegionT<gkEdgelet> = {object = "), text)
        self.assertTrue(text.endswith(transform + ", edgelet 0 = (0, 0) magnitude 1 angle 0/256 turn, "
                                      "edgelet 1 = (4, 0) magnitude 2 angle 64/256 turn, "
                                      "edgelet 2 = (0, 3) magnitude 3 angle 128/256 turn, "
                                      "[0] = (0, 0), [1] = (4, 0), [2] = (0, 3)}"), text)
        # Each region is in both lists of its set.
        self.assertTrue(shown("edgeSet").startswith(
            "set of 1 edgelet region = {[0] = 2 handles of gkRegionT<gkEdgelet> = {object = "))

    def test_there_is_one_for_every_class_that_holds_something(self):
        named = {name.split("<")[0] for name in gkcntr_printers.CLASSES}
        self.assertEqual(set(), public_classes() - named)


RAW = ["Contour", "Region", "Set", "EdgeContour", "EdgeRegion", "EdgeSet", "Polygon", "Handle"]


class WhatIsNotMadeYet(unittest.TestCase):
    def fill(self, kind, content):
        raw = gdb.parse_and_eval("raw" + kind)
        gdb.selected_inferior().write_memory(int(raw.address), content(raw.type.sizeof))

    def test_is_said_to_be_unreadable(self):
        for byte in (0xCD, 0xFF):
            for kind in RAW:
                self.fill(kind, lambda size: bytes([byte]) * size)
                self.assertEqual("<not readable>", shown("*unmade" + kind), kind)

    def test_may_hold_anything(self):
        generator = random.Random(1)
        for _ in range(20):
            for kind in RAW:
                self.fill(kind, generator.randbytes)
                self.is_read_somehow("*unmade" + kind)

    def test_may_be_an_object_with_a_byte_overwritten(self):
        generator = random.Random(2)
        made = {"Contour": "measured", "Region": "region", "Set": "set", "EdgeContour": "edgeContour",
                "EdgeRegion": "edgeRegion", "EdgeSet": "edgeSet", "Polygon": "polygon", "Handle": "hole"}
        for kind in RAW:
            shape = gdb.parse_and_eval(made[kind])
            whole = bytes(gdb.selected_inferior().read_memory(int(shape.address), shape.type.sizeof))
            for _ in range(40):
                spoilt = bytearray(whole)
                spoilt[generator.randrange(len(spoilt))] = generator.randrange(256)
                self.fill(kind, lambda size: bytes(spoilt))
                self.is_read_somehow("*unmade" + kind)

    def is_read_somehow(self, expression):
        """Neither the line nor the parts raise."""
        value = gdb.parse_and_eval(expression)
        printer = gdb.default_visualizer(value)
        self.assertIsInstance(printer.to_string(), str)
        for name, part in itertools.islice(printer.children(), 100):
            self.assertIsInstance(name, str)
            below = part if isinstance(part, str) else gdb.default_visualizer(part)
            if isinstance(below, gkcntr_printers.Printer):
                self.assertIsInstance(below.to_string(), str)
        self.assertNotIn("Python Exception", shown(expression))
