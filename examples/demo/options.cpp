#include "examples/demo/options.h"

#include "examples/demo/failure.h"

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

const char* const kUsage =
    "usage: demo IMAGE --out FOLDER [--part LEFT,TOP,WIDTH,HEIGHT] [--least-area PIXELS] [--side PIXELS]\n"
    "\n"
    "Measures the objects of a picture, or of a part of it, and the holes in them: prints two tables and\n"
    "writes into FOLDER the picture with everything drawn over it, as PNG, SVG and PDF, and the regions as an\n"
    "archive. Objects and holes smaller than the least area (64) are left out. A small picture is enlarged as\n"
    "far as its longer side stays within --side (1600).\n";

namespace {

bool isNumber(const std::string& text) {
    return !text.empty() && text.size() <= 9 &&
           std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

double numberFrom(const std::string& option, const std::string& text) {
    if (!isNumber(text)) throw Failure(option + " needs a whole number, not '" + text + "'.");
    return static_cast<double>(std::stol(text));
}

Part partFrom(const std::string& text) {
    const Failure failure("--part needs four whole numbers LEFT,TOP,WIDTH,HEIGHT, not '" + text + "'.");
    std::istringstream in(text);
    std::vector<int> numbers;
    for (std::string number; std::getline(in, number, ',');) {
        if (!isNumber(number)) throw failure;
        numbers.push_back(std::stoi(number));
    }
    if (numbers.size() != 4) throw failure;
    return {numbers[0], numbers[1], numbers[2], numbers[3]};
}

bool takesValue(const std::string& argument) {
    return argument == "--out" || argument == "--least-area" || argument == "--side" || argument == "--part";
}

void take(Options& options, const std::string& option, const std::string& value) {
    if (option == "--out") options.folder = value;
    if (option == "--least-area") options.leastArea = numberFrom(option, value);
    if (option == "--side") options.wantedSide = std::max(1.0, numberFrom(option, value));
    if (option == "--part") options.part = partFrom(value);
}

} // namespace

Options parseOptions(int count, char** arguments) {
    Options options;
    for (int i = 1; i < count; ++i) {
        const std::string argument = arguments[i];
        if (argument == "--help" || argument == "-h") {
            options.help = true;
            return options;
        }
        if (takesValue(argument)) {
            if (++i == count) throw Failure(argument + " needs a value after it.");
            take(options, argument, arguments[i]);
        } else if (argument.size() > 1 && argument[0] == '-') {
            throw Failure("There is no option '" + argument + "'; demo --help tells which there are.");
        } else if (!options.image.empty()) {
            throw Failure("Only one image at a time is measured, but '" + argument + "' is the second.");
        } else {
            options.image = argument;
        }
    }
    if (options.image.empty()) throw Failure("An image is needed; demo --help tells how.");
    if (options.folder.empty()) throw Failure("A folder for the results is needed: --out FOLDER.");
    return options;
}
