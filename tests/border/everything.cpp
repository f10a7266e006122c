#include "tests/border/everything.h"

#include "gkcntr.h"

#include <cstdint>
#include <limits>
#include <memory>
#include <stdexcept>
#include <string>

namespace {

using Handle = gkPtrHandle_const<gkRegion>;
using EdgeletContour = gkContourT<gkEdgelet>;
using EdgeletRegion = gkRegionT<gkEdgelet>;
using EdgeletSet = gkRegionSetT<gkEdgelet>;
using Transform = gkPtrHandle_const<gk2XformBase>;

// Everything that goes into the archive, in its order.
struct Everything {
    bool flag = false;
    unsigned char byte = 0;
    unsigned short small = 0;
    long least = 0;
    unsigned long most = 0;
    float single = 0.0F;
    double tiny = 0.0;
    std::string text;
    std::wstring wide;

    gkVector<2> vector;
    gkRadian radian;
    gkAngle8 step;
    gkMatrix<2> matrix;
    gkXform<2> xform;
    gkRect rect;
    gkEdgelet edgelet;
    std::vector<long> numbers;
    std::vector<std::vector<bool>> flags;

    gkContour contour; // in place
    gkRegion region;   // in place, with a hole that the set holds as well
    gkPtrHandle<gkRegionSet> set;
    gkPtrHandle<gkRegionSet> sameSet;
    gkPtrHandle<gkContour> null;
    gkPtrHandle<EdgeletContour> edgeletContour;
    gkPtrHandle<EdgeletRegion> edgeletRegion;
    gkPtrHandle<EdgeletSet> edgeletSet;
    Transform transform;
    std::vector<std::unique_ptr<gkPersistent>> owned; // one of each error
};

template <class Error> void add(std::vector<std::unique_ptr<gkPersistent>>& owned) {
    owned.push_back(std::make_unique<Error>(std::wstring(L"the text stays here")));
}

Everything built() {
    Everything all;
    all.flag = true;
    all.byte = 0xA5;
    all.small = 0xFFFE;
    all.least = std::numeric_limits<std::int32_t>::min();
    all.most = std::numeric_limits<std::uint32_t>::max();
    all.single = 0.1F;
    all.tiny = -std::numeric_limits<double>::denorm_min();
    all.text = "line 1\nline 2\r\n\x1A z\xC3\xA4hlt"; // what a text file would not keep
    all.wide = L"\u20AC \U0001F600";                  // two units, or three

    all.vector = {1.0 / 3.0, -0.0};
    all.radian = gkRadian(0.7);
    all.step = gkAngle8(200);
    all.matrix = gkMatrix<2>(1, 2, 3, 4.5);
    all.xform = gkXform<2>(gkMatrix<2>(0, -1, 1, 0), {5, 6});
    all.rect = gkRect({-1, -2}, {3, 4});
    all.edgelet = gkEdgelet({7.25, 8.5}, 65535, gkAngle8(64));
    all.numbers = {-1, 0, 1, std::numeric_limits<std::int32_t>::max()};
    all.flags = {{}, {true, false, true}};

    all.contour = gkContour({{0, 0}, {8, 6}, {8, 0}, {0, 6}}, false, 4000000000U);
    all.contour.cachedVectorSize(17);
    gkPtrHandle<gkRegion> hole(new gkRegion({{2, 2}, {2, 3}, {3, 3}}));
    hole->label(9);
    all.region = gkRegion({{0, 0}, {10, 0}, {10, 10}, {0, 10}});
    all.region.holes({hole});
    all.set =
        gkPtrHandle<gkRegionSet>(new gkRegionSet({Handle(new gkRegion(all.region)), hole, Handle(), hole}));
    all.set->cachedVectorSize(1);
    all.sameSet = all.set;

    const std::vector<gkEdgelet> data = {all.edgelet, gkEdgelet({1, 1}, 0, gkAngle8()),
                                         gkEdgelet({2, 0}, 3, gkAngle8(255))};
    all.transform = Transform(new gk2XformLinear(all.xform));
    all.edgeletContour = gkPtrHandle<EdgeletContour>(new EdgeletContour(data, all.transform));
    all.edgeletRegion = gkPtrHandle<EdgeletRegion>(new EdgeletRegion(data, 12));
    all.edgeletSet =
        gkPtrHandle<EdgeletSet>(new EdgeletSet(std::vector<gkPtrHandle<EdgeletRegion>>{all.edgeletRegion}));
    add<gkContourDefs::EmptyContour>(all.owned);
    add<gkContourDefs::EmptyRegionSet>(all.owned);
    add<gkContourDefs::BadParams>(all.owned);
    add<gkContourDefs::RegionCannotBeSetOpen>(all.owned);
    return all;
}

void pass(gkArchive& ar, Everything& all) {
    ar || all.flag || all.byte || all.small || all.least || all.most || all.single || all.tiny || all.text ||
        all.wide;
    ar || all.vector || all.radian || all.step || all.matrix || all.xform || all.rect || all.edgelet;
    ar || all.numbers || all.flags;
    ar || all.contour || all.region;
    ar || all.set || all.sameSet || all.null || all.edgeletContour || all.edgeletRegion || all.edgeletSet ||
        all.transform;
    unsigned short owned = static_cast<unsigned short>(all.owned.size());
    ar || owned;
    all.owned.resize(owned);
    for (std::unique_ptr<gkPersistent>& object : all.owned) {
        if (ar.isSaving()) {
            ar.writeObject(object.get());
        } else {
            object.reset(ar.readObject());
        }
    }
}

std::vector<unsigned char> written(Everything& all) {
    gkArchiveMemory out;
    pass(out, all);
    out.finish();
    return out.bytes();
}

void demand(bool holds, const char* what) {
    if (!holds) throw std::runtime_error(std::string("not what was written: ") + what);
}

void compare(const Everything& is, const Everything& was) {
    demand(is.flag == was.flag && is.byte == was.byte && is.small == was.small, "small numbers");
    demand(is.least == was.least && is.most == was.most, "32-bit numbers");
    demand(is.single == was.single && is.tiny == was.tiny, "real numbers");
    demand(is.text == was.text && is.wide == was.wide, "texts");
    demand(is.vector == was.vector && is.radian == was.radian && is.step == was.step, "vector, angles");
    demand(is.matrix == was.matrix && is.xform == was.xform && is.rect == was.rect, "matrix, transform, box");
    demand(is.edgelet == was.edgelet && is.numbers == was.numbers && is.flags == was.flags, "edgelet, lists");
    demand(is.contour == was.contour && is.contour.label() == was.contour.label(), "contour");
    demand(is.region == was.region && is.region.holes().size() == was.region.holes().size(), "region");
    demand(is.region.area(true) == was.region.area(true), "area");
    demand(is.set == is.sameSet && is.set->cachedVectorSize() == was.set->cachedVectorSize(), "set");
    demand(is.set->regions()[1] == is.set->regions()[3] && is.set->regions()[2].isNull(), "shared regions");
    demand(is.set->regions()[0]->holes()[0] == is.set->regions()[1], "shared hole");
    demand(is.null.isNull(), "null");
    demand(is.edgeletContour->data() == was.edgeletContour->data(), "edgelets");
    demand(is.edgeletRegion->points() == was.edgeletRegion->points(), "edgelet region");
    demand(is.edgeletSet->regionsT()[0] == is.edgeletRegion, "edgelet set");
    demand(dynamic_cast<const gk2XformLinear&>(*is.transform).xform() == was.xform, "shared transform");
    for (std::size_t i = 0; i < was.owned.size(); ++i)
        demand(dynamic_cast<gkException&>(*is.owned[i]).errorNumber() ==
                   dynamic_cast<gkException&>(*was.owned[i]).errorNumber(),
               "error");
}

} // namespace

std::vector<unsigned char> writeEverything() {
    Everything all = built();
    return written(all);
}

std::vector<unsigned char> readAndRewrite(const std::vector<unsigned char>& bytes) {
    Everything all;
    gkArchiveMemory in(bytes);
    pass(in, all);
    in.finish();
    compare(all, built());
    return written(all);
}
