#include "tests/hostile/goldens.h"

#include "tests/support/archived.h"

namespace {

using namespace hostile;
using namespace hostile::hex;

const std::string kZero = "0000000000000000";
const std::string kOne = "000000000000f03f";
const std::string kThree = "0000000000000840";
const std::string kFour = "0000000000001040";

// (0, 0), (4, 0), (0, 3)
std::string vertices() { return list(3) + kZero + kZero + kFour + kZero + kZero + kThree; }
std::string oldBase() { return "00 00"; }
// Two edge points.
std::string data() { return list(2) + kZero + kZero + "ffff" + "40" + kFour + kThree + "0100" + "ff"; }

std::string contour0() { return "00" + oldBase() + vertices() + "7b" + number(3) + "01"; }
std::string region0() { return "00" + oldBase() + vertices() + "7b" + number(3); }
std::string set0(const std::string& regions) { return "00 00" + regions; }
std::string linear() { return "00 00" + kOne + kZero + kZero + kOne + kThree + kFour; }
std::string edgeletContour1(const std::string& transform) { return "01" + contour() + data() + transform; }
std::string edgeletContour0() { return "00" + contour() + data(); }
std::string edgeletRegion(const std::string& holes = list(0)) { return "00" + region(holes); }
std::string edgeletSet(const std::string& regions, const std::string& same) {
    return "00" + set(regions) + same;
}
std::string error() { return "00 00 00 00"; }

const char* const kEdgeletContour = "gkContourT<gkEdgelet>";
const char* const kEdgeletRegion = "gkRegionT<gkEdgelet>";
const char* const kEdgeletSet = "gkRegionSetT<gkEdgelet>";

Golden contourGolden() {
    return {"contour 1", "contour", archive(contour() + object(1, "gkContour", contour())), true};
}

Golden contour0Golden() {
    return {"contour 0", "contour", archive(contour0() + object(1, "gkContour", contour0())), false};
}

// The region in place has a hole, and the one behind the handle the same hole and another, with a hole of its
// own.
Golden regionGolden() {
    const std::string inPlace = region(list(1) + object(1, "gkRegion", region()));
    const std::string nested = object(3, "gkRegion", region(list(1) + number(1)));
    const std::string shared = object(2, "gkRegion", region(list(2) + number(1) + nested));
    return {"region 1", "region", archive(inPlace + shared), true};
}

Golden region0Golden() {
    return {"region 0", "region", archive(region0() + object(1, "gkRegion", region0())), false};
}

// Two regions, null and the first one again; the second set holds a version-0 region when `old`.
Golden setGolden() {
    const std::string regions =
        list(4) + object(1, "gkRegion", region()) + object(2, "gkRegion", region()) + number(0) + number(1);
    const std::string shared = object(3, "gkRegionSet", set(list(1) + number(2)));
    return {"set 1", "set", archive(set(regions) + shared), true};
}

Golden set0Golden() {
    const std::string regions = list(2) + object(1, "gkRegion", region0()) + number(1);
    const std::string shared = object(2, "gkRegionSet", set0(list(1) + number(1)));
    return {"set 0", "set", archive(set0(regions) + shared), false};
}

Golden edgeletContourGolden() {
    const std::string inPlace = edgeletContour1(object(1, "gk2XformLinear", linear()));
    return {"edgelet contour 1", "edgelet_contour",
            archive(inPlace + object(2, kEdgeletContour, edgeletContour1(number(1)))), true};
}

Golden edgeletContour0Golden() {
    return {"edgelet contour 0", "edgelet_contour",
            archive(edgeletContour0() + object(1, kEdgeletContour, edgeletContour0())), false};
}

Golden edgeletRegionGolden() {
    const std::string inPlace = edgeletRegion(list(1) + object(1, kEdgeletRegion, edgeletRegion()));
    return {"edgelet region 0", "edgelet_region",
            archive(inPlace + object(2, kEdgeletRegion, edgeletRegion(list(1) + number(1)))), true};
}

Golden edgeletSetGolden() {
    const std::string regions = list(2) + object(1, kEdgeletRegion, edgeletRegion()) +
                                object(2, kEdgeletRegion, edgeletRegion(list(1) + number(1)));
    const std::string inPlace = edgeletSet(regions, list(2) + number(1) + number(2));
    const std::string shared = edgeletSet(list(1) + number(1), list(1) + number(1));
    return {"edgelet set 0", "edgelet_set", archive(inPlace + object(3, kEdgeletSet, shared)), true};
}

Golden errorsGolden() {
    const std::string owned = object(1, "gkContourDefs::EmptyContour", error()) +
                              object(2, "gkContourDefs::EmptyRegionSet", error()) +
                              object(3, "gkContourDefs::BadParams", error()) +
                              object(4, "gkContourDefs::RegionCannotBeSetOpen", error()) + number(0);
    return {"errors 0", "errors", archive(error() + error() + error() + error() + "05" + owned), true};
}

// Every class behind a handle, most of them with something that another one holds as well.
Golden graphGolden() {
    const std::string contours =
        list(5) + object(1, "gkContour", contour()) +
        object(2, "gkRegion", region(list(1) + object(3, "gkRegion", region()))) +
        object(4, kEdgeletContour, edgeletContour1(object(5, "gk2XformLinear", linear()))) +
        object(6, kEdgeletRegion, edgeletRegion(list(1) + number(3))) + number(1);
    const std::string sets = list(2) +
                             object(7, "gkRegionSet", set(list(3) + number(3) + number(6) + number(2))) +
                             object(8, kEdgeletSet, edgeletSet(list(1) + number(6), list(1) + number(6)));
    const std::string transforms = list(2) + number(5) + object(9, "gk2XformLinear", linear());
    return {"graph", "graph", archive(contours + sets + transforms + region(list(2) + number(2) + number(3))),
            true};
}

} // namespace

namespace hostile {

namespace hex {

std::string number(unsigned long value) {
    std::vector<unsigned char> bytes;
    for (int i = 0; i < 4; ++i) bytes.push_back(static_cast<unsigned char>(value >> (8 * i)));
    return toHex(bytes);
}

std::string list(unsigned long count) { return "00" + number(count); }

std::string object(unsigned long of, const std::string& name, const std::string& record) {
    const std::vector<unsigned char> letters(name.begin(), name.end());
    return number(of) + number(static_cast<unsigned long>(name.size())) + toHex(letters) + record;
}

std::string contour() { return "01 00" + number(7) + "01" + vertices() + number(3); }
std::string region(const std::string& holes) { return "01" + contour() + holes; }
std::string set(const std::string& regions) { return "01 00" + regions + number(3); }

std::vector<unsigned char> archive(const std::string& body) { return withHeader(body); }

} // namespace hex

const std::vector<Golden>& goldens() {
    static const std::vector<Golden> all = {
        contourGolden(),       contour0Golden(),   regionGolden(),         region0Golden(),
        setGolden(),           set0Golden(),       edgeletContourGolden(), edgeletContour0Golden(),
        edgeletRegionGolden(), edgeletSetGolden(), errorsGolden(),         graphGolden(),
    };
    return all;
}

} // namespace hostile
