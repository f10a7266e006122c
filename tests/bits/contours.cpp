// The contour's operations.
#include "cntr/region.h"
#include "tests/bits/operations.h"

namespace {

using bits::Points;
using bits::Record;
using bits::World;

// Opens the protected side of any contour through pointers to its members; no object of this class is ever
// made.
struct Reach : gkContour {
    static constexpr auto lineSegsOf = &Reach::lineSegs;
    static constexpr auto validLineOf = &Reach::validLine;
    static constexpr auto medianFeatureSizeOf = &Reach::medianFeatureSize;
};

gkContour contourOf(const World& world) { return gkContour(world.points, world.closed, 7); }

void length(const World& world, Record& record) {
    const gkContour contour = contourOf(world);
    record.value([&] { return contour.length(); });
}

void meanPosition(const World& world, Record& record) {
    const gkContour contour = contourOf(world);
    record.value([&] { return contour.meanPosition(); });
}

void encloseCircle(const World& world, Record& record) {
    const gkContour contour = contourOf(world);
    record.value([&] { return contour.encloseCircle(gkContourDefs::eExact); });
    record.value([&] { return contour.encloseCircle(gkContourDefs::eApproximate); });
}

void diameter(const World& world, Record& record) {
    const gkContour contour = contourOf(world);
    record.value([&] { return contour.diameter(gkContourDefs::eExact); });
    record.value([&] { return contour.diameter(gkContourDefs::eApproximate); });
}

void extremalVertex(const World& world, Record& record) {
    const gkContour contour = contourOf(world);
    for (const double angle : world.angles) {
        record.value([&] { return contour.extremalVertexIndex(gkRadian(angle)); });
        record.value([&] { return contour.extremalVertexPosition(gkRadian(angle)); });
    }
}

void encloseRect(const World& world, Record& record) {
    const gkContour contour = contourOf(world);
    for (const gkXform<2>& xform : world.xforms) record.value([&] { return contour.encloseRect(xform); });
}

void convexHull(const World& world, Record& record) {
    const gkContour contour = contourOf(world);
    gkRegion hull;
    record.fill([&](Answer& answer) {
        contour.convexHull(hull);
        answer.add(hull.points());
    });
}

void fitEllipse(const World& world, Record& record) {
    const gkContour contour = contourOf(world);
    gkEllipse ellipse;
    double error = 0.0;
    record.fill([&](Answer& answer) {
        contour.fitEllipse(ellipse, error);
        answer.add(ellipse);
        answer.add(error);
    });
}

void closestPoint(const World& world, Record& record) {
    const gkContour contour = contourOf(world);
    for (const gkVector<2>& p : world.probes) {
        record.value([&] { return contour.closestPoint(p, false); });
        record.value([&] { return contour.closestPoint(p, true); });
    }
}

void closestVertexIndex(const World& world, Record& record) {
    const gkContour contour = contourOf(world);
    for (const gkVector<2>& p : world.probes) record.value([&] { return contour.closestVertexIndex(p); });
}

void distToPoint(const World& world, Record& record) {
    const gkContour contour = contourOf(world);
    for (const gkVector<2>& p : world.probes) {
        record.value([&] { return contour.distToPoint(p, false); });
        record.value([&] { return contour.distToPoint(p, true); });
    }
}

void vertexIndex(const World& world, Record& record) {
    const gkContour contour = contourOf(world);
    for (const double tolerance : world.tolerances) {
        for (const gkVector<2>& p : world.probes)
            record.value([&] { return contour.vertexIndex(p, tolerance); });
    }
}

void segmentIntersections(const World& world, Record& record) {
    const gkContour contour = contourOf(world);
    for (const gkLineSeg& seg : world.segments) {
        record.value([&] { return contour.intersections(seg, false); });
        record.value([&] { return contour.intersections(seg, true); });
    }
}

void contourIntersections(const World& world, Record& record) {
    const gkContour contour = contourOf(world);
    const gkContour other(world.other, true, 0);
    record.value([&] { return contour.intersections(other); });
    record.value([&] { return other.intersections(contour); });
}

void isSelfIntersecting(const World& world, Record& record) {
    const gkContour contour = contourOf(world);
    record.value([&] { return contour.isSelfIntersecting(); });
}

void map(const World& world, Record& record) {
    const gkContour contour = contourOf(world);
    for (const gkXform<2>& xform : world.xforms) {
        record.fill([&](Answer& answer) {
            gkContour mapped;
            contour.map(xform, mapped);
            answer.add(mapped.points());
            answer.add(mapped.isClosed());
            answer.add(static_cast<long>(mapped.label()));
        });
    }
}

void polygon(const World& world, Record& record) {
    record.value([&] { return contourOf(world).polygon().vertices(); });
    record.fill([&](Answer& answer) {
        const gkContour read(gkPolygon(world.points), 3);
        answer.add(read.points());
        answer.add(read.isClosed());
    });
}

void equality(const World& world, Record& record) {
    const gkContour contour = contourOf(world);
    gkContour changed(contour);
    record.value([&] { return contour == changed; });
    changed.isClosed(!world.closed);
    record.value([&] { return contour == changed; });
    record.value([&] { return contour == gkContour(world.hole, world.closed, 7); });
}

// Every question of one object, twice, through a copy and after a change: what is kept is what was computed.
void keptResults(const World& world, Record& record) {
    const gkContour contour = contourOf(world);
    const auto ask = [&](const gkContour& asked) {
        record.value([&] { return asked.length(); });
        record.value([&] { return asked.encloseCircle(gkContourDefs::eExact); });
        for (const gkXform<2>& xform : world.xforms) record.value([&] { return asked.encloseRect(xform); });
        for (const double angle : world.angles) {
            record.value([&] { return asked.extremalVertexIndex(gkRadian(angle)); });
        }
    };
    ask(contour);
    ask(contour);
    gkContour copy(contour);
    copy.cachedVectorSize(1);
    ask(copy);
    copy.points(world.other);
    ask(copy);
}

void segments(const World& world, Record& record) {
    const gkContour contour = contourOf(world);
    record.value([&] { return (contour.*Reach::lineSegsOf)(); });
    record.value([&] { return (contour.*Reach::validLineOf)(); });
    record.value([&] { return (contour.*Reach::medianFeatureSizeOf)(); });
}

void keyOrder(const World& world, Record& record) {
    const gkContour::gsSTLLessPredicate less;
    for (const gkXform<2>& a : world.xforms) {
        for (const gkXform<2>& b : world.xforms) record.value([&] { return less(a, b); });
    }
    for (std::size_t i = 0; i + 1 < world.probes.size(); ++i) {
        record.value([&] { return less(world.probes[i], world.probes[i + 1]); });
        record.value([&] { return less(gkRadian(world.probes[i].x()), gkRadian(world.probes[i].y())); });
    }
}

} // namespace

bits::Operations bits::contourOperations() {
    return {{"contour.length", &length},
            {"contour.meanPosition", &meanPosition},
            {"contour.encloseCircle", &encloseCircle},
            {"contour.diameter", &diameter},
            {"contour.extremalVertex", &extremalVertex},
            {"contour.encloseRect", &encloseRect},
            {"contour.convexHull", &convexHull},
            {"contour.fitEllipse", &fitEllipse},
            {"contour.closestPoint", &closestPoint},
            {"contour.closestVertexIndex", &closestVertexIndex},
            {"contour.distToPoint", &distToPoint},
            {"contour.vertexIndex", &vertexIndex},
            {"contour.intersections(segment)", &segmentIntersections},
            {"contour.intersections(contour)", &contourIntersections},
            {"contour.isSelfIntersecting", &isSelfIntersecting},
            {"contour.map", &map},
            {"contour.polygon", &polygon},
            {"contour.equality", &equality},
            {"contour.keptResults", &keptResults},
            {"contour.segments", &segments},
            {"contour.keyOrder", &keyOrder}};
}
