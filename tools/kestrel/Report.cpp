// From the collection to lines.
#include "tools/kestrel/Report.h"

#include <ostream>

namespace kestrel {

void printTables(Kestrel::TableCliHelper& reports, std::ostream& out) {
  auto const tables = reports.getTableCollection();
  for (auto at = tables->tableNameIteratorConst(); at; ++at)
    out << Mox::format("%u %s\n", at.key(), at.value().charPtr());
}

}  // namespace kestrel
