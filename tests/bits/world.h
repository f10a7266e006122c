// What the operations are asked with: one shape in every form, with questions made from it.
#ifndef GK_TESTS_BITS_WORLD_H
#define GK_TESTS_BITS_WORLD_H

#include "platform/core/math/xform.h"
#include "platform/core/shapes/line_seg.h"
#include "platform/image/edgelet.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace bits {

using Points = std::vector<gkVector<2>>;

constexpr std::size_t kShapes = 10000;
constexpr std::size_t kShapesInBlock = 100; // neighbours of one kind

struct World {
    std::size_t index = 0;
    std::string kind;
    std::uint64_t seed = 0;
    bool closed = true;
    Points points;
    Points hole;  // half as large, about the middle of the box
    Points other; // another outline
    std::vector<Points> set;
    Points probes;
    std::vector<gkLineSeg> segments;
    std::vector<double> tolerances;
    std::vector<gkXform<2>> xforms; // the identity, a shear, one whose inverse takes rounding, one without
    std::vector<double> angles;
    std::vector<gkEdgelet> data;
};

// The world of a shape: the kinds take turns, block by block.
World world(std::size_t index);

} // namespace bits

#endif
