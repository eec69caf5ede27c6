// What can stand next in a command on paths.
#pragma once

#include "tools/kestrel/model/Place.h"

namespace kestrel {

/// The paths one step on from what has been typed of one; those that lead on end in a slash.
std::vector<std::string> pathsFrom(Paths const& paths, std::string const& typed);

/// The operations of what stands at the path.
std::vector<std::string> operationsAt(Paths const& paths, std::string const& path);

/// Texts of what can be set at the path: enumerators, "True" and "False", of entities their paths.
std::vector<std::string> valuesAt(Paths const& paths, std::string const& path,
                                  std::string const& typed);
/// The same of an argument of the operation.
std::vector<std::string> argumentsAt(Paths const& paths, std::string const& path,
                                     std::string const& operation, std::size_t argument,
                                     std::string const& typed);

}  // namespace kestrel
