#include "tests/support/answer.h"

#include "cntr/contour_defs.h"
#include "platform/core/fit/ellipse_fit.h"
#include "platform/core/object/errors.h"
#include "platform/system/assert.h"
#include "tests/oracle/oracle.h"

#include <cmath>
#include <cstring>
#include <limits>
#include <stdexcept>

void Answer::add(double value) {
    const double known = std::isnan(value) ? std::numeric_limits<double>::quiet_NaN() : value;
    std::uint64_t word = 0;
    std::memcpy(&word, &known, sizeof word);
    bits.push_back(word);
}

void Answer::add(const gkVector<2>& value) {
    add(value.x());
    add(value.y());
}

void Answer::add(const gkMatrix<2>& value) {
    for (int row = 0; row < 2; ++row) {
        for (int column = 0; column < 2; ++column) add(value.element(row, column));
    }
}

void Answer::add(const gkLineSeg& value) {
    add(value.p1());
    add(value.p2());
}

void Answer::add(const gkRect& value) {
    add(value.ul());
    add(value.lr());
}

void Answer::add(const gkCircle& value) {
    add(value.center().vector());
    add(value.radius());
}

void Answer::add(const gkEllipse& value) {
    add(value.center().vector());
    add(value.radii());
    add(value.rotation().toDouble());
    add(value.geom().isReversed);
    add(value.geom().isHole);
}

std::ostream& operator<<(std::ostream& out, const Answer& answer) {
    if (!answer.error.empty()) return out << answer.error;
    for (const std::uint64_t word : answer.bits) {
        double number = 0.0;
        std::memcpy(&number, &word, sizeof number);
        // Small words are indices and flags; as doubles they would be denormal.
        if (word < 0x10000 || ~word < 0x10000) {
            out << " " << static_cast<std::int64_t>(word);
        } else {
            out << " " << std::hexfloat << number << std::defaultfloat;
        }
    }
    return out;
}

std::string currentError() {
    try {
        throw;
    } catch (const oracle::Refusal& refusal) {
        return refusal.name;
    } catch (const gkContourDefs::EmptyContour&) {
        return "EmptyContour";
    } catch (const gkContourDefs::EmptyRegionSet&) {
        return "EmptyRegionSet";
    } catch (const gkContourDefs::BadParams&) {
        return "BadParams";
    } catch (const gkMathError::Singular&) {
        return "Singular";
    } catch (const gkAssertionFailed& failed) {
        return "assertion " + std::to_string(failed.line());
    } catch (const gkEllipseFitDefs::TooFewPoints&) {
        return "TooFewPoints";
    } catch (const gkEllipseFitDefs::Degenerate&) {
        return "Degenerate";
    } catch (const gkEllipseFitDefs::NotFinite&) {
        return "NotFinite";
    } catch (const std::out_of_range&) {
        return "out_of_range";
    }
}
