/// \file
/// Transforms of the plane as shared objects: how positions in one space map to another.
#ifndef GK_PLATFORM_CORE_TRANSFORM_XFORM_BASE_H
#define GK_PLATFORM_CORE_TRANSFORM_XFORM_BASE_H

#include "platform/core/math/vector.h"
#include "platform/core/object/handle.h"
#include "platform/core/object/persistent.h"
#include "platform/core/object/rep_base.h"
#include "platform/export.h"

/// A mapping of points, linear or not. Objects are held by handles and not changed once they are shared.
///
/// Derive from it for lens models and the like; register the class with gk_Instantiator when it is to be
/// archived.
class GKCNTR_API gk2XformBase : public virtual gkPersistent, public virtual gkRepBase {
public:
    ~gk2XformBase() override;

    /// The image of a point.
    virtual gkVector<2> mapPoint(const gkVector<2>& point) const = 0;
    /// A new transform that undoes this one. Throws when there is none, a linear one gkMathError::Singular.
    virtual gkPtrHandle_const<gk2XformBase> inverseBase() const = 0;
    /// A new copy of this transform, of the same class.
    virtual gkPtrHandle_const<gk2XformBase> clone() const = 0;

protected:
    gk2XformBase();
    gk2XformBase(const gk2XformBase&);
    gk2XformBase& operator=(const gk2XformBase&);
};

#endif
