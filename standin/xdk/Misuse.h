// How the simulated SDK ends the process when it is used in a way that can't be right.
#pragma once

#include <string>

namespace xdksim {

/// Writes "simulated SDK: " and `what` as one line to standard error and aborts.
[[noreturn]] void misuse(std::string const& what);

}  // namespace xdksim
