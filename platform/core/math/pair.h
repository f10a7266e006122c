/// \file
/// Two values of one type, as the display and image layers pass coordinates around.
#ifndef GK_PLATFORM_CORE_MATH_PAIR_H
#define GK_PLATFORM_CORE_MATH_PAIR_H

/// A pair (x, y) of `T`: gkPair<long> for pixels and grid cells, gkPair<double> for drawing coordinates.
template <class T> class gkPair {
public:
    /// (0, 0).
    constexpr gkPair() = default;
    constexpr gkPair(T x, T y) : x_(x), y_(y) {}

    constexpr T x() const { return x_; }
    constexpr T y() const { return y_; }
    constexpr void x(T value) { x_ = value; }
    constexpr void y(T value) { y_ = value; }

    /// Exact comparison of both values.
    friend constexpr bool operator==(const gkPair& a, const gkPair& b) { return a.x_ == b.x_ && a.y_ == b.y_; }
    friend constexpr bool operator!=(const gkPair& a, const gkPair& b) { return !(a == b); }

private:
    T x_ = T();
    T y_ = T();
};

#endif
