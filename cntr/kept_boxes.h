/// \file
/// Boxes that a shape keeps by transform.
#ifndef GK_CNTR_KEPT_BOXES_H
#define GK_CNTR_KEPT_BOXES_H

#include "cntr/kept.h"
#include "cntr/kept_map.h"
#include "platform/core/math/xform.h"
#include "platform/core/shapes/rect.h"

#include <cstddef>

/// A gk_KeptMap of boxes by transform. The one under the identity's key, with which most questions begin, has
/// its place in the shape itself. Less leaves element (1,1) out, as gkContour::gsSTLLessPredicate does.
template <class Less> class gk_KeptBoxes {
public:
    std::size_t size() const { return others_.size() + (identitys_.valid ? 1 : 0); }
    void clear() {
        identitys_.valid = false;
        others_.clear();
    }

    /// Null for a key that is not there.
    const gkRect* find(const gkXform<2>& xform) const {
        return isIdentitysKey(xform) ? underIdentity() : others_.find(xform);
    }
    const gkRect* underIdentity() const { return identitys_.valid ? &identitys_.value : nullptr; }

    /// For a key that is not there.
    void insert(const gkXform<2>& xform, const gkRect& box) {
        if (!isIdentitysKey(xform)) return others_.insert(xform, box);
        identitys_.valid = true;
        identitys_.value = box;
    }
    /// Afterwards there is room for another key.
    void erase(std::size_t position) {
        const std::size_t identitysPosition = identitys_.valid ? others_.placeOf(gkXform<2>()) : others_.size();
        if (position != identitysPosition)
            return others_.erase(position - (position > identitysPosition ? 1 : 0));
        others_.makeRoom();
        identitys_.valid = false;
    }

    static bool isIdentitysKey(const gkXform<2>& xform) {
        const gkXform<2> identity;
        return xform == identity || (!Less()(xform, identity) && !Less()(identity, xform));
    }

private:
    gk_Kept<gkRect> identitys_;
    gk_KeptMap<gkXform<2>, gkRect, Less> others_;
};

#endif
