// Bytes of files, and complaints that name the file.
#ifndef GK_EXAMPLES_DEMO_FILES_H
#define GK_EXAMPLES_DEMO_FILES_H

#include <filesystem>
#include <string>
#include <vector>

// Both throw Failure when the file cannot be opened, read to its end or written to it.
std::vector<unsigned char> readBytes(const std::filesystem::path& file);
void writeText(const std::filesystem::path& file, const std::string& text);

// The folder and those it lies in, as far as they are missing. Throws Failure when it cannot be made.
void makeFolder(const std::filesystem::path& folder);

#endif
