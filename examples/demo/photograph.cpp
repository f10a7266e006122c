#include "examples/demo/photograph.h"

#include "examples/demo/failure.h"

#include <fstream>
#include <iterator>
#include <opencv2/core/utils/logger.hpp>
#include <opencv2/imgcodecs.hpp>

namespace {

std::vector<unsigned char> bytesOf(const std::filesystem::path& file) {
    const std::string name = "'" + file.string() + "'";
    std::error_code unknown;
    if (std::filesystem::is_directory(file, unknown)) throw Failure(name + " is a folder, not a picture.");
    std::ifstream in(file, std::ios::binary);
    if (!in) throw Failure(name + " cannot be opened for reading.");
    std::vector<unsigned char> bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    if (in.bad()) throw Failure(name + " cannot be read to its end.");
    return bytes;
}

} // namespace

cv::Mat readPicture(const std::filesystem::path& file) {
    const std::vector<unsigned char> bytes = bytesOf(file);
    // Of a damaged file OpenCV would tell in several lines what is said here in one.
    cv::utils::logging::setLogLevel(cv::utils::logging::LOG_LEVEL_SILENT);
    cv::Mat picture;
    try {
        if (!bytes.empty()) picture = cv::imdecode(bytes, cv::IMREAD_COLOR);
    } catch (const cv::Exception&) {
        picture.release();
    }
    if (picture.empty())
        throw Failure("'" + file.string() + "' is not a picture in a format that is known here.");
    return picture;
}

Photograph photographOf(const cv::Mat& picture) {
    Photograph photograph;
    photograph.width = picture.cols;
    photograph.height = picture.rows;
    if (!cv::imencode(".png", picture, photograph.pngBytes))
        throw Failure("The picture cannot be encoded as PNG.");
    return photograph;
}
