#include "platform/core/archive/utf8.h"

namespace {

struct Lead {
    int more;             // continuation bytes
    std::uint32_t bits;   // what the first byte contributes
    std::uint32_t lowest; // the first code point that needs this length
};

Lead lead(unsigned char byte) {
    if (byte < 0x80) return {0, byte, 0};
    if (byte >= 0xC2 && byte <= 0xDF) return {1, byte & 0x1Fu, 0x80};
    if (byte >= 0xE0 && byte <= 0xEF) return {2, byte & 0x0Fu, 0x800};
    if (byte >= 0xF0 && byte <= 0xF4) return {3, byte & 0x07u, 0x10000};
    return {-1, 0, 0};
}

} // namespace

std::uint32_t gk_Utf8::next(const std::string& utf8, std::size_t& position) {
    const Lead first = lead(static_cast<unsigned char>(utf8[position]));
    const std::size_t more = static_cast<std::size_t>(first.more < 0 ? 0 : first.more);
    if (first.more < 0 || utf8.size() - position <= more) return eInvalid;
    std::uint32_t codePoint = first.bits;
    for (std::size_t i = 1; i <= more; ++i) {
        const unsigned char byte = static_cast<unsigned char>(utf8[position + i]);
        if ((byte & 0xC0) != 0x80) return eInvalid;
        codePoint = (codePoint << 6) | (byte & 0x3Fu);
    }
    if (codePoint < first.lowest || codePoint > 0x10FFFF || isSurrogate(codePoint)) return eInvalid;
    position += more + 1;
    return codePoint;
}

void gk_Utf8::append(std::uint32_t codePoint, std::string& utf8) {
    const auto tail = [&](int shift) { utf8 += static_cast<char>(0x80 | ((codePoint >> shift) & 0x3F)); };
    if (codePoint < 0x80) {
        utf8 += static_cast<char>(codePoint);
    } else if (codePoint < 0x800) {
        utf8 += static_cast<char>(0xC0 | (codePoint >> 6));
        tail(0);
    } else if (codePoint < 0x10000) {
        utf8 += static_cast<char>(0xE0 | (codePoint >> 12));
        tail(6);
        tail(0);
    } else {
        utf8 += static_cast<char>(0xF0 | (codePoint >> 18));
        tail(12);
        tail(6);
        tail(0);
    }
}

bool gk_Utf8::isValid(const std::string& utf8) {
    for (std::size_t i = 0; i < utf8.size();) {
        if (next(utf8, i) == eInvalid) return false;
    }
    return true;
}
