// What a schema must keep to beyond its grammar.
#pragma once

#include "tools/schemac/Diagnostics.h"
#include "tools/schemac/Schema.h"

#include <vector>

namespace schemac {

/// Reports every breach in `schemas`: names, numbers, types, and what options ask for.  `builtin`
/// holds the types that every schema knows.
void check(Schema const& builtin, std::vector<Schema> const& schemas, Diagnostics& diagnostics);

}  // namespace schemac
