// The types of tables: the name of each, and the class of its contexts.
#pragma once

#include "Xdk/LpmTableContext.h"
#include "Xdk/TableContexts.h"
#include "XpXdk/TableContextEntry.h"

#include <variant>

namespace Kestrel {

/// "MATCH", "HASH", "DIRECT", "LPM", "ISME" or "NH"; a code of no table type ends the process by
/// the assertion "false".
char const* tableTypeToString(U8 type);

namespace xpTableCliHelper {

/// The context of one copy of a table, in the class that goes with the table's type.
using Context = std::variant<xpMatchTableContext, xpHashTableContext, xpDirectTableContext,
                             xpLpmTableContext, xpIsmeTableContext, xpNhTableContext>;

/// Copies of the table that can be read: they are numbered by a byte, so 256 at most.
U32 numCopies(XpXdk::TableContextEntry const& entry);

/// The context of one copy.  A type code of no table type ends the process by the assertion "false"
/// of the operation with that signature.
Context contextOf(XpXdk::TableContextEntry const& entry, U8 copy, char const* signature);

}  // namespace xpTableCliHelper

}  // namespace Kestrel
