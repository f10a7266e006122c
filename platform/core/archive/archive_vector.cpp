#include "platform/core/archive/archive_vector.h"

gkArchive& operator||(gkArchive& ar, gkVector<2>& value) {
    double x = value.x();
    double y = value.y();
    ar || x;
    ar || y;
    value = gkVector<2>(x, y);
    return ar;
}
