// Running the demo on pictures made here.
#ifndef GK_TESTS_EXAMPLES_DEMO_RUN_H
#define GK_TESTS_EXAMPLES_DEMO_RUN_H

#include <filesystem>
#include <opencv2/core.hpp>
#include <string>
#include <vector>

// A folder of the test's own; it goes with the object.
class Folder {
public:
    Folder();
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    ~Folder();

    std::filesystem::path file(const std::string& name) const { return path_ / name; }

private:
    std::filesystem::path path_;
};

struct Outcome {
    int status = 0;
    std::string printed;
    std::string complaint;
};

// The demo with these arguments; what it printed is kept in the folder while it runs.
Outcome runDemo(const Folder& folder, const std::vector<std::string>& arguments);

struct Disc {
    double x; // of the centre, (0, 0) being the corner of the first pixel
    double y;
    double radius;
};

// Pixels whose centre lies in a disc are 150, all others 40; lit from the left (100 levels more there) when
// `uneven`.
cv::Mat pictureOf(const std::vector<Disc>& discs, int width, int height, bool uneven);

void writeText(const std::filesystem::path& file, const std::string& text);
std::string readText(const std::filesystem::path& file);

// The table's rows, cell by cell, without its two heading lines.
std::vector<std::vector<std::string>> rowsOf(const std::string& printed);

#endif
