/// \file
/// How an index over shared contours learns that one of them has changed.
#ifndef GK_CNTR_CHANGE_MARK_H
#define GK_CNTR_CHANGE_MARK_H

#include <cstdint>

/// Set on a contour by whoever keeps something of it outside it; the next change of the contour counts.
///
/// A set of regions answers inside() and distToPoint() anew every time, so a region changed through another
/// handle must be seen at once, while the set hears nothing of it. One count for all contours tells every index
/// whether anything it may rest on has changed since it was built. Contours that no index knows do not count.
class gk_ChangeMark {
public:
    gk_ChangeMark() = default;
    /// A copy is known to no index.
    gk_ChangeMark(const gk_ChangeMark&) noexcept {}
    /// The owner has changed.
    gk_ChangeMark& operator=(const gk_ChangeMark&) noexcept {
        noteChange();
        return *this;
    }
    ~gk_ChangeMark() = default;

    void set() noexcept { set_ = true; }
    bool isSet() const noexcept { return set_; }
    /// Counts, and takes the mark away, when it is set.
    void noteChange() noexcept;

    /// How many changes of marked contours there have been. Whoever hands a contour to another thread orders
    /// its changes before, and the count with them.
    static std::uint64_t changes() noexcept;

private:
    bool set_ = false;
};

#endif
