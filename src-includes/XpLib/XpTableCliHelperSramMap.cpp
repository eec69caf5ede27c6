// The grouping of tables on blocks.
#include "XpLib/XpTableCliHelperSramMap.h"

#include "XpLib/XpTableCliHelperDecoding.h"

#include <algorithm>

namespace Kestrel::xpTableCliHelper {

SramMap::SramMap(XpSystem::ChipStatus const& chipStatus) {
  for (auto at = chipStatus.tableContextIteratorConst(); at; ++at) enterTable(*at.value());
}

void SramMap::enterTable(XpXdk::TableContextEntry const& entry) {
  Chunks const chunks = tableChunks(entry);
  Enlarged enlarged;
  for (TableSramChunk const& chunk : chunks.sram) enterChunk(chunk, chunks.tableId, enlarged);
}

void SramMap::enterChunk(TableSramChunk const& chunk, U32 tableId, Enlarged& enlarged) {
  if (chunk.poolId() >= numPools) return;
  U32 const end = std::min(U32{chunk.endRowBlkId()} + 1, blocksPerPool);
  for (U32 block = chunk.startRowBlkId(); block < end; ++block) {
    U32& group = groupAt_[chunk.poolId()][block];
    group = withTable(group, tableId, enlarged);
  }
}

// Tables are entered one after the other, so that each group is reached on one way only: none is
// made twice, and one that has the table already comes out of this very step.
U32 SramMap::withTable(U32 group, U32 tableId, Enlarged& enlarged) {
  U32 const fresh = numGroups();
  auto const [found, isNew] = enlarged.try_emplace(group, fresh);
  if (isNew) {
    enlarged.emplace(fresh, fresh);
    groups_.push_back(groups_[group]);
    groups_.back().newTableId(tableId, true);
  }
  return found->second;
}

}  // namespace Kestrel::xpTableCliHelper
