// Shapes that note each call of their virtual operations, in order, before they do what their base does.
#ifndef GK_TESTS_INTERFACE_WITNESS_H
#define GK_TESTS_INTERFACE_WITNESS_H

#include "cntr/regionst.h"

#include <string>
#include <vector>

using Calls = std::vector<std::string>;

// The slots that gkPersistent has and those of the same names that contours and sets bring.
template <class Base> class WitnessOfHooks : public Base {
public:
    explicit WitnessOfHooks(const Base& shape) { Base::operator=(shape); }

    void reInit() override { calls.emplace_back("reInit"); }

    mutable Calls calls;

protected:
    void dispatchSerialize(gkArchive& archive) override {
        calls.emplace_back("dispatchSerialize");
        Base::dispatchSerialize(archive);
    }
    void serialize_(gkArchive& archive, unsigned char version) override {
        calls.emplace_back("serialize_");
        Base::serialize_(archive, version);
    }
    void makeDataConsistentWithPoints() override {
        calls.emplace_back("makeDataConsistentWithPoints");
        Base::makeDataConsistentWithPoints();
    }
    void makePointsConsistentWithData() override {
        calls.emplace_back("makePointsConsistentWithData");
        Base::makePointsConsistentWithData();
    }
    void cleanCacheInfo() override {
        calls.emplace_back("cleanCacheInfo");
        Base::cleanCacheInfo();
    }
};

// The slots of the contour and, for a region, its own as well.
template <class Base> class WitnessOfContour : public WitnessOfHooks<Base> {
public:
    using WitnessOfHooks<Base>::WitnessOfHooks;
    using Base::draw;
    using Base::isClosed;
    using Base::points;

    void points(const std::vector<gkVector<2>>& points) override {
        this->calls.emplace_back("points");
        Base::points(points);
    }
    void isClosed(bool closed) override {
        this->calls.emplace_back("isClosed");
        Base::isClosed(closed);
    }
    void draw(gkUITablet& tablet, gkContourDefs::DrawMode mode, const gkColor& color,
              const gkUITablet::Layers& layers) const override {
        this->calls.emplace_back("draw");
        Base::draw(tablet, mode, color, layers);
    }
};

template <class Base> class WitnessOfRegion : public WitnessOfContour<Base> {
public:
    using WitnessOfContour<Base>::WitnessOfContour;
    using WitnessOfContour<Base>::draw;

    void draw(gkUITablet& tablet, const gkColor& color, const gkUITablet::Layers& layers) const override {
        this->calls.emplace_back("draw without mode");
        Base::draw(tablet, color, layers);
    }
};

// Tells when it is destroyed.
template <class Base> class Mortal : public Base {
public:
    explicit Mortal(bool& gone) : gone_(gone) {}
    ~Mortal() override { gone_ = true; }

private:
    bool& gone_;
};

#endif
