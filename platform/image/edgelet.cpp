#include "platform/image/edgelet.h"

#include "platform/core/archive/archive_values.h"

gkEdgelet::gkEdgelet(const gkVector<2>& position, unsigned short magnitude, const gkAngle8& angle)
    : position_(position), magnitude_(magnitude), angle_(angle) {}

const gkVector<2>& gkEdgelet::position() const { return position_; }

unsigned short gkEdgelet::magnitude() const { return magnitude_; }

const gkAngle8& gkEdgelet::angle() const { return angle_; }

bool gkEdgelet::operator==(const gkEdgelet& other) const {
    return position_ == other.position_ && magnitude_ == other.magnitude_ && angle_ == other.angle_;
}

bool gkEdgelet::operator!=(const gkEdgelet& other) const { return !(*this == other); }

gkArchive& operator||(gkArchive& ar, gkEdgelet& value) {
    gkVector<2> position = value.position();
    unsigned short magnitude = value.magnitude();
    gkAngle8 angle = value.angle();
    ar || position;
    ar || magnitude;
    ar || angle;
    value = gkEdgelet(position, magnitude, angle);
    return ar;
}
