#include "cntr/contour.h"
#include "cntr/one_thread.h"

#include "cntr/index.h"
#include "cntr/region.h"
#include "cntr/search/outline_search.h"
#include "cntr/segment_cache.h"
#include "platform/core/math/real.h"
#include "platform/core/math/xform_ops.h"

#include <array>
#include <utility>

namespace {

std::uint32_t fittingLabel(unsigned long label) {
    if (label > 0xFFFFFFFFul) throw gkContourDefs::BadParams(L"label does not fit in 32 bits");
    return static_cast<std::uint32_t>(label);
}

// One step of a lexicographic comparison, as the maps' order states it; less is decided before greater.
enum class Step { eLess, eGreater, eEqual };

Step compared(double a, double b) {
    if (!(a >= b)) return Step::eLess;
    return a > b ? Step::eGreater : Step::eEqual;
}

bool lexicographicallyLess(const std::array<double, 5>& a, const std::array<double, 5>& b) {
    for (std::size_t i = 0; i < a.size(); ++i) {
        const Step step = compared(a[i], b[i]);
        if (step != Step::eEqual) return step == Step::eLess;
    }
    return false;
}

bool vectorLess(const gkVector<2>& a, const gkVector<2>& b) {
    return a.x() < b.x() || (a.x() == b.x() && a.y() < b.y());
}

} // namespace

bool gkContour::gsSTLLessPredicate::operator()(const gkRadian& a, const gkRadian& b) const {
    return !(a.toDouble() >= b.toDouble());
}

bool gkContour::gsSTLLessPredicate::operator()(const gkXform<2>& a, const gkXform<2>& b) const {
    // Element (1,1) is left out on purpose; see the header before adding it.
    const std::array<double, 4> left = a.matrix().elements();
    const std::array<double, 4> right = b.matrix().elements();
    return lexicographicallyLess({a.translation().x(), a.translation().y(), left[0], left[1], left[2]},
                                 {b.translation().x(), b.translation().y(), right[0], right[1], right[2]});
}

bool gkContour::gsSTLLessPredicate::operator()(const gkPair<long>& a, const gkPair<long>& b) const {
    return vectorLess(gkVector<2>(a), gkVector<2>(b));
}

bool gkContour::gsSTLLessPredicate::operator()(const gkVector<2>& a, const gkVector<2>& b) const {
    return vectorLess(a, b);
}

gkContour::Caches::Caches() = default;
gkContour::Caches::Caches(const Caches& other) = default;
gkContour::Caches& gkContour::Caches::operator=(Caches&& other) noexcept = default;
gkContour::Caches::~Caches() = default;

gkContour::gkContour() : gkContour(std::vector<gkVector<2>>(), true, 0) {}

// A constructor reaches this class's own hook, which only forgets results; a derived class fills its data
// itself.
gkContour::gkContour(const std::vector<gkVector<2>>& points, bool closed, unsigned long label) {
    initializePointers();
    value_.label = fittingLabel(label);
    value_.closed = closed;
    value_.points = points;
    gkContour::cleanCacheInfo();
}

gkContour::gkContour(const gkPolygon& polygon, unsigned long label) {
    initializePointers();
    value_.label = fittingLabel(label);
    value_.points = polygon.vertices();
    value_.closed = gfRealEq(polygon[0], polygon[polygon.size() - 1], 1e-15);
    gkContour::cleanCacheInfo();
}

gkContour::gkContour(const gkContour& other) : gkPersistent(other), gkRepBase(other), value_() {
    initializePointers();
    gkContour::operator=(other);
}

gkContour& gkContour::operator=(const gkContour& other) {
    const gk_OneThread here(*this);
    if (this == &other) return *this;
    Value value(other.value_);
    Caches caches(other.caches_);
    value_ = std::move(value);
    caches_ = std::move(caches);
    return *this;
}

gkContour::~gkContour() { deletePointers(); }

void gkContour::points(const std::vector<gkVector<2>>& points) {
    setPoints(points);
    makeDataConsistentWithPoints();
}

void gkContour::setPoints(const std::vector<gkVector<2>>& points) {
    const gk_OneThread here(*this);
    std::vector<gkVector<2>> copy(points);
    cleanCacheInfo();
    value_.points = std::move(copy);
}

bool gkContour::isClosed() const { return value_.closed; }

void gkContour::isClosed(bool closed) {
    const gk_OneThread here(*this);
    value_.closed = closed;
    cleanCacheInfo();
}

void gkContour::label(unsigned long label) {
    const gk_OneThread here(*this);
    value_.label = fittingLabel(label);
    mutating();
}

void gkContour::cachedVectorSize(long size) {
    const gk_OneThread here(*this);
    value_.cachedVectorSize = gk_FittingCachedVectorSize(size);
    mutating();
}

gkPolygon gkContour::polygon() const {
    const gk_OneThread here(*this);
    gkPolygon polygon(value_.points, static_cast<gkPolygon::FillMode>(0));
    if (isClosed() && !value_.points.empty()) polygon.append(value_.points.front());
    return polygon;
}

void gkContour::map(const gkXform<2>& xform, gkContour& out) const {
    const gk_OneThread here(*this);
    std::vector<gkVector<2>> mapped;
    mapped.reserve(value_.points.size());
    const gk_XformOps ops(xform);
    for (const gkVector<2>& point : value_.points) mapped.push_back(ops.image(point));
    // Assigning a fresh contour resets cachedVectorSize to 3; this is meant.
    out = gkContour(mapped, isClosed(), label());
}

bool gkContour::operator==(const gkContour& other) const {
    return isClosed() == other.isClosed() && value_.points == other.value_.points &&
           value_.cachedVectorSize == other.value_.cachedVectorSize;
}

void gkContour::checkEmptyContour() const {
    if (value_.points.size() < 2) throw gkContourDefs::EmptyContour(L"");
}

void gkContour::makeDataConsistentWithPoints() { cleanCacheInfo(); }

void gkContour::makePointsConsistentWithData() { cleanCacheInfo(); }

void gkContour::initializePointers() {
    caches_.encloseRects.clear();
    caches_.search.reset();
}

// Each pointer frees what it owned, so to let go is to start anew.
void gkContour::deletePointers() { initializePointers(); }

void gkContour::cleanCacheInfo() {
    const gk_OneThread here(*this);
    mutating();
    caches_.mark.noteChange();
    deletePointers();
    caches_.segments.reset();
    caches_.length = gk_Kept<double>();
    caches_.selfIntersecting.valid = false;
    // The circles stay, only their flags go: encloseCircle may answer with a circle from before.
    caches_.circleAroundFirst.valid = false;
    Rare* const rare = caches_.rare.get();
    if (rare == nullptr) return;
    rare->exactCircle.valid = false;
    rare->meanPosition.valid = false;
    rare->convexHull.valid = false;
    rare->extremalVertices.clear();
    rare->ellipseFit.valid = false;
    rare->medianFeatureSize.valid = false;
}
