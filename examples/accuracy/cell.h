// Many pictures of discs of one size with one noise.
#ifndef GK_EXAMPLES_ACCURACY_CELL_H
#define GK_EXAMPLES_ACCURACY_CELL_H

#include "examples/accuracy/trial.h"

struct Error {
    double bias = 0.0;   // mean of measured less true
    double spread = 0.0; // standard deviation
};

struct Cell {
    double radius = 0.0;
    double noise = 0.0;
    int pictures = 0;
    Error fitted; // these three of the diameter, in pixels
    Error fromArea;
    Error farthest;
    Error area; // in square pixels
    double chordSquare = 0.0;
};

// Measures discs whose centres lie at `phases` times `phases` places within a pixel, evenly spaced.
Cell measureCell(double radius, double noise, int phases);

#endif
