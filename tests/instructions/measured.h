// The function whose instructions are counted; the counter finds it by its name.
#ifndef GK_TESTS_INSTRUCTIONS_MEASURED_H
#define GK_TESTS_INSTRUCTIONS_MEASURED_H

#include <functional>

extern "C" void gk_measured(const std::function<void()>& work);

#endif
