#include "examples/demo/photograph.h"

#include "examples/demo/failure.h"
#include "examples/demo/files.h"
#include "examples/demo/whole_file.h"

#include <opencv2/core/utils/logger.hpp>
#include <opencv2/imgcodecs.hpp>

cv::Mat readPicture(const std::filesystem::path& file) {
    const std::vector<unsigned char> bytes = readBytes(file);
    if (isDamaged(bytes)) throw Failure("'" + file.string() + "' is damaged or cut off.");
    // Of what else it does not understand OpenCV would tell in several lines what is said here in one.
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
