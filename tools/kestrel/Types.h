// The commands that print the types of the library's modules, from their descriptors.
#pragma once

#include <iosfwd>

namespace kestrel {

/// For readers: a block for each type, a line for each attribute.
void printTypes(std::ostream& out);
/// As one JSON value.
void printTypesAsJson(std::ostream& out);

}  // namespace kestrel
