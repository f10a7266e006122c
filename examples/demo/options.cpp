#include "examples/demo/options.h"

#include "examples/demo/failure.h"

#include <algorithm>
#include <string>

const char* const kUsage =
    "usage: demo IMAGE --out FOLDER [--least-area PIXELS] [--side PIXELS]\n"
    "\n"
    "Measures the objects of a picture: prints a table and writes into FOLDER the picture with everything "
    "drawn over\n"
    "it, as PNG, SVG and PDF, and the contours as an archive. Objects smaller than the least area (64) are "
    "left out.\n"
    "A small picture is enlarged as far as its longer side stays within --side (1600).\n";

namespace {

double numberFrom(const std::string& option, const std::string& text) {
    const bool isNumber = !text.empty() && text.size() <= 9 &&
                          std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
    if (!isNumber) throw Failure(option + " needs a whole number of pixels, not '" + text + "'.");
    return static_cast<double>(std::stol(text));
}

void take(Options& options, const std::string& option, const std::string& value) {
    if (option == "--out") options.folder = value;
    if (option == "--least-area") options.leastArea = numberFrom(option, value);
    if (option == "--side") options.wantedSide = std::max(1.0, numberFrom(option, value));
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
        if (argument == "--out" || argument == "--least-area" || argument == "--side") {
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
