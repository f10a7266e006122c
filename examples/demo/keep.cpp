#include "examples/demo/keep.h"

#include "platform/core/archive/archive_file.h"

#include <algorithm>

namespace {

using Handles = std::vector<gkPtrHandle<gkContour>>;

} // namespace

void saveContours(const std::filesystem::path& file, const std::vector<gkContour>& contours) {
    Handles handles;
    for (const gkContour& contour : contours) handles.emplace_back(new gkContour(contour));
    gkArchiveFile archive(file, gkArchiveFile::eSave);
    archive || handles;
    archive.close();
}

std::vector<gkContour> loadContours(const std::filesystem::path& file) {
    Handles handles;
    gkArchiveFile archive(file, gkArchiveFile::eLoad);
    archive || handles;
    archive.close();
    std::vector<gkContour> contours;
    for (const gkPtrHandle<gkContour>& handle : handles) contours.push_back(*handle);
    return contours;
}

bool same(const std::vector<gkContour>& a, const std::vector<gkContour>& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const gkContour& one, const gkContour& other) {
        return one == other && one.label() == other.label();
    });
}
