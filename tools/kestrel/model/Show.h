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

}  // namespace kestrel
