#include "cntr/search/space_order.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace {

constexpr double kLastCell = 65535.0;

// Position along the curve, two bits of both coordinates at a time from a table. Source of the curve's rule:
// Warren, Hacker's Delight, 2013, ch. 16. What it does to the bits behind is to exchange x and y or not and to
// invert both or not, so there are four states.
constexpr unsigned kExchanged = 1;
constexpr unsigned kInverted = 2;

struct Step {
    std::uint8_t position;
    std::uint8_t state;
};

constexpr Step oneBit(unsigned state, unsigned x, unsigned y) {
    const unsigned inverted = (state & kInverted) != 0 ? 1 : 0;
    const unsigned right = ((state & kExchanged) != 0 ? y : x) ^ inverted;
    const unsigned up = ((state & kExchanged) != 0 ? x : y) ^ inverted;
    unsigned next = state;
    if (up == 0) next ^= right == 1 ? kExchanged | kInverted : kExchanged;
    return {static_cast<std::uint8_t>((3 * right) ^ up), static_cast<std::uint8_t>(next)};
}

constexpr std::array<Step, 64> twoBits() {
    std::array<Step, 64> steps{};
    for (unsigned state = 0; state < 4; ++state) {
        for (unsigned bits = 0; bits < 16; ++bits) {
            const Step high = oneBit(state, bits >> 3, (bits >> 1) & 1);
            const Step low = oneBit(high.state, (bits >> 2) & 1, bits & 1);
            steps[state * 16 + bits] = {static_cast<std::uint8_t>(high.position * 4 + low.position), low.state};
        }
    }
    return steps;
}

constexpr std::array<Step, 64> kTwoBits = twoBits();

std::uint32_t alongCurve(std::uint32_t x, std::uint32_t y) {
    std::uint32_t position = 0;
    unsigned state = 0;
    for (unsigned shift = 16; shift > 0;) {
        shift -= 2;
        const Step& step = kTwoBits[state * 16 + ((x >> shift) & 3) * 4 + ((y >> shift) & 3)];
        position = position * 16 + step.position;
        state = step.state;
    }
    return position;
}

double cellsPer(double extent) { return extent > kLastCell / 1e300 ? kLastCell / extent : 0.0; }

std::uint32_t cellOf(double offset, double cellsPerUnit) {
    return static_cast<std::uint32_t>(std::min(std::max(offset * cellsPerUnit, 0.0), kLastCell));
}

// One pass of a radix sort, by 16 of the positions' bits; keeps the order of equal ones.
std::vector<std::uint32_t> sortedBy(unsigned shift, const std::vector<std::uint32_t>& positions,
                                    const std::vector<std::uint32_t>& numbers) {
    std::vector<std::size_t> starts((std::size_t{1} << 16) + 1, 0);
    const auto digit = [&](std::uint32_t number) { return (positions[number] >> shift) & 0xFFFFu; };
    for (const std::uint32_t number : numbers) ++starts[digit(number) + 1];
    std::partial_sum(starts.begin(), starts.end(), starts.begin());
    std::vector<std::uint32_t> sorted(numbers.size());
    for (const std::uint32_t number : numbers) sorted[starts[digit(number)]++] = number;
    return sorted;
}

// Where counting 2^16 digits twice costs more than comparing.
constexpr std::size_t kFewestToCount = 1u << 14;

} // namespace

gk_SpaceOrder::gk_SpaceOrder(const gk_Box& box, std::size_t count)
    : box_(box), columnsPerUnit_(cellsPer(box.x1 - box.x0)), rowsPerUnit_(cellsPer(box.y1 - box.y0)) {
    positions_.reserve(count);
}

void gk_SpaceOrder::add(const gkVector<2>& place) {
    positions_.push_back(
        alongCurve(cellOf(place.x() - box_.x0, columnsPerUnit_), cellOf(place.y() - box_.y0, rowsPerUnit_)));
}

std::vector<std::uint32_t> gk_SpaceOrder::sorted() const {
    std::vector<std::uint32_t> numbers(positions_.size());
    std::iota(numbers.begin(), numbers.end(), 0u);
    if (numbers.size() < kFewestToCount) {
        std::sort(numbers.begin(), numbers.end(), [&](std::uint32_t a, std::uint32_t b) {
            return positions_[a] != positions_[b] ? positions_[a] < positions_[b] : a < b;
        });
        return numbers;
    }
    return sortedBy(16, positions_, sortedBy(0, positions_, numbers));
}

double gk_SizeBesideEven(const std::vector<gk_Box>& boxes, const gk_Box& all) {
    double sum = 0.0;
    for (const gk_Box& box : boxes) sum += (box.x1 - box.x0) + (box.y1 - box.y0);
    const double even =
        2.0 * std::sqrt((all.x1 - all.x0) * static_cast<double>(boxes.size())) * std::sqrt(all.y1 - all.y0);
    return sum > 0.0 ? sum / even : 0.0;
}

std::vector<std::uint32_t> gk_OrderInSpace(const std::vector<gk_Box>& boxes, const gk_Box& all) {
    constexpr std::size_t kGroup = 8;
    std::vector<gk_Box> groups;
    groups.reserve(boxes.size() / kGroup + 1);
    for (std::size_t begin = 0; begin < boxes.size(); begin += kGroup) {
        gk_Box group = boxes[begin];
        for (std::size_t i = begin + 1; i < std::min(begin + kGroup, boxes.size()); ++i)
            group = group.enclosing(boxes[i]);
        groups.push_back(group);
    }
    if (gk_SizeBesideEven(groups, all) <= 1.0) {
        std::vector<std::uint32_t> numbers(boxes.size());
        std::iota(numbers.begin(), numbers.end(), 0u);
        return numbers;
    }
    gk_SpaceOrder order(all, boxes.size());
    for (const gk_Box& box : boxes) order.add(box.middle());
    return order.sorted();
}
