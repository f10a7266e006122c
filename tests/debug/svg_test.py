# The command gksvg: well-formed XML with the shape's own numbers.
import os
import tempfile
import unittest
import xml.etree.ElementTree

import gdb

SVG = "{http://www.w3.org/2000/svg}"


class Svg(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.file = os.path.join(self.folder.name, "shape.svg")

    def written(self, expression):
        """The picture, and what the command says."""
        said = gdb.execute("gksvg %s %s" % (expression, self.file), to_string=True)
        return xml.etree.ElementTree.parse(self.file).getroot(), said

    def paths(self, expression):
        picture, _ = self.written(expression)
        self.assertEqual(SVG + "svg", picture.tag)
        self.assertEqual({SVG + "path"}, {element.tag for element in picture})
        return [element.get("d") for element in picture]

    def refused(self, arguments):
        with self.assertRaises(gdb.error) as caught:
            gdb.execute("gksvg " + arguments, to_string=True)
        return str(caught.exception)

    def test_a_closed_contour_is_closed_and_an_open_one_is_not(self):
        self.assertEqual(["M 0 0 L 4 0 L 0 3 Z"], self.paths("triangle"))
        self.assertEqual(["M 0 0 L 4 0"], self.paths("stroke"))

    def test_a_hole_is_an_outline_within_the_region_s(self):
        self.assertEqual(["M 0 0 L 9 0 L 9 9 L 0 9 Z M 1 1 L 2 1 L 1 2 Z"], self.paths("region"))

    def test_a_set_has_a_path_for_each_region(self):
        self.assertEqual(["M 5 5 L 6 5 L 5 6 Z"], self.paths("set"))
        self.assertEqual(["M 0 0 L 4 0 L 0 3 Z"], self.paths("edgeSet"))

    def test_edgelet_shapes_are_their_outlines(self):
        self.assertEqual(["M 5 6 Z"], self.paths("edgeContour"))
        self.assertEqual(["M 0 0 L 4 0 L 0 3 Z"], self.paths("edgeRegion"))

    def test_simple_shapes_have_their_numbers(self):
        self.assertEqual(["M 0 0 L 4 0 L 0 3 Z"], self.paths("polygon"))
        self.assertEqual(["M 1 2 L 3 4"], self.paths("segment"))
        self.assertEqual(["M 1 2 L 5 2 L 5 5 L 1 5 Z"], self.paths("rect"))
        (circle,) = self.written("circle")[0]
        self.assertEqual(["1", "2", "3", "3"], [circle.get(name) for name in ("cx", "cy", "rx", "ry")])
        (ellipse,) = self.written("ellipse")[0]
        self.assertEqual(["1", "2", "4", "2"], [ellipse.get(name) for name in ("cx", "cy", "rx", "ry")])
        self.assertEqual("rotate(28.64788975654116 1 2)", ellipse.get("transform"))

    def test_lists_pointers_and_handles_are_what_they_lead_to(self):
        self.assertEqual(["M 0 0 L 4 0 L 0 3"], self.paths("triangle.value_.points"))
        self.assertEqual(["M 0 0 L 4 0 L 0 3 Z"], self.paths("&triangle"))
        self.assertEqual(["M 1 1 L 2 1 L 1 2 Z"], self.paths("hole"))

    def test_the_picture_holds_the_shape_with_a_margin(self):
        picture, said = self.written("triangle")
        self.assertEqual("-0.2 -0.2 4.4 3.4", picture.get("viewBox"))
        self.assertEqual("closed contour of 3 vertices, label 7", picture[0].find(SVG + "title").text)
        self.assertEqual(self.file + ": 1 element\n", said)

    def test_vertices_that_are_not_finite_are_left_out_and_told(self):
        self.assertEqual(["M 0 0 L 4 0 L 0 3 Z"], self.paths("broken"))
        self.assertIn("1 place is not finite and left out", self.written("broken")[1])

    def test_what_cannot_be_shown_is_refused(self):
        self.assertIn("usage", self.refused("triangle"))
        self.assertIn("nothing to show", self.refused("empty " + self.file))
        self.assertIn("the handle is null", self.refused("null " + self.file))
        self.assertIn("has no picture", self.refused("radian " + self.file))
        self.assertIn("not readable", self.refused("*unmadeContour " + self.file))
        self.assertIn("gksvg: ", self.refused("triangle " + os.path.join(self.folder.name, "missing", "x.svg")))
        self.assertFalse(os.path.exists(self.file))
