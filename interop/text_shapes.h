// What the formats tell alike, rings of vertices, and the shapes that are made of them and taken apart into
// them.
#ifndef GK_INTEROP_TEXT_SHAPES_H
#define GK_INTEROP_TEXT_SHAPES_H

#include "cntr/regionst.h"
#include "interop/text_cursor.h"

#include <cstddef>
#include <string>
#include <vector>

using gk_Vertices = std::vector<gkVector<2>>;

// A run of vertices and where in the text it begins. A ring is without the repetition of its first vertex.
struct gk_TextRing {
    gk_Vertices vertices;
    std::size_t offset = 0;
};

// The outline, then the holes; no ring at all is an outline without vertices.
struct gk_TextPolygon {
    std::vector<gk_TextRing> rings;
    std::size_t offset = 0;
};

// A geometry as read. A collection's members are in one list however they were nested.
struct gk_TextGeometry {
    enum Kind { eLine, ePolygon, eMany };

    Kind kind = eMany;
    std::size_t offset = 0;
    std::vector<gk_TextRing> lines;
    std::vector<gk_TextPolygon> polygons;
};

// Takes the last vertex of a ring away, which must repeat the first.
void gk_Unclose(const gk_Text& text, gk_TextRing& ring);

// Each refuses what is no such shape.
gkContour gk_ContourOf(const gk_Text& text, const gk_TextGeometry& geometry);
gkRegion gk_RegionOf(const gk_Text& text, const gk_TextGeometry& geometry);
gkRegion gk_RegionOf(const gk_Text& text, const gk_TextPolygon& polygon);
gkRegionSet gk_RegionSetOf(const gk_Text& text, const gk_TextGeometry& geometry);

// The vertex lists of a region, outline first. Throws CannotWrite when a number is not finite, for holes of
// holes, and for holes in an outline below two vertices, which no reader could set; gkBadPointer for a null
// handle.
std::vector<const gk_Vertices*> gk_RingsOf(const gkRegion& region);
// Throws CannotWrite unless every coordinate is finite.
void gk_DemandFinite(const gk_Vertices& vertices);

#endif
