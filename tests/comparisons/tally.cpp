#include "tests/comparisons/tally.h"

namespace comparisons {

void Tally::shape(const std::string& kind, std::uint64_t seed, std::size_t size) {
    kind_ = kind;
    seed_ = seed;
    size_ = size;
    ++shapes_;
}

void Tally::tellShape() {
    differs_ = true;
    out_ << operation_ << " differs: " << kind_ << ", seed " << seed_ << ", size " << size_ << '\n';
}

void Tally::tellDifference(const char* what, const Answer& question, const Answer& expected,
                           const Answer& found) {
    tellShape();
    out_ << "  asked       " << what << question << '\n'
         << "  definition  " << expected << '\n'
         << "  library     " << found << std::endl;
}

void Tally::tellUnknownError(const std::string& error) {
    tellShape();
    out_ << "  an error without a name: " << error << std::endl;
}

} // namespace comparisons
