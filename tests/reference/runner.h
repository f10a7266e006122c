// Runs one step of a case on named objects and compares the answer with the wanted one.
#ifndef GK_TESTS_REFERENCE_RUNNER_H
#define GK_TESTS_REFERENCE_RUNNER_H

#include "tests/reference/answer.h"
#include "tests/reference/world.h"

#include <nlohmann/json.hpp>

#include <string>

struct StepResult {
    enum Outcome { eAgrees, eDiffers, eNotBuilt };
    Outcome outcome;
    std::string difference;
};

class Runner {
public:
    StepResult run(const nlohmann::json& step);

private:
    World world_;
};

#endif
