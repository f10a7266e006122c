/// \file
/// The open or closed polyline: vertices, a label, and kept results of everything measured on them.
#ifndef GK_CNTR_CONTOUR_H
#define GK_CNTR_CONTOUR_H

#include "cntr/change_mark.h"
#include "cntr/contour_defs.h"
#include "cntr/kept.h"
#include "cntr/kept_boxes.h"
#include "cntr/kept_map.h"
#include "platform/core/math/angle.h"
#include "platform/core/math/pair.h"
#include "platform/core/math/vector.h"
#include "platform/core/math/xform.h"
#include "platform/core/object/handle.h"
#include "platform/core/object/persistent.h"
#include "platform/core/object/rep_base.h"
#include "platform/core/shapes/circle.h"
#include "platform/core/shapes/ellipse.h"
#include "platform/core/shapes/line_seg.h"
#include "platform/core/shapes/polygon.h"
#include "platform/core/shapes/rect.h"
#include "platform/display/color.h"
#include "platform/display/uitablet.h"
#include "platform/export.h"

#include <cstdint>
#include <memory>
#include <vector>

class gkRegion;
class gk_OutlineSearch;
class gk_RegionBoxes;
struct gk_SegmentCache;

/// An ordered list of vertices that is either open (a polyline) or closed (the last vertex joins the first).
///
/// | part | in == | copied | archived |
/// |---|---|---|---|
/// | vertices, closed flag, cachedVectorSize | yes | yes | yes |
/// | label | no | yes | yes |
/// | kept results | no | yes | no |
///
/// Results are kept in the object until the geometry changes (points(), isClosed(bool), loading); const queries
/// fill them. So one contour belongs to one thread at a time, even for reads; distinct contours, also copies
/// that share a kept hull, are independent. A library built for debugging calls gstd_assert_ when a shape is
/// used from two threads at once.
///
/// Segments: a closed contour of n vertices has n, segment k ending at vertex k, segment 0 being the closing
/// one; an open contour has n - 1, segment k starting at vertex k. Ties go to the lowest index everywhere.
///
/// Units are those of the vertices. Tolerances are absolute (1e-15 for equal points, 1e-6 for touching), so
/// coordinates in metres are best scaled up first. Vertices may be NaN or infinite: nothing hangs or reads out
/// of bounds, and each operation says what it then returns. No vertex list longer than 2^31 - 1 is indexed:
/// BadParams is thrown instead.
///
/// Costs are those of a fresh contour, for which a question scans; from the second or some later question of a
/// kind on an index answers, kept like any other result. "Then" tells the cost from there on where vertices
/// spread evenly; a shape with all vertices in a few places may still cost a scan. The bits of an answer do not
/// depend on it.
///
/// \b Throws: EmptyContour (empty message) where an operation needs 2 vertices and has fewer; nothing is kept
/// then.
///
/// \b Memory: any operation but setting flag, label and bound may throw std::bad_alloc. A question then leaves
/// the contour as it was, and so do setting vertices, assignment and mapping; loading leaves it as it was or
/// wholly loaded. Asked again, it answers as if nothing had happened.
class GKCNTR_API gkContour : public virtual gkPersistent, public virtual gkRepBase {
public:
    /// Orders the keys of the maps that keep results, exactly and without tolerance.
    struct GKCNTR_API gsSTLLessPredicate {
        /// By raw value: 0 and 2 pi are different keys.
        bool operator()(const gkRadian& a, const gkRadian& b) const;
        /// By translation x, y, then matrix elements (0,0), (0,1), (1,0). Element (1,1) takes no part, on
        /// purpose: two transforms that differ only there are one key and share one kept result.
        bool operator()(const gkXform<2>& a, const gkXform<2>& b) const;
        /// As vectors: by x, then by y.
        bool operator()(const gkPair<long>& a, const gkPair<long>& b) const;
        /// By x, then by y.
        bool operator()(const gkVector<2>& a, const gkVector<2>& b) const;
    };

    /// An empty, closed contour with label 0.
    gkContour();
    /// A contour with these vertices; BadParams when the label does not fit in 32 bits.
    gkContour(const std::vector<gkVector<2>>& points, bool closed, unsigned long label);
    /// The polygon's vertices, a repeated last one included; closed exactly when its first and last vertex are
    /// equal within 1e-15. gkMathError::OutOfRange for a polygon without vertices.
    gkContour(const gkPolygon& polygon, unsigned long label);
    /// A copy, kept results included; what is held through handles is shared.
    gkContour(const gkContour& other);
    /// As the copy constructor; when memory fails, *this stays as it was.
    gkContour& operator=(const gkContour& other);
    ~gkContour() override;

    const std::vector<gkVector<2>>& points() const { return value_.points; }
    /// Replaces the vertices and forgets every kept result.
    virtual void points(const std::vector<gkVector<2>>& points);

    virtual bool isClosed() const;
    /// Opens or closes the contour and forgets every kept result.
    virtual void isClosed(bool closed);

    /// The user's label.
    unsigned long label() const { return value_.label; }
    /// Sets the label; kept results stay. BadParams, and the old label, when it does not fit in 32 bits.
    void label(unsigned long label);

    /// Bound of the maps that keep results by angle and by transform (default 3): each grows to one entry more,
    /// then replaces a random one.
    long cachedVectorSize() const { return value_.cachedVectorSize; }
    /// Sets the bound; kept results stay. BadParams, and the old bound, when it is negative (empty message) or
    /// does not fit in 32 bits.
    void cachedVectorSize(long size);

    /// The vertices as a polygon; of a closed contour with the first vertex once more at the end.
    gkPolygon polygon() const;

    /// Sets `out` to this contour with every vertex mapped by `xform`; closed flag and label are taken over.
    /// `out` gets the default cachedVectorSize 3 whatever this contour's is; the reset is meant. `out` may be
    /// *this.
    /// \image html map.svg
    void map(const gkXform<2>& xform, gkContour& out) const;

    /// Same closed flag, exactly equal vertices, same cachedVectorSize. The label is left out on purpose.
    bool operator==(const gkContour& other) const;
    bool operator!=(const gkContour& other) const { return !(*this == other); }

    /// \name Measures
    /// Each is computed once and kept until the geometry changes.
    /// @{

    /// Sum of the segments' lengths; 0 without vertices, never throws for lack of them. Cost: O(n).
    /// \image html length.svg
    double length() const;

    /// Mean of the contour's points, every segment's midpoint weighted by its length.
    ///
    /// NaN or infinite when all vertices coincide (a division by zero). Throws EmptyContour. Cost: O(n).
    /// \image html mean_position.svg
    gkVector<2> meanPosition() const;

    /// The circle over the farthest pair of vertices need not hold every vertex: for an equilateral triangle it
    /// does not.
    ///
    /// eExact: centre and half distance of the first pair that is farthest apart, O(n log n) where few vertices
    /// are near the hull. When no pair is farther apart than 0 (one vertex, all equal, none) the slot keeps
    /// what it held, at first the default circle; this is meant. eApproximate: centred on the first vertex and
    /// reaching the farthest one, O(n); it does hold every vertex. Throws BadParams "diameterMode is not one of
    /// the valid enums"; EmptyContour for eApproximate without vertices. Vertices with NaN never make a pair.
    /// \image html diameter_exact.svg
    gkCircle encloseCircle(gkContourDefs::DiameterMode mode) const;

    /// Twice the radius of encloseCircle(mode): for eExact the greatest distance between two vertices, for
    /// eApproximate at least that and at most twice as much. Throws as encloseCircle.
    /// \image html diameter_approximate.svg
    double diameter(gkContourDefs::DiameterMode mode) const;

    /// Index of the vertex that lies furthest in the direction `angle`, the lowest index among equals.
    ///
    /// Kept per angle, compared as raw values. Axis directions (cosine and sine within 1e-15) compare the
    /// coordinate itself. -1 when no vertex has a finite score (NaN coordinates). Throws EmptyContour. Cost:
    /// O(n), then O(vertices near the hull).
    /// \image html extremal_vertex.svg
    long extremalVertexIndex(const gkRadian& angle) const;

    /// The vertex at extremalVertexIndex(angle). Throws EmptyContour; BadParams when that index is -1.
    /// \image html extremal_vertex.svg
    gkVector<2> extremalVertexPosition(const gkRadian& angle) const;

    /// Axis-aligned box of the vertices mapped by `xform`, in the transform's output space.
    ///
    /// Kept per transform; two transforms that differ only in matrix element (1,1) share one kept box, on
    /// purpose (see gsSTLLessPredicate). A transform within 1e-15 of the identity takes the vertices as they
    /// are. NaN coordinates are passed over, but one of the first vertex stays. Throws EmptyContour. Cost:
    /// O(n), then O(vertices near the hull).
    /// \image html enclose_rect_turned.svg
    gkRect encloseRect(const gkXform<2>& xform) const;

    /// Sets `out` to the convex hull of the vertices: counter-clockwise from the lowest x, without collinear
    /// vertices.
    ///
    /// Fewer than 3 vertices remain for degenerate input. Vertices with NaN or infinities are left out. `out`
    /// may be *this. Throws EmptyContour. Cost: O(n log n). Source: Andrew's monotone chain, 1979.
    /// \image html convex_hull.svg
    void convexHull(gkRegion& out) const;

    /// The ellipse fitted to the vertices and its error, as gf_FitEllipse; on a throw the outputs stay as they
    /// were.
    ///
    /// Throws EmptyContour and what the fitter throws. Cost: O(n).
    /// \image html fit_ellipse.svg
    void fitEllipse(gkEllipse& ellipse, double& error) const;
    /// @}

    /// \name Proximity
    /// @{

    /// The point of the contour nearest to `p` or, with `verticesOnly`, the nearest vertex.
    ///
    /// On the first of equally near segments; a segment of length zero counts as its point. (0, 0) when no
    /// segment has a distance below infinity (NaN or infinite coordinates). Throws EmptyContour. Cost: O(n),
    /// then O(log n). Source: Ericson, Real-Time Collision Detection, 5.1.2.
    /// \image html closest_point.svg
    gkVector<2> closestPoint(const gkVector<2>& p, bool verticesOnly) const;

    /// Index of the vertex nearest to `p`, the lowest among equals; 0 when no distance is below infinity.
    /// Throws EmptyContour. Cost: O(n), then O(log n).
    /// \image html closest_vertex.svg
    long closestVertexIndex(const gkVector<2>& p) const;

    /// Distance from `p` to closestPoint(p, verticesOnly). Being inside does not make it zero. Throws
    /// EmptyContour.
    /// \image html distance.svg
    double distToPoint(const gkVector<2>& p, bool verticesOnly) const;

    /// Indices of all vertices strictly nearer to `p` than `tolerance`, which must be above 0.
    ///
    /// They come cell by cell (columns outside, rows inside) of a grid of that cell width around `p`, by index
    /// within a cell: not sorted overall. Throws EmptyContour; where a coordinate divided by the tolerance is
    /// NaN, gstd_assert_ is called. Cost: O(n) for a new tolerance, then O(log n + k log k) for k vertices near
    /// `p`.
    /// \image html vertex_index.svg
    std::vector<int> vertexIndex(const gkVector<2>& p, double tolerance) const;
    /// @}

    /// \name Crossings
    /// @{

    /// The points where `seg` crosses this contour, ordered along `seg`.
    ///
    /// A crossing at a vertex appears twice, once for each segment that meets there; parallel and collinear
    /// segments give none. Without `includeEnds`, contour segments within 1e-6 of an end of `seg` are left out.
    /// A point counts when it is nearer than 1e-6 to both segments. The contour's own box comes from
    /// encloseRect of the identity, kept box and all: after encloseRect of a transform that differs from the
    /// identity only in element (1,1), that box is the one used. This is meant. Throws EmptyContour. Cost:
    /// O(n), then O(log n + segments beside `seg`); and O(k log k) for k crossings, up to O(k^2) where
    /// some are equally far along `seg`.
    /// \image html crossings_segment.svg
    std::vector<gkVector<2>> intersections(const gkLineSeg& seg, bool includeEnds) const;

    /// The crossings of every segment of `other` with this contour, concatenated in the order of other's
    /// segments, ends included. `other` may have any number of vertices. Throws EmptyContour. Cost:
    /// O((n + m) log n + crossings), O(n m) for small contours.
    /// \image html crossings_contour.svg
    std::vector<gkVector<2>> intersections(const gkContour& other) const;

    /// True when a segment of the contour crosses another one that does not touch its ends (within 1e-6).
    ///
    /// A vertex lying on another segment is found from that segment's side; collinear overlaps are not found.
    /// False for fewer than 2 vertices; never throws for the contour's shape. Cost: O(n log n) and the
    /// pairs of segments that are near each other; kept.
    /// \image html crosses_itself.svg
    bool isSelfIntersecting() const;
    /// @}

    /// Draws every segment, in segment order, with gkUITablet::drawLineSeg; every mode draws the same.
    virtual void draw(gkUITablet& tablet, gkContourDefs::DrawMode mode, const gkColor& color,
                      const gkUITablet::Layers& layer) const;

protected:
    void dispatchSerialize(gkArchive& archive) override;
    /// Writes or reads the record (docs/format.md). gkArchive::UnknownVersion for a version other than 0 and 1.
    virtual void serialize_(gkArchive& archive, unsigned char version);
    /// Called after the vertices changed; a class with data per vertex rebuilds them here. The contour's own
    /// forgets the kept results.
    virtual void makeDataConsistentWithPoints();
    /// Called after such data changed, to rebuild the vertices. The contour's own forgets the kept results.
    virtual void makePointsConsistentWithData();
    /// Forgets every kept result and marks the object changed.
    virtual void cleanCacheInfo();

    /// Replaces the vertices and forgets the kept results, without calling makeDataConsistentWithPoints().
    void setPoints(const std::vector<gkVector<2>>& points);
    /// Throws EmptyContour below 2 vertices. Not virtual: a region's contour queries ask for 2, its own for 3.
    void checkEmptyContour() const;

    /// Builds the kept segments when they are not there.
    void computeLineSegs() const;
    /// Every segment, as numbered; a segment whose ends are equal within 1e-15 is a default placeholder.
    const std::vector<gkLineSeg>& lineSegs() const;
    /// For every segment, whether its ends differ by more than 1e-15.
    const std::vector<bool>& validLine() const;
    /// Median of the segments' lengths, the upper of the two middle ones for an even count. Throws
    /// EmptyContour.
    double medianFeatureSize() const;
    /// As the public intersections(seg, includeEnds); `segIndices` tells the contour segment of each point.
    std::vector<gkVector<2>> intersections(const gkLineSeg& seg, std::vector<int>& segIndices,
                                           bool includeEnds) const;
    /// What answers questions about the outline's vertices; the library's own.
    gk_OutlineSearch& search() const;
    /// The same if there is one already, else null.
    const gk_OutlineSearch* knownSearch() const { return caches_.search.get(); }
    /// The box kept under the identity's key, null when there is none.
    const gkRect* keptBox() const { return caches_.encloseRects.underIdentity(); }

private:
    friend class gk_RegionBoxes;

    struct Value {
        std::uint32_t label = 0;
        bool closed = true;
        std::vector<gkVector<2>> points;
        std::int32_t cachedVectorSize = 3;
    };

    struct EllipseFit {
        gkEllipse ellipse;
        double error = 0.0;
    };

    using RectMap = gk_KeptBoxes<gsSTLLessPredicate>;
    using ExtremalMap = gk_KeptMap<gkRadian, std::int32_t, gsSTLLessPredicate>;

    /// What few contours are asked for.
    struct Rare {
        gk_Kept<gkCircle> exactCircle; // outlives its flag: the search may leave the last
        gk_Kept<gkVector<2>> meanPosition;
        gk_Kept<gkPtrHandle<gkRegion>> convexHull; // the last hull stays alive until it is replaced
        ExtremalMap extremalVertices;
        gk_Kept<EllipseFit> ellipseFit;
        gk_Kept<double> medianFeatureSize;
    };

    struct GKCNTR_API Caches {
        Caches();
        Caches(const Caches& other);
        Caches& operator=(Caches&& other) noexcept;
        ~Caches();

        gk_Kept<double> length;
        gk_Kept<bool> selfIntersecting;
        gk_ChangeMark mark;
        gk_Kept<gkCircle> circleAroundFirst; // outlives its flag, as the exact one does
        RectMap encloseRects;
        gk_Owned<gk_SegmentCache> segments;
        gk_Owned<gk_OutlineSearch> search;
        gk_Owned<Rare> rare;
    };

    static gkPersistent* make();
    static gk_Instantiator sExemplar;

    static void passValue(gkArchive& archive, Value& value, unsigned char version);
    /// The maps and grids that the contour owns by pointer are absent until the first query that fills them.
    void initializePointers();
    void deletePointers();
    /// Counts as a change when an index could take the kept boxes for others than they now become.
    void noteNewBox(const gkXform<2>& xform) const;

    Value value_;
    mutable Caches caches_;
};

#endif
