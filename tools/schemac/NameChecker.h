// The rules on names: which C++ names a schema makes, and that no two of them meet.
#pragma once

#include "tools/schemac/Diagnostics.h"
#include "tools/schemac/Symbols.h"

#include <map>
#include <string>

namespace schemac {

/// The definitions of a whole run, by full name.  Points into its schemas.
using Definitions = std::map<std::string, Type const*>;

/// Reports each name of `type` that is a word of C++, and each that makes what another row, the
/// base, the runtime or a type has already.
void checkNames(Schema const& schema, Symbols const& symbols, Definitions const& definitions,
                Type const& type, Diagnostics& diagnostics);

/// Reports the same of the names in the schema's namespace: those of types and enumerators.
void checkNamespace(Schema const& schema, Symbols const& symbols, Diagnostics& diagnostics);

}  // namespace schemac
