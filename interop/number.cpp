#include "interop/number.h"

#include <charconv>
#include <cmath>

std::string gnText::number(double value) {
    if (std::isnan(value)) return "nan"; // its sign tells nothing
    char buffer[32];                     // the longest shortest form has 24 characters
    const std::to_chars_result end = std::to_chars(buffer, buffer + sizeof buffer, value);
    return std::string(buffer, end.ptr);
}
