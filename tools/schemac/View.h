// The names that templates see, made from schemas.  `docs/schema-language.md` lists them.
#pragma once

#include "tools/schemac/Schema.h"
#include "tools/schemac/Scope.h"

#include <vector>

namespace schemac {

/// The scope of a checked schema; its list `types` holds one scope for each type, in order.
Scope viewOf(Schema const& builtin, Schema const& schema);

/// The scope of a run: its list `typeNames` holds the full names of all types, schema by schema, in
/// each the last one first.
Scope viewOf(std::vector<Scope> const& schemas);

}  // namespace schemac
