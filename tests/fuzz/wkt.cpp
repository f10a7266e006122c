// Well-known text as each kind of shape.
#include "interop/wkt.h"
#include "tests/fuzz/texts.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    fuzz::readsBack(
        text, [](std::string_view read) { return gnWkt::readContour(read); },
        [](const gkContour& shape) { return gnWkt::write(shape); });
    fuzz::readsBack(
        text, [](std::string_view read) { return gnWkt::readRegion(read); },
        [](const gkRegion& shape) { return gnWkt::write(shape); });
    fuzz::readsBack(
        text, [](std::string_view read) { return gnWkt::readRegionSet(read); },
        [](const gkRegionSet& shape) { return gnWkt::write(shape); });
    return 0;
}
