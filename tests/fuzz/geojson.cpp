// GeoJSON as each kind of shape.
#include "interop/geojson.h"
#include "tests/fuzz/texts.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    fuzz::readsBack(
        text, [](std::string_view read) { return gnGeoJson::readContour(read); },
        [](const gkContour& shape) { return gnGeoJson::write(shape); });
    fuzz::readsBack(
        text, [](std::string_view read) { return gnGeoJson::readRegion(read); },
        [](const gkRegion& shape) { return gnGeoJson::write(shape); });
    fuzz::readsBack(
        text, [](std::string_view read) { return gnGeoJson::readRegionSet(read); },
        [](const gkRegionSet& shape) { return gnGeoJson::write(shape); });
    return 0;
}
