// The command that looks a profile over.
#pragma once

#include "standin/xdk/Lint.h"

#include <iosfwd>

namespace kestrel {

/// What lint says of the profile, with the names under which the library publishes the tables.
std::vector<xdksim::Finding> findingsOf(xdksim::Profile const& profile);

/// A line each.
void printFindings(std::vector<xdksim::Finding> const& findings, std::ostream& out);
void printFindingsAsJson(std::vector<xdksim::Finding> const& findings, std::ostream& out);

}  // namespace kestrel
