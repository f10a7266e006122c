// What each tolerance of parallel lines costs: repairs refused, crossings invented, crossings lost.
// The figures are in docs/decisions/0010-parallel-lines.md.
#include "cntr/contour_defs.h"
#include "cntr/moments.h"
#include "cntr/region.h"
#include "tests/measure/tolerant_outline.h"
#include "tests/support/collinear.h"

#include <cmath>
#include <cstdio>
#include <functional>
#include <optional>
#include <string>

namespace {

using collinear::Frame;
using collinear::Outline;

constexpr double kUlp = 1.0 / 4503599627370496.0;
constexpr ParallelTest kTests[] = {{0, 0},     {1e-16, 0}, {1e-15, 0}, {1e-14, 0}, {1e-13, 0}, {1e-12, 0},
                                   {1e-11, 0}, {1e-10, 0}, {1e-9, 0},  {1e-8, 0},  {1e-6, 0},  {0, 2 * kUlp}};
constexpr ParallelTest kPlain = {1e-9, 0};
constexpr unsigned long kShapes = 1000;
constexpr Frame kFrames[] = {{1, 1}, {1e3, 1e3}, {1e3, 10}, {1e6, 1e6}, {1e6, 1e3}, {1e6, 10}};

// Shapes are made anew from their seed for every test.
using Holds = std::function<bool(gkRandomUniform&, const ParallelTest& test)>;

void row(const std::string& name, const Holds& holds) {
    std::printf("%-36s", name.c_str());
    for (const ParallelTest& test : kTests) {
        int count = 0;
        for (unsigned long seed = 1; seed <= kShapes; ++seed) {
            gkRandomUniform random(seed);
            count += holds(random, test) ? 1 : 0;
        }
        std::printf(" %5.1f", 100.0 * count / static_cast<double>(kShapes));
        std::fflush(stdout);
    }
    std::printf("\n");
}

std::string label(const ParallelTest& test) {
    char text[16];
    std::snprintf(text, sizeof text, "%.0e", test.sine);
    return test.rounding > 0 ? "ulps" : text;
}

void heading(const std::string& text) {
    std::printf("\n%s, %% of %lu shapes\n%-36s", text.c_str(), kShapes, "coordinates / shape, by test");
    for (const ParallelTest& test : kTests) std::printf(" %5s", label(test).c_str());
    std::printf("\n");
}

std::string name(const std::string& what, const Frame& frame) {
    char text[64];
    std::snprintf(text, sizeof text, "%s %.0e / %.0e", what.c_str(), frame.coordinates, frame.shape);
    return text;
}

std::optional<double> repairedArea(const Outline& outline, const ParallelTest& test) {
    const std::optional<Outline> repaired = TolerantOutline(outline, test).repaired();
    if (!repaired) return std::nullopt;
    Outline near; // far from the origin the area itself would lose the digits compared
    for (const gkVector<2>& vertex : *repaired) near.push_back(vertex - repaired->front());
    return gf_Area(near);
}

// The next scribble that crosses itself and can be repaired; far from any question of parallel lines.
Outline repairable(gkRandomUniform& random, const std::function<Outline(gkRandomUniform&)>& next) {
    for (;;) {
        const Outline outline = next(random);
        if (TolerantOutline(outline, kPlain).isSelfIntersecting() && repairedArea(outline, kPlain))
            return outline;
    }
}

enum class Repair { eRight, eWrong };

void repairs(Repair wanted) {
    const auto counts = [wanted](const Outline& outline, const Outline& cut, const ParallelTest& test) {
        const std::optional<double> area = repairedArea(cut, test);
        const double right = *repairedArea(outline, kPlain);
        return area && (std::fabs(*area - right) <= 1e-6 * right) == (wanted == Repair::eRight);
    };
    for (const Frame& frame : kFrames) {
        row(name("turned", frame), [&](gkRandomUniform& random, const ParallelTest& test) {
            const gkXform<2> where = collinear::place(random, frame);
            const Outline outline = repairable(
                random, [&](gkRandomUniform& r) { return collinear::placed(where, collinear::scribble(r)); });
            return counts(outline, collinear::subdivided(random, outline), test);
        });
    }
    row("lattice, oblique", [&](gkRandomUniform& random, const ParallelTest& test) {
        const Outline outline = repairable(random, collinear::latticeScribble);
        return counts(outline, collinear::subdivided(random, outline), test);
    });
    row("lattice, axis-parallel", [&](gkRandomUniform& random, const ParallelTest& test) {
        const Outline outline = repairable(random, collinear::latticeStairs);
        return counts(outline, collinear::subdivided(random, outline), test);
    });
}

void falseSelfIntersections() {
    for (const Frame& frame : kFrames) {
        row(name("turned", frame), [&](gkRandomUniform& random, const ParallelTest& test) {
            const Outline outline = collinear::folded(random, collinear::star(random));
            return TolerantOutline(collinear::placed(collinear::place(random, frame), outline), test)
                .isSelfIntersecting();
        });
    }
}

// Two outlines with a common piece of border meet, beside it, in vertices of one or the other only.
bool inventsPoints(const Outline& one, const Outline& other, const ParallelTest& test, double size) {
    for (const gkVector<2>& x : TolerantOutline(one, test).crossings(other)) {
        double nearest = size;
        for (const Outline* outline : {&one, &other}) {
            for (const gkVector<2>& vertex : *outline) nearest = std::fmin(nearest, x.distance(vertex));
        }
        if (nearest > 1e-6 * size && nearest > 1e-5) return true;
    }
    return false;
}

void inventedPoints() {
    for (const Frame& frame : kFrames) {
        row(name("turned", frame), [&](gkRandomUniform& random, const ParallelTest& test) {
            const auto pair = collinear::neighbours(random);
            const gkXform<2> where = collinear::place(random, frame);
            return inventsPoints(collinear::placed(where, pair.first), collinear::placed(where, pair.second),
                                 test, frame.shape);
        });
    }
}

void lostCrossings() {
    for (const Frame& frame : kFrames) {
        for (const double tangent : {1e-3, 1e-5, 1e-7, 1e-9, 1e-11}) {
            // Below this the ends lie within the touch of the other edge, and no tolerance finds the crossing.
            if (tangent * frame.shape < 4e-6) continue;
            char angle[16];
            std::snprintf(angle, sizeof angle, "%.0e at", tangent);
            row(name(angle, frame), [&](gkRandomUniform& random, const ParallelTest& test) {
                const Outline outline = collinear::needle(tangent);
                return !TolerantOutline(collinear::placed(collinear::place(random, frame), outline), test)
                            .isSelfIntersecting();
            });
        }
    }
}

// The outline measured must be the library's: with its own test both answer alike.
void checkAgainstLibrary() {
    unsigned long differences = 0;
    for (unsigned long seed = 1; seed <= kShapes; ++seed) {
        gkRandomUniform random(seed);
        const Outline plain =
            collinear::placed(collinear::place(random, {1e3, 1e3}), collinear::scribble(random));
        const Outline cut = collinear::subdivided(random, plain);
        const TolerantOutline outline(cut, {gkLine::kParallelSine, 0});
        const gkRegion region(cut);
        if (outline.isSelfIntersecting() != region.isSelfIntersecting()) ++differences;
        if (!region.isSelfIntersecting()) continue;
        std::optional<Outline> expected;
        try {
            gkRegion repaired;
            region.regularize(repaired);
            expected = repaired.points();
        } catch (const gkContourDefs::BadParams&) {
        }
        if (outline.repaired() != expected) ++differences;
    }
    std::printf("differences from the library at %.0e: %lu of %lu\n", gkLine::kParallelSine, differences,
                kShapes);
}

} // namespace

int main() {
    checkAgainstLibrary();
    heading("subdivided outlines repaired rightly");
    repairs(Repair::eRight);
    heading("subdivided outlines repaired to another area");
    repairs(Repair::eWrong);
    heading("folded outlines wrongly said to cross themselves");
    falseSelfIntersections();
    heading("pairs with a common border that meet in invented points");
    inventedPoints();
    heading("true crossings at small angles lost");
    lostCrossings();
    return 0;
}
