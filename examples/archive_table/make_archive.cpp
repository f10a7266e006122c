// Writes the archive that archive_table shows: make_archive FILE
#include "gkcntr.h"

#include <iostream>

namespace {

using Region = gkPtrHandle_const<gkRegion>;

Region region(const std::vector<gkVector<2>>& outline, unsigned long label) {
    const gkPtrHandle<gkRegion> made(new gkRegion(outline));
    made->label(label);
    return made;
}

Region withHole(const std::vector<gkVector<2>>& outline, const std::vector<gkVector<2>>& hole,
                unsigned long label) {
    const gkPtrHandle<gkRegion> made(new gkRegion(outline));
    made->label(label);
    made->holes({region(hole, 0)});
    return made;
}

// Corners of a sawtooth band, `teeth` of them; no trigonometry, so that every system stores the same digits.
std::vector<gkVector<2>> saw(int teeth, double x, double y) {
    std::vector<gkVector<2>> corners = {{x, y}, {x + 3.0 * teeth, y}};
    for (int i = teeth; i > 0; --i) {
        corners.emplace_back(x + 3.0 * i, y + 4.25);
        corners.emplace_back(x + 3.0 * i - 1.5, y + 6.5);
    }
    corners.emplace_back(x, y + 4.25);
    return corners;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: make_archive FILE\n";
        return 2;
    }
    try {
        gkPtrHandle<gkRegionSet> set(new gkRegionSet({
            region({{10, 10}, {58.5, 10}, {58.5, 42.25}, {10, 42.25}}, 1),
            withHole({{80, 10}, {140, 14}, {136, 60}, {76, 52}}, {{95, 25}, {95, 40}, {115, 41}, {117, 24}}, 2),
            region({{20, 80}, {50, 110}, {50, 80}, {20, 110}}, 3), // crosses itself
            region(saw(12, 80, 80), 4),
            region({{150.125, 80}, {170.5, 95.75}, {149, 99}}, 5),
        }));
        gkArchiveFile archive(argv[1], gkArchiveFile::eSave);
        archive || set;
        archive.close();
    } catch (const gkException& error) {
        std::cerr << "error number " << error.errorNumber() << '\n';
        return 1;
    }
}
