/// \file
/// The edge point an edge detector delivers.
#ifndef GK_PLATFORM_IMAGE_EDGELET_H
#define GK_PLATFORM_IMAGE_EDGELET_H

#include "platform/core/archive/archive.h"
#include "platform/core/math/angle.h"
#include "platform/core/math/vector.h"
#include "platform/export.h"

/// A point on an edge: where it is, how strong the brightness changes there, and in which direction.
class GKCNTR_API gkEdgelet {
public:
    /// Position (0, 0), magnitude 0, angle 0.
    gkEdgelet() = default;
    /// `angle` is the direction of the gradient, across the edge; the edge itself runs a quarter turn from it.
    gkEdgelet(const gkVector<2>& position, unsigned short magnitude, const gkAngle8& angle);

    /// Where the edge is, in the coordinates of the image it was found in.
    const gkVector<2>& position() const;
    /// Gradient magnitude, in the edge detector's own scale.
    unsigned short magnitude() const;
    /// Gradient direction in 256ths of a turn.
    const gkAngle8& angle() const;

    /// Exact comparison of all three; a NaN position equals nothing.
    bool operator==(const gkEdgelet& other) const;
    bool operator!=(const gkEdgelet& other) const;

private:
    gkVector<2> position_;
    unsigned short magnitude_ = 0;
    gkAngle8 angle_;
};

/// Position, magnitude as two bytes, angle as one.
GKCNTR_API gkArchive& operator||(gkArchive& ar, gkEdgelet& value);

template <> struct gk_ArchiveSize<gkEdgelet> { static constexpr std::size_t least = 19; };

#endif
