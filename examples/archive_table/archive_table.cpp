// Loads an archive of regions and prints what they measure: archive_table FILE
#include "gkcntr.h"

#include <array>
#include <charconv>
#include <iostream>
#include <string>
#include <system_error>
#include <vector>

namespace {

using Row = std::array<std::string, 11>;

constexpr std::size_t kWidths[] = {3, 9, 9, 9, 9, 9, 6, 10, 10, 10, 8};

const Row kNames = {"no",   "vertices", "length", "mean x", "mean y",        "diameter",
                    "hull", "area",     "filled", "error",  "crosses itself"};

std::string fixed(double value, int digits) {
    char text[400]; // the greatest double has 309 digits before the point
    const std::to_chars_result end =
        std::to_chars(text, text + sizeof text, value, std::chars_format::fixed, digits);
    return end.ec == std::errc() ? std::string(text, end.ptr) : std::string("?");
}

std::string fitError(const gkRegion& region) {
    try {
        gkEllipse ellipse;
        double error = 0.0;
        region.fitEllipse(ellipse, error);
        return fixed(error, 4);
    } catch (const gkEllipseFitDefs::TooFewPoints&) {
        return "-";
    } catch (const gkEllipseFitDefs::Degenerate&) {
        return "-";
    }
}

Row measured(const gkRegion& region) {
    const gkVector<2> mean = region.meanPosition();
    gkRegion hull;
    region.convexHull(hull);
    return {std::to_string(region.label()),
            std::to_string(region.points().size()),
            fixed(region.length(), 3),
            fixed(mean.x(), 3),
            fixed(mean.y(), 3),
            fixed(region.diameter(gkContourDefs::eExact), 3),
            std::to_string(hull.points().size()),
            fixed(region.area(true), 3),
            fixed(region.area(false), 3),
            fitError(region),
            region.isSelfIntersecting() ? "yes" : "no"};
}

void print(const Row& row) {
    for (std::size_t i = 0; i < row.size(); ++i) {
        const std::size_t width = i + 1 < row.size() ? kWidths[i] : row[i].size() + 2;
        std::cout << std::string(width > row[i].size() ? width - row[i].size() : 1, ' ') << row[i];
    }
    std::cout << '\n';
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: archive_table FILE\n";
        return 2;
    }
    try {
        gkPtrHandle<gkRegionSet> set;
        gkArchiveFile archive(argv[1], gkArchiveFile::eLoad);
        archive || set;
        archive.close();
        print(kNames);
        for (const gkPtrHandle_const<gkRegion>& region : set->regions()) print(measured(*region));
        const gkVector<2> centre = set->centerOfMass(false);
        std::cout << set->regions().size() << " regions, area " << fixed(set->area(true), 3)
                  << ", centre of mass (" << fixed(centre.x(), 3) << ", " << fixed(centre.y(), 3) << ")\n";
    } catch (const gkArchive::Errors& error) {
        std::wcerr << argv[1] << L": " << error.message() << L'\n';
        return 1;
    } catch (const gkException& error) {
        std::cerr << "error number " << error.errorNumber() << '\n';
        return 1;
    }
}
