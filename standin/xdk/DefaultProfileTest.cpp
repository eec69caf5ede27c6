// What the built-in profile promises, worked out from its contexts.
#include "standin/xdk/Profile.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <set>

namespace xdksim {
namespace {

/// A block of SRAM.
using Block = std::pair<U32, U32>;

/// What one context takes: blocks of SRAM, databases of TCAM, tiles by ISME number.
struct Taken {
  std::vector<Block> blocks;
  std::vector<U32> databases;
  std::vector<Block> tiles;
  bool isShared = false;
};

/// Blocks of a run, by the chip's arithmetic: a row is 256 bits, a block 1,024 rows.
U32 blocksOf(U32 entries, U32 width) {
  EXPECT_GE(width, 1u);
  EXPECT_LE(width, 256u);
  U32 rows = entries / (256 / width);
  EXPECT_EQ(rows % 1024, 0u) << "the remainder of a block is lost";
  return rows / 1024;
}

void takeRun(Taken& taken, U32 pool, U32 start, U32 count) {
  EXPECT_GE(count, 1u);
  for (U32 block = start; block < start + count; ++block) taken.blocks.emplace_back(pool, block);
}

void take(Taken& taken, xpMatchTableContext const& context) {
  for (U32 i = 0; i < context.numDb; ++i) taken.databases.push_back(context.startDb + i);
}

void take(Taken& taken, xpHashTableContext const& context) {
  ASSERT_GE(context.numOfWays, 1);
  ASSERT_LE(context.numOfWays, 8);
  taken.isShared = context.shared != 0;
  U32 width = context.keySize + context.valueSize;
  U32 entries = context.numOfEntries / context.numOfWays;
  if (width > 256) {
    EXPECT_EQ(context.keySize, 256);
    EXPECT_EQ(context.valueSize, 256);
    entries *= 2;
    width = 256;
  }
  for (U32 way = 0; way < context.numOfWays; ++way)
    takeRun(taken, context.poolId[way], context.rowBlkStartId[way], blocksOf(entries, width));
}

void take(Taken& taken, xpDirectTableContext const& context) {
  takeRun(taken, context.poolId, context.rowBlkStartId,
          blocksOf(context.numOfEntries, context.entryWidth));
}

void take(Taken& taken, xpIsmeTableContext const& context) {
  EXPECT_EQ(context.numOfEntries % 4096, 0u);
  for (U32 i = 0; i < context.numOfEntries / 4096; ++i)
    taken.tiles.emplace_back(context.ismeNum, context.tileStartId + i);
}

void take(Taken& taken, xpNhTableContext const& context) {
  U32 ways = static_cast<U32>(__builtin_popcount(context.poolBitmap));
  for (U32 pool = 0; pool < 8; ++pool) {
    if (context.poolBitmap >> pool & 1)
      takeRun(taken, pool, context.rowBlkStartId[pool],
              blocksOf(context.numEntries / ways, context.entryWidth));
  }
}

void take(Taken& taken, xpLpmTableContext const& context) {
  for (auto const& table : context.prefixTable) {
    if (table.valid)
      takeRun(taken, table.poolId, table.rowBlkStartId,
              blocksOf(table.numOfEntries, table.entryWidth));
  }
  for (U32 pool = 0; pool < 8; ++pool) {
    for (U32 tile = 0; tile < 8; ++tile) {
      bool isInPool = context.nhiTable.poolBitmap >> pool & 1;
      bool isTaken = isInPool && context.nhiTable.tileBitmap[pool] >> tile & 1;
      if (isTaken) takeRun(taken, pool, 8 * tile, 8);
    }
  }
}

void take(Taken&, xpTableContext const&) { ADD_FAILURE() << "a table without class"; }

/// What each context in use takes, with the id of its table.
std::vector<std::pair<U32, Taken>> allTaken(Profile const& profile) {
  std::vector<std::pair<U32, Taken>> all;
  for (auto const& [tableId, table] : profile.tables) {
    U32 id = tableId;
    auto takeCopies = [&all, id](auto const& contexts) {
      for (auto const& context : contexts) {
        if (context.first >= 0) take(all.emplace_back(id, Taken()).second, context);
      }
    };
    std::visit(takeCopies, table.contexts);
  }
  return all;
}

U32 lowByte(Profile const& profile, U32 id) {
  auto table = profile.tables.find(id);
  return table == profile.tables.end() ? 0 : table->second.copyNum & 0xFF;
}

bool isTableInUse(Profile const& profile, U32 id) {
  auto table = profile.tables.find(id);
  if (table == profile.tables.end()) return false;
  return std::visit(
      [](auto const& contexts) { return !contexts.empty() && contexts[0].first >= 0; },
      table->second.contexts);
}

template <class Context>
Context const& first(Profile const& profile, U32 id) {
  return std::get<std::vector<Context>>(profile.tables.at(id).contexts).at(0);
}

TEST(DefaultProfileTest, BlocksLieWithinTheTilesOfTheirPool) {
  for (auto const& [id, taken] : allTaken(defaultProfile())) {
    for (auto [pool, block] : taken.blocks) {
      EXPECT_LT(pool, 8u) << id;
      EXPECT_LT(block, pool < 4 ? 48u : 64u) << id;
    }
  }
}

TEST(DefaultProfileTest, OnlyTablesThatSaySoShareABlock) {
  std::map<Block, std::vector<std::pair<U32, Taken>>> byBlock;
  for (auto const& entry : allTaken(defaultProfile())) {
    for (Block block : entry.second.blocks) byBlock[block].push_back(entry);
  }
  std::set<U32> sharing;
  for (auto const& [block, users] : byBlock) {
    if (users.size() < 2) continue;
    for (auto const& [id, taken] : users) {
      EXPECT_TRUE(taken.isShared) << "table " << id << ", pool " << block.first << " block "
                                  << block.second;
      sharing.insert(id);
    }
  }
  EXPECT_EQ(sharing, (std::set<U32>{4, 5}));
}

TEST(DefaultProfileTest, NoDatabaseAndNoTileIsTakenTwice) {
  std::set<U32> databases;
  std::set<Block> tiles;
  for (auto const& [id, taken] : allTaken(defaultProfile())) {
    for (U32 database : taken.databases) EXPECT_TRUE(databases.insert(database).second) << id;
    for (Block tile : taken.tiles) EXPECT_TRUE(tiles.insert(tile).second) << id;
  }
}

TEST(DefaultProfileTest, EveryKindOfMemoryAndContextIsUsed) {
  std::set<U32> types;
  Profile profile = defaultProfile();
  for (auto const& [id, table] : profile.tables) types.insert(table.type);
  EXPECT_EQ(types, (std::set<U32>{0, 1, 2, 6, 7, 8}));
}

TEST(DefaultProfileTest, SomeBlocksOfThePoolsAreFree) {
  std::set<Block> blocks;
  for (auto const& [id, taken] : allTaken(defaultProfile()))
    blocks.insert(taken.blocks.begin(), taken.blocks.end());
  EXPECT_GT(blocks.size(), 300u);
  EXPECT_LT(blocks.size(), 448u);
}

TEST(DefaultProfileTest, EveryTableThatIsPublishedIsThere) {
  Profile profile = defaultProfile();
  std::vector<U32> ids = {0, 1, 2, 4, 5, 8, 10, 12, 13, 50, 51, 52};
  for (U32 id = 19; id <= 44; ++id) ids.push_back(id);
  for (U32 id = 53; id <= 61; ++id) ids.push_back(id);
  for (U32 id : ids) {
    EXPECT_TRUE(isTableInUse(profile, id)) << id;
    EXPECT_GT(lowByte(profile, id), 0u) << id;
  }
}

TEST(DefaultProfileTest, EveryCopyHasItsContext) {
  Profile profile = defaultProfile();
  for (auto const& [tableId, table] : profile.tables) {
    U32 id = tableId;
    U32 copies = table.copyNum;
    auto size = std::visit([](auto const& contexts) { return contexts.size(); }, table.contexts);
    if (isTableInUse(profile, id)) {
      EXPECT_EQ(size, copies) << id;
    }
  }
}

TEST(DefaultProfileTest, TheSeparateTunnelTablesStandInPlaceOfTheCombinedOne) {
  Profile profile = defaultProfile();
  EXPECT_EQ(lowByte(profile, 14), 0u);
  EXPECT_FALSE(isTableInUse(profile, 14));
}

TEST(DefaultProfileTest, CopiesOfGroupsAgree) {
  Profile profile = defaultProfile();
  for (U32 id = 19; id <= 26; ++id) EXPECT_EQ(profile.tables.at(id).copyNum, 2u) << id;
  for (U32 id = 36; id <= 41; ++id) EXPECT_EQ(profile.tables.at(id).copyNum, 2u) << id;
  for (U32 id = 42; id <= 44; ++id) EXPECT_EQ(profile.tables.at(id).copyNum, 2u) << id;
  for (U32 id = 53; id <= 59; ++id) EXPECT_EQ(profile.tables.at(id).copyNum, 1u) << id;
}

/// Prefix tables that take a tread of the plan.
std::size_t planned(xpLpmTableContext const& context) {
  return static_cast<std::size_t>(std::ranges::count_if(
      context.prefixTable,
      [](xpLpmPrefixTable const& table) { return table.valid && table.tread != 16; }));
}

TEST(DefaultProfileTest, TreadPlansFitTheirTables) {
  Profile profile = defaultProfile();
  LpmTreadCfg const& cfg = profile.lpmTreadCfg;
  EXPECT_TRUE(cfg.treadV4Valid);
  EXPECT_TRUE(cfg.treadV6Valid);
  EXPECT_EQ(planned(first<xpLpmTableContext>(profile, 50)), cfg.treadV4.size());
  EXPECT_EQ(planned(first<xpLpmTableContext>(profile, 51)), cfg.treadV6.size());
  EXPECT_EQ(cfg.treadV4.rbegin()->first + 1u, cfg.treadV4.size());
  EXPECT_EQ(cfg.treadV6.rbegin()->first + 1u, cfg.treadV6.size());
}

TEST(DefaultProfileTest, OnePrefixTableTakesNoTread) {
  EXPECT_EQ(first<xpLpmTableContext>(defaultProfile(), 50).prefixTable[7].tread, 16u);
}

TEST(DefaultProfileTest, SdkAnswersNothingUnusual) {
  EXPECT_TRUE(defaultProfile().sdkStatus.empty());
  EXPECT_TRUE(defaultProfile().nullManagers.empty());
  EXPECT_EQ(defaultProfile().ldePipeMode, 3u);
}

}  // namespace
}  // namespace xdksim
