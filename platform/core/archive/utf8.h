/// \file
/// Strict UTF-8: every text has one encoding, and whatever is not an encoding is refused.
#ifndef GK_PLATFORM_CORE_ARCHIVE_UTF8_H
#define GK_PLATFORM_CORE_ARCHIVE_UTF8_H

#include <cstddef>
#include <cstdint>
#include <string>

/// Source: Unicode Standard, section 3.9, table 3-7 (well-formed UTF-8 byte sequences).
class gk_Utf8 {
public:
    static constexpr std::uint32_t eInvalid = 0xFFFFFFFF;

    /// The code point at `position`, which moves behind it; eInvalid (and no further) when there is none.
    static std::uint32_t next(const std::string& utf8, std::size_t& position);
    /// Appends a code point below 0x110000 that is no surrogate.
    static void append(std::uint32_t codePoint, std::string& utf8);
    static bool isValid(const std::string& utf8);
    static bool isSurrogate(std::uint32_t codePoint) { return codePoint >= 0xD800 && codePoint <= 0xDFFF; }

    /// UTF-8 to UTF-16 or UTF-32, as wide as `Char` is; false when it is not UTF-8.
    template <class Char> static bool widen(const std::string& utf8, std::basic_string<Char>& wide) {
        wide.clear();
        for (std::size_t i = 0; i < utf8.size();) {
            const std::uint32_t codePoint = next(utf8, i);
            if (codePoint == eInvalid) return false;
            if (sizeof(Char) == 2 && codePoint >= 0x10000) {
                wide += static_cast<Char>(0xD800 + ((codePoint - 0x10000) >> 10));
                wide += static_cast<Char>(0xDC00 + ((codePoint - 0x10000) & 0x3FF));
            } else {
                wide += static_cast<Char>(codePoint);
            }
        }
        return true;
    }

    /// UTF-16 or UTF-32 to UTF-8; false when a surrogate stands alone or a value is beyond Unicode.
    template <class Char> static bool narrow(const std::basic_string<Char>& wide, std::string& utf8) {
        utf8.clear();
        for (std::size_t i = 0; i < wide.size(); ++i) {
            std::uint32_t codePoint = unit(wide, i);
            if (sizeof(Char) == 2 && codePoint >= 0xD800 && codePoint <= 0xDBFF && i + 1 < wide.size()) {
                const std::uint32_t low = unit(wide, i + 1);
                if (low < 0xDC00 || low > 0xDFFF) return false;
                codePoint = 0x10000 + ((codePoint - 0xD800) << 10) + (low - 0xDC00);
                ++i;
            }
            if (codePoint > 0x10FFFF || isSurrogate(codePoint)) return false;
            append(codePoint, utf8);
        }
        return true;
    }

private:
    template <class Char> static std::uint32_t unit(const std::basic_string<Char>& wide, std::size_t i) {
        const std::uint32_t mask = sizeof(Char) == 2 ? 0xFFFF : 0xFFFFFFFF;
        return static_cast<std::uint32_t>(wide[i]) & mask;
    }
};

#endif
