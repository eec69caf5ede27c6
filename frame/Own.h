// The owned scalar: one child entity.
#pragma once

#include "frame/Change.h"

namespace frame {

/// Raises `RangeException` "null ValidPtr" for null.
void requireChild(Mox::Entity const* child);

/// Makes the child and sets its place under the owner; it isn't stored.  The owner must outlive it,
/// or the caller detaches it by `parentIs(null)`: the owner doesn't know it, and can't clear its
/// pointer.
template <EntityAttribute A, class... Args>
typename A::Value ownNew(typename A::Owner& owner, Args const&... args) {
  typename A::Value const child = new typename A::Child(args...);
  child->parentAttrIdIs(A::id);
  child->parentIs(&owner);
  return child;
}

/// The child that was made of these arguments, or passes for it: the tag says which child is kept,
/// and whether the version steps then.  Another one is detached and replaced: the version steps
/// twice, and the notifiees hear of it once.  Raises `RangeException` "null ValidPtr" when one of
/// them has taken the new child away.
template <EntityAttribute A, class... Args>
typename A::Value ownIs(typename A::Owner& owner, Args const&... args) {
  Held const held(owner);
  auto& stored = A::field(owner);
  bool const kept = stored && A::isKept(*stored, args...);
  if (stored && (!kept || A::keepingSteps)) owner.moxVersionInc();
  if (kept) return stored;
  if (stored) stored->parentIs(nullptr);
  stored = ownNew<A>(owner, args...);
  changed<A>(owner);
  requireChild(stored.ptr());
  return stored;
}

/// Detaches the child, tells the notifiees, and returns it; null, and nothing done, without one.
template <EntityAttribute A>
typename A::Value ownDel(typename A::Owner& owner) {
  auto const child = std::move(A::field(owner));
  if (!child) return nullptr;
  owner.moxVersionInc();
  child->parentIs(nullptr);
  notify<A>(owner);
  return child;
}

/// Before the owner's members go: the child may live on, and must not look up to it.
template <EntityAttribute A>
void ownForsake(typename A::Owner& owner) {
  if (auto const& child = A::field(owner)) child->moxParentGone();
}

}  // namespace frame
