// The order that exchanges leave. Oracle: the exchanges.
#include "cntr/exchange_order.h"

#include "tests/gen/each.h"
#include "tests/gen/random.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <numeric>

namespace {

using Keys = std::vector<double>;

std::vector<std::size_t> exchanged(Keys keys) {
    std::vector<std::size_t> order(keys.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    gk_Exchange(keys, order, keys.size());
    return order;
}

void expectTheExchangesOrder(const Keys& keys) {
    const std::vector<std::size_t> expected = exchanged(keys);
    ASSERT_EQ(expected, gk_ExchangeOrder(keys));
    if (!keys.empty()) {
        ASSERT_EQ(expected.front(), gk_FirstByExchange(keys));
    }
}

} // namespace

TEST(ExchangeOrder, MovesTheHeadOfTiesBehindThem) {
    // By hand: 2a 2b 1 -> 1 2b 2a.
    EXPECT_EQ((std::vector<std::size_t>{2, 1, 0}), exchanged({2, 2, 1}));
    expectTheExchangesOrder({2, 2, 1});
    expectTheExchangesOrder({});
    expectTheExchangesOrder({5});
}

TEST(ExchangeOrder, IsThatOfTheExchangesForRandomKeys) {
    for (std::uint64_t seed = 1; seed <= gen::rounds(2000); ++seed) {
        SCOPED_TRACE(seed);
        gen::Random random(seed);
        const int distinct = random.chance(0.3) ? 1000000 : random.integer(1, 40);
        Keys keys;
        for (int count = random.integer(0, 200); count > 0; --count)
            keys.push_back(random.integer(0, distinct));
        expectTheExchangesOrder(keys);
    }
}

TEST(ExchangeOrder, IsThatOfTheExchangesForKeysThatGoUpOrDown) {
    for (std::uint64_t seed = 1; seed <= gen::rounds(500); ++seed) {
        SCOPED_TRACE(seed);
        gen::Random random(seed);
        Keys up = {0};
        for (int count = random.integer(0, 200); count > 0; --count)
            up.push_back(up.back() + (random.chance(0.5) ? 0 : 1));
        expectTheExchangesOrder(up);
        const Keys down(up.rbegin(), up.rend());
        expectTheExchangesOrder(down);
        Keys both(up);
        both.insert(both.end(), down.begin(), down.end());
        expectTheExchangesOrder(both);
    }
}

TEST(ExchangeOrder, IsThatOfTheExchangesWithNaNAndInfinities) {
    const double special[] = {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
                              -std::numeric_limits<double>::infinity(), -0.0, 0.0};
    for (std::uint64_t seed = 1; seed <= gen::rounds(1000); ++seed) {
        SCOPED_TRACE(seed);
        gen::Random random(seed);
        Keys keys;
        for (int count = random.integer(0, 90); count > 0; --count)
            keys.push_back(random.chance(0.3) ? special[random.index(5)] : random.integer(0, 9));
        expectTheExchangesOrder(keys);
    }
}

// More exchanges than it goes through one by one.
TEST(ExchangeOrder, IsThatOfTheExchangesWhenTheyAreMany) {
    Keys keys;
    for (int i = 0; i < 800; ++i)
        keys.push_back(i % 2 == 0 ? i / 4 : -(i / 4)); // away on both sides, with ties
    expectTheExchangesOrder(keys);
    Keys falling;
    for (int i = 0; i < 800; ++i) falling.push_back(1000 - i + (i % 9 == 0 ? 3 : 0));
    expectTheExchangesOrder(falling);
}
