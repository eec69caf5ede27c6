// The reports as JSON, for programs: one value, all figures as numbers.
#pragma once

#include "XpLib/XpTableCliHelper.h"
#include "tools/kestrel/SramModel.h"

#include <iosfwd>
#include <optional>

namespace kestrel {

// Of all tables, in the order of the reports, or of the one with that id, which must be there.
// They stop where the text of the same report does.

/// Name, type, copies and rows of each table.
void printSummaryAsJson(Kestrel::TableCliHelper& reports, std::optional<U32> tableId,
                        std::ostream& out);
/// All that the detail's text shows, copy by copy.
void printDetailAsJson(Kestrel::TableCliHelper& reports, std::optional<U32> tableId,
                       std::ostream& out);
/// Id and name of each table.
void printTablesAsJson(Kestrel::TableCliHelper& reports, std::ostream& out);

/// Pools, tiles and blocks with the letters of their groups, and the groups.
void printSramAsJson(SramModel const& model, std::ostream& out);

}  // namespace kestrel
