#include "platform/core/archive/archive_errors.h"

#include "platform/core/object/error_numbers.h"
#include "platform/core/object/rethrow.h"

namespace {

std::wstring describeVersion(const char* text, long number) {
    std::wstring wide = L"unknown version";
    if (!text || !*text) return wide;
    wide += L": ";
    // Class and source names are ASCII; any other byte only has to be seen.
    for (; *text; ++text) wide += static_cast<unsigned char>(*text) < 0x80 ? static_cast<wchar_t>(*text) : L'?';
    return wide + L" (" + std::to_wstring(number) + L")";
}

} // namespace

gkArchive::Errors::Errors(const wchar_t* text) : gkExceptionWithString(text) {}
gkArchive::Errors::~Errors() = default;

gkArchive::UnknownVersion::UnknownVersion() : UnknownVersion("", 0) {}
gkArchive::UnknownVersion::UnknownVersion(const char* text, long number)
    : Errors(describeVersion(text, number).c_str()), text_(text ? text : ""), number_(number) {}
gkArchive::UnknownVersion::~UnknownVersion() = default;
long gkArchive::UnknownVersion::errorNumber() const { return gk_ErrorNumber::eArchiveUnknownVersion; }
void gkArchive::UnknownVersion::suicideAndRethrow() { gk_FreeAndThrow(this); }

gkArchive::NotAnArchive::NotAnArchive(const wchar_t* text) : Errors(text) {}
gkArchive::NotAnArchive::~NotAnArchive() = default;
long gkArchive::NotAnArchive::errorNumber() const { return gk_ErrorNumber::eArchiveNotAnArchive; }
void gkArchive::NotAnArchive::suicideAndRethrow() { gk_FreeAndThrow(this); }

gkArchive::UnknownFormat::UnknownFormat(const wchar_t* text) : Errors(text) {}
gkArchive::UnknownFormat::~UnknownFormat() = default;
long gkArchive::UnknownFormat::errorNumber() const { return gk_ErrorNumber::eArchiveUnknownFormat; }
void gkArchive::UnknownFormat::suicideAndRethrow() { gk_FreeAndThrow(this); }

gkArchive::Truncated::Truncated(const wchar_t* text) : Errors(text) {}
gkArchive::Truncated::~Truncated() = default;
long gkArchive::Truncated::errorNumber() const { return gk_ErrorNumber::eArchiveTruncated; }
void gkArchive::Truncated::suicideAndRethrow() { gk_FreeAndThrow(this); }

gkArchive::TrailingBytes::TrailingBytes(const wchar_t* text) : Errors(text) {}
gkArchive::TrailingBytes::~TrailingBytes() = default;
long gkArchive::TrailingBytes::errorNumber() const { return gk_ErrorNumber::eArchiveTrailingBytes; }
void gkArchive::TrailingBytes::suicideAndRethrow() { gk_FreeAndThrow(this); }

gkArchive::CountTooLarge::CountTooLarge(const wchar_t* text) : Errors(text) {}
gkArchive::CountTooLarge::~CountTooLarge() = default;
long gkArchive::CountTooLarge::errorNumber() const { return gk_ErrorNumber::eArchiveCountTooLarge; }
void gkArchive::CountTooLarge::suicideAndRethrow() { gk_FreeAndThrow(this); }

gkArchive::UnknownType::UnknownType(const wchar_t* text) : Errors(text) {}
gkArchive::UnknownType::~UnknownType() = default;
long gkArchive::UnknownType::errorNumber() const { return gk_ErrorNumber::eArchiveUnknownType; }
void gkArchive::UnknownType::suicideAndRethrow() { gk_FreeAndThrow(this); }

gkArchive::WrongType::WrongType(const wchar_t* text) : Errors(text) {}
gkArchive::WrongType::~WrongType() = default;
long gkArchive::WrongType::errorNumber() const { return gk_ErrorNumber::eArchiveWrongType; }
void gkArchive::WrongType::suicideAndRethrow() { gk_FreeAndThrow(this); }

gkArchive::BadReference::BadReference(const wchar_t* text) : Errors(text) {}
gkArchive::BadReference::~BadReference() = default;
long gkArchive::BadReference::errorNumber() const { return gk_ErrorNumber::eArchiveBadReference; }
void gkArchive::BadReference::suicideAndRethrow() { gk_FreeAndThrow(this); }

gkArchive::BadValue::BadValue(const wchar_t* text) : Errors(text) {}
gkArchive::BadValue::~BadValue() = default;
long gkArchive::BadValue::errorNumber() const { return gk_ErrorNumber::eArchiveBadValue; }
void gkArchive::BadValue::suicideAndRethrow() { gk_FreeAndThrow(this); }

gkArchive::ValueOutOfRange::ValueOutOfRange(const wchar_t* text) : Errors(text) {}
gkArchive::ValueOutOfRange::~ValueOutOfRange() = default;
long gkArchive::ValueOutOfRange::errorNumber() const { return gk_ErrorNumber::eArchiveValueOutOfRange; }
void gkArchive::ValueOutOfRange::suicideAndRethrow() { gk_FreeAndThrow(this); }

gkArchive::TooDeep::TooDeep(const wchar_t* text) : Errors(text) {}
gkArchive::TooDeep::~TooDeep() = default;
long gkArchive::TooDeep::errorNumber() const { return gk_ErrorNumber::eArchiveTooDeep; }
void gkArchive::TooDeep::suicideAndRethrow() { gk_FreeAndThrow(this); }

gkArchive::CannotOpen::CannotOpen(const wchar_t* text) : Errors(text) {}
gkArchive::CannotOpen::~CannotOpen() = default;
long gkArchive::CannotOpen::errorNumber() const { return gk_ErrorNumber::eArchiveCannotOpen; }
void gkArchive::CannotOpen::suicideAndRethrow() { gk_FreeAndThrow(this); }

gkArchive::ReadFailed::ReadFailed(const wchar_t* text) : Errors(text) {}
gkArchive::ReadFailed::~ReadFailed() = default;
long gkArchive::ReadFailed::errorNumber() const { return gk_ErrorNumber::eArchiveReadFailed; }
void gkArchive::ReadFailed::suicideAndRethrow() { gk_FreeAndThrow(this); }

gkArchive::WriteFailed::WriteFailed(const wchar_t* text) : Errors(text) {}
gkArchive::WriteFailed::~WriteFailed() = default;
long gkArchive::WriteFailed::errorNumber() const { return gk_ErrorNumber::eArchiveWriteFailed; }
void gkArchive::WriteFailed::suicideAndRethrow() { gk_FreeAndThrow(this); }

gkArchive::WrongDirection::WrongDirection(const wchar_t* text) : Errors(text) {}
gkArchive::WrongDirection::~WrongDirection() = default;
long gkArchive::WrongDirection::errorNumber() const { return gk_ErrorNumber::eArchiveWrongDirection; }
void gkArchive::WrongDirection::suicideAndRethrow() { gk_FreeAndThrow(this); }
