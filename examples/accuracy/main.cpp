// How far off sub-pixel measures of discs are: bias and spread against the truth, as a table and a plot.
#include "examples/accuracy/plot.h"
#include "examples/accuracy/report.h"
#include "platform/core/object/exception.h"

#include <cstdio>
#include <exception>
#include <iostream>

namespace {

constexpr double kRadii[] = {3, 5, 10, 20, 50, 100};
constexpr double kNoises[] = {0, 2, 5, 10};
constexpr int kPhases = 7;

std::vector<Cell> measureAll() {
    std::vector<Cell> cells;
    for (double radius : kRadii)
        for (double noise : kNoises) cells.push_back(measureCell(radius, noise, kPhases));
    return cells;
}

} // namespace

int main(int count, char** arguments) {
    if (count > 2 || (count == 2 && arguments[1][0] == '-')) {
        std::cerr << "usage: accuracy [PLOT.svg]\n";
        return 2;
    }
    try {
        const std::vector<Cell> cells = measureAll();
        std::cout << reportOf(cells);
        if (count == 2) savePlot(arguments[1], cells);
        return std::cout.flush() ? 0 : 1;
    } catch (const gkException&) {
        std::cerr << "accuracy: '" << arguments[count - 1] << "' cannot be written.\n";
    } catch (const std::exception& error) {
        std::cerr << "accuracy: " << error.what() << '\n';
    }
    return 1;
}
