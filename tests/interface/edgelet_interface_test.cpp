// tests/interface/edgelet_interface_test.cpp - what the shapes with edgelets offer beyond their bases, member
// by member.
#include "ch_core/cntrtmpl.h"
#include "platform/core/archive/archive.h"
#include "tests/interface/interface.h"

#include <vector>

using Vector = gkVector<2>;
using Edgelets = std::vector<gkEdgelet>;
using Transform = gkPtrHandle_const<gk2XformBase>;
using Contour = gkContourT<gkEdgelet>;
using Region = gkRegionT<gkEdgelet>;
using RegionSet = gkRegionSetT<gkEdgelet>;
using Handles = std::vector<gkPtrHandle<Region>>;
using ConstHandles = std::vector<gkPtrHandle_const<Region>>;

// ---- the contour

static_assert(IsVirtualBase<Contour, gkContour>::value);
static_assert(std::has_virtual_destructor_v<Contour>);
static_assert(std::is_default_constructible_v<Contour>);
static_assert(std::is_constructible_v<Contour, const Edgelets&>);
static_assert(std::is_constructible_v<Contour, const Edgelets&, const Transform&>);
static_assert(std::is_copy_constructible_v<Contour> && isAssignable<Contour>);

GK_PUBLIC(Contour, const Edgelets&, data, (), const);
GK_PUBLIC(Contour, void, data, (const Edgelets&), );
GK_PUBLIC(Contour, Transform, dataFromPointsXform, (), const);
GK_PUBLIC(Contour, gkEdgelet, datum, (const Vector&), );
GK_PUBLIC(Contour, Vector, point, (const gkEdgelet&), );
GK_PUBLIC(Contour, bool, operator==, (const Contour&), const);
GK_PUBLIC(Contour, void, mapT, (const gkXform<2>&, Contour&), const);
GK_PUBLIC(Contour, void, convexHullT, (Region&), const);
GK_IS_PUBLIC(Contour, make, gkPersistent* (*)());
GK_IS_PUBLIC(Contour, sExemplar, Contour::Instantiator*);
GK_PROTECTED_VIRTUAL(Contour, void, dispatchSerialize, (gkArchive&), );
GK_PROTECTED_VIRTUAL(Contour, void, serialize_, (gkArchive&, unsigned char), );
GK_PROTECTED_VIRTUAL(Contour, void, makeDataConsistentWithPoints, (), );
GK_PROTECTED_VIRTUAL(Contour, void, makePointsConsistentWithData, (), );

// ---- the region

static_assert(std::is_base_of_v<Contour, Region> && !IsVirtualBase<Region, Contour>::value);
static_assert(std::is_base_of_v<gkRegion, Region> && !IsVirtualBase<Region, gkRegion>::value);
static_assert(IsVirtualBase<Region, gkContour>::value, "and it is one, or the base would be ambiguous");
static_assert(std::is_convertible_v<Region*, gkContour*>);
static_assert(std::has_virtual_destructor_v<Region>);
static_assert(std::is_default_constructible_v<Region>);
static_assert(std::is_constructible_v<Region, const Contour&, unsigned long>);
static_assert(std::is_constructible_v<Region, const Edgelets&, unsigned long>);
static_assert(std::is_constructible_v<Region, const Edgelets&, Transform&, unsigned long> &&
                  !std::is_constructible_v<Region, const Edgelets&, const Transform&, unsigned long>,
              "the transform's handle is taken by a reference that is not const");
static_assert(!std::is_constructible_v<Region, const Edgelets&>, "the label has no default");
static_assert(std::is_copy_constructible_v<Region> && isAssignable<Region>);

GK_PUBLIC(Region, bool, operator==, (const Region&), const);
GK_PUBLIC(Region, const ConstHandles&, holes, (), const);
GK_PUBLIC(Region, void, holes, (const ConstHandles&), );
GK_PUBLIC_VIRTUAL(Region, bool, isClosed, (), const);
GK_PUBLIC_VIRTUAL(Region, void, isClosed, (bool), );
GK_PUBLIC_VIRTUAL(Region, void, draw, (gkUITablet&, const gkColor&, const gkUITablet::Layers&), const);
GK_PUBLIC(Region, void, mapT, (const gkXform<2>&, Region&), const);
GK_PUBLIC(Region, void, regularizeT, (Region&), const);
GK_IS_PUBLIC(Region, make, gkPersistent* (*)());
GK_IS_PUBLIC(Region, sExemplar, Region::Instantiator*);
GK_PROTECTED_VIRTUAL(Region, void, dispatchSerialize, (gkArchive&), );
GK_PROTECTED_VIRTUAL(Region, void, serialize_, (gkArchive&, unsigned char), );
GK_PROTECTED_VIRTUAL(Region, void, makeDataConsistentWithPoints, (), );
GK_PROTECTED_VIRTUAL(Region, void, makePointsConsistentWithData, (), );
GK_PROTECTED_VIRTUAL(Region, void, cleanCacheInfo, (), );

// ---- the set

static_assert(std::is_base_of_v<gkRegionSet, RegionSet> && !IsVirtualBase<RegionSet, gkRegionSet>::value);
static_assert(std::has_virtual_destructor_v<RegionSet>);
static_assert(std::is_default_constructible_v<RegionSet>);
static_assert(std::is_constructible_v<RegionSet, const ConstHandles&>);
static_assert(std::is_constructible_v<RegionSet, const Handles&>);
static_assert(std::is_copy_constructible_v<RegionSet> && isAssignable<RegionSet>);

GK_PUBLIC(RegionSet, bool, operator==, (const RegionSet&), const);
GK_PUBLIC(RegionSet, ConstHandles, regionsT, (), const);
GK_PUBLIC(RegionSet, void, mapT, (const gkXform<2>&, RegionSet&), const);
GK_PUBLIC(RegionSet, void, regularizeT, (RegionSet&), const);
GK_IS_PUBLIC(RegionSet, make, gkPersistent* (*)());
GK_IS_PUBLIC(RegionSet, sExemplar, RegionSet::Instantiator*);
GK_PROTECTED_VIRTUAL(RegionSet, void, dispatchSerialize, (gkArchive&), );
GK_PROTECTED_VIRTUAL(RegionSet, void, serialize_, (gkArchive&, unsigned char), );
GK_PROTECTED_VIRTUAL(RegionSet, void, makeDataConsistentWithPoints, (), );
GK_PROTECTED_VIRTUAL(RegionSet, void, makePointsConsistentWithData, (), );
GK_PROTECTED_VIRTUAL(RegionSet, void, cleanCacheInfo, (), );
