// The measured picture: the photograph with what was found drawn over it.
#ifndef GK_EXAMPLES_DEMO_PICTURE_H
#define GK_EXAMPLES_DEMO_PICTURE_H

#include "examples/demo/measure.h"

#include <filesystem>
#include <string>
#include <vector>

struct Photograph {
    long width = 0;
    long height = 0;
    std::vector<unsigned char> pngBytes;
};

// Writes `stem`.png, .svg and .pdf and returns their names. `objects` are the measures of `outlines`, in the
// same order; `wantedSide` is the length the longer side should come to, see Page.
std::vector<std::filesystem::path> savePictures(const std::filesystem::path& stem, const Photograph& photograph,
                                                const std::vector<gkContour>& outlines,
                                                const std::vector<Measures>& objects, double wantedSide);

#endif
