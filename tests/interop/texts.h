// What the tests of text share: shapes to write, and errors with their places.
#ifndef GK_TESTS_INTEROP_TEXTS_H
#define GK_TESTS_INTEROP_TEXTS_H

#include "interop/text_errors.h"
#include "tests/interop/same_shape.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

using Shared = gkPtrHandle_const<gkRegion>;

inline const double kNan = std::numeric_limits<double>::quiet_NaN();
inline const double kInfinity = std::numeric_limits<double>::infinity();

inline Points square(double x, double y, double side) {
    return {{x, y}, {x + side, y}, {x + side, y + side}, {x, y + side}};
}

inline gkRegion regionWithHoles(const Points& outline, const std::vector<Points>& holes) {
    gkRegion region(outline);
    std::vector<Shared> shared;
    for (const Points& hole : holes) shared.emplace_back(new gkRegion(hole));
    region.holes(shared);
    return region;
}

inline gkRegionSet setOf(const std::vector<gkRegion>& regions) {
    std::vector<Shared> shared;
    for (const gkRegion& region : regions) shared.emplace_back(new gkRegion(region));
    return gkRegionSet(shared);
}

// `read()` throws this error at this byte, and its explanation contains the words.
template <class Error, class Read> void expectRefused(Read read, std::size_t offset, const std::string& words) {
    try {
        read();
        ADD_FAILURE() << "was read";
    } catch (const Error& error) {
        EXPECT_EQ(offset, error.place().offset);
        EXPECT_NE(std::string::npos, error.explanation().find(words)) << error.explanation();
    } catch (const gkTextDefs::ReadErrors& other) {
        ADD_FAILURE() << "another error: " << other.explanation();
    }
}

#endif
