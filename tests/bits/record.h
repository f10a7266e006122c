// The answers of one operation to one shape, as words: the raw bits of every number, errors by their number.
#ifndef GK_TESTS_BITS_RECORD_H
#define GK_TESTS_BITS_RECORD_H

#include "tests/support/answer.h"

#include <cstdint>
#include <string>
#include <vector>

namespace bits {

// Source: Fowler, Noll and Vo, FNV-1a with 64 bits. Bytes from the least significant on, whatever the machine.
class Hash {
public:
    void add(std::uint64_t word) {
        for (int shift = 0; shift < 64; shift += 8) {
            value_ = (value_ ^ ((word >> shift) & 0xFF)) * 0x100000001B3u;
        }
    }
    std::uint64_t value() const { return value_; }

private:
    std::uint64_t value_ = 0xCBF29CE484222325u;
};

// NaNs count as one, for the reason that Answer gives; every other bit counts.
class Record {
public:
    // Notes what ask() returns, or its error.
    template <class Ask> void value(Ask ask) {
        fill([&](Answer& answer) { answer.add(ask()); });
    }

    // Notes what fill(answer) adds to the answer, or its error and nothing of what was added before.
    template <class Fill> void fill(Fill fill) {
        Answer answer;
        try {
            fill(answer);
        } catch (...) {
            answer = currentErrorAsWords();
        }
        words_.push_back(answer.bits.size()); // so that no answer can run into the next
        words_.insert(words_.end(), answer.bits.begin(), answer.bits.end());
    }

    const std::vector<std::uint64_t>& words() const { return words_; }
    std::uint64_t hash() const;

private:
    static Answer currentErrorAsWords();

    std::vector<std::uint64_t> words_;
};

void add(Answer& answer, const std::string& text);
void add(Answer& answer, const std::vector<unsigned char>& bytes);

} // namespace bits

#endif
