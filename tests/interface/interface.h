// Assertions at compile time about one member of a class: that it exists with exactly this return type, these
// parameters and this constness, who can reach it, and whether it is virtual. A file that compiles has passed.
#ifndef GK_TESTS_INTERFACE_INTERFACE_H
#define GK_TESTS_INTERFACE_INTERFACE_H

#include <type_traits>
#include <utility>

template <class Class, class Member> using MemberOf = Member Class::*;

// An explicit instantiation may name what cannot be reached, so it tells that a private member is there.
template <class Pointer, Pointer member> struct Named {};

// Whether Base is a virtual base: then a pointer to it cannot be cast down at compile time.
template <class Derived, class Base, class = void> struct IsVirtualBase : std::is_base_of<Base, Derived> {};
template <class Derived, class Base>
struct IsVirtualBase<Derived, Base, std::void_t<decltype(static_cast<Derived*>(std::declval<Base*>()))>>
    : std::false_type {};

// Whether a const object can be assigned, with the usual result.
template <class Class>
constexpr bool isAssignable =
    std::is_same_v<Class&, decltype(std::declval<Class&>() = std::declval<const Class&>())>;

// What no operation returns: overriding a virtual operation with it would not compile.
struct OtherResult;

// clang-format off
#define GK_JOINED_(a, b) a##b
#define GK_JOINED(a, b) GK_JOINED_(a, b)
// Unique in its file, for there is one use in a line.
#define GK_UNIQUE(name) GK_JOINED(name, __LINE__)

// Whether &Shape::name can be taken as a Pointer where this stands.
#define GK_REACHES(name, ...)                                                                    \
    template <class Shape, class = void> struct Reaches : std::false_type {};                    \
    template <class Shape>                                                                       \
    struct Reaches<Shape, std::void_t<decltype(static_cast<__VA_ARGS__>(&Shape::name))>> : std::true_type {}

// The two places to reach from: anywhere, and a class derived from the class.
#define GK_PLACES(Class, name, ...)                                                              \
    namespace {                                                                                  \
    namespace GK_UNIQUE(anywhere) { GK_REACHES(name, __VA_ARGS__); }                             \
    struct GK_UNIQUE(Derived) : Class { GK_REACHES(name, __VA_ARGS__); };                        \
    constexpr bool GK_UNIQUE(fromAnywhere) = GK_UNIQUE(anywhere)::Reaches<Class>::value;         \
    constexpr bool GK_UNIQUE(fromDerived) = GK_UNIQUE(Derived)::Reaches<GK_UNIQUE(Derived)>::value; \
    }

#define GK_IS_PUBLIC(Class, name, ...)                                                           \
    GK_PLACES(Class, name, __VA_ARGS__)                                                          \
    static_assert(GK_UNIQUE(fromAnywhere) && GK_UNIQUE(fromDerived), #Class "::" #name " is public")
#define GK_IS_PROTECTED(Class, name, ...)                                                        \
    GK_PLACES(Class, name, __VA_ARGS__)                                                          \
    static_assert(!GK_UNIQUE(fromAnywhere) && GK_UNIQUE(fromDerived), #Class "::" #name " is protected")
#define GK_IS_PRIVATE(Class, name, ...)                                                          \
    GK_PLACES(Class, name, __VA_ARGS__)                                                          \
    static_assert(!GK_UNIQUE(fromAnywhere) && !GK_UNIQUE(fromDerived), #Class "::" #name " is private"); \
    template struct Named<__VA_ARGS__, &Class::name>

#define GK_IS_VIRTUAL(Class, Return, name, parameters, constness)                                \
    namespace { struct GK_UNIQUE(Override) : Class { Return name parameters constness override = 0; }; }
#define GK_IS_NOT_VIRTUAL(Class, name, parameters, constness)                                    \
    namespace { struct GK_UNIQUE(Hiding) : Class { OtherResult name parameters constness; }; }

// GK_PUBLIC(gkContour, double, length, (), const); the last argument is empty for an operation that is not const.
#define GK_PUBLIC(Class, Return, name, parameters, constness)                                    \
    GK_IS_NOT_VIRTUAL(Class, name, parameters, constness)                                        \
    GK_IS_PUBLIC(Class, name, MemberOf<Class, Return parameters constness>)
#define GK_PUBLIC_VIRTUAL(Class, Return, name, parameters, constness)                            \
    GK_IS_VIRTUAL(Class, Return, name, parameters, constness)                                    \
    GK_IS_PUBLIC(Class, name, MemberOf<Class, Return parameters constness>)
#define GK_PROTECTED(Class, Return, name, parameters, constness)                                 \
    GK_IS_NOT_VIRTUAL(Class, name, parameters, constness)                                        \
    GK_IS_PROTECTED(Class, name, MemberOf<Class, Return parameters constness>)
#define GK_PROTECTED_VIRTUAL(Class, Return, name, parameters, constness)                         \
    GK_IS_VIRTUAL(Class, Return, name, parameters, constness)                                    \
    GK_IS_PROTECTED(Class, name, MemberOf<Class, Return parameters constness>)
// The same for one overload of a name that is public otherwise. GCC 12 tells the access of an overload only where it
// is called, so the place is tried with a call.
#define GK_CALLS(...)                                                                            \
    template <class Shape, class = void> struct Calls : std::false_type {};                      \
    template <class Shape>                                                                       \
    struct Calls<Shape, std::void_t<decltype(std::declval<Shape&>().__VA_ARGS__)>> : std::true_type {}
#define GK_PROTECTED_OVERLOAD(Class, call, Return, name, parameters, constness)                  \
    GK_IS_NOT_VIRTUAL(Class, name, parameters, constness)                                        \
    namespace {                                                                                  \
    namespace GK_UNIQUE(anywhere) { GK_CALLS(call); }                                            \
    struct GK_UNIQUE(Derived) : Class { GK_CALLS(call); };                                       \
    }                                                                                            \
    static_assert(!GK_UNIQUE(anywhere)::Calls<Class>::value &&                                   \
                  GK_UNIQUE(Derived)::Calls<GK_UNIQUE(Derived)>::value, #Class "::" #name " is protected"); \
    template struct Named<MemberOf<Class, Return parameters constness>, &Class::name>
#define GK_PRIVATE(Class, Return, name, parameters, constness)                                   \
    GK_IS_NOT_VIRTUAL(Class, name, parameters, constness)                                        \
    GK_IS_PRIVATE(Class, name, MemberOf<Class, Return parameters constness>)
// clang-format on

#endif
