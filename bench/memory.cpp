#include "bench/memory.h"

#include "bench/ours.h"

#include <cstdlib>
#include <functional>
#include <iomanip>
#include <malloc.h>
#include <new>
#include <ostream>
#include <string>

namespace {

bool isCounting = false;
std::ptrdiff_t bytes = 0; // below 0 when more is taken back than was given since

std::ptrdiff_t usable(void* place) { return static_cast<std::ptrdiff_t>(malloc_usable_size(place)); }

void* given(std::size_t size) {
    void* const place = std::malloc(size);
    if (!place) throw std::bad_alloc();
    if (isCounting) bytes += usable(place);
    return place;
}

void* given(std::size_t size, std::align_val_t alignment) {
    const auto unit = static_cast<std::size_t>(alignment);
    void* const place = std::aligned_alloc(unit, (size + unit - 1) / unit * unit);
    if (!place) throw std::bad_alloc();
    if (isCounting) bytes += usable(place);
    return place;
}

void taken(void* place) noexcept {
    if (isCounting) bytes -= usable(place);
    std::free(place);
}

} // namespace

void* operator new(std::size_t size) { return given(size); }
void* operator new(std::size_t size, std::align_val_t alignment) { return given(size, alignment); }
void operator delete(void* place) noexcept { taken(place); }
void operator delete(void* place, std::size_t) noexcept { taken(place); }
void operator delete(void* place, std::align_val_t) noexcept { taken(place); }
void operator delete(void* place, std::size_t, std::align_val_t) noexcept { taken(place); }

namespace bench {

void beginCounting() {
    isCounting = true;
    bytes = 0;
}
std::ptrdiff_t countedBytes() { return bytes; }
void endCounting() { isCounting = false; }

namespace {

struct Question {
    std::string name;
    std::function<void(const gkRegion&)> ask;
};

std::vector<Question> questions(const Box& box) {
    const gkVector<2> p = vectorOf(centerOf(box));
    const gkLineSeg across(vectorOf(box.low), vectorOf(box.high));
    return {
        {"inside", [=](const gkRegion& r) { r.inside(p, false); }},
        {"closestPoint", [=](const gkRegion& r) { r.closestPoint(p, false); }},
        {"closestVertexIndex", [=](const gkRegion& r) { r.closestVertexIndex(p); }},
        {"vertexIndex", [=](const gkRegion& r) { r.vertexIndex(p, 2.0); }},
        {"intersections", [=](const gkRegion& r) { r.intersections(across, true); }},
        {"encloseRect", [=](const gkRegion& r) { r.encloseRect(gkXform<2>()); }},
    };
}

// Often enough that whatever is built only for many queries is built.
constexpr int kTimes = 300;

double keptAfter(const Question& question, const Points& points) {
    const auto region = regionOf(points);
    const std::ptrdiff_t before = countedBytes();
    for (int i = 0; i < kTimes; ++i) question.ask(*region);
    return static_cast<double>(countedBytes() - before);
}

} // namespace

void printMemory(std::ostream& out) {
    constexpr std::size_t n = 10000;
    out << "\nMemory in bytes (floors: unqueried 700 and its vertices, index 24 a vertex)\n\n"
        << std::fixed << std::setprecision(1);
    for (const Kind kind : {Kind::eStar, Kind::eComb, Kind::eSpiral}) {
        const Points points = outline(kind, n);
        const auto count = static_cast<double>(points.size());
        beginCounting();
        const auto contour = contourOf(points);
        const double unqueried = static_cast<double>(countedBytes()) - 16.0 * count;
        out << "  " << nameOf(kind) << ": unqueried contour " << unqueried << "; kept a vertex after";
        const auto everything = regionOf(points);
        const std::ptrdiff_t before = countedBytes();
        for (const Question& question : questions(boxOf(points))) {
            out << ' ' << question.name << ' ' << keptAfter(question, points) / count << ',';
            for (int i = 0; i < kTimes; ++i) question.ask(*everything);
        }
        out << " all of these " << static_cast<double>(countedBytes() - before) / count << '\n';
        endCounting();
    }
}

} // namespace bench
