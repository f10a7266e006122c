// What stops the demo, told in one sentence.
#ifndef GK_EXAMPLES_DEMO_FAILURE_H
#define GK_EXAMPLES_DEMO_FAILURE_H

#include <stdexcept>

struct Failure : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// The command line cannot be understood; the exit status is 2 then instead of 1.
struct BadCommandLine : Failure {
    using Failure::Failure;
};

#endif
