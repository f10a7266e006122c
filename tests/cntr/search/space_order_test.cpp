// The order along a space-filling curve: total, the same for both ways to sort.
#include "cntr/search/space_order.h"

#include "tests/gen/random.h"

#include <gtest/gtest.h>

#include <numeric>

TEST(SpaceOrder, VisitsTheQuartersOfTheBoxOneAfterTheOther) {
    gk_SpaceOrder order({0, 0, 8, 8}, 4);
    for (const gkVector<2>& place :
         {gkVector<2>(7, 1), gkVector<2>(7, 7), gkVector<2>(1, 7), gkVector<2>(1, 1)})
        order.add(place);
    EXPECT_EQ((std::vector<std::uint32_t>{3, 2, 1, 0}), order.sorted());
}

TEST(SpaceOrder, KeepsEqualPlacesInOrder) {
    gk_SpaceOrder order({0, 0, 0, 0}, 3);
    for (int i = 0; i < 3; ++i) order.add({0, 0});
    EXPECT_EQ((std::vector<std::uint32_t>{0, 1, 2}), order.sorted());
}

TEST(SpaceOrder, OfManyPlacesIsThatOfTheSameFew) {
    // Every place is there 40 times, so that the many are counted and the few compared.
    gen::Random random(7);
    std::vector<gkVector<2>> places;
    for (int i = 0; i < 1000; ++i) places.emplace_back(random.unit(), random.unit());
    gk_SpaceOrder few({0, 0, 1, 1}, 1000);
    for (const gkVector<2>& place : places) few.add(place);
    gk_SpaceOrder many({0, 0, 1, 1}, 40000);
    for (int copy = 0; copy < 40; ++copy)
        for (const gkVector<2>& place : places) many.add(place);
    std::vector<std::uint32_t> once;
    for (const std::uint32_t number : many.sorted())
        if (number < 1000) once.push_back(number);
    EXPECT_EQ(few.sorted(), once);
}
