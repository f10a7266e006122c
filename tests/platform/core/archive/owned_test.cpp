// Objects that no handle holds: writeObject and readObject.
#include "tests/platform/core/archive/test_objects.h"

#include <gtest/gtest.h>

#include <memory>

using test::Error;
using test::Node;

namespace {

const std::string errorName = "0b 00 00 00 74 65 73 74 3a 3a 45 72 72 6f 72";
const std::string nodeName = "0a 00 00 00 74 65 73 74 3a 3a 4e 6f 64 65";

} // namespace

TEST(ArchiveOwned, AnErrorIsItsNameAndOneVersionByteForEachLevel) {
    const Error error(L"lost on the way");
    gkArchiveMemory out;
    out.writeObject(&error);
    EXPECT_EQ("01 00 00 00 " + errorName + " 00 00 00", test::body(out));

    gkArchiveMemory in(out.bytes());
    const std::unique_ptr<gkPersistent> read(in.readObject());
    in.finish();
    const Error* const readError = dynamic_cast<const Error*>(read.get());
    ASSERT_NE(nullptr, readError);
    EXPECT_EQ(77, readError->errorNumber());
    EXPECT_EQ(L"", readError->message());
}

TEST(ArchiveOwned, AnErrorWithAnUnknownVersionNamesItsLevel) {
    for (const auto& [record, level] :
         {std::pair("01 00 00", "test::Error"), std::pair("00 01 00", "gkException"),
          std::pair("00 00 01", "gkPersistent")}) {
        gkArchiveMemory in(test::archive("01 00 00 00 " + errorName + " " + record));
        try {
            in.readObject();
            ADD_FAILURE() << "not thrown";
        } catch (const gkArchive::UnknownVersion& error) {
            EXPECT_STREQ(level, error.text());
            EXPECT_EQ(0, error.number());
        }
    }
}

TEST(ArchiveOwned, NullIsZero) {
    gkArchiveMemory out;
    out.writeObject(nullptr);
    EXPECT_EQ("00 00 00 00", test::body(out));
    EXPECT_EQ(nullptr, gkArchiveMemory(out.bytes()).readObject());
}

TEST(ArchiveOwned, IsFreedByTheArchiveWhenItsRecordIsBad) {
    ASSERT_EQ(0, Error::alive);
    {
        gkArchiveMemory in(test::archive("01 00 00 00 " + errorName + " 00 07 00"));
        EXPECT_THROW(in.readObject(), gkArchive::UnknownVersion);
    }
    EXPECT_EQ(0, Error::alive);
}

TEST(ArchiveOwned, EveryCallWritesAnObjectOfItsOwn) {
    gkArchiveMemory out;
    Node node(5);
    out.writeObject(&node);
    node.value = 6;
    out.writeObject(&node);
    gkArchiveMemory in(out.bytes());
    for (const long value : {5L, 6L}) {
        const std::unique_ptr<gkPersistent> read(in.readObject());
        EXPECT_EQ(value, dynamic_cast<Node&>(*read).value);
        EXPECT_EQ(0, dynamic_cast<Node&>(*read).references());
    }
    in.finish();
    EXPECT_EQ(0, node.references());
}

TEST(ArchiveOwned, MayReferToSharedObjects) {
    Node owner(1);
    owner.next = {test::node(2)};
    gkArchiveMemory out;
    out.writeObject(&owner);
    out || owner.next;
    gkArchiveMemory in(out.bytes());
    const std::unique_ptr<gkPersistent> read(in.readObject());
    std::vector<gkPtrHandle<Node>> next;
    in || next;
    in.finish();
    ASSERT_EQ(1u, next.size());
    EXPECT_EQ(next[0], dynamic_cast<Node&>(*read).next[0]);
}

TEST(ArchiveOwned, IsNotReadTwice) {
    gkArchiveMemory in(test::archive("01 00 00 00 " + errorName + " 00 00 00 01 00 00 00"));
    delete in.readObject();
    EXPECT_THROW(in.readObject(), gkArchive::BadReference);
}

TEST(ArchiveOwned, CannotBeReferredToAfterwards) {
    gkArchiveMemory in(
        test::archive("01 00 00 00 " + nodeName + " 00 00 07 00 00 00 00 00 00 00 00 01 00 00 00"));
    const std::unique_ptr<gkPersistent> read(in.readObject());
    gkPtrHandle<Node> handle;
    EXPECT_THROW(in || handle, gkArchive::BadReference);
}

TEST(ArchiveOwned, AnObjectReadByHandleIsNotHandedOut) {
    gkArchiveMemory in(
        test::archive("01 00 00 00 " + nodeName + " 00 00 07 00 00 00 00 00 00 00 00 01 00 00 00"));
    gkPtrHandle<Node> handle;
    in || handle;
    EXPECT_THROW(in.readObject(), gkArchive::BadReference);
}

TEST(ArchiveOwned, AnObjectThatRefersToItselfIsRefusedAndFreed) {
    ASSERT_EQ(0, Node::alive);
    {
        gkArchiveMemory in(
            test::archive("01 00 00 00 " + nodeName + " 00 00 07 00 00 00 00 01 00 00 00 01 00 00 00"));
        EXPECT_THROW(in.readObject(), gkArchive::BadReference);
    }
    EXPECT_EQ(0, Node::alive);
}

TEST(ArchiveOwned, AnObjectSavedByHandleIsNotSavedAsOwnedToo) {
    gkPtrHandle<Node> handle = test::node(1);
    gkArchiveMemory out;
    out || handle;
    EXPECT_THROW(out.writeObject(handle.get()), gkArchive::BadReference);
    handle->next = {handle};
    gkArchiveMemory ring;
    EXPECT_THROW(ring.writeObject(handle.get()), gkArchive::BadReference);
    handle->next.clear();
}

TEST(ArchiveOwned, OfAnUnregisteredClassIsRefused) {
    const test::Unregistered object;
    gkArchiveMemory out;
    EXPECT_THROW(out.writeObject(&object), gkArchive::UnknownType);
    EXPECT_EQ("", test::body(out));
}
