// Errors of gk_Trig in ulps of the exact result, which MPFR gives with 120 bits. Both the bound and the
// arguments that are hardest to reduce are described in docs/numerics.md.
//
// GKCNTR_TRIG_ARGUMENTS sets the number of random arguments per test, 200000 without it.
#include "platform/core/math/trig.h"

#include <gtest/gtest.h>
#include <mpfr.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <random>
#include <sstream>
#include <string>

namespace {

constexpr double kBound = 1.0;

class Real {
public:
    explicit Real(mpfr_prec_t bits = 120) { mpfr_init2(value_, bits); }
    ~Real() { mpfr_clear(value_); }
    Real(const Real&) = delete;
    Real& operator=(const Real&) = delete;
    mpfr_ptr get() { return value_; }

private:
    mpfr_t value_;
};

// |computed - exact| in units of the last place of a double of the size of exact.
double ulpError(double computed, mpfr_ptr exact) {
    if (!std::isfinite(computed)) return HUGE_VAL;
    static Real difference(180);
    mpfr_sub_d(difference.get(), exact, computed, MPFR_RNDN);
    const mpfr_exp_t place = mpfr_zero_p(exact) ? -1074 : std::max<mpfr_exp_t>(mpfr_get_exp(exact) - 53, -1074);
    mpfr_mul_2si(difference.get(), difference.get(), -place, MPFR_RNDA);
    return std::fabs(mpfr_get_d(difference.get(), MPFR_RNDA));
}

long argumentCount() {
    const char* text = std::getenv("GKCNTR_TRIG_ARGUMENTS");
    return text ? std::strtol(text, nullptr, 10) : 200000;
}

// The largest error seen, with where it was.
struct Worst {
    double error = 0.0;
    std::string place;
    void note(double found, double a, double b) {
        if (found <= error) return;
        error = found;
        std::ostringstream out;
        out << std::hexfloat << a << " " << b;
        place = out.str();
    }
    void report(const char* what) const {
        std::cout << what << ": " << error << " ulp at " << place << "\n";
        EXPECT_LE(error, kBound) << what << " at " << place;
    }
};

struct SinCosErrors {
    Worst sine;
    Worst cosine;
    void add(double x) {
        static Real argument(53);
        static Real s;
        static Real c;
        mpfr_set_d(argument.get(), x, MPFR_RNDN);
        mpfr_sin_cos(s.get(), c.get(), argument.get(), MPFR_RNDN);
        const gk_Trig::SinCos found = gk_Trig::sinCos(x);
        sine.note(ulpError(found.sin, s.get()), x, 0.0);
        cosine.note(ulpError(found.cos, c.get()), x, 0.0);
    }
    void addWithNeighbours(double x, int steps) {
        double below = x;
        double above = x;
        add(x);
        for (int i = 0; i < steps; ++i) {
            below = std::nextafter(below, -HUGE_VAL);
            above = std::nextafter(above, HUGE_VAL);
            if (std::isfinite(below)) add(below);
            if (std::isfinite(above)) add(above);
        }
    }
    void report() const {
        sine.report("sin");
        cosine.report("cos");
    }
};

struct Atan2Errors {
    Worst worst;
    void add(double y, double x) {
        if (y == 0.0 && x == 0.0) return; // underflowed: no direction
        static Real ordinate(53);
        static Real abscissa(53);
        static Real exact;
        mpfr_set_d(ordinate.get(), y + 0.0, MPFR_RNDN); // our -0 means the same as 0
        mpfr_set_d(abscissa.get(), x, MPFR_RNDN);
        mpfr_atan2(exact.get(), ordinate.get(), abscissa.get(), MPFR_RNDN);
        worst.note(ulpError(gk_Trig::atan2(y, x), exact.get()), y, x);
    }
    void addWithNeighbours(double y, double x) {
        for (double v : {std::nextafter(y, -HUGE_VAL), y, std::nextafter(y, HUGE_VAL)}) {
            for (double u : {std::nextafter(x, -HUGE_VAL), x, std::nextafter(x, HUGE_VAL)}) {
                if (std::isfinite(u) && std::isfinite(v)) add(v, u);
            }
        }
    }
};

class Random {
public:
    explicit Random(std::uint64_t seed) : engine_(seed) {}
    double between(double a, double b) {
        return a + (b - a) * (static_cast<double>(engine_() >> 11) * 0x1p-53);
    }
    int integer(int low, int high) { return low + static_cast<int>(engine_() % std::uint64_t(high - low + 1)); }
    // Any finite double, every bit pattern alike.
    double anyFinite() {
        for (;;) {
            const std::uint64_t bits = engine_();
            double value = 0.0;
            std::memcpy(&value, &bits, sizeof value);
            if (std::isfinite(value)) return value;
        }
    }
    // A random significand and sign at a random power of two in the range.
    double ofExponent(int low, int high) {
        const double value = std::ldexp(between(1.0, 2.0), integer(low, high));
        return integer(0, 1) == 0 ? value : -value;
    }

private:
    std::mt19937_64 engine_;
};

// The double nearest to a multiple of pi/4 that has up to `bits` bits.
double multipleOfEighthTurn(Random& random, int bits) {
    static Real product(1200);
    mpfr_const_pi(product.get(), MPFR_RNDN);
    mpfr_mul_d(product.get(), product.get(), std::floor(random.ofExponent(0, bits)), MPFR_RNDN);
    mpfr_div_2ui(product.get(), product.get(), 2, MPFR_RNDN);
    return mpfr_get_d(product.get(), MPFR_RNDN);
}

} // namespace

TEST(TrigAccuracy, OfSineAndCosineOfOrdinaryAnglesIsWithinOneUlp) {
    constexpr std::uint64_t seed = 101;
    SCOPED_TRACE(seed);
    Random random(seed);
    SinCosErrors errors;
    for (long i = argumentCount() / 2; i > 0; --i) {
        errors.add(random.between(-3.2, 3.2));
        errors.add(random.between(-1000.0, 1000.0));
    }
    errors.report();
}

TEST(TrigAccuracy, OfSineAndCosineOfEveryMagnitudeIsWithinOneUlp) {
    constexpr std::uint64_t seed = 102;
    SCOPED_TRACE(seed);
    Random random(seed);
    SinCosErrors errors;
    for (long i = argumentCount() / 4; i > 0; --i) {
        errors.add(random.anyFinite());
        errors.add(random.ofExponent(-40, 20));
        errors.add(random.ofExponent(10, 120));
        errors.add(random.ofExponent(900, 1023));
    }
    errors.report();
}

TEST(TrigAccuracy, OfSineAndCosineBesideOctantEdgesIsWithinOneUlp) {
    constexpr std::uint64_t seed = 103;
    SCOPED_TRACE(seed);
    Random random(seed);
    SinCosErrors errors;
    for (int k = -64; k <= 64; ++k) errors.addWithNeighbours(k * 0.7853981633974483, 4);
    for (long i = argumentCount() / 14; i > 0; --i) {
        errors.addWithNeighbours(multipleOfEighthTurn(random, 21), 3);
        errors.addWithNeighbours(multipleOfEighthTurn(random, 1020), 3);
    }
    errors.report();
}

TEST(TrigAccuracy, OfSineAndCosineOfTheDoublesNearestToMultiplesOfAQuarterTurnIsWithinOneUlp) {
    // Found with the continued fractions of 2^e / (pi/2): the nearest of all doubles, then of those below 1e22.
    const double nearest[] = {
        0x1.6ac5b262ca1ffp+849, 0x1.6c6cbc45dc8dep+5,        0x1.6ac5b262ca1ffp+850, 0x1.6c6cbc45dc8dep+6,
        0x1.b951f1572eba5p+23,  0x1.504cac51f1eafp+131,      0x1.6ac5b262ca1ffp+851, 0x1.e009c53148be1p+991,
        0x1.6c6cbc45dc8dep+7,   0x1.4c96c11134d36p+577,      0x1.cfe482285f8edp+860, 0x1.db41f3cb71d7bp+680,
        0x1.e7e44a78ac18cp+197, 0x1.b951f1572eba5p+24,       0x1.c45cd11154dfdp+295, 0x1.504cac51f1eafp+132,
        0x1.83009e2e9e2ebp+614, 0x1.b2196364d750bp+253,      0x1.6ac5b262ca1ffp+852, 0x1.e009c53148be1p+992,
        0x1.69eab0985179bp+246, 0x1.6c6cbc45dc8dep+8,        0x1.4c96c11134d36p+578, 0x1.782b7a20df6d4p+67,
        0x1.b951f1572eba5p+25,  0x1.6c6cbc45dc8dep+9,        0x1.782b7a20df6d4p+68,  0x1.b951f1572eba5p+26,
        0x1.065c829d68730p+39,  5319372648326541.0 * 0x1p416};
    SinCosErrors errors;
    for (double x : nearest) {
        errors.addWithNeighbours(x, 2);
        errors.addWithNeighbours(-x, 2);
    }
    for (double power = 1.0; power <= 1e22; power *= 10.0) errors.addWithNeighbours(power, 2);
    errors.report();
}

TEST(TrigAccuracy, OfSineAndCosineWhereTheMethodChangesIsWithinOneUlp) {
    SinCosErrors errors;
    for (double edge : {0x1p-27, 0.785, 0x1p20, 0x1p21, 0x1p22, 0x1p52, 0x1p53, 0x1p1023}) {
        errors.addWithNeighbours(edge, 5);
        errors.addWithNeighbours(-edge, 5);
    }
    errors.addWithNeighbours(1.7976931348623157e308, 5);
    for (int e = -1074; e <= 1023; ++e) errors.addWithNeighbours(std::ldexp(1.0, e), 1);
    errors.report();
}

TEST(TrigAccuracy, OfTheDirectionOfOrdinaryVectorsIsWithinOneUlp) {
    constexpr std::uint64_t seed = 104;
    SCOPED_TRACE(seed);
    Random random(seed);
    Atan2Errors errors;
    for (long i = argumentCount() / 2; i > 0; --i) {
        errors.add(random.between(-1.0, 1.0), random.between(-1.0, 1.0));
        errors.add(random.integer(-1000, 1000), random.integer(1, 1000) * (i % 2 == 0 ? 1.0 : -1.0));
    }
    errors.worst.report("atan2");
}

TEST(TrigAccuracy, OfTheDirectionOfVectorsOfEveryMagnitudeIsWithinOneUlp) {
    constexpr std::uint64_t seed = 105;
    SCOPED_TRACE(seed);
    Random random(seed);
    Atan2Errors errors;
    for (long i = argumentCount() / 4; i > 0; --i) {
        errors.add(random.anyFinite(), random.anyFinite());
        const double far = random.ofExponent(-1074, 1020);
        errors.add(far * random.between(0.1, 1.9), far * random.between(-1.9, -0.1));
        errors.add(random.ofExponent(-1074, -1000), random.ofExponent(-1074, -1000));
        errors.add(random.ofExponent(-40, 3), random.ofExponent(-3, 0));
    }
    errors.worst.report("atan2");
}

TEST(TrigAccuracy, OfDirectionsBesideDiagonalsAxesAndTableEdgesIsWithinOneUlp) {
    constexpr std::uint64_t seed = 106;
    SCOPED_TRACE(seed);
    Random random(seed);
    Atan2Errors errors;
    for (long i = argumentCount() / 36; i > 0; --i) {
        const double x = random.ofExponent(-600, 600);
        errors.addWithNeighbours(x * random.integer(-64, 64) / 64.0, x);
        errors.addWithNeighbours(x, x * random.integer(-64, 64) / 64.0);
        errors.addWithNeighbours(x * std::ldexp(1.0, random.integer(-34, -26)), x);
        errors.addWithNeighbours(x, x * std::ldexp(1.0, random.integer(-60, -26)));
    }
    errors.worst.report("atan2");
}

TEST(TrigAccuracy, OfDirectionsOfSubnormalVectorsIsWithinOneUlp) {
    Atan2Errors errors;
    constexpr double least = 0x1p-1074;
    for (int y = -40; y <= 40; ++y) {
        for (int x = -40; x <= 40; ++x) {
            errors.add(y * least, x * least);
            if (x > 0) errors.add(y * least, x * 0.3);
            if (x != 0) errors.add(y * 0.3, x * least);
        }
    }
    errors.worst.report("atan2");
}
