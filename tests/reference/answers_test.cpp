// Answers that an independent implementation of the same definitions gave, step by step.
//
// tests/data/answers.json holds the cases; GKCNTR_ANSWERS names another file of the same form.
#include "tests/reference/runner.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

namespace {

nlohmann::json loadCases() {
    const char* other = std::getenv("GKCNTR_ANSWERS");
    std::ifstream in(other ? other : GK_TEST_DATA "/answers.json");
    return nlohmann::json::parse(in).at("cases");
}

const nlohmann::json& cases() {
    static const nlohmann::json all = loadCases();
    return all;
}

class Answers : public testing::TestWithParam<std::size_t> {};

std::string caseName(const testing::TestParamInfo<std::size_t>& info) {
    std::string name = cases()[info.param].at("id");
    for (char& c : name) {
        if (c == '-') c = '_';
    }
    return name;
}

} // namespace

TEST_P(Answers, Agree) {
    const nlohmann::json& entry = cases()[GetParam()];
    Runner runner;
    int hard = 0;
    int step = 0;
    for (const nlohmann::json& asked : entry.at("steps")) {
        const bool soft = asked.value("soft", false);
        const StepResult result = runner.run(asked);
        if (result.outcome == StepResult::eNotBuilt) {
            ADD_FAILURE() << "step " << step << " asks for what the test does not know: " << result.difference;
        } else if (soft && result.outcome == StepResult::eDiffers) {
            std::printf("soft step %d of %s differs: %s: %s\n", step, entry.at("id").get<std::string>().c_str(),
                        asked.at("op").get<std::string>().c_str(), result.difference.c_str());
        } else {
            ++hard;
            EXPECT_EQ(StepResult::eAgrees, result.outcome) << "step " << step << " " << asked.dump() << "\n"
                                                           << result.difference;
        }
        ++step;
    }
    RecordProperty("agreeing_steps", hard);
}

INSTANTIATE_TEST_SUITE_P(Independent, Answers, testing::Range<std::size_t>(0, cases().size()), caseName);
