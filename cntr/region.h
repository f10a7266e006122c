/// \file
/// The closed outline of an area, with holes.
#ifndef GK_CNTR_REGION_H
#define GK_CNTR_REGION_H

#include "cntr/contour.h"

#include <initializer_list>

/// A closed outline with zero or more holes.
///
/// | part | in == | copied | archived | mapped |
/// |---|---|---|---|---|
/// | outline (the gkContour part) | yes | yes | yes | yes |
/// | label | no | yes | yes | yes |
/// | holes, as shared handles | no | yes, shared | yes, shared | no |
/// | kept results | no | yes, repaired regions shared | no | no |
///
/// The outline's own measures are the contour's. The hole list holds shared, read-only regions; a hole's own
/// holes are not counted by area() and the like, which answer for one level; only inside() looks at all levels.
///
/// Hiding: names declared here would hide the contour's queries of the same name, so the public ones are
/// brought back.
///
/// The contour is a virtual base, so a class derived from gkRegion makes it: vertices given to gkRegion's
/// constructor alone are dropped, unless the derived constructor gives them to gkContour as well.
///
/// A region belongs to one thread at a time, even for reads, since queries fill caches. Regions that share
/// holes or a kept repaired region may live on different threads only while nothing is asked of the shared
/// object itself; asking with considerHoles fills the holes' caches.
///
/// \b Throws: EmptyContour (empty message) below 3 vertices from area, centerOfMass and inertiaMatrix; point
/// queries are the contour's and ask for 2. Repair asks for none, since so short an outline cannot cross
/// itself.
///
/// \b Memory: as gkContour says. After a failed load the outline is the former or the loaded one, and so are
/// the holes, each for itself.
class GKCNTR_API gkRegion : public virtual gkContour {
public:
    /// A region with this outline, without holes and with label 0; `mode` may replace it by its own repaired
    /// form.
    ///
    /// Throws what outerHull() and regularize() throw.
    gkRegion(const std::vector<gkVector<2>>& vertices = std::vector<gkVector<2>>(),
             gkContourDefs::IntersectionMode mode = gkContourDefs::eKeepIntersections);
    /// The same from a polygon's vertices, a repeated last one included. gkMathError::OutOfRange without
    /// vertices.
    gkRegion(const gkPolygon& polygon, gkContourDefs::IntersectionMode mode);
    /// The same from a contour, whose label and cachedVectorSize come along and whose kept results do not. It
    /// is closed whatever the contour was.
    gkRegion(const gkContour& contour, gkContourDefs::IntersectionMode mode);
    /// A copy; holes and kept repaired regions are shared.
    gkRegion(const gkRegion& other);
    /// As the copy constructor; when memory fails, *this stays as it was.
    ///
    /// Assigning through a gkContour reference replaces the contour part alone: holes and the region's own kept
    /// results stay as they were.
    gkRegion& operator=(const gkRegion& other);
    ~gkRegion() override;

    /// Equality of the contour parts; holes and label are left out on purpose.
    bool operator==(const gkRegion& other) const;
    bool operator!=(const gkRegion& other) const { return !(*this == other); }

    /// The holes, shared and read-only.
    const std::vector<gkPtrHandle_const<gkRegion>>& holes() const { return holes_; }
    /// Replaces the holes.
    ///
    /// First forgets every kept result. Then throws BadParams "holes cannot intersect region" when a hole's
    /// outline meets this outline, a touch in one point included, and keeps the old holes. Holes outside the
    /// outline, in each other or crossing each other are accepted. A null handle throws gkBadPointer. Throws
    /// EmptyContour when there is a hole and the outline has fewer than 2 vertices. Cost: O(n m) for each hole
    /// of m vertices.
    void holes(const std::vector<gkPtrHandle<gkRegion>>& holes);
    void holes(const std::vector<gkPtrHandle_const<gkRegion>>& holes);
    /// The same; lets holes({}) mean no holes.
    void holes(std::initializer_list<gkPtrHandle_const<gkRegion>> holes);

    /// Always true, whatever closed flag the outline was given.
    bool isClosed() const override;
    /// True is accepted and changes nothing; false throws gkContourDefs::RegionCannotBeSetOpen (empty message).
    void isClosed(bool closed) override;

    using gkContour::map;
    /// Sets `result` to the mapped outline with this label. Holes are not mapped, on purpose: `result` has
    /// none. The new outline is not looked at for crossings. `result` may be *this.
    /// \image html map.svg
    void map(const gkXform<2>& xform, gkRegion& result) const;

    using gkContour::draw;
    /// Draws nothing: a plain region has no picture of its own. gkContour::draw with a draw mode draws the
    /// outline.
    virtual void draw(gkUITablet& tablet, const gkColor& color, const gkUITablet::Layers& layers) const;

    /// \name Measures
    /// @{

    /// Area inside the outline (gf_Area) or, with `considerHoles`, that minus the area of every hole's outline.
    /// Kept.
    /// \image html area_with_holes.svg
    double area(bool considerHoles) const;

    /// Centroid of the area inside the outline (gf_CenterOfMass), kept.
    ///
    /// With `considerHoles` and holes, the area-weighted difference; a quirk that is kept on purpose: the first
    /// call after a change returns it, later calls return a stored field that is never written, (0, 0) unless
    /// copied from elsewhere. Infinite or NaN when the holes take all the area.
    /// \image html center_of_mass.svg
    gkVector<2> centerOfMass(bool considerHoles) const;

    /// Central second moments of the area inside the outline (gf_InertiaDataPolygon), kept.
    ///
    /// With `considerHoles` and holes throws BadParams "inertiaMatrix(considerHoles) is not implemented".
    /// \image html moments_ellipse.svg
    gkMatrix<2> inertiaMatrix(bool considerHoles) const;
    /// @}

    /// \name Point queries
    /// @{

    /// Whether the point lies inside, by counting crossings of a ray that stays clear of the vertices.
    ///
    /// Outside the outline's box: false. Within 1e-6 of a vertex: true. The ray goes through the middle of the
    /// first gap between vertex directions that is wider than pi / n and is as long as diameter(eApproximate),
    /// which can fall short of the far side for points outside; edges within 1e-6 of the point are never
    /// counted, so a point on an edge is decided by the others. With `considerHoles` a point inside a hole
    /// (with its own holes considered) is outside; holes that contain each other in a ring throw BadParams.
    /// Throws EmptyContour below 2 vertices. Cost: O(n), then a look
    /// into a grid; O(n log n) for a point within about n / 10^5 of a vertex, or where the ray may end inside.
    /// \image html inside.svg
    bool inside(const gkVector<2>& point, bool considerHoles) const;

    /// Index of the outline's nearest vertex, as gkContour.
    long closestVertexIndex(const gkVector<2>& point) const;
    /// Index of the nearest vertex of the outline (`holeIndex` -1) or, with `considerHoles`, of a strictly
    /// nearer hole, whose place in the list `holeIndex` then tells. Ties keep the outline, then the earlier
    /// hole.
    long closestVertexIndex(const gkVector<2>& point, bool considerHoles, long& holeIndex) const;

    using gkContour::closestPoint;
    /// The nearest vertex (as closestVertexIndex says) or the nearest point of the outline.
    ///
    /// Without `verticesOnly` the holes always take part, whatever `considerHoles` says; this asymmetry is
    /// meant.
    gkVector<2> closestPoint(const gkVector<2>& point, bool verticesOnly, bool considerHoles) const;

    using gkContour::distToPoint;
    /// Distance to closestPoint; 0 with `zeroInside` for a point that is inside.
    double distToPoint(const gkVector<2>& point, bool verticesOnly, bool considerHoles, bool zeroInside) const;
    /// @}

    /// \name Crossings
    /// @{

    /// As gkContour::intersections of the outline.
    std::vector<gkVector<2>> intersections(const gkLineSeg& seg, bool includeEnds) const;
    /// As gkContour::intersections of the outline.
    std::vector<gkVector<2>> intersections(const gkContour& contour) const;
    /// The outline's crossings, followed with `considerHoles` by each hole's, in list order.
    std::vector<gkVector<2>> intersections(const gkLineSeg& seg, bool includeEnds, bool considerHoles) const;
    /// The outline's crossings with the contour, followed with `considerHoles` by each hole's, in list order.
    std::vector<gkVector<2>> intersections(const gkContour& contour, bool considerHoles) const;
    /// @}

    /// \name Repair of an outline that crosses itself
    /// A region whose outline does not cross itself is returned as it is, with holes and label; a repaired one
    /// has no holes and label 0. `result` may be *this. Results are kept. docs/repair.md shows what to expect.
    ///
    /// Both throw BadParams "invalid contour" when no edge can start the walk around the outline, or when the
    /// walk would never come back to its start. Cost: O(n) segment queries for the walk, each O(n); the start
    /// may take O(n) inside tests.
    /// @{

    /// Sets `result` to the boundary that a walk around the outline meets, turning at every crossing: one
    /// outline, which may touch itself in single points.
    /// \image html regularize.svg
    void regularize(gkRegion& result) const;
    /// Sets `result` to that boundary cut at every vertex it visits twice, without the loops that lie inside
    /// others, joined again where they share a vertex.
    ///
    /// EmptyContour when a cut leaves a loop of one vertex, as repeated vertices do. When loops remain that
    /// share no vertex, gstd_assert_ is called with line 618; when its handler returns, the first is the
    /// result.
    /// \image html outer_hull.svg
    void outerHull(gkRegion& result) const;
    /// @}

    void forgetHandles() noexcept override;

protected:
    void checkEmptyContour() const;
    void cleanCacheInfo() override;
    void serialize_(gkArchive& archive, unsigned char version) override;
    void dispatchSerialize(gkArchive& archive) override;
    std::vector<gkVector<2>> intersections(const gkLineSeg& seg, std::vector<int>& segIndices,
                                           bool includeEnds) const;

private:
    friend class gkRegionSet;

    using Holes = std::vector<gkPtrHandle_const<gkRegion>>;
    using Repaired = gk_Kept<gkPtrHandle<gkRegion>>;
    /// What few regions are asked for.
    struct Rare {
        gk_Kept<gkVector<2>> centerOfMassWithHoles; // the value is only ever copied, never computed
        gk_Kept<gkVector<2>> centerOfMass;
        gk_Kept<double> areaWithHoles;
        gk_Kept<gkMatrix<2>> inertiaWithHoles; // never valid: second moments with holes are not offered
        gk_Kept<gkMatrix<2>> inertia;
        Repaired regularized;
        Repaired outerHull;
    };
    struct Caches {
        gk_Kept<double> area;
        gk_Owned<Rare> rare;
    };
    struct Chain;

    static gkPersistent* make();
    static gk_Instantiator sExemplar;

    void initialize(gkContourDefs::IntersectionMode mode);
    /// Nothing to do: a region owns nothing by pointer, its holes and repaired forms are shared by handle. Both
    /// stand where gkContour and gkRegionSet have theirs.
    void initializePointers() {}
    void deletePointers() {}
    void passVersion0(gkArchive& archive);
    void checkHole(const gkRegion& hole) const;
    template <class Ask> std::vector<gkVector<2>> crossings(bool considerHoles, Ask ask) const;
    long insideCount(const gkVector<2>& point, bool bothWays) const;
    bool insideOutline(const gkVector<2>& point) const;
    bool insideChained(const gkVector<2>& point, bool considerHoles, const Chain* outer) const;
    void repairOnce(Repaired Rare::*slot, bool outerHull, gkRegion& result) const;
    void outerHullRegularize(gkRegion& result, bool outerHull) const;
    void splice(const gkRegion& other, gkRegion& result) const;

    Holes holes_;
    mutable Caches caches_;
};

#endif
