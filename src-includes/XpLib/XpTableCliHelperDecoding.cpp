// The rules by which each type of table takes memory.
#include "XpLib/XpTableCliHelperDecoding.h"

#include "Mox/TraceAt.h"
#include "Xdk/LpmTableContext.h"
#include "Xdk/TableContexts.h"
#include "XpLib/XpTableCliHelperDiagnostics.h"

#include <algorithm>
#include <bit>
#include <ostream>

namespace Kestrel {

namespace {

using xpTableCliHelper::moxAssert;

constexpr U32 rowWidth = 256;    // bits
constexpr U32 rowsLog2 = 10;     // of a block
constexpr U32 blocksLog2 = 3;    // of a tile
constexpr U32 entriesLog2 = 12;  // of an ISME tile
constexpr U32 numPools = 8;
constexpr U32 numTiles = 8;  // of a pool

constexpr char const* tableTypeToStringSignature = "const char* Kestrel::tableTypeToString(U8)";
constexpr char const* updateSignature =
    "void Kestrel::updateTableMemoryPerCopy(Kestrel::TableMemCollection::Ptr&, "
    "XpXdk::TableContextEntry::PtrConst&, U8)";

bool isSet(U32 bitmap, U32 bit) { return (bitmap >> bit & 1) != 0; }

U32 blocksOf(U32 entries, U32 width) { return entries / (rowWidth / width) >> rowsLog2; }

U8 endOf(U32 start, U32 count) { return static_cast<U8>(start + count - 1); }

void addRun(TableMemCollection& memory, U32 poolId, U32 start, U32 blocks) {
  TableSramChunk const chunk(static_cast<U8>(poolId), static_cast<U8>(start), endOf(start, blocks));
  memory.sramChunkIs(chunk, true);
}

// True for a count of 0, which is traced.
bool tracedAsEmpty(TableMemCollection const& memory, U32 count, int line = __builtin_LINE()) {
  if (count != 0) return false;
  Mox::traceAt(
      xpTableCliHelper::_defaultTraceHandle(), 7,
      {xpTableCliHelper::sourcePath, "updateTableMemoryPerCopy", line},
      [&memory](std::ostream& text) { text << "Table " << memory.tableId() << " is empty"; });
  return true;
}

void addCopy(TableMemCollection& memory, xpMatchTableContext const& context) {
  if (tracedAsEmpty(memory, context.numDb)) return;
  memory.tcamChunkIs(TableTcamChunk(context.startDb, endOf(context.startDb, context.numDb)), true);
}

U32 rowsPerWay(xpHashTableContext const& context) {
  U32 const entriesPerWay = context.numOfEntries / context.numOfWays;
  U32 const entryWidth = U32{context.keySize} + context.valueSize;
  if (entryWidth <= rowWidth) return entriesPerWay / (rowWidth / entryWidth);
  moxAssert(context.keySize == rowWidth, "context.keySize == (256)", updateSignature);
  moxAssert(context.valueSize == rowWidth, "context.valueSize == (256)", updateSignature);
  return entriesPerWay * (entryWidth / rowWidth);
}

void addCopy(TableMemCollection& memory, xpHashTableContext const& context) {
  if (tracedAsEmpty(memory, context.numOfEntries)) return;
  U32 const blocksPerWay = rowsPerWay(context) >> rowsLog2;
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
  // All 32 bits count as ways, though only 8 pools are looked at.
  U32 const numWays = static_cast<U32>(std::popcount(context.poolBitmap));
  U32 const blocks = blocksOf(context.numEntries / numWays, context.entryWidth);
  for (U32 pool = 0; pool < numPools; ++pool)
    if (isSet(context.poolBitmap, pool)) addRun(memory, pool, context.rowBlkStartId[pool], blocks);
}

void addTiles(TableMemCollection& memory, U32 pool, U32 tileBitmap) {
  for (U32 tile = 0; tile < numTiles; ++tile)
    if (isSet(tileBitmap, tile)) addRun(memory, pool, tile << blocksLog2, 1 << blocksLog2);
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

template <class Context>
void readCopy(TableMemCollection& memory, XpXdk::TableContextEntry const& entry, U8 copy) {
  Context context;
  entry.xpTblContext(copy, &context, false);
  addCopy(memory, context);
}

struct TableType {
  U8 code;
  char const* name;
  void (*readCopy)(TableMemCollection& memory, XpXdk::TableContextEntry const& entry, U8 copy);
};

template <class Context>
constexpr TableType tableType(char const* name) {
  return {Context::code, name, readCopy<Context>};
}

constexpr TableType tableTypes[] = {
    tableType<xpMatchTableContext>("MATCH"),   tableType<xpHashTableContext>("HASH"),
    tableType<xpDirectTableContext>("DIRECT"), tableType<xpLpmTableContext>("LPM"),
    tableType<xpIsmeTableContext>("ISME"),     tableType<xpNhTableContext>("NH"),
};

TableType const& tableTypeOf(U8 code, char const* signature, int line = __builtin_LINE()) {
  auto const found = std::ranges::find(tableTypes, code, &TableType::code);
  moxAssert(found != std::end(tableTypes), "false", signature, line);
  return *found;
}

}  // namespace

char const* tableTypeToString(U8 type) {
  return tableTypeOf(type, tableTypeToStringSignature).name;
}

void updateTableMemoryPerCopy(TableMemCollection::Ptr& memory,
                              XpXdk::TableContextEntry::PtrConst& entry, U8 copy) {
  tableTypeOf(entry->tableType(), updateSignature).readCopy(*memory, *entry, copy);
}

TableMemCollection::Ptr tableMemory(XpXdk::TableContextEntry::PtrConst& entry) {
  constexpr U32 maxCopies = 256;  // they are numbered by a byte
  TableMemCollection::Ptr memory = TableMemCollection::TableMemCollectionIs(entry->tableId());
  U32 const copies = std::min(entry->tblCopyNum(), maxCopies);
  for (U32 copy = 0; copy < copies; ++copy)
    updateTableMemoryPerCopy(memory, entry, static_cast<U8>(copy));
  return memory;
}

}  // namespace Kestrel
