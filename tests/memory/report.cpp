// Says at the end how much was tried.
#include "tests/memory/failing_new.h"

#include <gtest/gtest.h>
#include <iostream>

namespace {

class Report : public testing::Environment {
    void TearDown() override { std::cout << failedRequests() << " times a request for memory has failed\n"; }
};

const testing::Environment* const kReport = testing::AddGlobalTestEnvironment(new Report);

} // namespace
