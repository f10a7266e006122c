// Proofs that rays both ways meet a closed outline, from places near each other, without the rays' exact
// direction.
#ifndef GK_CNTR_SEARCH_RAYS_AHEAD_H
#define GK_CNTR_SEARCH_RAYS_AHEAD_H

#include "cntr/search/inside_certificate.h"
#include "cntr/search/segment_tree.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

// Segments that a ray and its opposite met: rays that start nearby often meet them or their neighbours.
struct gk_RaysMet {
    std::size_t forward = 0;
    std::size_t backward = 0;
};

// A ray goes through the middle of the first wide gap between vertex directions, counted from the x direction
// (gk_RayDirection). The vertices with the least directions are gathered for all the places together; which of
// their gaps is wide and where its middle is follows from products and roots, within kAngleRoom of what the
// arctangents say. Where they do not tell for certain nothing is proved.
//
// A segment is met for certain when its ends are on opposite sides of the line so known, farther from it than
// `room`: t of inside_certificate.h, a tenth of it for roundings, and what kAngleRoom makes of the ray's
// length. Then they are on opposite sides of the ray's own line, farther than t. The segment is not parallel to
// it by kSteepEnough. Rounding moves the computed crossing along the segment by less than would bring it to an
// end. The segment is farther than t from the place, on the ray's side of it, and the certificate says that the
// whole outline is nearer to the place than the ray's end by more than t: so neither end of the ray excludes
// the segment, and the crossing is between them.
class gk_RaysAhead {
public:
    // With rays of the given length. None where rounding is too much for a proof.
    static std::optional<gk_RaysAhead> of(const gk_Segments& outline,
                                          std::shared_ptr<const gk_SegmentTree> tree, double rayLength);

    // Finds the vertices ahead of all places in the box.
    void gather(const gk_Segments& outline, const gk_Box& places);

    // Whether it is proved that the ray from a place and its opposite both meet the outline. `met` names
    // segments to try first, with their neighbours, and receives those that were met.
    bool bothMeet(const gk_Segments& outline, const gkVector<2>& place, gk_RaysMet& met);

private:
    gk_RaysAhead(std::shared_ptr<const gk_SegmentTree> tree, const gk_InsideCertificate& certificate,
                 double rayLength, std::size_t vertexCount);

    bool gatherRuns(const gk_Segments& outline, const gk_Box& places);
    void forgetRunsBehind();
    std::optional<gkVector<2>> throughFirstWideGap(const gkVector<2>& place);

    struct Ahead {
        gkVector<2> offset; // from a place
        double turn = 0.0;
        bool operator<(const Ahead& other) const { return turn > other.turn; } // a heap's top is the least
    };

    std::shared_ptr<const gk_SegmentTree> tree_;
    gk_InsideCertificate certificate_;
    double rayLength_;
    double wideSine2_;   // a gap of a greater sine, squared, is wide
    double narrowSine2_; // one of none greater is not
    double room_;
    std::size_t runsAhead_;
    std::size_t unknown_ = 0; // places whose first wide gap was not among those gathered
    std::optional<gk_Box> places_;
    double lastTurn_ = 0.0;                            // up to here all vertices are gathered
    std::vector<std::pair<double, std::size_t>> runs_; // with their least turns
    std::vector<gkVector<2>> vertices_;
    std::vector<Ahead> ahead_;
};

#endif
