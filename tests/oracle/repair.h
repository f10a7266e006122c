// Repair of closed outlines that cross themselves: the walk, the cutting, the dropping, the joining and the
// merging, each as its definition reads, starting over after every change.
#ifndef GK_TESTS_ORACLE_REPAIR_H
#define GK_TESTS_ORACLE_REPAIR_H

#include "tests/oracle/oracle.h"

namespace oracle {

// Two reasons for one error of the library; the statistics tell them apart.
struct NoStartEdge : Refusal {
    NoStartEdge() : Refusal{"BadParams"} {}
};
struct EndlessWalk : Refusal {
    EndlessWalk() : Refusal{"BadParams"} {}
};

// The first edge i, from vertex i to i + 1, that can start the walk.
long startEdge(const Points& points);
// All points met from the start edge on until its first vertex comes again; remembers every state it was in.
Points walk(const Points& points, long start);

std::vector<Points> cutLoops(const Points& walked);
std::vector<Points> dropInnerLoops(std::vector<Points> loops);
std::vector<Points> joinLoops(std::vector<Points> loops);

// The loops left of an outline that crosses itself; one of them is the rule.
std::vector<Points> hullLoops(const Points& points);

Points regularize(const Points& points);
Points outerHull(const Points& points);

Points splice(const Points& one, const Points& other);

bool isSelfIntersecting(const std::vector<Points>& set);
std::vector<Points> mergeOnce(std::vector<Points> set);
std::vector<Points> regularize(const std::vector<Points>& set);
std::vector<Points> outerHull(const std::vector<Points>& set);

} // namespace oracle

#endif
