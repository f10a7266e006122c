#include "interop/print.h"
#include "interop/values_text.h"

namespace {

std::string labelText(const gkContour& contour) { return ", label " + std::to_string(contour.label()); }

std::string text(const gkContour& contour) {
    return (contour.isClosed() ? "closed contour" : "open contour") + labelText(contour) + ": " +
           gk_TextOf(contour.points());
}

template <class Region> std::string holeText(const char* name, const gkPtrHandle_const<Region>& hole) {
    if (hole.isNull()) return std::string("; null ") + name;
    const std::size_t inner = hole->holes().size();
    return std::string("; ") + name + labelText(*hole) +
           (inner > 0 ? ", with holes of its own, " + std::to_string(inner) : "") + ": " +
           gk_TextOf(hole->points());
}

std::string text(const gkRegion& region) {
    std::string all = "region" + labelText(region) + ": " + gk_TextOf(region.points());
    for (const gkPtrHandle_const<gkRegion>& hole : region.holes()) all += holeText("hole", hole);
    return all;
}

std::string dataText(const gkContourT<gkEdgelet>& contour) {
    return "; data: " + gk_TextOfEach(contour.data(),
                                      [](const gkEdgelet& edgelet) { return "[" + gk_TextOf(edgelet) + "]"; });
}

std::string text(const gkRegionT<gkEdgelet>& region) {
    std::string all = text(static_cast<const gkRegion&>(region)) + dataText(region);
    for (const gkPtrHandle_const<gkRegionT<gkEdgelet>>& hole : region.holes())
        all += holeText("edgelet hole", hole);
    return all;
}

template <class Regions> std::string setText(const Regions& regions) {
    return "set of regions, " + std::to_string(regions.size()) + ": " +
           gk_TextOfEach(regions, [](const auto& region) {
               return "[" + (region.isNull() ? "null" : text(*region)) + "]";
           });
}

} // namespace

std::ostream& operator<<(std::ostream& out, const gkContour& contour) { return gk_Put(out, text(contour)); }

std::ostream& operator<<(std::ostream& out, const gkRegion& region) { return gk_Put(out, text(region)); }

std::ostream& operator<<(std::ostream& out, const gkRegionSet& set) {
    return gk_Put(out, setText(set.regions()));
}

std::ostream& operator<<(std::ostream& out, const gkContourT<gkEdgelet>& contour) {
    return gk_Put(out, text(static_cast<const gkContour&>(contour)) + dataText(contour));
}

std::ostream& operator<<(std::ostream& out, const gkRegionT<gkEdgelet>& region) {
    return gk_Put(out, text(region));
}

std::ostream& operator<<(std::ostream& out, const gkRegionSetT<gkEdgelet>& set) {
    return gk_Put(out, setText(set.regionsT()));
}
