#include "platform/display/color.h"

std::string gkColor::hex() const {
    const char* const digits = "0123456789abcdef";
    std::string text = "#";
    for (const unsigned char channel : {red_, green_, blue_}) {
        text += digits[channel / 16];
        text += digits[channel % 16];
    }
    return text;
}
