#include "interop/text_shapes.h"

#include <cmath>

namespace {

gkPtrHandle_const<gkRegion> shared(const gkRegion& region) {
    return gkPtrHandle_const<gkRegion>(new gkRegion(region));
}

} // namespace

void gk_Unclose(const gk_Text& text, gk_TextRing& ring) {
    gk_Vertices& vertices = ring.vertices;
    if (vertices.size() < 2 || vertices.front() != vertices.back())
        text.bad(ring.offset, "a ring that ends with the position it begins with was expected");
    vertices.pop_back();
}

gkContour gk_ContourOf(const gk_Text& text, const gk_TextGeometry& geometry) {
    if (geometry.kind == gk_TextGeometry::eLine) return gkContour(geometry.lines[0].vertices, false, 0);
    if (geometry.kind != gk_TextGeometry::ePolygon)
        text.unsupported(geometry.offset, "a contour is one line or one polygon");
    const std::vector<gk_TextRing>& rings = geometry.polygons[0].rings;
    if (rings.empty()) return gkContour();
    if (rings.size() > 1) text.unsupported(rings[1].offset, "a contour has no holes; a region may");
    return gkContour(rings[0].vertices, true, 0);
}

gkRegion gk_RegionOf(const gk_Text& text, const gk_TextGeometry& geometry) {
    if (geometry.kind != gk_TextGeometry::ePolygon)
        text.unsupported(geometry.offset, "a region is one polygon");
    return gk_RegionOf(text, geometry.polygons[0]);
}

gkRegion gk_RegionOf(const gk_Text& text, const gk_TextPolygon& polygon) {
    if (polygon.rings.empty()) return gkRegion();
    gkRegion region(polygon.rings[0].vertices);
    if (polygon.rings.size() == 1) return region;
    std::vector<gkPtrHandle<gkRegion>> holes;
    for (std::size_t i = 1; i < polygon.rings.size(); ++i)
        holes.emplace_back(new gkRegion(polygon.rings[i].vertices));
    try {
        region.holes(holes);
    } catch (const gkContourDefs::EmptyContour&) {
        text.unsupported(polygon.offset, "an outline below two vertices cannot have holes");
    } catch (const gkContourDefs::BadParams&) {
        text.unsupported(polygon.offset, "a hole of a region must not meet its outline, not even in one point");
    }
    return region;
}

gkRegionSet gk_RegionSetOf(const gk_Text& text, const gk_TextGeometry& geometry) {
    if (!geometry.lines.empty())
        text.unsupported(geometry.lines[0].offset, "a set of regions has polygons only, no lines");
    std::vector<gkPtrHandle_const<gkRegion>> regions;
    for (const gk_TextPolygon& polygon : geometry.polygons)
        regions.push_back(shared(gk_RegionOf(text, polygon)));
    return gkRegionSet(regions);
}

void gk_DemandFinite(const gk_Vertices& vertices) {
    for (std::size_t i = 0; i < vertices.size(); ++i) {
        if (!std::isfinite(vertices[i].x()) || !std::isfinite(vertices[i].y()))
            throw gkTextDefs::CannotWrite(L"vertex " + std::to_wstring(i) + L" is not finite");
    }
}

std::vector<const gk_Vertices*> gk_RingsOf(const gkRegion& region) {
    std::vector<const gk_Vertices*> rings = {&region.points()};
    for (const gkPtrHandle_const<gkRegion>& hole : region.holes()) {
        if (!hole->holes().empty()) throw gkTextDefs::CannotWrite(L"a hole has holes of its own");
        rings.push_back(&hole->points());
    }
    if (rings.size() > 1 && region.points().size() < 2)
        throw gkTextDefs::CannotWrite(L"an outline below two vertices has holes");
    for (const gk_Vertices* ring : rings) gk_DemandFinite(*ring);
    return rings;
}
