// From the library's map to pools and groups.
#include "tools/kestrel/SramModel.h"

#include "XpLib/XpTableCliHelperDecoding.h"
#include "XpLib/XpTableCliHelperSramMap.h"

#include <algorithm>
#include <numeric>

namespace kestrel {

using namespace Kestrel::xpTableCliHelper;

namespace {

SramTable tableOf(XpXdk::TableContextEntry const& entry) {
  return {entry.tableId(), std::string(entry.tableName().view())};
}

std::vector<SramTable> tablesOf(Kestrel::SharedTableGroup const& group,
                                XpSystem::ChipStatus const& status) {
  std::vector<SramTable> tables;
  for (auto at = group.tableIdIteratorConst(); at; ++at)
    tables.push_back(tableOf(*status.tableContext(at.key())));
  return tables;
}

void drawPools(SramModel& model, XpSystem::ChipStatus const& status) {
  SramMap const map(status);
  std::map<U32, std::size_t> indices;  // by the map's numbers
  for (U32 block = 0; block < blocksPerPool; ++block)
    for (SramPool& pool : model.pools) {
      U32 const group = map.groupAt(pool.pool, block);
      if (group == 0 || block >= pool.blocks.size()) continue;
      auto const [found, isNew] = indices.try_emplace(group, model.groups.size());
      if (isNew)
        model.groups.push_back({sramLetter(found->second), tablesOf(map.group(group), status), 0});
      pool.blocks[block] = found->second;
      ++model.groups[found->second].blocks;
    }
}

/// What of the table's memory lies beyond the pools.
SramBeyond beyondOf(XpXdk::TableContextEntry const& entry) {
  SramBeyond beyond{tableOf(entry), {}};
  Chunks const chunks = tableChunks(entry);
  for (Kestrel::TableSramChunk const& chunk : chunks.sram) {
    U32 const limit = blocksOfPool(chunk.poolId());
    for (U32 block = chunk.startRowBlkId(); block <= chunk.endRowBlkId(); ++block)
      if (block >= limit) beyond.blocks[chunk.poolId()].insert(block);
  }
  return beyond;
}

}  // namespace

std::string SramGroup::names() const {
  std::string text;
  for (SramTable const& table : tables) text += (text.empty() ? "" : " + ") + table.name;
  return text;
}

U32 SramPool::tiles() const { return static_cast<U32>(blocks.size() / blocksPerTile); }

U32 SramPool::free() const {
  return static_cast<U32>(
      std::ranges::count_if(blocks, [](auto const& group) { return !group.has_value(); }));
}

U32 SramModel::blocks() const {
  return std::accumulate(pools.begin(), pools.end(), 0u, [](U32 sum, SramPool const& pool) {
    return sum + static_cast<U32>(pool.blocks.size());
  });
}

U32 SramModel::free() const {
  return std::accumulate(pools.begin(), pools.end(), 0u,
                         [](U32 sum, SramPool const& pool) { return sum + pool.free(); });
}

// 52 single letters, and behind them all pairs: more than there are blocks.
std::string sramLetter(std::size_t index) {
  std::size_t const letters = groupLetters.size();
  if (index < letters) return {groupLetters[index]};
  index -= letters;
  return {groupLetters[index / letters], groupLetters[index % letters]};
}

SramModel sramModel(XpSystem::ChipStatus const& status) {
  SramModel model;
  for (U32 pool = 0; pool < numPools; ++pool) {
    model.pools[pool].pool = pool;
    model.pools[pool].blocks.resize(blocksOfPool(pool));
  }
  drawPools(model, status);
  for (auto at = status.tableContextIteratorConst(); at; ++at) {
    SramBeyond beyond = beyondOf(*at.value());
    if (!beyond.blocks.empty()) model.beyond.push_back(std::move(beyond));
  }
  return model;
}

}  // namespace kestrel
