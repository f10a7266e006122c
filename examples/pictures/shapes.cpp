#include "shapes.h"

Points bean() {
    return {{38, 96},  {30, 66},   {48, 36},   {86, 24},   {122, 34},  {158, 22}, {196, 38},
            {212, 74}, {202, 112}, {168, 138}, {134, 116}, {102, 112}, {70, 124}};
}

Points path() { return {{24, 120}, {60, 44}, {104, 92}, {150, 26}, {176, 112}, {214, 84}}; }

gkRegion holed() {
    gkRegion region(bean());
    region.holes({gkPtrHandle_const<gkRegion>(new gkRegion({{142, 42}, {184, 46}, {194, 100}, {150, 106}}))});
    return region;
}

Points eight() { return {{30, 30}, {30, 130}, {210, 30}, {210, 130}}; }

Points twice() {
    return {{200, 110}, {200, 146}, {40, 146}, {40, 18}, {150, 18}, {150, 110}, {90, 110}, {90, 60}, {200, 60}};
}
