#include "platform/core/archive/archive_references.h"

#include "platform/core/archive/archive.h"

#include <algorithm>
#include <utility>

gk_ArchiveReferences::Passing::Passing(gk_ArchiveReferences& references, std::uint32_t number,
                                       const gkPersistent& object)
    : references_(references), number_(number), object_(object) {
    references_.passing_.push_back(number_);
    const auto mark = references_.marks_.find(&object_);
    if (mark != references_.marks_.end()) former_ = std::exchange(mark->second, false);
    references_.at(number_).passing = true;
}

gk_ArchiveReferences::Passing::~Passing() {
    // An object has a mark for good only when it has passed in place; most never do.
    const auto mark = references_.marks_.find(&object_);
    if (mark != references_.marks_.end()) {
        mark->second = former_;
        if (!former_) references_.marks_.erase(mark);
    }
    references_.at(number_).passing = false;
    references_.passing_.pop_back();
    references_.raiseHolder(references_.at(number_).height);
}

bool gk_ArchiveReferences::isVisited(const gkPersistent& object) const {
    const auto found = marks_.find(&object);
    return found != marks_.end() && found->second;
}

std::uint32_t gk_ArchiveReferences::nextNumber() const {
    if (passing_.size() >= static_cast<std::size_t>(gkArchive::depthLimit)) throw gkArchive::TooDeep();
    if (entries_.size() >= 0xFFFFFFFFu) throw gkArchive::ValueOutOfRange(L"too many objects for one archive");
    return static_cast<std::uint32_t>(entries_.size() + 1);
}

void gk_ArchiveReferences::refer(std::uint32_t number) {
    const Entry& entry = at(number);
    if (entry.passing) return;
    if (passing_.size() + static_cast<std::size_t>(entry.height) >
        static_cast<std::size_t>(gkArchive::depthLimit))
        throw gkArchive::TooDeep();
    raiseHolder(entry.height);
}

std::uint32_t gk_ArchiveReferences::numberOf(const gkPersistent& object) const {
    const auto found = numbers_.find(&object);
    return found == numbers_.end() ? 0 : found->second;
}

void gk_ArchiveReferences::addShared(const gkPersistent& object, const gkRepBase* rep) {
    Entry entry;
    entry.hold = gk_RepHold(rep);
    entries_.push_back(std::move(entry));
    numbers_[&object] = static_cast<std::uint32_t>(entries_.size());
}

void gk_ArchiveReferences::addOwned(const gkPersistent& object) {
    Entry entry;
    entry.owned = true;
    entries_.push_back(std::move(entry));
    numbers_[&object] = static_cast<std::uint32_t>(entries_.size());
}

void gk_ArchiveReferences::add(std::unique_ptr<gkPersistent> object, gkRepBase* rep) {
    Entry entry;
    entry.object = object.get();
    entry.rep = rep;
    entry.sole = std::move(object);
    if (rep) {
        entry.hold = gk_RepHold(rep);
        static_cast<void>(entry.sole.release()); // the hold owns it now
    }
    entries_.push_back(std::move(entry));
}

gkPersistent* gk_ArchiveReferences::handOut(std::uint32_t number) {
    Entry& entry = at(number);
    if (entry.rep && entry.rep->references() != 1) return nullptr;
    entry.hold.detach();
    static_cast<void>(entry.sole.release()); // the caller owns it now
    entry.rep = nullptr;
    return std::exchange(entry.object, nullptr);
}

void gk_ArchiveReferences::breakRings(std::size_t first) noexcept {
    for (std::size_t i = first; i < entries_.size(); ++i) {
        if (entries_[i].rep) entries_[i].rep->forgetHandles();
    }
}

void gk_ArchiveReferences::raiseHolder(int height) {
    if (passing_.empty()) return;
    int& holder = at(passing_.back()).height;
    holder = std::max(holder, height + 1);
}
