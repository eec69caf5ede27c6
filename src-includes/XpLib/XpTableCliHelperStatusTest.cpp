// How published tables come to the status that reports read.
#include "XpLib/XpTableCliHelperRigTest.h"
#include "XpLib/XpTableCliHelperStatus.h"

namespace Kestrel::xpTableCliHelper {

namespace {

/// What the agent publishes and what the tools see.
struct Statuses {
  ChipStatus::Ptr published = chipStatusFactory("chip");
  XpSystem::ChipStatus::Ptr seen = new XpSystem::ChipStatus("chip");

  void fill() { tableContextFrom(*seen, *published); }
  std::string order() const {
    std::string ids;
    for (auto at = seen->tableContextIteratorConst(); at; ++at)
      ids += std::to_string(at.key()) + ' ';
    return ids;
  }
};

TEST(TableContextFromTest, NothingPublishedNothingSeen) {
  Statuses statuses;
  statuses.fill();
  EXPECT_EQ(statuses.order(), "");
}

TEST(TableContextFromTest, EntriesAreTheSameObjectsUnderTheSameIds) {
  Statuses statuses;
  auto const entry = statuses.published->tableContextEntryIs(42, "T");
  statuses.fill();
  EXPECT_EQ(statuses.seen->tableContext(42), entry);
  EXPECT_EQ(statuses.seen->tableContext(41), nullptr);
}

TEST(TableContextFromTest, LaterFillForgetsWhatHasGone) {
  Statuses statuses;
  for (U32 id : {1, 2, 3}) statuses.published->tableContextEntryIs(id, "T");
  statuses.fill();
  statuses.published->tableContextEntryDel(2);
  statuses.fill();
  EXPECT_EQ(statuses.order(), "1 3 ");
}

TEST(TableContextFromTest, OrderIsThatOfTheSource) {
  Statuses statuses;
  for (U32 id = 0; id < 62; ++id) statuses.published->tableContextEntryIs(id, "T");
  statuses.fill();
  std::string expected;
  for (auto at = statuses.published->tableContextEntryIteratorConst(); at; ++at)
    expected += std::to_string(at.key()) + ' ';
  EXPECT_EQ(statuses.order(), expected);
}

}  // namespace

}  // namespace Kestrel::xpTableCliHelper
