// The list of what is measured; every group of rows adds its own.
#ifndef GK_BENCH_SUITE_H
#define GK_BENCH_SUITE_H

#include "bench/race.h"
#include "bench/shapes.h"

#include <functional>
#include <string>
#include <vector>

namespace bench {

// Enters the contestants for one operation on one shape.
using Enter = std::function<void(Race& race, Kind kind, std::size_t n)>;

struct Row {
    std::string operation;
    std::vector<Kind> kinds;
    std::vector<std::size_t> sizes; // empty: the sizes of the run
    std::vector<Mode> modes;
    Enter enter;
};

// Those that do not cross themselves.
inline const std::vector<Kind> kSimpleKinds = {Kind::eStar, Kind::eComb, Kind::eSpiral, Kind::eLattice,
                                               Kind::eCoin};

void addInsideRows(std::vector<Row>& rows);
void addProximityRows(std::vector<Row>& rows);
void addCrossingRows(std::vector<Row>& rows);
void addMeasureRows(std::vector<Row>& rows);
void addDirectionRows(std::vector<Row>& rows);
void addRepairRows(std::vector<Row>& rows);
void addSetRows(std::vector<Row>& rows);
void addArchiveRows(std::vector<Row>& rows);
void addSmallRows(std::vector<Row>& rows);

} // namespace bench

#endif
