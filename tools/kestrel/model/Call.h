// Operations of objects, called with the user's words.
#pragma once

#include "tools/kestrel/model/Place.h"

namespace kestrel {

/// One argument of an operation.
struct Parameter {
  std::string name;
  std::string type;           ///< as descriptors name it
  MoxType const* descriptor;  ///< null for a type of which no text can be read
};

std::vector<Parameter> parametersOf(MoxAttr const& operation);

/// The names of a type's operations, in their order.
std::vector<std::string> operationsOf(MoxType const& type);

/// The operation of that name at a place.  Throws `UsageFault`, with those that there are, where
/// there is none.
MoxAttr const& operationAt(Place const& place, std::string const& name);

/// Calls the operation; null where nothing comes back.  Throws `UsageFault` for words that don't
/// fit its parameters.
GenericIf::Ptr call(Paths const& paths, Place const& place, MoxAttr const& operation,
                    std::vector<std::string> const& words);

}  // namespace kestrel
