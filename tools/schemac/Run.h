// A whole run of the compiler.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace schemac {

/// Does what `arguments`, those behind the program's name, ask for, and returns the exit code.
int run(std::vector<std::string> const& arguments, std::ostream& out, std::ostream& err);

}  // namespace schemac
