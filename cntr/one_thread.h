// Tells when a shape is used from two threads at once; in builds for debugging only.
#ifndef GK_CNTR_ONE_THREAD_H
#define GK_CNTR_ONE_THREAD_H

class gkContour;
class gkRegionSet;

#ifdef GKCNTR_CHECK_THREADS

// Marks a shape as in use by the calling thread while an operation on it runs; an operation within another one
// of the same thread finds the mark and leaves it. Where another thread's mark stands, gstd_assert_ is called.
//
// The marks stand in a table beside the shapes, so that a shape has the same layout in every build, and no lock
// orders the threads, which would hide what is looked for. Two shapes may share a place in the table; the later
// one then goes unmarked: what is told is true, but not all is told.
class gk_OneThread {
public:
    explicit gk_OneThread(const gkContour& shape) : gk_OneThread(static_cast<const void*>(&shape)) {}
    explicit gk_OneThread(const gkRegionSet& shape) : gk_OneThread(static_cast<const void*>(&shape)) {}
    ~gk_OneThread();
    gk_OneThread(const gk_OneThread&) = delete;
    gk_OneThread& operator=(const gk_OneThread&) = delete;

private:
    struct Mark;

    explicit gk_OneThread(const void* shape);

    Mark* mark_ = nullptr; // null where an outer operation, or nobody, has marked the shape
};

#else

struct gk_OneThread {
    explicit gk_OneThread(const gkContour&) {}
    explicit gk_OneThread(const gkRegionSet&) {}
};

#endif

#endif
