/// \file
/// Contours, regions and region sets whose vertices carry edge points.
///
/// The edge points (the data) live in the space of the image they were found in, the vertices (the points) in
/// another; a transform maps points to data. All measures and queries are of the points. Only the gkEdgelet
/// forms exist; they are compiled in the library.
#ifndef GK_CH_CORE_CNTRTMPL_H
#define GK_CH_CORE_CNTRTMPL_H

#include "cntr/region.h"
#include "cntr/regionst.h"
#include "platform/core/object/instantiator.h"
#include "platform/core/transform/xform_base.h"
#include "platform/export.h"
#include "platform/image/edgelet.h"

#include <vector>

template <class Datum> class gkRegionT;

/// A contour with one edge point per vertex; it starts closed.
///
/// Setting the data derives the points from them, setting the points derives the data (magnitude and angle then
/// become 0). The transform is the object's own clone, shared by its copies, and changes only by assignment and
/// loading. Without one (default-constructed, or loaded from a version-0 record) deriving either from a list
/// that is not empty throws gkBadPointer.
///
/// \b Memory: when std::bad_alloc is thrown while one list is derived from the other, or while loading or
/// assigning, data and points may no longer belong together. Each is a whole list of a former or new value, or
/// part of one, questions about the points are answered for the points there are, and setting either list mends
/// it.
/// \image html edgelets.svg
template <class Datum> class gkContourT : public virtual gkContour {
public:
    using Instantiator = gk_Instantiator;

    /// No data and no transform.
    gkContourT();
    /// These data, the identity as transform.
    explicit gkContourT(const std::vector<Datum>& data);
    /// These data and a clone of the transform, or the identity for a null handle.
    gkContourT(const std::vector<Datum>& data, const gkPtrHandle_const<gk2XformBase>& dataFromPointsXform);
    /// A copy; the transform is shared.
    gkContourT(const gkContourT& other);
    gkContourT& operator=(const gkContourT& other);
    ~gkContourT() override;

    const std::vector<Datum>& data() const { return data_; }
    /// Replaces the data and derives the points. What the transform throws passes through; the data are then
    /// replaced already.
    void data(const std::vector<Datum>& data);

    /// The transform from points to data positions, or null.
    gkPtrHandle_const<gk2XformBase> dataFromPointsXform() const { return dataFromPointsXform_; }

    /// The datum of a point: its image, magnitude 0, angle 0. Throws gkBadPointer without a transform.
    Datum datum(const gkVector<2>& point);
    /// The point of a datum, by the inverse transform, which is made once. Throws gkBadPointer without a
    /// transform and what inverting throws.
    gkVector<2> point(const Datum& datum);

    /// Equal vertices and the very same transform object. Two contours built from one handle hold two clones
    /// and are unequal, on purpose; data, closed flag, label and cachedVectorSize take no part.
    bool operator==(const gkContourT& other) const;
    bool operator!=(const gkContourT& other) const { return !(*this == other); }

    /// Not offered: always throws gkPel::BadWindow and leaves `result` alone.
    void mapT(const gkXform<2>& xform, gkContourT& result) const;
    /// Not offered: always throws gkPel::BadWindow and leaves `result` alone.
    void convexHullT(gkRegionT<Datum>& result) const;

    static gkPersistent* make();
    static Instantiator sExemplar;

protected:
    void dispatchSerialize(gkArchive& archive) override;
    void serialize_(gkArchive& archive, unsigned char version) override;
    void makeDataConsistentWithPoints() override;
    void makePointsConsistentWithData() override;

private:
    gkPtrHandle_const<gk2XformBase> dataFromPointsXform_;
    std::vector<Datum> data_;
    bool inverseValid_ = false;
    gkPtrHandle_const<gk2XformBase> pointsFromDataXform_;
};

/// A region with one edge point per outline vertex.
///
/// Its own hole list is of edgelet regions and apart from gkRegion's: area and the like do not see it. It takes
/// no part in copies and assignments, which are of the gkContourT and the gkRegion part alone, nor in the
/// archive, which keeps the gkRegion part: a loaded one has its outline and plain holes, but no data and no
/// transform. As to memory, the same holds as for gkContourT.
template <class Datum> class gkRegionT : public gkContourT<Datum>, public gkRegion {
public:
    using Instantiator = gk_Instantiator;
    using Holes = std::vector<gkPtrHandle_const<gkRegionT<Datum>>>;

    /// No data, no transform, no outline.
    gkRegionT();
    /// The contour's data and transform, but an empty outline: nothing is derived, on purpose.
    gkRegionT(const gkContourT<Datum>& contour, unsigned long label);
    /// These data, the identity as transform, the outline derived from them.
    gkRegionT(const std::vector<Datum>& data, unsigned long label);
    /// These data and a clone of the transform (the identity for a null handle), the outline derived from them.
    gkRegionT(const std::vector<Datum>& data, gkPtrHandle_const<gk2XformBase>& dataFromPointsXform,
              unsigned long label);
    /// A copy of the gkContourT and the gkRegion part; not of the edgelet holes.
    gkRegionT(const gkRegionT& other);
    /// Assigns the gkContourT and the gkRegion part; the edgelet holes stay.
    gkRegionT& operator=(const gkRegionT& other);
    ~gkRegionT() override;

    /// As gkContourT; holes of either kind take no part.
    bool operator==(const gkRegionT& other) const;
    bool operator!=(const gkRegionT& other) const { return !(*this == other); }

    /// The edgelet holes.
    const Holes& holes() const { return holes_; }
    /// Replaces the edgelet holes, unchecked, and forgets every kept result.
    void holes(const Holes& holes);

    bool isClosed() const override;
    /// True is accepted and changes nothing; false throws gkContourDefs::RegionCannotBeSetOpen.
    void isClosed(bool closed) override;

    using gkRegion::draw;
    /// Draws one stroke of length 1 per edgelet, centred on its position and across its gradient, along the
    /// edge; neither outline nor holes.
    void draw(gkUITablet& tablet, const gkColor& color, const gkUITablet::Layers& layers) const override;

    /// Not offered: always throws gkPel::BadWindow.
    void mapT(const gkXform<2>& xform, gkRegionT& result) const;
    /// Not offered: always throws gkPel::BadWindow.
    void regularizeT(gkRegionT& result) const;

    void forgetHandles() noexcept override;

    static gkPersistent* make();
    static Instantiator sExemplar;

protected:
    void dispatchSerialize(gkArchive& archive) override;
    void serialize_(gkArchive& archive, unsigned char version) override;
    void makeDataConsistentWithPoints() override;
    void makePointsConsistentWithData() override;
    void cleanCacheInfo() override;

private:
    Holes holes_;
};

/// A region set with a list of edgelet regions beside the plain one; both hold the same objects.
///
/// Setting plain regions through the base makes new edgelet regions without a transform, so that gkBadPointer
/// is thrown for any outline that is not empty; build the set from edgelet regions instead.
///
/// \b Memory: an assignment that throws std::bad_alloc leaves the set as it was or the lists each whole; a
/// failed load leaves the plain list as gkRegionSet says, and the edgelet list may not follow it.
template <class Datum> class gkRegionSetT : public gkRegionSet {
public:
    using Instantiator = gk_Instantiator;
    using Regions = std::vector<gkPtrHandle_const<gkRegionT<Datum>>>;

    /// The empty set.
    gkRegionSetT();
    explicit gkRegionSetT(const Regions& regions);
    explicit gkRegionSetT(const std::vector<gkPtrHandle<gkRegionT<Datum>>>& regions);
    /// A copy of both lists; the regions are shared.
    gkRegionSetT(const gkRegionSetT& other);
    gkRegionSetT& operator=(const gkRegionSetT& other);
    ~gkRegionSetT() override;

    /// Equality of the plain lists.
    bool operator==(const gkRegionSetT& other) const;
    bool operator!=(const gkRegionSetT& other) const { return !(*this == other); }

    /// A copy of the list of edgelet regions.
    Regions regionsT() const { return regionsT_; }

    /// Not offered: always throws gkPel::BadWindow.
    void mapT(const gkXform<2>& xform, gkRegionSetT& result) const;
    /// Not offered: always throws gkPel::BadWindow.
    void regularizeT(gkRegionSetT& result) const;

    void forgetHandles() noexcept override;

    static gkPersistent* make();
    static Instantiator sExemplar;

protected:
    void dispatchSerialize(gkArchive& archive) override;
    void serialize_(gkArchive& archive, unsigned char version) override;
    void makeDataConsistentWithPoints() override;
    void makePointsConsistentWithData() override;
    void cleanCacheInfo() override;

private:
    void fillPlainList();

    Regions regionsT_;
};

extern template class GKCNTR_TEMPLATE_API gkContourT<gkEdgelet>;
extern template class GKCNTR_TEMPLATE_API gkRegionT<gkEdgelet>;
extern template class GKCNTR_TEMPLATE_API gkRegionSetT<gkEdgelet>;

#endif
