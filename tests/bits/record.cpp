#include "tests/bits/record.h"

#include "platform/core/archive/archive.h"
#include "platform/core/object/exception.h"
#include "platform/system/assert.h"

#include <stdexcept>

namespace {

constexpr std::uint64_t kErrorMark = 0xE440000000000000u; // a double of this value occurs in no answer

Answer error(long number, long detail) {
    Answer answer;
    answer.bits = {kErrorMark, static_cast<std::uint64_t>(number), static_cast<std::uint64_t>(detail)};
    return answer;
}

} // namespace

namespace bits {

std::uint64_t Record::hash() const {
    Hash hash;
    for (const std::uint64_t word : words_) hash.add(word);
    return hash.value();
}

// Anything else is no error of the library's and ends the program.
Answer Record::currentErrorAsWords() {
    try {
        throw;
    } catch (const gkAssertionFailed& failed) {
        return error(failed.errorNumber(), failed.line());
    } catch (const gkArchive::UnknownVersion& unknown) {
        return error(unknown.errorNumber(), unknown.number());
    } catch (const gkException& known) {
        return error(known.errorNumber(), 0);
    } catch (const std::out_of_range&) {
        return error(-1, 0); // what gf_Area throws for no vertices
    }
}

void add(Answer& answer, const std::string& text) {
    answer.bits.push_back(text.size());
    for (const char c : text) answer.bits.push_back(static_cast<unsigned char>(c));
}

void add(Answer& answer, const std::vector<unsigned char>& bytes) {
    answer.bits.push_back(bytes.size());
    for (const unsigned char byte : bytes) answer.bits.push_back(byte);
}

} // namespace bits
