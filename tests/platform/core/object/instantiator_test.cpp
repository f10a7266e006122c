// Registration of classes by name.
#include "platform/core/object/instantiator.h"
#include "platform/core/object/persistent.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

class First : public gkPersistent {
public:
    static gkPersistent* make() { return new First; }
};

class Second : public First {
public:
    static gkPersistent* make() { return new Second; }
};

} // namespace

TEST(Instantiator, IsFoundByNameAndByClassWhileItExists) {
    {
        const gk_Instantiator one(typeid(First), "first", &First::make);
        EXPECT_EQ(&one, gk_Instantiator::find("first"));
        EXPECT_EQ(&one, gk_Instantiator::find(typeid(First)));
        EXPECT_STREQ("first", one.portableName());
    }
    EXPECT_EQ(nullptr, gk_Instantiator::find("first"));
    EXPECT_EQ(nullptr, gk_Instantiator::find(typeid(First)));
}

TEST(Instantiator, MakesItsClass) {
    const gk_Instantiator one(typeid(Second), "second", &Second::make);
    const std::unique_ptr<gkPersistent> made(gk_Instantiator::find("second")->create());
    EXPECT_NE(nullptr, dynamic_cast<Second*>(made.get()));
}

TEST(Instantiator, IsForExactlyItsClassAndName) {
    const gk_Instantiator one(typeid(First), "first", &First::make);
    EXPECT_EQ(nullptr, gk_Instantiator::find(typeid(Second)));
    EXPECT_EQ(nullptr, gk_Instantiator::find("First"));
    EXPECT_EQ(nullptr, gk_Instantiator::find("firs"));
    EXPECT_EQ(nullptr, gk_Instantiator::find(std::string("first\0", 6)));
    EXPECT_EQ(nullptr, gk_Instantiator::find(""));
}

TEST(Instantiator, TheLaterOfTwoOfOneNameCountsWhileItExists) {
    const gk_Instantiator earlier(typeid(First), "same", &First::make);
    {
        const gk_Instantiator later(typeid(Second), "same", &Second::make);
        EXPECT_EQ(&later, gk_Instantiator::find("same"));
        EXPECT_EQ(&earlier, gk_Instantiator::find(typeid(First)));
    }
    EXPECT_EQ(&earlier, gk_Instantiator::find("same"));
}
