// The rules by which each type of table takes memory.
#include "XpLib/XpTableCliHelperDecoding.h"

#include "Mox/TraceAt.h"
#include "XpLib/XpTableCliHelperDiagnostics.h"
#include "XpLib/XpTableCliHelperMemory.h"
#include "XpLib/XpTableCliHelperTypes.h"

#include <ostream>

namespace Kestrel {

using namespace xpTableCliHelper;

namespace {

constexpr U32 entriesLog2 = 12;  // of an ISME tile

constexpr char const* updateSignature =
    "void Kestrel::updateTableMemoryPerCopy(Kestrel::TableMemCollection::Ptr&, "
    "XpXdk::TableContextEntry::PtrConst&, U8)";

U32 blocksOf(U32 entries, U32 width) { return rowsOf(entries, width) / rowsPerBlock; }

U8 endOf(U32 start, U32 count) { return static_cast<U8>(start + count - 1); }

void addRun(Chunks& chunks, U32 poolId, U32 start, U32 blocks) {
  chunks.sram.emplace_back(static_cast<U8>(poolId), static_cast<U8>(start), endOf(start, blocks));
}

// True for a count of 0, which is traced.
bool tracedAsEmpty(Chunks const& chunks, U32 count, int line = __builtin_LINE()) {
  if (count != 0) return false;
  Mox::traceAt(
      _defaultTraceHandle(), 7, {sourcePath, "updateTableMemoryPerCopy", line},
      [&chunks](std::ostream& text) { text << "Table " << chunks.tableId << " is empty"; });
  return true;
}

void addCopy(Chunks& chunks, xpMatchTableContext const& context) {
  if (tracedAsEmpty(chunks, context.numDb)) return;
  chunks.tcam.emplace_back(context.startDb, endOf(context.startDb, context.numDb));
}

void addCopy(Chunks& chunks, xpHashTableContext const& context) {
  if (tracedAsEmpty(chunks, context.numOfEntries)) return;
  U32 const entriesPerWay = context.numOfEntries / context.numOfWays;
  U32 const blocksPerWay = rowsOf(entriesPerWay, context, updateSignature) / rowsPerBlock;
  for (U32 way = 0; way < context.numOfWays; ++way)
    addRun(chunks, context.poolId[way], context.rowBlkStartId[way], blocksPerWay);
}

void addCopy(Chunks& chunks, xpDirectTableContext const& context) {
  if (tracedAsEmpty(chunks, context.numOfEntries)) return;
  addRun(chunks, context.poolId, context.rowBlkStartId,
         blocksOf(context.numOfEntries, context.entryWidth));
}

void addCopy(Chunks& chunks, xpNhTableContext const& context) {
  if (tracedAsEmpty(chunks, context.numEntries)) return;
  U32 const blocks = blocksOf(context.numEntries / numWays(context), context.entryWidth);
  for (U32 pool = 0; pool < numPools; ++pool)
    if (isSet(context.poolBitmap, pool)) addRun(chunks, pool, context.rowBlkStartId[pool], blocks);
}

void addTiles(Chunks& chunks, U32 pool, U32 tileBitmap) {
  for (U32 tile = 0; tile < numTiles; ++tile)
    if (isSet(tileBitmap, tile)) addRun(chunks, pool, tile * blocksPerTile, blocksPerTile);
}

void addCopy(Chunks& chunks, xpLpmTableContext const& context) {
  for (xpLpmPrefixTable const& prefixTable : context.prefixTable) {
    if (prefixTable.valid == 0) continue;
    addRun(chunks, prefixTable.poolId, prefixTable.rowBlkStartId,
           blocksOf(prefixTable.numOfEntries, prefixTable.entryWidth));
  }
  xpLpmNhiTable const& nhiTable = context.nhiTable;
  for (U32 pool = 0; pool < numPools; ++pool)
    if (isSet(nhiTable.poolBitmap, pool)) addTiles(chunks, pool, nhiTable.tileBitmap[pool]);
}

void addCopy(Chunks& chunks, xpIsmeTableContext const& context) {
  if (tracedAsEmpty(chunks, context.numOfEntries)) return;
  U32 const tiles = context.numOfEntries >> entriesLog2;
  chunks.isme.emplace_back(static_cast<U8>(context.ismeNum), static_cast<U8>(context.tileStartId),
                           endOf(context.tileStartId, tiles));
}

void readCopy(Chunks& chunks, XpXdk::TableContextEntry const& entry, U32 copy) {
  std::visit([&chunks](auto const& context) { addCopy(chunks, context); },
             contextOf(entry, static_cast<U8>(copy), updateSignature));
}

template <class Iterator>
S32 sumOfRows(Iterator chunk) {
  U32 rows = 0;
  for (; chunk; ++chunk) rows += chunk.key().numRows();
  return static_cast<S32>(rows);
}

}  // namespace

void updateTableMemoryPerCopy(TableMemCollection::Ptr& memory,
                              XpXdk::TableContextEntry::PtrConst& entry, U8 copy) {
  Chunks chunks{memory->tableId(), {}, {}, {}};
  readCopy(chunks, *entry, copy);
  for (TableSramChunk const& chunk : chunks.sram) memory->sramChunkIs(chunk, true);
  for (TableTcamChunk const& chunk : chunks.tcam) memory->tcamChunkIs(chunk, true);
  for (TableIsmeChunk const& chunk : chunks.isme) memory->ismeChunkIs(chunk, true);
}

namespace xpTableCliHelper {

Chunks tableChunks(XpXdk::TableContextEntry const& entry) {
  Chunks chunks{entry.tableId(), {}, {}, {}};
  U32 const copies = numCopies(entry);
  for (U32 copy = 0; copy < copies; ++copy) readCopy(chunks, entry, copy);
  return chunks;
}

TableMemCollection::Ptr tableMemory(XpXdk::TableContextEntry::PtrConst& entry) {
  TableMemCollection::Ptr memory = TableMemCollection::TableMemCollectionIs(entry->tableId());
  U32 const copies = numCopies(*entry);
  for (U32 copy = 0; copy < copies; ++copy)
    updateTableMemoryPerCopy(memory, entry, static_cast<U8>(copy));
  return memory;
}

MemoryRows numRows(TableMemCollection const& memory) {
  return {sumOfRows(memory.sramChunkIteratorConst()), sumOfRows(memory.tcamChunkIteratorConst()),
          sumOfRows(memory.ismeChunkIteratorConst())};
}

}  // namespace xpTableCliHelper

}  // namespace Kestrel
