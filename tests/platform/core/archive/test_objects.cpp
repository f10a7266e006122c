#include "tests/platform/core/archive/test_objects.h"

#include <cstdio>
#include <memory>
#include <sstream>

namespace test {

int Node::alive = 0;
gk_Instantiator Node::sExemplar(typeid(Node), "test::Node", &Node::make);

Node::Node(long v) : value(v) { ++alive; }
Node::Node(const Node& other) : gkPersistent(other), gkRepBase(other), value(other.value), next(other.next) {
    ++alive;
}
Node::~Node() { --alive; }
void Node::forgetHandles() noexcept { next.clear(); }
gkPersistent* Node::make() { return new Node; }

void Node::dispatchSerialize(gkArchive& ar) {
    if (haveVisited(ar)) return;
    unsigned char version = 0;
    ar || version;
    if (version != 0) throw gkArchive::UnknownVersion("test::Node", 0);
    gkPersistent::dispatchSerialize(ar);
    ar || value;
    ar || next;
    setVisited(ar);
}

gk_Instantiator Leaf::sExemplar(typeid(Leaf), "test::Leaf", &Leaf::make);
gkPersistent* Leaf::make() { return new Leaf; }

void Leaf::dispatchSerialize(gkArchive& ar) {
    if (haveVisited(ar)) return;
    unsigned char version = 0;
    ar || version;
    if (version != 0) throw gkArchive::UnknownVersion("test::Leaf", 0);
    Node::dispatchSerialize(ar);
    ar || extra;
    setVisited(ar);
}

gk_Instantiator Other::sExemplar(typeid(Other), "test::Other", &Other::make);
gkPersistent* Other::make() { return new Other; }

gk_Instantiator Unmade::sExemplar(typeid(Unmade), "test::Unmade", &Unmade::make);
gkPersistent* Unmade::make() { return nullptr; }

int Error::alive = 0;
gk_Instantiator Error::sExemplar(typeid(Error), "test::Error", &Error::make);

Error::Error(const wchar_t* text) : gkExceptionWithString(text) { ++alive; }
Error::Error(const Error& other) : gkExceptionWithString(other) { ++alive; }
Error::~Error() { --alive; }
gkPersistent* Error::make() { return new Error; }

void Error::suicideAndRethrow() {
    const std::unique_ptr<Error> held(this);
    throw Error(*this);
}

void Error::dispatchSerialize(gkArchive& ar) {
    if (haveVisited(ar)) return;
    unsigned char version = 0;
    ar || version;
    if (version != 0) throw gkArchive::UnknownVersion("test::Error", 0);
    gkException::dispatchSerialize(ar);
    setVisited(ar);
}

gkPtrHandle<Node> node(long value) { return gkPtrHandle<Node>(new Node(value)); }

std::string hex(const std::vector<unsigned char>& bytes) {
    std::string text;
    for (const unsigned char byte : bytes) {
        char two[4];
        std::snprintf(two, sizeof two, text.empty() ? "%02x" : " %02x", byte);
        text += two;
    }
    return text;
}

std::vector<unsigned char> bytes(const std::string& hex) {
    std::vector<unsigned char> all;
    std::istringstream in(hex);
    for (unsigned byte; in >> std::hex >> byte;) all.push_back(static_cast<unsigned char>(byte));
    return all;
}

std::string body(const gkArchiveMemory& ar) {
    return hex(std::vector<unsigned char>(ar.bytes().begin() + 8, ar.bytes().end()));
}

std::vector<unsigned char> archive(const std::string& bodyHex) {
    return bytes("67 6b 61 72 01 00 00 00 " + bodyHex);
}

} // namespace test
