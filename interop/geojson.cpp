#include "interop/geojson.h"

#include "interop/geojson_reader.h"
#include "interop/number.h"
#include "interop/text_shapes.h"

namespace {

std::string number(double value) {
    const std::string text = gnText::number(value);
    return text == "-0" ? "-0.0" : text; // an integer to many readers, and integers have no negative zero
}

void append(std::string& text, const gkVector<2>& vertex) {
    text += '[';
    text += number(vertex.x());
    text += ',';
    text += number(vertex.y());
    text += ']';
}

std::string lineText(const gk_Vertices& vertices) {
    std::string text = "[";
    for (const gkVector<2>& vertex : vertices) {
        if (text.size() > 1) text += ',';
        append(text, vertex);
    }
    return text + "]";
}

std::string ringText(const gk_Vertices& vertices) {
    std::string text = lineText(vertices);
    if (vertices.empty()) return text;
    text.back() = ',';
    append(text, vertices.front());
    return text + "]";
}

std::string polygonText(const gkRegion& region) {
    const std::vector<const gk_Vertices*> rings = gk_RingsOf(region);
    if (rings.size() == 1 && rings[0]->empty()) return "[]";
    std::string text = "[";
    for (const gk_Vertices* ring : rings) text += (text.size() == 1 ? "" : ",") + ringText(*ring);
    return text + "]";
}

std::string geometry(const std::string& type, const std::string& coordinates) {
    return "{\"type\":\"" + type + "\",\"coordinates\":" + coordinates + "}";
}

} // namespace

std::string gnGeoJson::write(const gkContour& contour) {
    const gk_Vertices& vertices = contour.points();
    gk_DemandFinite(vertices);
    if (!contour.isClosed()) return geometry("LineString", lineText(vertices));
    return geometry("Polygon", vertices.empty() ? "[]" : "[" + ringText(vertices) + "]");
}

std::string gnGeoJson::write(const gkRegion& region) { return geometry("Polygon", polygonText(region)); }

std::string gnGeoJson::write(const gkRegionSet& set) {
    std::string text = "[";
    for (const gkPtrHandle_const<gkRegion>& region : set.regions())
        text += (text.size() == 1 ? "" : ",") + polygonText(*region);
    return geometry("MultiPolygon", text + "]");
}

gkContour gnGeoJson::readContour(std::string_view text) {
    const gk_Text whole(text);
    return gk_ContourOf(whole, gk_ReadGeoJson(whole));
}

gkRegion gnGeoJson::readRegion(std::string_view text) {
    const gk_Text whole(text);
    return gk_RegionOf(whole, gk_ReadGeoJson(whole));
}

gkRegionSet gnGeoJson::readRegionSet(std::string_view text) {
    const gk_Text whole(text);
    return gk_RegionSetOf(whole, gk_ReadGeoJson(whole));
}
