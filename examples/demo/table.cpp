#include "examples/demo/table.h"

#include <algorithm>
#include <charconv>
#include <system_error>

namespace {

using Cells = std::vector<std::string>;

Cells outlineHeading(int line, const std::string& unit) {
    if (line == 0)
        return {"no",   "edge points", "left out", "length",   "mean x",    "mean y",        "diameter",
                "hull", "ellipse r1",  "r2",       "rotation", "rms error", "crosses itself"};
    return {"", "", "", unit, unit, unit, unit, "vertices", unit, unit, "deg", unit, ""};
}

Cells areaHeading(int line, const std::string& unit) {
    if (line == 0)
        return {"no", "holes",   "area", "filled", "centre of mass x", "y", "moments' ellipse r1",
                "r2", "rotation"};
    return {"", "", unit + "^2", unit + "^2", unit, unit, unit, unit, "deg"};
}

std::string yesNo(bool value) { return value ? "yes" : "no"; }

void addEllipse(const gkEllipse& ellipse, int digits, Cells& row) {
    row.push_back(fixed(ellipse.radii().x(), digits));
    row.push_back(fixed(ellipse.radii().y(), digits));
    row.push_back(fixed(gkDegree(ellipse.rotation()).toDouble(), 1));
}

Cells outlineCells(const Measures& object, int digits) {
    Cells row = {std::to_string(object.number),          std::to_string(object.vertices),
                 std::to_string(object.leftOut),         fixed(object.length, digits),
                 fixed(object.meanPosition.x(), digits), fixed(object.meanPosition.y(), digits),
                 fixed(object.diameter, digits),         std::to_string(object.hull.points().size())};
    if (object.fit) {
        addEllipse(object.fit->ellipse, digits, row);
        row.push_back(fixed(object.fit->error, digits + 1));
    } else {
        row.insert(row.end(), 4, "-");
    }
    row.push_back(yesNo(object.crossesItself));
    return row;
}

Cells areaCells(const Measures& object, int digits) {
    Cells row = {std::to_string(object.number),
                 std::to_string(object.holes),
                 fixed(object.area, digits),
                 fixed(object.filledArea, digits),
                 fixed(object.centerOfMass.x(), digits),
                 fixed(object.centerOfMass.y(), digits)};
    if (object.momentsEllipse)
        addEllipse(*object.momentsEllipse, digits, row);
    else
        row.insert(row.end(), 3, "-");
    return row;
}

std::string line(const Cells& row, const std::vector<std::size_t>& widths) {
    std::string text;
    for (std::size_t i = 0; i < row.size(); ++i)
        text += std::string(widths[i] - row[i].size() + (i == 0 ? 0 : 2), ' ') + row[i];
    text.erase(text.find_last_not_of(' ') + 1);
    return text + '\n';
}

using Heading = Cells (*)(int line, const std::string& unit);
using Row = Cells (*)(const Measures& object, int digits);

std::string table(Heading heading, Row cells, const std::vector<Measures>& objects, const Scale& scale) {
    std::vector<Cells> rows = {heading(0, scale.unit()), heading(1, scale.unit())};
    for (const Measures& object : objects) rows.push_back(cells(object, scale.digits()));
    std::vector<std::size_t> widths(rows.front().size(), 0);
    for (const Cells& row : rows)
        for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], row[i].size());
    std::string text;
    for (const Cells& row : rows) text += line(row, widths);
    return text;
}

} // namespace

std::string fixed(double value, int digits) {
    char text[400]; // the greatest double has 309 digits before the point
    const std::to_chars_result end =
        std::to_chars(text, text + sizeof text, value, std::chars_format::fixed, digits);
    return end.ec == std::errc() ? std::string(text, end.ptr) : std::string("?");
}

std::string counted(std::size_t count, const std::string& noun) {
    return std::to_string(count) + ' ' + noun + (count == 1 ? "" : "s");
}

std::string tableOfOutlines(const std::vector<Measures>& objects, const Scale& scale) {
    return table(outlineHeading, outlineCells, objects, scale);
}

std::string tableOfAreas(const std::vector<Measures>& objects, const Scale& scale) {
    return table(areaHeading, areaCells, objects, scale);
}
