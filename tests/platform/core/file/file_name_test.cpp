// Names of files. Oracle: the path that the standard library makes of the same text.
#include "platform/core/file/file_name.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <type_traits>

namespace fs = std::filesystem;

namespace {

fs::path::string_type given(const gkFileName& name) { return name.native(); }

} // namespace

TEST(FileName, IsThePathItIsMadeFrom) {
    const fs::path path = fs::path("a folder") / fs::u8path("\xCE\xA9_\xE5\xBD\xA2.gka");
    EXPECT_EQ(path.native(), given(path));
    EXPECT_EQ(path.native(), given(fs::path(path)));
}

TEST(FileName, OfATextIsThePathOfTheText) {
    EXPECT_EQ(fs::path("picture.svg").native(), given("picture.svg"));
    EXPECT_EQ(fs::path("picture.svg").native(), given(std::string("picture.svg")));
    EXPECT_EQ(fs::path().native(), given(""));
}

TEST(FileName, OfAWideTextIsThePathOfTheText) {
    EXPECT_EQ(fs::path(L"picture.svg").native(), given(L"picture.svg"));
    EXPECT_EQ(fs::path(L"picture.svg").native(), given(std::wstring(L"picture.svg")));
}

TEST(FileName, IsCopiedAsItIs) {
    gkFileName name("picture.svg");
    const gkFileName copy(name);
    EXPECT_EQ(name.native(), copy.native());
}

TEST(FileName, IsMadeOfPathsAndTextsAlone) {
    EXPECT_FALSE((std::is_convertible_v<int, gkFileName>));
    EXPECT_FALSE((std::is_convertible_v<void*, gkFileName>));
}
