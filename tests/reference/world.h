// The named objects of a case and the operations that can be asked of them.
#ifndef GK_TESTS_REFERENCE_WORLD_H
#define GK_TESTS_REFERENCE_WORLD_H

#include "cntr/regionst.h"
#include "platform/core/transform/xform_base.h"

#include <nlohmann/json.hpp>

#include <map>
#include <memory>
#include <stdexcept>
#include <string>

// The step asks for an operation, or for an object, that this test does not know.
struct NotBuilt : std::runtime_error {
    using std::runtime_error::runtime_error;
};

class World {
public:
    // Runs the step and returns its answer; what the operation throws passes through.
    nlohmann::json ask(const nlohmann::json& step);

private:
    gkContour& contour(const nlohmann::json& step, const char* key = "on");
    gkRegion& region(const nlohmann::json& step, const char* key = "on");
    gkPtrHandle<gkRegion> regionHandle(const nlohmann::json& name);
    gkRegionSet& set(const nlohmann::json& step, const char* key = "on");
    gkRegion& filledRegion(const nlohmann::json& step);
    gkRegionSet& filledSet(const nlohmann::json& step);
    nlohmann::json make(const nlohmann::json& step);
    nlohmann::json askContour(const nlohmann::json& step);
    nlohmann::json askContourProtected(const nlohmann::json& step);
    nlohmann::json askFreeFunction(const nlohmann::json& step);
    nlohmann::json askRegion(const nlohmann::json& step);
    nlohmann::json askSet(const nlohmann::json& step);
    nlohmann::json makeEdgelets(const nlohmann::json& step);
    nlohmann::json askEdgelets(const nlohmann::json& step);
    nlohmann::json askEdgeletSet(const nlohmann::json& step);
    static void refusedByEdgelets(const std::string& op, gkContour& shape);

    std::map<std::string, gkPtrHandle<gkContour>> shapes_;
    std::map<std::string, gkPtrHandle<gkRegionSet>> sets_;
    std::map<std::string, gkPtrHandle_const<gk2XformBase>> xforms_;
};

#endif
