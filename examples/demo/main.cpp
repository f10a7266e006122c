// Measures the objects of a picture: outlines by OpenCV, everything else by gkcntr.
#include "examples/demo/failure.h"
#include "examples/demo/keep.h"
#include "examples/demo/measure.h"
#include "examples/demo/options.h"
#include "examples/demo/outlines.h"
#include "examples/demo/photograph.h"
#include "examples/demo/picture.h"
#include "examples/demo/table.h"
#include "examples/demo/totals.h"
#include "platform/core/object/exception.h"

#include <iostream>

namespace {

std::string narrow(const std::wstring& text) {
    std::string bytes;
    for (wchar_t c : text) bytes += c >= 0 && c < 128 ? static_cast<char>(c) : '?';
    return bytes;
}

cv::Mat partOf(const cv::Mat& picture, const Part& part) {
    if (part.width < 1 || part.height < 1 || part.width > picture.cols || part.height > picture.rows ||
        part.left > picture.cols - part.width || part.top > picture.rows - part.height)
        throw Failure("The part does not lie within the picture.");
    return picture(cv::Rect(part.left, part.top, part.width, part.height)).clone();
}

void makeFolder(const std::filesystem::path& folder) {
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (!std::filesystem::is_directory(folder, error))
        throw Failure("The folder '" + folder.string() + "' cannot be made.");
}

void keep(const std::filesystem::path& file, const gkRegionSet& regions) {
    saveRegions(file, regions);
    if (!same(loadRegions(file), regions))
        throw Failure("The regions read back from '" + file.string() + "' differ from those written.");
    const std::size_t count = regions.regions().size();
    std::cout << file.string() << " holds " << counted(count, "region") << "; read back, "
              << (count == 1 ? "it is" : "they are") << " equal.\n";
}

void tell(const Outlines& found, const std::vector<Measures>& objects) {
    std::cout << tableOfOutlines(objects) << '\n' << tableOfAreas(objects) << '\n';
    if (found.refusedHoles > 0)
        std::cout << counted(found.refusedHoles, "hole")
                  << (found.refusedHoles == 1 ? " is left out, since it touches its outline.\n"
                                              : " are left out, since they touch their outlines.\n");
}

void run(const Options& options) {
    const cv::Mat whole = readPicture(options.image);
    const cv::Mat picture = options.part ? partOf(whole, *options.part) : whole;
    const Outlines found = findOutlines(picture, options.leastArea);
    const std::vector<gkPtrHandle<gkRegion>>& regions = found.regions;
    if (regions.empty()) throw Failure("No objects were found in '" + options.image.string() + "'.");
    std::vector<Measures> objects;
    for (const gkPtrHandle<gkRegion>& region : regions) objects.push_back(measure(*region));

    const std::string name = options.image.stem().string();
    std::cout << options.image.string() << ": " << picture.cols << " x " << picture.rows << " pixels, "
              << counted(objects.size(), "object") << "\n\n";
    tell(found, objects);
    const gkRegionSet all(regions, gkContourDefs::eKeepIntersections);
    std::cout << totals(all) << '\n';

    makeFolder(options.folder);
    keep(options.folder / (name + "_regions.gka"), all);
    for (const std::filesystem::path& file :
         savePictures(options.folder / (name + "_measured"), photographOf(picture), regions, objects,
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
