#include "bench/floors.h"

#include <map>

namespace bench {

namespace {

struct Pair {
    std::optional<Floor> fresh;
    std::optional<Floor> repeated;
};

Floor ofPeer(double ratio) { return {ratio, Against::eBestPeer}; }
Floor ofPlain(double ratio) { return {ratio, Against::ePlain}; }

const std::map<std::string, Pair>& table() {
    static const std::map<std::string, Pair> floors = {
        {"inside", {ofPeer(1.5), ofPeer(0.5)}},
        {"inside_with_holes", {ofPeer(1.5), ofPeer(0.5)}},
        {"closest_point", {ofPeer(1.0), ofPeer(0.4)}},
        {"distance", {ofPeer(1.0), ofPeer(0.4)}},
        {"closest_vertex", {ofPlain(1.0), ofPeer(0.7)}},
        {"vertices_within", {ofPeer(0.4), ofPeer(1.0)}},
        {"crossings_short", {ofPlain(1.0), ofPeer(0.4)}},
        {"crossings_long", {ofPlain(1.0), ofPeer(0.8)}},
        {"crossings_of_two", {ofPeer(0.4), {}}},
        {"crosses_itself", {ofPeer(0.4), {}}},
        {"diameter", {ofPeer(0.45), {}}},
        {"convex_hull", {ofPeer(0.45), {}}},
        {"enclosing_box", {ofPeer(0.4), ofPeer(0.1)}},
        {"extremal_vertex", {ofPlain(1.0), ofPlain(0.1)}},
        {"area", {ofPeer(1.0), {}}},
        {"length", {ofPeer(1.0), {}}},
        {"mean_position", {ofPeer(1.0), {}}},
        {"centre_of_mass", {ofPeer(2.0), {}}},
        {"second_moments", {ofPeer(2.0), {}}},
        {"ellipse_fit", {ofPeer(0.2), {}}},
        {"regularize", {ofPeer(1.0), {}}},
        {"outer_hull", {ofPeer(1.0), {}}},
        {"merge_of_two", {ofPeer(1.0), {}}},
        {"archive_write", {ofPeer(0.7), {}}},
        {"archive_read", {ofPeer(0.7), {}}},
        {"set_inside", {{}, ofPeer(1.0)}},
        {"set_distance", {{}, ofPeer(1.0)}},
        {"set_crosses_itself", {ofPeer(1.0), {}}},
        {"million_build", {ofPeer(1.0), {}}},
        {"million_area", {ofPeer(1.0), {}}},
        {"million_box", {ofPeer(1.0), {}}},
        {"million_inside", {ofPeer(1.0), {}}},
        {"million_destroy", {ofPeer(1.0), {}}},
    };
    return floors;
}

// Where every hierarchy over consecutive segments is worth nothing.
bool isHard(Kind kind) { return kind == Kind::eComb || kind == Kind::eSpiral; }

std::optional<Floor> hardFloor(const std::string& operation, Mode mode) {
    const bool isRepeated = mode == Mode::eRepeated;
    if (isRepeated && (operation == "inside" || operation == "closest_point")) return ofPeer(0.1);
    if (operation == "crosses_itself") return ofPeer(0.5);
    return {};
}

bool beginsWith(const std::string& operation, const char* text) { return operation.rfind(text, 0) == 0; }

} // namespace

std::optional<Floor> floorOf(const std::string& operation, Kind kind, std::size_t n, Mode mode) {
    const auto found = table().find(operation);
    if (found == table().end()) return {};
    const auto& own = mode == Mode::eFresh ? found->second.fresh : found->second.repeated;
    if (beginsWith(operation, "million_")) return own;
    if (beginsWith(operation, "set_")) return n >= 10000 ? own : std::nullopt;
    if (n <= 100) return ofPlain(1.1);
    if (n == 100000 && isHard(kind)) {
        if (const auto hard = hardFloor(operation, mode)) return hard;
    }
    if (n == 1000 || n == 100000 || kind == Kind::eCoin) return own;
    return {};
}

} // namespace bench
