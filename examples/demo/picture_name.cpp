#include "examples/demo/picture_name.h"

bool isPictureName(const std::filesystem::path& file) {
    const std::filesystem::path suffix = file.extension();
    return suffix == ".png" || suffix == ".svg" || suffix == ".pdf";
}
