#include "platform/core/object/instantiator.h"

#include <algorithm>
#include <vector>

namespace {

// A function-local static: complete before the first registration, whatever order the libraries' static objects
// are constructed in, and gone after the last. A dozen classes or two: a scan from the back is quick and lets
// the later win.
std::vector<const gk_Instantiator*>& registrations() {
    static std::vector<const gk_Instantiator*> all;
    return all;
}

template <class Predicate> const gk_Instantiator* findLast(Predicate matches) {
    const std::vector<const gk_Instantiator*>& all = registrations();
    const auto found = std::find_if(all.rbegin(), all.rend(), matches);
    return found == all.rend() ? nullptr : *found;
}

} // namespace

gk_Instantiator::gk_Instantiator(const std::type_info& type, const char* portableName, Maker make)
    : type_(&type), portableName_(portableName), make_(make) {
    registrations().push_back(this);
}

gk_Instantiator::~gk_Instantiator() {
    std::vector<const gk_Instantiator*>& all = registrations();
    all.erase(std::remove(all.begin(), all.end(), this), all.end());
}

const gk_Instantiator* gk_Instantiator::find(const std::string& portableName) {
    return findLast([&](const gk_Instantiator* one) { return portableName == one->portableName_; });
}

const gk_Instantiator* gk_Instantiator::find(const std::type_info& type) {
    return findLast([&](const gk_Instantiator* one) { return *one->type_ == type; });
}
