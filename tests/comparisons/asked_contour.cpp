#include "tests/comparisons/asked_contour.h"

namespace comparisons {

// Some lie so near a vertex that a ray between two others may touch it.
gkVector<2> Questions::point() {
    if (!points_.empty() && random_.chance(0.2)) {
        const double distances[] = {1e-7, 1e-6, 3e-6, 1e-5, 1e-4, 1e-3, 1e-2};
        const double distance = distances[random_.index(std::size(distances))];
        const gkRadian angle(random_.between(0.0, 6.3));
        return points_[random_.index(points_.size())] + gkVector<2>(distance, angle);
    }
    return oneOf(probes_, [&] { return gen::probesWithBadOnes(points_, seed_); });
}

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
