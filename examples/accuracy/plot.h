// The cells as a picture.
#ifndef GK_EXAMPLES_ACCURACY_PLOT_H
#define GK_EXAMPLES_ACCURACY_PLOT_H

#include "examples/accuracy/cell.h"

#include <filesystem>
#include <vector>

// Two diagrams over the radius: how much too small diameters are without noise, and how they spread with it.
// Dots are measured, lines expected. Written as SVG; throws gkUITablet::CannotWrite.
void savePlot(const std::filesystem::path& file, const std::vector<Cell>& cells);

#endif
