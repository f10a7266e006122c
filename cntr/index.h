// Vertex and segment numbers in the interface's own integer types.
#ifndef GK_CNTR_INDEX_H
#define GK_CNTR_INDEX_H

#include "cntr/contour_defs.h"

#include <cstddef>
#include <cstdint>

// An index or size that the interface tells as a 32-bit number; one that does not fit is refused, never cut.
template <class Integer> Integer gk_IndexAs(std::size_t index) {
    if (index > static_cast<std::size_t>(INT32_MAX)) {
        throw gkContourDefs::BadParams(L"an index does not fit in 32 bits");
    }
    return static_cast<Integer>(index);
}

// A number of vertices of which the repairs count twice around: their indices run up to once past either end.
inline long gk_SizeAsLoop(std::size_t size) {
    if (size > static_cast<std::size_t>(INT32_MAX / 2)) {
        throw gkContourDefs::BadParams(L"more vertices than a repair can count twice around in 32 bits");
    }
    return static_cast<long>(size);
}

// A shape's cachedVectorSize as it is kept; a negative one, or one beyond 32 bits, is refused.
inline std::int32_t gk_FittingCachedVectorSize(long size) {
    if (size < 0) throw gkContourDefs::BadParams(L"");
    if (size > INT32_MAX) throw gkContourDefs::BadParams(L"cachedVectorSize does not fit in 32 bits");
    return static_cast<std::int32_t>(size);
}

#endif
