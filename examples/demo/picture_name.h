// Which pictures can be written, by the names of their files.
#ifndef GK_EXAMPLES_DEMO_PICTURE_NAME_H
#define GK_EXAMPLES_DEMO_PICTURE_NAME_H

#include <filesystem>

// True for names that end in .png, .svg or .pdf.
bool isPictureName(const std::filesystem::path& file);

#endif
