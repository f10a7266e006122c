// Every class passes its own part once for an object and an archive, however often classes derived from it ask:
// so the part of a base that is there once is written once.
#include "ch_core/cntrtmpl.h"
#include "platform/core/archive/archive_memory.h"
#include "platform/core/transform/xform_linear.h"

#include <gtest/gtest.h>

namespace {

// Passes the part of `Base` as often as it is told.
template <class Base> class Passing : public Base {
public:
    template <class... Arguments>
    explicit Passing(int times, const Arguments&... arguments) : Base(arguments...), times_(times) {}

protected:
    void dispatchSerialize(gkArchive& archive) override {
        for (int i = 0; i < times_; ++i) Base::dispatchSerialize(archive);
    }

private:
    int times_;
};

template <class Base, class... Arguments>
std::vector<unsigned char> written(int times, const Arguments&... arguments) {
    Passing<Base> object(times, arguments...);
    gkArchiveMemory out;
    out || object;
    return out.bytes();
}

template <class Base, class... Arguments> void expectOnePart(const Arguments&... arguments) {
    EXPECT_LT(written<Base>(0, arguments...), written<Base>(1, arguments...));
    EXPECT_EQ(written<Base>(1, arguments...), written<Base>(2, arguments...));
}

// An error of one's own, whose part is the library's.
template <class Base> class OwnError : public Base {
public:
    OwnError() : Base(L"") {}
    long errorNumber() const override { return 1; }
    void suicideAndRethrow() override { throw *this; }
};

} // namespace

TEST(VisitedParts, OfShapesPassOnce) {
    expectOnePart<gkContour>();
    expectOnePart<gkRegion>();
    expectOnePart<gkRegionSet>();
}

TEST(VisitedParts, OfEdgeletShapesPassOnce) {
    expectOnePart<gkContourT<gkEdgelet>>();
    expectOnePart<gkRegionT<gkEdgelet>>();
    expectOnePart<gkRegionSetT<gkEdgelet>>();
}

TEST(VisitedParts, OfTransformsPassOnce) { expectOnePart<gk2XformLinear>(); }

TEST(VisitedParts, OfErrorsPassOnce) {
    expectOnePart<gkContourDefs::EmptyContour>(std::wstring());
    expectOnePart<OwnError<gkContourDefs::Errors>>();
    expectOnePart<OwnError<gkExceptionWithString>>();
}
