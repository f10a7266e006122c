// Well-known text into rings.
#ifndef GK_INTEROP_WKT_READER_H
#define GK_INTEROP_WKT_READER_H

#include "interop/text_shapes.h"

gk_TextGeometry gk_ReadWkt(const gk_Text& text);

#endif
