#include "interop/json_tokens.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

using Json = nlohmann::json;

// Bytes that tell how far the parser has read: its events come without a place.
class WatchedBytes {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    WatchedBytes(const char* at, const char** read) : at_(at), read_(read) {}

    reference operator*() const { return *at_; }
    WatchedBytes& operator++() {
        *read_ = ++at_;
        return *this;
    }
    WatchedBytes operator++(int) {
        const WatchedBytes before = *this;
        ++*this;
        return before;
    }
    friend bool operator==(const WatchedBytes& a, const WatchedBytes& b) { return a.at_ == b.at_; }
    friend bool operator!=(const WatchedBytes& a, const WatchedBytes& b) { return !(a == b); }

private:
    const char* at_;
    const char** read_;
};

// The parser's events. A token begins at the first byte behind the last one that is neither white space nor a
// comma or colon. Numbers are read from the text, for the parser gives integers without the sign of a zero.
class Listener : public nlohmann::json_sax<Json> {
public:
    Listener(const gk_Text& text, const char* const& read) : text_(text), read_(read) {
        if (text.characters().substr(0, 3) == "\xEF\xBB\xBF")
            end_ = 3; // the parser passes a byte order mark over
    }

    gk_JsonTokens tokens;

    bool null() override { return add(gk_JsonToken::eNull, 0); }
    bool boolean(bool) override { return add(gk_JsonToken::eBoolean, 0); }
    bool number_integer(number_integer_t) override { return number(); }
    bool number_unsigned(number_unsigned_t) override { return number(); }
    bool number_float(number_float_t, const string_t&) override { return number(); }
    bool string(string_t& value) override { return text(gk_JsonToken::eString, value); }
    bool key(string_t& value) override { return text(gk_JsonToken::eName, value); }
    bool binary(binary_t&) override { return false; } // GCOVR_EXCL_LINE: no event of text
    bool start_object(std::size_t) override { return begin(gk_JsonToken::eObject); }
    bool start_array(std::size_t) override { return begin(gk_JsonToken::eArray); }
    bool end_object() override { return finish(); }
    bool end_array() override { return finish(); }

    bool parse_error(std::size_t position, const std::string&, const Json::exception& error) override {
        constexpr int kNumberOverflow = 406;
        const std::size_t offset = std::min(position > 0 ? position - 1 : 0, text_.size());
        if (error.id == kNumberOverflow) text_.bad(start(), "a number within the range of double was expected");
        text_.bad(offset, "JSON was expected, and it cannot go on like this");
    }

private:
    std::size_t start() const {
        return std::min(text_.characters().find_first_not_of(" \t\r\n,:", end_), text_.size());
    }

    bool add(gk_JsonToken::Kind kind, std::size_t link) {
        tokens.all.push_back({kind, static_cast<std::uint32_t>(start()), static_cast<std::uint32_t>(link)});
        end_ = static_cast<std::size_t>(read_ - text_.characters().data());
        return true;
    }

    bool number() {
        const std::size_t offset = start(), length = text_.numberLength(offset);
        tokens.numbers.push_back(text_.number(offset, length));
        add(gk_JsonToken::eNumber, tokens.numbers.size() - 1);
        end_ = offset + length; // the parser has read one byte more to see where it ends
        return true;
    }

    bool text(gk_JsonToken::Kind kind, std::string& value) {
        tokens.strings.push_back(std::move(value));
        return add(kind, tokens.strings.size() - 1);
    }

    bool begin(gk_JsonToken::Kind kind) {
        if (open_.size() == gkTextDefs::kMostDepth)
            text_.tooLarge(start(), "JSON is nested deeper than 64 levels");
        open_.push_back(tokens.all.size());
        return add(kind, 0);
    }

    bool finish() {
        tokens.all[open_.back()].link = static_cast<std::uint32_t>(tokens.all.size());
        open_.pop_back();
        return add(gk_JsonToken::eEnd, 0);
    }

    const gk_Text& text_;
    const char* const& read_;
    std::size_t end_ = 0; // of the last token
    std::vector<std::size_t> open_;
};

} // namespace

gk_JsonTokens gk_TokensOf(const gk_Text& text) {
    const char* const first = text.characters().data();
    const char* read = first;
    Listener listener(text, read);
    Json::sax_parse(WatchedBytes(first, &read), WatchedBytes(first + text.size(), &read), &listener);
    return std::move(listener.tokens);
}
