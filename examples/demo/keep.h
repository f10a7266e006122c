// Objects in a file, and out of it again.
#ifndef GK_EXAMPLES_DEMO_KEEP_H
#define GK_EXAMPLES_DEMO_KEEP_H

#include "cntr/regionst.h"
#include "examples/demo/object.h"

#include <filesystem>
#include <vector>

struct Kept {
    gkRegionSet regions; // the shapes, with their holes
    // Their edge points: of each region the outline's, then those of its holes. As contours, since an edgelet
    // contour keeps its data and its transform in the archive and an edgelet region does not.
    std::vector<gkPtrHandle_const<gkContourT<gkEdgelet>>> edges;
};

Kept keptOf(const std::vector<Object>& objects);

void save(const std::filesystem::path& file, const Kept& kept);
Kept load(const std::filesystem::path& file);

// Equal lists of equal regions; unlike the regions' own ==, labels, holes and edge points count as well.
bool same(const Kept& a, const Kept& b);

#endif
