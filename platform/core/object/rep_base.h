/// \file
/// The base of everything that handles share: an intrusive reference count.
#ifndef GK_PLATFORM_CORE_OBJECT_REP_BASE_H
#define GK_PLATFORM_CORE_OBJECT_REP_BASE_H

#include "platform/export.h"

#include <atomic>

/// Counts the handles that hold this object; the last one to let go deletes it.
///
/// Inherit it virtually, so that an object with several bases has one count. A fresh object has count 0 and
/// belongs to whoever made it, until the first handle takes part. The count belongs to the object, not to its
/// value: copying or assigning leaves both counts alone.
///
/// Threads: the count is atomic, so handles to one object may be copied and dropped on any thread. The object
/// itself is not protected.
class GKCNTR_API gkRepBase {
public:
    gkRepBase() noexcept = default;
    gkRepBase(const gkRepBase&) noexcept {}
    gkRepBase& operator=(const gkRepBase&) noexcept { return *this; }
    virtual ~gkRepBase();

    /// Lets go of every handle this object holds. The default has none and does nothing.
    ///
    /// An archive calls it on the objects it made when reading them failed: their handles may form rings that
    /// would keep each other alive for ever. Override it in a class whose handles can lead back to itself.
    virtual void forgetHandles() noexcept;

    /// How many handles hold the object. Exact only while no other thread copies or drops one.
    int references() const noexcept { return count_.load(std::memory_order_acquire); }

    /// Takes part in the ownership. Handles do this; nobody else needs to.
    void addRef() const noexcept { count_.fetch_add(1, std::memory_order_relaxed); }
    /// Ends one part of the ownership; deletes the object with the last one.
    void releaseRef() const noexcept;
    /// Ends one part of the ownership without ever deleting: with the last one, the object belongs to the
    /// caller.
    void dropRef() const noexcept { count_.fetch_sub(1, std::memory_order_acq_rel); }

private:
    mutable std::atomic<int> count_{0};
};

/// One part in the ownership of a counted object, or none. What both kinds of handles are made of.
class gk_RepHold {
public:
    gk_RepHold() noexcept = default;
    explicit gk_RepHold(const gkRepBase* object) noexcept : object_(object) {
        if (object_) object_->addRef();
    }
    gk_RepHold(const gk_RepHold& other) noexcept : gk_RepHold(other.object_) {}
    gk_RepHold(gk_RepHold&& other) noexcept : object_(other.object_) { other.object_ = nullptr; }
    gk_RepHold& operator=(gk_RepHold other) noexcept {
        swap(other);
        return *this;
    }
    ~gk_RepHold() {
        if (object_) object_->releaseRef();
    }

    void swap(gk_RepHold& other) noexcept {
        const gkRepBase* const mine = object_;
        object_ = other.object_;
        other.object_ = mine;
    }
    const gkRepBase* get() const noexcept { return object_; }
    /// Lets go without deleting; the object belongs to the caller when this was the only part.
    void detach() noexcept {
        if (object_) object_->dropRef();
        object_ = nullptr;
    }

private:
    const gkRepBase* object_ = nullptr;
};

#endif
