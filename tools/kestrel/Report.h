// The listing of tables, which the library gives as a collection.
#pragma once

#include "XpLib/XpTableCliHelper.h"

#include <iosfwd>

namespace kestrel {

/// A line with id and name for each table.
void printTables(Kestrel::TableCliHelper& reports, std::ostream& out);

}  // namespace kestrel
