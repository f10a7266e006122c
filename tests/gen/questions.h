// What to ask a shape with, the arguments included that nobody should come with.
#ifndef GK_TESTS_GEN_QUESTIONS_H
#define GK_TESTS_GEN_QUESTIONS_H

#include "platform/core/math/xform.h"
#include "tests/gen/probes.h"

#include <cstdint>
#include <vector>

namespace gen {

// The quarter turns, angles that only nearly are ones, and angles between them.
std::vector<double> angles(std::uint64_t seed);

// The identity, transforms within and just outside 1e-15 of it, rotations, mirrors and singular ones.
std::vector<gkXform<2>> xforms(std::uint64_t seed);

// probes(), querySegments() and tolerances() with some more that are no points, segments and tolerances at all.
Points probesWithBadOnes(const Points& points, std::uint64_t seed);
std::vector<gkLineSeg> segmentsWithBadOnes(const Points& points, std::uint64_t seed);
std::vector<double> tolerancesWithBadOnes(const Points& points);

} // namespace gen

#endif
