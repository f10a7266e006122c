// SVG path data into runs of vertices.
#ifndef GK_INTEROP_SVG_PATH_READER_H
#define GK_INTEROP_SVG_PATH_READER_H

#include "interop/text_shapes.h"

struct gk_Subpath {
    gk_TextRing ring; // every vertex that is told
    bool closed = false;
};

std::vector<gk_Subpath> gk_ReadSvgPath(const gk_Text& text);

#endif
