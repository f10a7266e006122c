// Text that every surface can show. Inline, since the Cairo surface is a library of its own.
#ifndef GK_PLATFORM_DISPLAY_CLEAN_TEXT_H
#define GK_PLATFORM_DISPLAY_CLEAN_TEXT_H

#include <cstddef>
#include <string>

namespace gk_CleanText {

// Bytes of the UTF-8 character at text[i], or 0 when none begins there: cut or stray bytes, overlong forms,
// surrogates and what lies above U+10FFFF (The Unicode Standard, table 3-7).
inline std::size_t characterLength(const std::string& text, std::size_t i) {
    const auto byteAt = [&](std::size_t k) {
        return k < text.size() ? static_cast<unsigned char>(text[k]) : static_cast<unsigned char>(0);
    };
    const auto isTail = [&](std::size_t k) { return (byteAt(k) & 0xC0) == 0x80; };
    const unsigned char lead = byteAt(i), second = byteAt(i + 1);
    if (lead < 0x80) return 1;
    if (lead < 0xC2 || lead > 0xF4 || !isTail(i + 1)) return 0;
    if (lead < 0xE0) return 2;
    if (lead < 0xF0) {
        const bool overlong = lead == 0xE0 && second < 0xA0, surrogate = lead == 0xED && second > 0x9F;
        return !overlong && !surrogate && isTail(i + 2) ? 3 : 0;
    }
    const bool overlong = lead == 0xF0 && second < 0x90, tooLarge = lead == 0xF4 && second > 0x8F;
    return !overlong && !tooLarge && isTail(i + 2) && isTail(i + 3) ? 4 : 0;
}

// The text with U+FFFD for each byte that is not part of a UTF-8 character and for the two noncharacters XML
// forbids, and a space for each ASCII control character.
inline std::string clean(const std::string& text) {
    const std::string replacement = "\xEF\xBF\xBD";
    std::string result;
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t length = characterLength(text, i);
        const std::string character = text.substr(i, length);
        if (length == 0 || character == "\xEF\xBF\xBE" || character == "\xEF\xBF\xBF")
            result += replacement;
        else if (length == 1 && (static_cast<unsigned char>(text[i]) < 0x20 || text[i] == 0x7F))
            result += ' ';
        else
            result += character;
        i += length == 0 ? 1 : length;
    }
    return result;
}

} // namespace gk_CleanText

#endif
