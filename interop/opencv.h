/// \file
/// Shapes from and to OpenCV: lists of points, what findContours tells, masks. Header-only; the program that
/// includes it brings OpenCV's core and imgproc modules itself.
#ifndef GK_INTEROP_OPENCV_H
#define GK_INTEROP_OPENCV_H

#include "cntr/regionst.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>
#include <vector>

/// Conversions between shapes and what OpenCV works with. `CvPoint` is cv::Point, cv::Point2f or cv::Point2d.
///
/// Coordinates are taken as they are: OpenCV has the centre of the first pixel at (0, 0). To cv::Point they are
/// rounded to the nearest whole number, halves to the even one, to cv::Point2f to the nearest float. Any number
/// of threads may work on distinct shapes.
///
/// \b Throws: gkContourDefs::BadParams for a coordinate that the wanted type cannot hold (NaN and infinities
/// among whole numbers, too large ones), and std::bad_alloc. Cost: linear, but for holes: gkRegion::holes
/// compares each with its outline.
namespace gnOpenCv {

/// What becomes of a hole that meets its region's outline, as a region cannot have it.
///
/// findContours leads a hole's border along pixels of the region itself; where the region is one pixel thin,
/// outline and hole share that pixel.
enum TouchingHoles : int {
    eRefuseTouchingHoles = 0, ///< gkContourDefs::BadParams, as gkRegion::holes has it
    eDropTouchingHoles = 1    ///< it is left out, and the region is filled there
};

/// \cond
inline double toCoordinate(double value, const double&) { return value; }
inline float toCoordinate(double value, const float&) {
    const float rounded = static_cast<float>(value);
    if (std::isinf(rounded) && !std::isinf(value))
        throw gkContourDefs::BadParams(L"a coordinate is beyond the range of float");
    return rounded;
}
inline int toCoordinate(double value, const int&) {
    const double rounded = std::nearbyint(value);
    if (!(rounded >= -2147483648.0 && rounded <= 2147483647.0))
        throw gkContourDefs::BadParams(L"a coordinate is beyond the range of int");
    return static_cast<int>(rounded);
}
/// \endcond

/// The vertices as points of OpenCV; a closed contour's first one is not repeated.
template <class CvPoint> std::vector<CvPoint> toPoints(const std::vector<gkVector<2>>& vertices) {
    std::vector<CvPoint> points;
    points.reserve(vertices.size());
    for (const gkVector<2>& v : vertices)
        points.emplace_back(toCoordinate(v.x(), typename CvPoint::value_type()),
                            toCoordinate(v.y(), typename CvPoint::value_type()));
    return points;
}

/// The points as vertices, exactly.
template <class CvPoint> std::vector<gkVector<2>> toVertices(const std::vector<CvPoint>& points) {
    std::vector<gkVector<2>> vertices;
    vertices.reserve(points.size());
    for (const CvPoint& p : points) vertices.emplace_back(static_cast<double>(p.x), static_cast<double>(p.y));
    return vertices;
}

/// A contour of these points. findContours closes its own; curves of approxPolyDP may be open.
template <class CvPoint>
gkContour toContour(const std::vector<CvPoint>& points, bool closed, unsigned long label = 0) {
    return gkContour(toVertices(points), closed, label);
}

/// A region of an outline and holes.
template <class CvPoint>
gkRegion toRegion(const std::vector<CvPoint>& outline, const std::vector<std::vector<CvPoint>>& holes = {},
                  TouchingHoles touching = eRefuseTouchingHoles) {
    gkRegion region(toVertices(outline));
    std::vector<gkPtrHandle_const<gkRegion>> accepted;
    for (const std::vector<CvPoint>& points : holes) {
        const gkPtrHandle_const<gkRegion> hole(new gkRegion(toVertices(points)));
        if (touching == eDropTouchingHoles && !region.intersections(*hole).empty()) continue;
        accepted.push_back(hole);
    }
    if (!accepted.empty()) region.holes(accepted);
    return region;
}

/// The regions of what findContours has found with RETR_CCOMP or RETR_TREE, in the order of the contours.
///
/// A contour without a parent is an outline, its children are holes, their children outlines of regions of
/// their own, and so on. With RETR_LIST and RETR_EXTERNAL every contour becomes a region without holes. Throws
/// gkContourDefs::BadParams unless there is one link for each contour and every index in them is of a contour.
template <class CvPoint>
gkRegionSet toRegionSet(const std::vector<std::vector<CvPoint>>& contours,
                        const std::vector<cv::Vec4i>& hierarchy,
                        TouchingHoles touching = eRefuseTouchingHoles) {
    constexpr int kParent = 3;
    const auto demand = [](bool holds) {
        if (!holds) throw gkContourDefs::BadParams(L"the hierarchy is not of these contours");
    };
    const std::size_t count = contours.size();
    demand(hierarchy.size() == count);
    // Levels from the parents alone; links that lead round in a circle never end in a contour without one.
    std::vector<std::vector<std::vector<CvPoint>>> holes(count);
    std::vector<bool> isHole(count);
    for (std::size_t i = 0; i < count; ++i) {
        std::size_t level = 0;
        for (int at = hierarchy[i][kParent]; at >= 0; at = hierarchy[static_cast<std::size_t>(at)][kParent]) {
            demand(static_cast<std::size_t>(at) < count && level < count);
            ++level;
        }
        isHole[i] = level % 2 == 1;
        if (isHole[i]) holes[static_cast<std::size_t>(hierarchy[i][kParent])].push_back(contours[i]);
    }
    std::vector<gkPtrHandle_const<gkRegion>> regions;
    for (std::size_t i = 0; i < count; ++i) {
        if (!isHole[i]) regions.emplace_back(new gkRegion(toRegion(contours[i], holes[i], touching)));
    }
    return gkRegionSet(regions);
}

/// The outlines and holes of a set with links as findContours gives them for RETR_CCOMP; toRegionSet of both is
/// the set again where coordinates need no rounding. A hole's own holes are not told.
template <class CvPoint>
void toContours(const gkRegionSet& set, std::vector<std::vector<CvPoint>>& contours,
                std::vector<cv::Vec4i>& hierarchy) {
    std::vector<std::vector<CvPoint>> lists;
    std::vector<cv::Vec4i> links; // next, previous, first child, parent
    const auto append = [&](const gkRegion& region, int previous, int parent) {
        const int index = static_cast<int>(lists.size());
        lists.push_back(toPoints<CvPoint>(region.points()));
        links.emplace_back(-1, previous, -1, parent);
        if (previous >= 0) links[static_cast<std::size_t>(previous)][0] = index;
        return index;
    };
    int previousOutline = -1;
    for (const gkPtrHandle_const<gkRegion>& region : set.regions()) {
        const int outline = append(*region, previousOutline, -1);
        int previousHole = -1;
        for (const gkPtrHandle_const<gkRegion>& hole : region->holes()) {
            const bool isFirst = previousHole < 0;
            previousHole = append(*hole, previousHole, outline);
            if (isFirst) links[static_cast<std::size_t>(outline)][2] = previousHole;
        }
        previousOutline = outline;
    }
    contours.swap(lists);
    hierarchy.swap(links);
}

/// Sets the pixels of `mask` (CV_8UC1) that belong to the region to `value`; others stay.
///
/// cv::fillPoly decides, with even-odd filling and vertices rounded to the nearest pixel: every pixel between
/// outline and holes, and every pixel that a border runs through, a hole's too. So what findContours found in a
/// picture fills the same pixels again. Throws gkContourDefs::BadParams for another kind of picture.
inline void fill(cv::Mat& mask, const gkRegion& region, unsigned char value = 255) {
    if (mask.type() != CV_8UC1) throw gkContourDefs::BadParams(L"a mask is of type CV_8UC1");
    std::vector<std::vector<cv::Point>> rings;
    const auto append = [&](const gkRegion& ring) {
        if (!ring.points().empty()) rings.push_back(toPoints<cv::Point>(ring.points()));
    };
    append(region);
    for (const gkPtrHandle_const<gkRegion>& hole : region.holes()) append(*hole);
    if (!rings.empty() && !mask.empty()) cv::fillPoly(mask, rings, cv::Scalar(value));
}

/// fill() of each region, in order: where regions overlap, the union.
inline void fill(cv::Mat& mask, const gkRegionSet& set, unsigned char value = 255) {
    for (const gkPtrHandle_const<gkRegion>& region : set.regions()) fill(mask, *region, value);
}

/// A new mask of this size, 255 where the shape, a region or a set, is and 0 elsewhere.
template <class Shape> cv::Mat toMask(const Shape& shape, const cv::Size& size) {
    cv::Mat mask(size, CV_8UC1, cv::Scalar(0));
    fill(mask, shape);
    return mask;
}

} // namespace gnOpenCv

#endif
