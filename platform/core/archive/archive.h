/// \file
/// The archive: objects and values as bytes, the same bytes on every platform.
#ifndef GK_PLATFORM_CORE_ARCHIVE_ARCHIVE_H
#define GK_PLATFORM_CORE_ARCHIVE_ARCHIVE_H

#include "platform/core/object/persistent.h"
#include "platform/core/object/rep_base.h"
#include "platform/export.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

class gk_ArchiveReferences;
template <int N> class gkVector;

/// Writes values into bytes or reads them out of bytes; one operator, `||`, does either, as the archive's
/// direction says.
///
/// **Bytes.** Little-endian, every width fixed, no padding; docs/format.md has them all. The archive begins
/// with a header that names the format.
///
/// **Objects.** `ar || object` passes the object's record in place: the same object twice is written once,
/// because the archive keeps a visited mark under the object's address (so an object must stay where it is
/// while the archive lives). `ar || handle` passes a reference: the first one brings the object's class name
/// and its whole record, further ones only its number, so that what was shared, or a ring, is so again after
/// reading. A reference writes the whole record even when the object has been visited in place before, and
/// leaves the mark as it found it: who reads in place and who creates by reference fill two different objects,
/// and both need a whole record.
///
/// **Trust.** Reading trusts nothing: any bytes at all either give objects or one of the errors below. Counts
/// are checked against the bytes that are left before memory is taken, and no two vectors take memory for the
/// same bytes; so reading takes at most 16 bytes of memory for each byte of the archive. Objects may refer to
/// each other `depthLimit` deep. After an error, std::bad_alloc as well, the object that was being read may be
/// partly loaded and the archive is of no further use; objects that the archive made for the failed operation
/// have been told to let go of their handles (gkRepBase::forgetHandles). Rings of handles that were read
/// without error belong to the user.
///
/// One archive, one thread.
class GKCNTR_API gkArchive {
public:
    /// All errors below, catchable at once.
    class Errors;
    class UnknownVersion;  ///< a record's version byte is not one that the class knows
    class NotAnArchive;    ///< the bytes do not begin as an archive does
    class UnknownFormat;   ///< an archive of a later format
    class Truncated;       ///< the bytes end too early
    class TrailingBytes;   ///< finish(): the bytes go on
    class CountTooLarge;   ///< a count that the bytes left cannot hold
    class UnknownType;     ///< a class that is not registered
    class WrongType;       ///< an object that is not of the class asked for
    class BadReference;    ///< an object number out of sequence, or an object both owned and shared
    class BadValue;        ///< a bool that is not 0 or 1, a text that is not UTF-8
    class ValueOutOfRange; ///< saving a number or a count that 32 bits cannot hold
    class TooDeep;         ///< more than depthLimit levels of references
    class CannotOpen;      ///< a file that cannot be opened
    class ReadFailed;      ///< a file that cannot be read to its end
    class WriteFailed;     ///< a file that cannot be written, or finish() after a failed save
    class WrongDirection;  ///< reading from a saving archive or writing to a loading one

    /// How deep objects may refer to each other. Each level takes some hundred bytes of stack, and whoever
    /// frees or walks the objects recurses as deep again; region holes in images are a handful of levels deep.
    static constexpr int depthLimit = 200;

    gkArchive(const gkArchive&) = delete;
    gkArchive& operator=(const gkArchive&) = delete;
    virtual ~gkArchive();

    bool isLoading() const { return loading_; }
    bool isSaving() const { return !loading_; }

    /// One byte, 0 or 1; reading anything else throws BadValue.
    gkArchive& operator||(bool& value);
    /// Two bytes.
    gkArchive& operator||(unsigned short& value);
    /// Four bytes, signed. Saving a value beyond 32 bits throws ValueOutOfRange and writes nothing.
    gkArchive& operator||(long& value);
    /// Four bytes, unsigned. Saving a value beyond 32 bits throws ValueOutOfRange and writes nothing.
    gkArchive& operator||(unsigned long& value);
    /// The four bytes of the IEEE value; every bit is kept, also in a NaN.
    gkArchive& operator||(float& value);
    /// The eight bytes of the IEEE value; every bit is kept, also in a NaN.
    gkArchive& operator||(double& value);
    /// The count of bytes as 32 bits, then the bytes, which must be UTF-8: BadValue otherwise, in either
    /// direction.
    gkArchive& operator||(std::string& value);
    /// The same bytes as the std::string of the same text. BadValue when the text is not Unicode.
    gkArchive& operator||(std::wstring& value);
    /// One byte.
    gkArchive& byte(unsigned char& value);

    /// Writes an object that no handle holds: number, class name, record. Every call writes an object of its
    /// own.
    ///
    /// Null is written as such. Throws UnknownType when its exact class is not registered, and BadReference
    /// when it, or an object inside it, has been or is being written by handle as well.
    void writeObject(const gkPersistent* object);
    /// Reads what writeObject wrote; the object now belongs to the caller, who deletes it. Null when null was
    /// written.
    ///
    /// Throws BadReference when the object had been read before or a handle holds it.
    gkPersistent* readObject();

    /// Ends the archive. Loading: throws TrailingBytes when bytes are left. Saving: throws WriteFailed when an
    /// object was left half written by an error.
    void finish() const;

    /// For operators of handles: writes a reference to the object, given by both its bases (both null for
    /// null).
    void writeReference(const gkPersistent* object, const gkRepBase* rep);
    /// For operators of handles: the object of the next reference, held by the archive as well. `fits` tells
    /// whether an object is of the class asked for; WrongType when not.
    gkPersistent* readReference(bool (*fits)(gkPersistent*));
    /// For operators of vectors: writes, or reads and returns, format byte and count of a vector.
    ///
    /// Reading throws UnknownVersion without text when the format byte is not 0, and CountTooLarge when `count`
    /// elements of at least `leastBytes` bytes each are more than the bytes left. Saving throws ValueOutOfRange
    /// beyond 32 bits.
    std::size_t vectorHeader(std::size_t count, std::size_t leastBytes);

    /// For operators of vectors: x, then y, of `count` vectors one after the other, as single ones pass.
    void vectors(gkVector<2>* values, std::size_t count);

    /// The object's record, in place; nothing when it has been visited. `ar || object` goes through here.
    gkArchive& inPlace(gkPersistent& object);

    /// The visited mark of an object; gkPersistent::haveVisited and setVisited go through here.
    bool isVisited(const gkPersistent& object) const;
    void visited(const gkPersistent& object, bool mark);

protected:
    enum class Direction { eSave, eLoad };
    explicit gkArchive(Direction direction);

    /// Writes or checks the header. A derived class calls it once, in its constructor, when the bytes can flow.
    void open();

    /// Appends bytes.
    virtual void putBytes(const unsigned char* bytes, std::size_t count) = 0;
    /// Takes the next `count` bytes; called only when there are as many.
    virtual void getBytes(unsigned char* bytes, std::size_t count) = 0;
    /// How many bytes are left to read.
    virtual std::size_t bytesLeft() const = 0;

private:
    friend class gk_ArchiveOperation;
    friend class gk_ArchiveElements;

    void putNumber(std::uint64_t value, int bytes);
    std::uint64_t getNumber(int bytes);
    void putText(const std::string& utf8);
    std::string getText();
    void take(unsigned char* bytes, std::size_t count);
    void require(bool loading) const;
    void writeNew(const gkPersistent& object, const gkRepBase* rep, bool owned);
    gkPersistent* readNew(bool (*fits)(gkPersistent*));
    void endOperation(bool completed) noexcept;

    bool loading_;
    bool failed_ = false;
    int operations_ = 0;
    std::size_t firstOfOperation_ = 0;
    std::size_t bytesKept_ = 0;
    std::unique_ptr<gk_ArchiveReferences> references_;
};

/// One operation on an archive that may contain others. When the outermost one ends without complete(), an
/// error has passed through, and the archive cleans up after it.
class GKCNTR_API gk_ArchiveOperation {
public:
    explicit gk_ArchiveOperation(gkArchive& archive);
    ~gk_ArchiveOperation();
    gk_ArchiveOperation(const gk_ArchiveOperation&) = delete;
    gk_ArchiveOperation& operator=(const gk_ArchiveOperation&) = delete;
    void complete() { completed_ = true; }

private:
    gkArchive& archive_;
    bool completed_ = false;
};

/// The elements of a vector while it is being read. The bytes that those to come take at least are kept for
/// them, so that vectors within an element do not take memory for the same bytes once more, on every level of
/// nesting.
class gk_ArchiveElements {
public:
    /// What gkArchive::vectorHeader was asked and has answered.
    gk_ArchiveElements(gkArchive& archive, std::size_t count, std::size_t leastBytes)
        : archive_(archive), held_(count), leastBytes_(leastBytes) {
        if (archive.isSaving()) return;
        const std::size_t left = archive.bytesLeft();
        const std::size_t free = left > archive.bytesKept_ ? left - archive.bytesKept_ : 0;
        if (held_ > free / leastBytes) held_ = free / leastBytes;
        kept_ = count * leastBytes;
        archive.bytesKept_ += kept_;
    }
    ~gk_ArchiveElements() { archive_.bytesKept_ -= kept_; }
    gk_ArchiveElements(const gk_ArchiveElements&) = delete;
    gk_ArchiveElements& operator=(const gk_ArchiveElements&) = delete;

    /// How many there is memory for. When these are not all, a vector around will find too few bytes: then the
    /// others are read, for the error that comes first, but not held.
    std::size_t held() const { return held_; }
    /// The next element is about to pass: its bytes are its own now.
    void next() {
        if (kept_ == 0) return;
        kept_ -= leastBytes_;
        archive_.bytesKept_ -= leastBytes_;
    }

private:
    gkArchive& archive_;
    std::size_t held_;
    std::size_t leastBytes_;
    std::size_t kept_ = 0;
};

/// One byte.
GKCNTR_API gkArchive& operator||(gkArchive& ar, unsigned char& value);

/// The record of the object, in place; nothing when it has been visited.
GKCNTR_API gkArchive& operator||(gkArchive& ar, gkPersistent& object);

#include "platform/core/archive/archive_errors.h"
#include "platform/core/archive/archive_handle.h"
#include "platform/core/archive/archive_vector.h"

#endif
