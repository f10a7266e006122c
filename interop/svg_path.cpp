#include "interop/svg_path.h"

#include "interop/number.h"
#include "interop/svg_path_reader.h"
#include "interop/text_shapes.h"

#include <utility>

namespace {

std::string subpath(const gk_Vertices& vertices) {
    std::string text;
    for (const gkVector<2>& vertex : vertices) {
        text += text.empty() ? "M " : " L ";
        text += gnText::number(vertex.x());
        text += ' ';
        text += gnText::number(vertex.y());
    }
    return text;
}

gkRegion regionOf(const gk_Text& text) {
    gk_TextPolygon polygon;
    for (gk_Subpath& part : gk_ReadSvgPath(text)) polygon.rings.push_back(std::move(part.ring));
    return gk_RegionOf(text, polygon);
}

} // namespace

std::string gnSvgPath::write(const gkContour& contour) {
    const gk_Vertices& vertices = contour.points();
    gk_DemandFinite(vertices);
    if (vertices.empty() && !contour.isClosed())
        throw gkTextDefs::CannotWrite(L"an open contour without vertices has no path");
    return subpath(vertices) + (contour.isClosed() && !vertices.empty() ? " Z" : "");
}

std::string gnSvgPath::write(const gkRegion& region) {
    std::string text;
    for (const gk_Vertices* ring : gk_RingsOf(region)) {
        if (ring->empty() && ring != &region.points())
            throw gkTextDefs::CannotWrite(L"a hole without vertices has no path");
        if (!ring->empty()) text += (text.empty() ? "" : " ") + subpath(*ring) + " Z";
    }
    return text;
}

std::vector<std::string> gnSvgPath::write(const gkRegionSet& set) {
    std::vector<std::string> texts;
    for (const gkPtrHandle_const<gkRegion>& region : set.regions()) texts.push_back(write(*region));
    return texts;
}

gkContour gnSvgPath::readContour(std::string_view text) {
    const gk_Text whole(text);
    const std::vector<gk_Subpath> parts = gk_ReadSvgPath(whole);
    if (parts.empty()) return gkContour();
    if (parts.size() > 1) whole.unsupported(parts[1].ring.offset, "a path of one contour was wanted");
    return gkContour(parts[0].ring.vertices, parts[0].closed, 0);
}

std::vector<gkContour> gnSvgPath::readContours(std::string_view text) {
    const gk_Text whole(text);
    const std::vector<gk_Subpath> parts = gk_ReadSvgPath(whole);
    std::vector<gkContour> contours;
    contours.reserve(parts.size());
    for (const gk_Subpath& part : parts) contours.emplace_back(part.ring.vertices, part.closed, 0);
    return contours;
}

gkRegion gnSvgPath::readRegion(std::string_view text) { return regionOf(gk_Text(text)); }

gkRegionSet gnSvgPath::readRegionSet(const std::vector<std::string>& texts) {
    std::vector<gkPtrHandle_const<gkRegion>> regions;
    regions.reserve(texts.size());
    for (const std::string& text : texts) regions.emplace_back(new gkRegion(readRegion(text)));
    return gkRegionSet(regions);
}
