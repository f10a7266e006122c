// tests/interface/error_slots_test.cpp - each error is a value that is copied, assigned, thrown and freed as
// its class.
#include "cntr/contour_defs.h"
#include "platform/core/object/persistent.h"

#include <gtest/gtest.h>

namespace {

// Tells when it is destroyed.
template <class Error> class MortalError : public Error {
public:
    explicit MortalError(bool& gone) : Error(L""), gone_(gone) {}
    ~MortalError() override { gone_ = true; }

private:
    bool& gone_;
};

template <class Error> void copiesAndAssigns() {
    const Error source(L"why");
    const Error copy(source);
    EXPECT_EQ(L"why", copy.message());
    Error target(L"old");
    EXPECT_EQ(&target, &(target = source));
    EXPECT_EQ(L"why", target.message());
    // The family's own assignment, reached through its base.
    Error again(L"old");
    static_cast<gkContourDefs::Errors&>(again) = source;
    EXPECT_EQ(L"why", again.message());
    EXPECT_EQ(source.errorNumber(), static_cast<const gkException&>(again).errorNumber());
}

template <class Error> void isDestroyedThroughItsBase() {
    bool gone = false;
    delete static_cast<gkPersistent*>(new MortalError<Error>(gone));
    EXPECT_TRUE(gone);
}

} // namespace

TEST(ErrorSlots, CopiesAndAssignmentsTakeTheMessage) {
    copiesAndAssigns<gkContourDefs::EmptyContour>();
    copiesAndAssigns<gkContourDefs::EmptyRegionSet>();
    copiesAndAssigns<gkContourDefs::BadParams>();
    copiesAndAssigns<gkContourDefs::RegionCannotBeSetOpen>();
}

TEST(ErrorSlots, EachIsDestroyedThroughItsBase) {
    isDestroyedThroughItsBase<gkContourDefs::EmptyContour>();
    isDestroyedThroughItsBase<gkContourDefs::EmptyRegionSet>();
    isDestroyedThroughItsBase<gkContourDefs::BadParams>();
    isDestroyedThroughItsBase<gkContourDefs::RegionCannotBeSetOpen>();
}
