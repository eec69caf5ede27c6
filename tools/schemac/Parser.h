// Reads a schema file.
#pragma once

#include "tools/schemac/Diagnostics.h"
#include "tools/schemac/Schema.h"

#include <string>
#include <string_view>

namespace schemac {

/// The schema in `source`.  Reports what breaks the grammar and goes on with the next line, so one
/// run shows the errors of all lines; the result is whole only if nothing was reported.
Schema parse(std::string const& file, std::string_view source, Diagnostics& diagnostics);

}  // namespace schemac
