/// \file
/// The common body of every suicideAndRethrow.
#ifndef GK_PLATFORM_CORE_OBJECT_RETHROW_H
#define GK_PLATFORM_CORE_OBJECT_RETHROW_H

#include <memory>

/// Frees `error`, an object of class `Error` exactly that was made with new, and throws a copy of it by value.
template <class Error> [[noreturn]] void gk_FreeAndThrow(Error* error) {
    std::unique_ptr<Error> held(error);
    const Error copy(*held);
    held.reset();
    throw copy;
}

#endif
