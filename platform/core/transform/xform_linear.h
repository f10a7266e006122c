/// \file
/// The linear transform as a shared object.
#ifndef GK_PLATFORM_CORE_TRANSFORM_XFORM_LINEAR_H
#define GK_PLATFORM_CORE_TRANSFORM_XFORM_LINEAR_H

#include "platform/core/math/xform.h"
#include "platform/core/transform/xform_base.h"

class gk_Instantiator;

/// A gkXform<2> behind gk2XformBase.
class GKCNTR_API gk2XformLinear : public gk2XformBase {
public:
    /// The identity.
    gk2XformLinear();
    explicit gk2XformLinear(const gkXform<2>& xform);
    gk2XformLinear(const gk2XformLinear& other);
    gk2XformLinear& operator=(const gk2XformLinear& other);
    ~gk2XformLinear() override;

    const gkXform<2>& xform() const { return xform_; }

    gkVector<2> mapPoint(const gkVector<2>& point) const override;
    /// A new gk2XformLinear; gkMathError::Singular when the matrix has no inverse.
    gkPtrHandle_const<gk2XformBase> inverseBase() const override;
    gkPtrHandle_const<gk2XformBase> clone() const override;

    /// Exact comparison of the transforms.
    bool operator==(const gk2XformLinear& other) const { return xform_ == other.xform_; }
    bool operator!=(const gk2XformLinear& other) const { return !(*this == other); }

protected:
    /// The record: version byte 0, base record, the six numbers of the transform.
    void dispatchSerialize(gkArchive& archive) override;
    void serialize_(gkArchive& archive, unsigned char version);

private:
    static gkPersistent* make();
    static gk_Instantiator sExemplar;

    gkXform<2> xform_;
};

#endif
