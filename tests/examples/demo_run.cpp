#include "tests/examples/demo_run.h"

#include "platform/core/archive/archive_file.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
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

std::vector<std::vector<std::string>> rowsOf(const std::string& printed, std::size_t columns) {
    std::vector<std::vector<std::string>> rows;
    std::istringstream lines(printed);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        const std::vector<std::string> cells{std::istream_iterator<std::string>(words),
                                             std::istream_iterator<std::string>()};
        if (cells.size() == columns && std::isdigit(static_cast<unsigned char>(cells[0][0])) != 0)
            rows.push_back(cells);
    }
    return rows;
}

unsigned char levelAt(const std::vector<Disc>& discs, double x, double y) {
    unsigned char level = kGround;
    for (const Disc& disc : discs)
        if (std::hypot(x - disc.x, y - disc.y) <= disc.radius) level = disc.level;
    return level;
}

double meanLevel(const std::vector<Disc>& discs, int column, int row) {
    constexpr int kPlaces = 8; // across and down a pixel
    double sum = 0.0;
    for (int i = 0; i < kPlaces; ++i)
        for (int k = 0; k < kPlaces; ++k)
            sum += levelAt(discs, column + (k + 0.5) / kPlaces, row + (i + 0.5) / kPlaces);
    return sum / (kPlaces * kPlaces);
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

void expectOneSentence(const Outcome& run, const std::string& part, int status) {
    EXPECT_EQ(status, run.status);
    EXPECT_EQ("", run.printed);
    EXPECT_THAT(run.complaint, testing::StartsWith("demo: "));
    EXPECT_THAT(run.complaint, testing::HasSubstr(part));
    EXPECT_THAT(run.complaint, testing::EndsWith(".\n"));
    EXPECT_EQ(1, std::count(run.complaint.begin(), run.complaint.end(), '\n'));
}

Archived loadArchive(const std::filesystem::path& file) {
    Archived archived;
    gkArchiveFile archive(file, gkArchiveFile::eLoad);
    archive || archived.regions || archived.edges;
    archive.close();
    return archived;
}

cv::Mat pictureOf(const std::vector<Disc>& discs, int width, int height, bool uneven) {
    cv::Mat picture(height, width, CV_8UC1);
    for (int row = 0; row < height; ++row) {
        for (int column = 0; column < width; ++column) {
            double light = meanLevel(discs, column, row);
            if (uneven) light += 100.0 * (width - 1 - column) / width;
            picture.at<unsigned char>(row, column) = static_cast<unsigned char>(light + 0.5);
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

std::vector<std::vector<std::string>> cellsOf(const std::string& csv) {
    std::vector<std::vector<std::string>> rows;
    std::istringstream lines(csv);
    for (std::string line; std::getline(lines, line);) {
        rows.emplace_back();
        std::istringstream cells(line);
        for (std::string cell; std::getline(cells, cell, ',');) rows.back().push_back(cell);
    }
    return rows;
}

std::vector<std::vector<std::string>> outlinesOf(const std::string& printed) { return rowsOf(printed, 13); }

std::vector<std::vector<std::string>> areasOf(const std::string& printed) { return rowsOf(printed, 9); }
