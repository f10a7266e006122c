/// \file
/// The bases of every error the library throws.
#ifndef GK_PLATFORM_CORE_OBJECT_EXCEPTION_H
#define GK_PLATFORM_CORE_OBJECT_EXCEPTION_H

#include "platform/core/object/persistent.h"
#include "platform/export.h"

#include <iosfwd>
#include <string>

/// An error: thrown by value, with a fixed number and a text, and persistent.
///
/// Errors form one chain of single, non-virtual inheritance from gkPersistent; std::exception is no part of it.
/// The order of the virtual operations, continued from gkPersistent, is part of the binary interface.
class GKCNTR_API gkException : public gkPersistent {
public:
    ~gkException() override;

    /// The number of the concrete class; fixed for ever, see error_numbers.h.
    virtual long errorNumber() const = 0;
    /// Throws a copy of this object by value, of its own class, and frees the object itself, which was made
    /// with new.
    ///
    /// For an error that was held on the heap, for instance one that an archive has read.
    virtual void suicideAndRethrow() = 0;
    /// Writes the text to `out`; this one writes nothing.
    virtual void message_(std::wostream& out) const;

    /// The text that message_ writes.
    std::wstring message() const;

protected:
    gkException() = default;
    gkException(const gkException&) = default;
    gkException& operator=(const gkException&) = default;

    /// The record: a version byte, 0, then the base record. Throws gkArchive::UnknownVersion("gkException", 0).
    void dispatchSerialize(gkArchive& ar) override;
    void serialize_(gkArchive& ar, unsigned char version);
};

/// An error with a text of its own. The text is not archived: an error that was read has an empty one.
class GKCNTR_API gkExceptionWithString : public gkException {
public:
    ~gkExceptionWithString() override;

    void message_(std::wostream& out) const override;

protected:
    /// `text` ends with a zero; null stands for the empty text.
    explicit gkExceptionWithString(const wchar_t* text);
    gkExceptionWithString(const gkExceptionWithString&) = default;
    gkExceptionWithString& operator=(const gkExceptionWithString&) = default;

private:
    std::wstring text_;
};

#endif
