// Records written, read again, and read after damage.
#include "ch_core/cntrtmpl.h"
#include "platform/core/archive/archive_memory.h"
#include "platform/core/archive/archive_values.h"
#include "platform/core/archive/archive_vector.h"
#include "platform/core/transform/xform_linear.h"
#include "tests/bits/operations.h"

namespace {

using bits::Record;
using bits::World;

using Bytes = std::vector<unsigned char>;

Bytes written(gkPersistent& object) {
    gkArchiveMemory archive;
    archive || object;
    archive.finish();
    return archive.bytes();
}

void load(const Bytes& bytes, gkPersistent& object) {
    gkArchiveMemory archive(bytes);
    archive || object;
    archive.finish();
}

// The bytes, those of what they are read to, and the errors of the same bytes cut short and changed.
template <class Shape> void writeAndRead(const World& world, Shape& shape, Record& record) {
    Bytes bytes;
    record.fill([&](Answer& answer) {
        bytes = written(shape);
        bits::add(answer, bytes);
    });
    record.fill([&](Answer& answer) {
        Shape read;
        load(bytes, read);
        bits::add(answer, written(read));
    });
    if (bytes.empty()) return;
    const std::size_t place = world.index % bytes.size();
    record.fill([&](Answer& answer) {
        Shape read;
        load(Bytes(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(place)), read);
        answer.add(true);
    });
    record.fill([&](Answer& answer) {
        Shape read;
        Bytes changed = bytes;
        changed[place] = static_cast<unsigned char>(changed[place] ^ 0x11u);
        load(changed, read);
        bits::add(answer, written(read));
    });
}

// Numbers and shapes by themselves.
void values(const World& world, Record& record) {
    record.fill([&](Answer& answer) {
        gkArchiveMemory archive;
        auto number = static_cast<long>(world.index) - 5000;
        bool flag = world.closed;
        std::string text = world.kind;
        archive || number || flag || text;
        for (double angle : world.angles) archive || angle;
        for (gkXform<2> xform : world.xforms) archive || xform;
        std::vector<gkVector<2>> probes = world.probes;
        std::vector<gkEdgelet> data = world.data;
        archive || probes || data;
        archive.finish();
        bits::add(answer, archive.bytes());
    });
}

void contour(const World& world, Record& record) {
    gkContour shape(world.points, world.closed, 77);
    writeAndRead(world, shape, record);
}

void region(const World& world, Record& record) {
    gkRegion shape(world.points);
    writeAndRead(world, shape, record);
}

void set(const World& world, Record& record) {
    std::vector<gkPtrHandle_const<gkRegion>> regions;
    for (const bits::Points& outline : world.set) regions.emplace_back(new gkRegion(outline));
    regions.push_back(regions.front());
    gkRegionSet shape(regions);
    writeAndRead(world, shape, record);
}

// A vertex that is derived from infinite or NaN coordinates may be a NaN that was computed, whose bits nobody
// promises, and an archive keeps every bit: then the vertices count, with all NaNs as one.
template <class Shape>
void writeAndReadDerived(const World& world, const bits::Points& derived, Shape& shape, Record& record) {
    for (const gkVector<2>& p : derived) {
        if (p != p) {
            record.value([&] { return derived; });
            return;
        }
    }
    writeAndRead(world, shape, record);
}

void edgeletContour(const World& world, Record& record) {
    gkContourT<gkEdgelet> shape(world.data,
                                gkPtrHandle_const<gk2XformBase>(new gk2XformLinear(world.xforms[2])));
    writeAndReadDerived(world, shape.points(), shape, record);
}

void edgeletRegion(const World& world, Record& record) {
    gkRegionT<gkEdgelet> shape(world.data, 5);
    writeAndReadDerived(world, shape.points(), shape, record);
}

void edgeletSet(const World& world, Record& record) {
    using Set = gkRegionSetT<gkEdgelet>;
    const gkPtrHandle_const<gkRegionT<gkEdgelet>> region(new gkRegionT<gkEdgelet>(world.data, 5));
    Set shape(Set::Regions{region});
    writeAndReadDerived(world, region->points(), shape, record);
}

} // namespace

bits::Operations bits::archiveOperations() {
    return {{"archive.values", &values},
            {"archive.contour", &contour},
            {"archive.region", &region},
            {"archive.set", &set},
            {"archive.edgeletContour", &edgeletContour},
            {"archive.edgeletRegion", &edgeletRegion},
            {"archive.edgeletSet", &edgeletSet}};
}
