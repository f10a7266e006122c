#include "platform/core/fit/ellipse_fit.h"

#include "platform/core/object/error_numbers.h"
#include "platform/core/object/rethrow.h"

#define GK_DEFINE_FIT_ERROR(Name, number)                                                                      \
    gkEllipseFitDefs::Name::Name(const wchar_t* message) : gkExceptionWithString(message) {}                   \
    gkEllipseFitDefs::Name::Name(const Name&) = default;                                                       \
    gkEllipseFitDefs::Name& gkEllipseFitDefs::Name::operator=(const Name&) = default;                          \
    gkEllipseFitDefs::Name::~Name() = default;                                                                 \
    long gkEllipseFitDefs::Name::errorNumber() const { return number; }                                        \
    void gkEllipseFitDefs::Name::suicideAndRethrow() { gk_FreeAndThrow(this); }

GK_DEFINE_FIT_ERROR(TooFewPoints, gk_ErrorNumber::eFitTooFewPoints)
GK_DEFINE_FIT_ERROR(Degenerate, gk_ErrorNumber::eFitDegenerate)
GK_DEFINE_FIT_ERROR(NotFinite, gk_ErrorNumber::eFitNotFinite)
GK_DEFINE_FIT_ERROR(LimitExceeded, gk_ErrorNumber::eFitLimitExceeded)
GK_DEFINE_FIT_ERROR(BadParams, gk_ErrorNumber::eFitBadParams)

#undef GK_DEFINE_FIT_ERROR
