// A whole run of the compiler.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace schemac {

/// Does what `arguments`, those behind the program's name, ask for, and returns the exit code.
/// `version` is the program's own.
int run(std::vector<std::string> const& arguments, std::string const& version, std::ostream& out,
        std::ostream& err);

}  // namespace schemac
