#include "cntr/region.h"
#include "tests/fuzz/repair_laws.h"
#include "tests/fuzz/target.h"
#include "tests/oracle/repair.h"
#include "tests/support/answer.h"
#include "tests/support/repair_access.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::vector<fuzz::Points> outlines = fuzz::outlinesFrom(data, size);
    if (outlines.size() < 2) return 0;
    const gkRegion one(outlines[0]);
    const gkRegion other(outlines[1]);
    const Answer ours = answer([&] {
        gkRegion result;
        splice(one, other, result);
        const std::size_t expected = outlines[0].size() + outlines[1].size() + 2;
        fuzz::demand(result.points().size() == expected, "the crossing twice and every vertex once");
        fuzz::demand(result.isClosed() && result.holes().empty(), "a closed outline without holes");
        return result.points();
    });
    fuzz::demandEqual(answer([&] { return oracle::splice(outlines[0], outlines[1]); }), ours, "the splice");
    return 0;
}
