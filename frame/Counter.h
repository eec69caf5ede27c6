// The counter: a scalar that can also be added to.
#pragma once

#include "frame/Scalar.h"

namespace frame {

/// Adds `delta`, wrapping at the value's width, tells the notifiees if that made a difference, and
/// returns the new value.  Deliberate: this mutator counts a read and never steps the version.
template <EntityAttribute A>
typename A::Value counterInc(typename A::Owner& owner, typename A::Value delta) {
  auto& stored = A::field(owner);
  typename A::Value const before = owner.moxRead(stored);
  auto const after = static_cast<typename A::Value>(before + delta);
  stored = after;
  if (after != before) notify<A>(owner);
  return after;
}

}  // namespace frame
