#include "examples/demo/options.h"

#include "examples/demo/failure.h"
#include "examples/demo/picture_name.h"

#include <algorithm>
#include <charconv>
#include <functional>
#include <map>
#include <sstream>
#include <string>
#include <vector>

const char* const kUsage =
    "usage: demo IMAGE [OPTION...]\n"
    "\n"
    "Measures the objects of a picture and the holes in them, at edges found between the pixels, and prints\n"
    "two tables.\n"
    "\n"
    "  --scale MM_PER_PX     size of a pixel, 0.001 to 1000 millimetres; without it, measures are in pixels\n"
    "  --part L,T,W,H        measure this part only: left, top, width and height in whole pixels\n"
    "  --least-area PIXELS   leave out smaller objects and holes (64)\n"
    "  --csv FILE            write the measures as comma-separated values\n"
    "  --json FILE           write the measures as JSON\n"
    "  --archive FILE        write regions and edge points as an archive, and read it back\n"
    "  --picture FILE        write the picture with everything drawn over it; .png, .svg or .pdf\n"
    "  --side PIXELS         enlarge small pictures as far as the longer side stays within this (1600)\n"
    "  --out FOLDER          write all of these into FOLDER, the picture in all three formats\n"
    "  --help                this text\n"
    "\n"
    "The exit status is 0 when all is done, 1 when something cannot be measured, read or written, and 2 when\n"
    "the command line is not understood.\n";

namespace {

// Smaller units would come near the library's absolute tolerances.
constexpr double kLeastScale = 0.001;
constexpr double kGreatestScale = 1000.0;

bool isNumber(const std::string& text) {
    return !text.empty() && text.size() <= 9 &&
           std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

double wholeNumberFrom(const std::string& option, const std::string& text) {
    if (!isNumber(text)) throw BadCommandLine(option + " needs a whole number, not '" + text + "'.");
    return static_cast<double>(std::stol(text));
}

double scaleFrom(const std::string& text) {
    double scale = 0.0;
    const std::from_chars_result end = std::from_chars(text.data(), text.data() + text.size(), scale);
    const bool isWhole = end.ec == std::errc() && end.ptr == text.data() + text.size();
    if (!isWhole || !(scale >= kLeastScale && scale <= kGreatestScale))
        throw BadCommandLine("--scale needs a number from 0.001 to 1000, not '" + text + "'.");
    return scale;
}

Part partFrom(const std::string& text) {
    const BadCommandLine failure("--part needs four whole numbers LEFT,TOP,WIDTH,HEIGHT, not '" + text + "'.");
    std::istringstream in(text);
    std::vector<int> numbers;
    for (std::string number; std::getline(in, number, ',');) {
        if (!isNumber(number)) throw failure;
        numbers.push_back(std::stoi(number));
    }
    if (numbers.size() != 4) throw failure;
    return {numbers[0], numbers[1], numbers[2], numbers[3]};
}

std::filesystem::path pictureFrom(const std::string& text) {
    if (!isPictureName(text))
        throw BadCommandLine("--picture needs a name that ends in .png, .svg or .pdf, not '" + text + "'.");
    return text;
}

using Taker = std::function<void(Options&, const std::string&)>;

const std::map<std::string, Taker>& takers() {
    static const std::map<std::string, Taker> all = {
        {"--scale", [](Options& o, const std::string& value) { o.scale = scaleFrom(value); }},
        {"--part", [](Options& o, const std::string& value) { o.part = partFrom(value); }},
        {"--least-area",
         [](Options& o, const std::string& value) { o.leastArea = wholeNumberFrom("--least-area", value); }},
        {"--side",
         [](Options& o, const std::string& value) {
             o.wantedSide = std::max(1.0, wholeNumberFrom("--side", value));
         }},
        {"--csv", [](Options& o, const std::string& value) { o.csv = value; }},
        {"--json", [](Options& o, const std::string& value) { o.json = value; }},
        {"--archive", [](Options& o, const std::string& value) { o.archive = value; }},
        {"--picture", [](Options& o, const std::string& value) { o.picture = pictureFrom(value); }},
        {"--out", [](Options& o, const std::string& value) { o.folder = value; }},
    };
    return all;
}

} // namespace

Options parseOptions(int count, char** arguments) {
    Options options;
    for (int i = 1; i < count; ++i) {
        const std::string argument = arguments[i];
        const auto taker = takers().find(argument);
        if (argument == "--help" || argument == "-h") {
            options.help = true;
            return options;
        }
        if (taker != takers().end()) {
            if (++i == count || *arguments[i] == '\0')
                throw BadCommandLine(argument + " needs a value after it.");
            taker->second(options, arguments[i]);
        } else if (argument.size() > 1 && argument[0] == '-') {
            throw BadCommandLine("There is no option '" + argument + "'; demo --help tells which there are.");
        } else if (!options.image.empty()) {
            throw BadCommandLine("Only one image at a time is measured, but '" + argument + "' is the second.");
        } else {
            options.image = argument;
        }
    }
    if (options.image.empty()) throw BadCommandLine("An image is needed; demo --help tells how.");
    return options;
}
