#include "platform/core/file/file_name.h"

#include <filesystem>

gkFileName::gkFileName(const char* name) : native_(std::filesystem::path(name).native()) {}

gkFileName::gkFileName(const std::string& name) : native_(std::filesystem::path(name).native()) {}

gkFileName::gkFileName(const wchar_t* name) : native_(std::filesystem::path(name).native()) {}

gkFileName::gkFileName(const std::wstring& name) : native_(std::filesystem::path(name).native()) {}
