/// \file
/// The entry for failed internal checks.
#ifndef GK_PLATFORM_SYSTEM_ASSERT_H
#define GK_PLATFORM_SYSTEM_ASSERT_H

#include "platform/core/object/exception.h"
#include "platform/export.h"

#include <string>

/// Reports that `expression`, which must hold at `line` of `file`, does not: calls the handler in force.
///
/// The default handler throws gkAssertionFailed. Another handler may return; then the caller goes on. The
/// process is never ended. Null texts count as empty.
GKCNTR_API void gstd_assert_(const char* expression, const char* file, long line);

/// What to do about a failed check. May throw; may return.
using gkAssertHandler = void (*)(const char* expression, const char* file, long line);

/// Installs `handler` for the whole process, null for the default, and returns the one before (never null).
GKCNTR_API gkAssertHandler gk_SetAssertHandler(gkAssertHandler handler);

/// A failed internal check: a mistake in the library, not in what it was given.
class GKCNTR_API gkAssertionFailed : public gkExceptionWithString {
public:
    gkAssertionFailed(const char* expression, const char* file, long line);
    gkAssertionFailed(const gkAssertionFailed&) = default;
    gkAssertionFailed& operator=(const gkAssertionFailed&) = default;
    ~gkAssertionFailed() override;
    long errorNumber() const override;
    void suicideAndRethrow() override;

    /// The source text of the check; message() holds all three.
    const char* expression() const { return expression_.c_str(); }
    const char* file() const { return file_.c_str(); }
    long line() const { return line_; }

private:
    std::string expression_;
    std::string file_;
    long line_;
};

#endif
