// The command line.
#ifndef GK_EXAMPLES_DEMO_OPTIONS_H
#define GK_EXAMPLES_DEMO_OPTIONS_H

#include <filesystem>

struct Options {
    bool help = false;
    std::filesystem::path image;
    std::filesystem::path folder; // where the results go
    double leastArea = 64.0;      // of an object, in square pixels
    double wantedSide = 1600.0;   // of the pictures written, in pixels
};

// Throws Failure for what is not understood.
Options parseOptions(int count, char** arguments);

extern const char* const kUsage;

#endif
