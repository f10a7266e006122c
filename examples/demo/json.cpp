#include "examples/demo/json.h"

#include <nlohmann/json.hpp>

namespace {

// Keys stay in the order they are written here.
using Json = nlohmann::ordered_json;

Json pairOf(const gkVector<2>& vector) { return Json::array({vector.x(), vector.y()}); }

Json ellipseOf(const gkEllipse& ellipse) {
    return {{"center", pairOf(ellipse.center().vector())},
            {"radii", pairOf(ellipse.radii())},
            {"rotation", gkDegree(ellipse.rotation()).toDouble()}};
}

Json fitOf(const FittedEllipse& fit) {
    Json json = ellipseOf(fit.ellipse);
    json["rmsError"] = fit.error;
    return json;
}

Json objectOf(const Measures& object) {
    return {{"number", object.number},
            {"edgePoints", object.vertices},
            {"leftOut", object.leftOut},
            {"holes", object.holes},
            {"length", object.length},
            {"area", object.area},
            {"filledArea", object.filledArea},
            {"centerOfMass", pairOf(object.centerOfMass)},
            {"meanPosition", pairOf(object.meanPosition)},
            {"diameter", object.diameter},
            {"farthestPair", Json::array({pairOf(object.farthestPair.p1()), pairOf(object.farthestPair.p2())})},
            {"hullArea", object.hullArea},
            {"fittedEllipse", object.fit ? fitOf(*object.fit) : Json()},
            {"momentsEllipse", object.momentsEllipse ? ellipseOf(*object.momentsEllipse) : Json()},
            {"crossesItself", object.crossesItself}};
}

} // namespace

std::string jsonOf(const std::string& image, const Photograph& photograph, const std::vector<Measures>& objects,
                   const Scale& scale) {
    Json json = {{"image", image},       {"width", photograph.width},     {"height", photograph.height},
                 {"unit", scale.unit()}, {"unitsPerPixel", scale.size()}, {"objects", Json::array()}};
    for (const Measures& object : objects) json["objects"].push_back(objectOf(object));
    // A file name need not be UTF-8.
    return json.dump(2, ' ', false, Json::error_handler_t::replace) + '\n';
}
