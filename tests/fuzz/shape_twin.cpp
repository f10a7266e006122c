// Three shapes of one class are changed, asked, copied, assigned and sent through archives in any order. A twin
// without a past, read anew before each question, must answer the same.
#include "cntr/regionst.h"
#include "platform/core/archive/archive_memory.h"
#include "tests/fuzz/questions.h"
#include "tests/fuzz/repair_laws.h"
#include "tests/gen/kinds.h"
#include "tests/gen/tangles.h"

#include <array>

namespace {

using fuzz::Points;
using fuzz::Question;
using fuzz::Source;
using Handle = gkPtrHandle_const<gkRegion>;

constexpr std::size_t kMostChanges = 64;

// Of up to some hundred finite vertices.
Points outlineFrom(Source& source) {
    const std::size_t kind = source.byte();
    const std::uint64_t seed = source.twoBytes();
    const std::vector<gen::Kind>& plain = gen::kinds();
    const std::vector<gen::Kind>& tangles = gen::tangles();
    const std::size_t i = kind % (plain.size() + tangles.size());
    const gen::Kind& chosen = i < plain.size() ? plain[i] : tangles[i - plain.size()];
    // A circle that is asked for again where there are NaNs may be the last one that was found.
    return gen::shape(chosen.finite ? chosen : plain[0], seed);
}

// For sets: one that another outline can be held against. Where that is refused, a set keeps what it had found
// by then, and a twin cannot know.
Points whatSetsTakeFrom(Source& source) {
    const Points points = outlineFrom(source);
    return points.size() < 2 ? Points{{0.0, 0.0}, {1.0, 1.0}} : points;
}

// An archive holds everything but the kept results, and does not mind holes that an outline was moved onto.
template <class Shape> Shape twinOf(const Shape& shape) {
    Shape copy(shape);
    gkArchiveMemory out;
    out || static_cast<gkPersistent&>(copy);
    gkArchiveMemory in(out.bytes());
    Shape twin;
    in || static_cast<gkPersistent&>(twin);
    in.finish();
    return twin;
}

Question<gkContour> questionTo(const gkContour& contour, Source& source) {
    return fuzz::contourQuestion(source, contour);
}
Question<gkRegion> questionTo(const gkRegion& region, Source& source) {
    return fuzz::regionQuestion(source, region);
}
Question<gkRegionSet> questionTo(const gkRegionSet& set, Source& source) {
    return fuzz::setQuestion(source, set);
}

void change(gkContour& contour, Source& source) {
    switch (source.below(4)) {
    case 0:
        return contour.isClosed(source.flag());
    case 1:
        return contour.label(source.byte());
    default:
        return contour.points(outlineFrom(source));
    }
}

void change(gkRegion& region, Source& source) {
    switch (source.below(6)) {
    case 0:
        return region.label(source.byte());
    case 1:
        return region.regularize(region);
    case 2:
        return region.outerHull(region);
    case 3:
        return region.points(outlineFrom(source));
    case 4:
        return region.map(gkXform<2>(gkMatrix<2>(0.0, -1.0, 1.0, 0.0), {1.0, 2.0}), region);
    default: {
        std::vector<Handle> holes;
        for (std::size_t count = source.below(3); count > 0; --count)
            holes.emplace_back(new gkRegion(outlineFrom(source)));
        return region.holes(holes); // those that meet the outline are refused, and it keeps its own
    }
    }
}

void change(gkRegionSet& set, Source& source) {
    const std::vector<Handle> regions = set.regions();
    const auto mode = static_cast<gkContourDefs::IntersectionMode>(source.below(3));
    switch (source.below(5)) {
    case 0:
        return set.regularize(set);
    case 1:
        return set.outerHull(set);
    case 2:
        return set.regions({}, mode);
    case 3:
        if (regions.empty()) return;
        return set.add(regions[source.below(regions.size())], mode); // once more the same object
    default:
        if (regions.size() < 4) set.add(Handle(new gkRegion(whatSetsTakeFrom(source))), mode);
    }
}

template <class Shape> void throughArchive(Shape& from, Shape& to) {
    gkArchiveMemory out;
    out || static_cast<gkPersistent&>(from);
    gkArchiveMemory in(out.bytes());
    in || static_cast<gkPersistent&>(to);
    in.finish();
    gkArchiveMemory again;
    again || static_cast<gkPersistent&>(to);
    fuzz::demand(out.bytes() == again.bytes(), "what was read is what was written");
}

template <class Shape> void compare(const Shape& shape, Source& source) {
    const Question<Shape> question = questionTo(shape, source);
    // From the second or some later one on an index may answer.
    for (std::size_t count = 1 + source.below(4); count > 0; --count)
        fuzz::demandEqual(question.ask(twinOf(shape)), question.ask(shape), question.name);
}

// Fills everything that is kept; what an earlier step has left there must not be told.
template <class Shape> void compareAll(const Shape& shape) {
    for (const Question<Shape>& question : fuzz::keptQuestions(shape))
        fuzz::demandEqual(question.ask(twinOf(shape)), question.ask(shape), question.name);
}

template <class Shape> void step(std::array<Shape, 3>& shapes, Source& source) {
    Shape& shape = shapes[source.below(3)];
    Shape& other = shapes[source.below(3)];
    switch (source.below(10)) {
    case 0:
    case 1:
        return change(shape, source);
    case 2:
        shape.cachedVectorSize(static_cast<long>(source.below(5)));
        return;
    case 3:
        shape = other;
        return;
    case 4: {
        const Shape copy(shape);
        return compare(copy, source);
    }
    case 5:
        return throughArchive(shape, other);
    case 6:
        return compareAll(shape);
    default:
        return compare(shape, source);
    }
}

template <class Shape> void run(Source& source) {
    std::array<Shape, 3> shapes;
    for (std::size_t count = 0; count < kMostChanges && source.left() > 0; ++count) {
        // Refusals are answers like others; what a refused change leaves is asked on.
        const Answer refused = answer([&] {
            step(shapes, source);
            return true;
        });
        static_cast<void>(refused);
    }
    for (const Shape& shape : shapes) compareAll(shape);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Source source(data, size);
    switch (source.below(3)) {
    case 0:
        run<gkContour>(source);
        break;
    case 1:
        run<gkRegion>(source);
        break;
    default:
        run<gkRegionSet>(source);
    }
    return 0;
}
