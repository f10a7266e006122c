// Questions to shapes with arguments taken from bytes.
#ifndef GK_TESTS_FUZZ_QUESTIONS_H
#define GK_TESTS_FUZZ_QUESTIONS_H

#include "tests/fuzz/target.h"
#include "tests/support/answer.h"

#include <functional>
#include <vector>

class gkContour;
class gkRegion;
class gkRegionSet;

namespace fuzz {

template <class Shape> struct Question {
    std::string name;
    std::function<Answer(const Shape&)> ask;
};

// Any of those whose answer does not depend on what has been asked before; `like` is the shape whose vertices
// the arguments come near.
Question<gkContour> contourQuestion(Source& source, const gkContour& like);
Question<gkRegion> regionQuestion(Source& source, const gkRegion& like);
Question<gkRegionSet> setQuestion(Source& source, const gkRegionSet& like);

// All of those whose results are kept.
std::vector<Question<gkContour>> keptQuestions(const gkContour& like);
std::vector<Question<gkRegion>> keptQuestions(const gkRegion& like);
std::vector<Question<gkRegionSet>> keptQuestions(const gkRegionSet& like);

} // namespace fuzz

#endif
