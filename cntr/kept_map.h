/// \file
/// Results that a shape keeps by a caller's argument.
#ifndef GK_CNTR_KEPT_MAP_H
#define GK_CNTR_KEPT_MAP_H

#include <cstddef>
#include <utility>
#include <vector>

/// Values by key, in the keys' order. For a handful: an entry is found and inserted in one short list, which is
/// not there before the first.
template <class Key, class Value, class Less> class gk_KeptMap {
public:
    std::size_t size() const { return entries_.size(); }
    void clear() { entries_ = Entries(); }

    /// Null for a key that is not there.
    const Value* find(const Key& key) const {
        // Mostly the very key comes again, and equal ones are told sooner than ordered ones.
        for (const Entry& entry : entries_)
            if (entry.first == key) return &entry.second;
        const std::size_t place = placeOf(key);
        return place < entries_.size() && !Less()(key, entries_[place].first) ? &entries_[place].second
                                                                              : nullptr;
    }
    /// For a key that is not there.
    void insert(const Key& key, const Value& value) {
        const auto place = static_cast<std::ptrdiff_t>(placeOf(key));
        entries_.insert(entries_.begin() + place, Entry(key, value));
    }
    void erase(std::size_t position) {
        entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(position));
    }
    /// The next insert asks for no memory.
    void makeRoom() { entries_.reserve(entries_.size() + 1); }

    /// The first position whose key is not less.
    std::size_t placeOf(const Key& key) const {
        std::size_t place = 0;
        while (place < entries_.size() && Less()(entries_[place].first, key)) ++place;
        return place;
    }

private:
    using Entry = std::pair<Key, Value>;
    using Entries = std::vector<Entry>;

    Entries entries_;
};

#endif
