// The shapes that are measured and the questions put to them. The same seed gives the same shapes.
#ifndef GK_BENCH_SHAPES_H
#define GK_BENCH_SHAPES_H

#include "bench/plain.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace bench {

constexpr std::uint64_t kSeed = 20260;

enum class Kind {
    eStar,      // what an edge detector gives: a vertex per pixel, noise in the radius
    eComb,      // long thin teeth, four vertices each: every box overlaps every other
    eSpiral,    // a band wound up in many turns, a vertex per pixel
    eLattice,   // a row of pixel columns, vertices at whole numbers
    eLissajous, // crosses itself seven times and where the noise does, some parts wound around twice or not at
                // all
    eEight,     // crosses itself once and where the noise does
    eCoin       // the longest outline of the demo's picture, whatever its number of vertices
};

std::string nameOf(Kind kind);

// A closed outline of `n` vertices (up to a few, where the kind needs a multiple).
Points outline(Kind kind, std::size_t n);

// A star with up to eight holes that share a quarter of the vertices, none touching another.
Polygon starWithHoles(std::size_t n);

// Two stars of n vertices each that overlap, their outlines crossing twice.
std::vector<Points> overlappingBlobs(std::size_t n);

// `count` stars of 20 vertices in rows that do not touch.
std::vector<Points> grid(std::size_t count);

Box boxOf(const Points& points);
Point centerOf(const Box& box);
double widthOf(const Box& box);
double heightOf(const Box& box);

// In the box, enlarged by a tenth.
Points queryPoints(const Box& box, std::size_t count);
// Near the vertices: as far as about two of their distances.
Points pointsNear(const Points& vertices, std::size_t count);
// Of a few pixels, anywhere in the box.
std::vector<Segment> shortSegments(const Box& box, std::size_t count);
// From one side of the box to another.
std::vector<Segment> longSegments(const Box& box, std::size_t count);
// Angles of a turn, no two equal.
std::vector<double> angles(std::size_t count);
// Rotations with a little shear and a shift, no two equal.
std::vector<Affine> transforms(std::size_t count);

} // namespace bench

#endif
