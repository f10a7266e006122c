#include "interop/text_cursor.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <system_error>

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isSign(char c) { return c == '+' || c == '-'; }

} // namespace

gk_Text::gk_Text(std::string_view characters) : characters_(characters) {
    if (size() > gkTextDefs::kMostBytes) tooLarge(0, "the text is longer than 64 MiB");
}

gkTextDefs::Place gk_Text::place(std::size_t offset) const {
    const std::string_view before = characters_.substr(0, offset);
    gkTextDefs::Place place;
    place.offset = offset;
    place.line = 1 + static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n'));
    const std::size_t lineEnd = before.rfind('\n');
    place.column = lineEnd == std::string_view::npos ? offset + 1 : offset - lineEnd;
    return place;
}

void gk_Text::bad(std::size_t offset, const std::string& explanation) const {
    throw gkTextDefs::BadText(place(offset), explanation);
}

void gk_Text::unsupported(std::size_t offset, const std::string& explanation) const {
    throw gkTextDefs::Unsupported(place(offset), explanation);
}

void gk_Text::tooLarge(std::size_t offset, const std::string& explanation) const {
    throw gkTextDefs::TooLarge(place(offset), explanation);
}

void gk_Text::addRing(std::size_t& count, std::size_t offset) const {
    if (++count > gkTextDefs::kMostRings) tooLarge(offset, "the text has more than 1048576 rings");
}

std::size_t gk_Text::numberLength(std::size_t offset) const {
    std::size_t i = offset;
    const auto digits = [&] {
        const std::size_t from = i;
        while (isDigit(at(i))) ++i;
        return i - from;
    };
    if (isSign(at(i))) ++i;
    std::size_t count = digits();
    if (at(i) == '.' && (count > 0 || isDigit(at(i + 1)))) {
        ++i;
        count += digits();
    }
    if (count == 0) return 0;
    const std::size_t mantissaEnd = i;
    if (at(i) == 'e' || at(i) == 'E') {
        ++i;
        if (isSign(at(i))) ++i;
        if (digits() == 0) i = mantissaEnd;
    }
    return i - offset;
}

double gk_Text::number(std::size_t offset, std::size_t length) const {
    const char* first = characters_.data() + offset;
    const char* const last = first + length;
    if (*first == '+') ++first; // from_chars knows no plus
    double value = 0.0;
    const std::from_chars_result end = std::from_chars(first, last, value);
    // What is told of a number that is too small differs between versions of the standard library.
    const char* const exponent = std::find_if(first, last, [](char c) { return c == 'e' || c == 'E'; });
    const bool isZero = std::none_of(first, exponent, [](char c) { return c >= '1' && c <= '9'; });
    if (end.ec != std::errc() || !std::isfinite(value) || (value == 0.0 && !isZero))
        bad(offset, "a number within the range of double was expected");
    return value;
}

void gk_TextCursor::skipSpaces() {
    while (!atEnd() && std::string_view(" \t\n\f\r").find(peek()) != std::string_view::npos) step();
}

bool gk_TextCursor::take(char c) {
    if (atEnd() || peek() != c) return false;
    step();
    return true;
}

double gk_TextCursor::number() {
    const std::size_t length = text_.numberLength(offset_);
    if (length == 0) bad("a finite number was expected");
    const double value = text_.number(offset_, length);
    offset_ += length;
    return value;
}
