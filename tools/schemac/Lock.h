// The lock file: what peers and scripts rely on in the schemas of a run, in lines to be reviewed.
#pragma once

#include "tools/schemac/Schema.h"

#include <string>
#include <vector>

namespace schemac {

/// The lock file of checked `schemas`: a line for each module, type, constructor argument,
/// attribute and enumerator, in the order of the schemas.
std::string lockText(Schema const& builtin, std::vector<Schema> const& schemas);

/// Reports each line in which `text`, the content of the lock file `file`, is other than the lock
/// file of `schemas`; what the schemas have, at its place there.
void checkLock(Schema const& builtin, std::vector<Schema> const& schemas, std::string const& file,
               std::string const& text, Diagnostics& diagnostics);

}  // namespace schemac
