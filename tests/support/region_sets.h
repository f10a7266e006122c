// A region set whose protected side tests can reach.
#ifndef GK_TESTS_SUPPORT_REGION_SETS_H
#define GK_TESTS_SUPPORT_REGION_SETS_H

#include "cntr/regionst.h"
#include "tests/support/regions.h"

// A set that shows its protected operations and counts the calls of its hooks.
class OpenedSet : public gkRegionSet {
public:
    using gkRegionSet::gkRegionSet;
    OpenedSet(const OpenedSet& other) : gkPersistent(other), gkRepBase(other), gkRegionSet(other) {}
    OpenedSet& operator=(const OpenedSet& other) {
        gkRegionSet::operator=(other);
        return *this;
    }

    using gkRegionSet::checkEmptyRegionSet;
    using gkRegionSet::makePointsConsistentWithData;
    using gkRegionSet::serialize_;
    using gkRegionSet::setRegions;

    void forget() { gkRegionSet::cleanCacheInfo(); }

    int cleaned = 0;
    int dataRebuilt = 0;

protected:
    void cleanCacheInfo() override {
        ++cleaned;
        gkRegionSet::cleanCacheInfo();
    }
    void makeDataConsistentWithPoints() override {
        ++dataRebuilt;
        gkRegionSet::makeDataConsistentWithPoints();
    }
};

#endif
