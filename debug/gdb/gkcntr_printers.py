"""One line for each value and shape, and what is in it below."""
import re

import gdb
import gdb.printing

import gkcntr_read as read
from gkcntr_read import number

UNREADABLE = "<not readable>"


# ---- values -----------------------------------------------------------------------------------------------------


def pair(value):
    return "(%s, %s)" % (value["x_"], value["y_"])


def vector(value):
    return "(%s, %s)" % (number(value["x_"]), number(value["y_"]))


def point(value):
    return vector(value["vector_"])


def matrix(value):
    return "[%s %s; %s %s]" % tuple(number(value[e]) for e in ("e00_", "e01_", "e10_", "e11_"))


def xform(value):
    return "%s + %s" % (matrix(value["matrix_"]), vector(value["translation_"]))


def linear(value):
    return "transform " + xform(value["xform_"])


def radian(value):
    return number(value["value_"]) + " rad"


def degree(value):
    return number(value["value_"]) + " deg"


def angle8(value):
    return "%d/256 turn" % int(value["value_"])


def rigid(value):
    return "turned %s, moved %s" % (radian(value["angle_"]), vector(value["translation_"]))


def color(value):
    return "#%02x%02x%02x, alpha %d" % tuple(int(value[c]) for c in ("red_", "green_", "blue_", "alpha_"))


def edgelet(value):
    return "%s magnitude %d angle %s" % (
        vector(value["position_"]), int(value["magnitude_"]), angle8(value["angle_"]))


def inertia(value):
    return "area %s centre %s moments %s" % (
        number(value["area_"]), vector(value["centerOfMass_"]), matrix(value["inertiaMatrix_"]))


# ---- simple shapes ----------------------------------------------------------------------------------------------


def line(value):
    return "through %s along %s" % (vector(value["point_"]), vector(value["direction_"]))


def line_seg(value):
    return "%s -- %s" % (vector(value["p1_"]), vector(value["p2_"]))


def rect(value):
    return "%s .. %s" % (vector(value["ul_"]), vector(value["lr_"]))


def circle(value):
    return "%s radius %s" % (point(value["center_"]), number(value["radius_"]))


def ellipse(value):
    geom = value["geom_"]
    return "%s radii %s turned %s" % (point(geom["center"]), vector(geom["radii"]), radian(geom["rotation"]))


def vertices_text(vertices):
    return read.count_text(read.vector(vertices)[1], "vertex", "vertices")


def polygon(value):
    rule = int(value["fillMode_"])
    if rule not in (0, 1):
        raise read.NotReadable
    return "polygon of %s, %s" % (vertices_text(value["vertices_"]), ("even-odd", "non-zero")[rule])


def numbered(elements):
    for index, element in enumerate(elements):
        yield "[%d]" % index, element


def polygon_parts(value):
    return numbered(read.elements(value["vertices_"]))


# ---- handles and kept results -----------------------------------------------------------------------------------


def handle(value):
    thing = read.handled(value)
    if thing is None:
        return "null"
    return "%s of %s" % (read.count_text(read.holders(value), "handle", "handles"), thing.dynamic_type.name)


def handle_parts(value):
    thing = read.handled(value)
    if thing is not None:
        yield "object", thing


def kept(value):
    return "kept" if read.flag(value["valid"]) else "not kept"


def kept_parts(value):
    if read.flag(value["valid"]):
        yield "value", value["value"]


def owned(value):
    return "none" if read.owned(value) is None else "owned"


def owned_parts(value):
    thing = read.owned(value)
    if thing is not None:
        yield "object", thing


def kept_map(value):
    return "%d kept" % read.vector(value["entries_"])[1]


def kept_map_parts(value):
    for index, entry in enumerate(read.elements(value["entries_"])):
        yield "key %d" % index, entry["first"]
        yield "value %d" % index, entry["second"]


def kept_boxes(value):
    return "%d kept" % (read.flag(value["identitys_"]["valid"]) + read.vector(value["others_"]["entries_"])[1])


def kept_boxes_parts(value):
    if read.flag(value["identitys_"]["valid"]):
        yield "under the identity", value["identitys_"]["value"]
    yield from kept_map_parts(value["others_"])


def valid_results(caches):
    """Name and value of each result that is kept, found by their classes, whatever their names."""
    for field in read.plain(caches.type).fields():
        slots = read.plain(field.type)
        if slots.code == gdb.TYPE_CODE_ARRAY:
            for index in range(slots.range()[1] + 1):
                yield from valid_result("kept %s[%d]" % (field.name, index), caches[field.name][index])
        else:
            yield from valid_result("kept " + field.name, caches[field.name])


def valid_result(name, slot):
    class_name = read.name_of(slot)
    try:
        if class_name.startswith("gk_Kept<"):
            if read.flag(slot["valid"]):
                yield name, slot["value"]
        elif class_name.startswith("gk_KeptMap<"):
            if read.vector(slot["entries_"])[1]:
                yield name, slot
        elif class_name.startswith("gk_KeptBoxes<"):
            if any(True for _ in kept_boxes_parts(slot)):
                yield name, slot
        elif class_name.startswith("gk_Owned<") and class_name.endswith("::Rare>"):
            rare = read.owned(slot)
            if rare is not None:
                yield from valid_results(rare)
    except read.ERRORS:
        yield name, UNREADABLE


# ---- shapes -----------------------------------------------------------------------------------------------------


def joined(*texts):
    return ", ".join(text for text in texts if text)


def outline(shape):
    return read.base(shape, "gkContour")["value_"]


def outline_text(shape, kind):
    value = outline(shape)
    return "%s of %s" % (kind, vertices_text(value["points"]))


def label_text(shape):
    return "label %d" % int(outline(shape)["label"])


def state(shape):
    return "closed" if read.flag(outline(shape)["closed"]) else "open"


def holes_text(holes, one, many):
    count = read.vector(holes)[1]
    return read.count_text(count, one, many) if count else ""


def edgelets_text(shape):
    return read.count_text(read.vector(edgelet_part(shape)["data_"])[1], "edgelet", "edgelets")


def edgelet_part(shape):
    return read.base_starting(shape, "gkContourT<")


def contour(shape):
    return joined(outline_text(shape, state(shape) + " contour"), label_text(shape))


def region(shape):
    state(shape)  # a region is always closed, but what has no such flag is no region
    holes = holes_text(read.base(shape, "gkRegion")["holes_"], "hole", "holes")
    return joined(outline_text(shape, "region"), holes, label_text(shape))


def edgelet_contour(shape):
    return joined(outline_text(shape, state(shape) + " edgelet contour"), edgelets_text(shape), label_text(shape))


def edgelet_region(shape):
    state(shape)
    return joined(outline_text(shape, "edgelet region"), edgelets_text(shape),
                  holes_text(shape["holes_"], "edgelet hole", "edgelet holes"),
                  holes_text(read.base(shape, "gkRegion")["holes_"], "plain hole", "plain holes"), label_text(shape))


def region_set(shape):
    return "set of " + read.count_text(read.vector(plain_set(shape)["regions_"])[1], "region", "regions")


def edgelet_set(shape):
    count = read.vector(shape["regionsT_"])[1]
    return "set of " + read.count_text(count, "edgelet region", "edgelet regions")


def plain_set(shape):
    return read.base(shape, "gkRegionSet")


def contour_parts(shape):
    yield from valid_results(read.base(shape, "gkContour")["caches_"])
    yield from numbered(read.elements(outline(shape)["points"]))


def region_parts(shape):
    plain = read.base(shape, "gkRegion")
    for index, hole in enumerate(read.elements(plain["holes_"])):
        yield "hole %d" % index, hole
    yield from valid_results(plain["caches_"])
    yield from contour_parts(shape)


def edgelet_parts(shape):
    part = edgelet_part(shape)
    if read.handled(part["dataFromPointsXform_"]) is not None:
        yield "dataFromPointsXform", part["dataFromPointsXform_"]
    for index, datum in enumerate(read.elements(part["data_"])):
        yield "edgelet %d" % index, datum


def edgelet_contour_parts(shape):
    yield from edgelet_parts(shape)
    yield from contour_parts(shape)


def edgelet_region_parts(shape):
    for index, hole in enumerate(read.elements(shape["holes_"])):
        yield "edgelet hole %d" % index, hole
    yield from edgelet_parts(shape)
    yield from region_parts(shape)


def set_parts(shape):
    plain = plain_set(shape)
    yield from valid_results(plain["caches_"])
    yield from numbered(read.elements(plain["regions_"]))


def edgelet_set_parts(shape):
    yield from valid_results(plain_set(shape)["caches_"])
    yield from numbered(read.elements(shape["regionsT_"]))


# ---- gdb's side -------------------------------------------------------------------------------------------------

# Class, or beginning of a class template's instance: its line, and its parts where it has some.
CLASSES = {
    "gkPair<": (pair, None),
    "gkVector<2>": (vector, None),
    "gkMatrix<2>": (matrix, None),
    "gkXform<2>": (xform, None),
    "gkRadian": (radian, None),
    "gkDegree": (degree, None),
    "gkAngle8": (angle8, None),
    "gkPoint": (point, None),
    "gkLine": (line, None),
    "gkLineSeg": (line_seg, None),
    "gkRect": (rect, None),
    "gkCircle": (circle, None),
    "gkEllipse": (ellipse, None),
    "gkPolygon": (polygon, polygon_parts),
    "gk2Rigid": (rigid, None),
    "gk2XformLinear": (linear, None),
    "gkColor": (color, None),
    "gkEdgelet": (edgelet, None),
    "gk_InertiaData": (inertia, None),
    "gkPtrHandle<": (handle, handle_parts),
    "gkPtrHandle_const<": (handle, handle_parts),
    "gk_Kept<": (kept, kept_parts),
    "gk_Owned<": (owned, owned_parts),
    "gk_KeptMap<": (kept_map, kept_map_parts),
    "gk_KeptBoxes<": (kept_boxes, kept_boxes_parts),
    "gkContour": (contour, contour_parts),
    "gkRegion": (region, region_parts),
    "gkRegionSet": (region_set, set_parts),
    "gkContourT<": (edgelet_contour, edgelet_contour_parts),
    "gkRegionT<": (edgelet_region, edgelet_region_parts),
    "gkRegionSetT<": (edgelet_set, edgelet_set_parts),
}


def readable(part):
    """A part as gdb may go on with it; gdb itself stops at what it cannot read."""
    try:
        if isinstance(part, gdb.Value):
            part.fetch_lazy()
        return part
    except read.ERRORS:
        return UNREADABLE


class Printer:
    """Never raises: an object that cannot be read is said to be so."""

    def __init__(self, value, line_of, parts_of):
        self.value, self.line_of, self.parts_of = value, line_of, parts_of

    def to_string(self):
        try:
            return self.line_of(self.value)
        except read.ERRORS:
            return UNREADABLE

    def children(self):
        if self.parts_of is None or self.to_string() == UNREADABLE:
            return
        try:
            for name, part in self.parts_of(self.value):
                yield name, readable(part)
        except read.ERRORS:
            yield "more", UNREADABLE


def found(name):
    """What CLASSES has for a class."""
    return CLASSES.get(name) or CLASSES.get(re.sub(r"<.*", "<", name))


class Collection(gdb.printing.PrettyPrinter):
    def __init__(self):
        super().__init__("gkcntr", [gdb.printing.SubPrettyPrinter(name.rstrip("<")) for name in CLASSES])

    def __call__(self, value):
        value_type = read.plain(value.type)
        if value_type.code not in (gdb.TYPE_CODE_STRUCT, gdb.TYPE_CODE_UNION):
            return None
        shown = found(value_type.name or "")
        return Printer(value, *shown) if shown else None


def summary(value):
    """The one line of a shape."""
    return Printer(value, *found(read.name_of(value))).to_string()


def register():
    gdb.printing.register_pretty_printer(None, Collection(), replace=True)
