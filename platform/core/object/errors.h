/// \file
/// The errors of the bundled layer that do not belong to the archive.
#ifndef GK_PLATFORM_CORE_OBJECT_ERRORS_H
#define GK_PLATFORM_CORE_OBJECT_ERRORS_H

#include "platform/core/object/exception.h"
#include "platform/export.h"

/// Scope of the arithmetic errors.
class gkMathError {
public:
    class Singular;
    class OutOfRange;

    gkMathError() = delete;
};

/// A matrix or transform has no inverse.
class GKCNTR_API gkMathError::Singular : public gkExceptionWithString {
public:
    explicit Singular(const wchar_t* text = L"the matrix has no inverse");
    Singular(const Singular&) = default;
    Singular& operator=(const Singular&) = default;
    ~Singular() override;
    long errorNumber() const override;
    void suicideAndRethrow() override;
};

/// An element or vertex was asked for that does not exist.
class GKCNTR_API gkMathError::OutOfRange : public gkExceptionWithString {
public:
    explicit OutOfRange(const wchar_t* text = L"there is no element with this index");
    OutOfRange(const OutOfRange&) = default;
    OutOfRange& operator=(const OutOfRange&) = default;
    ~OutOfRange() override;
    long errorNumber() const override;
    void suicideAndRethrow() override;
};

/// A null handle was dereferenced.
class GKCNTR_API gkBadPointer : public gkExceptionWithString {
public:
    explicit gkBadPointer(const wchar_t* text = L"a null handle was dereferenced");
    gkBadPointer(const gkBadPointer&) = default;
    gkBadPointer& operator=(const gkBadPointer&) = default;
    ~gkBadPointer() override;
    long errorNumber() const override;
    void suicideAndRethrow() override;
};

/// Scope of the errors of windows of cells.
class gkPel {
public:
    class BadWindow;

    gkPel() = delete;
};

/// A window reaches outside of what it looks at, or is too large to be kept.
class GKCNTR_API gkPel::BadWindow : public gkExceptionWithString {
public:
    explicit BadWindow(const wchar_t* text = L"bad window");
    BadWindow(const BadWindow&) = default;
    BadWindow& operator=(const BadWindow&) = default;
    ~BadWindow() override;
    long errorNumber() const override;
    void suicideAndRethrow() override;
};

#endif
