/// \file
/// Every value and shape as text for people: messages, logs and the failures of tests.
#ifndef GK_INTEROP_PRINT_H
#define GK_INTEROP_PRINT_H

#include "ch_core/cntrtmpl.h"
#include "cntr/moments.h"
#include "cntr/region.h"
#include "cntr/regionst.h"
#include "platform/core/math/angle.h"
#include "platform/core/math/matrix.h"
#include "platform/core/math/pair.h"
#include "platform/core/math/vector.h"
#include "platform/core/math/xform.h"
#include "platform/core/shapes/circle.h"
#include "platform/core/shapes/ellipse.h"
#include "platform/core/shapes/line.h"
#include "platform/core/shapes/line_seg.h"
#include "platform/core/shapes/point.h"
#include "platform/core/shapes/polygon.h"
#include "platform/core/shapes/rect.h"
#include "platform/core/transform/rigid.h"
#include "platform/core/transform/xform_linear.h"
#include "platform/display/color.h"
#include "platform/image/edgelet.h"

#include <iosfwd>
#include <vector>

/// \name One line of text
/// Numbers are gnText::number: the shortest digits that read back as the same double, whatever precision,
/// flags, fill, width and locale the stream has; the width is set back to 0. The text is made first and then
/// written unformatted, so a stream that fails gets a part of it or nothing, and sets its own error bits.
/// Cost: linear.
/// @{

/// `(1, 2)`
std::ostream& operator<<(std::ostream& out, const gkVector<2>& vector);
/// `(1, 2)`
std::ostream& operator<<(std::ostream& out, const gkPoint& point);
/// `(1, 2)`
std::ostream& operator<<(std::ostream& out, const gkPair<double>& pair);
/// `(1, 2)`
std::ostream& operator<<(std::ostream& out, const gkPair<long>& pair);
/// `(1, 2), (3, 4)`; `no vertices` for an empty list.
///
/// Without it a list of vertices would turn into a region on its way to the stream.
std::ostream& operator<<(std::ostream& out, const std::vector<gkVector<2>>& vertices);

/// `1.5 rad`
std::ostream& operator<<(std::ostream& out, const gkRadian& angle);
/// `90 deg`
std::ostream& operator<<(std::ostream& out, const gkDegree& angle);
/// `64/256 turn`
std::ostream& operator<<(std::ostream& out, const gkAngle8& angle);

/// `[1 2; 3 4]`, row by row.
std::ostream& operator<<(std::ostream& out, const gkMatrix<2>& matrix);
/// `[1 0; 0 1] + (5, 6)`
std::ostream& operator<<(std::ostream& out, const gkXform<2>& xform);
/// `turn 0.5 rad, move (1, 2)`
std::ostream& operator<<(std::ostream& out, const gk2Rigid& motion);
/// As gkXform<2>.
std::ostream& operator<<(std::ostream& out, const gk2XformLinear& xform);

/// `line through (0, 0) along (1, 0)`
std::ostream& operator<<(std::ostream& out, const gkLine& line);
/// `segment (0, 0) to (8, 6)`
std::ostream& operator<<(std::ostream& out, const gkLineSeg& segment);
/// `rect (0, 0) to (8, 6)`, from ul() to lr().
std::ostream& operator<<(std::ostream& out, const gkRect& rect);
/// `circle about (0, 0), radius 1`
std::ostream& operator<<(std::ostream& out, const gkCircle& circle);
/// `ellipse about (0, 0), radii (2, 1), rotation 0.5 rad`, then `, reversed` and `, hole` where it is one.
std::ostream& operator<<(std::ostream& out, const gkEllipse& ellipse);
/// `polygon, even-odd: (0, 0), (1, 0)` or `polygon, non-zero: ...`
std::ostream& operator<<(std::ostream& out, const gkPolygon& polygon);
/// `edge point (1, 2), magnitude 7, angle 64/256 turn`
std::ostream& operator<<(std::ostream& out, const gkEdgelet& edgelet);
/// `#ffa500, opacity 255`
std::ostream& operator<<(std::ostream& out, const gkColor& color);
/// `area 4, centre of mass (1, 1), moments [1 0; 0 1]`
std::ostream& operator<<(std::ostream& out, const gk_InertiaData& data);

/// `closed contour, label 0: (0, 0), (4, 0)` or `open contour, ...`
std::ostream& operator<<(std::ostream& out, const gkContour& contour);
/// `region, label 0: (0, 0), ...`, then for each hole `; hole, label 1: (1, 1), ...` or `; null hole`.
///
/// A hole's own holes are only counted, `; hole, label 1, with holes of its own, 2: ...`: handles may lead back
/// to where they began.
std::ostream& operator<<(std::ostream& out, const gkRegion& region);
/// `set of regions, 2: [region, ...], [region, ...]`; a null handle is `[null]`.
std::ostream& operator<<(std::ostream& out, const gkRegionSet& set);
/// As gkContour, of the points, then `; data: [edge point ...], [edge point ...]`.
std::ostream& operator<<(std::ostream& out, const gkContourT<gkEdgelet>& contour);
/// As gkRegion, of outline and plain holes, then the data as gkContourT and each edgelet hole as
/// `; edgelet hole, label 1: (1, 1), ...`.
std::ostream& operator<<(std::ostream& out, const gkRegionT<gkEdgelet>& region);
/// As gkRegionSet, with the edgelet regions of regionsT().
std::ostream& operator<<(std::ostream& out, const gkRegionSetT<gkEdgelet>& set);
/// @}

#endif
