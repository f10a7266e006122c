#include "examples/demo/options.h"

#include "examples/demo/failure.h"

#include <algorithm>
#include <string>

const char* const kUsage =
    "usage: demo IMAGE --out FOLDER [--least-area PIXELS]\n"
    "\n"
    "Measures the objects of a picture: prints a table and writes into FOLDER the picture with everything "
    "drawn over\n"
    "it, as PNG, SVG and PDF, and the contours as an archive. Objects smaller than PIXELS (64) are left out.\n";

namespace {

double areaFrom(const std::string& text) {
    const bool isNumber = !text.empty() && text.size() <= 9 &&
                          std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
    if (!isNumber) throw Failure("--least-area needs a whole number of pixels, not '" + text + "'.");
    return static_cast<double>(std::stol(text));
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
        if (argument == "--out" || argument == "--least-area") {
            if (++i == count) throw Failure(argument + " needs a value after it.");
            if (argument == "--out")
                options.folder = arguments[i];
            else
                options.leastArea = areaFrom(arguments[i]);
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
