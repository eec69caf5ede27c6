// The reference collection: entities owned elsewhere, under a key.
#pragma once

#include "frame/Map.h"

namespace frame {

/// Raises `RangeException` "null _x parameter to mutator for T::x not allowed"" (the stray quote
/// belongs to the text) for a null `target`.
void requireTarget(Mox::Entity const* target, char const* owner, char const* attribute);

/// Enters `target` under the key that it bears itself.  The same pointer is no change; another one
/// takes its place.
template <EntityAttribute A>
void refsIs(typename A::Owner& owner, typename A::Value const& target) {
  requireTarget(target.ptr(), A::ownerName, A::name);
  mapIs<A>(owner, A::keyOf(*target), target);
}

/// Makes and inserts a node for `target` under the key that it bears itself.
template <EntityAttribute A>
Mox::Ptr<typename A::Node> refsNew(typename A::Owner& owner, typename A::Value const& target) {
  requireTarget(target.ptr(), A::ownerName, A::name);
  return mapNew<A>(owner, A::keyOf(*target), target);
}

}  // namespace frame
