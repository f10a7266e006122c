#include "interop/wkt.h"

#include "interop/number.h"
#include "interop/text_shapes.h"
#include "interop/wkt_reader.h"

namespace {

void append(std::string& text, const gkVector<2>& vertex) {
    text += gnText::number(vertex.x());
    text += ' ';
    text += gnText::number(vertex.y());
}

std::string lineText(const gk_Vertices& vertices) {
    std::string text;
    for (const gkVector<2>& vertex : vertices) {
        text += text.empty() ? "(" : ", ";
        append(text, vertex);
    }
    return text + ")";
}

std::string ringText(const gk_Vertices& vertices) {
    if (vertices.empty()) return "EMPTY";
    std::string text = lineText(vertices);
    text.back() = ',';
    text += ' ';
    append(text, vertices.front());
    return text + ")";
}

std::string polygonText(const gkRegion& region) {
    const std::vector<const gk_Vertices*> rings = gk_RingsOf(region);
    if (rings.size() == 1 && rings[0]->empty()) return "EMPTY";
    std::string text;
    for (const gk_Vertices* ring : rings) text += (text.empty() ? "(" : ", ") + ringText(*ring);
    return text + ")";
}

} // namespace

std::string gnWkt::write(const gkContour& contour) {
    const gk_Vertices& vertices = contour.points();
    gk_DemandFinite(vertices);
    const std::string keyword = contour.isClosed() ? "POLYGON " : "LINESTRING ";
    if (vertices.empty()) return keyword + "EMPTY";
    return keyword + (contour.isClosed() ? "(" + ringText(vertices) + ")" : lineText(vertices));
}

std::string gnWkt::write(const gkRegion& region) { return "POLYGON " + polygonText(region); }

std::string gnWkt::write(const gkRegionSet& set) {
    std::string text;
    for (const gkPtrHandle_const<gkRegion>& region : set.regions())
        text += (text.empty() ? "(" : ", ") + polygonText(*region);
    return text.empty() ? "MULTIPOLYGON EMPTY" : "MULTIPOLYGON " + text + ")";
}

gkContour gnWkt::readContour(std::string_view text) {
    const gk_Text whole(text);
    return gk_ContourOf(whole, gk_ReadWkt(whole));
}

gkRegion gnWkt::readRegion(std::string_view text) {
    const gk_Text whole(text);
    return gk_RegionOf(whole, gk_ReadWkt(whole));
}

gkRegionSet gnWkt::readRegionSet(std::string_view text) {
    const gk_Text whole(text);
    return gk_RegionSetOf(whole, gk_ReadWkt(whole));
}
