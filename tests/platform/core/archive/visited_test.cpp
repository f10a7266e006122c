// Objects in place, their visited mark, and how it meets references.
#include "tests/platform/core/archive/test_objects.h"

#include <gtest/gtest.h>

using test::Node;

namespace {

const std::string record7 = "00 00 07 00 00 00 00 00 00 00 00";
const std::string reference7 = "01 00 00 00 0a 00 00 00 74 65 73 74 3a 3a 4e 6f 64 65 " + record7;

} // namespace

TEST(ArchiveInPlace, IsTheRecordAlone) {
    gkArchiveMemory out;
    Node node(7);
    out || node;
    EXPECT_EQ(record7, test::body(out));
    gkArchiveMemory in(out.bytes());
    Node read;
    in || read;
    in.finish();
    EXPECT_EQ(7, read.value);
}

TEST(ArchiveInPlace, TheSecondTimeWritesNothing) {
    gkArchiveMemory out;
    Node node(7);
    EXPECT_FALSE(node.haveVisited(out));
    out || node || node;
    EXPECT_TRUE(node.haveVisited(out));
    EXPECT_EQ(record7, test::body(out));
}

TEST(ArchiveInPlace, TheMarkBelongsToTheArchive) {
    Node node(7);
    gkArchiveMemory first;
    first || node;
    gkArchiveMemory second;
    second || node;
    EXPECT_EQ(record7, test::body(second));
}

TEST(ArchiveInPlace, BaseLevelsShareTheMark) {
    test::Leaf leaf;
    leaf.value = 7;
    gkArchiveMemory out;
    out || leaf || leaf;
    EXPECT_EQ("00 " + record7 + " 00 00 00 00 00 00 00 00", test::body(out));
}

TEST(ArchiveInPlace, ReadsTwoObjectsOneAfterTheOther) {
    gkArchiveMemory in(test::archive(record7 + " " + record7));
    Node a;
    Node b;
    in || a || b;
    in.finish();
    EXPECT_EQ(7, a.value);
    EXPECT_EQ(7, b.value);
}

TEST(ArchiveVisited, AReferenceAfterInPlaceBringsAWholeRecord) {
    gkPtrHandle<Node> handle = test::node(7);
    gkArchiveMemory out;
    out || *handle || handle;
    EXPECT_EQ(record7 + " " + reference7, test::body(out));
    // Still visited in place.
    out || *handle;
    EXPECT_EQ(record7 + " " + reference7, test::body(out));

    gkArchiveMemory in(out.bytes());
    Node inPlace;
    gkPtrHandle<Node> shared;
    in || inPlace || shared;
    in.finish();
    EXPECT_EQ(7, inPlace.value);
    EXPECT_EQ(7, shared->value);
}

TEST(ArchiveVisited, InPlaceAfterAReferenceBringsAWholeRecord) {
    gkPtrHandle<Node> handle = test::node(7);
    gkArchiveMemory out;
    out || handle || *handle;
    EXPECT_EQ(reference7 + " " + record7, test::body(out));

    gkArchiveMemory in(out.bytes());
    gkPtrHandle<Node> shared;
    Node inPlace;
    in || shared || inPlace;
    in.finish();
    EXPECT_EQ(7, inPlace.value);

    // The very object that the reference made can be read in place as well.
    gkArchiveMemory again(out.bytes());
    again || shared || *shared;
    again.finish();
}

TEST(ArchiveVisited, AnObjectMadeWhereAVisitedOneWasIsReadAllTheSame) {
    gkArchiveMemory in(test::archive("01 00 00 00 0b 00 00 00 74 65 73 74 3a 3a 45 72 72 6f 72 00 00 00 "
                                     "02 00 00 00 0b 00 00 00 74 65 73 74 3a 3a 45 72 72 6f 72 00 00 00"));
    // An allocator likes to give the same address again.
    delete in.readObject();
    delete in.readObject();
    in.finish();
}

TEST(ArchiveInPlace, UnknownVersionsNameTheirLevel) {
    const auto refusal = [](const std::string& bodyHex) {
        gkArchiveMemory in(test::archive(bodyHex));
        Node node;
        try {
            in || node;
        } catch (const gkArchive::UnknownVersion& error) {
            EXPECT_EQ(0, error.number());
            return std::string(error.text());
        }
        return std::string("not thrown");
    };
    EXPECT_EQ("test::Node", refusal("01 00"));
    EXPECT_EQ("gkPersistent", refusal("00 01"));
}
