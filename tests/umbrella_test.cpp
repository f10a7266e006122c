// tests/umbrella_test.cpp - gkcntr.h brings every public header. Oracle: the tree and the list of inner
// headers.
#include "gkcntr.h"

#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>
#include <string>

namespace {

const std::filesystem::path kRoot = GK_SOURCE_FOLDER;

std::vector<std::string> linesOf(const std::filesystem::path& file) {
    std::ifstream in(kRoot / file);
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
}

// The Cairo surface is a library of its own, which a user may not have.
bool isOptional(const std::string& header) { return header.rfind("platform/display/cairo/", 0) == 0; }

std::set<std::string> publicHeaders() {
    std::set<std::string> headers;
    for (const char* room : {"platform", "cntr", "ch_core"}) {
        if (!std::filesystem::exists(kRoot / room)) continue;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(kRoot / room)) {
            const std::string name = std::filesystem::relative(entry.path(), kRoot).generic_string();
            if (entry.path().extension() == ".h" && !isOptional(name)) headers.insert(name);
        }
    }
    for (const std::string& inner : linesOf("cmake/inner_headers.txt")) headers.erase(inner);
    return headers;
}

std::set<std::string> includedHeaders() {
    const std::string begin = "#include \"";
    std::set<std::string> headers;
    for (const std::string& line : linesOf("gkcntr.h"))
        if (line.rfind(begin, 0) == 0)
            headers.insert(line.substr(begin.size(), line.size() - begin.size() - 1));
    return headers;
}

} // namespace

TEST(UmbrellaHeader, IncludesExactlyThePublicHeadersButTheOptionalSurface) {
    EXPECT_FALSE(publicHeaders().empty());
    EXPECT_EQ(publicHeaders(), includedHeaders());
}

TEST(UmbrellaHeader, IsEnoughToUseEveryRoom) {
    const gkContour triangle({{0, 0}, {4, 0}, {0, 3}}, true, 7);
    gkRecordingTablet tablet;
    triangle.draw(tablet, gkContourDefs::eDrawOutline, gkColor::red(), gkUITablet::eOverlayLayer);
    EXPECT_EQ(3U, tablet.records().size());
    gkArchiveMemory out;
    gkContour copy(triangle);
    out || copy;
    gkArchiveMemory in(out.bytes());
    gkContour read;
    in || read;
    EXPECT_EQ(triangle, read);
    EXPECT_EQ(6.0, gf_Area(triangle.points()));
    EXPECT_EQ(gkAngle8(64), gkEdgelet(gkVector<2>(1, 2), 3, gkAngle8(64)).angle());
}
