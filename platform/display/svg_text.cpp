#include "platform/display/svg_text.h"

#include "platform/display/clean_text.h"

#include <charconv>
#include <cstddef>

std::string gk_SvgText::number(double value) {
    char buffer[32]; // the longest shortest form has 24 characters
    const std::to_chars_result result = std::to_chars(buffer, buffer + sizeof buffer, value);
    return std::string(buffer, result.ptr);
}

std::string gk_SvgText::attribute(const char* name, const std::string& text) {
    return std::string(" ") + name + "=\"" + text + "\"";
}

std::string gk_SvgText::attribute(const char* name, double value) { return attribute(name, number(value)); }

std::string gk_SvgText::escaped(const std::string& text) {
    std::string result;
    for (const char c : gk_CleanText::clean(text)) {
        switch (c) {
        case '&':
            result += "&amp;";
            break;
        case '<':
            result += "&lt;";
            break;
        case '>':
            result += "&gt;";
            break;
        case '"':
            result += "&quot;";
            break;
        case '\'':
            result += "&apos;";
            break;
        default:
            result += c;
        }
    }
    return result;
}

std::string gk_SvgText::base64(const std::vector<unsigned char>& bytes) {
    const char* const digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string result;
    result.reserve((bytes.size() + 2) / 3 * 4);
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        const std::size_t count = bytes.size() - i < 3 ? bytes.size() - i : 3;
        unsigned group = 0;
        for (std::size_t k = 0; k < 3; ++k) group = group << 8 | (k < count ? bytes[i + k] : 0U);
        for (unsigned k = 0; k < 4; ++k) result += k <= count ? digits[group >> (18 - 6 * k) & 63] : '=';
    }
    return result;
}
