#include "examples/demo/keep.h"

#include "platform/core/archive/archive_file.h"

#include <algorithm>
#include <vector>

namespace {

using Regions = std::vector<gkPtrHandle_const<gkRegion>>;

bool same(const Regions& a, const Regions& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const auto& one, const auto& other) {
        return *one == *other && one->label() == other->label() && same(one->holes(), other->holes());
    });
}

} // namespace

void saveRegions(const std::filesystem::path& file, const gkRegionSet& regions) {
    gkRegionSet written = regions; // one operator serves both directions, so it takes no constant
    gkArchiveFile archive(file, gkArchiveFile::eSave);
    archive || written;
    archive.close();
}

gkRegionSet loadRegions(const std::filesystem::path& file) {
    gkRegionSet regions;
    gkArchiveFile archive(file, gkArchiveFile::eLoad);
    archive || regions;
    archive.close();
    return regions;
}

bool same(const gkRegionSet& a, const gkRegionSet& b) { return same(a.regions(), b.regions()); }
