// Where paths into the model begin.
#pragma once

#include "Mox/MoxType.h"

#include <functional>
#include <string>
#include <vector>

namespace kestrel {

using Arguments = std::vector<Mox::GenericIf::Ptr>;

/// An entity without an owner, or an object that stands beside the entities.
struct Root {
  std::string name;
  Mox::GenericIf::Ptr face;
  /// Throws `UsageFault` for a call that the object's contract leaves open; null where all may be
  /// called.
  std::function<void(Mox::MoxAttr const& operation, Arguments const& arguments)> refuse = nullptr;
};

/// In the order in which they are listed; each name once.
using Roots = std::vector<Root>;

}  // namespace kestrel
