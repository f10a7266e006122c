// Measures the objects of a picture: outlines by OpenCV, everything else by gkcntr.
#include "examples/demo/failure.h"
#include "examples/demo/keep.h"
#include "examples/demo/measure.h"
#include "examples/demo/options.h"
#include "examples/demo/outlines.h"
#include "examples/demo/photograph.h"
#include "examples/demo/picture.h"
#include "examples/demo/table.h"
#include "platform/core/object/exception.h"

#include <algorithm>
#include <iostream>
#include <iterator>

namespace {

std::string narrow(const std::wstring& text) {
    std::string bytes;
    for (wchar_t c : text) bytes += c >= 0 && c < 128 ? static_cast<char>(c) : '?';
    return bytes;
}

void makeFolder(const std::filesystem::path& folder) {
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (!std::filesystem::is_directory(folder, error))
        throw Failure("The folder '" + folder.string() + "' cannot be made.");
}

void keep(const std::filesystem::path& file, const std::vector<gkContour>& outlines) {
    saveContours(file, outlines);
    if (!same(loadContours(file), outlines))
        throw Failure("The contours read back from '" + file.string() + "' differ from those written.");
    std::cout << file.string() << " holds " << outlines.size() << " contours; read back, they are equal.\n";
}

void run(const Options& options) {
    const cv::Mat picture = readPicture(options.image);
    const std::vector<gkContour> outlines = findOutlines(picture, options.leastArea);
    if (outlines.empty()) throw Failure("No objects were found in '" + options.image.string() + "'.");
    std::vector<Measures> objects;
    std::transform(outlines.begin(), outlines.end(), std::back_inserter(objects), measure);

    const std::string name = options.image.stem().string();
    std::cout << options.image.string() << ": " << picture.cols << " x " << picture.rows << " pixels, "
              << objects.size() << (objects.size() == 1 ? " object" : " objects") << "\n\n"
              << table(objects) << '\n';
    makeFolder(options.folder);
    keep(options.folder / (name + "_contours.gka"), outlines);
    for (const std::filesystem::path& file :
         savePictures(options.folder / (name + "_measured"), photographOf(picture), outlines, objects,
                      options.wantedSide))
        std::cout << file.string() << " written.\n";
}

int fail(const std::string& sentence) {
    std::cout.flush();
    std::cerr << "demo: " << sentence << '\n';
    return 1;
}

} // namespace

int main(int count, char** arguments) {
    try {
        const Options options = parseOptions(count, arguments);
        if (options.help)
            std::cout << kUsage;
        else
            run(options);
        return std::cout.flush() ? 0 : fail("The table cannot be written.");
    } catch (const gkException& error) {
        return fail(narrow(error.message()) + '.');
    } catch (const std::exception& error) {
        return fail(error.what());
    }
}
