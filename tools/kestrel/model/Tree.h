// The entities of the model, below one another.
#pragma once

#include "tools/kestrel/model/Place.h"

#include <iosfwd>

namespace kestrel {

/// The entities from a place on: a line "name type" for each, two blanks deeper for each level, and
/// one for each of its collections with its count.  `depth` levels of entities are shown below the
/// first; the roots always are.  Throws `UsageFault` for a place without entities.
void printTree(Place const& place, Roots const& roots, U32 depth, std::ostream& out);

}  // namespace kestrel
