/// \file
/// One value per thread, made when a thread first asks for it and destroyed when the thread ends.
#ifndef GK_PLATFORM_CORE_MATH_THREAD_LOCAL_H
#define GK_PLATFORM_CORE_MATH_THREAD_LOCAL_H

#include "platform/export.h"

#include <memory>
#include <utility>

/// The part of gk_ThreadLocal that knows no type. It lives in the library, so that a slot gives a thread the
/// same value from whichever program or shared library it is asked.
class GKCNTR_API gk_ThreadSlot {
public:
    gk_ThreadSlot(const gk_ThreadSlot&) = delete;
    gk_ThreadSlot& operator=(const gk_ThreadSlot&) = delete;

protected:
    using Destroy = void (*)(void* value);

    gk_ThreadSlot();
    ~gk_ThreadSlot();

    /// The calling thread's value, null before keep().
    void* find() const;
    /// Makes `value` the calling thread's, to be destroyed when the thread ends. Owns nothing when it throws.
    void keep(void* value, Destroy destroy) const;

private:
    std::shared_ptr<const char> key_;
};

/// A slot, usually a static object, that holds one `T` for each thread.
///
///     gkRandomUniform& generator() {
///         static const gk_ThreadLocal<gkRandomUniform> slot([] { return new gkRandomUniform(1); });
///         return slot.get();
///     }
///
/// Lifetimes. A thread's values are destroyed at its end, the last made first, and those of the main thread
/// when the program ends; get() must not be called from destructors of static or thread-local objects. A slot
/// may die before the threads that used it. Nothing leaks then: each thread destroys its value when it next
/// gets a first value from any slot, or else at its end. The code of T's destructor must be loaded until then,
/// so a shared library that holds a slot is not to be unloaded while threads live that used it. On Windows a
/// fiber counts as a thread.
///
/// get() may be called by any number of threads at once; no thread waits for another. The construction and the
/// destruction of a slot must not overlap its use.
template <class T> class gk_ThreadLocal : private gk_ThreadSlot {
public:
    /// `factory()` makes the value of the calling thread: a T* allocated with `new`, never null. It may throw,
    /// and may use other slots, but not this one. It may be called by several threads at once.
    template <class Factory>
    explicit gk_ThreadLocal(Factory factory) : maker_(std::make_unique<MakerBy<Factory>>(std::move(factory))) {}

    /// The calling thread's own value, the same at every call; the reference is valid until the thread ends.
    ///
    /// What the factory throws passes through, and the next call tries again. Cost: a look at each value the
    /// thread has, of which there are as many as slots it used.
    T& get() const {
        if (void* const own = find()) return *static_cast<T*>(own);
        std::unique_ptr<T> made(maker_->make());
        keep(made.get(), [](void* value) { delete static_cast<T*>(value); });
        return *made.release();
    }

private:
    // What std::function does, whose header takes as long to compile as all of the library's.
    struct Maker {
        virtual ~Maker() = default;
        virtual T* make() = 0;
    };
    template <class Factory> struct MakerBy : Maker {
        explicit MakerBy(Factory&& made) : factory(std::move(made)) {}
        T* make() override { return factory(); }
        Factory factory;
    };

    std::unique_ptr<Maker> maker_;
};

#endif
