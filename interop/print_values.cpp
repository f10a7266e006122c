#include "interop/number.h"
#include "interop/print.h"
#include "interop/values_text.h"

namespace {

using gnText::number;

std::string parenthesized(const std::string& x, const std::string& y) { return "(" + x + ", " + y + ")"; }

std::string text(const gkPoint& point) { return gk_TextOf(point.vector()); }
std::string text(const gkRadian& angle) { return number(angle.toDouble()) + " rad"; }
std::string text(const gkAngle8& angle) { return std::to_string(angle.toByte()) + "/256 turn"; }

std::string text(const gkMatrix<2>& matrix) {
    const std::array<double, 4> e = matrix.elements();
    return "[" + number(e[0]) + " " + number(e[1]) + "; " + number(e[2]) + " " + number(e[3]) + "]";
}

std::string text(const gkXform<2>& xform) {
    return text(xform.matrix()) + " + " + gk_TextOf(xform.translation());
}

} // namespace

std::string gk_TextOf(const gkVector<2>& vector) {
    return parenthesized(number(vector.x()), number(vector.y()));
}

std::string gk_TextOf(const std::vector<gkVector<2>>& vertices) {
    if (vertices.empty()) return "no vertices";
    return gk_TextOfEach(vertices, [](const gkVector<2>& vertex) { return gk_TextOf(vertex); });
}

std::string gk_TextOf(const gkEdgelet& edgelet) {
    return "edge point " + gk_TextOf(edgelet.position()) + ", magnitude " +
           std::to_string(edgelet.magnitude()) + ", angle " + text(edgelet.angle());
}

std::ostream& gk_Put(std::ostream& out, const std::string& text) {
    out.write(text.data(), static_cast<std::streamsize>(text.size()));
    out.width(0);
    return out;
}

std::ostream& operator<<(std::ostream& out, const gkVector<2>& vector) {
    return gk_Put(out, gk_TextOf(vector));
}

std::ostream& operator<<(std::ostream& out, const gkPoint& point) { return gk_Put(out, text(point)); }

std::ostream& operator<<(std::ostream& out, const gkPair<double>& pair) {
    return gk_Put(out, parenthesized(number(pair.x()), number(pair.y())));
}

std::ostream& operator<<(std::ostream& out, const gkPair<long>& pair) {
    return gk_Put(out, parenthesized(std::to_string(pair.x()), std::to_string(pair.y())));
}

std::ostream& operator<<(std::ostream& out, const std::vector<gkVector<2>>& vertices) {
    return gk_Put(out, gk_TextOf(vertices));
}

std::ostream& operator<<(std::ostream& out, const gkRadian& angle) { return gk_Put(out, text(angle)); }

std::ostream& operator<<(std::ostream& out, const gkDegree& angle) {
    return gk_Put(out, number(angle.toDouble()) + " deg");
}

std::ostream& operator<<(std::ostream& out, const gkAngle8& angle) { return gk_Put(out, text(angle)); }

std::ostream& operator<<(std::ostream& out, const gkMatrix<2>& matrix) { return gk_Put(out, text(matrix)); }

std::ostream& operator<<(std::ostream& out, const gkXform<2>& xform) { return gk_Put(out, text(xform)); }

std::ostream& operator<<(std::ostream& out, const gk2Rigid& motion) {
    return gk_Put(out, "turn " + text(motion.angle()) + ", move " + gk_TextOf(motion.translation()));
}

std::ostream& operator<<(std::ostream& out, const gk2XformLinear& xform) {
    return gk_Put(out, text(xform.xform()));
}

std::ostream& operator<<(std::ostream& out, const gkLine& line) {
    return gk_Put(out, "line through " + gk_TextOf(line.point()) + " along " + gk_TextOf(line.direction()));
}

std::ostream& operator<<(std::ostream& out, const gkLineSeg& segment) {
    return gk_Put(out, "segment " + gk_TextOf(segment.p1()) + " to " + gk_TextOf(segment.p2()));
}

std::ostream& operator<<(std::ostream& out, const gkRect& rect) {
    return gk_Put(out, "rect " + gk_TextOf(rect.ul()) + " to " + gk_TextOf(rect.lr()));
}

std::ostream& operator<<(std::ostream& out, const gkCircle& circle) {
    return gk_Put(out, "circle about " + text(circle.center()) + ", radius " + number(circle.radius()));
}

std::ostream& operator<<(std::ostream& out, const gkEllipse& ellipse) {
    return gk_Put(out, "ellipse about " + text(ellipse.center()) + ", radii " + gk_TextOf(ellipse.radii()) +
                           ", rotation " + text(ellipse.rotation()) +
                           (ellipse.geom().isReversed ? ", reversed" : "") +
                           (ellipse.geom().isHole ? ", hole" : ""));
}

std::ostream& operator<<(std::ostream& out, const gkPolygon& polygon) {
    const std::string rule = polygon.fillMode() == gkPolygon::eEvenOdd ? "even-odd" : "non-zero";
    return gk_Put(out, "polygon, " + rule + ": " + gk_TextOf(polygon.vertices()));
}

std::ostream& operator<<(std::ostream& out, const gkEdgelet& edgelet) {
    return gk_Put(out, gk_TextOf(edgelet));
}

std::ostream& operator<<(std::ostream& out, const gkColor& color) {
    return gk_Put(out, color.hex() + ", opacity " + std::to_string(color.a()));
}

std::ostream& operator<<(std::ostream& out, const gk_InertiaData& data) {
    return gk_Put(out, "area " + number(data.area()) + ", centre of mass " + gk_TextOf(data.centerOfMass()) +
                           ", moments " + text(data.inertiaMatrix()));
}
