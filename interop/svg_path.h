/// \file
/// Shapes as the path data of SVG: the attribute `d` of a path.
#ifndef GK_INTEROP_SVG_PATH_H
#define GK_INTEROP_SVG_PATH_H

#include "cntr/regionst.h"
#include "interop/text_errors.h"

#include <string>
#include <string_view>
#include <vector>

/// SVG path data of shapes. Any number of threads may use distinct shapes and texts at once.
///
/// | shape | text |
/// |---|---|
/// | open contour | `M 0 0 L 4 0` |
/// | closed contour | `M 0 0 L 4 0 L 0 3 Z`, without vertices nothing |
/// | region | the outline, then each hole, all closed; to be drawn with `fill-rule="evenodd"` |
/// | set of regions | a path of its own for each region, since a path does not tell which hole is whose |
///
/// What was written reads back as the same vertices to the bit, in the same order. Labels and cachedVectorSize
/// are not told and come back as 0 and 3.
///
/// Reading knows the straight commands M, L, H, V and Z, absolute and relative, repeated without their letters,
/// and numbers in every form that SVG has. Curves and arcs are refused. A path that goes on behind Z without M
/// begins its next contour where the last one began. Every vertex counts: a contour whose last vertex repeats
/// its first keeps both, with Z and without. Source: W3C, Scalable Vector Graphics (SVG) 1.1, 8.3.
///
/// \b Throws: writing gkTextDefs::CannotWrite for NaN, infinities, an open contour or a hole without vertices,
/// holes that have holes, and holes in an outline below two vertices; reading gkTextDefs::BadText, Unsupported
/// (curves, for one) and TooLarge. Both std::bad_alloc. Cost: linear, but for holes when reading:
/// gkRegion::holes compares each with its outline.
namespace gnSvgPath {

std::string write(const gkContour& contour);
std::string write(const gkRegion& region);
/// A path for each region, in order.
std::vector<std::string> write(const gkRegionSet& set);

/// The only contour of the path, open unless it ends with Z; an empty path gives the empty closed contour.
gkContour readContour(std::string_view text);
/// All contours of the path, in order, whatever they mean to each other.
std::vector<gkContour> readContours(std::string_view text);
/// The first contour of the path as outline, the others as holes; each is closed, as filling does it, even when
/// Z is missing. Unsupported when a hole meets the outline.
gkRegion readRegion(std::string_view text);
/// A region for each path, in order. The place that an error tells is in the path that it is of.
gkRegionSet readRegionSet(const std::vector<std::string>& texts);

} // namespace gnSvgPath

#endif
