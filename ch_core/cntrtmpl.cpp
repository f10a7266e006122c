#include "ch_core/cntrtmpl.h"

#include "platform/core/archive/archive.h"
#include "platform/core/object/errors.h"
#include "platform/core/transform/rigid.h"
#include "platform/core/transform/xform_linear.h"

#include <typeinfo>
#include <utility>

namespace {

// The one body of every operation that exists only to refuse.
[[noreturn]] void refuse() { throw gkPel::BadWindow(); }

gkPtrHandle_const<gk2XformBase> ownClone(const gkPtrHandle_const<gk2XformBase>& xform) {
    if (!xform.isNull()) return xform->clone();
    return gkPtrHandle_const<gk2XformBase>(new gk2XformLinear);
}

void drawStroke(gkUITablet& tablet, const gkEdgelet& edgelet, const gkColor& color,
                const gkUITablet::Layers& layers) {
    const gk2Rigid pose(gkDegree(edgelet.angle() - gkAngle8(gkDegree(90.0))), edgelet.position());
    const gkDegree along(pose.angle());
    const gkXform<2> identity;
    const gkVector<2> from = identity * (pose.translation() + gkVector<2>(0.5, gkRadian(along)));
    const gkVector<2> to =
        identity * (pose.translation() + gkVector<2>(0.5, gkRadian(along + gkDegree(180.0))));
    tablet.drawLineSeg(gkPair<double>(from.x(), from.y()), gkPair<double>(to.x(), to.y()), color, layers);
}

} // namespace

// ---- contour

template <class Datum>
gk_Instantiator gkContourT<Datum>::sExemplar(typeid(gkContourT<Datum>), "gkContourT<gkEdgelet>",
                                             &gkContourT<Datum>::make);

template <class Datum> gkContourT<Datum>::gkContourT() : gkContour(std::vector<gkVector<2>>(), true, 0) {}

template <class Datum>
gkContourT<Datum>::gkContourT(const std::vector<Datum>& data)
    : gkContourT(data, gkPtrHandle_const<gk2XformBase>()) {}

template <class Datum>
gkContourT<Datum>::gkContourT(const std::vector<Datum>& data,
                              const gkPtrHandle_const<gk2XformBase>& dataFromPointsXform)
    : gkContour(std::vector<gkVector<2>>(), true, 0), dataFromPointsXform_(ownClone(dataFromPointsXform)),
      data_(data) {
    gkContourT::makePointsConsistentWithData();
}

// The contour part comes along as a base, not by assignment: within a region it is the region's to fill.
template <class Datum>
gkContourT<Datum>::gkContourT(const gkContourT& other)
    : gkPersistent(other), gkRepBase(other), gkContour(other), dataFromPointsXform_(other.dataFromPointsXform_),
      data_(other.data_), inverseValid_(other.inverseValid_), pointsFromDataXform_(other.pointsFromDataXform_) {
}

template <class Datum> gkContourT<Datum>& gkContourT<Datum>::operator=(const gkContourT& other) {
    if (this == &other) return *this;
    std::vector<Datum> data(other.data_);
    gkContour::operator=(other);
    dataFromPointsXform_ = other.dataFromPointsXform_;
    data_ = std::move(data);
    inverseValid_ = other.inverseValid_;
    pointsFromDataXform_ = other.pointsFromDataXform_;
    return *this;
}

template <class Datum> gkContourT<Datum>::~gkContourT() = default;

template <class Datum> void gkContourT<Datum>::data(const std::vector<Datum>& data) {
    data_ = data;
    makePointsConsistentWithData();
}

template <class Datum> Datum gkContourT<Datum>::datum(const gkVector<2>& point) {
    return Datum(dataFromPointsXform_->mapPoint(point), 0, gkAngle8(0));
}

template <class Datum> gkVector<2> gkContourT<Datum>::point(const Datum& datum) {
    if (!inverseValid_) {
        pointsFromDataXform_ = dataFromPointsXform_->inverseBase();
        inverseValid_ = true;
    }
    return pointsFromDataXform_->mapPoint(datum.position());
}

template <class Datum> void gkContourT<Datum>::makeDataConsistentWithPoints() {
    cleanCacheInfo();
    data_.clear();
    data_.reserve(points().size());
    for (const gkVector<2>& vertex : points()) data_.push_back(datum(vertex));
}

template <class Datum> void gkContourT<Datum>::makePointsConsistentWithData() {
    cleanCacheInfo();
    std::vector<gkVector<2>> vertices;
    vertices.reserve(data_.size());
    for (const Datum& datum : data_) vertices.push_back(point(datum));
    setPoints(vertices);
}

template <class Datum> bool gkContourT<Datum>::operator==(const gkContourT& other) const {
    return points() == other.points() && dataFromPointsXform_ == other.dataFromPointsXform_;
}

template <class Datum> void gkContourT<Datum>::mapT(const gkXform<2>&, gkContourT&) const { refuse(); }

template <class Datum> void gkContourT<Datum>::convexHullT(gkRegionT<Datum>&) const { refuse(); }

template <class Datum> gkPersistent* gkContourT<Datum>::make() { return new gkContourT; }

template <class Datum> void gkContourT<Datum>::dispatchSerialize(gkArchive& archive) {
    if (haveVisited(archive)) return;
    unsigned char version = 1;
    archive || version;
    gkContourT::serialize_(archive, version);
    setVisited(archive);
}

template <class Datum> void gkContourT<Datum>::serialize_(gkArchive& archive, unsigned char version) {
    if (version > 1) throw gkArchive::UnknownVersion("ch_core/cntrtmpl", 98);
    gkContour::dispatchSerialize(archive);
    archive || data_;
    if (version == 1) archive || dataFromPointsXform_;
    if (archive.isLoading()) inverseValid_ = false;
}

// ---- region

template <class Datum>
gk_Instantiator gkRegionT<Datum>::sExemplar(typeid(gkRegionT<Datum>), "gkRegionT<gkEdgelet>",
                                            &gkRegionT<Datum>::make);

template <class Datum> gkRegionT<Datum>::gkRegionT() : gkContour(std::vector<gkVector<2>>(), true, 0) {}

template <class Datum>
gkRegionT<Datum>::gkRegionT(const gkContourT<Datum>& contour, unsigned long label)
    : gkContour(std::vector<gkVector<2>>(), true, 0), gkContourT<Datum>(contour) {
    this->label(label);
}

template <class Datum>
gkRegionT<Datum>::gkRegionT(const std::vector<Datum>& data, unsigned long label)
    : gkContour(std::vector<gkVector<2>>(), true, 0), gkContourT<Datum>(data) {
    this->label(label);
}

template <class Datum>
gkRegionT<Datum>::gkRegionT(const std::vector<Datum>& data,
                            gkPtrHandle_const<gk2XformBase>& dataFromPointsXform, unsigned long label)
    : gkContour(std::vector<gkVector<2>>(), true, 0), gkContourT<Datum>(data, dataFromPointsXform) {
    this->label(label);
}

template <class Datum>
gkRegionT<Datum>::gkRegionT(const gkRegionT& other)
    : gkPersistent(other), gkRepBase(other),
      gkContour(std::vector<gkVector<2>>(), true, 0), gkContourT<Datum>(other), gkRegion(other) {}

template <class Datum> gkRegionT<Datum>& gkRegionT<Datum>::operator=(const gkRegionT& other) {
    if (this == &other) return *this;
    gkContourT<Datum>::operator=(other);
    gkRegion::operator=(other);
    return *this;
}

template <class Datum> gkRegionT<Datum>::~gkRegionT() = default;

template <class Datum> bool gkRegionT<Datum>::operator==(const gkRegionT& other) const {
    return gkContourT<Datum>::operator==(other);
}

template <class Datum> void gkRegionT<Datum>::holes(const Holes& holes) {
    holes_ = holes;
    cleanCacheInfo();
}

template <class Datum> bool gkRegionT<Datum>::isClosed() const { return true; }

template <class Datum> void gkRegionT<Datum>::isClosed(bool closed) { gkRegion::isClosed(closed); }

template <class Datum>
void gkRegionT<Datum>::draw(gkUITablet& tablet, const gkColor& color, const gkUITablet::Layers& layers) const {
    for (const Datum& edgelet : this->data()) drawStroke(tablet, edgelet, color, layers);
}

template <class Datum> void gkRegionT<Datum>::mapT(const gkXform<2>&, gkRegionT&) const { refuse(); }

template <class Datum> void gkRegionT<Datum>::regularizeT(gkRegionT&) const { refuse(); }

template <class Datum> void gkRegionT<Datum>::forgetHandles() noexcept {
    gkRegion::forgetHandles();
    holes_.clear();
}

template <class Datum> gkPersistent* gkRegionT<Datum>::make() { return new gkRegionT; }

template <class Datum> void gkRegionT<Datum>::dispatchSerialize(gkArchive& archive) {
    if (this->haveVisited(archive)) return;
    unsigned char version = 0;
    archive || version;
    gkRegionT::serialize_(archive, version);
    this->setVisited(archive);
}

template <class Datum> void gkRegionT<Datum>::serialize_(gkArchive& archive, unsigned char version) {
    if (version != 0) throw gkArchive::UnknownVersion("ch_core/cntrtmpl", 186);
    // Data, transform and edgelet holes are not archived, on purpose.
    gkRegion::dispatchSerialize(archive);
}

template <class Datum> void gkRegionT<Datum>::makeDataConsistentWithPoints() {
    gkContourT<Datum>::makeDataConsistentWithPoints();
}

template <class Datum> void gkRegionT<Datum>::makePointsConsistentWithData() {
    gkContourT<Datum>::makePointsConsistentWithData();
}

template <class Datum> void gkRegionT<Datum>::cleanCacheInfo() { gkRegion::cleanCacheInfo(); }

// ---- region set

template <class Datum>
gk_Instantiator gkRegionSetT<Datum>::sExemplar(typeid(gkRegionSetT<Datum>), "gkRegionSetT<gkEdgelet>",
                                               &gkRegionSetT<Datum>::make);

template <class Datum> gkRegionSetT<Datum>::gkRegionSetT() = default;

template <class Datum> gkRegionSetT<Datum>::gkRegionSetT(const Regions& regions) : regionsT_(regions) {
    fillPlainList(); // and nothing is kept yet that would have to be forgotten
}

template <class Datum>
gkRegionSetT<Datum>::gkRegionSetT(const std::vector<gkPtrHandle<gkRegionT<Datum>>>& regions)
    : gkRegionSetT(Regions(regions.begin(), regions.end())) {}

template <class Datum>
gkRegionSetT<Datum>::gkRegionSetT(const gkRegionSetT& other)
    : gkPersistent(other), gkRepBase(other), gkRegionSet(other), regionsT_(other.regionsT_) {}

template <class Datum> gkRegionSetT<Datum>& gkRegionSetT<Datum>::operator=(const gkRegionSetT& other) {
    if (this == &other) return *this;
    Regions regions(other.regionsT_);
    gkRegionSet::operator=(other);
    regionsT_ = std::move(regions);
    return *this;
}

template <class Datum> gkRegionSetT<Datum>::~gkRegionSetT() = default;

template <class Datum> bool gkRegionSetT<Datum>::operator==(const gkRegionSetT& other) const {
    return gkRegionSet::operator==(other);
}

template <class Datum> void gkRegionSetT<Datum>::mapT(const gkXform<2>&, gkRegionSetT&) const { refuse(); }

template <class Datum> void gkRegionSetT<Datum>::regularizeT(gkRegionSetT&) const { refuse(); }

template <class Datum> void gkRegionSetT<Datum>::forgetHandles() noexcept {
    gkRegionSet::forgetHandles();
    regionsT_.clear();
}

template <class Datum> void gkRegionSetT<Datum>::fillPlainList() {
    setRegions(std::vector<gkPtrHandle_const<gkRegion>>(regionsT_.begin(), regionsT_.end()));
}

template <class Datum> void gkRegionSetT<Datum>::makePointsConsistentWithData() {
    cleanCacheInfo();
    fillPlainList();
}

template <class Datum> void gkRegionSetT<Datum>::makeDataConsistentWithPoints() {
    cleanCacheInfo();
    const std::vector<gkPtrHandle_const<gkRegion>> plain = regions();
    regionsT_.resize(plain.size());
    for (std::size_t i = 0; i < plain.size(); ++i) {
        const gkPtrHandle<gkRegionT<Datum>> region(new gkRegionT<Datum>);
        // Holes and label are not carried over, on purpose.
        static_cast<gkContour&>(*region).points(plain[i]->points());
        regionsT_[i] = region;
    }
}

template <class Datum> void gkRegionSetT<Datum>::cleanCacheInfo() { gkRegionSet::cleanCacheInfo(); }

template <class Datum> gkPersistent* gkRegionSetT<Datum>::make() { return new gkRegionSetT; }

template <class Datum> void gkRegionSetT<Datum>::dispatchSerialize(gkArchive& archive) {
    if (haveVisited(archive)) return;
    unsigned char version = 0;
    archive || version;
    gkRegionSetT::serialize_(archive, version);
    setVisited(archive);
}

template <class Datum> void gkRegionSetT<Datum>::serialize_(gkArchive& archive, unsigned char version) {
    if (version != 0) throw gkArchive::UnknownVersion("ch_core/cntrtmpl", 283);
    gkRegionSet::dispatchSerialize(archive);
    archive || regionsT_;
}

template class GKCNTR_TEMPLATE_EXPORT gkContourT<gkEdgelet>;
template class GKCNTR_TEMPLATE_EXPORT gkRegionT<gkEdgelet>;
template class GKCNTR_TEMPLATE_EXPORT gkRegionSetT<gkEdgelet>;
