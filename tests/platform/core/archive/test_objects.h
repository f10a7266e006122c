// Persistent classes and byte helpers for the archive tests.
#ifndef GK_TESTS_PLATFORM_CORE_ARCHIVE_TEST_OBJECTS_H
#define GK_TESTS_PLATFORM_CORE_ARCHIVE_TEST_OBJECTS_H

#include "platform/core/archive/archive_memory.h"
#include "platform/core/object/exception.h"
#include "platform/core/object/handle.h"
#include "platform/core/object/instantiator.h"

#include <string>
#include <vector>

namespace test {

// A shared object with references to others. Record: byte 0, base record, value, vector of references.
class Node : public virtual gkPersistent, public virtual gkRepBase {
public:
    explicit Node(long v = 0);
    Node(const Node& other);
    Node& operator=(const Node&) = default;
    ~Node() override;
    void forgetHandles() noexcept override;

    long value;
    std::vector<gkPtrHandle<Node>> next;

    static int alive;

protected:
    void dispatchSerialize(gkArchive& ar) override;

private:
    static gkPersistent* make();
    static gk_Instantiator sExemplar;
};

// Derived, with a record around the base's: byte 0, Node record, extra.
class Leaf : public virtual Node {
public:
    double extra = 0.0;

protected:
    void dispatchSerialize(gkArchive& ar) override;

private:
    static gkPersistent* make();
    static gk_Instantiator sExemplar;
};

// Not related to Node.
class Other : public virtual gkPersistent, public virtual gkRepBase {
private:
    static gkPersistent* make();
    static gk_Instantiator sExemplar;
};

class Unregistered : public Node {};

// Registered under a name, with a maker that fails.
class Unmade : public Node {
private:
    static gkPersistent* make();
    static gk_Instantiator sExemplar;
};

// An error that an archive can create.
class Error : public gkExceptionWithString {
public:
    explicit Error(const wchar_t* text = L"");
    ~Error() override;
    long errorNumber() const override { return 77; }
    void suicideAndRethrow() override;

    static int alive;

protected:
    void dispatchSerialize(gkArchive& ar) override;

private:
    Error(const Error&);
    static gkPersistent* make();
    static gk_Instantiator sExemplar;
};

gkPtrHandle<Node> node(long value);

// "01 ff" and back.
std::string hex(const std::vector<unsigned char>& bytes);
std::vector<unsigned char> bytes(const std::string& hex);
// The bytes after the header.
std::string body(const gkArchiveMemory& ar);
// A whole archive around a body given in hex.
std::vector<unsigned char> archive(const std::string& bodyHex);

// The body that saving one value gives.
template <class T> std::string saved(T value) {
    gkArchiveMemory ar;
    ar || value;
    return body(ar);
}

// The value that a body holds; the body has to end with it.
template <class T> T loaded(const std::string& bodyHex) {
    gkArchiveMemory ar(archive(bodyHex));
    T value = T();
    ar || value;
    ar.finish();
    return value;
}

} // namespace test

#endif
