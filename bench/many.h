// Very many small contours of one library, held as its users would: in a row, one after the other.
#ifndef GK_BENCH_MANY_H
#define GK_BENCH_MANY_H

#include "bench/plain.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace bench {

class Many {
public:
    virtual ~Many() = default;
    virtual double build() = 0;
    virtual double areas() const = 0;
    virtual double widths() const = 0;
    virtual double insides() const = 0;
    virtual double destroy() = 0;
};

// `count` contours of 20 vertices, made of these kinds over and over.
struct Supply {
    std::shared_ptr<const std::vector<Points>> kinds;
    std::size_t count;

    const Points& pointsOf(std::size_t i) const { return (*kinds)[i % kinds->size()]; }
    // Somewhere on or beyond a chord.
    Point probeOf(std::size_t i) const {
        const Point& from = pointsOf(i)[i % 20];
        const Point& to = pointsOf(i)[(i + 9) % 20];
        const double t = static_cast<double>(i % 13) / 8.0 + 0.01;
        return {from.x + t * (to.x - from.x), from.y + t * (to.y - from.y)};
    }
};

// One is built from points and has area(), width() and inside().
template <class One> class ManyOf : public Many {
public:
    explicit ManyOf(const Supply& supply) : supply_(supply) { contours_.reserve(supply.count); }

    double build() override {
        for (std::size_t i = 0; i < supply_.count; ++i) contours_.emplace_back(supply_.pointsOf(i));
        return static_cast<double>(contours_.size());
    }
    double areas() const override {
        double sum = 0.0;
        for (const One& contour : contours_) sum += contour.area();
        return sum;
    }
    double widths() const override {
        double sum = 0.0;
        for (const One& contour : contours_) sum += contour.width();
        return sum;
    }
    double insides() const override {
        double count = 0.0;
        for (std::size_t i = 0; i < supply_.count; ++i)
            count += contours_[i].inside(supply_.probeOf(i)) ? 1.0 : 0.0;
        return count;
    }
    double destroy() override {
        contours_.clear();
        return static_cast<double>(contours_.size());
    }

private:
    Supply supply_;
    std::vector<One> contours_;
};

} // namespace bench

#endif
