/// \file
/// The errors of gkArchive. Include platform/core/archive/archive.h.
#ifndef GK_PLATFORM_CORE_ARCHIVE_ARCHIVE_ERRORS_H
#define GK_PLATFORM_CORE_ARCHIVE_ARCHIVE_ERRORS_H

#include "platform/core/archive/archive.h"
#include "platform/core/object/exception.h"
#include "platform/export.h"

#include <string>

/// The base of every archive error.
class GKCNTR_API gkArchive::Errors : public gkExceptionWithString {
public:
    ~Errors() override;

protected:
    explicit Errors(const wchar_t* text);
    Errors(const Errors&) = default;
    Errors& operator=(const Errors&) = default;
};

/// A record's version byte is not one that the class knows.
class GKCNTR_API gkArchive::UnknownVersion : public gkArchive::Errors {
public:
    /// No text and the number 0: what a vector throws.
    UnknownVersion();
    /// `text` names the class or source that refuses, `number` is its choice; null counts as no text.
    UnknownVersion(const char* text, long number);
    UnknownVersion(const UnknownVersion&) = default;
    UnknownVersion& operator=(const UnknownVersion&) = default;
    ~UnknownVersion() override;
    long errorNumber() const override;
    void suicideAndRethrow() override;

    /// Never null.
    const char* text() const { return text_.c_str(); }
    long number() const { return number_; }

private:
    std::string text_;
    long number_ = 0;
};

/// The bytes do not begin as an archive does.
class GKCNTR_API gkArchive::NotAnArchive : public gkArchive::Errors {
public:
    explicit NotAnArchive(const wchar_t* text = L"not an archive");
    NotAnArchive(const NotAnArchive&) = default;
    NotAnArchive& operator=(const NotAnArchive&) = default;
    ~NotAnArchive() override;
    long errorNumber() const override;
    void suicideAndRethrow() override;
};

/// The archive is of a format this library does not know.
class GKCNTR_API gkArchive::UnknownFormat : public gkArchive::Errors {
public:
    explicit UnknownFormat(const wchar_t* text = L"unknown archive format");
    UnknownFormat(const UnknownFormat&) = default;
    UnknownFormat& operator=(const UnknownFormat&) = default;
    ~UnknownFormat() override;
    long errorNumber() const override;
    void suicideAndRethrow() override;
};

/// The bytes end before the value does.
class GKCNTR_API gkArchive::Truncated : public gkArchive::Errors {
public:
    explicit Truncated(const wchar_t* text = L"the archive ends too early");
    Truncated(const Truncated&) = default;
    Truncated& operator=(const Truncated&) = default;
    ~Truncated() override;
    long errorNumber() const override;
    void suicideAndRethrow() override;
};

/// Bytes are left when everything has been read.
class GKCNTR_API gkArchive::TrailingBytes : public gkArchive::Errors {
public:
    explicit TrailingBytes(const wchar_t* text = L"the archive goes on after its end");
    TrailingBytes(const TrailingBytes&) = default;
    TrailingBytes& operator=(const TrailingBytes&) = default;
    ~TrailingBytes() override;
    long errorNumber() const override;
    void suicideAndRethrow() override;
};

/// A count asks for more elements than the bytes left can hold.
class GKCNTR_API gkArchive::CountTooLarge : public gkArchive::Errors {
public:
    explicit CountTooLarge(const wchar_t* text = L"a count is larger than the archive");
    CountTooLarge(const CountTooLarge&) = default;
    CountTooLarge& operator=(const CountTooLarge&) = default;
    ~CountTooLarge() override;
    long errorNumber() const override;
    void suicideAndRethrow() override;
};

/// A class is not registered under the name read, or at all when writing.
class GKCNTR_API gkArchive::UnknownType : public gkArchive::Errors {
public:
    explicit UnknownType(const wchar_t* text = L"unknown class");
    UnknownType(const UnknownType&) = default;
    UnknownType& operator=(const UnknownType&) = default;
    ~UnknownType() override;
    long errorNumber() const override;
    void suicideAndRethrow() override;
};

/// The object is not of the class asked for.
class GKCNTR_API gkArchive::WrongType : public gkArchive::Errors {
public:
    explicit WrongType(const wchar_t* text = L"an object is not of the class asked for");
    WrongType(const WrongType&) = default;
    WrongType& operator=(const WrongType&) = default;
    ~WrongType() override;
    long errorNumber() const override;
    void suicideAndRethrow() override;
};

/// An object number is out of sequence, or names an object that already belongs to somebody else.
class GKCNTR_API gkArchive::BadReference : public gkArchive::Errors {
public:
    explicit BadReference(const wchar_t* text = L"bad object reference");
    BadReference(const BadReference&) = default;
    BadReference& operator=(const BadReference&) = default;
    ~BadReference() override;
    long errorNumber() const override;
    void suicideAndRethrow() override;
};

/// A bool is not 0 or 1, or a text is not UTF-8.
class GKCNTR_API gkArchive::BadValue : public gkArchive::Errors {
public:
    explicit BadValue(const wchar_t* text = L"bad value");
    BadValue(const BadValue&) = default;
    BadValue& operator=(const BadValue&) = default;
    ~BadValue() override;
    long errorNumber() const override;
    void suicideAndRethrow() override;
};

/// A value or count to be saved does not fit into 32 bits.
class GKCNTR_API gkArchive::ValueOutOfRange : public gkArchive::Errors {
public:
    explicit ValueOutOfRange(const wchar_t* text = L"a value does not fit into 32 bits");
    ValueOutOfRange(const ValueOutOfRange&) = default;
    ValueOutOfRange& operator=(const ValueOutOfRange&) = default;
    ~ValueOutOfRange() override;
    long errorNumber() const override;
    void suicideAndRethrow() override;
};

/// Objects refer to each other more than gkArchive::depthLimit levels deep.
class GKCNTR_API gkArchive::TooDeep : public gkArchive::Errors {
public:
    explicit TooDeep(const wchar_t* text = L"objects are nested too deeply");
    TooDeep(const TooDeep&) = default;
    TooDeep& operator=(const TooDeep&) = default;
    ~TooDeep() override;
    long errorNumber() const override;
    void suicideAndRethrow() override;
};

/// A file cannot be opened.
class GKCNTR_API gkArchive::CannotOpen : public gkArchive::Errors {
public:
    explicit CannotOpen(const wchar_t* text = L"the file cannot be opened");
    CannotOpen(const CannotOpen&) = default;
    CannotOpen& operator=(const CannotOpen&) = default;
    ~CannotOpen() override;
    long errorNumber() const override;
    void suicideAndRethrow() override;
};

/// A file cannot be read to its end.
class GKCNTR_API gkArchive::ReadFailed : public gkArchive::Errors {
public:
    explicit ReadFailed(const wchar_t* text = L"the file cannot be read");
    ReadFailed(const ReadFailed&) = default;
    ReadFailed& operator=(const ReadFailed&) = default;
    ~ReadFailed() override;
    long errorNumber() const override;
    void suicideAndRethrow() override;
};

/// A file cannot be written, or an object was left half written by an error.
class GKCNTR_API gkArchive::WriteFailed : public gkArchive::Errors {
public:
    explicit WriteFailed(const wchar_t* text = L"the archive cannot be written");
    WriteFailed(const WriteFailed&) = default;
    WriteFailed& operator=(const WriteFailed&) = default;
    ~WriteFailed() override;
    long errorNumber() const override;
    void suicideAndRethrow() override;
};

/// Reading from a saving archive, or writing to a loading one.
class GKCNTR_API gkArchive::WrongDirection : public gkArchive::Errors {
public:
    explicit WrongDirection(const wchar_t* text = L"the archive goes the other way");
    WrongDirection(const WrongDirection&) = default;
    WrongDirection& operator=(const WrongDirection&) = default;
    ~WrongDirection() override;
    long errorNumber() const override;
    void suicideAndRethrow() override;
};

#endif
