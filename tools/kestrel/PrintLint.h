// Findings of lint, for readers and for programs.
#pragma once

#include "tools/kestrel/Lint.h"

#include <iosfwd>

namespace kestrel {

/// A line each.
void printFindings(std::vector<Finding> const& findings, std::ostream& out);
/// One value, a list `findings`.
void printFindingsAsJson(std::vector<Finding> const& findings, std::ostream& out);

}  // namespace kestrel
