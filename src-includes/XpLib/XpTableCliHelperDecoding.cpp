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

constexpr U32 rowsLog2 = 10;     // of a block
constexpr U32 entriesLog2 = 12;  // of an ISME tile

constexpr char const* updateSignature =
    "void Kestrel::updateTableMemoryPerCopy(Kestrel::TableMemCollection::Ptr&, "
    "XpXdk::TableContextEntry::PtrConst&, U8)";

U32 blocksOf(U32 entries, U32 width) { return rowsOf(entries, width) >> rowsLog2; }

U8 endOf(U32 start, U32 count) { return static_cast<U8>(start + count - 1); }

void addRun(TableMemCollection& memory, U32 poolId, U32 start, U32 blocks) {
  TableSramChunk const chunk(static_cast<U8>(poolId), static_cast<U8>(start), endOf(start, blocks));
  memory.sramChunkIs(chunk, true);
}

// True for a count of 0, which is traced.
bool tracedAsEmpty(TableMemCollection const& memory, U32 count, int line = __builtin_LINE()) {
  if (count != 0) return false;
  Mox::traceAt(
      _defaultTraceHandle(), 7, {sourcePath, "updateTableMemoryPerCopy", line},
      [&memory](std::ostream& text) { text << "Table " << memory.tableId() << " is empty"; });
  return true;
}

void addCopy(TableMemCollection& memory, xpMatchTableContext const& context) {
  if (tracedAsEmpty(memory, context.numDb)) return;
  memory.tcamChunkIs(TableTcamChunk(context.startDb, endOf(context.startDb, context.numDb)), true);
}

void addCopy(TableMemCollection& memory, xpHashTableContext const& context) {
  if (tracedAsEmpty(memory, context.numOfEntries)) return;
  U32 const entriesPerWay = context.numOfEntries / context.numOfWays;
  U32 const blocksPerWay = rowsOf(entriesPerWay, context, updateSignature) >> rowsLog2;
  for (U32 way = 0; way < context.numOfWays; ++way)
    addRun(memory, context.poolId[way], context.rowBlkStartId[way], blocksPerWay);
}

void addCopy(TableMemCollection& memory, xpDirectTableContext const& context) {
  if (tracedAsEmpty(memory, context.numOfEntries)) return;
  addRun(memory, context.poolId, context.rowBlkStartId,
         blocksOf(context.numOfEntries, context.entryWidth));
}

void addCopy(TableMemCollection& memory, xpNhTableContext const& context) {
  if (tracedAsEmpty(memory, context.numEntries)) return;
  U32 const blocks = blocksOf(context.numEntries / numWays(context), context.entryWidth);
  for (U32 pool = 0; pool < numPools; ++pool)
    if (isSet(context.poolBitmap, pool)) addRun(memory, pool, context.rowBlkStartId[pool], blocks);
}

void addTiles(TableMemCollection& memory, U32 pool, U32 tileBitmap) {
  for (U32 tile = 0; tile < numTiles; ++tile)
    if (isSet(tileBitmap, tile)) addRun(memory, pool, tile * blocksPerTile, blocksPerTile);
}

void addCopy(TableMemCollection& memory, xpLpmTableContext const& context) {
  for (xpLpmPrefixTable const& prefixTable : context.prefixTable) {
    if (prefixTable.valid == 0) continue;
    addRun(memory, prefixTable.poolId, prefixTable.rowBlkStartId,
           blocksOf(prefixTable.numOfEntries, prefixTable.entryWidth));
  }
  xpLpmNhiTable const& nhiTable = context.nhiTable;
  for (U32 pool = 0; pool < numPools; ++pool)
    if (isSet(nhiTable.poolBitmap, pool)) addTiles(memory, pool, nhiTable.tileBitmap[pool]);
}

void addCopy(TableMemCollection& memory, xpIsmeTableContext const& context) {
  if (tracedAsEmpty(memory, context.numOfEntries)) return;
  U32 const tiles = context.numOfEntries >> entriesLog2;
  TableIsmeChunk const chunk(static_cast<U8>(context.ismeNum), static_cast<U8>(context.tileStartId),
                             endOf(context.tileStartId, tiles));
  memory.ismeChunkIs(chunk, true);
}

}  // namespace

void updateTableMemoryPerCopy(TableMemCollection::Ptr& memory,
                              XpXdk::TableContextEntry::PtrConst& entry, U8 copy) {
  std::visit([&memory](auto const& context) { addCopy(*memory, context); },
             contextOf(*entry, copy, updateSignature));
}

TableMemCollection::Ptr tableMemory(XpXdk::TableContextEntry::PtrConst& entry) {
  TableMemCollection::Ptr memory = TableMemCollection::TableMemCollectionIs(entry->tableId());
  U32 const copies = numCopies(*entry);
  for (U32 copy = 0; copy < copies; ++copy)
    updateTableMemoryPerCopy(memory, entry, static_cast<U8>(copy));
  return memory;
}

}  // namespace Kestrel
