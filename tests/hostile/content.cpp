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

// Regions that handles lead to. All are held until the last one has let go of its own handles, so that nothing
// is freed while it is being walked.
class Regions {
public:
    void collect(const gkRepBase* object) {
        if (const auto* region = dynamic_cast<const gkRegion*>(object)) collectRegion(region);
        if (const auto* set = dynamic_cast<const gkRegionSet*>(object)) {
            for (const auto& region : set->regions()) collect(region.rep());
        }
    }
    void untie() {
        for (const gk_RepHold& region : found_) const_cast<gkRepBase*>(region.get())->forgetHandles();
        found_.clear();
    }

private:
    void collectRegion(const gkRegion* region) {
        if (!known_.insert(region).second) return;
        found_.emplace_back(region);
        for (const auto& hole : region->holes()) collect(hole.rep());
    }

    std::set<const gkRegion*> known_;
    std::vector<gk_RepHold> found_;
};

template <class Shape> class ShapeContent : public Content {
public:
    void pass(gkArchive& archive) override {
        archive || static_cast<gkPersistent&>(inPlace_);
        archive || shared_;
    }
    void untie() override {
        Regions regions;
        if (const auto* region = dynamic_cast<const gkRegion*>(static_cast<gkRepBase*>(&inPlace_))) {
            for (const auto& hole : region->holes()) regions.collect(hole.rep());
        } else {
            regions.collect(&inPlace_);
        }
        regions.collect(shared_.rep());
        regions.untie();
    }

private:
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
    void untie() override {
        Regions regions;
        for (const auto& object : owned_) {
            const auto* const rep = dynamic_cast<const gkRepBase*>(object.get());
            // The owner's pointer is no handle, so the object itself must not be held.
            if (const auto* region = dynamic_cast<const gkRegion*>(rep)) {
                for (const auto& hole : region->holes()) regions.collect(hole.rep());
            } else {
                regions.collect(rep);
            }
        }
        regions.untie();
    }

private:
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
    void untie() override {
        Regions regions;
        for (const auto& contour : contours_) regions.collect(contour.rep());
        for (const auto& set : sets_) regions.collect(set.rep());
        for (const auto& hole : region_.holes()) regions.collect(hole.rep());
        regions.untie();
    }

private:
    std::vector<gkPtrHandle<gkContour>> contours_;
    std::vector<gkPtrHandle_const<gkRegionSet>> sets_;
    std::vector<gkPtrHandle_const<gk2XformBase>> transforms_;
    gkRegion region_;
};

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
