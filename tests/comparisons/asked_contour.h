// One contour that is asked again and again, and where its questions come from.
#ifndef GK_TESTS_COMPARISONS_ASKED_CONTOUR_H
#define GK_TESTS_COMPARISONS_ASKED_CONTOUR_H

#include "tests/comparisons/operations.h"
#include "tests/comparisons/outlines.h"
#include "tests/gen/questions.h"
#include "tests/support/shapes.h"

namespace comparisons {

// Questions made from the shape, made when the first is asked for; each drawn may come again.
class Questions {
public:
    Questions(const Points& points, std::uint64_t seed) : points_(points), seed_(seed), random_(seed + 1) {}

    gen::Random& random() { return random_; }
    bool flag() { return random_.chance(0.5); }
    gkVector<2> point();
    gkLineSeg segment() {
        return oneOf(segments_, [&] { return gen::segmentsWithBadOnes(points_, seed_); });
    }
    // A distance between a vertex and the point is exactly at the border.
    double tolerance(const gkVector<2>& p);
    double angle() {
        return oneOf(angles_, [&] { return gen::angles(seed_); });
    }
    gkXform<2> xform() {
        return oneOf(xforms_, [&] { return gen::xforms(seed_); });
    }

private:
    template <class T, class Make> T oneOf(std::vector<T>& list, Make make) {
        if (list.empty()) list = make();
        return list[random_.index(list.size())];
    }

    const Points& points_;
    std::uint64_t seed_;
    gen::Random random_;
    Points probes_;
    std::vector<gkLineSeg> segments_;
    std::vector<double> tolerances_;
    std::vector<double> angles_;
    std::vector<gkXform<2>> xforms_;
};

struct AskedContour {
    explicit AskedContour(const Outline& outline)
        : points(outline.points), closed(outline.closed), contour(points, closed, 0),
          questions(points, outline.seed) {}

    const Points& points;
    bool closed;
    OpenedContour contour;
    Questions questions;
};

using ContourQuestion = void (*)(AskedContour&, Tally&);

// Puts the question `times` times to one contour after the other.
Operation onContours(const std::string& name, const Sizes& sizes, int times, ContourQuestion question);

// What may be asked of a contour in any order, of contours of kLinear and of kQuadratic sizes.
const std::vector<ContourQuestion>& proximityQuestions();
const std::vector<ContourQuestion>& measureQuestions();
const std::vector<ContourQuestion>& crossingQuestions();
const std::vector<ContourQuestion>& quadraticQuestions();

} // namespace comparisons

#endif
