// tests/forward_test.cpp - gkcntr_fwd.h names every public class. Oracle: the compiler, which refuses a second
// declaration of another kind, and the class heads of the public headers.
#include "gkcntr_fwd.h"

namespace {

// A header that only passes shapes around needs no more.
struct Passes {
    const gkContour* contour;
    gkPtrHandle<gkRegion> (*region)(const gkPtrHandle_const<gkRegion>&);
    double (*measured)(const gkRegionSet&, const gkVector<2>&, const gkXform<2>&, const gkMatrix<2>&);
    void (*drawn)(gkUITablet&, const gkContourT<gkEdgelet>&, gkPair<double>);
    gk_InertiaData (*moments)(const gkRegionT<gkEdgelet>&, const gkRegionSetT<gkEdgelet>&);
};

} // namespace

#include "gkcntr.h"

#include <fstream>
#include <gtest/gtest.h>
#include <regex>
#include <set>
#include <string>

namespace {

// The classes that a header declares or defines outside of any other, but not the library's own (gk_Xxx), of
// which one record is public.
std::set<std::string> classesOf(const std::string& header) {
    const std::regex head("(?:template <(?:class|int) [A-Za-z]+> )?class (?:GKCNTR_API )?"
                          "(gk[A-Z0-9][A-Za-z0-9]*_?[a-z]*|gk_InertiaData)(?:;| \\{| : .*)");
    std::ifstream in(std::string(GK_SOURCE_FOLDER) + "/" + header);
    EXPECT_TRUE(in.good()) << header;
    std::set<std::string> names;
    std::smatch found;
    for (std::string line; std::getline(in, line);)
        if (std::regex_match(line, found, head)) names.insert(found[1]);
    return names;
}

std::set<std::string> publicClasses() {
    const std::string begin = "#include \"";
    std::ifstream in(std::string(GK_SOURCE_FOLDER) + "/gkcntr.h");
    std::set<std::string> names;
    for (std::string line; std::getline(in, line);)
        if (line.rfind(begin, 0) == 0)
            names.merge(classesOf(line.substr(begin.size(), line.size() - begin.size() - 1)));
    // Templates of which only the plane's specialization is there are declared beside it, and so found as well.
    return names;
}

gkPtrHandle<gkRegion> copied(const gkPtrHandle_const<gkRegion>& region) {
    return gkPtrHandle<gkRegion>(new gkRegion(*region));
}

} // namespace

TEST(ForwardHeader, NamesExactlyThePublicClasses) {
    EXPECT_GT(publicClasses().size(), 40u);
    EXPECT_EQ(publicClasses(), classesOf("gkcntr_fwd.h"));
}

TEST(ForwardHeader, IsEnoughToPassShapesAround) {
    const gkContour triangle({{0, 0}, {4, 0}, {0, 3}}, true, 7);
    Passes passes{};
    passes.contour = &triangle;
    passes.region = copied;
    const gkPtrHandle_const<gkRegion> region(new gkRegion(*passes.contour, gkContourDefs::eKeepIntersections));
    EXPECT_EQ(6.0, passes.region(region)->area(false));
}
