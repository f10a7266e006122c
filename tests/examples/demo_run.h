// Running the demo on pictures made here.
#ifndef GK_TESTS_EXAMPLES_DEMO_RUN_H
#define GK_TESTS_EXAMPLES_DEMO_RUN_H

#include "ch_core/cntrtmpl.h"

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

// The lines of comma-separated values, cell by cell.
std::vector<std::vector<std::string>> cellsOf(const std::string& csv);

// The demo with these arguments; what it printed is kept in the folder while it runs.
Outcome runDemo(const Folder& folder, const std::vector<std::string>& arguments);

// What the demo keeps in an archive.
struct Archived {
    gkRegionSet regions;
    std::vector<gkPtrHandle_const<gkContourT<gkEdgelet>>> edges;
};

Archived loadArchive(const std::filesystem::path& file);

// Nothing printed, one sentence of complaint with this in it, and this exit status.
void expectOneSentence(const Outcome& run, const std::string& part, int status);

struct Disc {
    double x; // of the centre, (0, 0) being the corner of the first pixel
    double y;
    double radius;
    unsigned char level = 150; // with kGround it is a hole in an earlier one
};

constexpr unsigned char kGround = 40;

// A place in a disc has the level of the last disc it lies in, all others kGround, and a pixel has the mean of
// its places; lit from the left (100 levels more there) when `uneven`.
cv::Mat pictureOf(const std::vector<Disc>& discs, int width, int height, bool uneven);

void writeText(const std::filesystem::path& file, const std::string& text);
std::string readText(const std::filesystem::path& file);

// The rows of a table, cell by cell, without its two heading lines; the tables differ in their columns.
std::vector<std::vector<std::string>> outlinesOf(const std::string& printed);
std::vector<std::vector<std::string>> areasOf(const std::string& printed);

#endif
