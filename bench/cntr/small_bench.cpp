// Very many small contours: build, area, box, inside and destroy, per contour.
#include "bench/contestants.h"
#include "bench/many.h"
#include "bench/peers/boost.h"
#include "bench/peers/cgal.h"
#include "bench/peers/geos.h"
#include "bench/suite.h"

namespace bench {

namespace {

constexpr std::size_t kKinds = 1000; // different ones

enum class Step { eBuild, eArea, eBox, eInside, eDestroy };

class Ours {
public:
    explicit Ours(const Points& points) : region_(vectorsOf(points), gkContourDefs::eKeepIntersections) {}
    double area() const { return region_.area(false); }
    double width() const {
        const gkRect box = region_.encloseRect(gkXform<2>());
        return box.lr().x() - box.ul().x();
    }
    bool inside(const Point& p) const { return region_.inside(vectorOf(p), false); }

private:
    gkRegion region_;
};

std::unique_ptr<Many> manyOfOurs(const Supply& supply) { return std::make_unique<ManyOf<Ours>>(supply); }

double answer(Many& many, Step step) {
    switch (step) {
    case Step::eBuild:
        return many.build();
    case Step::eArea:
        return many.areas();
    case Step::eBox:
        return many.widths();
    case Step::eInside:
        return many.insides();
    case Step::eDestroy:
        return many.destroy();
    }
    return 0.0;
}

template <Step step> void smallContours(Race& race, Kind, std::size_t n) {
    const Supply supply = {std::make_shared<const std::vector<Points>>(grid(kKinds)), n};
    const auto add = [&](const std::string& name, Standing standing, auto* make) {
        race.add(
            name, standing,
            [=] {
                auto many = make(supply);
                if (step != Step::eBuild) many->build();
                return many;
            },
            [](Many& many, std::size_t) { return answer(many, step); });
    };
    race.perItem(n);
    add("ours", Standing::eOurs, &manyOfOurs);
    add("GEOS", Standing::ePeer, &manyOfGeos);
    add("Boost", Standing::ePeer, &manyOfBoost);
    add("CGAL", Standing::ePeer, &manyOfCgal);
}

} // namespace

void addSmallRows(std::vector<Row>& rows) {
    const std::vector<std::size_t> million = {1000000};
    const std::vector<Mode> fresh = {Mode::eFresh};
    rows.push_back({"million_build", {Kind::eStar}, million, fresh, smallContours<Step::eBuild>});
    rows.push_back({"million_area", {Kind::eStar}, million, fresh, smallContours<Step::eArea>});
    rows.push_back({"million_box", {Kind::eStar}, million, fresh, smallContours<Step::eBox>});
    rows.push_back({"million_inside", {Kind::eStar}, million, fresh, smallContours<Step::eInside>});
    rows.push_back({"million_destroy", {Kind::eStar}, million, fresh, smallContours<Step::eDestroy>});
}

} // namespace bench
