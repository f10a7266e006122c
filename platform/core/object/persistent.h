/// \file
/// The base of everything that can be written to and read from an archive.
#ifndef GK_PLATFORM_CORE_OBJECT_PERSISTENT_H
#define GK_PLATFORM_CORE_OBJECT_PERSISTENT_H

#include "platform/export.h"

class gkArchive;

/// An object with an archive record, and a mark that tells whether it has changed.
///
/// The order of the virtual operations is part of the binary interface.
///
/// A class writes its record in `dispatchSerialize`: nothing when haveVisited(ar); otherwise its version byte,
/// its own serialize_(ar, version), called qualified, and setVisited(ar) at the end. A base part is archived by
/// calling the base's dispatchSerialize, which tests and sets the same mark; that works because each level sets
/// the mark only after its own content.
class GKCNTR_API gkPersistent {
public:
    virtual ~gkPersistent();

protected:
    /// Writes or reads the record. This one is the base record: one byte, 0.
    ///
    /// The base record is a part of the record of the class that asks for it, so it neither tests nor sets the
    /// visited mark. Throws gkArchive::UnknownVersion("gkPersistent", 0) when the byte read is not 0.
    virtual void dispatchSerialize(gkArchive& ar);

public:
    /// Rebuilds what no record holds, after an object has been loaded. The default does nothing; archives never
    /// call it.
    virtual void reInit();
    /// Loads this one object from a loading archive: dispatchSerialize, then reInit(). Archives never call it.
    virtual void loadSimple(gkArchive& ar);

    /// Marks the object as changed. Const, because filling a cache in a const query is a change worth saving.
    void mutating() const { changed_ = true; }
    /// True since the first mutating() after construction or clearChanged().
    bool isChanged() const { return changed_; }
    /// Takes the mark away, for instance when the object has been saved.
    void clearChanged() const { changed_ = false; }

    /// True when this object's record has already passed through `ar` in place. The mark lives in the archive,
    /// under this object's address: an object must stay where it is until the archive has gone.
    bool haveVisited(const gkArchive& ar) const;
    /// Sets that mark.
    void setVisited(gkArchive& ar) const;

protected:
    gkPersistent() = default;
    /// The changed mark belongs to the object, not to its value: a copy starts without it.
    gkPersistent(const gkPersistent&) {}
    /// The changed mark stays as it is.
    gkPersistent& operator=(const gkPersistent&) { return *this; }

private:
    friend class gkArchive;

    mutable bool changed_ = false;
};

#endif
