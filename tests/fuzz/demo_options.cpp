// The demo's command line, its arguments behind each other with zeros between them, and what it prints of
// measures.
#include "examples/demo/csv.h"
#include "examples/demo/failure.h"
#include "examples/demo/options.h"
#include "examples/demo/picture_name.h"
#include "examples/demo/table.h"
#include "tests/fuzz/target.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

namespace {

constexpr std::size_t kMostArguments = 24;

std::vector<std::string> argumentsFrom(const std::uint8_t* data, std::size_t size) {
    std::vector<std::string> all = {"demo"};
    std::string text;
    for (std::size_t i = 0; i < size && all.size() < kMostArguments; ++i) {
        if (data[i] != 0) {
            text += static_cast<char>(data[i]);
        } else {
            all.push_back(text);
            text.clear();
        }
    }
    all.push_back(text);
    return all;
}

std::optional<Options> parsed(std::vector<std::string> arguments) {
    std::vector<char*> pointers;
    for (std::string& argument : arguments) pointers.push_back(&argument[0]);
    try {
        return parseOptions(static_cast<int>(pointers.size()), pointers.data());
    } catch (const BadCommandLine& error) {
        fuzz::demand(std::string(error.what()).size() > 10, "a refusal tells why");
        return std::nullopt;
    }
}

void demandInRange(const Options& options) {
    if (options.help) return;
    fuzz::demand(!options.image.empty(), "an image is named");
    fuzz::demand(options.leastArea >= 0.0 && options.leastArea < 1e9, "the least area is in range");
    fuzz::demand(options.wantedSide >= 1.0 && options.wantedSide < 1e9, "the side is in range");
    if (options.scale)
        fuzz::demand(*options.scale >= 0.001 && *options.scale <= 1000.0, "the scale is in range");
    if (options.part) {
        const Part& part = *options.part;
        fuzz::demand(std::min({part.left, part.top, part.width, part.height}) >= 0, "the part has no sign");
    }
    if (!options.picture.empty()) fuzz::demand(isPictureName(options.picture), "the picture can be written");
}

Measures measuresFrom(fuzz::Source& source) {
    Measures all;
    all.number = source.byte();
    all.vertices = source.twoBytes();
    all.length = source.number();
    all.area = source.number();
    all.filledArea = source.number();
    all.diameter = source.number();
    all.meanPosition = gkVector<2>(source.number(), source.number());
    all.centerOfMass = gkVector<2>(source.number(), source.number());
    if (source.flag()) all.fit = FittedEllipse{gkEllipse(), source.number()};
    if (source.flag()) all.momentsEllipse = gkEllipse();
    return all;
}

std::size_t linesOf(const std::string& text) {
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

// However large the numbers are: a line for each object behind the headings, and as many cells in each line.
void demandTables(const Measures& measures, const Scale& scale) {
    const std::vector<Measures> two = {measures, measures};
    fuzz::demand(linesOf(tableOfOutlines(two, scale)) == 4, "two headings, two objects");
    fuzz::demand(linesOf(tableOfAreas(two, scale)) == 4, "two headings, two objects");
    const std::string csv = csvOf(two, scale);
    fuzz::demand(linesOf(csv) == 3, "a heading, two objects");
    const auto cells = std::count(csv.begin(), csv.end(), ',');
    const auto ofHeading =
        std::count(csv.begin(), csv.begin() + static_cast<std::ptrdiff_t>(csv.find('\n')), ',');
    fuzz::demand(cells == 3 * ofHeading, "as many cells in each line");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::optional<Options> options = parsed(argumentsFrom(data, size));
    if (options) demandInRange(*options);
    fuzz::Source source(data, size);
    const Measures measures = measuresFrom(source);
    demandTables(measures, Scale(options ? options->scale : std::nullopt));
    return 0;
}
