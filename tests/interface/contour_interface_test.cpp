// tests/interface/contour_interface_test.cpp - what gkContour offers, member by member.
#include "cntr/region.h"
#include "platform/core/archive/archive.h"
#include "platform/core/object/instantiator.h"
#include "tests/interface/interface.h"

#include <vector>

using Vector = gkVector<2>;
using Vectors = std::vector<gkVector<2>>;

// ---- bases and construction

static_assert(std::is_base_of_v<gkPersistent, gkContour> && std::is_base_of_v<gkRepBase, gkContour>);
static_assert(std::has_virtual_destructor_v<gkContour>);
static_assert(std::is_default_constructible_v<gkContour>);
static_assert(std::is_constructible_v<gkContour, const Vectors&, bool, unsigned long>);
static_assert(std::is_constructible_v<gkContour, const gkPolygon&, unsigned long>);
static_assert(!std::is_constructible_v<gkContour, const Vectors&, bool> &&
                  !std::is_constructible_v<gkContour, const gkPolygon&>,
              "the label has no default");
static_assert(std::is_copy_constructible_v<gkContour>);
static_assert(isAssignable<gkContour>);

static_assert(IsVirtualBase<gkContour, gkPersistent>::value && IsVirtualBase<gkContour, gkRepBase>::value);

// ---- accessors

GK_PUBLIC(gkContour, const Vectors&, points, (), const);
GK_PUBLIC_VIRTUAL(gkContour, void, points, (const Vectors&), );
GK_PUBLIC_VIRTUAL(gkContour, bool, isClosed, (), const);
GK_PUBLIC_VIRTUAL(gkContour, void, isClosed, (bool), );
GK_PUBLIC(gkContour, unsigned long, label, (), const);
GK_PUBLIC(gkContour, void, label, (unsigned long), );
GK_PUBLIC(gkContour, long, cachedVectorSize, (), const);
GK_PUBLIC(gkContour, void, cachedVectorSize, (long), );
GK_PUBLIC(gkContour, gkPolygon, polygon, (), const);
GK_PUBLIC(gkContour, void, map, (const gkXform<2>&, gkContour&), const);
GK_PUBLIC(gkContour, bool, operator==, (const gkContour&), const);

// ---- queries

GK_PUBLIC(gkContour, double, length, (), const);
GK_PUBLIC(gkContour, Vector, meanPosition, (), const);
GK_PUBLIC(gkContour, double, diameter, (gkContourDefs::DiameterMode), const);
GK_PUBLIC(gkContour, gkCircle, encloseCircle, (gkContourDefs::DiameterMode), const);
GK_PUBLIC(gkContour, long, extremalVertexIndex, (const gkRadian&), const);
GK_PUBLIC(gkContour, Vector, extremalVertexPosition, (const gkRadian&), const);
GK_PUBLIC(gkContour, gkRect, encloseRect, (const gkXform<2>&), const);
GK_PUBLIC(gkContour, void, convexHull, (gkRegion&), const);
GK_PUBLIC(gkContour, void, fitEllipse, (gkEllipse&, double&), const);
GK_PUBLIC(gkContour, Vector, closestPoint, (const Vector&, bool), const);
GK_PUBLIC(gkContour, long, closestVertexIndex, (const Vector&), const);
GK_PUBLIC(gkContour, double, distToPoint, (const Vector&, bool), const);
GK_PUBLIC(gkContour, std::vector<int>, vertexIndex, (const Vector&, double), const);
GK_PUBLIC(gkContour, Vectors, intersections, (const gkLineSeg&, bool), const);
GK_PUBLIC(gkContour, Vectors, intersections, (const gkContour&), const);
GK_PUBLIC(gkContour, bool, isSelfIntersecting, (), const);
GK_PUBLIC_VIRTUAL(gkContour, void, draw,
                  (gkUITablet&, gkContourDefs::DrawMode, const gkColor&, const gkUITablet::Layers&), const);

// ---- for derived classes

GK_PROTECTED_VIRTUAL(gkContour, void, dispatchSerialize, (gkArchive&), );
GK_PROTECTED_VIRTUAL(gkContour, void, serialize_, (gkArchive&, unsigned char), );
GK_PROTECTED_VIRTUAL(gkContour, void, makeDataConsistentWithPoints, (), );
GK_PROTECTED_VIRTUAL(gkContour, void, makePointsConsistentWithData, (), );
GK_PROTECTED_VIRTUAL(gkContour, void, cleanCacheInfo, (), );
GK_PROTECTED(gkContour, void, setPoints, (const Vectors&), );
GK_PROTECTED(gkContour, void, checkEmptyContour, (), const);
GK_PROTECTED(gkContour, void, computeLineSegs, (), const);
GK_PROTECTED(gkContour, const std::vector<gkLineSeg>&, lineSegs, (), const);
GK_PROTECTED(gkContour, const std::vector<bool>&, validLine, (), const);
GK_PROTECTED(gkContour, double, medianFeatureSize, (), const);
GK_PROTECTED_OVERLOAD(gkContour,
                      intersections(std::declval<gkLineSeg>(), std::declval<std::vector<int>&>(), true),
                      Vectors, intersections, (const gkLineSeg&, std::vector<int>&, bool), const);

// ---- its own

GK_PRIVATE(gkContour, void, initializePointers, (), );
GK_PRIVATE(gkContour, void, deletePointers, (), );
GK_IS_PRIVATE(gkContour, make, gkPersistent* (*)());
GK_IS_PRIVATE(gkContour, sExemplar, gk_Instantiator*);

// ---- the order of the keys

using Less = gkContour::gsSTLLessPredicate;
static_assert(std::is_empty_v<Less>);
GK_PUBLIC(Less, bool, operator(), (const gkRadian&, const gkRadian&), const);
GK_PUBLIC(Less, bool, operator(), (const gkXform<2>&, const gkXform<2>&), const);
GK_PUBLIC(Less, bool, operator(), (const gkPair<long>&, const gkPair<long>&), const);
GK_PUBLIC(Less, bool, operator(), (const Vector&, const Vector&), const);
