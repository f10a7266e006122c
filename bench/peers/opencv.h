// OpenCV, whose outlines are of floats or, where `pixels` is asked for, of whole numbers.
#ifndef GK_BENCH_PEERS_OPENCV_H
#define GK_BENCH_PEERS_OPENCV_H

#include "bench/plain.h"

#include <memory>

namespace bench {

class CvOutline {
public:
    enum class Numbers { eFloats, ePixels };

    CvOutline(const Points& points, Numbers numbers);
    ~CvOutline();

    bool inside(const Point& p) const;
    double distance(const Point& p) const;
    double area() const;
    double length() const;
    Points hull() const;
    Point centreOfMass() const;
    Moments secondMoments() const;
    double fittedRadius() const; // the greater one

private:
    struct Body;
    std::unique_ptr<Body> body_;
};

// The vertices as a matrix of doubles, for cv::transform.
class CvVertices {
public:
    explicit CvVertices(const Points& points);
    ~CvVertices();

    Box boxUnder(const Affine& transform) const;

private:
    struct Body;
    std::unique_ptr<Body> body_;
};

} // namespace bench

#endif
