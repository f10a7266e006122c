/// \file
/// The ordered list of shared regions.
#ifndef GK_CNTR_REGIONST_H
#define GK_CNTR_REGIONST_H

#include "cntr/kept.h"
#include "cntr/region.h"
#include "platform/core/math/matrix.h"

#include <initializer_list>
#include <vector>

class gk_SetSearch;

/// A list of shared, read-only regions that is measured as a whole.
///
/// | part | in == | copied | archived |
/// |---|---|---|---|
/// | regions, in order | yes, by region equality | yes, shared | yes, shared |
/// | cachedVectorSize | no | yes | yes |
/// | kept results | no | yes, repaired sets shared | no |
///
/// Results are kept until the list changes; a region changed through another handle is not seen until then. A
/// set belongs to one thread at a time, even for reads.
///
/// \b Throws: EmptyRegionSet (empty message) where an operation needs a region. What a member region throws
/// passes through, and nothing is kept then. A null handle among the regions throws gkBadPointer when it is
/// asked.
///
/// \b Memory: where std::bad_alloc is thrown, the list stays as it was (add, regions, assignment, questions),
/// or as it was or wholly loaded (loading); kept results may be forgotten. Only isSelfIntersecting() keeps the
/// value reached by then, as after any exception.
class GKCNTR_API gkRegionSet : public virtual gkPersistent, public virtual gkRepBase {
public:
    /// The set of these regions, cachedVectorSize 3; `mode` may replace it by its own repaired form.
    gkRegionSet(
        const std::vector<gkPtrHandle_const<gkRegion>>& regions = std::vector<gkPtrHandle_const<gkRegion>>(),
        gkContourDefs::IntersectionMode mode = gkContourDefs::eKeepIntersections);
    gkRegionSet(const std::vector<gkPtrHandle<gkRegion>>& regions, gkContourDefs::IntersectionMode mode);
    /// The same; lets gkRegionSet({}, mode) mean the empty set.
    gkRegionSet(std::initializer_list<gkPtrHandle_const<gkRegion>> regions,
                gkContourDefs::IntersectionMode mode = gkContourDefs::eKeepIntersections);
    /// A copy; regions and kept repaired sets are shared.
    gkRegionSet(const gkRegionSet& other);
    /// As the copy constructor; when memory fails, *this stays as it was. Does not mark the object changed.
    gkRegionSet& operator=(const gkRegionSet& other);
    ~gkRegionSet() override;

    /// Equal regions in the same order (equality of outlines). cachedVectorSize takes no part.
    bool operator==(const gkRegionSet& other) const;
    bool operator!=(const gkRegionSet& other) const { return !(*this == other); }

    /// A copy of the list.
    std::vector<gkPtrHandle_const<gkRegion>> regions() const { return regions_; }
    /// Replaces the list, then repairs the whole set as `mode` says. When the repair throws, the list has been
    /// replaced.
    void regions(const std::vector<gkPtrHandle_const<gkRegion>>& regions, gkContourDefs::IntersectionMode mode);
    void regions(const std::vector<gkPtrHandle<gkRegion>>& regions, gkContourDefs::IntersectionMode mode);
    /// The same; lets regions({}, mode) empty the set.
    void regions(std::initializer_list<gkPtrHandle_const<gkRegion>> regions,
                 gkContourDefs::IntersectionMode mode);
    /// Appends a region, then repairs the whole set (not the new member alone) as `mode` says. When the repair
    /// throws, the region has been appended.
    void add(const gkPtrHandle_const<gkRegion>& region, gkContourDefs::IntersectionMode mode);

    /// Bound of the map that keeps boxes by transform (default 3): it grows to one entry more, then replaces a
    /// random one.
    long cachedVectorSize() const { return cachedVectorSize_; }
    /// Sets the bound; kept boxes stay. BadParams, and the old bound, when it is negative (empty message) or
    /// does not fit in 32 bits.
    void cachedVectorSize(long size);

    /// Sum of the regions' areas, in order; 0 for the empty set. Kept for each value of `considerHoles`.
    double area(bool considerHoles) const;
    /// Area-weighted mean of the regions' centroids; (0, 0) when the areas sum to within 1e-15 of zero. Kept.
    /// Throws EmptyRegionSet. (A region's own centerOfMass(true) with holes answers truly only once, see
    /// there.)
    gkVector<2> centerOfMass(bool considerHoles) const;
    /// Central second moments of the whole, by gk_InertiaData's sum in order. Kept. Throws EmptyRegionSet, and
    /// what a region with holes throws with `considerHoles`.
    gkMatrix<2> inertiaMatrix(bool considerHoles) const;
    /// Whether some region contains the point; false for the empty set. Keeps no answer, so a region changed
    /// through another handle is seen.
    bool inside(const gkVector<2>& point, bool considerHoles) const;
    /// Least of the regions' distances; NaN distances are passed over. Keeps no answer, as inside(). Throws
    /// EmptyRegionSet.
    /// \image html set_distance.svg
    double distToPoint(const gkVector<2>& point, bool verticesOnly, bool considerHoles, bool zeroInside) const;
    /// Box of all outlines under the transform, kept as gkContour::encloseRect keeps its own. Throws
    /// EmptyRegionSet.
    gkRect encloseRect(const gkXform<2>& xform) const;

    /// True when a region's outline crosses itself or two regions' outlines cross or touch; holes are not
    /// looked at. Kept.
    ///
    /// The flag is set before the computation: after an exception, later calls return the value reached by
    /// then. Meant. Cost: that of the pairs of regions whose boxes overlap.
    bool isSelfIntersecting() const;

    /// Sets `result` to the set in which crossing regions are merged and each region is regularized; to this
    /// set when it is not self-intersecting. `result` may be *this. Kept.
    ///
    /// Merging is one pass: regions i, then j behind i; on a crossing, i becomes the two spliced together and
    /// the last region moves into the place of j, not to be tested against i again. So a chain may stay partly
    /// unmerged; this is meant. Throws what the regions' splice and repair throw. docs/repair.md shows it.
    void regularize(gkRegionSet& result) const;
    /// The same with each region's outer hull.
    /// \image html set_merge.svg
    void outerHull(gkRegionSet& result) const;

    /// Draws every region, in order (gkRegion::draw, which draws nothing for a plain region).
    void draw(gkUITablet& tablet, const gkColor& color, const gkUITablet::Layers& layers) const;

    void forgetHandles() noexcept override;

protected:
    /// Writes or reads the record (docs/format.md).
    virtual void serialize_(gkArchive& archive, unsigned char version);
    /// Called after the list changed; a class with a list of its own rebuilds it here. The set's own forgets
    /// the kept results.
    virtual void makeDataConsistentWithPoints();
    /// Called after such a list changed. The set's own forgets the kept results.
    virtual void makePointsConsistentWithData();
    /// Forgets every kept result and marks the object changed.
    virtual void cleanCacheInfo();
    void dispatchSerialize(gkArchive& archive) override;

    /// Throws EmptyRegionSet when there is no region.
    void checkEmptyRegionSet() const;
    /// Replaces the list and does nothing else: no kept result is forgotten, nothing is marked changed.
    void setRegions(const std::vector<gkPtrHandle_const<gkRegion>>& regions);

private:
    using Regions = std::vector<gkPtrHandle_const<gkRegion>>;
    using RectMap = gk_KeptMap<gkXform<2>, gkRect, gkContour::gsSTLLessPredicate>;

    struct GKCNTR_API Caches {
        Caches();
        Caches(const Caches& other);
        Caches& operator=(Caches&& other) noexcept;
        ~Caches();

        gk_Kept<gkVector<2>> centerOfMassWithHoles;
        gk_Kept<gkVector<2>> centerOfMass;
        gk_Kept<double> areaWithHoles;
        gk_Kept<double> area;
        RectMap encloseRects;
        gk_Kept<gkMatrix<2>> inertiaWithHoles;
        gk_Kept<gkMatrix<2>> inertia;
        gk_Kept<bool> selfIntersecting;
        gk_Kept<gkPtrHandle<gkRegionSet>> regularized;
        gk_Kept<gkPtrHandle<gkRegionSet>> outerHull;
        gk_Owned<gk_SetSearch> search; // not a result: it follows the list, and members' changes as well
    };

    static gkPersistent* make();
    static gk_Instantiator sExemplar;

    void repair(gkContourDefs::IntersectionMode mode);
    void repairOnce(gk_Kept<gkPtrHandle<gkRegionSet>>& kept, bool outerHull, gkRegionSet& result) const;
    void outerHullRegularize(gkRegionSet& result, bool outerHull) const;
    /// What the set owns by pointer is absent until the first question that asks for it.
    void initializePointers();
    void deletePointers();

    Regions regions_;
    std::int32_t cachedVectorSize_ = 3;
    mutable Caches caches_;
};

#endif
