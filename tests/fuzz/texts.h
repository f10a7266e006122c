// Laws of reading and writing text, the same for every format.
#ifndef GK_TESTS_FUZZ_TEXTS_H
#define GK_TESTS_FUZZ_TEXTS_H

#include "interop/text_errors.h"
#include "tests/fuzz/target.h"
#include "tests/interop/same_shape.h"

#include <optional>
#include <string_view>

namespace fuzz {

inline bool same(const gkContour& a, const gkContour& b) { return sameContour(a, b); }
inline bool same(const gkRegion& a, const gkRegion& b) { return sameRegion(a, b); }
inline bool same(const gkRegionSet& a, const gkRegionSet& b) { return sameSet(a, b); }

// What `read` makes of the text, or nothing when it is refused as it should be.
template <class Read>
auto readOrRefused(std::string_view text, Read read) -> std::optional<decltype(read(text))> {
    try {
        return read(text);
    } catch (const gkTextDefs::ReadErrors& error) {
        const gkTextDefs::Place& place = error.place();
        demand(place.offset <= text.size(), "a refusal tells a place of the text");
        demand(place.line >= 1 && place.column >= 1 && place.column <= place.offset + 1, "lines begin with 1");
        demand(error.explanation().size() > 10, "a refusal tells why");
        return std::nullopt;
    }
}

// Whatever was read is written, reads back to the bit, and is then written alike.
template <class Read, class Write> void readsBack(std::string_view text, Read read, Write write) {
    const auto shape = readOrRefused(text, read);
    if (!shape) return;
    const auto written = write(*shape);
    const auto again = read(written);
    demand(same(*shape, again), "what is written reads back");
    demand(written == write(again), "what is read back is written alike");
}

} // namespace fuzz

#endif
