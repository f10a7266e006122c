// Bytes that mean harm: cut, flipped, nested, in rings. Every reading ends in an object or in one of
// gkArchive::Errors, and nothing stays behind.
#include "tests/platform/core/archive/test_objects.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>

using test::Node;

namespace {

using Handle = gkPtrHandle<Node>;
using Bytes = std::vector<unsigned char>;

// A graph with sharing, a ring, both classes, a null and an owned error behind it.
Bytes graph() {
    Handle root = test::node(1);
    gkPtrHandle<test::Leaf> leaf(new test::Leaf);
    leaf->value = 2;
    leaf->extra = 0.5;
    const Handle third = test::node(-3);
    root->next = {leaf, third, leaf, Handle()};
    third->next = {root, leaf};
    gkArchiveMemory out;
    out || root;
    const test::Error error;
    out.writeObject(&error);
    root->next.clear();
    third->next.clear();
    return out.bytes();
}

// Unties what a successful reading may have tied into rings.
void untie(const Handle& root) {
    if (root.isNull()) return;
    const std::vector<Handle> next = std::move(root->next);
    root->next.clear();
    for (const Handle& one : next) untie(one);
}

// Reads; true when that went well, and then saving gives the very same bytes again.
bool readsFaithfully(const Bytes& bytes) {
    Handle root;
    std::unique_ptr<gkPersistent> error;
    try {
        gkArchiveMemory in(bytes);
        in || root;
        error.reset(in.readObject());
        in.finish();
    } catch (const gkArchive::Errors& refused) {
        EXPECT_NE(L"", refused.message());
        untie(root);
        return false;
    }
    gkArchiveMemory out;
    out || root;
    out.writeObject(error.get());
    EXPECT_EQ(test::hex(bytes), test::hex(out.bytes()));
    untie(root);
    return true;
}

// A chain of `length` nodes, each held by the next, none nested while it is written.
std::vector<Handle> chainFromItsEnd(int length) {
    std::vector<Handle> all;
    for (int i = 0; i < length; ++i) {
        all.push_back(test::node(i));
        if (i > 0) all.back()->next = {all[all.size() - 2]};
    }
    return all;
}

} // namespace

TEST(ArchiveHostile, TheWholeGraphComesBack) {
    EXPECT_TRUE(readsFaithfully(graph()));
    EXPECT_EQ(0, Node::alive);
}

TEST(ArchiveHostile, CutAtAnyByteIsAnErrorAndFreesEverything) {
    const Bytes whole = graph();
    for (std::size_t length = 0; length < whole.size(); ++length) {
        SCOPED_TRACE(length);
        EXPECT_FALSE(
            readsFaithfully(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length))));
        EXPECT_EQ(0, Node::alive);
        EXPECT_EQ(0, test::Error::alive);
    }
}

TEST(ArchiveHostile, OneByteMoreIsAnError) {
    Bytes longer = graph();
    longer.push_back(0);
    EXPECT_FALSE(readsFaithfully(longer));
    EXPECT_EQ(0, Node::alive);
}

TEST(ArchiveHostile, AnyFlippedBitIsAnErrorOrReadAsItStands) {
    const Bytes whole = graph();
    for (std::size_t bit = 0; bit < 8 * whole.size(); ++bit) {
        SCOPED_TRACE(bit);
        Bytes flipped = whole;
        flipped[bit / 8] = static_cast<unsigned char>(flipped[bit / 8] ^ (1u << (bit % 8)));
        readsFaithfully(flipped);
        EXPECT_EQ(0, Node::alive);
        EXPECT_EQ(0, test::Error::alive);
    }
}

TEST(ArchiveHostile, AnyMixtureOfBytesIsAnErrorOrReadAsItStands) {
    const Bytes whole = graph();
    for (unsigned seed = 1; seed <= 3000; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        Bytes mixed = whole;
        for (unsigned long change = random() % 6 + 1; change > 0; --change) {
            // Mostly small numbers: they get further than wild ones.
            mixed[8 + random() % (mixed.size() - 8)] =
                static_cast<unsigned char>(random() % (random() % 2 ? 4 : 256));
        }
        readsFaithfully(mixed);
        EXPECT_EQ(0, Node::alive);
    }
}

TEST(ArchiveHostile, ARingInAFailedReadingIsFreed) {
    // Node 1 refers to itself, then the bytes end.
    const Bytes bytes =
        test::archive("01 00 00 00 0a 00 00 00 74 65 73 74 3a 3a 4e 6f 64 65 00 00 07 00 00 00 00 02 00 00 00 "
                      "01 00 00 00 02 00 00 00");
    {
        gkArchiveMemory in(bytes);
        Handle root;
        EXPECT_THROW(in || root, gkArchive::Truncated);
        EXPECT_TRUE(root.isNull());
    }
    EXPECT_EQ(0, Node::alive);
}

TEST(ArchiveHostile, WhatWasReadBeforeTheFailureIsLeftAlone) {
    gkArchiveMemory out;
    Handle good = test::node(1);
    good->next = {test::node(2)};
    out || good;
    Bytes bytes = out.bytes();
    bytes.push_back(9);
    gkArchiveMemory in(bytes);
    Handle read;
    Handle failing;
    in || read;
    EXPECT_THROW(in || failing, gkArchive::Truncated);
    ASSERT_EQ(1u, read->next.size());
    EXPECT_EQ(2, read->next[0]->value);
}

TEST(ArchiveNesting, IsAllowedUpToTheLimitAndNoFurther) {
    for (const int length : {gkArchive::depthLimit, gkArchive::depthLimit + 1}) {
        const std::vector<Handle> chain = chainFromItsEnd(length);
        Handle root = chain.back();
        gkArchiveMemory out;
        if (length > gkArchive::depthLimit) {
            EXPECT_THROW(out || root, gkArchive::TooDeep);
        } else {
            out || root;
            gkArchiveMemory in(out.bytes());
            Handle read;
            in || read;
            in.finish();
            EXPECT_EQ(length - 1, read->value);
        }
    }
    EXPECT_EQ(0, Node::alive);
}

TEST(ArchiveNesting, CountsARingUpToWhereItCloses) {
    const std::vector<Handle> ring = chainFromItsEnd(gkArchive::depthLimit);
    ring.front()->next = {ring.back()};
    Handle read = test::loaded<Handle>(test::saved(ring.back()));
    untie(ring.back());
    untie(read);
    read = Handle();
    EXPECT_EQ(gkArchive::depthLimit, Node::alive);
}

TEST(ArchiveNesting, BeyondTheLimitIsRefusedWhenRead) {
    // The first node of a nested pair, again and again with the next number.
    std::string body;
    for (int number = 1; number <= gkArchive::depthLimit + 1; ++number) {
        body += test::hex(
            {static_cast<unsigned char>(number & 255), static_cast<unsigned char>(number >> 8), 0, 0});
        body += " 0a 00 00 00 74 65 73 74 3a 3a 4e 6f 64 65 00 00 00 00 00 00 00 01 00 00 00 ";
    }
    EXPECT_THROW(test::loaded<Handle>(body), gkArchive::TooDeep);
    EXPECT_EQ(0, Node::alive);
}

TEST(ArchiveNesting, CountsAChainThatIsBuiltFromItsEnd) {
    std::vector<Handle> chain = chainFromItsEnd(gkArchive::depthLimit);
    EXPECT_NO_THROW(test::saved(chain));
    chain = chainFromItsEnd(gkArchive::depthLimit + 1);
    EXPECT_THROW(test::saved(chain), gkArchive::TooDeep);
}

TEST(ArchiveNesting, OfAChainOfBytesOfAnyLengthIsRefusedBeforeFreeingItCouldRecurse) {
    const std::uint32_t length = 100000;
    gkArchiveMemory out;
    out.vectorHeader(length, 4);
    for (std::uint32_t i = 1; i <= length; ++i) {
        unsigned long number = i;
        std::string name = "test::Node";
        unsigned char version = 0;
        long value = 0;
        out || number || name || version || version || value;
        unsigned long before = i - 1;
        out.vectorHeader(1, 4);
        out || before;
    }
    gkArchiveMemory in(out.bytes());
    std::vector<Handle> all;
    EXPECT_THROW(in || all, gkArchive::TooDeep);
    all.clear();
}

TEST(ArchiveNesting, OfManyObjectsSideBySideIsNotDeep) {
    std::vector<Handle> all;
    const Handle shared = test::node(0);
    for (long i = 0; i < 5000; ++i) {
        all.push_back(test::node(i));
        all.back()->next = {shared};
    }
    const std::vector<Handle> read = test::loaded<std::vector<Handle>>(test::saved(all));
    ASSERT_EQ(5000u, read.size());
    EXPECT_EQ(read[0]->next[0], read[4999]->next[0]);
}
