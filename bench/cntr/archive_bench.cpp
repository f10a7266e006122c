// Regions as bytes, beside well-known binary.
#include "bench/contestants.h"
#include "bench/peers/geos.h"
#include "bench/suite.h"

namespace bench {

namespace {

std::vector<unsigned char> written(gkRegion& region) {
    gkArchiveMemory archive;
    archive || region;
    archive.finish();
    return archive.bytes();
}

std::size_t verticesRead(const std::vector<unsigned char>& bytes) {
    gkArchiveMemory archive(bytes.data(), bytes.size());
    gkRegion region;
    archive || region;
    archive.finish();
    return region.points().size();
}

// That there is a byte for every bit of the vertices.
double asExpected(std::size_t bytes, std::size_t vertices) { return bytes >= 16 * vertices ? 1.0 : 0.0; }

void write(Race& race, Kind kind, std::size_t n) {
    const SharedPoints points = shared(outline(kind, n));
    const std::size_t vertices = points->size();
    race.add("ours", Standing::eOurs, regionMaker(points),
             [=](gkRegion& r, std::size_t) { return asExpected(written(r).size(), vertices); });
    race.add("GEOS WKB", Standing::ePeer, areaMaker<GeosArea>(points),
             [=](const GeosArea& a, std::size_t) { return asExpected(geosWritten(a).size(), vertices); });
}

void read(Race& race, Kind kind, std::size_t n) {
    const SharedPoints points = shared(outline(kind, n));
    using Bytes = std::vector<unsigned char>;
    race.add(
        "ours", Standing::eOurs, [=] { return std::make_unique<Bytes>(written(*regionOf(*points))); },
        [](const Bytes& bytes, std::size_t) { return verticesRead(bytes); });
    race.add(
        "GEOS WKB", Standing::ePeer,
        [=] {
            return std::make_unique<Bytes>(geosWritten(GeosArea({*points, {}})));
        },
        [](const Bytes& bytes, std::size_t) { return geosVerticesRead(bytes) - 1; });
}

} // namespace

void addArchiveRows(std::vector<Row>& rows) {
    rows.push_back({"archive_write", {Kind::eStar}, {}, {Mode::eFresh}, write});
    rows.push_back({"archive_read", {Kind::eStar}, {}, {Mode::eFresh}, read});
}

} // namespace bench
