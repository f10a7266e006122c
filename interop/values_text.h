// The texts of values, which those of shapes are made of.
#ifndef GK_INTEROP_VALUES_TEXT_H
#define GK_INTEROP_VALUES_TEXT_H

#include "platform/core/math/vector.h"
#include "platform/image/edgelet.h"

#include <ostream>
#include <string>
#include <vector>

std::string gk_TextOf(const gkVector<2>& vector);
std::string gk_TextOf(const std::vector<gkVector<2>>& vertices);
std::string gk_TextOf(const gkEdgelet& edgelet);

// The elements as gk_TextOf or the given function says, commas between them.
template <class List, class Text> std::string gk_TextOfEach(const List& list, Text text) {
    std::string all;
    for (const auto& element : list) all += (all.empty() ? "" : ", ") + text(element);
    return all;
}

// Puts the text out as it is, whatever the stream's flags.
std::ostream& gk_Put(std::ostream& out, const std::string& text);

#endif
