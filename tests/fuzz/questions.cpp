#include "tests/fuzz/questions.h"

#include "cntr/regionst.h"
#include "tests/support/kept_results.h"

namespace {

using fuzz::Question;
using fuzz::Source;

// A vertex, a place beside it, one between two, or any small place.
gkVector<2> placeFrom(Source& source, const std::vector<gkVector<2>>& points) {
    const double steps[] = {0.0, 1e-15, 9e-7, 1.1e-6, 0.25, -3.0, 1e3};
    const gkVector<2> step(steps[source.below(std::size(steps))], steps[source.below(std::size(steps))]);
    if (points.empty() || source.below(8) == 0)
        return step + gkVector<2>(source.byte() / 16.0, source.byte() / 16.0);
    const gkVector<2> vertex = points[source.twoBytes() % points.size()];
    const gkVector<2> other = points[source.twoBytes() % points.size()];
    return (source.flag() ? vertex : (vertex + other) / 2.0) + step;
}

// Transforms with equal keys have equal elements, or one would be given what is kept for the other.
gkXform<2> xformFrom(Source& source) {
    const double k = source.byte() % 6;
    return k == 0.0 ? gkXform<2>() : gkXform<2>(gkMatrix<2>(1.0 + k, 0.5 * k, -0.25, 2.0 - k), {k, -1.0});
}

template <class Shape, class Ask> Question<Shape> question(const char* name, Ask ask) {
    return {name, [ask](const Shape& shape) { return answer([&] { return ask(shape); }); }};
}

// The answer of a question that answers refusals, or throws them.
template <class Shape> Answer answered(const std::function<Answer(const Shape&)>& ask, const Shape& shape) {
    try {
        return ask(shape);
    } catch (...) {
        Answer refused;
        refused.error = currentError();
        return refused;
    }
}

// Where no two vertices differ the exact circle stays the last one that there was.
bool hasExactCircle(const gkContour& contour) {
    return gkContour(contour.points(), true, 0).diameter(gkContourDefs::eExact) > 0.0;
}

template <class Shape, class Base>
void add(const std::vector<Kept<Base>>& all, bool withExactCircle, std::vector<Question<Shape>>& questions) {
    for (const Kept<Base>& kept : all) {
        if (kept.name == "encloseCircle(eExact)" && !withExactCircle) continue;
        if (kept.name == "centerOfMass(true)") continue; // only the first answer tells it with holes
        questions.push_back({kept.name, [ask = kept.ask](const Shape& s) { return answered<Base>(ask, s); }});
    }
}

template <class Shape> Question<Shape> keptOne(Source& source, const Shape& like) {
    const std::vector<Question<Shape>> all = fuzz::keptQuestions(like);
    return all[source.below(all.size())];
}

} // namespace

namespace fuzz {

Question<gkContour> contourQuestion(Source& source, const gkContour& like) {
    using C = gkContour;
    const gkVector<2> p = placeFrom(source, like.points());
    const bool flag = source.flag();
    switch (source.below(12)) {
    case 0:
        return question<C>("closestPoint", [=](const C& c) { return c.closestPoint(p, flag); });
    case 1:
        return question<C>("closestVertexIndex",
                           [=](const C& c) { return c.gkContour::closestVertexIndex(p); });
    case 2:
        return question<C>("distToPoint", [=](const C& c) { return c.distToPoint(p, flag); });
    case 3: {
        const double tolerances[] = {1e-6, 1e-3, 0.5, 2.5, 100.0};
        const double tolerance = tolerances[source.below(std::size(tolerances))];
        return question<C>("vertexIndex", [=](const C& c) { return c.vertexIndex(p, tolerance); });
    }
    case 4: {
        const gkLineSeg segment(p, placeFrom(source, like.points()));
        return question<C>("intersections", [=](const C& c) { return c.intersections(segment, flag); });
    }
    case 5: {
        const gkVector<2> by = placeFrom(source, {});
        std::vector<gkVector<2>> moved = like.points();
        for (gkVector<2>& vertex : moved) vertex += by;
        const gkContour other(moved, flag, 0);
        return question<C>("intersections with a contour", [=](const C& c) { return c.intersections(other); });
    }
    case 6: {
        const gkXform<2> xform = xformFrom(source);
        return question<C>("encloseRect", [=](const C& c) { return c.encloseRect(xform); });
    }
    case 7: {
        const gkRadian angle(source.byte() / 16.0 - 4.0);
        return question<C>("extremalVertexIndex", [=](const C& c) { return c.extremalVertexIndex(angle); });
    }
    default:
        return keptOne(source, like);
    }
}

Question<gkRegion> regionQuestion(Source& source, const gkRegion& like) {
    using R = gkRegion;
    const gkVector<2> p = placeFrom(source, like.points());
    const bool flag = source.flag();
    const bool holes = source.flag();
    switch (source.below(8)) {
    case 0:
    case 1:
        return question<R>("inside", [=](const R& r) { return r.inside(p, holes); });
    case 2:
        return question<R>("closestPoint", [=](const R& r) { return r.closestPoint(p, flag, holes); });
    case 3:
        return question<R>("distToPoint", [=](const R& r) { return r.distToPoint(p, flag, holes, !flag); });
    case 4: {
        const gkLineSeg segment(p, placeFrom(source, like.points()));
        return question<R>("intersections", [=](const R& r) { return r.intersections(segment, flag, holes); });
    }
    case 5:
    case 6: {
        const Question<gkContour> asked = contourQuestion(source, like);
        return {asked.name, [=](const R& r) { return asked.ask(r); }};
    }
    default:
        return keptOne(source, like);
    }
}

Question<gkRegionSet> setQuestion(Source& source, const gkRegionSet& like) {
    using S = gkRegionSet;
    const std::vector<gkPtrHandle_const<gkRegion>> regions = like.regions();
    const std::size_t near = source.byte();
    const gkVector<2> p = placeFrom(source, regions.empty() ? std::vector<gkVector<2>>()
                                                            : regions[near % regions.size()]->points());
    const bool flag = source.flag();
    const bool holes = source.flag();
    switch (source.below(4)) {
    case 0:
        return question<S>("inside", [=](const S& s) { return s.inside(p, holes); });
    case 1:
        return question<S>("distToPoint", [=](const S& s) { return s.distToPoint(p, flag, holes, !flag); });
    case 2: {
        const gkXform<2> xform = xformFrom(source);
        return question<S>("encloseRect", [=](const S& s) { return s.encloseRect(xform); });
    }
    default:
        return keptOne(source, like);
    }
}

std::vector<Question<gkContour>> keptQuestions(const gkContour& like) {
    std::vector<Question<gkContour>> all;
    add(keptOfContours(), hasExactCircle(like), all);
    return all;
}

std::vector<Question<gkRegion>> keptQuestions(const gkRegion& like) {
    std::vector<Question<gkRegion>> all;
    add(keptOfContours(), hasExactCircle(like), all);
    add(keptOfRegions(), true, all);
    return all;
}

std::vector<Question<gkRegionSet>> keptQuestions(const gkRegionSet&) {
    std::vector<Question<gkRegionSet>> all;
    add(keptOfSets(), true, all);
    return all;
}

} // namespace fuzz
