// The raw list of notifiees: order, counts, the change counter.
#include "Mox/ListRaw.h"

#include <gtest/gtest.h>

namespace Mox {
namespace {

using Member = PtrInterface::NotifieeConst;

class ListRawTest : public testing::Test {
 protected:
  String8 order() const {
    String8 text;
    for (ListRaw<Member>::LrIteratorConst at(list); at; ++at)
      text += at.ptr() == a.ptr() ? "a" : at.ptr() == b.ptr() ? "b" : "c";
    return text;
  }

  ListRaw<Member> list;
  Ptr<Member> a = new Member, b = new Member, c = new Member;
};

TEST_F(ListRawTest, StartsEmptyWithoutChanges) {
  EXPECT_EQ(list.changes(), 0u);
  EXPECT_EQ(list.count(), 0u);
  EXPECT_TRUE(list.empty());
}

TEST_F(ListRawTest, HasFourWords) { EXPECT_EQ(sizeof list, 2 * sizeof(U32) + 2 * sizeof(void*)); }

TEST_F(ListRawTest, ClearHoldsEachMemberForAMoment) {
  class Brief : public Member {
   public:
    explicit Brief(int& ends) : ends_(ends) {}
    ~Brief() override { ++ends_; }

   private:
    int& ends_;
  };
  int ends = 0;
  list.linkTail(new Brief(ends));
  list.clear();
  EXPECT_EQ(ends, 1) << "nobody but the walk held it";
}

TEST_F(ListRawTest, TailAndHeadLinksKeepTheirOrder) {
  list.linkTail(a.ptr());
  list.linkTail(b.ptr());
  list.linkHead(c.ptr());
  EXPECT_EQ(order(), "cab");
  EXPECT_EQ(list.changes(), 3u);
  EXPECT_EQ(list.count(), 3u);
}

TEST_F(ListRawTest, LinkOwnsNoReference) {
  list.linkTail(a.ptr());
  EXPECT_EQ(a->references(), 1u);
  list.unlink(a.ptr());
}

TEST_F(ListRawTest, UnlinkFixesHeadAndTail) {
  for (auto const& member : {a, b, c}) list.linkTail(member.ptr());
  EXPECT_TRUE(list.unlink(c.ptr()));
  EXPECT_TRUE(list.unlink(a.ptr()));
  list.linkTail(c.ptr());
  EXPECT_EQ(order(), "bc");
}

TEST_F(ListRawTest, UnlinkOfAStrangerChangesNothing) {
  list.linkTail(a.ptr());
  EXPECT_FALSE(list.unlink(b.ptr()));
  EXPECT_EQ(list.changes(), 1u);
}

TEST_F(ListRawTest, ClearStepsTheChangeCounterByOne) {
  list.linkTail(a.ptr());
  list.linkTail(b.ptr());
  list.clear();
  EXPECT_TRUE(list.empty());
  EXPECT_EQ(list.changes(), 3u);
  EXPECT_EQ(list.count(), 0u);
  EXPECT_EQ(BaseCollection::next(a.ptr()), nullptr);
}

}  // namespace
}  // namespace Mox
