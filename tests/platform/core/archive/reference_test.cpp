// References: handles in an archive. Goldens are put together by hand from docs/format.md.
#include "tests/platform/core/archive/test_objects.h"

#include <gtest/gtest.h>

using test::Leaf;
using test::Node;

namespace {

using Handle = gkPtrHandle<Node>;

const std::string nodeName = "0a 00 00 00 74 65 73 74 3a 3a 4e 6f 64 65";
const std::string leafName = "0a 00 00 00 74 65 73 74 3a 3a 4c 65 61 66";
const std::string otherName = "0b 00 00 00 74 65 73 74 3a 3a 4f 74 68 65 72";
const std::string noNext = "00 00 00 00 00";

} // namespace

TEST(ArchiveReference, ToNothingIsZero) {
    EXPECT_EQ("00 00 00 00", test::saved(Handle()));
    EXPECT_EQ("00 00 00 00", test::saved(gkPtrHandle_const<Node>()));
    EXPECT_TRUE(test::loaded<Handle>("00 00 00 00").isNull());
    EXPECT_TRUE(test::loaded<gkPtrHandle_const<Node>>("00 00 00 00").isNull());
}

TEST(ArchiveReference, ToNothingReplacesWhatTheHandleHeld) {
    Handle handle = test::node(1);
    gkArchiveMemory in(test::archive("00 00 00 00"));
    in || handle;
    EXPECT_TRUE(handle.isNull());
}

TEST(ArchiveReference, IsNumberNameAndRecord) {
    const std::string golden = "01 00 00 00 " + nodeName + " 00 00 07 00 00 00 " + noNext;
    EXPECT_EQ(golden, test::saved(test::node(7)));
    EXPECT_EQ(golden, test::saved(gkPtrHandle_const<Node>(test::node(7))));
    EXPECT_EQ(7, test::loaded<Handle>(golden)->value);
    EXPECT_EQ(7, test::loaded<gkPtrHandle_const<Node>>(golden)->value);
}

TEST(ArchiveReference, ToTheSameObjectAgainIsOnlyItsNumber) {
    const Handle shared = test::node(7);
    std::vector<Handle> all = {shared, shared, Handle(), test::node(8), shared};
    const std::string golden = "00 05 00 00 00 01 00 00 00 " + nodeName + " 00 00 07 00 00 00 " + noNext +
                               " 01 00 00 00 00 00 00 00 02 00 00 00 " + nodeName + " 00 00 08 00 00 00 " +
                               noNext + " 01 00 00 00";
    EXPECT_EQ(golden, test::saved(all));
    all = test::loaded<std::vector<Handle>>(golden);
    EXPECT_EQ(all[0], all[1]);
    EXPECT_EQ(all[0], all[4]);
    EXPECT_TRUE(all[2].isNull());
    EXPECT_NE(all[0], all[3]);
    EXPECT_EQ(3, all[0]->references());
}

TEST(ArchiveReference, KeepsTheDynamicClass) {
    const std::string golden =
        "01 00 00 00 " + leafName + " 00 00 00 07 00 00 00 " + noNext + " 00 00 00 00 00 00 f0 3f";
    gkPtrHandle<Leaf> leaf(new Leaf);
    leaf->value = 7;
    leaf->extra = 1.0;
    EXPECT_EQ(golden, test::saved(Handle(leaf)));
    EXPECT_EQ(golden, test::saved(leaf));
    const Handle read = test::loaded<Handle>(golden);
    const Leaf* const readLeaf = dynamic_cast<const Leaf*>(read.get());
    ASSERT_NE(nullptr, readLeaf);
    EXPECT_EQ(7, readLeaf->value);
    EXPECT_EQ(1.0, readLeaf->extra);
}

TEST(ArchiveReference, KeepsARing) {
    ASSERT_EQ(0, Node::alive);
    {
        Handle a = test::node(1);
        const Handle b = test::node(2);
        a->next = {b, a};
        b->next = {a};
        const std::string golden = "01 00 00 00 " + nodeName +
                                   " 00 00 01 00 00 00 00 02 00 00 00 02 00 00 00 " + nodeName +
                                   " 00 00 02 00 00 00 00 01 00 00 00 01 00 00 00 01 00 00 00";
        EXPECT_EQ(golden, test::saved(a));
        const Handle readA = test::loaded<Handle>(golden);
        ASSERT_EQ(2u, readA->next.size());
        const Handle readB = readA->next[0];
        EXPECT_EQ(2, readB->value);
        EXPECT_EQ(readA, readA->next[1]);
        EXPECT_EQ(readA, readB->next[0]);
        for (const Handle& one : {a, b, readA, readB}) one->next.clear();
    }
    EXPECT_EQ(0, Node::alive);
}

TEST(ArchiveReference, OutlivesTheArchiveOnlyThroughHandles) {
    ASSERT_EQ(0, Node::alive);
    {
        gkArchiveMemory in(test::archive(test::saved(test::node(3))));
        {
            Handle read;
            in || read;
            EXPECT_EQ(2, read->references());
        }
        EXPECT_EQ(1, Node::alive);
    }
    EXPECT_EQ(0, Node::alive);
}

TEST(ArchiveReference, HoldsWhatWasSavedSoThatAnAddressIsNotTakenTwice) {
    gkArchiveMemory out;
    for (long value = 0; value < 50; ++value) {
        Handle temporary = test::node(value);
        out || temporary;
    }
    gkArchiveMemory in(out.bytes());
    for (long value = 0; value < 50; ++value) {
        Handle read;
        in || read;
        EXPECT_EQ(value, read->value);
    }
    in.finish();
}

TEST(ArchiveReference, OfAnUnregisteredClassIsRefusedWhenSaved) {
    gkArchiveMemory out;
    Handle handle(new test::Unregistered);
    EXPECT_THROW(out || handle, gkArchive::UnknownType);
    EXPECT_EQ("", test::body(out));
}

TEST(ArchiveReference, OfAnUnknownNameIsRefused) {
    try {
        test::loaded<Handle>("01 00 00 00 03 00 00 00 61 62 63");
        FAIL() << "not thrown";
    } catch (const gkArchive::UnknownType& error) {
        EXPECT_EQ(L"unknown class: abc", error.message());
    }
    EXPECT_THROW(test::loaded<Handle>("01 00 00 00 00 00 00 00"), gkArchive::UnknownType);
    // Registered, but nothing can be made.
    EXPECT_THROW(test::loaded<Handle>("01 00 00 00 0c 00 00 00 74 65 73 74 3a 3a 55 6e 6d 61 64 65"),
                 gkArchive::UnknownType);
}

TEST(ArchiveReference, ToAnotherClassIsRefused) {
    EXPECT_THROW(test::loaded<Handle>("01 00 00 00 " + otherName + " 00"), gkArchive::WrongType);
    // A Node where a Leaf is asked for, new or known.
    const std::string one = "01 00 00 00 " + nodeName + " 00 00 07 00 00 00 " + noNext;
    EXPECT_THROW(test::loaded<gkPtrHandle<Leaf>>(one), gkArchive::WrongType);
    gkArchiveMemory in(test::archive(one + " 01 00 00 00"));
    Handle node;
    gkPtrHandle<Leaf> leaf;
    in || node;
    EXPECT_THROW(in || leaf, gkArchive::WrongType);
}

TEST(ArchiveReference, ToAnObjectThatCannotBeSharedIsRefused) {
    ASSERT_EQ(0, test::Error::alive);
    EXPECT_THROW(test::loaded<Handle>("01 00 00 00 0b 00 00 00 74 65 73 74 3a 3a 45 72 72 6f 72 00 00 00"),
                 gkArchive::WrongType);
    EXPECT_EQ(0, test::Error::alive);
}

TEST(ArchiveReference, OutOfSequenceIsRefused) {
    EXPECT_THROW(test::loaded<Handle>("02 00 00 00 " + nodeName + " 00 00 07 00 00 00 " + noNext),
                 gkArchive::BadReference);
    EXPECT_THROW(test::loaded<Handle>("ff ff ff ff"), gkArchive::BadReference);
}
