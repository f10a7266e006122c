// Value types in an archive, byte for byte.
#include "platform/core/archive/archive_memory.h"
#include "platform/core/archive/archive_values.h"
#include "platform/image/edgelet.h"
#include "tests/support/hex.h"

#include <gtest/gtest.h>

namespace {

template <class Value> std::string written(Value value) {
    gkArchiveMemory empty;
    gkArchiveMemory out;
    out || value;
    return toHex(std::vector<unsigned char>(
        out.bytes().begin() + static_cast<std::ptrdiff_t>(empty.bytes().size()), out.bytes().end()));
}

template <class Value> Value readBack(Value value) {
    gkArchiveMemory out;
    out || value;
    gkArchiveMemory in(out.bytes());
    Value read;
    in || read;
    in.finish();
    return read;
}

const std::string kOne = "000000000000f03f";
const std::string kTwo = "0000000000000040";
const std::string kThree = "0000000000000840";
const std::string kFour = "0000000000001040";

} // namespace

TEST(ArchiveValues, AnglesAreADoubleAndAByte) {
    EXPECT_EQ(kOne, written(gkRadian(1.0)));
    EXPECT_EQ("c8", written(gkAngle8(200)));
    EXPECT_EQ(gkRadian(7.5), readBack(gkRadian(7.5)));
    EXPECT_EQ(gkAngle8(200), readBack(gkAngle8(200)));
}

TEST(ArchiveValues, MatrixGoesRowByRow) {
    EXPECT_EQ(kOne + kTwo + kThree + kFour, written(gkMatrix<2>(1, 2, 3, 4)));
    EXPECT_EQ(gkMatrix<2>(1, 2, 3, 4), readBack(gkMatrix<2>(1, 2, 3, 4)));
}

TEST(ArchiveValues, TransformIsMatrixThenTranslation) {
    const gkXform<2> xform(gkMatrix<2>(1, 2, 3, 4), {2, 1});
    EXPECT_EQ(kOne + kTwo + kThree + kFour + kTwo + kOne, written(xform));
    EXPECT_EQ(xform, readBack(xform));
}

TEST(ArchiveValues, RectangleIsItsTwoCorners) {
    const gkRect rect = gkRect::fromCorners({1, 2}, {3, 4});
    EXPECT_EQ(kOne + kTwo + kThree + kFour, written(rect));
    EXPECT_EQ(rect, readBack(rect));
}

TEST(ArchiveValues, EdgeletIsPositionMagnitudeAndAngle) {
    const gkEdgelet edgelet({1, 2}, 0x0304, gkAngle8(5));
    EXPECT_EQ(kOne + kTwo + "0403" + "05", written(edgelet));
    EXPECT_TRUE(edgelet == readBack(edgelet));
}

TEST(ArchiveValues, CountOfEdgeletsIsCheckedAgainstTheBytesLeft) {
    std::vector<gkEdgelet> edgelets(3);
    gkArchiveMemory out;
    out || edgelets;
    std::vector<unsigned char> bytes = out.bytes();
    bytes.pop_back();
    gkArchiveMemory in(bytes);
    EXPECT_THROW(in || edgelets, gkArchive::CountTooLarge);
}
