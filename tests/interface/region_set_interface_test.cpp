// tests/interface/region_set_interface_test.cpp - what gkRegionSet offers, member by member.
#include "cntr/regionst.h"
#include "platform/core/archive/archive.h"
#include "platform/core/object/instantiator.h"
#include "tests/interface/interface.h"

#include <vector>

using Vector = gkVector<2>;
using Mode = gkContourDefs::IntersectionMode;
using Handles = std::vector<gkPtrHandle<gkRegion>>;
using ConstHandles = std::vector<gkPtrHandle_const<gkRegion>>;

// ---- bases and construction

static_assert(IsVirtualBase<gkRegionSet, gkPersistent>::value && IsVirtualBase<gkRegionSet, gkRepBase>::value);
static_assert(!std::is_base_of_v<gkContour, gkRegionSet>, "a set is no contour");
static_assert(std::has_virtual_destructor_v<gkRegionSet>);

static_assert(std::is_default_constructible_v<gkRegionSet>);
static_assert(std::is_constructible_v<gkRegionSet, const ConstHandles&> &&
              std::is_constructible_v<gkRegionSet, const ConstHandles&, Mode>);
static_assert(std::is_convertible_v<const ConstHandles&, gkRegionSet>, "a list alone makes a set");
static_assert(std::is_constructible_v<gkRegionSet, const Handles&, Mode> &&
                  !std::is_constructible_v<gkRegionSet, const Handles&>,
              "handles to changeable regions come with a mode");
static_assert(std::is_copy_constructible_v<gkRegionSet>);
static_assert(isAssignable<gkRegionSet>);

// ---- the list

GK_PUBLIC(gkRegionSet, bool, operator==, (const gkRegionSet&), const);
GK_PUBLIC(gkRegionSet, ConstHandles, regions, (), const);
GK_PUBLIC(gkRegionSet, void, regions, (const ConstHandles&, Mode), );
GK_PUBLIC(gkRegionSet, void, regions, (const Handles&, Mode), );
GK_PUBLIC(gkRegionSet, void, add, (const gkPtrHandle_const<gkRegion>&, Mode), );
GK_PUBLIC(gkRegionSet, long, cachedVectorSize, (), const);
GK_PUBLIC(gkRegionSet, void, cachedVectorSize, (long), );

// ---- queries

GK_PUBLIC(gkRegionSet, double, area, (bool), const);
GK_PUBLIC(gkRegionSet, Vector, centerOfMass, (bool), const);
GK_PUBLIC(gkRegionSet, gkMatrix<2>, inertiaMatrix, (bool), const);
GK_PUBLIC(gkRegionSet, bool, inside, (const Vector&, bool), const);
GK_PUBLIC(gkRegionSet, double, distToPoint, (const Vector&, bool, bool, bool), const);
GK_PUBLIC(gkRegionSet, gkRect, encloseRect, (const gkXform<2>&), const);
GK_PUBLIC(gkRegionSet, bool, isSelfIntersecting, (), const);
GK_PUBLIC(gkRegionSet, void, outerHull, (gkRegionSet&), const);
GK_PUBLIC(gkRegionSet, void, regularize, (gkRegionSet&), const);
GK_PUBLIC(gkRegionSet, void, draw, (gkUITablet&, const gkColor&, const gkUITablet::Layers&), const);

// ---- for derived classes

GK_PROTECTED_VIRTUAL(gkRegionSet, void, serialize_, (gkArchive&, unsigned char), );
GK_PROTECTED_VIRTUAL(gkRegionSet, void, makeDataConsistentWithPoints, (), );
GK_PROTECTED_VIRTUAL(gkRegionSet, void, makePointsConsistentWithData, (), );
GK_PROTECTED_VIRTUAL(gkRegionSet, void, cleanCacheInfo, (), );
GK_PROTECTED_VIRTUAL(gkRegionSet, void, dispatchSerialize, (gkArchive&), );
GK_PROTECTED(gkRegionSet, void, checkEmptyRegionSet, (), const);
GK_PROTECTED(gkRegionSet, void, setRegions, (const ConstHandles&), );

// ---- its own

GK_PRIVATE(gkRegionSet, void, outerHullRegularize, (gkRegionSet&, bool), const);
GK_PRIVATE(gkRegionSet, void, initializePointers, (), );
GK_PRIVATE(gkRegionSet, void, deletePointers, (), );
GK_IS_PRIVATE(gkRegionSet, make, gkPersistent* (*)());
GK_IS_PRIVATE(gkRegionSet, sExemplar, gk_Instantiator*);
