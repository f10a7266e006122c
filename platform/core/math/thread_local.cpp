#include "platform/core/math/thread_local.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace {

struct Value {
    // Not the slot's address, which the next slot may have again.
    std::weak_ptr<const char> key;
    void* object;
    void (*destroy)(void*);
};

bool sameKey(const std::weak_ptr<const char>& a, const std::shared_ptr<const char>& b) {
    return !a.owner_before(b) && !b.owner_before(a);
}

// The destructors of values may come back here through other slots, so a value leaves the list before it is
// destroyed.
class ThreadValues {
public:
    ThreadValues() = default;
    ThreadValues(const ThreadValues&) = delete;
    ThreadValues& operator=(const ThreadValues&) = delete;
    ~ThreadValues() {
        while (!values_.empty()) destroy(values_.end() - 1);
    }

    void* find(const std::shared_ptr<const char>& key) const {
        for (const Value& value : values_) {
            if (sameKey(value.key, key)) return value.object;
        }
        return nullptr;
    }

    void add(Value value) { values_.push_back(std::move(value)); }

    void destroyThoseOfDeadSlots() {
        for (;;) {
            const auto dead = std::find_if(values_.begin(), values_.end(),
                                           [](const Value& value) { return value.key.expired(); });
            if (dead == values_.end()) return;
            destroy(dead);
        }
    }

private:
    void destroy(std::vector<Value>::iterator position) {
        const Value value = std::move(*position);
        values_.erase(position);
        value.destroy(value.object);
    }

    std::vector<Value> values_;
};

ThreadValues& ofThisThread() {
    static thread_local ThreadValues values;
    return values;
}

} // namespace

gk_ThreadSlot::gk_ThreadSlot() : key_(std::make_shared<const char>('\0')) {}

gk_ThreadSlot::~gk_ThreadSlot() = default;

void* gk_ThreadSlot::find() const { return ofThisThread().find(key_); }

void gk_ThreadSlot::keep(void* value, Destroy destroy) const {
    ofThisThread().add({key_, value, destroy});
    ofThisThread().destroyThoseOfDeadSlots();
}
