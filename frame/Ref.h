// The reference: a pointer to an entity owned elsewhere.
#pragma once

#include "frame/Scalar.h"

namespace frame {

/// As a scalar; two references are equal when they point at the same entity.  Null is legal.
template <EntityAttribute A>
void refIs(typename A::Owner& owner, typename A::Value const& target) {
  scalarIs<A>(owner, target);
}

}  // namespace frame
