/// \file
/// The text of a number, as every format and every operator<< here writes it.
#ifndef GK_INTEROP_NUMBER_H
#define GK_INTEROP_NUMBER_H

#include <string>

namespace gnText {
/// The shortest digits that read back as the same double, with a point and no grouping whatever the locale.
///
/// `nan` for every NaN, `inf` and `-inf`; negative zero is `-0`. The exponent form is taken where it is
/// shorter: 100000 is `1e+05`.
std::string number(double value);
} // namespace gnText

#endif
