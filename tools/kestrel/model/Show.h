// The model as text.
#pragma once

#include "tools/kestrel/model/Place.h"

#include <iosfwd>

namespace kestrel {

/// What stands at a place, in one line: the text form, "{3 elements}", the signature of an
/// operation.
std::string lineAt(Place const& place);
/// What stands at a place: of an entity or object a line "name: text" for each attribute, of a
/// collection one for each element under its key, else the one line.
void print(Place const& place, Roots const& roots, std::ostream& out);
/// The same of what an interface holds, such as the result of an operation.
void print(GenericIf& face, std::ostream& out);

/// The entities from a place on: a line "name type" for each, two blanks deeper for each level, and
/// one for each of its collections with its count.  `depth` levels of entities are shown below the
/// first.  Throws `UsageFault` for a place without entities.
void printTree(Place const& place, Roots const& roots, U32 depth, std::ostream& out);

}  // namespace kestrel
