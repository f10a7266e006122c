#include "tests/comparisons/asked_contour.h"

namespace comparisons {

double Questions::tolerance(const gkVector<2>& p) {
    if (!points_.empty() && random_.chance(0.25)) {
        const double distance = p.distance(points_[random_.index(points_.size())]);
        const double borders[] = {below(distance), distance, above(distance)};
        return borders[random_.index(3)];
    }
    return oneOf(tolerances_, [&] { return gen::tolerancesWithBadOnes(points_); });
}

Operation onContours(const std::string& name, const Sizes& sizes, int times, ContourQuestion question) {
    return {name, [=](std::uint64_t seed, Tally& tally) {
                const Outline outline = outlineOf(seed, sizes);
                tally.shape(outline.kind, seed, outline.points.size());
                AskedContour asked(outline);
                for (int i = 0; i < times; ++i) question(asked, tally);
            }};
}

namespace {

// A copy shares what has been built, a new contour has nothing.
void copyOrRenew(AskedContour& asked) {
    if (asked.questions.flag()) {
        asked.contour = OpenedContour(asked.contour);
    } else {
        asked.contour.points(asked.points);
    }
}

Operation inAnyOrder(const std::string& name, const Sizes& sizes,
                     std::initializer_list<std::vector<ContourQuestion>> lists) {
    std::vector<ContourQuestion> questions;
    for (const auto& list : lists) questions.insert(questions.end(), list.begin(), list.end());
    return {name, [=](std::uint64_t seed, Tally& tally) {
                const Outline outline = outlineOf(seed, sizes);
                tally.shape(outline.kind, seed, outline.points.size());
                AskedContour asked(outline);
                for (int i = 0; i < 30; ++i) {
                    questions[asked.questions.random().index(questions.size())](asked, tally);
                    if (asked.questions.random().chance(0.05)) copyOrRenew(asked);
                }
            }};
}

} // namespace

Operations contourOperations() {
    return {inAnyOrder("contour.anyOrder", kLinear,
                       {measureQuestions(), proximityQuestions(), crossingQuestions()}),
            inAnyOrder("contour.anyOrder(small)", kQuadratic,
                       {measureQuestions(), proximityQuestions(), crossingQuestions(), quadraticQuestions()})};
}

} // namespace comparisons
