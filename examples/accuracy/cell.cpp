#include "examples/accuracy/cell.h"

#include "examples/accuracy/disc_picture.h"

#include <cmath>
#include <vector>

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr int kMargin = 10; // pixels around the disc, out of reach of every filter

Error errorOf(const std::vector<Trial>& trials, double Trial::*measure, double truth) {
    const auto count = static_cast<double>(trials.size());
    Error error;
    for (const Trial& trial : trials) error.bias += (trial.*measure - truth) / count;
    double squares = 0.0;
    for (const Trial& trial : trials) squares += std::pow(trial.*measure - truth - error.bias, 2);
    error.spread = std::sqrt(squares / (count - 1.0));
    return error;
}

std::vector<Trial> runTrials(double radius, double noise, int phases) {
    // A seed for each cell; numbers do not depend on which cells were measured before.
    gkRandomUniform random(static_cast<unsigned long>(1000.0 * radius + noise));
    const int side = 2 * (static_cast<int>(std::ceil(radius)) + kMargin);
    std::vector<Trial> trials;
    for (int i = 0; i < phases; ++i) {
        for (int k = 0; k < phases; ++k) {
            const gkVector<2> phase(static_cast<double>(i) / phases, static_cast<double>(k) / phases);
            const Disc disc = {gkVector<2>(0.5 * side, 0.5 * side) + phase, radius};
            trials.push_back(measureDisc(pictureOf(disc, side, noise, random)));
        }
    }
    return trials;
}

} // namespace

Cell measureCell(double radius, double noise, int phases) {
    const std::vector<Trial> trials = runTrials(radius, noise, phases);
    Cell cell;
    cell.radius = radius;
    cell.noise = noise;
    cell.pictures = phases * phases;
    cell.fitted = errorOf(trials, &Trial::fitted, 2.0 * radius);
    cell.fromArea = errorOf(trials, &Trial::fromArea, 2.0 * radius);
    cell.farthest = errorOf(trials, &Trial::farthest, 2.0 * radius);
    cell.area = errorOf(trials, &Trial::area, kPi * radius * radius);
    cell.chordSquare = errorOf(trials, &Trial::chordSquare, 0.0).bias;
    return cell;
}
