// Bytes as hex text, for goldens.
#ifndef GK_TESTS_SUPPORT_HEX_H
#define GK_TESTS_SUPPORT_HEX_H

#include <string>
#include <vector>

// "00 ff1a" as three bytes; blanks are skipped.
inline std::vector<unsigned char> fromHex(const std::string& text) {
    const std::string digits = "0123456789abcdef";
    std::vector<unsigned char> bytes;
    int high = -1;
    for (const char c : text) {
        if (c == ' ') continue;
        const int value = static_cast<int>(digits.find(c));
        if (high < 0) {
            high = value;
        } else {
            bytes.push_back(static_cast<unsigned char>(high * 16 + value));
            high = -1;
        }
    }
    return bytes;
}

inline std::string toHex(const std::vector<unsigned char>& bytes) {
    const char* digits = "0123456789abcdef";
    std::string text;
    for (const unsigned char byte : bytes) {
        text += digits[byte >> 4];
        text += digits[byte & 15];
    }
    return text;
}

#endif
