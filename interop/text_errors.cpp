#include "interop/text_errors.h"

#include "platform/core/object/rethrow.h"

namespace {

std::wstring messageOf(const gkTextDefs::Place& place, const std::string& explanation) {
    return L"line " + std::to_wstring(place.line) + L", column " + std::to_wstring(place.column) + L": " +
           std::wstring(explanation.begin(), explanation.end());
}

} // namespace

gkTextDefs::Errors::Errors(const std::wstring& message) : gkExceptionWithString(message.c_str()) {}
gkTextDefs::Errors::~Errors() = default;

gkTextDefs::ReadErrors::ReadErrors(const Place& place, const std::string& explanation)
    : Errors(messageOf(place, explanation)), place_(place), explanation_(explanation) {}
gkTextDefs::ReadErrors::~ReadErrors() = default;

gkTextDefs::BadText::BadText(const Place& place, const std::string& explanation)
    : ReadErrors(place, explanation) {}
gkTextDefs::BadText::~BadText() = default;
long gkTextDefs::BadText::errorNumber() const { return 0x10000501; }
void gkTextDefs::BadText::suicideAndRethrow() { gk_FreeAndThrow(this); }

gkTextDefs::Unsupported::Unsupported(const Place& place, const std::string& explanation)
    : ReadErrors(place, explanation) {}
gkTextDefs::Unsupported::~Unsupported() = default;
long gkTextDefs::Unsupported::errorNumber() const { return 0x10000502; }
void gkTextDefs::Unsupported::suicideAndRethrow() { gk_FreeAndThrow(this); }

gkTextDefs::TooLarge::TooLarge(const Place& place, const std::string& explanation)
    : ReadErrors(place, explanation) {}
gkTextDefs::TooLarge::~TooLarge() = default;
long gkTextDefs::TooLarge::errorNumber() const { return 0x10000503; }
void gkTextDefs::TooLarge::suicideAndRethrow() { gk_FreeAndThrow(this); }

gkTextDefs::CannotWrite::CannotWrite(const std::wstring& message) : Errors(message) {}
gkTextDefs::CannotWrite::~CannotWrite() = default;
long gkTextDefs::CannotWrite::errorNumber() const { return 0x10000504; }
void gkTextDefs::CannotWrite::suicideAndRethrow() { gk_FreeAndThrow(this); }
