// What is counted: fixed work, each kind under one name.
#ifndef GK_TESTS_INSTRUCTIONS_WORKLOAD_H
#define GK_TESTS_INSTRUCTIONS_WORKLOAD_H

#include "tests/gen/large.h"

#include <functional>
#include <string>
#include <vector>

namespace instructions {

using gen::Points;

// Shapes and questions are made by prepare(), which is not counted; what it returns is.
struct Workload {
    std::string name;
    std::function<std::function<void()>()> prepare;
};

using Workloads = std::vector<Workload>;

Workloads proximityWorkloads();
Workloads crossingWorkloads();
Workloads measureWorkloads();
Workloads regionWorkloads();
Workloads setWorkloads();

} // namespace instructions

#endif
