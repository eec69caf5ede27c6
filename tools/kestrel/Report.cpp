// From the library's answers to standard output.
#include "tools/kestrel/Report.h"

#include "tools/kestrel/UsageFault.h"

#include <ostream>

namespace kestrel {

void printSummary(Chip const& chip, std::ostream& out) {
  out << chip.reports()->displayAllDynamicTablesSummary();
}

void printTableSummary(Chip const& chip, U32 tableId, std::ostream& out) {
  if (!chip.status()->tableContextEntry(tableId))
    throw UsageFault("--table: the chip has no table " + std::to_string(tableId) +
                     " (\"kestrel report tables\" lists those that it has)");
  out << chip.reports()->displaySingleDynamicTableSummary(tableId);
}

void printTables(Chip const& chip, std::ostream& out) {
  auto const tables = chip.reports()->getTableCollection();
  for (auto at = tables->tableNameIteratorConst(); at; ++at)
    out << Mox::format("%u %s\n", at.key(), at.value().charPtr());
}

}  // namespace kestrel
