/// \file
/// Handles in an archive. Include platform/core/archive/archive.h.
#ifndef GK_PLATFORM_CORE_ARCHIVE_ARCHIVE_HANDLE_H
#define GK_PLATFORM_CORE_ARCHIVE_ARCHIVE_HANDLE_H

#include "platform/core/archive/archive.h"
#include "platform/core/object/handle.h"

/// The next reference of a loading archive, as an object of class T; null for a null reference.
///
/// Throws gkArchive::WrongType when the object is not a T, gkArchive::UnknownType when its class is not
/// registered.
template <class T> T* gk_ReadReference(gkArchive& ar) {
    return dynamic_cast<T*>(
        ar.readReference([](gkPersistent* object) { return dynamic_cast<T*>(object) != nullptr; }));
}

/// A reference to the object, null included; T derives from gkPersistent and gkRepBase. See gkArchive.
template <class T> gkArchive& operator||(gkArchive& ar, gkPtrHandle<T>& handle) {
    if (ar.isLoading()) {
        handle = gkPtrHandle<T>(gk_ReadReference<T>(ar));
    } else {
        ar.writeReference(handle.get(), handle.rep());
    }
    return ar;
}

/// As for gkPtrHandle.
template <class T> gkArchive& operator||(gkArchive& ar, gkPtrHandle_const<T>& handle) {
    if (ar.isLoading()) {
        handle = gkPtrHandle_const<T>(gk_ReadReference<T>(ar));
    } else {
        ar.writeReference(handle.get(), handle.rep());
    }
    return ar;
}

#endif
