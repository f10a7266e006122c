/// \file
/// The errors of reading and writing text, and the bounds of what is read.
#ifndef GK_INTEROP_TEXT_ERRORS_H
#define GK_INTEROP_TEXT_ERRORS_H

#include "platform/core/object/exception.h"

#include <cstddef>
#include <string>

/// Scope of what the text formats share: their errors and bounds. It holds no data.
class gkTextDefs {
public:
    /// Where something is in a text. Lines end with a line feed.
    struct Place {
        std::size_t offset = 0; ///< bytes in front of it
        std::size_t line = 1;   ///< from 1 on
        std::size_t column = 1; ///< bytes from the beginning of the line, from 1 on
    };

    /// Longer texts are refused unread: 64 MiB, some one and a half million vertices with all their digits.
    /// Vertices take at most some 20 bytes of memory for each byte of text while they are read.
    static constexpr std::size_t kMostBytes = std::size_t{1} << 26;
    /// Lines, outlines and holes in one text; each becomes an object with room for kept results.
    static constexpr std::size_t kMostRings = std::size_t{1} << 20;
    /// Collections, or brackets of JSON, inside one another; the readers call themselves that deep.
    static constexpr std::size_t kMostDepth = 64;

    class Errors;
    class ReadErrors;
    class BadText;
    class Unsupported;
    class TooLarge;
    class CannotWrite;

    gkTextDefs() = delete;
};

/// Base of all errors of text; catching it catches the four below. They are not archived.
class gkTextDefs::Errors : public gkExceptionWithString {
public:
    ~Errors() override;

protected:
    explicit Errors(const std::wstring& message);
    Errors(const Errors&) = default;
    Errors& operator=(const Errors&) = default;
};

/// Base of the errors of reading. The message reads "line 1, column 12: ", then the explanation.
class gkTextDefs::ReadErrors : public gkTextDefs::Errors {
public:
    ~ReadErrors() override;

    /// Where the text is not what it should be.
    const Place& place() const { return place_; }
    /// One sentence without a full stop that tells what was expected there, or why it is refused.
    const std::string& explanation() const { return explanation_; }

protected:
    ReadErrors(const Place& place, const std::string& explanation);
    ReadErrors(const ReadErrors&) = default;
    ReadErrors& operator=(const ReadErrors&) = default;

private:
    Place place_;
    std::string explanation_;
};

/// The text is not of the format.
class gkTextDefs::BadText : public gkTextDefs::ReadErrors {
public:
    BadText(const Place& place, const std::string& explanation);
    BadText(const BadText&) = default;
    BadText& operator=(const BadText&) = default;
    ~BadText() override;
    long errorNumber() const override; ///< 0x10000501
    [[noreturn]] void suicideAndRethrow() override;
};

/// The text may well be of the format, but what it tells is no shape of the wanted kind.
class gkTextDefs::Unsupported : public gkTextDefs::ReadErrors {
public:
    Unsupported(const Place& place, const std::string& explanation);
    Unsupported(const Unsupported&) = default;
    Unsupported& operator=(const Unsupported&) = default;
    ~Unsupported() override;
    long errorNumber() const override; ///< 0x10000502
    [[noreturn]] void suicideAndRethrow() override;
};

/// The text is longer than kMostBytes, has more than kMostRings rings or is nested deeper than kMostDepth.
class gkTextDefs::TooLarge : public gkTextDefs::ReadErrors {
public:
    TooLarge(const Place& place, const std::string& explanation);
    TooLarge(const TooLarge&) = default;
    TooLarge& operator=(const TooLarge&) = default;
    ~TooLarge() override;
    long errorNumber() const override; ///< 0x10000503
    [[noreturn]] void suicideAndRethrow() override;
};

/// The format cannot tell this shape; the message says what is in the way.
class gkTextDefs::CannotWrite : public gkTextDefs::Errors {
public:
    explicit CannotWrite(const std::wstring& message);
    CannotWrite(const CannotWrite&) = default;
    CannotWrite& operator=(const CannotWrite&) = default;
    ~CannotWrite() override;
    long errorNumber() const override; ///< 0x10000504
    [[noreturn]] void suicideAndRethrow() override;
};

#endif
