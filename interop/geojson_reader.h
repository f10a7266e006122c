// GeoJSON into rings.
#ifndef GK_INTEROP_GEOJSON_READER_H
#define GK_INTEROP_GEOJSON_READER_H

#include "interop/text_shapes.h"

gk_TextGeometry gk_ReadGeoJson(const gk_Text& text);

#endif
