// Owned children: one, and a collection of them.
#include "frame/Own.h"
#include "frame/Owns.h"
#include "frame/TestLanguage.h"

#include <gtest/gtest.h>

namespace frametest {
namespace {

TEST(OwnTest, SameNameKeepsTheChildAndStepsTheVersionAlone) {
  Watched every;
  auto const child = every->bestIs("a", 1, mix);
  EXPECT_EQ(every->bestIs("a", 1, mix), child);
  EXPECT_EQ(every->version(), 2u);
  EXPECT_EQ(every.heard(), "best;");
}

TEST(OwnTest, SameNameKeepsTheChildWhateverElseIsAsked) {
  Watched every;
  auto const child = every->bestIs("a", 1, mix);
  EXPECT_EQ(every->bestIs("a", 9, mix), child);
  EXPECT_EQ(child->lane(), 1u);
}

TEST(OwnTest, OtherNameDetachesTheOldChild) {
  Watched every;
  auto const old = every->bestIs("a", 1, mix);
  auto const child = every->bestIs("b", 1, mix);
  EXPECT_FALSE(old->parent());
  EXPECT_EQ(child->parent().ptr(), every.entity.ptr());
  EXPECT_EQ(child->parentAttrId(), 273u);
  EXPECT_EQ(every->version(), 3u);
  EXPECT_EQ(every.heard(), "best;best;");
}

TEST(OwnTest, NewMakesAChildThatIsNotStored) {
  Watched every;
  auto const child = every->newBest("a", 1, mix);
  EXPECT_EQ(child->parent().ptr(), every.entity.ptr());
  EXPECT_FALSE(every->best());
  EXPECT_EQ(every->version(), 0u);
}

TEST(OwnTest, DeletingWithoutAChildDoesNothing) {
  Watched every;
  EXPECT_FALSE(every->bestDel());
  EXPECT_EQ(every->version(), 0u);
  EXPECT_EQ(every.heard(), "");
}

TEST(OwnTest, DeletingDetachesTellsAndReturnsTheChild) {
  Watched every;
  auto const child = every->bestIs("a", 1, mix);
  every.heard();
  EXPECT_EQ(every->bestDel(), child);
  EXPECT_FALSE(every->best());
  EXPECT_FALSE(child->parent());
  EXPECT_EQ(every->version(), 2u);
  EXPECT_EQ(every.heard(), "best;");
}

TEST(OwnTest, ChildThatAnObserverTakesAwayIsNullAtTheEnd) {
  Watched every;
  every.listener->then = [&] {
    every.listener->then = nullptr;
    every->bestDel();
  };
  EXPECT_EQ(complaintOf([&] { every->bestIs("a", 1, mix); }), "null ValidPtr");
}

TEST(OwnTest, ChildThatOutlivesItsOwnerHasNoParent) {
  Mox::Ptr<everyShape::Leaf> single, listed;
  {
    Watched every;
    single = every->bestIs("a", 1, mix);
    listed = every->leavesIs("b", 1, mix);
  }
  EXPECT_FALSE(single->parent());
  EXPECT_FALSE(listed->parent());
}

TEST(OwnsTest, AskingTwiceMakesOneChildAndTellsOnce) {
  Watched every;
  auto const child = every->leavesIs("a", 1, mix);
  EXPECT_EQ(every->leavesIs("a", 1, mix), child);
  EXPECT_EQ(every->leavesCount(), 1u);
  EXPECT_EQ(every->version(), 1u);
  EXPECT_EQ(every.heard(), "leaves a;");
}

TEST(OwnsTest, ChildStandsUnderItsOwner) {
  Watched every;
  auto const child = every->leavesIs("a", 1, mix);
  EXPECT_EQ(child->parent().ptr(), every.entity.ptr());
  EXPECT_EQ(child->parentAttrId(), 274u);
  EXPECT_EQ(every->leaves("a"), child);
  EXPECT_FALSE(every->leaves("b"));
}

TEST(OwnsTest, OtherParameterIsAnErrorThatChangesNothing) {
  Watched every;
  auto const child = every->leavesIs("a", 1, mix);
  EXPECT_EQ(complaintOf([&] { every->leavesIs("a", 2, mix); }),
            "Reinstantiating the entity with name 'a' where constructor parameter attribute _lane "
            "has a different value of 2 than the current value of 1 not allowed");
  EXPECT_EQ(every->version(), 1u);
  EXPECT_EQ(child->lane(), 1u);
}

TEST(OwnsTest, FirstDifferenceInTheConstructorsOrderIsReported) {
  Watched every;
  every->leavesIs("a", 1, mix);
  auto const both = complaintOf([&] { every->leavesIs("a", 2, everyShape::Mix(1, 0, 0, 0, "")); });
  EXPECT_NE(both.find("attribute _lane has"), std::string::npos);
  auto const second =
      complaintOf([&] { every->leavesIs("a", 1, everyShape::Mix(1, 0, 0, 0, "")); });
  EXPECT_NE(second.find("attribute _mix has a different value of Value('everyShape::Mix', ** "
                        "{'small': 1, "),
            std::string::npos);
}

TEST(OwnsTest, NewInsertsWithoutAWord) {
  Watched every;
  auto const child = every->newLeaves("a", 1, mix);
  EXPECT_EQ(every->leaves("a"), child);
  EXPECT_EQ(child->parent().ptr(), every.entity.ptr());
  EXPECT_EQ(every->version(), 0u);
  EXPECT_EQ(every.heard(), "");
}

TEST(OwnsTest, DeletingDetachesTellsAndReturnsTheChild) {
  Watched every;
  auto const child = every->leavesIs("a", 1, mix);
  every.heard();
  EXPECT_EQ(every->leavesDel("a"), child);
  EXPECT_FALSE(every->leavesDel("a"));
  EXPECT_FALSE(child->parent());
  EXPECT_EQ(every->version(), 2u);
  EXPECT_EQ(every.heard(), "leaves a;");
}

TEST(OwnsTest, DeletingByIteratorAndAll) {
  Watched every;
  for (char const* name : {"a", "b", "c"}) every->leavesIs(name, 1, mix);
  auto at = every->leavesIterator();
  EXPECT_TRUE(every->leavesDel(at));
  EXPECT_FALSE(every->leavesDel(at)) << "it has gone";
  every->leavesDelAll();
  EXPECT_EQ(every->leavesCount(), 0u);
  EXPECT_EQ(every->version(), 6u);
}

TEST(OwnsTest, RemovedChildIsNotRead) {
  Watched every;
  auto const child = every->leavesIs("a", 1, everyShape::Mix());
  U32 const reads = child->readCount();
  every->leavesDel("a");
  EXPECT_EQ(child->readCount(), reads);
}

TEST(OwnsTest, EntityIsItsOwnNode) {
  Watched every;
  auto const child = every->leavesIs("a", 1, mix);
  EXPECT_EQ(every->leavesIterator().node(), child.ptr());
}

TEST(RefsTest, ReferenceIsComparedByIdentity) {
  Watched every;
  auto const first = leaf("a");
  every->buddyIs(first);
  every->buddyIs(first);
  every->buddyIs(leaf("a"));
  every->buddyIs(nullptr);
  EXPECT_EQ(every->version(), 3u);
  EXPECT_EQ(every.heard(), "buddy;buddy;buddy;");
}

TEST(RefsTest, ElementsGiveTheirOwnKey) {
  Watched every;
  auto const known = leaf("a");
  every->knownIs(known);
  every->knownIs(known);
  EXPECT_EQ(every->known("a"), known);
  EXPECT_FALSE(known->parent()) << "a reference owns nothing";
  EXPECT_EQ(every->version(), 1u);
  EXPECT_EQ(every.heard(), "known a;");
}

TEST(RefsTest, OtherEntityOfTheSameKeyTakesThePlace) {
  Watched every;
  every->knownIs(leaf("a"));
  auto const second = leaf("a");
  every->knownIs(second);
  EXPECT_EQ(every->known("a"), second);
  EXPECT_EQ(every->knownCount(), 1u);
  EXPECT_EQ(every.heard(), "known a;known a;");
}

TEST(RefsTest, NullIsRefusedWithItsStrayQuote) {
  Watched every;
  EXPECT_EQ(complaintOf([&] { every->knownIs(nullptr); }),
            "null _known parameter to mutator for everyShape::Every::known not allowed\"");
  EXPECT_EQ(every->version(), 0u);
}

TEST(RefsTest, GivenKeyTakesNullAsAValue) {
  Watched every;
  every->seatsIs(4, nullptr);
  EXPECT_EQ(every->seatsCount(), 1u);
  EXPECT_FALSE(every->seats(4));
  EXPECT_EQ(every.heard(), "seats 4;");
}

TEST(RefsTest, DeletingReturnsWhatWasReferred) {
  Watched every;
  auto const known = leaf("a");
  every->knownIs(known);
  EXPECT_EQ(every->knownDel("a"), known);
  EXPECT_FALSE(every->knownDel("a"));
  EXPECT_EQ(every->version(), 2u);
}

}  // namespace
}  // namespace frametest
