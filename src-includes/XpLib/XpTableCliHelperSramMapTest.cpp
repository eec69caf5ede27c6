// The grouping of tables on SRAM blocks.
#include "XpLib/XpTableCliHelperRigTest.h"
#include "XpLib/XpTableCliHelperSramMap.h"

namespace Kestrel::xpTableCliHelper {

namespace {

/// The map of a chip with those tables.
class Map {
 public:
  explicit Map(std::vector<EntryPtr> const& tables) {
    buildSramMap(*chipWith(tables), *names_, *map_);
  }

  /// "0:4 {1 2}, " for each block, ids ascending.
  std::string groups() const {
    std::string text;
    for (auto at = map_->tableIdIteratorConst(); at; ++at)
      text += (text.empty() ? "" : ", ") + block(at.key()) + " {" + ids(at.value()) + "}";
    return text;
  }
  std::string names() const {
    std::string text;
    for (auto at = names_->tableNameIteratorConst(); at; ++at)
      text += (text.empty() ? "" : " ") + std::to_string(at.key()) + at.value().charPtr();
    return text;
  }
  U32 legendCount() const { return map_->legendCount(); }
  U32 blockCount() const { return map_->tableIdCount(); }

 private:
  static std::string block(TableSramChunk const& chunk) {
    EXPECT_EQ(chunk.startRowBlkId(), chunk.endRowBlkId());
    return std::to_string(chunk.poolId()) + ":" + std::to_string(chunk.startRowBlkId());
  }
  static std::string ids(SharedTableGroup const& group) {
    std::vector<U32> sorted;
    for (auto at = group.tableIdIteratorConst(); at; ++at) sorted.push_back(at.key());
    std::ranges::sort(sorted);
    std::string text;
    for (U32 id : sorted) text += (text.empty() ? "" : " ") + std::to_string(id);
    return text;
  }

  TableCollection::Ptr names_ = tableCollectionFactory();
  TableSramMemoryMap::Ptr map_ = tableSramMemoryMapFactory();
};

template <class Context>
EntryPtr named(U32 tableId, char const* name, Context const& context) {
  return table(tableId, name, std::vector{context});
}

TEST(SramMapTest, NoTablesNoBlocks) {
  EXPECT_EQ(Map({}).groups(), "");
  EXPECT_EQ(Map({}).names(), "");
}

TEST(SramMapTest, ABlockForEachOfTheRun) {
  EXPECT_EQ(Map({named(7, "T", blocks(4, 2, 3))}).groups(), "4:2 {7}, 4:3 {7}, 4:4 {7}");
}

TEST(SramMapTest, TablesAreGroupedBlockByBlock) {
  EXPECT_EQ(Map({named(1, "A", blocks(0, 0, 4)), named(2, "B", blocks(0, 2, 4))}).groups(),
            "0:0 {1}, 0:1 {1}, 0:2 {1 2}, 0:3 {1 2}, 0:4 {2}, 0:5 {2}");
}

TEST(SramMapTest, CopiesOfATableAreTheTable) {
  EXPECT_EQ(Map({table(3, "T", std::vector{blocks(1, 8, 1), blocks(1, 8, 1)})}).groups(),
            "1:8 {3}");
}

TEST(SramMapTest, OverlappingCopiesOfATableAreTheTable) {
  EXPECT_EQ(Map({table(3, "T", std::vector{blocks(1, 8, 2), blocks(1, 9, 2)})}).groups(),
            "1:8 {3}, 1:9 {3}, 1:10 {3}");
}

TEST(SramMapTest, TableZeroIsNoEmptyGroup) {
  EXPECT_EQ(Map({named(0, "T", blocks(0, 0, 1))}).groups(), "0:0 {0}");
}

TEST(SramMapTest, RunWithoutBlockAddsNothingNotEvenItsName) {
  Map const map({named(1, "T", direct(1023, 256, {0, 5}))});
  EXPECT_EQ(map.groups(), "");
  EXPECT_EQ(map.names(), "");
}

TEST(SramMapTest, RunThatWrapsPast255AddsNothing) {
  EXPECT_EQ(Map({named(1, "T", blocks(0, 254, 4))}).groups(), "");
}

TEST(SramMapTest, RunThatEndsAtBlock255ComesToItsEnd) {
  EXPECT_EQ(Map({named(1, "T", blocks(0, 254, 2))}).groups(), "0:254 {1}, 0:255 {1}");
  EXPECT_EQ(Map({named(1, "T", direct(1023, 256, {0, 0}))}).blockCount(), 256u);
}

TEST(SramMapTest, OtherMemoriesAreIgnored) {
  Map const map({named(1, "A", match(2, 0)), named(2, "B", isme(0, 8192, 0))});
  EXPECT_EQ(map.groups(), "");
  EXPECT_EQ(map.names(), "");
}

TEST(SramMapTest, NamesOfTheTablesThatHaveBlocks) {
  EXPECT_EQ(Map({named(1, "A", blocks(0, 0, 4)), named(2, "B", blocks(0, 2, 4)),
                 named(3, "C", match(1, 0))})
                .names(),
            "2B 1A");
}

TEST(SramMapTest, LegendStaysEmpty) {
  EXPECT_EQ(Map({named(1, "A", blocks(0, 0, 4))}).legendCount(), 0u);
}

TEST(SramMapTest, NextHopIndexTakesEightBlocksATile) {
  xpLpmTableContext context;
  context.nhiTable.poolBitmap = 1;
  context.nhiTable.tileBitmap[0] = 2;
  EXPECT_EQ(Map({named(9, "T", context)}).groups(),
            "0:8 {9}, 0:9 {9}, 0:10 {9}, 0:11 {9}, 0:12 {9}, 0:13 {9}, 0:14 {9}, 0:15 {9}");
}

}  // namespace

}  // namespace Kestrel::xpTableCliHelper
