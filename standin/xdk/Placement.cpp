// The arithmetic of each class of contexts.
#include "standin/xdk/Placement.h"

#include "standin/xdk/ContextClass.h"

#include <algorithm>
#include <bit>
#include <iterator>

namespace xdksim {
namespace {

constexpr U32 blockRows = 1024;

bool isSet(U32 bitmap, U32 bit) { return (bitmap >> bit & 1) != 0; }

U32 blocksOf(U32 entries, U32 width) { return entries / (sramRowWidth / width) / blockRows; }

std::vector<SramRun> runsOf(xpHashTableContext const& context) {
  U32 const ways = context.numOfWays;
  if (context.numOfEntries == 0 || ways == 0 || ways > std::size(context.poolId)) return {};
  U32 const entries = context.numOfEntries / ways;
  U32 const width = entryWidth(context);
  bool const isDouble = context.keySize == sramRowWidth && context.valueSize == sramRowWidth;
  if (!isDouble && !fitsRow(width)) return {};
  U32 const blocks = isDouble ? entries * 2 / blockRows : blocksOf(entries, width);
  std::vector<SramRun> runs;
  for (U32 way = 0; way < ways; ++way)
    runs.push_back({SramPart::way, way, context.poolId[way], context.rowBlkStartId[way], blocks});
  return runs;
}

std::vector<SramRun> runsOf(xpDirectTableContext const& context) {
  if (context.numOfEntries == 0 || !fitsRow(context.entryWidth)) return {};
  return {{SramPart::all, 0, context.poolId, context.rowBlkStartId,
           blocksOf(context.numOfEntries, context.entryWidth)}};
}

std::vector<SramRun> runsOf(xpNhTableContext const& context) {
  U32 const ways = numWays(context);
  if (context.numEntries == 0 || ways == 0 || !fitsRow(context.entryWidth)) return {};
  U32 const blocks = blocksOf(context.numEntries / ways, context.entryWidth);
  std::vector<SramRun> runs;
  for (U32 pool = 0; pool < sramPools; ++pool)
    if (isSet(context.poolBitmap, pool))
      runs.push_back({SramPart::poolWay, pool, pool, context.rowBlkStartId[pool], blocks});
  return runs;
}

void addTiles(std::vector<SramRun>& runs, U32 pool, U32 tileBitmap) {
  for (U32 tile = 0; tile < 8; ++tile)
    if (isSet(tileBitmap, tile))
      runs.push_back({SramPart::tile, tile, pool, tile * sramTileBlocks, sramTileBlocks});
}

std::vector<SramRun> runsOf(xpLpmTableContext const& context) {
  std::vector<SramRun> runs;
  for (U32 slot = 0; slot < std::size(context.prefixTable); ++slot) {
    xpLpmPrefixTable const& table = context.prefixTable[slot];
    if (table.valid != 0 && fitsRow(table.entryWidth))
      runs.push_back({SramPart::prefixTable, slot, table.poolId, table.rowBlkStartId,
                      blocksOf(table.numOfEntries, table.entryWidth)});
  }
  for (U32 pool = 0; pool < sramPools; ++pool)
    if (isSet(context.nhiTable.poolBitmap, pool))
      addTiles(runs, pool, context.nhiTable.tileBitmap[pool]);
  return runs;
}

// Nothing else lies in the SRAM.
std::vector<SramRun> runsOf(xpTableContext const&) { return {}; }

}  // namespace

U32 numWays(xpNhTableContext const& context) {
  return static_cast<U32>(std::popcount(context.poolBitmap));
}

U32 sramPoolBlocks(U32 pool) {
  constexpr U32 tiles[sramPools] = {6, 6, 6, 6, 8, 8, 8, 8};
  return pool < sramPools ? tiles[pool] * sramTileBlocks : 0;
}

std::vector<SramBlock> sramBlocks(SramRun const& run) {
  std::vector<SramBlock> blocks;
  U32 const limit = sramPoolBlocks(run.pool);
  for (U32 block = run.start; block < limit && block - run.start < run.blocks; ++block)
    blocks.push_back({run.pool, block});
  return blocks;
}

std::vector<SramRun> sramRuns(xpTableContext const& context) {
  return visitContext(context, [](auto const& record) { return runsOf(record); });
}

bool declaresShared(xpTableContext const& context) {
  auto const* hash = dynamic_cast<xpHashTableContext const*>(&context);
  return hash && hash->shared != 0;
}

}  // namespace xdksim
