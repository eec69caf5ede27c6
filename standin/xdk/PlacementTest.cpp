// Which blocks each class of contexts takes.
#include "Xdk/LpmTableContext.h"
#include "Xdk/TableContexts.h"
#include "standin/xdk/Placement.h"

#include <gtest/gtest.h>
#include <string>

namespace xdksim {
namespace {

/// "pool:start+blocks" of each run.
std::string shown(xpTableContext const& context) {
  std::string text;
  for (SramRun const& run : sramRuns(context))
    text += (text.empty() ? "" : " ") + std::to_string(run.pool) + ':' + std::to_string(run.start) +
            '+' + std::to_string(run.blocks);
  return text;
}

std::vector<SramBlock> blocksOf(U32 pool, U32 start, U32 blocks) {
  return sramBlocks({SramPart::all, 0, pool, start, blocks});
}

xpHashTableContext hash(U32 entries, U16 keySize, U16 valueSize, U8 ways) {
  xpHashTableContext context;
  context.numOfEntries = entries;
  context.keySize = keySize;
  context.valueSize = valueSize;
  context.numOfWays = ways;
  for (U32 way = 0; way < 8; ++way) {
    context.poolId[way] = 4 + way % 4;
    context.rowBlkStartId[way] = 8 * way;
  }
  return context;
}

xpDirectTableContext direct(U32 entries, U16 width, U32 pool = 2, U32 start = 5) {
  xpDirectTableContext context;
  context.numOfEntries = entries;
  context.entryWidth = width;
  context.poolId = pool;
  context.rowBlkStartId = start;
  return context;
}

xpNhTableContext nextHop(U32 poolBitmap, U32 entries, U32 width) {
  xpNhTableContext context;
  context.poolBitmap = poolBitmap;
  context.numEntries = entries;
  context.entryWidth = width;
  for (U32 pool = 0; pool < 8; ++pool) context.rowBlkStartId[pool] = 10 + pool;
  return context;
}

TEST(PlacementTest, HashHasARunForEachWay) {
  EXPECT_EQ(shown(hash(8192, 64, 64, 2)), "4:0+2 5:8+2");
}

TEST(PlacementTest, HashOfTwoRowsTakesTwiceTheEntries) {
  EXPECT_EQ(shown(hash(4096, 256, 256, 2)), "4:0+4 5:8+4");
}

TEST(PlacementTest, HashTakesUpToEightWays) {
  EXPECT_EQ(sramRuns(hash(65536, 64, 64, 8)).size(), 8u);
  EXPECT_EQ(shown(hash(65536, 64, 64, 9)), "");
  EXPECT_EQ(shown(hash(65536, 64, 64, 0)), "");
}

TEST(PlacementTest, HashEntryFillsARowAtMostUnlessKeyAndValueFillOneEach) {
  EXPECT_EQ(shown(hash(2048, 128, 128, 1)), "4:0+2");
  EXPECT_EQ(shown(hash(2048, 128, 129, 1)), "");
  EXPECT_EQ(shown(hash(2048, 256, 255, 1)), "");
  EXPECT_EQ(shown(hash(2048, 0, 0, 1)), "");
}

TEST(PlacementTest, RunSaysWhatOfItsContextItIs) {
  EXPECT_EQ(sramRuns(hash(8192, 64, 64, 2))[1], (SramRun{SramPart::way, 1, 5, 8, 2}));
  EXPECT_EQ(sramRuns(direct(8192, 128))[0], (SramRun{SramPart::all, 0, 2, 5, 4}));
  EXPECT_EQ(sramRuns(nextHop(0b10000, 16384, 64))[0], (SramRun{SramPart::poolWay, 4, 4, 14, 4}));
}

TEST(PlacementTest, DirectHasOneRun) {
  EXPECT_EQ(shown(direct(8192, 128)), "2:5+4");
  EXPECT_EQ(shown(direct(2048, 256)), "2:5+2");
}

TEST(PlacementTest, WidthThatNoRowHoldsTakesNothing) {
  EXPECT_EQ(shown(direct(8192, 0)), "");
  EXPECT_EQ(shown(direct(8192, 257)), "");
  EXPECT_EQ(shown(nextHop(1, 8192, 0)), "");
  EXPECT_EQ(shown(nextHop(1, 8192, 257)), "");
}

TEST(PlacementTest, RemaindersAreDroppedAtEachStep) {
  EXPECT_EQ(shown(direct(1536, 256)), "2:5+1");
  EXPECT_EQ(shown(direct(2047, 100)), "2:5+0");  // 2 entries a row
  EXPECT_EQ(shown(hash(3 * 1024 + 2, 256, 0, 3)), "4:0+1 5:8+1 6:16+1");
}

TEST(PlacementTest, NextHopHasARunInEachPoolOfTheBitmap) {
  EXPECT_EQ(shown(nextHop(0b10010, 16384, 64)), "1:11+2 4:14+2");
}

TEST(PlacementTest, NextHopCountsBitsAboveThePoolsAsWays) {
  EXPECT_EQ(shown(nextHop(0x101, 8192, 64)), "0:10+1");
  EXPECT_EQ(shown(nextHop(0x100, 8192, 64)), "");
  EXPECT_EQ(shown(nextHop(0, 8192, 64)), "");
}

TEST(PlacementTest, LpmHasARunForEachValidSlotAndEachTile) {
  xpLpmTableContext context;
  context.prefixTable[2] = {1, 4096, 64, 0, 1, 7};
  context.prefixTable[3] = {0, 4096, 64, 0, 1, 8};
  context.prefixTable[5] = {2, 0, 128, 0, 3, 9};
  context.prefixTable[6] = {1, 4096, 0, 0, 3, 9};
  context.nhiTable.poolBitmap = 0b101;
  context.nhiTable.tileBitmap[0] = 0b1;
  context.nhiTable.tileBitmap[1] = 0xFF;
  context.nhiTable.tileBitmap[2] = 0b100010;
  EXPECT_EQ(shown(context), "1:7+1 3:9+0 0:0+8 2:8+8 2:40+8");
  EXPECT_EQ(sramRuns(context)[1], (SramRun{SramPart::prefixTable, 5, 3, 9, 0}));
  EXPECT_EQ(sramRuns(context)[4], (SramRun{SramPart::tile, 5, 2, 40, 8}));
}

TEST(PlacementTest, EmptyContextsAndOtherMemoriesTakeNothing) {
  xpMatchTableContext match;
  match.numDb = 4;
  xpIsmeTableContext isme;
  isme.numOfEntries = 8192;
  EXPECT_EQ(shown(match) + shown(isme) + shown(xpTableContext(1)), "");
  EXPECT_EQ(shown(hash(0, 64, 64, 2)) + shown(direct(0, 64)) + shown(nextHop(1, 0, 64)), "");
  EXPECT_EQ(shown(xpLpmTableContext()), "");
}

TEST(PlacementTest, EndOfARunIsCountedIn8Bits) {
  EXPECT_EQ((SramRun{SramPart::all, 0, 4, 8, 4}.end()), 11);
  EXPECT_EQ((SramRun{SramPart::all, 0, 4, 8, 0}.end()), 7);
  EXPECT_EQ((SramRun{SramPart::all, 0, 4, 0, 0}.end()), 255);
  EXPECT_EQ((SramRun{SramPart::all, 0, 4, 254, 4}.end()), 1);
}

TEST(PlacementTest, BlocksOfARun) {
  EXPECT_EQ(blocksOf(4, 62, 2), (std::vector<SramBlock>{{4, 62}, {4, 63}}));
  EXPECT_TRUE(blocksOf(4, 0, 0).empty());
}

TEST(PlacementTest, BlocksThatTheChipLacksAreNotTaken) {
  EXPECT_EQ(blocksOf(3, 47, 4), (std::vector<SramBlock>{{3, 47}}));
  EXPECT_EQ(blocksOf(4, 60, 0xFFFFFFFF).size(), 4u);
  EXPECT_TRUE(blocksOf(8, 0, 4).empty());
  EXPECT_TRUE(blocksOf(4, 0xFFFFFFFF, 4).empty());
}

TEST(PlacementTest, PoolsHave48Or64Blocks) {
  EXPECT_EQ(sramPoolBlocks(3), 48u);
  EXPECT_EQ(sramPoolBlocks(4), 64u);
  EXPECT_EQ(sramPoolBlocks(7), 64u);
  EXPECT_EQ(sramPoolBlocks(8), 0u);
}

TEST(PlacementTest, OnlyHashContextsDeclareSharing) {
  xpHashTableContext context;
  EXPECT_FALSE(declaresShared(context));
  context.shared = 0x80000000;
  EXPECT_TRUE(declaresShared(context));
  EXPECT_FALSE(declaresShared(direct(8192, 128)));
}

TEST(PlacementTest, NegativeFirstFieldIsNotInUse) {
  xpTableContext context;
  EXPECT_FALSE(isInUse(context));
  context.first = 0;
  EXPECT_TRUE(isInUse(context));
}

}  // namespace
}  // namespace xdksim
