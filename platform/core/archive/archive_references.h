/// \file
/// What an archive remembers of the objects that passed through it.
#ifndef GK_PLATFORM_CORE_ARCHIVE_ARCHIVE_REFERENCES_H
#define GK_PLATFORM_CORE_ARCHIVE_ARCHIVE_REFERENCES_H

#include "platform/core/object/persistent.h"
#include "platform/core/object/rep_base.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <unordered_map>
#include <vector>

/// Numbers, visited marks and nesting of the objects of one archive.
///
/// Shared objects are held until the archive goes: when loading, so that nothing half read is freed under the
/// reader's feet; when saving, so that no other object takes the address of one that has a number already.
///
/// The bound on nesting is one on the objects, not only on the recursion of this reader: an object knows how
/// deep the references below it go, and a reference to a finished object counts all of them. Otherwise bytes
/// could build a chain of any length from its far end, and freeing it would recurse as deep. Rings count up to
/// where they close.
class gk_ArchiveReferences {
public:
    /// While it exists, the object `number` is being passed. Leaves its visited mark as it was.
    class Passing {
    public:
        Passing(gk_ArchiveReferences& references, std::uint32_t number, const gkPersistent& object);
        ~Passing();
        Passing(const Passing&) = delete;
        Passing& operator=(const Passing&) = delete;

    private:
        gk_ArchiveReferences& references_;
        std::uint32_t number_;
        const gkPersistent& object_;
        bool former_ = false;
    };

    bool isVisited(const gkPersistent& object) const;
    void visited(const gkPersistent& object, bool mark) { marks_[&object] = mark; }

    std::size_t size() const { return entries_.size(); }
    /// The number the next object will get. Throws ValueOutOfRange when there is none, TooDeep when nested too
    /// deeply.
    std::uint32_t nextNumber() const;
    /// Takes note of a further reference to an object. Throws TooDeep.
    void refer(std::uint32_t number);

    /// Saving: the object's number, 0 when it has none.
    std::uint32_t numberOf(const gkPersistent& object) const;
    bool isOwned(std::uint32_t number) const { return at(number).owned; }
    void addShared(const gkPersistent& object, const gkRepBase* rep);
    void addOwned(const gkPersistent& object);
    /// The owned object has been written: its owner may free it now, and another may come to its address.
    void forgetOwned(const gkPersistent& object) { numbers_.erase(&object); }

    /// Loading: takes the object over. `rep` is its counted base, or null.
    void add(std::unique_ptr<gkPersistent> object, gkRepBase* rep);
    /// The object, or null when it has been handed out.
    gkPersistent* object(std::uint32_t number) const { return at(number).object; }
    /// Gives the object away; null when a handle holds it.
    gkPersistent* handOut(std::uint32_t number);
    /// Tells the objects from `first` on to let go of their handles.
    void breakRings(std::size_t first) noexcept;

private:
    struct Entry {
        gkPersistent* object = nullptr; // loading only
        gkRepBase* rep = nullptr;       // loading only
        gk_RepHold hold;
        std::unique_ptr<gkPersistent> sole; // an object without a count
        int height = 1;                     // levels of references, this object included
        bool passing = false;
        bool owned = false;
    };
    const Entry& at(std::uint32_t number) const { return entries_[number - 1]; }
    Entry& at(std::uint32_t number) { return entries_[number - 1]; }
    void raiseHolder(int height);

    std::deque<Entry> entries_; // number 1 first; grows without a second copy of itself
    std::vector<std::uint32_t> passing_;
    std::unordered_map<const gkPersistent*, std::uint32_t> numbers_;
    std::unordered_map<const gkPersistent*, bool> marks_;
};

#endif
