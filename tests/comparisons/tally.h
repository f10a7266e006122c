// How many answers of one operation were held to its definition, and the first that differs.
#ifndef GK_TESTS_COMPARISONS_TALLY_H
#define GK_TESTS_COMPARISONS_TALLY_H

#include "tests/support/answer.h"

#include <cstddef>
#include <cstdint>
#include <ostream>
#include <string>
#include <type_traits>

namespace comparisons {

// The answer of `ask`, which returns a value, or adds values to the answer it is handed, or throws.
template <class Ask> Answer answerOf(Ask& ask) {
    if constexpr (std::is_invocable_v<Ask&, Answer&>) {
        Answer result;
        try {
            ask(result);
        } catch (...) {
            result = Answer();
            result.error = currentError();
        }
        return result;
    } else {
        return answer(ask);
    }
}

class Tally {
public:
    Tally(std::string operation, std::ostream& out) : operation_(std::move(operation)), out_(out) {}

    // The shape that is asked from now on.
    void shape(const std::string& kind, std::uint64_t seed, std::size_t size);

    // One comparison. `what` and the values of the question are told when the answers differ; only the first
    // difference is.
    template <class Define, class Ask, class... Values>
    void compare(const char* what, Define define, Ask ask, const Values&... values) {
        if (differs_) return;
        const Answer expected = answerOf(define);
        const Answer found = answerOf(ask);
        ++comparisons_;
        if (!expected.error.empty()) ++errors_;
        if (expected == found) return;
        Answer question;
        (question.add(values), ...);
        tellDifference(what, question, expected, found);
    }
    // An error that no definition has came up.
    void tellUnknownError(const std::string& error);

    std::uint64_t comparisons() const { return comparisons_; }
    std::uint64_t errors() const { return errors_; }
    std::uint64_t shapes() const { return shapes_; }
    bool differs() const { return differs_; }

private:
    void tellDifference(const char* what, const Answer& question, const Answer& expected, const Answer& found);
    void tellShape();

    std::string operation_;
    std::ostream& out_;
    std::string kind_;
    std::uint64_t seed_ = 0;
    std::size_t size_ = 0;
    std::uint64_t comparisons_ = 0;
    std::uint64_t errors_ = 0;
    std::uint64_t shapes_ = 0;
    bool differs_ = false;
};

} // namespace comparisons

#endif
