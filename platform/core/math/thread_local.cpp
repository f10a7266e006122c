#include "platform/core/math/thread_local.h"

#include <algorithm>
#include <memory>
#include <new>
#include <utility>
#include <vector>

#ifdef _WIN32
#include <windows.h>
#endif

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
    ~ThreadValues() { destroyAll(); }

    // The last made first.
    void destroyAll() {
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

#ifdef _WIN32

// A thread_local object will not do here: the C++ runtime of MinGW-w64 may run its destructor when the memory
// it is in has already been freed. The system's own slot hands its callback a pointer to memory of ours.
class SystemSlot {
public:
    SystemSlot() : index_(FlsAlloc(&end)) {
        if (index_ == FLS_OUT_OF_INDEXES) throw std::bad_alloc();
    }
    // Ends the values of all threads, so that no callback is left behind when the library is unloaded.
    ~SystemSlot() { FlsFree(index_); }
    SystemSlot(const SystemSlot&) = delete;
    SystemSlot& operator=(const SystemSlot&) = delete;

    ThreadValues& get() const {
        if (void* const own = FlsGetValue(index_)) return *static_cast<ThreadValues*>(own);
        auto made = std::make_unique<ThreadValues>();
        if (!FlsSetValue(index_, made.get())) throw std::bad_alloc();
        return *made.release();
    }

    static const SystemSlot& instance() {
        static const SystemSlot slot;
        return slot;
    }

private:
    static void WINAPI end(void* values) {
        // The system has forgotten the pointer; destructors that use other slots must still find the list.
        FlsSetValue(instance().index_, values);
        static_cast<ThreadValues*>(values)->destroyAll();
        FlsSetValue(instance().index_, nullptr);
        delete static_cast<ThreadValues*>(values);
    }

    DWORD index_;
};

ThreadValues& ofThisThread() { return SystemSlot::instance().get(); }

#else

ThreadValues& ofThisThread() {
    static thread_local ThreadValues values;
    return values;
}

#endif

} // namespace

gk_ThreadSlot::gk_ThreadSlot() : key_(std::make_shared<const char>('\0')) {}

gk_ThreadSlot::~gk_ThreadSlot() = default;

void* gk_ThreadSlot::find() const { return ofThisThread().find(key_); }

void gk_ThreadSlot::keep(void* value, Destroy destroy) const {
    ofThisThread().add({key_, value, destroy});
    ofThisThread().destroyThoseOfDeadSlots();
}
