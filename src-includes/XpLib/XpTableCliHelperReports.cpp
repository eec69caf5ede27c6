// The reports: the list of tables, and the summary of their memory.
#include "XpLib/XpTableCliHelper.h"
#include "XpLib/XpTableCliHelperDecoding.h"
#include "XpLib/XpTableCliHelperDiagnostics.h"
#include "XpLib/XpTableCliHelperTypes.h"

namespace Kestrel {

using namespace xpTableCliHelper;

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
  MemoryRows const rows = numRows(*tableMemory(entry));
  return Mox::format("%15s %6s %7d %8d %8d %8d\n", entry->tableName().charPtr(),
                     tableTypeToString(entry->tableType()), static_cast<S32>(entry->tblCopyNum()),
                     rows.sram, rows.tcam, rows.isme);
}

}  // namespace Kestrel
