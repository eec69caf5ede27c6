// The grouping of tables on blocks.
#include "XpLib/XpTableCliHelperSramMap.h"

#include "XpLib/XpTableCliHelperDecoding.h"

namespace Kestrel {

namespace {

void enterBlock(TableSramMemoryMap& map, TableSramChunk const& block, U32 tableId) {
  SharedTableGroup group = map.tableId(block);
  group.tableIdIs(tableId, true);
  map.tableIdIs(block, group);
}

void enterChunk(TableSramMemoryMap& map, TableSramChunk const& chunk, U32 tableId) {
  // The counter is wider than the block number, so that it passes block 255.
  for (U32 at = chunk.startRowBlkId(); at <= chunk.endRowBlkId(); ++at) {
    U8 const block = static_cast<U8>(at);
    enterBlock(map, TableSramChunk(chunk.poolId(), block, block), tableId);
  }
}

bool hasBlocks(TableSramChunk const& chunk) { return chunk.startRowBlkId() <= chunk.endRowBlkId(); }

}  // namespace

void buildSramMap(XpSystem::ChipStatus const& chipStatus, TableCollection& tables,
                  TableSramMemoryMap& map) {
  for (auto at = chipStatus.tableContextIteratorConst(); at; ++at) {
    XpXdk::TableContextEntry::PtrConst entry = at.value();
    TableMemCollection::Ptr const memory = tableMemory(entry);
    for (auto chunk = memory->sramChunkIteratorConst(); chunk; ++chunk) {
      if (!hasBlocks(chunk.key())) continue;
      enterChunk(map, chunk.key(), entry->tableId());
      tables.tableNameIs(entry->tableId(), entry->tableName());
    }
  }
}

}  // namespace Kestrel
