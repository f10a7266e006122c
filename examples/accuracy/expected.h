// What theory says of the errors.
#ifndef GK_EXAMPLES_ACCURACY_EXPECTED_H
#define GK_EXAMPLES_ACCURACY_EXPECTED_H

// Standard deviation of all that blurs an edge before it is looked for: the lens, the pixel's square (variance
// 1/12), the Gaussian of the gradient.
double blurSigma();

// Where the gradient of a blurred disc is steepest, less the disc's radius: nearly -sigma^2 / (2 r).
double curvatureBias(double radius);

// How much the polygon's sides, whose mean square is `chordSquare`, take from the diameter of the disc of the
// same area.
double chordBias(double radius, double chordSquare);

// Standard deviation of one edge point across the edge.
double pointSpread(double noise);

// Standard deviation of the mean diameter over all edge points of a disc.
double diameterSpread(double radius, double noise);

#endif
