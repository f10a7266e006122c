// The door of a set of regions to the search room: its questions with the answers of a walk through the list.
#ifndef GK_CNTR_SEARCH_SET_SEARCH_H
#define GK_CNTR_SEARCH_SET_SEARCH_H

#include "cntr/search/region_boxes.h"

#include <memory>

// Belongs to one set; copies share what has been built. Every question brings the list along.
//
// A region changed behind the set's back is seen: its boxes are measured anew. What members keep for
// themselves is the same as after a walk through the list: a member that is passed over is asked for its box
// all the same, once, since it then keeps it.
class gk_SetSearch {
public:
    bool inside(const gk_Regions& regions, const gkVector<2>& point, bool considerHoles);
    double distToPoint(const gk_Regions& regions, const gkVector<2>& point, bool verticesOnly,
                       bool considerHoles, bool zeroInside);
    // Whether the outlines of two regions have a point in common.
    bool anyTwoMeet(const gk_Regions& regions);

private:
    struct Index {
        std::uint64_t changes = 0; // gk_ChangeMark::changes() when it was begun
        std::uint32_t asked = 0;
        bool tried = false;
        std::shared_ptr<const gk_RegionBoxes> boxes;
    };

    static const gk_RegionBoxes* boxesFrom(std::uint32_t question, Index& index, const gk_Regions& regions,
                                           bool holesToo);
    void askBoxes(const gk_Regions& regions, std::size_t count);

    Index outlines_;
    Index withHoles_;
    std::size_t boxesAsked_ = 0; // the first so many members keep their box
    std::uint64_t boxesAskedAt_ = 0;
};

#endif
