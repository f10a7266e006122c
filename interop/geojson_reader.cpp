#include "interop/geojson_reader.h"

#include "interop/json_tokens.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

// Every function takes the index of the token where a value begins. Values are at most kMostDepth deep, so is
// this.
class Reader {
public:
    explicit Reader(const gk_Text& text) : text_(text), tokens_(gk_TokensOf(text)) {}

    gk_TextGeometry geometry(std::size_t object) {
        gk_TextGeometry read;
        read.offset = offset(object);
        demand(object, gk_JsonToken::eObject, "an object was expected");
        const std::string type = this->type(object);
        if (type == "LineString") {
            read.kind = gk_TextGeometry::eLine;
            read.lines.push_back(line(member(object, "coordinates")));
        } else if (type == "Polygon") {
            read.kind = gk_TextGeometry::ePolygon;
            read.polygons.push_back(polygon(member(object, "coordinates")));
        } else if (type == "MultiPolygon") {
            each(member(object, "coordinates"), [&](std::size_t i) { read.polygons.push_back(polygon(i)); });
        } else if (type == "GeometryCollection") {
            each(member(object, "geometries"), [&](std::size_t i) { append(read, geometry(i)); });
        } else if (type == "Feature") {
            const std::size_t inner = member(object, "geometry");
            if (kind(inner) != gk_JsonToken::eNull) read = geometry(inner);
        } else if (type == "FeatureCollection") {
            each(member(object, "features"), [&](std::size_t i) { append(read, geometry(i)); });
        } else if (type == "Point" || type == "MultiPoint" || type == "MultiLineString") {
            text_.unsupported(read.offset, "no shape is made of a " + type);
        } else {
            text_.bad(offset(member(object, "type")),
                      "LineString, Polygon, MultiPolygon, GeometryCollection, Feature or FeatureCollection "
                      "was expected");
        }
        return read;
    }

private:
    static void append(gk_TextGeometry& all, gk_TextGeometry member) {
        std::move(member.lines.begin(), member.lines.end(), std::back_inserter(all.lines));
        std::move(member.polygons.begin(), member.polygons.end(), std::back_inserter(all.polygons));
    }

    gk_JsonToken::Kind kind(std::size_t index) const { return tokens_.all[index].kind; }
    std::size_t offset(std::size_t index) const { return tokens_.all[index].offset; }
    const std::string& string(std::size_t index) const { return tokens_.strings[tokens_.all[index].link]; }

    void demand(std::size_t index, gk_JsonToken::Kind wanted, const std::string& explanation) const {
        if (kind(index) != wanted) text_.bad(offset(index), explanation);
    }

    // Of the members of this name the only one.
    std::size_t member(std::size_t object, const std::string& name) const {
        std::size_t found = 0;
        const std::size_t end = tokens_.behind(object) - 1;
        for (std::size_t i = object + 1; i < end; i = tokens_.behind(i + 1)) {
            if (string(i) != name) continue;
            if (found > 0) text_.bad(offset(i), "one member \"" + name + "\" was expected, not two");
            found = i + 1;
        }
        if (found == 0) text_.bad(offset(object), "an object with a member \"" + name + "\" was expected");
        return found;
    }

    const std::string& type(std::size_t object) const {
        const std::size_t value = member(object, "type");
        demand(value, gk_JsonToken::eString, "a string that names the type was expected");
        return string(value);
    }

    template <class Read> void each(std::size_t array, Read read) const {
        demand(array, gk_JsonToken::eArray, "an array was expected");
        const std::size_t end = tokens_.behind(array) - 1;
        for (std::size_t i = array + 1; i < end; i = tokens_.behind(i)) read(i);
    }

    gkVector<2> position(std::size_t array) const {
        demand(array, gk_JsonToken::eArray, "a position, an array of two numbers, was expected");
        for (const std::size_t i : {array + 1, array + 2})
            demand(i, gk_JsonToken::eNumber, "two numbers were expected in a position");
        if (kind(array + 3) == gk_JsonToken::eNumber)
            text_.unsupported(offset(array + 3), "shapes have two coordinates only");
        demand(array + 3, gk_JsonToken::eEnd, "two numbers were expected in a position");
        return gkVector<2>(number(array + 1), number(array + 2));
    }

    double number(std::size_t index) const { return tokens_.numbers[tokens_.all[index].link]; }

    gk_TextRing line(std::size_t array) {
        gk_TextRing read;
        read.offset = offset(array);
        text_.addRing(rings_, read.offset);
        each(array, [&](std::size_t i) { read.vertices.push_back(position(i)); });
        return read;
    }

    gk_TextPolygon polygon(std::size_t array) {
        gk_TextPolygon read;
        read.offset = offset(array);
        text_.addRing(rings_, read.offset); // one that is empty becomes a region as well
        each(array, [&](std::size_t i) { read.rings.push_back(ring(i)); });
        return read;
    }

    gk_TextRing ring(std::size_t array) {
        gk_TextRing read = line(array);
        if (!read.vertices.empty()) gk_Unclose(text_, read);
        return read;
    }

    const gk_Text& text_;
    const gk_JsonTokens tokens_;
    std::size_t rings_ = 0;
};

} // namespace

gk_TextGeometry gk_ReadGeoJson(const gk_Text& text) { return Reader(text).geometry(0); }
