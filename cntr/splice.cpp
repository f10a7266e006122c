#include "cntr/splice.h"

namespace {

void appendFrom(std::vector<gkVector<2>>& spliced, const std::vector<gkVector<2>>& vertices,
                std::size_t first) {
    for (std::size_t i = 0; i < vertices.size(); ++i)
        spliced.push_back(vertices[(first + i) % vertices.size()]);
}

} // namespace

std::vector<gkVector<2>> gk_Spliced(const gkVector<2>& crossing, const std::vector<gkVector<2>>& one,
                                    std::size_t oneEdge, const std::vector<gkVector<2>>& other,
                                    std::size_t otherEdge) {
    std::vector<gkVector<2>> spliced;
    spliced.reserve(one.size() + other.size() + 2);
    spliced.push_back(crossing);
    appendFrom(spliced, one, oneEdge);
    spliced.push_back(crossing);
    appendFrom(spliced, other, otherEdge);
    return spliced;
}
