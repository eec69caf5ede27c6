// The grouping of tables on SRAM blocks.
#include "XpLib/XpTableCliHelperRigTest.h"
#include "XpLib/XpTableCliHelperSramMap.h"

#include <set>

namespace Kestrel::xpTableCliHelper {

namespace {

/// The ids of a group, ascending: "1 2".
std::string ids(SharedTableGroup const& group) {
  std::vector<U32> sorted;
  for (auto at = group.tableIdIteratorConst(); at; ++at) sorted.push_back(at.key());
  std::ranges::sort(sorted);
  std::string text;
  for (U32 id : sorted) text += (text.empty() ? "" : " ") + std::to_string(id);
  return text;
}

/// The map of a chip with those tables: "0:4 {1 2}, " for each block that has some.
std::string groups(std::vector<EntryPtr> const& tables) {
  SramMap const map(*chipWith(tables));
  std::string text;
  for (U32 pool = 0; pool < numPools; ++pool)
    for (U32 block = 0; block < blocksPerPool; ++block)
      if (U32 const group = map.groupAt(pool, block))
        text += (text.empty() ? "" : ", ") + std::to_string(pool) + ":" + std::to_string(block) +
                " {" + ids(map.group(group)) + "}";
  return text;
}

TEST(SramMapTest, NoTablesNoBlocks) { EXPECT_EQ(groups({}), ""); }

TEST(SramMapTest, ABlockForEachOfTheRun) {
  EXPECT_EQ(groups({named(7, "T", blocks(4, 2, 3))}), "4:2 {7}, 4:3 {7}, 4:4 {7}");
}

TEST(SramMapTest, TablesAreGroupedBlockByBlock) {
  EXPECT_EQ(groups({named(1, "A", blocks(0, 0, 4)), named(2, "B", blocks(0, 2, 4))}),
            "0:0 {1}, 0:1 {1}, 0:2 {1 2}, 0:3 {1 2}, 0:4 {2}, 0:5 {2}");
}

TEST(SramMapTest, CopiesOfATableAreTheTable) {
  EXPECT_EQ(groups({table(3, "T", std::vector{blocks(1, 8, 1), blocks(1, 8, 1)})}), "1:8 {3}");
}

TEST(SramMapTest, OverlappingCopiesOfATableAreTheTable) {
  EXPECT_EQ(groups({table(3, "T", std::vector{blocks(1, 8, 2), blocks(1, 9, 2)})}),
            "1:8 {3}, 1:9 {3}, 1:10 {3}");
}

TEST(SramMapTest, TableZeroIsNoEmptyGroup) {
  EXPECT_EQ(groups({named(0, "T", blocks(0, 0, 1))}), "0:0 {0}");
}

TEST(SramMapTest, RunThatWrapsPast255AddsNothing) {
  EXPECT_EQ(groups({named(1, "T", blocks(0, 254, 4))}), "");
}

TEST(SramMapTest, RunWithoutBlockAddsNothing) {
  EXPECT_EQ(groups({named(1, "T", direct(1023, 256, {0, 5}))}), "");
}

TEST(SramMapTest, RunOfNoBlockAtBlock0TakesTheWholePool) {
  EXPECT_EQ(groups({named(1, "T", direct(1023, 256, {7, 0}))}),
            groups({named(1, "T", blocks(7, 0, 64))}));
}

TEST(SramMapTest, BlocksAndPoolsThatNoChipHasAreLeftOut) {
  EXPECT_EQ(groups({named(1, "T", blocks(7, 62, 4))}), "7:62 {1}, 7:63 {1}");
  EXPECT_EQ(groups({named(1, "T", blocks(7, 64, 4)), named(2, "T", blocks(0, 255, 1)),
                    named(3, "T", blocks(8, 0, 1)), named(4, "T", blocks(255, 0, 1))}),
            "");
}

TEST(SramMapTest, OtherMemoriesAreIgnored) {
  EXPECT_EQ(groups({named(1, "A", match(2, 0)), named(2, "B", isme(0, 8192, 0))}), "");
}

TEST(SramMapTest, EachSetOfTablesHasOneNumberAndNoOther) {
  // The copies of 1 overlap on block 1.
  SramMap const map(*chipWith({table(1, "A", std::vector{blocks(0, 0, 2), blocks(0, 1, 2)}),
                               named(2, "B", blocks(0, 0, 4)), named(3, "C", blocks(0, 2, 3))}));
  EXPECT_EQ(map.groupAt(0, 0), map.groupAt(0, 1));
  std::set<std::string> seen;
  for (U32 group = 0; group < map.numGroups(); ++group)
    EXPECT_TRUE(seen.insert(ids(map.group(group))).second) << ids(map.group(group));
  EXPECT_EQ(seen, (std::set<std::string>{"", "1 2", "1 2 3", "2", "2 3", "3"}));
}

TEST(SramMapTest, NextHopIndexTakesEightBlocksATile) {
  xpLpmTableContext context;
  context.nhiTable.poolBitmap = 1;
  context.nhiTable.tileBitmap[0] = 2;
  EXPECT_EQ(groups({named(9, "T", context)}),
            "0:8 {9}, 0:9 {9}, 0:10 {9}, 0:11 {9}, 0:12 {9}, 0:13 {9}, 0:14 {9}, 0:15 {9}");
}

}  // namespace

}  // namespace Kestrel::xpTableCliHelper
