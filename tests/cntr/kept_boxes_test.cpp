// Boxes kept by transform, held against std::map under the same order.
#include "cntr/kept_boxes.h"

#include "cntr/contour.h"

#include <gtest/gtest.h>

#include <iterator>
#include <map>
#include <random>

namespace {

using Less = gkContour::gsSTLLessPredicate;
using Boxes = gk_KeptBoxes<Less>;
using Oracle = std::map<gkXform<2>, gkRect, Less>;

// One of 2 x 2 x 3 transforms, the identity among them, and some that differ in element (1,1) only.
gkXform<2> anyXform(std::mt19937& random) {
    const auto one = [&](std::initializer_list<double> of) { return of.begin()[random() % of.size()]; };
    return gkXform<2>(gkMatrix<2>(one({1.0, 2.0}), 0.0, 0.0, one({1.0, 2.0})), {one({-1.0, 0.0, 1.0}), -0.0});
}

void expectSame(const Oracle& expected, const Boxes& boxes, const gkXform<2>& xform) {
    const gkRect* const found = boxes.find(xform);
    const auto place = expected.find(xform);
    ASSERT_EQ(place != expected.end(), found != nullptr);
    if (found) {
        EXPECT_EQ(place->second, *found);
    }
}

} // namespace

TEST(KeptBoxes, AreThoseOfAMapWhateverIsInsertedAndErased) {
    const unsigned seed = 20261;
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    Boxes boxes;
    Oracle expected;
    for (int round = 0; round < 20000; ++round) {
        const gkXform<2> xform = anyXform(random);
        if (expected.find(xform) == expected.end() && random() % 2 == 0) {
            const gkRect box({static_cast<double>(round), 0}, {1, 1});
            boxes.insert(xform, box);
            expected.emplace(xform, box);
        } else if (!expected.empty() && random() % 2 == 0) {
            const std::size_t position = random() % expected.size();
            boxes.erase(position);
            expected.erase(std::next(expected.begin(), static_cast<std::ptrdiff_t>(position)));
        } else if (random() % 100 == 0) {
            boxes.clear();
            expected.clear();
        }
        ASSERT_EQ(expected.size(), boxes.size());
        expectSame(expected, boxes, anyXform(random));
        expectSame(expected, boxes, gkXform<2>());
        ASSERT_EQ(boxes.find(gkXform<2>()), boxes.underIdentity());
    }
}

TEST(KeptBoxes, TheIdentitysKeyIsThatOfEveryElement11) {
    EXPECT_TRUE(Boxes::isIdentitysKey(gkXform<2>()));
    EXPECT_TRUE(Boxes::isIdentitysKey(gkXform<2>(gkMatrix<2>(1, -0.0, 0, 7), {-0.0, 0})));
    EXPECT_FALSE(Boxes::isIdentitysKey(gkXform<2>(gkMatrix<2>(1, 0, 0, 1), {0, 1e-300})));
    EXPECT_FALSE(Boxes::isIdentitysKey(gkXform<2>(gkMatrix<2>(1, 1e-300, 0, 1), {0, 0})));
    EXPECT_FALSE(Boxes::isIdentitysKey(gkXform<2>(gkMatrix<2>(1, 0, 1e-300, 1), {0, 0})));
}
