#include "platform/display/uitablet.h"

#include "platform/core/object/error_numbers.h"
#include "platform/core/object/rethrow.h"

gkUITablet::~gkUITablet() = default;

void gkUITablet::drawCircle(const gkPair<double>&, double, const gkColor&, const Layers&) {}

void gkUITablet::drawEllipse(const gkPair<double>&, const gkPair<double>&, const gkRadian&, const gkColor&,
                             const Layers&) {}

void gkUITablet::drawPoint(const gkPair<double>&, const gkColor&, const Layers&) {}

void gkUITablet::drawText(const gkPair<double>&, const std::string&, double, const gkColor&, const Layers&) {}

void gkUITablet::drawImage(const gkPair<double>&, const gkPair<double>&, const std::vector<unsigned char>&,
                           const Layers&) {}

gkUITablet::CannotWrite::CannotWrite(const wchar_t* message) : gkExceptionWithString(message) {}

gkUITablet::CannotWrite::~CannotWrite() = default;

long gkUITablet::CannotWrite::errorNumber() const { return gk_ErrorNumber::eUITabletCannotWrite; }

void gkUITablet::CannotWrite::suicideAndRethrow() { gk_FreeAndThrow(this); }

gkUITablet::BadSize::BadSize(const wchar_t* message) : gkExceptionWithString(message) {}

gkUITablet::BadSize::~BadSize() = default;

long gkUITablet::BadSize::errorNumber() const { return gk_ErrorNumber::eUITabletBadSize; }

void gkUITablet::BadSize::suicideAndRethrow() { gk_FreeAndThrow(this); }
