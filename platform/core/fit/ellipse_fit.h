/// \file
/// The ellipse that fits points best.
#ifndef GK_PLATFORM_CORE_FIT_ELLIPSE_FIT_H
#define GK_PLATFORM_CORE_FIT_ELLIPSE_FIT_H

#include "platform/core/math/angle.h"
#include "platform/core/math/vector.h"
#include "platform/core/object/exception.h"
#include "platform/core/shapes/ellipse.h"
#include "platform/export.h"

#include <vector>

/// The modes and errors of gfEllipseFit.
class GKCNTR_API gkEllipseFitDefs {
public:
    enum fit_mode : int {
        /// Least squares of the algebraic distance a x^2 + b x y + c y^2 + d x + e y + f under 4 a c - b^2 = 1:
        /// always an
        /// ellipse, unchanged by any affine map, somewhat too small for short and noisy arcs.
        eDirectLeastSquares = 0
    };

    /// Fewer than five different points were given, or are left after leaving out the worst. Number 0x10000401.
    class GKCNTR_API TooFewPoints : public gkExceptionWithString {
    public:
        explicit TooFewPoints(const wchar_t* message);
        TooFewPoints(const TooFewPoints&);
        TooFewPoints& operator=(const TooFewPoints&);
        ~TooFewPoints() override;
        long errorNumber() const override;
        [[noreturn]] void suicideAndRethrow() override;
    };

    /// The points determine no ellipse: they are collinear to the rounding of their coordinates, or the best
    /// conic has no finite radii. Number 0x10000402.
    class GKCNTR_API Degenerate : public gkExceptionWithString {
    public:
        explicit Degenerate(const wchar_t* message);
        Degenerate(const Degenerate&);
        Degenerate& operator=(const Degenerate&);
        ~Degenerate() override;
        long errorNumber() const override;
        [[noreturn]] void suicideAndRethrow() override;
    };

    /// A coordinate is NaN or infinite. Number 0x10000403.
    class GKCNTR_API NotFinite : public gkExceptionWithString {
    public:
        explicit NotFinite(const wchar_t* message);
        NotFinite(const NotFinite&);
        NotFinite& operator=(const NotFinite&);
        ~NotFinite() override;
        long errorNumber() const override;
        [[noreturn]] void suicideAndRethrow() override;
    };

    /// The error of the fit is greater than the limit. Number 0x10000404.
    class GKCNTR_API LimitExceeded : public gkExceptionWithString {
    public:
        explicit LimitExceeded(const wchar_t* message);
        LimitExceeded(const LimitExceeded&);
        LimitExceeded& operator=(const LimitExceeded&);
        ~LimitExceeded() override;
        long errorNumber() const override;
        [[noreturn]] void suicideAndRethrow() override;
    };

    /// The mode is none of fit_mode, or the limit is NaN. Number 0x10000405.
    class GKCNTR_API BadParams : public gkExceptionWithString {
    public:
        explicit BadParams(const wchar_t* message);
        BadParams(const BadParams&);
        BadParams& operator=(const BadParams&);
        ~BadParams() override;
        long errorNumber() const override;
        [[noreturn]] void suicideAndRethrow() override;
    };
};

/// How gfEllipseFit is to fit.
class GKCNTR_API gkEllipseFitParams {
public:
    /// `angle`: the rotation reported when the ellipse is a circle, whose axes have no direction.
    /// `count`: how many of the worst points are left out; 0 fits all.
    /// `limit`: the greatest accepted error, in the unit of the points; HUGE_VAL accepts any.
    constexpr gkEllipseFitParams(gkEllipseFitDefs::fit_mode mode, const gkRadian& angle, unsigned long count,
                                 double limit)
        : mode_(mode), angle_(angle), count_(count), limit_(limit) {}

    constexpr gkEllipseFitDefs::fit_mode mode() const { return mode_; }
    constexpr gkRadian angle() const { return angle_; }
    constexpr unsigned long count() const { return count_; }
    constexpr double limit() const { return limit_; }

private:
    gkEllipseFitDefs::fit_mode mode_;
    gkRadian angle_;
    unsigned long count_;
    double limit_;
};

/// What gfEllipseFit found.
class GKCNTR_API gkEllipseFitResults {
public:
    /// The default ellipse, error 0.
    constexpr gkEllipseFitResults() = default;
    constexpr gkEllipseFitResults(const gkEllipse& ellipse, double error) : ellipse_(ellipse), error_(error) {}

    constexpr const gkEllipse& ellipse() const { return ellipse_; }
    /// Root mean square of the distances (gkEllipse::distToPoint) of the points that were fitted.
    constexpr double error() const { return error_; }

private:
    gkEllipse ellipse_;
    double error_ = 0.0;
};

/// Fits an ellipse to `points` and puts it into `results`; these stay as they were when something is thrown.
///
/// The first radius is the larger one and lies along the rotation, which is in (-pi/2, pi/2]. Both flags of the
/// ellipse are false. A fit whose radii differ by no more than the rounding of the coordinates explains is
/// given as a circle: equal radii and the rotation of `params`.
///
/// Each point counts as often as it is given. With a count the point farthest from the fitted ellipse (the
/// first among equals) is left out and the rest is fitted again, that many times.
///
/// Points on an ellipse give it back to a few roundings of their coordinates, multiplied by the condition of
/// the problem: near 1 for points all around it, about (4 / angle)^4 for an arc seen from the centre under a
/// small angle. No threshold depends on the unit or the number of points. Neither does it matter how far the
/// points are from the origin, beyond the digits their coordinates lose there.
///
/// Throws gkEllipseFitDefs::BadParams, NotFinite, TooFewPoints, Degenerate and LimitExceeded, checked in this
/// order. Cost: O(n) time and memory, for each point left out again. Source: Fitzgibbon, Pilu and Fisher
/// (1999), in the split form of Halir and Flusser (1998).
GKCNTR_API void gfEllipseFit(const gkEllipseFitParams& params, const std::vector<gkVector<2>>& points,
                             gkEllipseFitResults& results);

#endif
