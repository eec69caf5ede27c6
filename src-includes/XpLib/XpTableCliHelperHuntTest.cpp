// Collections keyed by groups, of which none is less than another.
#include "XpLib/XpTableCliHelperRigTest.h"

namespace Kestrel::xpTableCliHelper {

namespace {

SharedTableGroup groupOf(U32 tableId) {
  SharedTableGroup group;
  group.tableIdIs(tableId, true);
  return group;
}

TEST(LegendTest, RemovingAllLeavesNone) {
  auto const map = tableSramMemoryMapFactory();
  for (U32 table = 0; table < 8; ++table) map->legendIs(groupOf(table), "x");
  map->legendDelAll();
  EXPECT_EQ(map->legendCount(), 0u);
}

TEST(LegendTest, RemovingTheCurrentGoesOnBehindIt) {
  auto const map = tableSramMemoryMapFactory();
  for (U32 table = 0; table < 8; ++table) map->legendIs(groupOf(table), "x");
  for (auto at = map->legendIterator(); at; ++at) map->legendDel(at);
  EXPECT_EQ(map->legendCount(), 0u);
}

TEST(SharedTableGroupTest, RemovingAllLeavesTheEmptyGroup) {
  SharedTableGroup group;
  for (U32 table = 0; table < 62; ++table) group.tableIdIs(table, true);
  group.tableIdDelAll();
  EXPECT_EQ(group, SharedTableGroup());
}

}  // namespace

}  // namespace Kestrel::xpTableCliHelper
