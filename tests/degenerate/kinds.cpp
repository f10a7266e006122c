#include "tests/degenerate/kinds.h"

#include <limits>
#include <map>

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

Kind farAway() {
    Kind kind;
    kind.origin = {1e12, 1e12};
    kind.points = {kind.at(0, 0), kind.at(4, 0), kind.at(4, 3), kind.at(0, 3)};
    return kind;
}

Kind near(const Points& points) {
    Kind kind;
    kind.points = points;
    return kind;
}

Kind noRegion() {
    Kind kind;
    kind.inSet = false;
    return kind;
}

} // namespace

Kind kindOf(const std::string& column) {
    static const std::map<std::string, Kind> kinds = {
        {"no region", noRegion()},
        {"empty", near({})},
        {"1 vertex", near({{4, 5}})},
        {"2 vertices", near({{0, 0}, {6, 8}})},
        {"collinear", near({{0, 0}, {3, 4}, {6, 8}, {9, 12}, {12, 16}})},
        {"all equal", near(Points(5, {4, 5}))},
        {"NaN", near({{0, 0}, {4, 0}, {kNaN, kNaN}, {0, 3}})},
        {"far away", farAway()},
    };
    return kinds.at(column);
}
