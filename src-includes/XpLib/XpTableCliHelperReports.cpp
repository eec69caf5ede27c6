// The reports: the list of tables, and the summary of their memory.
#include "XpLib/XpTableCliHelper.h"
#include "XpLib/XpTableCliHelperDecoding.h"
#include "XpLib/XpTableCliHelperDiagnostics.h"
#include "XpLib/XpTableCliHelperTypes.h"

namespace Kestrel {

using namespace xpTableCliHelper;

namespace {

template <class Iterator>
U32 numRows(Iterator chunk) {
  U32 rows = 0;
  for (; chunk; ++chunk) rows += chunk.key().numRows();
  return rows;
}

}  // namespace

TableCollection::Ptr TableCliHelper::getTableCollection() const {
  traceReport("getTableCollection");
  TableCollection::Ptr const tables = TableCollection::TableCollectionIs();
  for (auto at = chipStatus_->tableContextIteratorConst(); at; ++at)
    tables->tableNameIs(at.value()->tableId(), at.value()->tableName());
  return tables;
}

Mox::String8 TableCliHelper::displayAllDynamicTablesSummary() {
  traceReport("displayAllDynamicTablesSummary");
  Mox::String8 text =
      Mox::format("%15s %6s %7s %8s %8s %8s\n", "Name", "Type", "Copies", "SRAM", "TCAM", "ISME");
  for (auto at = chipStatus_->tableContextIteratorConst(); at; ++at)
    text += displaySingleDynamicTableSummary(at.value()->tableId());
  return text;
}

Mox::String8 TableCliHelper::displaySingleDynamicTableSummary(U32 tableId) {
  traceTableReport("displaySingleDynamicTableSummary", tableId);
  XpXdk::TableContextEntry::PtrConst entry = chipStatus_->tableContext(tableId);
  TableMemCollection::Ptr const memory = tableMemory(entry);
  // Signed, as the columns are.
  auto const sram = static_cast<S32>(numRows(memory->sramChunkIteratorConst()));
  auto const tcam = static_cast<S32>(numRows(memory->tcamChunkIteratorConst()));
  auto const isme = static_cast<S32>(numRows(memory->ismeChunkIteratorConst()));
  return Mox::format("%15s %6s %7d %8d %8d %8d\n", entry->tableName().charPtr(),
                     tableTypeToString(entry->tableType()), static_cast<S32>(entry->tblCopyNum()),
                     sram, tcam, isme);
}

}  // namespace Kestrel
