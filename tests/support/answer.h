// Answers as bits, so that a fast path and its oracle can be held to the same ones.
#ifndef GK_TESTS_SUPPORT_ANSWER_H
#define GK_TESTS_SUPPORT_ANSWER_H

#include "platform/core/math/matrix.h"
#include "platform/core/math/vector.h"
#include "platform/core/shapes/circle.h"
#include "platform/core/shapes/ellipse.h"
#include "platform/core/shapes/line_seg.h"
#include "platform/core/shapes/rect.h"

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

// What a question gave: the bits of every number in the answer, or the name of the error.
//
// Zeros differ by sign. All NaNs count as one: which of two NaN operands an addition passes on, and with which
// sign, is up to the compiler and the machine, so no answer can promise the bits of a NaN.
struct Answer {
    std::vector<std::uint64_t> bits;
    std::string error;

    void add(double value);
    void add(bool value) { bits.push_back(value ? 1 : 0); }
    void add(int value) { bits.push_back(static_cast<std::uint64_t>(value)); }
    void add(long value) { bits.push_back(static_cast<std::uint64_t>(value)); }
    void add(const gkVector<2>& value);
    void add(const gkMatrix<2>& value);
    void add(const gkLineSeg& value);
    void add(const gkRect& value);
    void add(const gkCircle& value);
    void add(const gkEllipse& value);
    template <class T> void add(const std::vector<T>& values) {
        bits.push_back(values.size());
        for (const auto& value : values) add(static_cast<const T&>(value));
    }
};

inline bool operator==(const Answer& a, const Answer& b) { return a.error == b.error && a.bits == b.bits; }
inline bool operator!=(const Answer& a, const Answer& b) { return !(a == b); }
std::ostream& operator<<(std::ostream& out, const Answer& answer);

// The name of the error being handled, an oracle's refusal or the library's; anything unknown is thrown on.
std::string currentError();

// The answer of `ask`, which either returns one of the values above or throws.
template <class Ask> Answer answer(Ask ask) {
    Answer result;
    try {
        result.add(ask());
    } catch (...) {
        result = Answer();
        result.error = currentError();
    }
    return result;
}

#endif
