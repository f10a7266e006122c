/// \file
/// An archive in a file.
#ifndef GK_PLATFORM_CORE_ARCHIVE_ARCHIVE_FILE_H
#define GK_PLATFORM_CORE_ARCHIVE_ARCHIVE_FILE_H

#include "platform/core/archive/archive_buffer.h"
#include "platform/core/file/file_name.h"
#include "platform/export.h"

/// Saves into, or loads from, a file. Both keep the whole archive in memory.
class GKCNTR_API gkArchiveFile : public gk_ArchiveBuffer {
public:
    enum Mode { eLoad = 0, eSave = 1 };

    /// Loading reads the whole file and checks the header; throws CannotOpen (also when it is not a regular
    /// file), ReadFailed, NotAnArchive, UnknownFormat or Truncated. Saving does not touch the file before
    /// close().
    gkArchiveFile(const gkFileName& name, Mode mode);
    /// Never throws. A saving archive that was not closed leaves no file.
    ~gkArchiveFile() override;

    /// Saving: writes the file, replacing an older one, or throws WriteFailed; what the file holds then is
    /// undefined; std::bad_alloc leaves an older file as it was. Loading: throws TrailingBytes when not
    /// everything was read. A second call does nothing.
    void close();

private:
    gkFileName name_;
    bool closed_ = false;
};

#endif
