// The detail report: the fields of each copy's context, to the byte.
#include "XpLib/XpTableCliHelper.h"
#include "XpLib/XpTableCliHelperDiagnostics.h"
#include "XpLib/XpTableCliHelperMemory.h"
#include "XpLib/XpTableCliHelperTypes.h"

#include <algorithm>

namespace Kestrel {

using namespace xpTableCliHelper;

namespace {

constexpr char const* signature =
    "Mox::String Kestrel::TableCliHelper::displaySingleDynamicTableDetail(U32)";
constexpr char const* emptyLine = "    (empty)\n";

// Of the next-hop table within an LPM table.
constexpr U32 tileEntries = 16384;
constexpr U32 tileRows = blocksPerTile * rowsPerBlock;
constexpr U32 nhiWidth = 128;  // bits of an entry

Mox::String8 wayLine(U32 way, U32 poolId, U32 rowBlkStartId, U32 numOfRows) {
  return Mox::format("      Way %u: poolId %u rowBlkStartId %u numOfRows %u\n", way, poolId,
                     rowBlkStartId, numOfRows);
}

Mox::String8 lines(xpMatchTableContext const& context) {
  if (context.numDb == 0) return emptyLine;
  return Mox::format("    numDb %u startDb %u keySize %u valueSize %u\n", context.numDb,
                     context.startDb, context.keySize, context.valueSize);
}

Mox::String8 lines(xpHashTableContext const& context) {
  if (context.numOfEntries == 0) return emptyLine;
  U32 const numOfRows = rowsOf(context.numOfEntries, context, signature);
  Mox::String8 text = Mox::format(
      "    numOfEntries %u numOfRows %u entryWidth %u keySize %u valueSize %u numOfWays %u",
      context.numOfEntries, numOfRows, entryWidth(context), context.keySize, context.valueSize,
      context.numOfWays);
  text += context.shared != 0 ? " shared yes\n" : " shared no\n";
  for (U32 way = 0; way < context.numOfWays; ++way)
    text += wayLine(way, context.poolId[way], context.rowBlkStartId[way],
                    numOfRows / context.numOfWays);
  return text;
}

Mox::String8 lines(xpDirectTableContext const& context) {
  if (context.numOfEntries == 0) return emptyLine;
  return Mox::format("    numOfEntries %u numRows %u entryWidth %u poolId %u rowBlkStartId %u\n",
                     context.numOfEntries, rowsOf(context.numOfEntries, context.entryWidth),
                     context.entryWidth, context.poolId, context.rowBlkStartId);
}

Mox::String8 lines(xpIsmeTableContext const& context) {
  if (context.numOfEntries == 0) return emptyLine;
  // Deliberate: two entries a row here, while the summary counts 1,024 rows for a tile of 4,096.
  return Mox::format("    numOfEntries %u numRows %u ismeNum %u ldeNum %u tileStartId %u\n",
                     context.numOfEntries, context.numOfEntries >> 1, context.ismeNum,
                     context.ldeNum, context.tileStartId);
}

Mox::String8 lines(xpNhTableContext const& context) {
  if (context.numEntries == 0) return emptyLine;
  U32 const ways = numWays(context);
  Mox::String8 text =
      Mox::format("    numEntries %u numRows %u entryWidth %u numWays %u\n", context.numEntries,
                  rowsOf(context.numEntries, context.entryWidth), context.entryWidth, ways);
  U32 way = 0;
  for (U32 pool = 0; pool < numPools; ++pool)
    if (isSet(context.poolBitmap, pool))
      text += wayLine(way++, pool, context.rowBlkStartId[pool],
                      rowsOf(context.numEntries / ways, context.entryWidth));
  return text;
}

Mox::String8 prefixTableLine(U32 slot, xpLpmPrefixTable const& prefixTable) {
  return Mox::format(
      "      PrefixTable %u: numOfEntries %u numOfRows %u entryWidth %u tread %u poolId %u "
      "rowBlkStartId %u\n",
      slot, prefixTable.numOfEntries, rowsOf(prefixTable.numOfEntries, prefixTable.entryWidth),
      prefixTable.entryWidth, prefixTable.tread, prefixTable.poolId, prefixTable.rowBlkStartId);
}

Mox::String8 tileLines(xpLpmNhiTable const& nhiTable) {
  Mox::String8 text;
  U32 count = 0;
  for (U32 pool = 0; pool < numPools; ++pool) {
    if (!isSet(nhiTable.poolBitmap, pool)) continue;
    for (U32 tile = 0; tile < numTiles; ++tile)
      if (isSet(nhiTable.tileBitmap[pool], tile))
        text += Mox::format("        Tile %u: numEntries %u numRows %u poolId %u tileId %u\n",
                            count++, tileEntries, tileRows, pool, tile);
  }
  return text;
}

Mox::String8 lines(xpLpmTableContext const& context) {
  auto const numPrefixTables = static_cast<U32>(std::ranges::count_if(
      context.prefixTable, [](xpLpmPrefixTable const& slot) { return slot.valid != 0; }));
  if (numPrefixTables == 0) return emptyLine;
  Mox::String8 text = Mox::format("    numPrefixTables %u searchDataWidth %u vrfIdWidth %u\n",
                                  numPrefixTables, context.searchDataWidth, context.vrfIdWidth);
  U32 slot = 0;
  for (xpLpmPrefixTable const& prefixTable : context.prefixTable) {
    if (prefixTable.valid != 0) text += prefixTableLine(slot, prefixTable);
    ++slot;
  }
  xpLpmNhiTable const& nhiTable = context.nhiTable;
  text += Mox::format(
      "      NhiTable: numEntries %u numRows %u entryWidth %u pairPerEntry %u nhWidth %u\n",
      nhiTable.numEntries, nhiTable.numEntries >> 1, nhiWidth, nhiTable.pairPerEntry,
      nhiTable.nhWidth);
  return text + tileLines(nhiTable);
}

}  // namespace

Mox::String8 TableCliHelper::displayAllDynamicTablesDetail() {
  traceReport("displayAllDynamicTablesDetail");
  Mox::String8 text;
  for (auto at = chipStatus_->tableContextIteratorConst(); at; ++at)
    text += displaySingleDynamicTableDetail(at.value()->tableId());
  return text;
}

Mox::String8 TableCliHelper::displaySingleDynamicTableDetail(U32 tableId) {
  traceTableReport("displaySingleDynamicTableDetail", tableId);
  XpXdk::TableContextEntry::PtrConst const entry = chipStatus_->tableContext(tableId);
  Mox::String8 text = Mox::format("Table %s type %s:\n", entry->tableName().charPtr(),
                                  tableTypeToString(entry->tableType()));
  U32 const copies = numCopies(*entry);
  for (U32 copy = 0; copy < copies; ++copy) {
    text += Mox::format("  Copy %u:\n", copy);
    text += std::visit([](auto const& context) { return lines(context); },
                       contextOf(*entry, static_cast<U8>(copy), signature));
  }
  return text;
}

}  // namespace Kestrel
