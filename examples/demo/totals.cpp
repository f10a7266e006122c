#include "examples/demo/totals.h"

#include "examples/demo/table.h"

std::string totals(const gkRegionSet& regions) {
    const gkVector<2> center = regions.centerOfMass(true);
    return counted(regions.regions().size(), "region") + ": area " + fixed(regions.area(true), 2) +
           " px^2, filled " + fixed(regions.area(false), 2) + " px^2, centre of mass (" + fixed(center.x(), 2) +
           ", " + fixed(center.y(), 2) + "), " +
           (regions.isSelfIntersecting() ? "outlines cross" : "no outlines cross") + '\n';
}
