#include "platform/core/archive/archive_values.h"

gkArchive& operator||(gkArchive& ar, gkRadian& value) {
    double radians = value.toDouble();
    ar || radians;
    value = gkRadian(radians);
    return ar;
}

gkArchive& operator||(gkArchive& ar, gkAngle8& value) {
    unsigned char step = value.toByte();
    ar || step;
    value = gkAngle8(step);
    return ar;
}

gkArchive& operator||(gkArchive& ar, gkMatrix<2>& value) {
    double e[] = {value.element(0, 0), value.element(0, 1), value.element(1, 0), value.element(1, 1)};
    for (double& element : e) ar || element;
    value = gkMatrix<2>(e[0], e[1], e[2], e[3]);
    return ar;
}

gkArchive& operator||(gkArchive& ar, gkXform<2>& value) {
    gkMatrix<2> matrix = value.matrix();
    gkVector<2> translation = value.translation();
    ar || matrix;
    ar || translation;
    value = gkXform<2>(matrix, translation);
    return ar;
}

gkArchive& operator||(gkArchive& ar, gkRect& value) {
    gkVector<2> ul = value.ul();
    gkVector<2> lr = value.lr();
    ar || ul;
    ar || lr;
    value = gkRect::fromCorners(ul, lr);
    return ar;
}
