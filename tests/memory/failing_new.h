// The operator new of a test program: it counts what lives and fails when told to.
#ifndef GK_TESTS_MEMORY_FAILING_NEW_H
#define GK_TESTS_MEMORY_FAILING_NEW_H

// Blocks taken and not given back. One thread at a time.
long livingBlocks();

// How many times one or more requests were made to fail in this process.
long failedRequests();

enum class Shortage {
    ePassing, // one request fails, the next is served
    eLasting, // so does every one after it
};

// While it exists, request `k` (1 is the next) throws std::bad_alloc.
class FailingNew {
public:
    FailingNew(long k, Shortage shortage);
    ~FailingNew();
    FailingNew(const FailingNew&) = delete;
    FailingNew& operator=(const FailingNew&) = delete;

    bool hasFailed() const;
};

#endif
