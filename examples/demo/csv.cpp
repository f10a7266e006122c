#include "examples/demo/csv.h"

#include <charconv>

namespace {

std::string text(double value) {
    char digits[40];
    const std::to_chars_result end = std::to_chars(digits, digits + sizeof digits, value);
    return std::string(digits, end.ptr);
}

class Line {
public:
    Line& operator<<(const std::string& cell) {
        line_ += (line_.empty() ? "" : ",") + cell;
        return *this;
    }
    Line& operator<<(std::size_t value) { return *this << std::to_string(value); }
    Line& operator<<(double value) { return *this << text(value); }
    Line& operator<<(const gkVector<2>& value) { return *this << value.x() << value.y(); }
    Line& operator<<(const gkEllipse& value) {
        return *this << value.center().vector() << value.radii() << gkDegree(value.rotation()).toDouble();
    }

    void leaveEmpty(int cells) { line_.append(static_cast<std::size_t>(cells), ','); }

    std::string ended() const { return line_ + '\n'; }

private:
    std::string line_;
};

std::string heading(const std::string& unit) {
    const std::string length = " [" + unit + "]";
    const std::string square = " [" + unit + "^2]";
    Line line;
    line << "number"
         << "edge points"
         << "left out"
         << "holes"
         << "length" + length << "area" + square << "filled area" + square << "centre of mass x" + length
         << "centre of mass y" + length << "mean position x" + length << "mean position y" + length
         << "diameter" + length;
    for (const char* name : {"fitted ellipse", "moments' ellipse"})
        line << name + (" x" + length) << name + (" y" + length) << name + (" r1" + length)
             << name + (" r2" + length) << name + std::string(" rotation [deg]");
    line << "fit error" + length << "crosses itself";
    return line.ended();
}

std::string lineOf(const Measures& object) {
    constexpr int kCellsOfAnEllipse = 5;
    Line line;
    line << object.number << object.vertices << object.leftOut << object.holes << object.length << object.area
         << object.filledArea << object.centerOfMass << object.meanPosition << object.diameter;
    if (object.fit)
        line << object.fit->ellipse;
    else
        line.leaveEmpty(kCellsOfAnEllipse);
    if (object.momentsEllipse)
        line << *object.momentsEllipse;
    else
        line.leaveEmpty(kCellsOfAnEllipse);
    line << (object.fit ? text(object.fit->error) : std::string())
         << std::string(object.crossesItself ? "yes" : "no");
    return line.ended();
}

} // namespace

std::string csvOf(const std::vector<Measures>& objects, const Scale& scale) {
    std::string all = heading(scale.unit());
    for (const Measures& object : objects) all += lineOf(object);
    return all;
}
