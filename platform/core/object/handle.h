/// \file
/// Shared handles to counted objects.
#ifndef GK_PLATFORM_CORE_OBJECT_HANDLE_H
#define GK_PLATFORM_CORE_OBJECT_HANDLE_H

#include "platform/core/object/rep_base.h"
#include "platform/export.h"

#include <cstddef>
#include <type_traits>
#include <utility>

/// Throws gkBadPointer: a null handle was dereferenced.
[[noreturn]] GKCNTR_API void gk_ThrowBadPointer();

/// What gkPtrHandle and gkPtrHandle_const have in common; `Object` is T or const T.
///
/// Beside the typed pointer it keeps the counted base, so only the constructor from a pointer, conversions
/// between different types and dereferencing need a complete T: a class may hold a handle to a class that
/// derives from it.
template <class Object> class gk_Handle {
public:
    /// The object, or null.
    Object* get() const noexcept { return object_; }
    /// Throws gkBadPointer when null.
    Object* operator->() const {
        if (!object_) gk_ThrowBadPointer();
        return object_;
    }
    /// Throws gkBadPointer when null.
    Object& operator*() const { return *operator->(); }
    bool isNull() const noexcept { return object_ == nullptr; }
    explicit operator bool() const noexcept { return object_ != nullptr; }
    /// The counted base of the object, or null: the object's identity, whatever type the handle sees.
    const gkRepBase* rep() const noexcept { return hold_.get(); }

protected:
    gk_Handle() noexcept = default;
    explicit gk_Handle(Object* object) noexcept : object_(object), hold_(object) {}
    template <class Other>
    gk_Handle(const gk_Handle<Other>& other, std::nullptr_t) noexcept
        : object_(other.get()), hold_(other.rep()) {}
    gk_Handle(const gk_Handle&) noexcept = default;
    gk_Handle(gk_Handle&& other) noexcept
        : object_(std::exchange(other.object_, nullptr)), hold_(std::move(other.hold_)) {}
    // Through a copy: the former object is let go last, when this handle is whole again.
    gk_Handle& operator=(const gk_Handle& other) noexcept {
        if (this == &other) return *this;
        gk_Handle copy(other);
        swap(copy);
        return *this;
    }
    gk_Handle& operator=(gk_Handle&& other) noexcept {
        gk_Handle moved(std::move(other));
        swap(moved);
        return *this;
    }
    ~gk_Handle() = default;

private:
    void swap(gk_Handle& other) noexcept {
        std::swap(object_, other.object_);
        hold_.swap(other.hold_);
    }

    Object* object_ = nullptr;
    gk_RepHold hold_;
};

/// A shared handle to a `T` that derives from gkRepBase. The object lives as long as its last holder.
///
/// Dereferencing a null handle throws gkBadPointer. Two words big. T may be incomplete where a handle is a
/// member, is copied, compared or destroyed. Handles to one object may be used on several threads, one handle
/// may not.
template <class T> class gkPtrHandle : public gk_Handle<T> {
public:
    /// Null.
    gkPtrHandle() noexcept = default;
    /// Takes part in the ownership of `object`, which was made with new; null gives a null handle.
    explicit gkPtrHandle(T* object) noexcept : gk_Handle<T>(object) {}
    /// From a handle to a derived class.
    template <class Derived, class = std::enable_if_t<std::is_convertible_v<Derived*, T*>>>
    gkPtrHandle(const gkPtrHandle<Derived>& other) noexcept : gk_Handle<T>(other, nullptr) {}
};

/// A shared handle through which the object can only be read; otherwise like gkPtrHandle.
template <class T> class gkPtrHandle_const : public gk_Handle<const T> {
public:
    /// Null.
    gkPtrHandle_const() noexcept = default;
    /// Takes part in the ownership of `object`, which was made with new; null gives a null handle.
    explicit gkPtrHandle_const(const T* object) noexcept : gk_Handle<const T>(object) {}
    /// From a handle to the same or a derived class.
    template <class Derived, class = std::enable_if_t<std::is_convertible_v<Derived*, const T*>>>
    gkPtrHandle_const(const gkPtrHandle<Derived>& other) noexcept : gk_Handle<const T>(other, nullptr) {}
    /// From a handle to a derived class.
    template <class Derived, class = std::enable_if_t<std::is_convertible_v<const Derived*, const T*>>>
    gkPtrHandle_const(const gkPtrHandle_const<Derived>& other) noexcept : gk_Handle<const T>(other, nullptr) {}
};

/// True when both hold the same object or both are null; the objects' values are not looked at.
template <class A, class B> bool operator==(const gk_Handle<A>& a, const gk_Handle<B>& b) noexcept {
    return a.rep() == b.rep();
}
template <class A, class B> bool operator!=(const gk_Handle<A>& a, const gk_Handle<B>& b) noexcept {
    return !(a == b);
}

#endif
