// Classes on both sides of the border: bases, casts, type information, creation by name. Oracle: the C++ object
// model.
#include "gkcntr.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <typeinfo>
#include <vector>

namespace {

const std::vector<gkVector<2>> kTriangle = {{0, 0}, {8, 0}, {0, 6}};

// A region of the program's, with a field of its own, known to archives.
class Named : public gkRegion {
public:
    Named() { ++alive; }
    // The virtual base is made by the most derived class, here.
    explicit Named(const std::string& name) : gkContour(kTriangle, true, 0), name_(name) { ++alive; }
    Named(const Named&) = delete;
    Named& operator=(const Named&) = delete;
    ~Named() override { --alive; }

    const std::string& name() const { return name_; }
    bool isClosed() const override {
        ++asked;
        return gkRegion::isClosed();
    }
    using gkRegion::isClosed;

    static int alive;
    mutable int asked = 0;

protected:
    void dispatchSerialize(gkArchive& archive) override {
        if (haveVisited(archive)) return;
        unsigned char version = 0;
        archive || version;
        gkRegion::dispatchSerialize(archive);
        archive || name_;
        setVisited(archive);
    }

private:
    static gkPersistent* make() { return new Named; }
    static gk_Instantiator sExemplar;

    std::string name_;
};

int Named::alive = 0;
gk_Instantiator Named::sExemplar(typeid(Named), "test::Named", &Named::make);

const std::type_info& classOf(const gkPersistent& object) { return typeid(object); }

// What the library makes when it reads the object back by name.
std::unique_ptr<gkPersistent> throughAnArchive(const gkPersistent& object) {
    gkArchiveMemory out;
    out.writeObject(&object);
    gkArchiveMemory in(out.bytes());
    std::unique_ptr<gkPersistent> made(in.readObject());
    in.finish();
    return made;
}

} // namespace

TEST(BorderTypes, OfAnObjectTheLibraryMadeIsKnownHere) {
    gkRegion region(kTriangle);
    const std::unique_ptr<gkPersistent> made = throughAnArchive(region);
    EXPECT_TRUE(classOf(*made) == typeid(gkRegion)) << classOf(*made).name();
    EXPECT_TRUE(classOf(*made) != typeid(gkContour));
    EXPECT_EQ(classOf(*made).hash_code(), typeid(gkRegion).hash_code());
    ASSERT_NE(nullptr, dynamic_cast<gkRegion*>(made.get()));
    EXPECT_EQ(24.0, dynamic_cast<gkRegion&>(*made).area(false));
    EXPECT_NE(nullptr, dynamic_cast<gkContour*>(made.get()));
    EXPECT_NE(nullptr, dynamic_cast<gkRepBase*>(made.get())); // across, to the other virtual base
    EXPECT_EQ(nullptr, dynamic_cast<gkRegionSet*>(made.get()));
    EXPECT_EQ(nullptr, dynamic_cast<gkContourT<gkEdgelet>*>(made.get()));
    EXPECT_THROW(static_cast<void>(dynamic_cast<gkRegionSet&>(*made)), std::bad_cast);
}

TEST(BorderTypes, OfAnEdgeletRegionTheLibraryMadeHasEveryBase) {
    const gkRegionT<gkEdgelet> region({gkEdgelet({0, 0}, 1, gkAngle8()), gkEdgelet({1, 0}, 2, gkAngle8())}, 5);
    const std::unique_ptr<gkPersistent> made = throughAnArchive(region);
    EXPECT_TRUE(classOf(*made) == typeid(gkRegionT<gkEdgelet>)) << classOf(*made).name();
    auto* const back = dynamic_cast<gkRegionT<gkEdgelet>*>(made.get());
    ASSERT_NE(nullptr, back);
    EXPECT_NE(nullptr, dynamic_cast<gkContourT<gkEdgelet>*>(made.get()));
    EXPECT_NE(nullptr, dynamic_cast<gkRegion*>(made.get()));
    // The virtual base is one object, whichever way leads to it.
    EXPECT_EQ(static_cast<gkContour*>(static_cast<gkRegion*>(back)),
              static_cast<gkContour*>(static_cast<gkContourT<gkEdgelet>*>(back)));
    EXPECT_EQ(5u, static_cast<gkContour&>(*back).label());
}

TEST(BorderTypes, OfTheProgramAreMadeByTheLibraryByName) {
    {
        const Named plate("plate");
        EXPECT_EQ(1, Named::alive);
        const std::unique_ptr<gkPersistent> made = throughAnArchive(plate);
        EXPECT_EQ(2, Named::alive);
        EXPECT_TRUE(classOf(*made) == typeid(Named));
        auto* const back = dynamic_cast<Named*>(made.get());
        ASSERT_NE(nullptr, back);
        EXPECT_EQ("plate", back->name());
        EXPECT_EQ(kTriangle, back->points());
        EXPECT_EQ(24.0, back->area(false));
    }
    EXPECT_EQ(0, Named::alive);
}

TEST(BorderTypes, OfTheProgramAreRecognisedInsideTheLibrary) {
    // The library reads the holes' references and must see that a Named is a gkRegion.
    gkRegion plate({{-10, -10}, {30, -10}, {30, 30}, {-10, 30}});
    plate.holes({gkPtrHandle_const<gkRegion>(new Named("hole"))});
    const std::unique_ptr<gkPersistent> made = throughAnArchive(plate);
    const auto& back = dynamic_cast<const gkRegion&>(*made);
    ASSERT_EQ(1u, back.holes().size());
    ASSERT_NE(nullptr, dynamic_cast<const Named*>(back.holes()[0].get()));
    EXPECT_EQ("hole", dynamic_cast<const Named&>(*back.holes()[0]).name());
    EXPECT_EQ(1600.0 - 24.0, back.area(true));
}

TEST(BorderTypes, OfAnotherClassAreRefusedInsideTheLibrary) {
    // As a hole of a region stands a contour; the library casts and says no.
    gkArchiveMemory out;
    gkPtrHandle<gkContour> contour(new gkContour(kTriangle, true, 0));
    out || contour;
    gkArchiveMemory in(out.bytes());
    gkPtrHandle<gkRegion> region;
    EXPECT_THROW(in || region, gkArchive::WrongType);
}

TEST(BorderTypes, CallTheProgramsOverridesFromTheLibrary) {
    const Named plate("plate");
    plate.length();
    EXPECT_GT(plate.asked, 0);
}

TEST(BorderTypes, FindTheirRegistrationByTypeAndByName) {
    const gk_Instantiator* const contour = gk_Instantiator::find(typeid(gkContour));
    ASSERT_NE(nullptr, contour);
    EXPECT_STREQ("gkContour", contour->portableName());
    EXPECT_EQ(contour, gk_Instantiator::find("gkContour"));
    const gk_Instantiator* const named = gk_Instantiator::find("test::Named");
    ASSERT_NE(nullptr, named);
    EXPECT_EQ(named, gk_Instantiator::find(typeid(Named)));
    // The datum itself, seen from here.
    EXPECT_EQ(&gkRegionSetT<gkEdgelet>::sExemplar, gk_Instantiator::find("gkRegionSetT<gkEdgelet>"));
}

TEST(BorderTypes, AreAsLargeHereAsInTheLibrary) {
    // The library makes one, the program copies it by its own idea of the layout, the library reads the copy.
    gkRegion region(kTriangle);
    region.label(7);
    region.cachedVectorSize(11);
    const std::unique_ptr<gkPersistent> made = throughAnArchive(region);
    gkRegion copy;
    copy = dynamic_cast<const gkRegion&>(*made);
    gkArchiveMemory first;
    gkArchiveMemory second;
    first.writeObject(&region);
    second.writeObject(&copy);
    EXPECT_EQ(first.bytes(), second.bytes());
}
