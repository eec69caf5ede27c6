// The commands that print the library's reports.
#pragma once

#include "tools/kestrel/Chip.h"

#include <iosfwd>

namespace kestrel {

/// The summary of all tables.
void printSummary(Chip const& chip, std::ostream& out);
/// The summary's line of one table.  Throws `UsageFault` when the chip has no such table.
void printTableSummary(Chip const& chip, U32 tableId, std::ostream& out);
/// A line with id and name for each table.
void printTables(Chip const& chip, std::ostream& out);

}  // namespace kestrel
