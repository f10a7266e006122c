// Points, lines, segments, rectangles, circles, ellipses and polygons.
#include "platform/core/shapes/circle.h"
#include "platform/core/shapes/ellipse.h"
#include "platform/core/shapes/line_seg.h"
#include "platform/core/shapes/polygon.h"
#include "platform/core/shapes/rect.h"
#include "tests/bits/operations.h"

namespace {

using bits::Record;
using bits::World;

void lineValues(const World& world, Record& record) {
    for (std::size_t i = 0; i + 1 < world.segments.size(); ++i) {
        const gkLine line = world.segments[i].line();
        const gkLine other = world.segments[i + 1].line();
        record.value([&] { return line.direction(); });
        record.value([&] { return line.isParallel(other); });
        record.value([&] { return line.intersect(other); });
        for (std::size_t k = i % 4; k < world.probes.size(); k += 4) {
            record.value([&] { return line.distToPoint(world.probes[k]); });
            record.value([&] { return line.proj(world.probes[k]); });
        }
    }
}

void segmentValues(const World& world, Record& record) {
    for (std::size_t i = 0; i < world.segments.size(); ++i) {
        const gkLineSeg& seg = world.segments[i];
        record.value([&] { return seg.length(); });
        for (std::size_t k = i % 4; k < world.probes.size(); k += 4) {
            record.value([&] { return seg.distToPoint(world.probes[k]); });
            record.value([&] { return seg.closestPoint(world.probes[k]); });
        }
    }
}

void rectangleValues(const World& world, Record& record) {
    gkRect all;
    for (const gkLineSeg& seg : world.segments) {
        record.fill([&](Answer& answer) {
            const gkRect rect = gkRect::fromCorners(seg.p1(), seg.p2());
            const gkRect sized(seg.p1(), seg.p2());
            answer.add(rect);
            answer.add(sized);
            answer.add(rect.size());
            answer.add(rect.width());
            answer.add(rect.height());
            answer.add(rect.center());
            answer.add(rect.overlaps(sized));
            all = all.enclose(rect);
            answer.add(all);
            for (const gkVector<2>& p : world.probes) answer.add(rect.within(p));
        });
    }
}

void circleValues(const World& world, Record& record) {
    for (const gkLineSeg& seg : world.segments) {
        record.fill([&](Answer& answer) {
            const gkCircle circle(gkPoint(seg.p1()), seg.length());
            answer.add(circle);
            answer.add(circle.area());
            answer.add(circle.circumference());
            answer.add(circle.center().distance(gkPoint(seg.p2())));
            for (const gkVector<2>& p : world.probes) answer.add(circle.within(p));
        });
    }
}

void ellipseValues(const World& world, Record& record) {
    for (std::size_t i = 0; i < world.angles.size() && i < world.segments.size(); ++i) {
        const gkLineSeg& seg = world.segments[i];
        const gkRadian angle(world.angles[i]);
        const gkEllipse ellipse(
            gkEllipse::gkEllipseGeom(gkPoint(seg.p1()), gkVector<2>(3.0, seg.length()), angle));
        record.value([&] { return ellipse; });
        record.value([&] { return ellipse.area(); });
        record.value([&] { return ellipse.point(angle).vector(); });
        for (const gkVector<2>& p : world.probes) {
            record.value([&] { return ellipse.distToPoint(p); });
            record.value([&] { return ellipse.within(p); });
        }
    }
}

void polygonValues(const World& world, Record& record) {
    gkPolygon polygon(world.points, gkPolygon::eNonZero);
    polygon.append(gkVector<2>(1.0, 2.0));
    record.value([&] { return polygon.vertices(); });
    record.value([&] { return polygon[world.points.size()]; });
    record.value([&] { return polygon[world.points.size() + 1]; });
}

} // namespace

bits::Operations bits::planeOperations() {
    return {{"line.values", &lineValues},       {"segment.values", &segmentValues},
            {"rect.values", &rectangleValues},  {"circle.values", &circleValues},
            {"ellipse.values", &ellipseValues}, {"polygon.values", &polygonValues}};
}
