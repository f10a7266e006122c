// A share of a long test's work, and numbers, as command lines name them.
#ifndef GK_TESTS_SUPPORT_PART_H
#define GK_TESTS_SUPPORT_PART_H

#include <cstdint>
#include <stdexcept>
#include <string>

// The share i of n: the pieces whose number leaves i when it is divided by n.
struct Part {
    std::uint64_t index = 0;
    std::uint64_t count = 1;

    bool holds(std::uint64_t piece) const { return piece % count == index; }
    bool isWhole() const { return count == 1; }
};

// Both throw std::invalid_argument or std::out_of_range for another text.
inline std::uint64_t numberIn(const std::string& text) {
    std::size_t used = 0;
    const std::uint64_t value = std::stoull(text, &used);
    if (used != text.size()) throw std::invalid_argument(text);
    return value;
}

// "i/n"
inline Part partIn(const std::string& text) {
    const std::size_t slash = text.find('/');
    if (slash == std::string::npos) throw std::invalid_argument(text);
    const Part part{numberIn(text.substr(0, slash)), numberIn(text.substr(slash + 1))};
    if (part.index >= part.count) throw std::invalid_argument(text);
    return part;
}

#endif
