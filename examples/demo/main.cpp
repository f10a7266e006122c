// Measures the objects of a picture as a gauging program would: OpenCV tells which pixels belong to objects,
// the edges are found between the pixels, everything else is done by gkcntr.
#include "examples/demo/failure.h"
#include "examples/demo/measure.h"
#include "examples/demo/objects.h"
#include "examples/demo/options.h"
#include "examples/demo/photograph.h"
#include "examples/demo/results.h"
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

Objects findIn(const cv::Mat& picture, const Options& options, const Scale& scale, Progress& progress) {
    progress.tell("looking for objects");
    const PixelOutlines outlines = findOutlines(picture, options.leastArea);
    Objects found = traceObjects(picture, outlines, scale, progress);
    if (found.all.empty()) throw Failure("No objects were found in '" + options.image.string() + "'.");
    return found;
}

void tellLeftOut(std::size_t count, const std::string& noun, const std::string& reason) {
    if (count > 0)
        std::cout << counted(count, noun) << (count == 1 ? " is" : " are") << " left out, " << reason << ".\n";
}

void tell(const Objects& found, const std::vector<Measures>& measures, const Scale& scale) {
    std::cout << tableOfOutlines(measures, scale) << '\n' << tableOfAreas(measures, scale) << '\n';
    tellLeftOut(found.withoutEdge, "outline", "without a clear edge");
    tellLeftOut(found.touchingHoles, "hole", "touching the outline around it");
    gkRegionSet all;
    for (const Object& object : found.all) all.add(object.shape, gkContourDefs::eKeepIntersections);
    std::cout << totals(all, scale) << '\n';
}

void run(const Options& options) {
    Progress progress;
    const Scale scale(options.scale);
    const cv::Mat whole = readPicture(options.image);
    const cv::Mat picture = options.part ? partOf(whole, *options.part) : whole;
    const Objects found = findIn(picture, options, scale, progress);
    std::vector<Measures> measures;
    for (const Object& object : found.all) {
        progress.tell("measuring object", measures.size() + 1, found.all.size());
        measures.push_back(measure(object));
    }
    progress.clear();
    std::cout << options.image.string() << ": " << picture.cols << " x " << picture.rows << " pixels, "
              << counted(measures.size(), "object") << "\n\n";
    tell(found, measures, scale);
    writeResults(options, {photographOf(picture), found.all, measures, scale}, progress);
}

int fail(const std::string& sentence, int status) {
    std::cout.flush();
    std::cerr << "demo: " << sentence << '\n';
    return status;
}

} // namespace

int main(int count, char** arguments) {
    try {
        const Options options = parseOptions(count, arguments);
        if (options.help)
            std::cout << kUsage;
        else
            run(options);
        return std::cout.flush() ? 0 : fail("The table cannot be written.", 1);
    } catch (const BadCommandLine& error) {
        return fail(error.what(), 2);
    } catch (const gkException& error) {
        return fail(narrow(error.message()) + '.', 1);
    } catch (const std::exception& error) {
        return fail(error.what(), 1);
    }
}
