// A text that is read from the front on, and refused where it is not what it should be.
#ifndef GK_INTEROP_TEXT_CURSOR_H
#define GK_INTEROP_TEXT_CURSOR_H

#include "interop/text_errors.h"

#include <cstddef>
#include <string>
#include <string_view>

class gk_Text {
public:
    // The characters must outlive it. Throws TooLarge for more than kMostBytes.
    explicit gk_Text(std::string_view characters);

    std::string_view characters() const { return characters_; }
    std::size_t size() const { return characters_.size(); }
    // The byte at `offset`, 0 behind the end.
    char at(std::size_t offset) const { return offset < size() ? characters_[offset] : '\0'; }

    [[noreturn]] void bad(std::size_t offset, const std::string& explanation) const;
    [[noreturn]] void unsupported(std::size_t offset, const std::string& explanation) const;
    [[noreturn]] void tooLarge(std::size_t offset, const std::string& explanation) const;
    // Counts one more line, outline or hole, which begins at `offset`.
    void addRing(std::size_t& count, std::size_t offset) const;

    // Bytes of the longest decimal number that begins at `offset`: sign, digits with or without a point before,
    // among or behind them, exponent. 0 when none does.
    std::size_t numberLength(std::size_t offset) const;
    // The double nearest to the number of that many bytes. Refused when it is beyond the greatest double, or so
    // small that only zero is left of it.
    double number(std::size_t offset, std::size_t length) const;

private:
    gkTextDefs::Place place(std::size_t offset) const;

    std::string_view characters_;
};

class gk_TextCursor {
public:
    explicit gk_TextCursor(const gk_Text& text) : text_(text) {}

    const gk_Text& text() const { return text_; }
    std::size_t offset() const { return offset_; }
    bool atEnd() const { return offset_ == text_.size(); }
    // The next byte, 0 at the end.
    char peek() const { return text_.at(offset_); }
    void step() { ++offset_; }

    // Space, tab, line feed, form feed and carriage return.
    void skipSpaces();
    // Takes the byte when it is the next one.
    bool take(char c);
    [[noreturn]] void bad(const std::string& explanation) const { text_.bad(offset_, explanation); }
    // A finite number.
    double number();

private:
    const gk_Text& text_;
    std::size_t offset_ = 0;
};

#endif
