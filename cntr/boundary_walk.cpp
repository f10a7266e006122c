#include "cntr/boundary_walk.h"

#include "cntr/contour_defs.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <optional>

namespace {

// The first edges of most outlines can start; of those behind them so many are tried together.
constexpr long kEdgesTogether = 8;

// Also true of equal NaNs and false of 0.0 and -0.0: the walk's steps follow from the bits.
bool sameBits(double a, double b) {
    std::uint64_t left = 0;
    std::uint64_t right = 0;
    std::memcpy(&left, &a, sizeof left);
    std::memcpy(&right, &b, sizeof right);
    return left == right;
}

// Segment i + 1 is the edge from vertex i to i + 1.
bool canStart(gk_Outline& outline, long i, double probe, gk_RaysMet& metByA, gk_RaysMet& metByB) {
    const gkVector<2>& from = outline[i];
    const gkVector<2>& to = outline[i + 1];
    const gkVector<2> middle = (from + to) / 2.0;
    const gkVector<2> along = (from - to).unit();
    const gkVector<2> across(-along.y(), along.x());
    const gkVector<2> a = middle + across * probe;
    const gkVector<2> b = middle - across * probe;
    // The probe meets the edge alone, and the edge meets its two neighbours at its ends alone.
    return outline.hasCrossingsBeside(i + 1, gkLineSeg(a, b), true, 1) &&
           outline.hasCrossingsBeside(i + 1, gkLineSeg(from, to), true, 2) &&
           (outline.seesOutside(a, metByA) || outline.seesOutside(b, metByB));
}

// Where the walk stands. Its next step depends on nothing else.
struct WalkState {
    gkVector<2> point;
    long position;
    bool forward;

    bool operator==(const WalkState& other) const {
        return position == other.position && forward == other.forward && sameBits(point.x(), other.point.x()) &&
               sameBits(point.y(), other.point.y());
    }
};

// The state stands on segment `position`, at one end or where it was crossed.
void step(gk_Outline& outline, WalkState& state) {
    const long n = outline.size();
    const long before = gk_WrapOnce(state.position - 1, n);
    const gkVector<2>& target = outline[state.forward ? state.position : before];
    const bool isWhole = state.point == outline[state.forward ? before : state.position];
    if (!isWhole || !outline.isUncrossed(state.position)) {
        const std::optional<gk_Crossing> met =
            outline.firstCrossingBeside(state.position, gkLineSeg(state.point, target), false);
        if (met) {
            state = {met->point, met->segment, !state.forward};
            return;
        }
    }
    state.point = target;
    state.position = gk_WrapOnce(state.forward ? state.position + 1 : state.position - 1, n);
}

// Brent's method: a state met again proves a loop. The state to compare with is replaced after 1, 2, 4, ...
// steps, so any loop is found within a few of its lengths, with one state kept.
class LoopDetector {
public:
    explicit LoopDetector(const WalkState& first) : kept_(first) {}

    bool meetsAgain(const WalkState& state) {
        if (state == kept_) return true;
        if (++steps_ == limit_) {
            kept_ = state;
            limit_ *= 2;
            steps_ = 0;
        }
        return false;
    }

private:
    WalkState kept_;
    unsigned long long steps_ = 0;
    unsigned long long limit_ = 1;
};

gk_Box boxOfEdges(const gk_Outline& outline, long first) {
    gk_Box box = gk_Box::of(outline[first], outline[first]);
    const long last = std::min(first + kEdgesTogether, outline.size() - 1);
    for (long i = first + 1; i <= last; ++i) box = box.enclosing(gk_Box::of(outline[i], outline[i]));
    return box;
}

} // namespace

long gk_StartEdge(gk_Outline& outline, double probe) {
    outline.gatherCloseSegments(1.01 * std::max(probe, kTouch));
    gk_RaysMet metByA;
    gk_RaysMet metByB;
    for (long i = 0; i < outline.size() - 1; ++i) {
        if (i % kEdgesTogether == 1) outline.expectPlaces(boxOfEdges(outline, i).grownBy(1.01 * probe));
        if (canStart(outline, i, probe, metByA, metByB)) return i;
    }
    throw gkContourDefs::BadParams(L"invalid contour");
}

std::vector<gkVector<2>> gk_WalkBoundary(gk_Outline& outline, long start) {
    const gkVector<2> home = outline[start];
    WalkState state{home, start + 1, true};
    LoopDetector loop(state);
    std::vector<gkVector<2>> walked;
    do {
        step(outline, state);
        // A walk that ends never stands twice in one state, so none that ends is cut short.
        if (loop.meetsAgain(state)) throw gkContourDefs::BadParams(L"invalid contour");
        walked.push_back(state.point);
    } while (state.point != home);
    return walked;
}
