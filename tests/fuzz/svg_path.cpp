// SVG path data as each kind of shape, and as all of its contours.
#include "interop/svg_path.h"
#include "tests/fuzz/texts.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    fuzz::readsBack(
        text, [](std::string_view read) { return gnSvgPath::readContour(read); },
        [](const gkContour& shape) { return gnSvgPath::write(shape); });
    fuzz::readsBack(
        text, [](std::string_view read) { return gnSvgPath::readRegion(read); },
        [](const gkRegion& shape) { return gnSvgPath::write(shape); });
    const auto all = fuzz::readOrRefused(text, gnSvgPath::readContours);
    if (!all) return 0;
    std::string together;
    for (const gkContour& contour : *all) together += gnSvgPath::write(contour);
    const std::vector<gkContour> again = gnSvgPath::readContours(together);
    fuzz::demand(all->size() == again.size(), "as many contours behind each other as written");
    for (std::size_t i = 0; i < again.size(); ++i)
        fuzz::demand(sameContour((*all)[i], again[i]), "contours written behind each other read back");
    return 0;
}
