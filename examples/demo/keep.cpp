#include "examples/demo/keep.h"

#include "platform/core/archive/archive_file.h"

#include <algorithm>

namespace {

using Regions = std::vector<gkPtrHandle_const<gkRegion>>;
using Edges = std::vector<gkPtrHandle_const<gkContourT<gkEdgelet>>>;

void addEdges(const EdgeRegion& region, Edges& edges) {
    edges.emplace_back(new gkContourT<gkEdgelet>(region));
    for (const gkPtrHandle_const<EdgeRegion>& hole : region.holes()) addEdges(*hole, edges);
}

bool same(const Regions& a, const Regions& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const auto& one, const auto& other) {
        return *one == *other && one->label() == other->label() && same(one->holes(), other->holes());
    });
}

// Not the contours' own ==, to which a transform equals only itself.
bool same(const Edges& a, const Edges& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const auto& one, const auto& other) {
        return one->points() == other->points() && one->data() == other->data();
    });
}

} // namespace

Kept keptOf(const std::vector<Object>& objects) {
    Kept kept;
    for (const Object& object : objects) {
        kept.regions.add(object.shape, gkContourDefs::eKeepIntersections);
        addEdges(*object.edges, kept.edges);
    }
    return kept;
}

void save(const std::filesystem::path& file, const Kept& kept) {
    Kept written = kept; // one operator serves both directions, so it takes no constant
    gkArchiveFile archive(file, gkArchiveFile::eSave);
    archive || written.regions || written.edges;
    archive.close();
}

Kept load(const std::filesystem::path& file) {
    Kept kept;
    gkArchiveFile archive(file, gkArchiveFile::eLoad);
    archive || kept.regions || kept.edges;
    archive.close();
    return kept;
}

bool same(const Kept& a, const Kept& b) {
    return same(a.regions.regions(), b.regions.regions()) && same(a.edges, b.edges);
}
