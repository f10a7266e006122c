#include "platform/core/archive/archive.h"

#include "platform/core/archive/archive_references.h"

#include <algorithm>

namespace {

constexpr unsigned char magic[4] = {'g', 'k', 'a', 'r'};
constexpr std::uint32_t format = 1;

} // namespace

gkArchive::gkArchive(Direction direction)
    : loading_(direction == Direction::eLoad), references_(std::make_unique<gk_ArchiveReferences>()) {}

gkArchive::~gkArchive() = default;

void gkArchive::open() {
    if (isSaving()) {
        putBytes(magic, sizeof magic);
        putNumber(format, 4);
        return;
    }
    unsigned char found[sizeof magic] = {};
    getBytes(found, std::min(sizeof found, bytesLeft()));
    if (!std::equal(found, found + sizeof found, magic)) throw NotAnArchive();
    if (getNumber(4) != format) throw UnknownFormat();
}

void gkArchive::finish() const {
    if (isLoading() && bytesLeft() > 0) throw TrailingBytes();
    if (isSaving() && failed_) throw WriteFailed(L"an error left an object half written");
}

bool gkArchive::isVisited(const gkPersistent& object) const { return references_->isVisited(object); }

void gkArchive::visited(const gkPersistent& object, bool mark) { references_->visited(object, mark); }

void gkArchive::require(bool loading) const {
    if (loading_ != loading) throw WrongDirection();
}

gkArchive& gkArchive::inPlace(gkPersistent& object) {
    gk_ArchiveOperation operation(*this);
    object.dispatchSerialize(*this);
    operation.complete();
    return *this;
}

gkArchive& operator||(gkArchive& ar, gkPersistent& object) { return ar.inPlace(object); }

gk_ArchiveOperation::gk_ArchiveOperation(gkArchive& archive) : archive_(archive) {
    if (archive_.operations_++ == 0) archive_.firstOfOperation_ = archive_.references_->size();
}

gk_ArchiveOperation::~gk_ArchiveOperation() { archive_.endOperation(completed_); }

void gkArchive::endOperation(bool completed) noexcept {
    --operations_;
    if (completed) return;
    failed_ = true;
    // Only now: no object's record is being read any more.
    if (operations_ == 0 && isLoading()) references_->breakRings(firstOfOperation_);
}
