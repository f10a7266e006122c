#include "platform/core/transform/xform_linear.h"

#include "platform/core/archive/archive.h"
#include "platform/core/archive/archive_values.h"
#include "platform/core/object/instantiator.h"

#include <typeinfo>

gk2XformBase::gk2XformBase() = default;
gk2XformBase::gk2XformBase(const gk2XformBase&) = default;
gk2XformBase& gk2XformBase::operator=(const gk2XformBase&) = default;
gk2XformBase::~gk2XformBase() = default;

gk_Instantiator gk2XformLinear::sExemplar(typeid(gk2XformLinear), "gk2XformLinear", &gk2XformLinear::make);

gk2XformLinear::gk2XformLinear() = default;
gk2XformLinear::gk2XformLinear(const gkXform<2>& xform) : xform_(xform) {}
gk2XformLinear::gk2XformLinear(const gk2XformLinear& other)
    : gkPersistent(other), gkRepBase(other), gk2XformBase(other), xform_(other.xform_) {}
gk2XformLinear& gk2XformLinear::operator=(const gk2XformLinear& other) {
    xform_ = other.xform_;
    return *this;
}
gk2XformLinear::~gk2XformLinear() = default;

gkPersistent* gk2XformLinear::make() { return new gk2XformLinear; }

gkVector<2> gk2XformLinear::mapPoint(const gkVector<2>& point) const { return xform_ * point; }

gkPtrHandle_const<gk2XformBase> gk2XformLinear::inverseBase() const {
    return gkPtrHandle_const<gk2XformBase>(new gk2XformLinear(xform_.inverse()));
}

gkPtrHandle_const<gk2XformBase> gk2XformLinear::clone() const {
    return gkPtrHandle_const<gk2XformBase>(new gk2XformLinear(*this));
}

void gk2XformLinear::dispatchSerialize(gkArchive& archive) {
    if (haveVisited(archive)) return;
    unsigned char version = 0;
    archive || version;
    gk2XformLinear::serialize_(archive, version);
    setVisited(archive);
}

void gk2XformLinear::serialize_(gkArchive& archive, unsigned char version) {
    if (version != 0) throw gkArchive::UnknownVersion("gk2XformLinear", 0);
    gkPersistent::dispatchSerialize(archive);
    archive || xform_;
}
