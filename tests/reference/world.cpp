#include "tests/reference/world.h"

#include "cntr/moments.h"
#include "tests/reference/answer.h"

namespace {

using Json = nlohmann::json;
using Points = std::vector<gkVector<2>>;

// Names the contour's protected operations, to ask them of any contour.
struct Protected : gkContour {
    using gkContour::intersections;
    using gkContour::lineSegs;
    using gkContour::medianFeatureSize;
    using gkContour::validLine;
};

using IndexedQuery = Points (gkContour::*)(const gkLineSeg&, std::vector<int>&, bool) const;

gkContourDefs::DiameterMode diameterMode(const Json& step) {
    return static_cast<gkContourDefs::DiameterMode>(step.at("mode").get<int>());
}

Json errorNumber(const std::string& name) {
    if (name.find("EmptyContour") != std::string::npos)
        return answer::of(gkContourDefs::EmptyContour(L"").errorNumber());
    if (name.find("EmptyRegionSet") != std::string::npos)
        return answer::of(gkContourDefs::EmptyRegionSet(L"").errorNumber());
    if (name.find("BadParams") != std::string::npos)
        return answer::of(gkContourDefs::BadParams(L"").errorNumber());
    return answer::of(gkContourDefs::RegionCannotBeSetOpen(L"").errorNumber());
}

gkVector<2> probe(const Json& step) { return answer::vector(step.at("p")); }

} // namespace

Json World::ask(const Json& step) {
    // Each group answers the operations it knows and null for others.
    for (const auto group :
         {&World::makeEdgelets, &World::askEdgelets, &World::make, &World::askContour,
          &World::askContourProtected, &World::askFreeFunction, &World::askRegion, &World::askSet}) {
        Json answered = (this->*group)(step);
        if (!answered.is_null()) return answered;
    }
    throw NotBuilt(step.at("op").get<std::string>());
}

gkContour& World::contour(const Json& step, const char* key) {
    const auto shape = shapes_.find(step.at(key).get<std::string>());
    if (shape == shapes_.end() || shape->second.isNull()) throw NotBuilt("an object that was not built");
    return *shape->second;
}

gkRegion& World::region(const Json& step, const char* key) {
    auto* found = dynamic_cast<gkRegion*>(&contour(step, key));
    if (!found) throw NotBuilt("a region that was not built");
    return *found;
}

gkPtrHandle<gkRegion> World::regionHandle(const Json& name) {
    const Json step = {{"on", name}};
    return gkPtrHandle<gkRegion>(&region(step));
}

gkRegionSet& World::set(const Json& step, const char* key) {
    const auto found = sets_.find(step.at(key).get<std::string>());
    if (found == sets_.end() || found->second.isNull()) throw NotBuilt("a set that was not built");
    return *found->second;
}

gkRegion& World::filledRegion(const Json& step) {
    gkPtrHandle<gkContour>& shape = shapes_[step.at("into").get<std::string>()];
    if (shape.isNull()) shape = gkPtrHandle<gkRegion>(new gkRegion);
    return dynamic_cast<gkRegion&>(*shape);
}

gkRegionSet& World::filledSet(const Json& step) {
    gkPtrHandle<gkRegionSet>& found = sets_[step.at("into").get<std::string>()];
    if (found.isNull()) found = gkPtrHandle<gkRegionSet>(new gkRegionSet);
    return *found;
}

Json World::make(const Json& step) {
    const std::string op = step.at("op");
    if (!step.contains("as")) return nullptr;
    const std::string name = step.at("as");
    const auto label = [&] { return step.at("label").get<unsigned long>(); };
    const auto vertices = [&] { return answer::points(step.at("points")); };
    const auto mode = [&] { return static_cast<gkContourDefs::IntersectionMode>(step.at("mode").get<int>()); };
    // When the constructor throws, the name stands for nothing.
    const auto named = [&](auto construct) {
        shapes_.erase(name);
        sets_.erase(name);
        construct();
        return answer::nothing();
    };
    const auto shape = [&](auto* made) { shapes_[name] = gkPtrHandle<gkContour>(made); };
    if (op == "contour") {
        return named([&] { shape(new gkContour(vertices(), step.at("closed").get<bool>(), label())); });
    }
    if (op == "contourPolygon") return named([&] { shape(new gkContour(gkPolygon(vertices()), label())); });
    if (op == "contourCopy") return named([&] { shape(new gkContour(contour(step, "from"))); });
    if (op == "region") return named([&] { shape(new gkRegion(vertices(), mode())); });
    if (op == "regionPolygon") return named([&] { shape(new gkRegion(gkPolygon(vertices()), mode())); });
    if (op == "regionContour") return named([&] { shape(new gkRegion(contour(step, "from"), mode())); });
    if (op == "set") {
        return named([&] {
            std::vector<gkPtrHandle<gkRegion>> regions;
            for (const Json& region : step.at("regions")) regions.push_back(regionHandle(region));
            sets_[name] = gkPtrHandle<gkRegionSet>(new gkRegionSet(regions, mode()));
        });
    }
    if (op == "copy") {
        const std::string from = step.at("from");
        if (sets_.count(from))
            return named([&] { sets_[name] = gkPtrHandle<gkRegionSet>(new gkRegionSet(*sets_[from])); });
        if (const auto* source = dynamic_cast<const gkRegion*>(&contour(step, "from"))) {
            return named([&] { shape(new gkRegion(*source)); });
        }
        return named([&] { shape(new gkContour(contour(step, "from"))); });
    }
    shapes_.erase(name);
    sets_.erase(name);
    return nullptr;
}

Json World::askContour(const Json& step) {
    const std::string op = step.at("op");
    if (!step.contains("on") || !shapes_.count(step.at("on"))) return nullptr;
    gkContour& c = contour(step);
    if (op == "assign" && dynamic_cast<gkRegion*>(&c)) {
        dynamic_cast<gkRegion&>(c) = dynamic_cast<const gkRegion&>(contour(step, "from"));
    } else if (op == "assign" || op == "contourAssign") {
        c = contour(step, "from");
    } else if (op == "setPoints") {
        c.points(answer::points(step.at("points")));
    } else if (op == "isClosedSet") {
        c.isClosed(step.at("flag").get<bool>());
    } else if (op == "labelSet") {
        c.label(step.at("value").get<unsigned long>());
    } else if (op == "cvsSet") {
        c.cachedVectorSize(step.at("n").get<long>());
    } else if (op == "convexHull") {
        c.convexHull(filledRegion(step));
    } else if (op == "map") {
        gkPtrHandle<gkContour>& out = shapes_[step.at("into").get<std::string>()];
        if (out.isNull()) out = gkPtrHandle<gkContour>(new gkContour);
        c.map(answer::xform(step.at("xform")), *out);
    } else if (op == "points") {
        return answer::of(c.points());
    } else if (op == "isClosed") {
        return answer::of(c.isClosed());
    } else if (op == "label") {
        return answer::of(static_cast<long>(c.label()));
    } else if (op == "cvs") {
        return answer::of(c.cachedVectorSize());
    } else if (op == "polygon") {
        return answer::of(c.polygon().vertices());
    } else if (op == "equals") {
        return answer::of(c == contour(step, "other"));
    } else if (op == "length") {
        return answer::of(c.length());
    } else if (op == "meanPosition") {
        return answer::of(c.meanPosition());
    } else if (op == "encloseCircle") {
        return answer::of(c.encloseCircle(diameterMode(step)));
    } else if (op == "diameter") {
        return answer::of(c.diameter(diameterMode(step)));
    } else if (op == "extremalIndex") {
        return answer::of(c.extremalVertexIndex(gkRadian(answer::number(step.at("angle")))));
    } else if (op == "extremalPosition") {
        return answer::of(c.extremalVertexPosition(gkRadian(answer::number(step.at("angle")))));
    } else if (op == "encloseRect") {
        return answer::of(c.encloseRect(answer::xform(step.at("xform"))));
    } else if (op == "closestPoint") {
        return answer::of(c.closestPoint(probe(step), step.at("verticesOnly").get<bool>()));
    } else if (op == "closestVertexIndex") {
        return answer::of(c.closestVertexIndex(probe(step)));
    } else if (op == "distToPoint") {
        return answer::of(c.distToPoint(probe(step), step.at("verticesOnly").get<bool>()));
    } else if (op == "vertexIndex") {
        return answer::of(c.vertexIndex(probe(step), answer::number(step.at("tol_"))));
    } else if (op == "isectSeg") {
        return answer::of(c.intersections(answer::segment(step.at("seg")), step.at("includeEnds").get<bool>()));
    } else if (op == "isectContour") {
        return answer::of(c.intersections(contour(step, "other")));
    } else if (op == "isSelfIntersecting") {
        return answer::of(c.isSelfIntersecting());
    } else {
        return nullptr;
    }
    return answer::nothing();
}

Json World::askContourProtected(const Json& step) {
    const std::string op = step.at("op");
    if (!step.contains("on") || !shapes_.count(step.at("on"))) return nullptr;
    const gkContour& c = contour(step);
    if (op == "lineSegs") return answer::of((c.*(&Protected::lineSegs))());
    if (op == "validLine") return answer::of((c.*(&Protected::validLine))());
    if (op == "medianFeatureSize") return answer::of((c.*(&Protected::medianFeatureSize))());
    if (op == "isectSegIdx") {
        std::vector<int> indices;
        const IndexedQuery query = &Protected::intersections;
        (c.*query)(answer::segment(step.at("seg")), indices, step.at("includeEnds").get<bool>());
        return answer::of(indices);
    }
    return nullptr;
}

Json World::askFreeFunction(const Json& step) {
    const std::string op = step.at("op");
    if (op == "gfArea") return answer::of(gf_Area(answer::points(step.at("points"))));
    if (op == "gfCom") return answer::of(gf_CenterOfMass(answer::points(step.at("points"))));
    if (op == "gfInertia") return answer::of(gf_InertiaDataPolygon(answer::points(step.at("points"))));
    if (op == "inertiaAdd") return answer::of(answer::inertia(step.at("a")) + answer::inertia(step.at("b")));
    if (op == "ellipse") return answer::of(gf_EllipseFromInertiaData(answer::inertia(step.at("inertia"))));
    if (op == "errorNumber") return errorNumber(step.at("cls"));
    if (op == "stdDev") {
        std::vector<double> values;
        for (const Json& value : step.at("values")) values.push_back(answer::number(value));
        return answer::of(gf_StdDev(values));
    }
    return nullptr;
}

Json World::askRegion(const Json& step) {
    const std::string op = step.at("op");
    if (!step.contains("on") || !shapes_.count(step.at("on"))) return nullptr;
    if (!dynamic_cast<gkRegion*>(&contour(step))) return nullptr;
    gkRegion& r = region(step);
    const auto h = [&] { return step.at("h").get<bool>(); };
    const auto flag = [&](const char* key) { return step.at(key).get<bool>(); };
    if (op == "holesSet") {
        std::vector<gkPtrHandle<gkRegion>> holes;
        for (const Json& hole : step.at("holes")) holes.push_back(regionHandle(hole));
        r.holes(holes);
        return answer::nothing();
    }
    if (op == "holesCount") return answer::of(static_cast<long>(r.holes().size()));
    if (op == "area") return answer::of(r.area(h()));
    if (op == "centerOfMass") return answer::of(r.centerOfMass(h()));
    if (op == "inertiaMatrix") return answer::of(r.inertiaMatrix(h()));
    if (op == "inside") return answer::of(r.inside(probe(step), h()));
    if (op == "closestVertexIndexH") {
        long hole = 7;
        const long vertex = r.closestVertexIndex(probe(step), h(), hole);
        return answer::of(std::vector<int>{static_cast<int>(vertex), static_cast<int>(hole)});
    }
    if (op == "closestPointH") return answer::of(r.closestPoint(probe(step), flag("verticesOnly"), h()));
    if (op == "distToPointH") {
        return answer::of(r.distToPoint(probe(step), flag("verticesOnly"), h(), flag("zeroInside")));
    }
    if (op == "isectSegH") {
        return answer::of(r.intersections(answer::segment(step.at("seg")), flag("includeEnds"), h()));
    }
    if (op == "isectContourH") return answer::of(r.intersections(contour(step, "other"), h()));
    if (op == "regionEquals") return answer::of(r == region(step, "other"));
    if (op == "regularize") {
        r.regularize(filledRegion(step));
    } else if (op == "outerHull") {
        r.outerHull(filledRegion(step));
    } else if (op == "regionMap") {
        r.map(answer::xform(step.at("xform")), filledRegion(step));
    } else {
        return nullptr;
    }
    return answer::nothing();
}

Json World::askSet(const Json& step) {
    const std::string op = step.at("op");
    if (!step.contains("on") || !sets_.count(step.at("on"))) return nullptr;
    gkRegionSet& s = set(step);
    const auto h = [&] { return step.at("h").get<bool>(); };
    const auto flag = [&](const char* key) { return step.at(key).get<bool>(); };
    const auto mode = [&] { return static_cast<gkContourDefs::IntersectionMode>(step.at("mode").get<int>()); };
    const auto member = [&] { return s.regions().at(step.at("index").get<std::size_t>()); };
    if (op == "setSize") return answer::of(static_cast<long>(s.regions().size()));
    if (op == "setPointsOf") return answer::of(member()->points());
    if (op == "setLabelOf") return answer::of(static_cast<long>(member()->label()));
    if (op == "setHolesOf") return answer::of(static_cast<long>(member()->holes().size()));
    if (op == "setIs") return answer::of(member() == regionHandle(step.at("region")));
    if (op == "setEquals") return answer::of(s == set(step, "other"));
    if (op == "setArea") return answer::of(s.area(h()));
    if (op == "setCenterOfMass") return answer::of(s.centerOfMass(h()));
    if (op == "setInertiaMatrix") return answer::of(s.inertiaMatrix(h()));
    if (op == "setInside") return answer::of(s.inside(probe(step), h()));
    if (op == "setDist") {
        return answer::of(s.distToPoint(probe(step), flag("verticesOnly"), h(), flag("zeroInside")));
    }
    if (op == "setEncloseRect") return answer::of(s.encloseRect(answer::xform(step.at("xform"))));
    if (op == "setSelfIntersecting") return answer::of(s.isSelfIntersecting());
    if (op == "cvs") return answer::of(s.cachedVectorSize());
    if (op == "setRegularize") {
        s.regularize(filledSet(step));
    } else if (op == "setOuterHull") {
        s.outerHull(filledSet(step));
    } else if (op == "setAdd") {
        s.add(regionHandle(step.at("region")), mode());
    } else if (op == "setRegions") {
        std::vector<gkPtrHandle<gkRegion>> regions;
        for (const Json& region : step.at("regions")) regions.push_back(regionHandle(region));
        s.regions(regions, mode());
    } else if (op == "cvsSet") {
        s.cachedVectorSize(step.at("n").get<long>());
    } else {
        return nullptr;
    }
    return answer::nothing();
}
