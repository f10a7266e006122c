/// \file
/// The name of a file, as the system takes it.
#ifndef GK_PLATFORM_CORE_FILE_FILE_NAME_H
#define GK_PLATFORM_CORE_FILE_FILE_NAME_H

#include "platform/export.h"

#include <string>
#include <type_traits>
#include <utility>

/// What std::filesystem::path holds, without its header, which takes longer to compile than all of this
/// library's. Made from a path or a text wherever a file is asked for; kept as it was given.
class GKCNTR_API gkFileName {
public:
    /// The letters of the system's own names, those of std::filesystem::path.
#ifdef _WIN32
    using Native = std::wstring;
#else
    using Native = std::string;
#endif

    /// From a text that std::filesystem::path takes as a name, in the encoding that it expects of the system.
    gkFileName(const char* name);
    gkFileName(const std::string& name);
    /// The same in wide characters.
    gkFileName(const wchar_t* name);
    gkFileName(const std::wstring& name);
    /// From a std::filesystem::path, or whatever tells its native name as one does.
    template <class Path, class = std::enable_if_t<
                              std::is_same_v<decltype(std::declval<const Path&>().native()), const Native&>>>
    gkFileName(const Path& path) : native_(path.native()) {}

    const Native& native() const { return native_; }

private:
    Native native_;
};

#endif
