// Value collections: hash maps and ordered ones.
#include "frame/Map.h"
#include "frame/TestLanguage.h"

#include <gtest/gtest.h>

namespace frametest {
namespace {

std::string keysOf(everyShape::Derived const& every) {
  std::string keys;
  for (auto at = every.bytesIteratorConst(); at; ++at) keys += std::to_string(at.key()) + " ";
  return keys;
}

TEST(MapTest, DefaultValueUnderANewKeyIsAChange) {
  Watched every;
  EXPECT_EQ(every->bytes(1), 0u);
  every->bytesIs(1, 0);
  EXPECT_EQ(every->bytesCount(), 1u);
  EXPECT_EQ(every->version(), 1u);
  EXPECT_EQ(every.heard(), "bytes 1;");
}

TEST(MapTest, EqualValueIsNoChange) {
  Watched every;
  every->bytesIs(1, 5);
  every->bytesIs(1, 5);
  EXPECT_EQ(every->version(), 1u);
  EXPECT_EQ(every.heard(), "bytes 1;");
}

TEST(MapTest, OtherValueIsStoredInTheSameNode) {
  Watched every;
  every->bytesIs(1, 5);
  auto const node = every->bytesIterator();
  every->bytesIs(1, 6);
  EXPECT_EQ(node.value(), 6u);
  EXPECT_EQ(every->bytesCount(), 1u);
  EXPECT_EQ(every.heard(), "bytes 1;bytes 1;");
}

TEST(MapTest, NewInsertsWithoutAWord) {
  Watched every;
  EXPECT_EQ(every->newBytes(2, 9)->value(), 9u);
  EXPECT_EQ(every->bytes(2), 9u);
  EXPECT_EQ(every->version(), 0u);
  EXPECT_EQ(every.heard(), "");
}

TEST(MapTest, DeletingAMissingKeyGivesTheDefaultAndNoWord) {
  Watched every;
  EXPECT_EQ(every->bytesDel(1), 0u);
  EXPECT_EQ(every->version(), 0u);
  EXPECT_EQ(every.heard(), "");
}

TEST(MapTest, DeletingReturnsTheValueAndTells) {
  Watched every;
  every->wordsIs(70000, "seventy");
  every.heard();
  EXPECT_EQ(every->wordsDel(70000), "seventy");
  EXPECT_EQ(every->wordsCount(), 0u);
  EXPECT_EQ(every->version(), 2u);
  EXPECT_EQ(every.heard(), "words 70000;");
}

TEST(MapTest, DeletingByIteratorTakesTheNodeUnderIt) {
  Watched every;
  every->bytesIs(1, 5);
  auto at = every->bytesIterator();
  EXPECT_EQ(every->bytesDel(at), 5u);
  EXPECT_EQ(every->bytesDel(at), 0u) << "it has gone";
  EXPECT_EQ(every->bytesDel(++at), 0u) << "the end";
  EXPECT_EQ(every->version(), 2u);
}

TEST(MapTest, IteratorOnAReplacedElementDeletesNothing) {
  Watched every;
  every->bytesIs(1, 5);
  auto const at = every->bytesIterator();
  every->bytesDel(1);
  every->bytesIs(1, 6);
  EXPECT_EQ(every->bytesDel(at), 0u);
  EXPECT_EQ(every->bytes(1), 6u);
}

TEST(MapTest, DeletingAllTellsOfEachInTheOrderOfTheWalk) {
  Watched every;
  for (U8 key : {1, 2, 3, 4}) every->bytesIs(key, 1);
  EXPECT_EQ(keysOf(*every.entity), "4 2 1 3 ");
  every.heard();
  every->bytesDelAll();
  EXPECT_EQ(every.heard(), "bytes 4;bytes 2;bytes 1;bytes 3;");
  EXPECT_EQ(every->version(), 8u);
  EXPECT_EQ(every->bytesCount(), 0u);
}

TEST(MapTest, DeletingAllTakesWhatAnObserverInsertsBehindIt) {
  Watched every;
  for (U8 key : {2, 4}) every->bytesIs(key, 1);
  bool inserted = false;
  every.listener->then = [&] {
    if (std::exchange(inserted, true)) return;
    every->newBytes(3, 1);  // behind 2
    every->newBytes(8, 1);  // behind 4 in its bucket's chain
  };
  every->bytesDelAll();
  EXPECT_EQ(every->bytesCount(), 0u);
}

TEST(MapTest, NotifyAnnouncesWhatHappenedInsideAnElement) {
  Watched every;
  every->bytesNotify(200);
  EXPECT_EQ(every.heard(), "bytes 200;");
  EXPECT_EQ(every->version(), 0u);
}

TEST(MapTest, StringKeysAreComparedByTheirBytes) {
  Watched every;
  every->textsIs("Ethernet1", true);
  every->textsIs(Mox::String8("Ethernet") + "1", true);
  EXPECT_EQ(every->textsCount(), 1u);
  EXPECT_TRUE(every->texts("Ethernet1"));
  EXPECT_FALSE(every->texts("Ethernet2"));
  EXPECT_EQ(every.heard(), "texts Ethernet1;");
}

TEST(MapTest, ReadingAnElementIsOneRead) {
  Watched every;
  every->bytes(1);
  EXPECT_EQ(every->readCount(), 1u);
}

TEST(MapTest, OrderedMapWalksInAscendingOrder) {
  Watched every;
  for (U8 key : {7, 1, 200}) every->lanesIs(key, key);
  std::string keys;
  for (auto at = every->lanesIteratorConst(); at; ++at) keys += std::to_string(at.key()) + " ";
  EXPECT_EQ(keys, "1 7 200 ");
  every.heard();
  every->lanesDelAll();
  EXPECT_EQ(every.heard(), "lanes 1;lanes 7;lanes 200;");
}

TEST(MapTest, CollectionOfADerivedEntityTellsItsOwnObservers) {
  Watched every;
  every->marksIs(1, true);
  EXPECT_EQ(every.heard(), "marks 1;");
}

}  // namespace
}  // namespace frametest
