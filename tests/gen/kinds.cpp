#include "tests/gen/kinds.h"

namespace gen {

const std::vector<Kind>& kinds() {
    static const std::vector<Kind> list = {
        {"star", &star, true},
        {"comb", &comb, true},
        {"spiral", &spiral, true},
        {"needle", &needle, true},
        {"latticeOutline", &latticeOutline, true},
        {"latticePoints", &latticePoints, true},
        {"staircase", &staircase, true},
        {"subdivided", &subdivided, true},
        {"repeated", &repeated, true},
        {"collinear", &collinear, true},
        {"coincident", &coincident, true},
        {"lissajous", &lissajous, true},
        {"randomPolygon", &randomPolygon, true},
        {"pentagram", &pentagram, true},
        {"touching", &touching, true},
        {"tiny", &tiny, true},
        {"big", &big, true},
        {"enormous", &enormous, true},
        {"farAway", &farAway, true},
        {"few", &few, true},
        {"hostile", &hostile, false},
    };
    return list;
}

Points shape(const Kind& kind, std::uint64_t seed) {
    Random random(seed);
    return kind.make(random);
}

} // namespace gen
