/// \file
/// Shapes as well-known text, the geometry text of databases and geometry libraries.
#ifndef GK_INTEROP_WKT_H
#define GK_INTEROP_WKT_H

#include "cntr/regionst.h"
#include "interop/text_errors.h"

#include <string>
#include <string_view>

/// Well-known text of shapes. Any number of threads may use distinct shapes and texts at once.
///
/// | shape | text |
/// |---|---|
/// | open contour | `LINESTRING (0 0, 4 0)`, without vertices `LINESTRING EMPTY` |
/// | closed contour | `POLYGON ((0 0, 4 0, 0 3, 0 0))`, without vertices `POLYGON EMPTY` |
/// | region | `POLYGON`, the outline's ring, then the holes'; without vertices `POLYGON EMPTY` |
/// | set of regions | `MULTIPOLYGON (((0 0, ...)), EMPTY)`, without regions `MULTIPOLYGON EMPTY` |
///
/// What write() gave reads back as the same vertices to the bit, in the same order and of the same kind. Labels
/// and cachedVectorSize are not told and come back as 0 and 3. Rings of one or two vertices are written and
/// read as well; other programs may refuse them.
///
/// Reading takes keywords in either case and any white space. The last position of a ring must repeat the first
/// and is not kept. No third coordinate is read.
/// Source: Open Geospatial Consortium, Simple feature access, common architecture, 06-103r4, chapter 7.
///
/// \b Throws: writing gkTextDefs::CannotWrite for NaN, infinities, holes that have holes, and holes in an
/// outline below two vertices; reading gkTextDefs::BadText, Unsupported and TooLarge. Both std::bad_alloc.
/// Cost: linear, but for holes when reading: gkRegion::holes compares each with its outline.
namespace gnWkt {

std::string write(const gkContour& contour);
std::string write(const gkRegion& region);
std::string write(const gkRegionSet& set);

/// From a LINESTRING, which gives an open contour, or a POLYGON without holes, which gives a closed one.
gkContour readContour(std::string_view text);
/// From a POLYGON. Unsupported when a hole meets the outline.
gkRegion readRegion(std::string_view text);
/// From a MULTIPOLYGON, a POLYGON, or a GEOMETRYCOLLECTION of these, nested or not, in the order of the text.
gkRegionSet readRegionSet(std::string_view text);

} // namespace gnWkt

#endif
