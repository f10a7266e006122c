#include "platform/core/fit/ellipse_fit.h"

#define GK_DEFINE_FIT_ERROR(Name, number)                                                                      \
    gkEllipseFitDefs::Name::Name(const wchar_t* message) : gkExceptionWithString(message) {}                   \
    gkEllipseFitDefs::Name::Name(const Name&) = default;                                                       \
    gkEllipseFitDefs::Name& gkEllipseFitDefs::Name::operator=(const Name&) = default;                          \
    gkEllipseFitDefs::Name::~Name() = default;                                                                 \
    long gkEllipseFitDefs::Name::errorNumber() const { return number; }                                        \
    void gkEllipseFitDefs::Name::suicideAndRethrow() {                                                         \
        Name copy(*this);                                                                                      \
        delete this;                                                                                           \
        throw copy;                                                                                            \
    }

GK_DEFINE_FIT_ERROR(TooFewPoints, 0x10000301)
GK_DEFINE_FIT_ERROR(Degenerate, 0x10000302)
GK_DEFINE_FIT_ERROR(NotFinite, 0x10000303)
GK_DEFINE_FIT_ERROR(LimitExceeded, 0x10000304)
GK_DEFINE_FIT_ERROR(BadParams, 0x10000305)

#undef GK_DEFINE_FIT_ERROR
