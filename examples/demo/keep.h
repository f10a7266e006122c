// Regions in a file, and out of it again.
#ifndef GK_EXAMPLES_DEMO_KEEP_H
#define GK_EXAMPLES_DEMO_KEEP_H

#include "cntr/regionst.h"

#include <filesystem>

void saveRegions(const std::filesystem::path& file, const gkRegionSet& regions);
gkRegionSet loadRegions(const std::filesystem::path& file);

// Equal lists of equal regions; unlike the regions' own ==, labels and holes count as well.
bool same(const gkRegionSet& a, const gkRegionSet& b);

#endif
