"""The command gksvg: a shape of the debugged program as a picture."""
import math
from xml.sax.saxutils import escape

import gdb

import gkcntr_printers
import gkcntr_read as read


class Picture:
    """Elements of SVG and the box of what they show; y points down, as in images."""

    def __init__(self):
        self.elements = []
        self.xs, self.ys = [], []
        self.left_out = 0

    def seen(self, places):
        """Those of the places that a picture can show."""
        shown = [place for place in places if math.isfinite(place[0]) and math.isfinite(place[1])]
        self.left_out += len(places) - len(shown)
        self.xs += [x for x, _ in shown]
        self.ys += [y for _, y in shown]
        return shown

    def path(self, outlines, title):
        """One path of some (places, closed); a hole is an outline within another."""
        parts = []
        for places, closed in outlines:
            shown = self.seen(places)
            if shown:
                parts.append("M " + " L ".join("%s %s" % (text(x), text(y)) for x, y in shown) + (" Z" if closed else ""))
        fill = "#d0e0ff" if all(closed for _, closed in outlines) else "none"
        self.add('<path d="%s" fill="%s" fill-rule="evenodd"' % (" ".join(parts), fill), title)

    def ellipse(self, center, radii, degrees, title):
        reach = max(radii)
        if not all(map(math.isfinite, [*center, *radii, degrees])):
            self.left_out += 1
            return
        self.seen([(center[0] - reach, center[1] - reach), (center[0] + reach, center[1] + reach)])
        numbers = tuple(map(text, (*center, *radii, degrees, *center)))
        self.add('<ellipse cx="%s" cy="%s" rx="%s" ry="%s" transform="rotate(%s %s %s)" fill="none"' % numbers, title)

    def add(self, element, title):
        self.elements.append('%s stroke="black" vector-effect="non-scaling-stroke"><title>%s</title></%s>'
                             % (element, escape(title), element[1:].split()[0]))

    def document(self):
        if not self.xs:
            raise gdb.GdbError("gksvg: there is nothing to show")
        left, top = min(self.xs), min(self.ys)
        width, height = max(self.xs) - left, max(self.ys) - top
        margin = 0.05 * max(width, height) or 1.0
        box = (left - margin, top - margin, width + 2 * margin, height + 2 * margin)
        return ('<?xml version="1.0" encoding="UTF-8"?>\n'
                '<svg xmlns="http://www.w3.org/2000/svg" viewBox="%s">\n%s\n</svg>\n'
                % (" ".join(map(text, box)), "\n".join(self.elements)))


def text(number):
    return read.number(number)


def place(vector):
    return float(vector["x_"]), float(vector["y_"])


# ---- what is drawn, by class ------------------------------------------------------------------------------------


def vertices(shape):
    value = read.base(shape, "gkContour")["value_"]
    return read.places(value["points"]), read.flag(value["closed"])


def draw_contour(picture, shape):
    picture.path([vertices(shape)], gkcntr_printers.summary(shape))


def with_holes(region, around):
    """The outlines of a region, its holes and theirs; `around` are the regions that led here."""
    if int(region.address) in around:
        raise gdb.GdbError("gksvg: a region is a hole of itself")
    yield vertices(region)[0], True
    for hole in read.elements(read.base(region, "gkRegion")["holes_"]):
        inner = read.handled(hole)
        if inner is not None:
            yield from with_holes(read.base(inner, "gkRegion"), around | {int(region.address)})


def draw_region(picture, shape):
    picture.path(list(with_holes(read.base(shape, "gkRegion"), frozenset())), gkcntr_printers.summary(shape))


def draw_set(picture, shape):
    for handle in read.elements(read.base(shape, "gkRegionSet")["regions_"]):
        draw(picture, handle)


def draw_polygon(picture, shape):
    picture.path([(read.places(shape["vertices_"]), True)], gkcntr_printers.summary(shape))


def draw_segment(picture, shape):
    picture.path([([place(shape["p1_"]), place(shape["p2_"])], False)], gkcntr_printers.summary(shape))


def draw_rect(picture, shape):
    (left, top), (right, bottom) = place(shape["ul_"]), place(shape["lr_"])
    corners = [(left, top), (right, top), (right, bottom), (left, bottom)]
    picture.path([(corners, True)], gkcntr_printers.summary(shape))


def draw_circle(picture, shape):
    radius = float(shape["radius_"])
    picture.ellipse(place(shape["center_"]["vector_"]), (radius, radius), 0.0, gkcntr_printers.summary(shape))


def draw_ellipse(picture, shape):
    geom = shape["geom_"]
    degrees = math.degrees(float(geom["rotation"]["value_"]))
    picture.ellipse(place(geom["center"]["vector_"]), place(geom["radii"]), degrees, gkcntr_printers.summary(shape))


def draw_handle(picture, shape):
    thing = read.handled(shape)
    if thing is None:
        raise gdb.GdbError("gksvg: the handle is null")
    draw(picture, thing)


def draw_places(picture, shape):
    picture.path([(read.places(shape), False)], "std::vector of places")


# Class, or beginning of a class template's instance.
DRAWN = {
    "gkContour": draw_contour,
    "gkContourT<": draw_contour,
    "gkRegion": draw_region,
    "gkRegionT<": draw_region,
    "gkRegionSet": draw_set,
    "gkRegionSetT<": draw_set,
    "gkPolygon": draw_polygon,
    "gkLineSeg": draw_segment,
    "gkRect": draw_rect,
    "gkCircle": draw_circle,
    "gkEllipse": draw_ellipse,
    "gkPtrHandle<": draw_handle,
    "gkPtrHandle_const<": draw_handle,
    "std::vector<gkVector<2>": draw_places,
}


def draw(picture, shape):
    value_type = read.plain(shape.type)
    if value_type.code in (gdb.TYPE_CODE_PTR, gdb.TYPE_CODE_REF):
        return draw(picture, shape.referenced_value())
    name = value_type.name or ""
    for beginning, how in DRAWN.items():
        if name == beginning or (beginning[-1] in "<>" and name.startswith(beginning)):
            return how(picture, shape)
    raise gdb.GdbError("gksvg: %s has no picture" % (name or "this"))


class Command(gdb.Command):
    """gksvg EXPRESSION FILE: write a shape as an SVG picture.

EXPRESSION is a contour, a region, a set, an edgelet shape, a polygon, a rectangle, a segment, a circle, an ellipse, a
list of vertices, or a pointer or handle to one. FILE is the last word, so EXPRESSION may have spaces. Coordinates are
the shape's own, y pointing down; vertices that are not finite are left out."""

    def __init__(self):
        super().__init__("gksvg", gdb.COMMAND_DATA, gdb.COMPLETE_EXPRESSION)

    def invoke(self, argument, from_tty):
        words = argument.rsplit(None, 1)
        if len(words) != 2:
            raise gdb.GdbError("usage: gksvg EXPRESSION FILE")
        expression, file = words
        picture = Picture()
        try:
            draw(picture, gdb.parse_and_eval(expression))
        except read.NotReadable:
            raise gdb.GdbError("gksvg: %s is not readable" % expression)
        document = picture.document()
        try:
            with open(file, "w", encoding="utf-8") as out:
                out.write(document)
        except OSError as error:
            raise gdb.GdbError("gksvg: %s" % error)
        print("%s: %s" % (file, read.count_text(len(picture.elements), "element", "elements")))
        if picture.left_out:
            print("%s not finite and left out" % read.count_text(picture.left_out, "place is", "places are"))


def register():
    Command()
