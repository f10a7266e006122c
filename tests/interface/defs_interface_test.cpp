// tests/interface/defs_interface_test.cpp - the enumerations and the family of errors.
#include "cntr/contour_defs.h"
#include "platform/core/archive/archive.h"
#include "platform/core/object/instantiator.h"
#include "tests/interface/interface.h"

#include <string>

static_assert(std::is_empty_v<gkContourDefs> && std::is_copy_assignable_v<gkContourDefs>);

static_assert(gkContourDefs::eExact == 0 && gkContourDefs::eApproximate == 1);
static_assert(std::is_same_v<decltype(gkContourDefs::eExact), gkContourDefs::DiameterMode> &&
              std::is_same_v<decltype(gkContourDefs::eApproximate), gkContourDefs::DiameterMode>);
static_assert(std::is_enum_v<gkContourDefs::DrawMode>);
static_assert(gkContourDefs::eKeepIntersections == 0 && gkContourDefs::eOuterHull == 1 &&
              gkContourDefs::eRegularize == 2);
static_assert(std::is_same_v<decltype(gkContourDefs::eKeepIntersections), gkContourDefs::IntersectionMode> &&
              std::is_same_v<decltype(gkContourDefs::eOuterHull), gkContourDefs::IntersectionMode> &&
              std::is_same_v<decltype(gkContourDefs::eRegularize), gkContourDefs::IntersectionMode>);

// ---- the base of the errors

using Errors = gkContourDefs::Errors;

// Single and not virtual all the way, so that each base can be cast down.
template <class Derived, class Base>
constexpr bool isPlainBase = std::is_same_v<Derived*, decltype(static_cast<Derived*>(std::declval<Base*>()))>;
static_assert(isPlainBase<Errors, gkExceptionWithString> && isPlainBase<gkExceptionWithString, gkException> &&
              isPlainBase<gkException, gkPersistent>);
static_assert(std::is_abstract_v<Errors> && std::has_virtual_destructor_v<Errors>);
static_assert(isAssignable<Errors>);

namespace {
struct OwnError : Errors {
    using Errors::Errors;
    long errorNumber() const override;
    void suicideAndRethrow() override;
};
template <class From> struct MakesErrors {
    template <class To> static auto from(int) -> decltype(To(std::declval<From>()), std::true_type());
    template <class To> static std::false_type from(long);
    static constexpr bool value = decltype(from<OwnError>(0))::value;
};
} // namespace
static_assert(MakesErrors<const OwnError&>::value, "the copy constructor is public");

GK_PUBLIC_VIRTUAL(Errors, long, errorNumber, (), const);
GK_PUBLIC_VIRTUAL(Errors, void, suicideAndRethrow, (), );
GK_PROTECTED_VIRTUAL(Errors, void, dispatchSerialize, (gkArchive&), );
GK_PROTECTED(Errors, void, serialize_, (gkArchive&, unsigned char), );

// ---- each of the four; they add no data

#define GK_ERROR(Class)                                                                                        \
    static_assert(isPlainBase<Class, Errors> && !std::is_abstract_v<Class> &&                                  \
                  sizeof(Class) == sizeof(Errors));                                                            \
    static_assert(std::has_virtual_destructor_v<Class> && std::is_copy_constructible_v<Class>);                \
    static_assert(std::is_constructible_v<Class, const std::wstring&> &&                                       \
                  !std::is_default_constructible_v<Class>);                                                    \
    static_assert(isAssignable<Class>)

using EmptyContour = gkContourDefs::EmptyContour;
GK_ERROR(EmptyContour);
GK_PUBLIC_VIRTUAL(EmptyContour, long, errorNumber, (), const);
GK_PUBLIC_VIRTUAL(EmptyContour, void, suicideAndRethrow, (), );
GK_PROTECTED_VIRTUAL(EmptyContour, void, dispatchSerialize, (gkArchive&), );
GK_PROTECTED(EmptyContour, void, serialize_, (gkArchive&, unsigned char), );
GK_IS_PRIVATE(EmptyContour, make, gkPersistent* (*)());
GK_IS_PRIVATE(EmptyContour, sExemplar, gk_Instantiator*);

using EmptyRegionSet = gkContourDefs::EmptyRegionSet;
GK_ERROR(EmptyRegionSet);
GK_PUBLIC_VIRTUAL(EmptyRegionSet, long, errorNumber, (), const);
GK_PUBLIC_VIRTUAL(EmptyRegionSet, void, suicideAndRethrow, (), );
GK_PROTECTED_VIRTUAL(EmptyRegionSet, void, dispatchSerialize, (gkArchive&), );
GK_PROTECTED(EmptyRegionSet, void, serialize_, (gkArchive&, unsigned char), );
GK_IS_PRIVATE(EmptyRegionSet, make, gkPersistent* (*)());
GK_IS_PRIVATE(EmptyRegionSet, sExemplar, gk_Instantiator*);

using BadParams = gkContourDefs::BadParams;
GK_ERROR(BadParams);
GK_PUBLIC_VIRTUAL(BadParams, long, errorNumber, (), const);
GK_PUBLIC_VIRTUAL(BadParams, void, suicideAndRethrow, (), );
GK_PROTECTED_VIRTUAL(BadParams, void, dispatchSerialize, (gkArchive&), );
GK_PROTECTED(BadParams, void, serialize_, (gkArchive&, unsigned char), );
GK_IS_PRIVATE(BadParams, make, gkPersistent* (*)());
GK_IS_PRIVATE(BadParams, sExemplar, gk_Instantiator*);

using RegionCannotBeSetOpen = gkContourDefs::RegionCannotBeSetOpen;
GK_ERROR(RegionCannotBeSetOpen);
GK_PUBLIC_VIRTUAL(RegionCannotBeSetOpen, long, errorNumber, (), const);
GK_PUBLIC_VIRTUAL(RegionCannotBeSetOpen, void, suicideAndRethrow, (), );
GK_PROTECTED_VIRTUAL(RegionCannotBeSetOpen, void, dispatchSerialize, (gkArchive&), );
GK_PROTECTED(RegionCannotBeSetOpen, void, serialize_, (gkArchive&, unsigned char), );
GK_IS_PRIVATE(RegionCannotBeSetOpen, make, gkPersistent* (*)());
GK_IS_PRIVATE(RegionCannotBeSetOpen, sExemplar, gk_Instantiator*);
