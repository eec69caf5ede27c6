// The rules on defaults and ranges: which numbers and words a type takes.
#pragma once

#include "tools/schemac/TypeUses.h"

#include <optional>

namespace schemac {

/// The numbers that a type holds.
struct Bounds {
  long long least = 0;
  long long most = 0;
};

/// What the option `range` of a type says, such as "-128..127"; nothing if it can't be read.
std::optional<Bounds> boundsIn(std::string_view text);

/// True for two integers of which the first holds each number of the second.
bool holds(TypeUses const& uses, TypeUse const& wide, TypeUse const& narrow);

/// Reports a default that `row`'s type can't have.
void checkDefault(TypeUses const& uses, Row const& row, Diagnostics& diagnostics);

/// Reports a range of `row`, a row of `type`, that can't be or that goes beyond its type.
void checkRange(TypeUses const& uses, Type const& type, Row const& row, Diagnostics& diagnostics);

}  // namespace schemac
