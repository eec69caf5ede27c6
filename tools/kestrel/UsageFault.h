// A complaint about what the user has asked for.
#pragma once

#include <stdexcept>

namespace kestrel {

/// The user has asked for something that isn't there; `what()` is one line.
class UsageFault : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace kestrel
