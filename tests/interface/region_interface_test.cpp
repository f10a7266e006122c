// tests/interface/region_interface_test.cpp - what gkRegion offers beyond the contour, member by member.
#include "cntr/region.h"
#include "cntr/regionst.h"
#include "platform/core/archive/archive.h"
#include "platform/core/object/instantiator.h"
#include "tests/interface/interface.h"

#include <vector>

using Vector = gkVector<2>;
using Vectors = std::vector<gkVector<2>>;
using Mode = gkContourDefs::IntersectionMode;
using Handles = std::vector<gkPtrHandle<gkRegion>>;
using ConstHandles = std::vector<gkPtrHandle_const<gkRegion>>;

// ---- bases and construction

static_assert(IsVirtualBase<gkRegion, gkContour>::value && IsVirtualBase<gkRegion, gkPersistent>::value &&
              IsVirtualBase<gkRegion, gkRepBase>::value);
static_assert(std::has_virtual_destructor_v<gkRegion>);

static_assert(std::is_default_constructible_v<gkRegion>);
static_assert(std::is_constructible_v<gkRegion, const Vectors&> &&
              std::is_constructible_v<gkRegion, const Vectors&, Mode>);
static_assert(std::is_convertible_v<const Vectors&, gkRegion>, "vertices alone make a region");
static_assert(std::is_constructible_v<gkRegion, const gkPolygon&, Mode> &&
                  !std::is_constructible_v<gkRegion, const gkPolygon&>,
              "a polygon comes with a mode");
static_assert(std::is_constructible_v<gkRegion, const gkContour&, Mode> &&
                  !std::is_constructible_v<gkRegion, const gkContour&>,
              "a contour comes with a mode");
static_assert(std::is_copy_constructible_v<gkRegion>);
static_assert(isAssignable<gkRegion>);

// ---- the outline and its holes

GK_PUBLIC(gkRegion, bool, operator==, (const gkRegion&), const);
GK_PUBLIC(gkRegion, void, holes, (const Handles&), );
GK_PUBLIC(gkRegion, void, holes, (const ConstHandles&), );
GK_PUBLIC(gkRegion, const ConstHandles&, holes, (), const);
GK_PUBLIC_VIRTUAL(gkRegion, bool, isClosed, (), const);
GK_PUBLIC_VIRTUAL(gkRegion, void, isClosed, (bool), );
GK_PUBLIC(gkRegion, void, map, (const gkXform<2>&, gkRegion&), const);
GK_PUBLIC_VIRTUAL(gkRegion, void, draw, (gkUITablet&, const gkColor&, const gkUITablet::Layers&), const);

// ---- queries

GK_PUBLIC(gkRegion, double, area, (bool), const);
GK_PUBLIC(gkRegion, Vector, centerOfMass, (bool), const);
GK_PUBLIC(gkRegion, gkMatrix<2>, inertiaMatrix, (bool), const);
GK_PUBLIC(gkRegion, bool, inside, (const Vector&, bool), const);
GK_PUBLIC(gkRegion, long, closestVertexIndex, (const Vector&), const);
GK_PUBLIC(gkRegion, long, closestVertexIndex, (const Vector&, bool, long&), const);
GK_PUBLIC(gkRegion, Vector, closestPoint, (const Vector&, bool, bool), const);
GK_PUBLIC(gkRegion, double, distToPoint, (const Vector&, bool, bool, bool), const);
GK_PUBLIC(gkRegion, Vectors, intersections, (const gkLineSeg&, bool, bool), const);
GK_PUBLIC(gkRegion, Vectors, intersections, (const gkContour&, bool), const);
GK_PUBLIC(gkRegion, void, regularize, (gkRegion&), const);
GK_PUBLIC(gkRegion, void, outerHull, (gkRegion&), const);

// ---- for derived classes

GK_PROTECTED(gkRegion, void, checkEmptyContour, (), const);
GK_PROTECTED_VIRTUAL(gkRegion, void, cleanCacheInfo, (), );
GK_PROTECTED_VIRTUAL(gkRegion, void, serialize_, (gkArchive&, unsigned char), );
GK_PROTECTED_VIRTUAL(gkRegion, void, dispatchSerialize, (gkArchive&), );

// ---- its own, and the set's, which splices regions

GK_PRIVATE(gkRegion, long, insideCount, (const Vector&, bool), const);
GK_PRIVATE(gkRegion, void, outerHullRegularize, (gkRegion&, bool), const);
GK_PRIVATE(gkRegion, void, splice, (const gkRegion&, gkRegion&), const);
GK_PRIVATE(gkRegion, void, initializePointers, (), );
GK_PRIVATE(gkRegion, void, deletePointers, (), );
GK_IS_PRIVATE(gkRegion, make, gkPersistent* (*)());
GK_IS_PRIVATE(gkRegion, sExemplar, gk_Instantiator*);
