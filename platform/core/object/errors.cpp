#include "platform/core/object/errors.h"

#include "platform/core/object/error_numbers.h"
#include "platform/core/object/rethrow.h"

gkMathError::Singular::Singular(const wchar_t* text) : gkExceptionWithString(text) {}
gkMathError::Singular::~Singular() = default;
long gkMathError::Singular::errorNumber() const { return gk_ErrorNumber::eMathSingular; }
void gkMathError::Singular::suicideAndRethrow() { gk_FreeAndThrow(this); }

gkMathError::OutOfRange::OutOfRange(const wchar_t* text) : gkExceptionWithString(text) {}
gkMathError::OutOfRange::~OutOfRange() = default;
long gkMathError::OutOfRange::errorNumber() const { return gk_ErrorNumber::eMathOutOfRange; }
void gkMathError::OutOfRange::suicideAndRethrow() { gk_FreeAndThrow(this); }

gkBadPointer::gkBadPointer(const wchar_t* text) : gkExceptionWithString(text) {}
gkBadPointer::~gkBadPointer() = default;
long gkBadPointer::errorNumber() const { return gk_ErrorNumber::eBadPointer; }
void gkBadPointer::suicideAndRethrow() { gk_FreeAndThrow(this); }

gkPel::BadWindow::BadWindow(const wchar_t* text) : gkExceptionWithString(text) {}
gkPel::BadWindow::~BadWindow() = default;
long gkPel::BadWindow::errorNumber() const { return gk_ErrorNumber::ePelBadWindow; }
void gkPel::BadWindow::suicideAndRethrow() { gk_FreeAndThrow(this); }
