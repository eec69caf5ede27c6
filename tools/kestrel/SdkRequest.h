// What the user asks of the simulated SDK, beside its profile.
#pragma once

#include <string>
#include <vector>

namespace kestrel {

/// Faults and strict mode.
struct SdkRequest {
  std::vector<std::string> faults{};  ///< rules that can be read
  bool strict = false;                ///< whether misuse ends the process
};

}  // namespace kestrel
