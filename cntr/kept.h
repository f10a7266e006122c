/// \file
/// Slots for results that a shape keeps until it changes.
#ifndef GK_CNTR_KEPT_H
#define GK_CNTR_KEPT_H

#include <memory>
#include <utility>

/// A kept result and the mark that it is valid. The value may outlive its validity: some slots are read without
/// it.
template <class T> struct gk_Kept {
    bool valid = false;
    T value{};
};

/// A pointer that owns its object and copies it when it is copied; null by default.
template <class T> class gk_Owned {
public:
    gk_Owned() = default;
    gk_Owned(const gk_Owned& other) : object_(other.object_ ? std::make_unique<T>(*other.object_) : nullptr) {}
    gk_Owned(gk_Owned&& other) noexcept = default;
    gk_Owned& operator=(gk_Owned other) noexcept {
        object_ = std::move(other.object_);
        return *this;
    }
    ~gk_Owned() = default;

    const T* get() const { return object_.get(); }
    T* get() { return object_.get(); }
    /// The object, made by its default constructor when there is none yet.
    T& made() {
        if (!object_) object_ = std::make_unique<T>();
        return *object_;
    }
    void reset() { object_.reset(); }

private:
    std::unique_ptr<T> object_;
};

#endif
