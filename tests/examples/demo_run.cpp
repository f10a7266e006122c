#include "tests/examples/demo_run.h"

#include <cctype>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <random>
#include <sstream>
#ifndef _WIN32
#include <sys/wait.h>
#endif

namespace {

std::string quoted(const std::string& argument) { return "\"" + argument + "\""; }

int exitStatus(int result) {
#ifdef _WIN32
    return result;
#else
    return WIFEXITED(result) ? WEXITSTATUS(result) : -1;
#endif
}

} // namespace

Folder::Folder() {
    std::random_device random;
    do path_ = std::filesystem::temp_directory_path() / ("gkcntr_demo_" + std::to_string(random()));
    while (!std::filesystem::create_directory(path_));
}

Folder::~Folder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

Outcome runDemo(const Folder& folder, const std::vector<std::string>& arguments) {
    const std::filesystem::path printed = folder.file("printed");
    const std::filesystem::path complaint = folder.file("complaint");
    std::string command = quoted(DEMO_PROGRAM);
    for (const std::string& argument : arguments) command += ' ' + quoted(argument);
    command += " >" + quoted(printed.string()) + " 2>" + quoted(complaint.string());
    Outcome run;
    run.status = exitStatus(std::system(command.c_str()));
    run.printed = readText(printed);
    run.complaint = readText(complaint);
    return run;
}

cv::Mat pictureOf(const std::vector<Disc>& discs, int width, int height, bool uneven) {
    cv::Mat picture(height, width, CV_8UC1, cv::Scalar(40));
    for (int row = 0; row < height; ++row) {
        for (int column = 0; column < width; ++column) {
            unsigned char& pixel = picture.at<unsigned char>(row, column);
            for (const Disc& disc : discs) {
                const double x = column + 0.5 - disc.x;
                const double y = row + 0.5 - disc.y;
                if (x * x + y * y <= disc.radius * disc.radius) pixel = 150;
            }
            if (uneven) pixel = static_cast<unsigned char>(pixel + 100 * (width - 1 - column) / width);
        }
    }
    return picture;
}

void writeText(const std::filesystem::path& file, const std::string& text) {
    std::ofstream(file, std::ios::binary) << text;
}

std::string readText(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

std::vector<std::vector<std::string>> rowsOf(const std::string& printed) {
    std::vector<std::vector<std::string>> rows;
    std::istringstream lines(printed);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        const std::vector<std::string> cells{std::istream_iterator<std::string>(words),
                                             std::istream_iterator<std::string>()};
        if (cells.size() == 13 && std::isdigit(static_cast<unsigned char>(cells[0][0])) != 0)
            rows.push_back(cells);
    }
    return rows;
}
