// What an archive of one kind holds: read into it, and written again from it.
#ifndef GK_TESTS_HOSTILE_CONTENT_H
#define GK_TESTS_HOSTILE_CONTENT_H

#include "platform/core/archive/archive.h"

#include <memory>
#include <string>
#include <vector>

namespace hostile {

class Content {
public:
    Content() = default;
    Content(const Content&) = delete;
    Content& operator=(const Content&) = delete;
    virtual ~Content() = default;

    // Reads or writes all of it, as the archive's direction says.
    virtual void pass(gkArchive& archive) = 0;
    // Asks every region that was read, holes and holes of holes, whatever hostile holes may answer badly.
    void ask() const;
    // Lets go of handles that may form rings; what was read is of no further use.
    void untie();

protected:
    // Whatever it holds that is or may lead to regions; `owned` itself must not be held by a handle.
    virtual std::vector<const gkRepBase*> shared() const = 0;
    virtual std::vector<const gkRepBase*> owned() const = 0;
};

// A shape of each kind comes first in place, then behind a handle.
//     contour, region, set, edgelet_contour, edgelet_region, edgelet_set
//     errors: the four of gkContourDefs in place, then a count and as many owned ones
//     graph: contours, sets and transforms behind handles, in one numbering, then a region in place
std::unique_ptr<Content> empty(const std::string& kind);

const std::vector<std::string>& kinds();

// Reads the bytes to their end, asks what was read and writes what it says. Throws gkArchive::Errors.
std::vector<unsigned char> rewritten(const std::string& kind, const std::vector<unsigned char>& bytes);

// What rewritten() owes for any bytes at all: one of gkArchive::Errors, or bytes that are read and written as
// they stand. Throws std::logic_error where that is not so.
void expectErrorOrEqual(const std::string& kind, const std::vector<unsigned char>& bytes);

} // namespace hostile

#endif
