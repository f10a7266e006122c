#include "interop/wkt_reader.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

bool isLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }
char upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

// One function for each rule of the grammar; each begins at the first byte of what it reads and ends behind it.
class Reader {
public:
    explicit Reader(const gk_Text& text) : at_(text) {}

    gk_TextGeometry whole() {
        at_.skipSpaces();
        gk_TextGeometry read = geometry(1);
        at_.skipSpaces();
        if (!at_.atEnd()) at_.bad("the end of the text was expected");
        return read;
    }

private:
    gk_TextGeometry geometry(std::size_t depth) {
        gk_TextGeometry read;
        read.offset = at_.offset();
        const std::string keyword = word();
        if (keyword == "LINESTRING") {
            refuseMoreCoordinates();
            read.kind = gk_TextGeometry::eLine;
            read.lines.push_back(line());
        } else if (keyword == "POLYGON") {
            refuseMoreCoordinates();
            read.kind = gk_TextGeometry::ePolygon;
            read.polygons.push_back(polygon());
        } else if (keyword == "MULTIPOLYGON") {
            refuseMoreCoordinates();
            list([&] { read.polygons.push_back(polygon()); });
        } else if (keyword == "GEOMETRYCOLLECTION") {
            refuseMoreCoordinates();
            if (depth > gkTextDefs::kMostDepth) at_.text().tooLarge(read.offset, kTooDeep);
            list([&] { append(read, geometry(depth + 1)); });
        } else {
            refuse(keyword, read.offset);
        }
        return read;
    }

    static void append(gk_TextGeometry& all, gk_TextGeometry member) {
        std::move(member.lines.begin(), member.lines.end(), std::back_inserter(all.lines));
        std::move(member.polygons.begin(), member.polygons.end(), std::back_inserter(all.polygons));
    }

    // The next word in capitals; empty when there is none.
    std::string word() {
        std::string letters;
        for (; isLetter(at_.peek()); at_.step()) letters += upper(at_.peek());
        return letters;
    }

    // Z, M and ZM behind a keyword mean further coordinates.
    [[noreturn]] void refuse(std::string keyword, std::size_t offset) const {
        const std::string asWritten = keyword;
        while (!keyword.empty() && (keyword.back() == 'Z' || keyword.back() == 'M')) keyword.pop_back();
        const char* const others[] = {"LINESTRING",   "POLYGON",           "MULTIPOLYGON", "GEOMETRYCOLLECTION",
                                      "POINT",        "MULTIPOINT",        "TRIANGLE",     "MULTILINESTRING",
                                      "TIN",          "CIRCULARSTRING",    "MULTICURVE",   "COMPOUNDCURVE",
                                      "CURVEPOLYGON", "POLYHEDRALSURFACE", "MULTISURFACE"};
        if (std::find(std::begin(others), std::end(others), keyword) != std::end(others))
            at_.text().unsupported(offset, "no shape is made of a " + asWritten);
        at_.text().bad(offset, kKeywords);
    }

    void refuseMoreCoordinates() {
        at_.skipSpaces();
        const std::size_t offset = at_.offset();
        const char first = upper(at_.peek());
        if (first == 'Z' || first == 'M') at_.text().unsupported(offset, "shapes have two coordinates only");
    }

    bool empty() {
        if (!isLetter(at_.peek())) return false;
        const std::size_t offset = at_.offset();
        if (word() != "EMPTY") at_.text().bad(offset, "EMPTY or an opening parenthesis was expected");
        return true;
    }

    // EMPTY, or members between parentheses and commas.
    template <class Member> void list(Member member) {
        at_.skipSpaces();
        if (empty()) return;
        if (!at_.take('(')) at_.bad("EMPTY or an opening parenthesis was expected");
        do {
            at_.skipSpaces();
            member();
            at_.skipSpaces();
        } while (at_.take(','));
        if (!at_.take(')')) at_.bad("a comma or a closing parenthesis was expected");
    }

    gk_TextRing line() {
        gk_TextRing read;
        read.offset = at_.offset();
        at_.text().addRing(rings_, read.offset);
        list([&] { read.vertices.push_back(position()); });
        return read;
    }

    gk_TextPolygon polygon() {
        gk_TextPolygon read;
        read.offset = at_.offset();
        at_.text().addRing(rings_, read.offset); // one that is empty becomes a region as well
        list([&] { read.rings.push_back(ring()); });
        return read;
    }

    gk_TextRing ring() {
        gk_TextRing read = line();
        if (!read.vertices.empty()) gk_Unclose(at_.text(), read);
        return read;
    }

    gkVector<2> position() {
        const double x = at_.number();
        const std::size_t end = at_.offset();
        at_.skipSpaces();
        if (at_.offset() == end) at_.bad("a space and a second number were expected");
        const double y = at_.number();
        at_.skipSpaces();
        if (at_.text().numberLength(at_.offset()) > 0)
            at_.text().unsupported(at_.offset(), "shapes have two coordinates only");
        return gkVector<2>(x, y);
    }

    static constexpr const char* kTooDeep = "collections are nested deeper than 64 levels";
    static constexpr const char* kKeywords =
        "LINESTRING, POLYGON, MULTIPOLYGON or GEOMETRYCOLLECTION was expected";

    gk_TextCursor at_;
    std::size_t rings_ = 0;
};

} // namespace

gk_TextGeometry gk_ReadWkt(const gk_Text& text) { return Reader(text).whole(); }
