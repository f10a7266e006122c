#include "tests/reference/runner.h"

#include "platform/core/object/errors.h"

namespace {

using Json = nlohmann::json;

std::string narrow(const std::wstring& text) { return std::string(text.begin(), text.end()); }

Json thrown(const char* name, const gkException& error) {
    return Json{{"throws", Json::array({name, narrow(error.message())})}};
}

Json askedOrThrown(World& world, const Json& step) {
    try {
        return world.ask(step);
    } catch (const gkContourDefs::EmptyContour& error) {
        return thrown("gkContourDefs::EmptyContour", error);
    } catch (const gkContourDefs::EmptyRegionSet& error) {
        return thrown("gkContourDefs::EmptyRegionSet", error);
    } catch (const gkContourDefs::BadParams& error) {
        return thrown("gkContourDefs::BadParams", error);
    } catch (const gkContourDefs::RegionCannotBeSetOpen& error) {
        return thrown("gkContourDefs::RegionCannotBeSetOpen", error);
    } catch (const gkMathError::Singular& error) {
        return thrown("gkMathError::Singular", error);
    } catch (const gkBadPointer& error) {
        return thrown("gkBadPointer", error);
    } catch (const gkPel::BadWindow& error) {
        return thrown("gkPel::BadWindow", error);
    }
}

} // namespace

StepResult Runner::run(const Json& step) {
    Json given;
    try {
        given = askedOrThrown(world_, step);
    } catch (const NotBuilt& missing) {
        return {StepResult::eNotBuilt, missing.what()};
    }
    Json wanted = step.at("want");
    // The texts of the platform's own errors are its own business.
    if (wanted.contains("throws") && given.contains("throws") &&
        wanted["throws"][0].get<std::string>().rfind("gkContourDefs::", 0) != 0) {
        wanted["throws"][1] = given["throws"][1];
    }
    const double tolerance = step.value("tol", 0.0);
    const std::string difference = answer::difference(wanted, given, tolerance, step.value("cmp", "") == "set");
    return {difference.empty() ? StepResult::eAgrees : StepResult::eDiffers, difference};
}
