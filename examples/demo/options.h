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
    std::optional<Part> part;     // of the image that is measured; all of it without
    std::filesystem::path folder; // where the results go
    double leastArea = 64.0;      // of an object or a hole, in square pixels
    double wantedSide = 1600.0;   // of the pictures written, in pixels
};

// Throws Failure for what is not understood.
Options parseOptions(int count, char** arguments);

extern const char* const kUsage;

#endif
