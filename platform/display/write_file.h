// Writing a finished picture. Inline, since the Cairo surface is a library of its own.
#ifndef GK_PLATFORM_DISPLAY_WRITE_FILE_H
#define GK_PLATFORM_DISPLAY_WRITE_FILE_H

#include "platform/display/uitablet.h"

#include <exception>
#include <filesystem>
#include <fstream>
#include <string>

namespace gk_WriteFile {

inline std::wstring printable(const std::filesystem::path& file) {
    try {
        return file.wstring();
    } catch (const std::exception&) { // a name that is no text in the system's encoding
        return L"(name cannot be shown)";
    }
}

[[noreturn]] inline void refuse(const std::filesystem::path& file) {
    throw gkUITablet::CannotWrite((L"cannot write the picture " + printable(file)).c_str());
}

// Replaces the file; throws gkUITablet::CannotWrite.
inline void write(const std::filesystem::path& file, const std::string& bytes) {
    std::ofstream out(file, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    out.close(); // a full disk may show only here
    if (!out) refuse(file);
}

} // namespace gk_WriteFile

#endif
