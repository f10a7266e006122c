// The pieces of text an SVG document is made of.
#ifndef GK_PLATFORM_DISPLAY_SVG_TEXT_H
#define GK_PLATFORM_DISPLAY_SVG_TEXT_H

#include <string>
#include <vector>

namespace gk_SvgText {

// Shortest decimal text that reads back as the same double; `value` must be finite.
std::string number(double value);

// ` name="text"`, with the space in front; `text` must need no escape.
std::string attribute(const char* name, const std::string& text);
std::string attribute(const char* name, double value);

// Character data: clean UTF-8 with &, <, > and both quotes as entities.
std::string escaped(const std::string& text);

// RFC 4648 section 4, padded, in one line.
std::string base64(const std::vector<unsigned char>& bytes);

} // namespace gk_SvgText

#endif
