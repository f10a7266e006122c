// The measured picture: the photograph with what was found drawn over it.
#ifndef GK_EXAMPLES_DEMO_PICTURE_H
#define GK_EXAMPLES_DEMO_PICTURE_H

#include "examples/demo/measure.h"
#include "examples/demo/object.h"
#include "examples/demo/scale.h"

#include <filesystem>
#include <vector>

struct Photograph {
    long width = 0;
    long height = 0;
    std::vector<unsigned char> pngBytes;
};

// What a picture of the results shows. `measures` are those of `objects`, in the same order.
struct Scene {
    const Photograph& photograph;
    const std::vector<Object>& objects;
    const std::vector<Measures>& measures;
    const Scale& scale;
};

// Writes the picture as PNG, SVG or PDF, as the file's name says (isPictureName); `wantedSide` is the length
// the longer side should come to, see Page. Throws gkUITablet::CannotWrite.
void savePicture(const std::filesystem::path& file, const Scene& scene, double wantedSide);

#endif
