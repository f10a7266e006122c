#include "examples/demo/table.h"

#include <algorithm>
#include <charconv>
#include <system_error>

namespace {

using Cells = std::vector<std::string>;

const Cells kNames = {"no",   "vertices",   "closed", "length",   "mean x",    "mean y",        "diameter",
                      "hull", "ellipse r1", "r2",     "rotation", "rms error", "crosses itself"};
const Cells kUnits = {"", "", "", "px", "px", "px", "px", "vertices", "px", "px", "deg", "px", ""};

std::string yesNo(bool value) { return value ? "yes" : "no"; }

Cells cells(const Measures& object) {
    Cells row = {std::to_string(object.number),
                 std::to_string(object.vertices),
                 yesNo(object.closed),
                 fixed(object.length, 2),
                 fixed(object.meanPosition.x(), 2),
                 fixed(object.meanPosition.y(), 2),
                 fixed(object.diameter, 2),
                 std::to_string(object.hull.points().size())};
    if (object.fit) {
        const gkEllipse& ellipse = object.fit->ellipse;
        row.push_back(fixed(ellipse.radii().x(), 2));
        row.push_back(fixed(ellipse.radii().y(), 2));
        row.push_back(fixed(gkDegree(ellipse.rotation()).toDouble(), 1));
        row.push_back(fixed(object.fit->error, 3));
    } else {
        row.insert(row.end(), 4, "-");
    }
    row.push_back(yesNo(object.crossesItself));
    return row;
}

std::string line(const Cells& row, const std::vector<std::size_t>& widths) {
    std::string text;
    for (std::size_t i = 0; i < row.size(); ++i)
        text += std::string(widths[i] - row[i].size() + (i == 0 ? 0 : 2), ' ') + row[i];
    text.erase(text.find_last_not_of(' ') + 1);
    return text + '\n';
}

} // namespace

std::string fixed(double value, int digits) {
    char text[400]; // the greatest double has 309 digits before the point
    const std::to_chars_result end =
        std::to_chars(text, text + sizeof text, value, std::chars_format::fixed, digits);
    return end.ec == std::errc() ? std::string(text, end.ptr) : std::string("?");
}

std::string table(const std::vector<Measures>& objects) {
    std::vector<Cells> rows = {kNames, kUnits};
    std::transform(objects.begin(), objects.end(), std::back_inserter(rows), cells);
    std::vector<std::size_t> widths(kNames.size(), 0);
    for (const Cells& row : rows)
        for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], row[i].size());
    std::string text;
    for (const Cells& row : rows) text += line(row, widths);
    return text;
}
