// A plate with a hole comes as text, is measured, and goes out as text; a slip of the pen is found.
#include "interop/geojson.h"
#include "interop/print.h"
#include "interop/svg_path.h"
#include "interop/wkt.h"

#include <iostream>

int main() {
    const gkRegion plate =
        gnWkt::readRegion("POLYGON ((0 0, 12.5 0, 12.5 8, 0 8, 0 0), (2 2, 2 4, 4 4, 4 2, 2 2))");
    std::cout << plate << '\n';
    std::cout << "area " << plate.area(true) << ", box " << plate.encloseRect(gkXform<2>()) << '\n';

    std::cout << gnWkt::write(plate) << '\n';
    std::cout << gnGeoJson::write(plate) << '\n';
    std::cout << "<path fill-rule=\"evenodd\" d=\"" << gnSvgPath::write(plate) << "\"/>\n";

    try {
        gnWkt::readRegion("POLYGON ((0 0, 12.5 0,\n  12,5 8, 0 0))");
    } catch (const gkTextDefs::ReadErrors& error) {
        std::cout << "line " << error.place().line << ", column " << error.place().column << ": "
                  << error.explanation() << '\n';
    }
}
