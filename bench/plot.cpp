#include "bench/plot.h"

#include "gkcntr.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace bench {

namespace {

struct Wanted {
    const char* operation;
    Kind kind;
    Mode mode;
};

const std::vector<Wanted>& mainOperations() {
    static const std::vector<Wanted> list = {
        {"inside", Kind::eStar, Mode::eRepeated},          {"inside", Kind::eComb, Mode::eRepeated},
        {"closest_point", Kind::eStar, Mode::eRepeated},   {"closest_point", Kind::eComb, Mode::eRepeated},
        {"crossings_short", Kind::eStar, Mode::eRepeated}, {"crossings_of_two", Kind::eStar, Mode::eFresh},
        {"crosses_itself", Kind::eStar, Mode::eFresh},     {"crosses_itself", Kind::eComb, Mode::eFresh},
        {"convex_hull", Kind::eStar, Mode::eFresh},        {"enclosing_box", Kind::eStar, Mode::eRepeated},
        {"outer_hull", Kind::eLissajous, Mode::eFresh},    {"merge_of_two", Kind::eStar, Mode::eFresh},
    };
    return list;
}

constexpr double kSide = 180.0;  // of a panel's square
constexpr double kMargin = 50.0; // to its left and below
constexpr double kHead = 30.0;   // above, for the title
constexpr double kPitchX = kSide + kMargin + 20.0;
constexpr double kPitchY = kSide + kMargin + kHead;
constexpr int kColumns = 4;
constexpr double kLeastPower = 1.0; // sizes from 10 to 10^6, times from 10 ns to 10^11 ns
constexpr double kGreatestPower = 6.0;
constexpr double kLeastTime = 1.0;
constexpr double kGreatestTime = 11.0;

const gkColor kInk(40, 40, 40);
const gkColor kFaint(220, 220, 220);
const gkColor kOurs(0, 90, 200);
const gkColor kPeer(220, 110, 0);
const gkColor kPlain(130, 130, 130);

// One square with its axes; the corner is the upper left of the square.
class Panel {
public:
    Panel(gkSvgTablet& tablet, double x, double y) : tablet_(tablet), x_(x), y_(y) {}

    void frame(const std::string& title) {
        for (double power = kLeastPower; power <= kGreatestPower; power += 1.0) {
            line(power, kLeastTime, power, kGreatestTime, kFaint);
            label(power, kLeastTime, -8.0, 14.0, "1e" + std::to_string(static_cast<int>(power)));
        }
        static const char* const units[] = {"1 ns", "1 us", "1 ms", "1 s"};
        for (int unit = 1; unit < 4; ++unit) {
            line(kLeastPower, 3.0 * unit, kGreatestPower, 3.0 * unit, kFaint);
            label(kLeastPower, 3.0 * unit, -32.0, 4.0, units[unit]);
        }
        label(kLeastPower, kGreatestTime, 0.0, -8.0, title);
    }

    // Points in the order of their sizes.
    void curve(const std::vector<Point>& points, const gkColor& color) {
        for (std::size_t i = 0; i < points.size(); ++i) {
            tablet_.drawPoint(place(points[i].x, points[i].y), color, gkUITablet::eOverlayLayer);
            if (i > 0) line(points[i - 1].x, points[i - 1].y, points[i].x, points[i].y, color);
        }
    }

private:
    gkPair<double> place(double power, double time) const {
        return gkPair<double>(x_ + kSide * (power - kLeastPower) / (kGreatestPower - kLeastPower),
                              y_ + kSide * (kGreatestTime - time) / (kGreatestTime - kLeastTime));
    }
    void line(double power0, double time0, double power1, double time1, const gkColor& color) {
        tablet_.drawLineSeg(place(power0, time0), place(power1, time1), color, gkUITablet::eOverlayLayer);
    }
    void label(double power, double time, double dx, double dy, const std::string& text) {
        const gkPair<double> at = place(power, time);
        tablet_.drawText(gkPair<double>(at.x() + dx, at.y() + dy), text, 11.0, kInk, gkUITablet::eLabelLayer);
    }

    gkSvgTablet& tablet_;
    double x_;
    double y_;
};

using Select = const Entry* (Result::*)() const;

std::vector<Point> curveOf(const std::vector<Result>& results, const Wanted& wanted, Select select) {
    std::vector<Point> points;
    for (const Result& result : results) {
        const bool isWanted =
            result.operation == wanted.operation && result.kind == wanted.kind && result.mode == wanted.mode;
        const Entry* const entry = isWanted ? (result.*select)() : nullptr;
        if (entry) points.push_back({std::log10(static_cast<double>(result.n)), std::log10(entry->ns)});
    }
    std::sort(points.begin(), points.end(), [](const Point& a, const Point& b) { return a.x < b.x; });
    return points;
}

void key(gkSvgTablet& tablet, double y) {
    const auto entry = [&](double x, const char* text, const gkColor& color) {
        tablet.drawLineSeg(gkPair<double>(x, y), gkPair<double>(x + 30.0, y), color, gkUITablet::eOverlayLayer);
        tablet.drawText(gkPair<double>(x + 36.0, y + 4.0), text, 12.0, kInk, gkUITablet::eLabelLayer);
    };
    entry(kMargin, "ours", kOurs);
    entry(kMargin + 120.0, "best peer", kPeer);
    entry(kMargin + 260.0, "plain definition", kPlain);
}

} // namespace

void plot(const std::filesystem::path& file, const std::vector<Result>& results) {
    std::vector<Wanted> shown;
    for (const Wanted& wanted : mainOperations()) {
        if (curveOf(results, wanted, &Result::ours).size() > 1) shown.push_back(wanted);
    }
    if (shown.empty()) return;
    const int rows = (static_cast<int>(shown.size()) + kColumns - 1) / kColumns;
    gkSvgTablet tablet(static_cast<long>(kPitchX * kColumns + 20.0), static_cast<long>(kPitchY * rows + 40.0));
    tablet.background(gkColor(255, 255, 255));
    for (std::size_t i = 0; i < shown.size(); ++i) {
        const auto column = static_cast<double>(i % kColumns);
        const auto row = static_cast<double>(i / kColumns);
        Panel panel(tablet, kMargin + column * kPitchX, kHead + row * kPitchY);
        panel.frame(std::string(shown[i].operation) + ", " + nameOf(shown[i].kind) + ", " +
                    nameOf(shown[i].mode));
        panel.curve(curveOf(results, shown[i], &Result::plain), kPlain);
        panel.curve(curveOf(results, shown[i], &Result::bestPeer), kPeer);
        panel.curve(curveOf(results, shown[i], &Result::ours), kOurs);
    }
    key(tablet, kPitchY * rows + 20.0);
    tablet.save(file);
}

} // namespace bench
