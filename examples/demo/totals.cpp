#include "examples/demo/totals.h"

#include "examples/demo/table.h"

std::string totals(const gkRegionSet& regions, const Scale& scale) {
    const int digits = scale.digits();
    const std::string square = ' ' + scale.unit() + "^2";
    const gkVector<2> center = regions.centerOfMass(true);
    return counted(regions.regions().size(), "region") + ": area " + fixed(regions.area(true), digits) +
           square + ", filled " + fixed(regions.area(false), digits) + square + ", centre of mass (" +
           fixed(center.x(), digits) + ", " + fixed(center.y(), digits) + ") " + scale.unit() + ", " +
           (regions.isSelfIntersecting() ? "outlines cross" : "no outlines cross") + '\n';
}
