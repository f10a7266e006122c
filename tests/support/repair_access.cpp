#include "tests/support/repair_access.h"

namespace {

// An explicit instantiation may name a private member; the friend it defines hands the member out.
template <class Tag, typename Tag::Member member> struct Opened {
    friend typename Tag::Member memberOf(Tag) { return member; }
};

struct Splice {
    using Member = void (gkRegion::*)(const gkRegion&, gkRegion&) const;
    friend Member memberOf(Splice);
};
template struct Opened<Splice, &gkRegion::splice>;

struct Repair {
    using Member = void (gkRegion::*)(gkRegion&, bool) const;
    friend Member memberOf(Repair);
};
template struct Opened<Repair, &gkRegion::outerHullRegularize>;

} // namespace

void splice(const gkRegion& one, const gkRegion& other, gkRegion& result) {
    (one.*memberOf(Splice()))(other, result);
}

void repairAnyway(const gkRegion& region, bool outerHull, gkRegion& result) {
    (region.*memberOf(Repair()))(result, outerHull);
}
