// The merging pass over a list of regions.
#ifndef GK_CNTR_REGION_MERGE_H
#define GK_CNTR_REGION_MERGE_H

#include <cstddef>
#include <utility>
#include <vector>

// Merges crossing items of a list in one pass: for each i and each j behind it, when crosses(list[i], list[j]),
// item i becomes merged(list[i], list[j]) and the last item moves into place j. Then j goes on all the same, so
// the moved item is not tested against the merged one: a chain may stay partly unmerged. Meant; the pass is not
// repeated.
template <class Item, class Crosses, class Merged>
void gk_MergeInOnePass(std::vector<Item>& list, Crosses crosses, Merged merged) {
    for (std::size_t i = 0; i + 1 < list.size(); ++i) {
        for (std::size_t j = i + 1; j < list.size(); ++j) {
            if (!crosses(list[i], list[j])) continue;
            list[i] = merged(list[i], list[j]);
            list[j] = Item(list.back());
            list.pop_back();
        }
    }
}

#endif
