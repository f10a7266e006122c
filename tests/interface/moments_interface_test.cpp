// tests/interface/moments_interface_test.cpp - the record of moments and the free functions, with their exact
// types.
#include "cntr/moments.h"
#include "tests/interface/interface.h"

#include <vector>

using Vector = gkVector<2>;
using Vectors = std::vector<gkVector<2>>;
using Edgelets = std::vector<gkEdgelet>;

// ---- the record: a plain value

static_assert(std::is_constructible_v<gk_InertiaData, double, const Vector&, const gkMatrix<2>&>);
static_assert(!std::is_default_constructible_v<gk_InertiaData> && !std::is_polymorphic_v<gk_InertiaData>);
static_assert(std::is_copy_constructible_v<gk_InertiaData> && std::is_copy_assignable_v<gk_InertiaData>);
GK_PUBLIC(gk_InertiaData, double, area, (), const);
GK_PUBLIC(gk_InertiaData, const Vector&, centerOfMass, (), const);
GK_PUBLIC(gk_InertiaData, const gkMatrix<2>&, inertiaMatrix, (), const);
GK_PUBLIC(gk_InertiaData, gk_InertiaData, operator+, (const gk_InertiaData&), const);

// ---- the functions

template <class Function, Function* function> constexpr bool isThere = true;

static_assert(isThere<double(const Vectors&), &gf_Area>);
static_assert(isThere<double(const Edgelets&), &gf_Area>);
static_assert(isThere<Vector(const Vectors&), &gnContour::centerOfMass>);
static_assert(isThere<Vector(const Vectors&), &gf_CenterOfMass>);
static_assert(isThere<Vector(const Edgelets&), &gf_CenterOfMass>);
static_assert(isThere<gk_InertiaData(const Vectors&), &gf_InertiaDataPolygon>);
static_assert(isThere<gkEllipse(const gk_InertiaData&), &gf_EllipseFromInertiaData>);
static_assert(isThere<void(const Vectors&, gkEllipse&, double&), &gf_FitEllipse>);
static_assert(isThere<void(const Edgelets&, gkEllipse&, double&), &gf_FitEllipse>);
static_assert(isThere<double(const std::vector<double>&), &gf_StdDev>);
