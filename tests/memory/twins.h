// What shapes must still answer after a failure.
#ifndef GK_TESTS_MEMORY_TWINS_H
#define GK_TESTS_MEMORY_TWINS_H

#include "cntr/regionst.h"
#include "tests/support/answer.h"
#include "tests/support/kept_results.h"
#include "tests/support/outlines.h"

#include <gtest/gtest.h>
#include <vector>

namespace memory {

// A shape of equal value, which shares holes or regions with this one, has equal answers.
void expectAnswersOfATwin(const gkContour& contour);
void expectAnswersOfATwin(const gkRegion& region);
void expectAnswersOfATwin(const gkRegionSet& set);

template <class Base, class Shape>
void expectEqualAnswers(const std::vector<Kept<Base>>& questions, const Shape& expected, const Shape& shape) {
    for (const Kept<Base>& question : questions) {
        question.ask(expected); // a centre with holes is another one from the second time on
        question.ask(shape);
        EXPECT_EQ(question.ask(expected), question.ask(shape)) << question.name;
    }
}

} // namespace memory

#endif
