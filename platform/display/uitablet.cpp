#include "platform/display/uitablet.h"

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

long gkUITablet::CannotWrite::errorNumber() const { return 0x10004701; }

void gkUITablet::CannotWrite::suicideAndRethrow() {
    const CannotWrite copy(*this);
    delete this;
    throw copy;
}

gkUITablet::BadSize::BadSize(const wchar_t* message) : gkExceptionWithString(message) {}

gkUITablet::BadSize::~BadSize() = default;

long gkUITablet::BadSize::errorNumber() const { return 0x10004702; }

void gkUITablet::BadSize::suicideAndRethrow() {
    const BadSize copy(*this);
    delete this;
    throw copy;
}
