#include "platform/system/assert.h"

#include "platform/core/object/error_numbers.h"
#include "platform/core/object/rethrow.h"

#include <atomic>

namespace {

void throwFailure(const char* expression, const char* file, long line) {
    throw gkAssertionFailed(expression, file, line);
}

std::atomic<gkAssertHandler> handlerInForce{&throwFailure};

const char* orEmpty(const char* text) { return text ? text : ""; }

std::wstring widen(const char* text) {
    std::wstring wide;
    // Source texts are ASCII; any other byte only has to be seen.
    for (; *text; ++text) wide += static_cast<unsigned char>(*text) < 0x80 ? static_cast<wchar_t>(*text) : L'?';
    return wide;
}

std::wstring describe(const char* expression, const char* file, long line) {
    return L"assertion failed: " + widen(orEmpty(expression)) + L" (" + widen(orEmpty(file)) + L":" +
           std::to_wstring(line) + L")";
}

} // namespace

void gstd_assert_(const char* expression, const char* file, long line) {
    handlerInForce.load()(orEmpty(expression), orEmpty(file), line);
}

gkAssertHandler gk_SetAssertHandler(gkAssertHandler handler) {
    return handlerInForce.exchange(handler ? handler : &throwFailure);
}

gkAssertionFailed::gkAssertionFailed(const char* expression, const char* file, long line)
    : gkExceptionWithString(describe(expression, file, line).c_str()), expression_(orEmpty(expression)),
      file_(orEmpty(file)), line_(line) {}
gkAssertionFailed::~gkAssertionFailed() = default;
long gkAssertionFailed::errorNumber() const { return gk_ErrorNumber::eAssertionFailed; }
void gkAssertionFailed::suicideAndRethrow() { gk_FreeAndThrow(this); }
