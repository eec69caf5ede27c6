// The scalar: one value of an entity.
#pragma once

#include "frame/Change.h"

namespace frame {

/// Stores `value`, steps the version and tells the notifiees; an equal value is no change.
template <EntityAttribute A>
void scalarIs(typename A::Owner& owner, typename A::Value const& value) {
  auto& stored = A::field(owner);
  if (stored == value) return;
  stored = value;
  changed<A>(owner);
}

}  // namespace frame
