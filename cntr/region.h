/// \file
/// The closed outline of an area.
#ifndef GK_CNTR_REGION_H
#define GK_CNTR_REGION_H

#include "cntr/contour.h"

/// A contour that is always closed.
///
/// Measures and queries of the outline are the contour's. Like a contour, a region belongs to one thread at a time.
class GKCNTR_API gkRegion : public virtual gkContour {
public:
    /// A region with this outline and label 0.
    explicit gkRegion(const std::vector<gkVector<2>>& vertices = std::vector<gkVector<2>>());
    gkRegion(const gkRegion& other);
    gkRegion& operator=(const gkRegion& other);
    ~gkRegion() override;

    /// Always true, whatever closed flag the outline was given.
    bool isClosed() const override;
    /// True is accepted and changes nothing; false throws gkContourDefs::RegionCannotBeSetOpen (empty message).
    void isClosed(bool closed) override;
};

#endif
