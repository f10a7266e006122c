// JSON as the list of its tokens, each with its place: readers can go through members in any order and still
// tell where something is wrong.
#ifndef GK_INTEROP_JSON_TOKENS_H
#define GK_INTEROP_JSON_TOKENS_H

#include "interop/text_cursor.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

struct gk_JsonToken {
    enum Kind : std::uint8_t { eObject, eArray, eEnd, eName, eString, eNumber, eNull, eBoolean };

    Kind kind;
    std::uint32_t offset;
    std::uint32_t
        link; // of an object or array its end's index, of a name, string or number its place among these
};

// One JSON value. An object is its names, each followed by its value, up to its end; an array its values up to
// its end.
struct gk_JsonTokens {
    std::vector<gk_JsonToken> all;
    std::vector<std::string> strings; // names, too
    std::vector<double> numbers;

    // The index of the token behind the value that begins at `index`.
    std::size_t behind(std::size_t index) const {
        const gk_JsonToken& token = all[index];
        const bool isContainer = token.kind == gk_JsonToken::eObject || token.kind == gk_JsonToken::eArray;
        return (isContainer ? token.link : index) + 1;
    }
};

// Refuses what is not JSON and what is nested too deep.
gk_JsonTokens gk_TokensOf(const gk_Text& text);

#endif
