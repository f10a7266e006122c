#include "sheet.h"

#include <algorithm>

namespace {

using Points = std::vector<gkVector<2>>;

constexpr double kPanel = 210.0; // width of what a panel shows, and its greatest height
constexpr double kGap = 30.0;
constexpr double kCaption = 44.0;
constexpr double kCornerCut = 9.0;
constexpr double kHatchStep = 5.0;

constexpr gkColor kText(40, 40, 40);
constexpr gkColor kNote(110, 110, 110);
constexpr gkColor kGiven(190, 190, 190);

gkColor strong(std::size_t i) {
    static const gkColor list[] = {{31, 90, 160}, {190, 80, 20}, {30, 130, 70}};
    return list[i % 3];
}

gkColor faint(std::size_t i) {
    static const gkColor list[] = {{176, 203, 235}, {246, 205, 170}, {178, 224, 192}};
    return list[i % 3];
}

const gkVector<2>& around(const Points& points, std::size_t i) { return points[i % points.size()]; }

bool isRepeated(const Points& points, std::size_t i) {
    int same = 0;
    for (const gkVector<2>& p : points) same += p.distance(points[i]) < 1e-3 ? 1 : 0;
    return same > 1;
}

// The points just before and just behind a vertex, where its corner is cut.
struct Corner {
    gkVector<2> in;
    gkVector<2> out;
};

Corner cornerAt(const Points& points, std::size_t i) {
    const gkVector<2>& at = points[i];
    if (!isRepeated(points, i)) return {at, at};
    const auto towards = [&](const gkVector<2>& other) {
        const double cut = std::min(kCornerCut, at.distance(other) / 3.0);
        return at == other ? at : at + (other - at).unit() * cut;
    };
    return {towards(around(points, i + points.size() - 1)), towards(around(points, i + 1))};
}

gkPair<double> pair(const gkVector<2>& v) { return gkPair<double>(v.x(), v.y()); }

double widthOf(const gkRect& rect) { return rect.lr().x() - rect.ul().x(); }
double heightOf(const gkRect& rect) { return rect.lr().y() - rect.ul().y(); }
double scaleFor(const gkRect& whole) { return kPanel / std::max(widthOf(whole), heightOf(whole)); }

long sheetWidth(int columns) { return static_cast<long>(columns * (kPanel + kGap) + kGap); }
long sheetHeight(int rows, const gkRect& whole) {
    return static_cast<long>(rows * (heightOf(whole) * scaleFor(whole) + kGap + kCaption) + kGap / 2.0);
}

} // namespace

Sheet::Sheet(int columns, int rows, const gkRect& whole)
    : tablet_(sheetWidth(columns), sheetHeight(rows, whole)), columns_(columns), whole_(whole),
      scale_(scaleFor(whole)), height_(heightOf(whole) * scale_) {
    tablet_.background(gkColor::white());
}

void Sheet::nextCorner() {
    const int column = next_ % columns_;
    const int row = next_ / columns_;
    ++next_;
    corner_ = gkVector<2>(kGap + column * (kPanel + kGap), 0.8 * kGap + row * (height_ + kGap + kCaption));
}

// The middle of the whole comes to the middle of the panel.
gkVector<2> Sheet::place(const gkVector<2>& p) const {
    const gkVector<2> middle = (whole_.ul() + whole_.lr()) / 2.0;
    return corner_ + gkVector<2>(kPanel, height_) / 2.0 + (p - middle) * scale_;
}

Points Sheet::placed(const gkRegion& region) const {
    Points points;
    for (const gkVector<2>& p : region.points()) points.push_back(place(p));
    return points;
}

void Sheet::line(const gkVector<2>& a, const gkVector<2>& b, const gkColor& color, double width) {
    tablet_.strokeWidth(width);
    tablet_.drawLineSeg(pair(a), pair(b), color, gkUITablet::eOverlayLayer);
}

void Sheet::text(const gkVector<2>& at, const std::string& text, double height, const gkColor& color) {
    tablet_.drawText(pair(at), text, height, color, gkUITablet::eLabelLayer);
}

void Sheet::panel(const std::vector<gkRegion>& regions, const std::string& title, const std::string& note,
                  Numbers numbers) {
    panelOver({}, regions, title, note);
    for (std::size_t i = 0; i < regions.size() && numbers == eVertices; ++i)
        number(placed(regions[i]), strong(i));
}

void Sheet::panelOver(const std::vector<gkRegion>& given, const std::vector<gkRegion>& regions,
                      const std::string& title, const std::string& note) {
    nextCorner();
    for (const gkRegion& region : given) {
        const Points points = placed(region);
        for (std::size_t i = 0; i < points.size(); ++i) line(points[i], around(points, i + 1), kGiven, 1.0);
    }
    for (std::size_t i = 0; i < regions.size(); ++i) hatch(placed(regions[i]), faint(i));
    for (std::size_t i = 0; i < regions.size(); ++i) {
        outline(placed(regions[i]), strong(i));
        arrows(placed(regions[i]), strong(i));
    }
    const gkVector<2> below = corner_ + gkVector<2>(0.0, height_ + 30.0);
    text(below, title, 15.0, kText);
    text(below + gkVector<2>(0.0, 18.0), note, 12.0, kNote);
}

// Rows of lines between the first and second, third and fourth, ... crossing with the outline.
void Sheet::hatch(const Points& points, const gkColor& color) {
    const gkRegion region(points);
    const gkRect box = region.encloseRect(gkXform<2>());
    // A row through a vertex would count it twice; the odd offset keeps rows off round coordinates.
    for (double y = box.ul().y() + 0.3719 * kHatchStep; y < box.lr().y(); y += kHatchStep) {
        const gkLineSeg row({box.ul().x() - 1.0, y}, {box.lr().x() + 1.0, y});
        const Points ends = region.intersections(row, true);
        for (std::size_t i = 0; i + 1 < ends.size(); i += 2) line(ends[i], ends[i + 1], color, 1.5);
    }
}

void Sheet::outline(const Points& points, const gkColor& color) {
    for (std::size_t i = 0; i < points.size(); ++i) {
        const Corner from = cornerAt(points, i);
        const Corner to = cornerAt(points, (i + 1) % points.size());
        line(from.in, from.out, color, 2.0);
        line(from.out, to.in, color, 2.0);
    }
}

// One on every long edge, off its middle, where edges like to cross; now and then one on a short edge.
void Sheet::arrows(const Points& points, const gkColor& color) {
    double sinceLast = 60.0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const gkVector<2> along = around(points, i + 1) - points[i];
        sinceLast += along.length();
        if (along.length() < 20.0 || sinceLast < 60.0) continue;
        sinceLast = 0.0;
        const gkVector<2> u = along.unit();
        const gkVector<2> across(-u.y(), u.x());
        const gkVector<2> tip = points[i] + along * 0.26 + u * 4.0;
        line(tip, tip - u * 8.0 + across * 4.5, color, 2.0);
        line(tip, tip - u * 8.0 - across * 4.5, color, 2.0);
    }
}

// Beside the vertex, away from the middle of the outline.
void Sheet::number(const Points& points, const gkColor& color) {
    gkVector<2> middle;
    for (const gkVector<2>& p : points) middle += p / static_cast<double>(points.size());
    for (std::size_t i = 0; i < points.size(); ++i) {
        const gkVector<2> away = (points[i] - middle).unit() * 12.0;
        tablet_.strokeWidth(i == 0 ? 3.0 : 1.6);
        tablet_.drawPoint(pair(points[i]), color, gkUITablet::eOverlayLayer);
        text(points[i] + away + gkVector<2>(-4.0, 4.5), std::to_string(i), 13.0, color);
    }
}
