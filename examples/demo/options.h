// The command line.
#ifndef GK_EXAMPLES_DEMO_OPTIONS_H
#define GK_EXAMPLES_DEMO_OPTIONS_H

#include <filesystem>
#include <optional>

// A rectangle, in pixels.
struct Part {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

struct Options {
    bool help = false;
    std::filesystem::path image;
    std::optional<Part> part;    // of the image that is measured; all of it without
    std::optional<double> scale; // millimetres per pixel; in pixels without
    double leastArea = 64.0;     // of an object or a hole, in square pixels
    double wantedSide = 1600.0;  // of the pictures written, in pixels
    // Where results go; what is not named is not written.
    std::filesystem::path picture;
    std::filesystem::path csv;
    std::filesystem::path json;
    std::filesystem::path archive;
    std::filesystem::path folder; // for all of them, under names made from the image's
};

// Throws BadCommandLine for what is not understood.
Options parseOptions(int count, char** arguments);

extern const char* const kUsage;

#endif
