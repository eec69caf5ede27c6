// The reference: a pointer to an entity owned elsewhere.
#pragma once

#include "frame/Scalar.h"

namespace frame {

/// As a scalar; two references are equal when they point at the same entity.  Null is legal.
template <EntityAttribute A>
void refIs(typename A::Owner& owner, typename A::Value const& target) {
  // The end of the former target may take the owner along.
  Held const held(owner);
  scalarIs<A>(owner, target);
}

}  // namespace frame
