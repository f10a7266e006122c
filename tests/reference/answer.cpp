#include "tests/reference/answer.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace answer {

namespace {

Json raw(double value) {
    if (std::isnan(value)) return "nan";
    if (std::isinf(value)) return value > 0 ? "inf" : "-inf";
    return value;
}

Json raw(const gkVector<2>& v) { return Json::array({raw(v.x()), raw(v.y())}); }

Json wrapped(const char* kind, Json value) { return Json{{kind, std::move(value)}}; }

bool sameNumber(const Json& a, const Json& b, double tolerance) {
    const double x = number(a);
    const double y = number(b);
    if (std::isnan(x) || std::isnan(y)) return std::isnan(x) && std::isnan(y);
    return x == y || std::fabs(x - y) <= tolerance;
}

bool isNumber(const Json& value) {
    return value.is_number() || value == "nan" || value == "inf" || value == "-inf";
}

bool same(const Json& a, const Json& b, double tolerance) {
    if (a.is_array() && b.is_array()) {
        return a.size() == b.size() &&
               std::equal(a.begin(), a.end(), b.begin(),
                          [&](const Json& x, const Json& y) { return same(x, y, tolerance); });
    }
    if (isNumber(a) && isNumber(b)) return sameNumber(a, b, tolerance);
    return a == b;
}

// Every wanted element is matched by one given element of its own.
bool sameSet(const Json& wanted, const Json& given, double tolerance) {
    std::vector<Json> left(given.begin(), given.end());
    if (wanted.size() != left.size()) return false;
    for (const Json& element : wanted) {
        const auto match = std::find_if(left.begin(), left.end(),
                                        [&](const Json& other) { return same(element, other, tolerance); });
        if (match == left.end()) return false;
        left.erase(match);
    }
    return true;
}

} // namespace

double number(const Json& value) {
    if (value.is_number()) return value.get<double>();
    const std::string text = value.get<std::string>();
    if (text == "nan") return std::numeric_limits<double>::quiet_NaN();
    return text == "inf" ? std::numeric_limits<double>::infinity() : -std::numeric_limits<double>::infinity();
}

gkVector<2> vector(const Json& value) { return gkVector<2>(number(value.at(0)), number(value.at(1))); }

std::vector<gkVector<2>> points(const Json& value) {
    std::vector<gkVector<2>> list;
    for (const Json& point : value) list.push_back(vector(point));
    return list;
}

gkMatrix<2> matrix(const Json& value) {
    return gkMatrix<2>(number(value.at(0)), number(value.at(1)), number(value.at(2)), number(value.at(3)));
}

gkXform<2> xform(const Json& value) { return gkXform<2>(matrix(value.at("m")), vector(value.at("t"))); }

gkLineSeg segment(const Json& value) {
    return gkLineSeg(gkVector<2>(number(value.at(0)), number(value.at(1))),
                     gkVector<2>(number(value.at(2)), number(value.at(3))));
}

gk_InertiaData inertia(const Json& value) {
    return gk_InertiaData(
        number(value.at(0)), gkVector<2>(number(value.at(1)), number(value.at(2))),
        gkMatrix<2>(number(value.at(3)), number(value.at(4)), number(value.at(5)), number(value.at(6))));
}

Json nothing() { return wrapped("void", true); }
Json of(double value) { return wrapped("num", raw(value)); }
Json of(long value) { return wrapped("int", value); }
Json of(int value) { return wrapped("int", value); }
Json of(bool value) { return wrapped("bool", value); }
Json of(const gkVector<2>& value) { return wrapped("vec", raw(value)); }

Json of(const std::vector<gkVector<2>>& value) {
    Json list = Json::array();
    for (const gkVector<2>& point : value) list.push_back(raw(point));
    return wrapped("pts", list);
}

Json of(const std::vector<int>& value) { return wrapped("ints", Json(value)); }
Json of(const std::vector<bool>& value) { return wrapped("bools", Json(value)); }

Json of(const gkRect& value) {
    return wrapped("rect",
                   {raw(value.ul().x()), raw(value.ul().y()), raw(value.lr().x()), raw(value.lr().y())});
}

Json of(const gkCircle& value) {
    return wrapped("circle", {raw(value.center().x()), raw(value.center().y()), raw(value.radius())});
}

Json of(const gkMatrix<2>& value) {
    return wrapped("mat", {raw(value.element(0, 0)), raw(value.element(0, 1)), raw(value.element(1, 0)),
                           raw(value.element(1, 1))});
}

Json of(const gk_InertiaData& value) {
    const gkMatrix<2>& m = value.inertiaMatrix();
    return wrapped("inertia",
                   {raw(value.area()), raw(value.centerOfMass().x()), raw(value.centerOfMass().y()),
                    raw(m.element(0, 0)), raw(m.element(0, 1)), raw(m.element(1, 0)), raw(m.element(1, 1))});
}

Json of(const gkEllipse& value) {
    return wrapped("ellipse", {raw(value.center().x()), raw(value.center().y()), raw(value.radii().x()),
                               raw(value.radii().y()), raw(value.rotation().toDouble())});
}

Json of(const std::vector<gkLineSeg>& value) {
    Json list = Json::array();
    for (const gkLineSeg& seg : value) {
        list.push_back({raw(seg.p1().x()), raw(seg.p1().y()), raw(seg.p2().x()), raw(seg.p2().y())});
    }
    return wrapped("segs", list);
}

std::string difference(const Json& wanted, const Json& given, double tolerance, bool asSet) {
    const std::string kind = wanted.begin().key();
    const bool agree = given.contains(kind) && (asSet ? sameSet(wanted.at(kind), given.at(kind), tolerance)
                                                      : same(wanted.at(kind), given.at(kind), tolerance));
    return agree ? std::string() : "wanted " + wanted.dump() + "\ngiven  " + given.dump();
}

} // namespace answer
