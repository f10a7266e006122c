/// \file
/// Vectors in an archive. Include platform/core/archive/archive.h.
#ifndef GK_PLATFORM_CORE_ARCHIVE_ARCHIVE_VECTOR_H
#define GK_PLATFORM_CORE_ARCHIVE_ARCHIVE_VECTOR_H

#include "platform/core/archive/archive.h"
#include "platform/core/math/vector.h"
#include "platform/core/object/handle.h"

#include <cstddef>
#include <string>
#include <type_traits>
#include <vector>

/// The least number of bytes one `T` takes in an archive; a count of elements is checked with it before memory
/// is taken.
///
/// Specialise it for element types that are more than 16 bytes big in memory.
template <class T> struct gk_ArchiveSize { static constexpr std::size_t least = 1; };
template <> struct gk_ArchiveSize<unsigned short> { static constexpr std::size_t least = 2; };
template <> struct gk_ArchiveSize<long> { static constexpr std::size_t least = 4; };
template <> struct gk_ArchiveSize<unsigned long> { static constexpr std::size_t least = 4; };
template <> struct gk_ArchiveSize<float> { static constexpr std::size_t least = 4; };
template <> struct gk_ArchiveSize<double> { static constexpr std::size_t least = 8; };
template <> struct gk_ArchiveSize<gkVector<2>> { static constexpr std::size_t least = 16; };
template <> struct gk_ArchiveSize<std::string> { static constexpr std::size_t least = 4; };
template <> struct gk_ArchiveSize<std::wstring> { static constexpr std::size_t least = 4; };
template <class T> struct gk_ArchiveSize<gkPtrHandle<T>> { static constexpr std::size_t least = 4; };
template <class T> struct gk_ArchiveSize<gkPtrHandle_const<T>> { static constexpr std::size_t least = 4; };
template <class T> struct gk_ArchiveSize<std::vector<T>> { static constexpr std::size_t least = 5; };

/// x, then y: two doubles.
GKCNTR_API gkArchive& operator||(gkArchive& ar, gkVector<2>& value);

/// A byte 0, the count as 32 bits, then every element with its own operator; T has a default constructor.
///
/// Errors: see gkArchive::vectorHeader, and those of the elements; the vector may then be partly read.
template <class T> gkArchive& operator||(gkArchive& ar, std::vector<T>& values) {
    static_assert(
        sizeof(T) <= 16 * gk_ArchiveSize<T>::least,
        "a count must not take much more memory than there are bytes: specialise gk_ArchiveSize, or keep large "
        "objects by handle");
    gk_ArchiveOperation operation(ar);
    const std::size_t count = ar.vectorHeader(values.size(), gk_ArchiveSize<T>::least);
    if constexpr (std::is_same_v<T, gkVector<2>>) {
        if (ar.isLoading()) {
            values.clear();
            values.resize(count);
        }
        ar.vectors(values.data(), count);
    } else {
        gk_ArchiveElements elements(ar, count, gk_ArchiveSize<T>::least);
        if (ar.isLoading()) {
            values.clear();
            values.resize(elements.held());
        }
        for (std::size_t i = 0; i < count; ++i) {
            elements.next();
            if (i >= elements.held()) {
                T rest = T();
                ar || rest;
            } else if constexpr (std::is_same_v<T, bool>) {
                bool value = values[i];
                ar || value;
                values[i] = value;
            } else {
                ar || values[i];
            }
        }
    }
    operation.complete();
    return ar;
}

#endif
