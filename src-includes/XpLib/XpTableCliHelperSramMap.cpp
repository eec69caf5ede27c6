// The grouping of tables on blocks.
#include "XpLib/XpTableCliHelperSramMap.h"

#include "XpLib/XpTableCliHelperDecoding.h"

#include <algorithm>

namespace Kestrel::xpTableCliHelper {

SramMap::SramMap(XpSystem::ChipStatus const& chipStatus) {
  for (auto at = chipStatus.tableContextIteratorConst(); at; ++at) enterTable(*at.value());
}

SharedTableGroup SramMap::group(U32 number) const {
  if (number == 0) return SharedTableGroup();
  SharedTableGroup tables = group(groups_[number].others);
  tables.newTableId(groups_[number].tableId, true);
  return tables;
}

void SramMap::enterTable(XpXdk::TableContextEntry const& entry) {
  U32 const firstOfTable = numGroups();
  Chunks const chunks = tableChunks(entry);
  for (TableSramChunk const& chunk : chunks.sram) {
    if (chunk.poolId() >= numPools) continue;
    U32 const end = std::min(U32{chunk.endRowBlkId()} + 1, blocksPerPool);
    for (U32 block = chunk.startRowBlkId(); block < end; ++block) {
      U32& group = groupAt_[chunk.poolId()][block];
      group = withTable(group, entry.tableId(), firstOfTable);
    }
  }
}

// Tables are entered one after the other, so that each group is reached on one way only: none is
// made twice but within the table, and one that is as new as the table has it already.
U32 SramMap::withTable(U32 group, U32 tableId, U32 firstOfTable) {
  if (group >= firstOfTable) return group;
  for (U32 made = firstOfTable; made < numGroups(); ++made)
    if (groups_[made].others == group) return made;
  groups_.push_back({group, tableId});
  return numGroups() - 1;
}

}  // namespace Kestrel::xpTableCliHelper
