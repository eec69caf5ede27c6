// The lines of the lock file, as the schemas have them.
#pragma once

#include "tools/schemac/Schema.h"

#include <string>
#include <vector>

namespace schemac {

/// A line of the lock file.
struct LockLine {
  std::string key;   ///< its first two words; no other line has the same
  std::string rest;  ///< what is locked under that key, maybe empty
  Position at;       ///< where the schema says so

  std::string text() const { return rest.empty() ? key : key + " " + rest; }
};

/// The lines of checked `schemas`, in order.
std::vector<LockLine> lockLines(Schema const& builtin, std::vector<Schema> const& schemas);

}  // namespace schemac
