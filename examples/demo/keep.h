// Contours in a file, and out of it again.
#ifndef GK_EXAMPLES_DEMO_KEEP_H
#define GK_EXAMPLES_DEMO_KEEP_H

#include "cntr/contour.h"

#include <filesystem>
#include <vector>

void saveContours(const std::filesystem::path& file, const std::vector<gkContour>& contours);
std::vector<gkContour> loadContours(const std::filesystem::path& file);

// Equal lists of equal contours; unlike the contours' own ==, the labels count as well.
bool same(const std::vector<gkContour>& a, const std::vector<gkContour>& b);

#endif
