/// \file
/// Value types in an archive, beside gkVector<2>, which every archive knows.
#ifndef GK_PLATFORM_CORE_ARCHIVE_ARCHIVE_VALUES_H
#define GK_PLATFORM_CORE_ARCHIVE_ARCHIVE_VALUES_H

#include "platform/core/archive/archive.h"
#include "platform/core/math/matrix.h"
#include "platform/core/math/xform.h"
#include "platform/core/shapes/rect.h"
#include "platform/export.h"

/// The angle as one double.
GKCNTR_API gkArchive& operator||(gkArchive& ar, gkRadian& value);
/// The step as one byte.
GKCNTR_API gkArchive& operator||(gkArchive& ar, gkAngle8& value);
/// The four elements, row by row.
GKCNTR_API gkArchive& operator||(gkArchive& ar, gkMatrix<2>& value);
/// The matrix, then the translation.
GKCNTR_API gkArchive& operator||(gkArchive& ar, gkXform<2>& value);
/// Upper-left, then lower-right corner; reading corners that are out of order gives the rectangle they span.
GKCNTR_API gkArchive& operator||(gkArchive& ar, gkRect& value);

template <> struct gk_ArchiveSize<gkRadian> { static constexpr std::size_t least = 8; };
template <> struct gk_ArchiveSize<gkMatrix<2>> { static constexpr std::size_t least = 32; };
template <> struct gk_ArchiveSize<gkXform<2>> { static constexpr std::size_t least = 48; };
template <> struct gk_ArchiveSize<gkRect> { static constexpr std::size_t least = 32; };

#endif
