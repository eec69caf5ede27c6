// What interfaces hold, for programs.
#pragma once

#include "tools/kestrel/model/Place.h"

#include <nlohmann/json.hpp>

namespace kestrel {

using Json = nlohmann::ordered_json;

/// A value with its type: numbers, booleans and strings as such, an enumerator as a string, a value
/// of one field as that field, a record as an object.  None is null, an entity or object that is
/// referred to its text form; so are numbers that JSON lacks.  Of a string that isn't UTF-8 each
/// byte is a character.
Json jsonOf(GenericIf& face);
/// What stands at a place: of an entity or object all attributes, of a collection all elements.
Json jsonAt(Place const& place, Roots const& roots);

}  // namespace kestrel
