#include "platform/core/object/rep_base.h"

gkRepBase::~gkRepBase() = default;

void gkRepBase::forgetHandles() noexcept {}

void gkRepBase::releaseRef() const noexcept {
    // acq_rel: what other threads did to the object before letting go happens before its destruction here.
    if (count_.fetch_sub(1, std::memory_order_acq_rel) == 1) delete this;
}
