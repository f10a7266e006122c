// The files the demo leaves behind.
#ifndef GK_EXAMPLES_DEMO_RESULTS_H
#define GK_EXAMPLES_DEMO_RESULTS_H

#include "examples/demo/options.h"
#include "examples/demo/picture.h"
#include "examples/demo/progress.h"

// Writes every file that the options name and tells of each on the standard output. Throws what writing throws.
void writeResults(const Options& options, const Scene& scene, Progress& progress);

#endif
