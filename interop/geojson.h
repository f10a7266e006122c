/// \file
/// Shapes as GeoJSON.
#ifndef GK_INTEROP_GEOJSON_H
#define GK_INTEROP_GEOJSON_H

#include "cntr/regionst.h"
#include "interop/text_errors.h"

#include <string>
#include <string_view>

/// GeoJSON geometries of shapes. Any number of threads may use distinct shapes and texts at once.
///
/// | shape | text |
/// |---|---|
/// | open contour | `{"type":"LineString","coordinates":[[0,0],[4,0]]}` |
/// | closed contour | `{"type":"Polygon","coordinates":[[[0,0],[4,0],[0,3],[0,0]]]}` |
/// | region | `Polygon`, the outline's ring first, then a ring for each hole |
/// | set of regions | `MultiPolygon` |
///
/// Without vertices or regions the coordinates are `[]`. What write() gave reads back as the same vertices to
/// the bit, in the same order and of the same kind. Labels and cachedVectorSize are not told and come back as 0
/// and 3. Coordinates are the shape's own, not degrees on the Earth; vertices keep their order whichever way
/// they turn. Negative zero is `-0.0`, since some readers take `-0` for an integer. Rings of one or two
/// vertices are written and read as well; other programs may refuse them.
///
/// Reading takes a geometry, a Feature for the geometry in it, and, for sets, a GeometryCollection and a
/// FeatureCollection. Members of other names are passed over. The last position of a ring must repeat the first
/// and is not kept. Positions have two numbers; a third is refused. Source: RFC 7946, The GeoJSON Format, 2016.
///
/// \b Throws: writing gkTextDefs::CannotWrite for NaN, infinities, holes that have holes, and holes in an
/// outline below two vertices; reading gkTextDefs::BadText, Unsupported and TooLarge. Both std::bad_alloc.
/// Cost: linear, but for holes when reading: gkRegion::holes compares each with its outline.
namespace gnGeoJson {

std::string write(const gkContour& contour);
std::string write(const gkRegion& region);
std::string write(const gkRegionSet& set);

/// From a LineString, which gives an open contour, or a Polygon without holes, which gives a closed one.
gkContour readContour(std::string_view text);
/// From a Polygon. Unsupported when a hole meets the outline.
gkRegion readRegion(std::string_view text);
/// From a MultiPolygon, a Polygon or a collection of these, nested or not, in the order of the text. A Feature
/// without a geometry (null) adds nothing.
gkRegionSet readRegionSet(std::string_view text);

} // namespace gnGeoJson

#endif
