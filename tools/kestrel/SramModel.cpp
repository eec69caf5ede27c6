// From the library's map to pools and groups.
#include "tools/kestrel/SramModel.h"

#include "XpLib/XpTableCliHelperDecoding.h"
#include "XpLib/XpTableCliHelperSramMap.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <set>

namespace kestrel {

namespace {

using Kestrel::xpTableCliHelper::SramMap;
using EntryPtr = XpXdk::TableContextEntry::PtrConst;

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
  for (U32 block = 0; block < Kestrel::xpTableCliHelper::blocksPerPool; ++block)
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
std::set<xdksim::SramBlock> blocksBeyond(EntryPtr entry) {
  std::set<xdksim::SramBlock> beyond;
  Kestrel::TableMemCollection::Ptr const memory = Kestrel::tableMemory(entry);
  for (auto at = memory->sramChunkIteratorConst(); at; ++at) {
    U32 const pool = at.key().poolId();
    U32 const limit = xdksim::sramPoolBlocks(pool);
    for (U32 block = at.key().startRowBlkId(); block <= at.key().endRowBlkId(); ++block)
      if (block >= limit) beyond.insert({pool, block});
  }
  return beyond;
}

}  // namespace

std::string SramGroup::names() const {
  std::string text;
  for (SramTable const& table : tables) text += (text.empty() ? "" : " + ") + table.name;
  return text;
}

U32 SramPool::tiles() const { return static_cast<U32>(blocks.size() / xdksim::sramTileBlocks); }

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
  constexpr std::string_view alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
  if (index < alphabet.size()) return {alphabet[index]};
  index -= alphabet.size();
  return {alphabet[index / alphabet.size()], alphabet[index % alphabet.size()]};
}

SramModel sramModel(XpSystem::ChipStatus const& status) {
  SramModel model;
  for (U32 pool = 0; pool < xdksim::sramPools; ++pool) {
    model.pools[pool].pool = pool;
    model.pools[pool].blocks.resize(xdksim::sramPoolBlocks(pool));
  }
  drawPools(model, status);
  for (auto at = status.tableContextIteratorConst(); at; ++at) {
    std::set<xdksim::SramBlock> const beyond = blocksBeyond(at.value());
    if (!beyond.empty())
      model.beyond.push_back({tableOf(*at.value()), {beyond.begin(), beyond.end()}});
  }
  return model;
}

}  // namespace kestrel
