// The order along a space-filling curve: total, the same for both ways to sort.
#include "cntr/search/space_order.h"

#include "tests/gen/random.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
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
    places.reserve(1000);
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

TEST(OrderInSpace, OfAnOutlinesPiecesIsTheirOwnWhereTheyFollowEachOther) {
    std::vector<gk_Box> ring;
    ring.reserve(100);
    for (int i = 0; i < 100; ++i) {
        const double angle = 0.02 * 3.14159265358979323846 * i;
        const gkVector<2> place(100 * std::cos(angle), 100 * std::sin(angle));
        ring.push_back(gk_Box::of(place, place + gkVector<2>(3, 3)));
    }
    std::vector<std::uint32_t> own(ring.size());
    std::iota(own.begin(), own.end(), 0u);
    EXPECT_EQ(own, gk_OrderInSpace(ring, {-100, -100, 103, 103}));
    // Every second one from the other side of the ring.
    for (std::size_t i = 1; i < 50; i += 2) std::swap(ring[i], ring[i + 50]);
    std::vector<std::uint32_t> order = gk_OrderInSpace(ring, {-100, -100, 103, 103});
    EXPECT_NE(own, order);
    std::sort(order.begin(), order.end());
    EXPECT_EQ(own, order);
}

TEST(OrderInSpace, OfBoxesWithoutAnAreaHasEachOnce) {
    std::vector<gk_Box> flat;
    flat.reserve(50);
    for (int i = 0; i < 50; ++i) flat.push_back({1.0 * i, 1, 1.0 * i + 1, 1});
    for (const bool isPoint : {false, true}) {
        if (isPoint) flat.assign(50, {2, 2, 2, 2});
        std::vector<std::uint32_t> order =
            gk_OrderInSpace(flat, isPoint ? gk_Box{2, 2, 2, 2} : gk_Box{0, 1, 50, 1});
        std::sort(order.begin(), order.end());
        for (std::uint32_t i = 0; i < 50; ++i) ASSERT_EQ(i, order[i]);
    }
}
