// A file of its own, so that no caller takes the function in.
#include "tests/instructions/measured.h"

void gk_measured(const std::function<void()>& work) { work(); }
