#include "tests/hostile/content.h"

#include "ch_core/cntrtmpl.h"
#include "cntr/regionst.h"
#include "platform/core/archive/archive_memory.h"
#include "platform/core/transform/xform_linear.h"

#include <functional>
#include <map>
#include <set>
#include <stdexcept>

namespace {

using Bytes = std::vector<unsigned char>;
using hostile::Content;

// The regions that objects lead to. All that stand behind handles are held until the last one has let go of its
// own handles, so that nothing is freed while it is being walked.
class Regions {
public:
    void collectOwned(const gkRepBase* object) {
        if (const auto* region = dynamic_cast<const gkRegion*>(object)) {
            for (const auto& hole : region->holes()) collectShared(hole.rep());
        } else {
            collectShared(object);
        }
    }
    void collectShared(const gkRepBase* object) {
        if (const auto* region = dynamic_cast<const gkRegion*>(object)) {
            if (!known_.insert(region).second) return;
            found_.emplace_back(region);
            collectOwned(region);
        } else if (const auto* set = dynamic_cast<const gkRegionSet*>(object)) {
            for (const auto& member : set->regions()) collectShared(member.rep());
            // An archive may give a set of edgelet regions others than its plain ones.
            if (const auto* edgelets = dynamic_cast<const gkRegionSetT<gkEdgelet>*>(set))
                for (const auto& member : edgelets->regionsT()) collectShared(member.rep());
        }
    }
    const std::set<const gkRegion*>& all() const { return known_; }
    void untie() const {
        for (const gk_RepHold& region : found_) const_cast<gkRepBase*>(region.get())->forgetHandles();
    }

private:
    std::set<const gkRegion*> known_;
    std::vector<gk_RepHold> found_;
};

template <class Shape> class ShapeContent : public Content {
public:
    void pass(gkArchive& archive) override {
        archive || static_cast<gkPersistent&>(inPlace_);
        archive || shared_;
    }

private:
    std::vector<const gkRepBase*> shared() const override { return {shared_.rep()}; }
    std::vector<const gkRepBase*> owned() const override { return {&inPlace_}; }

    Shape inPlace_;
    gkPtrHandle<Shape> shared_;
};

// Owned objects in a row behind their count.
void passOwned(gkArchive& archive, std::vector<std::unique_ptr<gkPersistent>>& owned) {
    auto count = static_cast<unsigned char>(owned.size());
    archive || count;
    owned.resize(count);
    for (std::unique_ptr<gkPersistent>& object : owned) {
        if (archive.isSaving()) {
            archive.writeObject(object.get());
        } else {
            object.reset(archive.readObject());
        }
    }
}

class ErrorsContent : public Content {
public:
    void pass(gkArchive& archive) override {
        archive || static_cast<gkPersistent&>(emptyContour_) || static_cast<gkPersistent&>(emptyRegionSet_);
        archive || static_cast<gkPersistent&>(badParams_) || static_cast<gkPersistent&>(setOpen_);
        passOwned(archive, owned_);
    }

private:
    std::vector<const gkRepBase*> shared() const override { return {}; }
    std::vector<const gkRepBase*> owned() const override {
        std::vector<const gkRepBase*> all;
        for (const auto& object : owned_) all.push_back(dynamic_cast<const gkRepBase*>(object.get()));
        return all;
    }

    gkContourDefs::EmptyContour emptyContour_{std::wstring()};
    gkContourDefs::EmptyRegionSet emptyRegionSet_{std::wstring()};
    gkContourDefs::BadParams badParams_{std::wstring()};
    gkContourDefs::RegionCannotBeSetOpen setOpen_{std::wstring()};
    std::vector<std::unique_ptr<gkPersistent>> owned_;
};

class GraphContent : public Content {
public:
    void pass(gkArchive& archive) override {
        archive || contours_ || sets_ || transforms_;
        archive || static_cast<gkPersistent&>(region_);
    }

private:
    std::vector<const gkRepBase*> shared() const override {
        std::vector<const gkRepBase*> all;
        for (const auto& contour : contours_) all.push_back(contour.rep());
        for (const auto& set : sets_) all.push_back(set.rep());
        return all;
    }
    std::vector<const gkRepBase*> owned() const override { return {&region_}; }

    std::vector<gkPtrHandle<gkContour>> contours_;
    std::vector<gkPtrHandle_const<gkRegionSet>> sets_;
    std::vector<gkPtrHandle_const<gk2XformBase>> transforms_;
    gkRegion region_;
};

Regions regionsOf(const std::vector<const gkRepBase*>& shared, const std::vector<const gkRepBase*>& owned) {
    Regions regions;
    for (const gkRepBase* object : shared) regions.collectShared(object);
    for (const gkRepBase* object : owned) regions.collectOwned(object);
    return regions;
}

// An answer or an error of the library's own.
template <class Ask> void asked(Ask ask) {
    try {
        ask();
    } catch (const gkException&) {
    }
}

void askRegion(const gkRegion& region) {
    asked([&] { region.area(true); });
    asked([&] { region.centerOfMass(true); });
    if (region.points().empty()) return;
    const gkVector<2> p = region.points().front();
    asked([&] { region.inside(p, true); });
    asked([&] { region.closestPoint(p, false, true); });
}

template <class Kind> std::unique_ptr<Content> made() { return std::make_unique<Kind>(); }

using Makers = std::map<std::string, std::function<std::unique_ptr<Content>()>>;

const Makers& makers() {
    static const Makers all = {
        {"contour", made<ShapeContent<gkContour>>},
        {"region", made<ShapeContent<gkRegion>>},
        {"set", made<ShapeContent<gkRegionSet>>},
        {"edgelet_contour", made<ShapeContent<gkContourT<gkEdgelet>>>},
        {"edgelet_region", made<ShapeContent<gkRegionT<gkEdgelet>>>},
        {"edgelet_set", made<ShapeContent<gkRegionSetT<gkEdgelet>>>},
        {"errors", made<ErrorsContent>},
        {"graph", made<GraphContent>},
    };
    return all;
}

// Unties at the end of a scope, however it ends.
struct Untied {
    Content& content;
    ~Untied() { content.untie(); }
};

} // namespace

namespace hostile {

void Content::ask() const {
    const Regions regions = regionsOf(shared(), owned());
    for (const gkRegion* region : regions.all()) askRegion(*region);
}

void Content::untie() { regionsOf(shared(), owned()).untie(); }

std::unique_ptr<Content> empty(const std::string& kind) { return makers().at(kind)(); }

const std::vector<std::string>& kinds() {
    static const std::vector<std::string> names = [] {
        std::vector<std::string> all;
        for (const auto& maker : makers()) all.push_back(maker.first);
        return all;
    }();
    return names;
}

Bytes rewritten(const std::string& kind, const Bytes& bytes) {
    const std::unique_ptr<Content> content = empty(kind);
    const Untied untied{*content};
    gkArchiveMemory in(bytes);
    content->pass(in);
    in.finish();
    content->ask();
    gkArchiveMemory out;
    content->pass(out);
    out.finish();
    return out.bytes();
}

void expectErrorOrEqual(const std::string& kind, const Bytes& bytes) {
    Bytes once;
    try {
        once = rewritten(kind, bytes);
    } catch (const gkArchive::Errors&) {
        return;
    }
    try {
        if (rewritten(kind, once) == once) return;
    } catch (const gkArchive::Errors&) {
        throw std::logic_error("what was written is not read: " + kind);
    }
    throw std::logic_error("what was written is not what is read: " + kind);
}

} // namespace hostile
