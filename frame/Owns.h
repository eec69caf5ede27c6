// The owned collection: child entities, which are the nodes of the map, or stand in nodes.
#pragma once

#include "Mox/MapNode.h"
#include "frame/Map.h"
#include "frame/Reinstantiation.h"

namespace frame {

/// The child under `key`, or null.
template <class A>
typename A::Child* ownsFind(typename A::Owner const& owner, typename A::Key const& key) {
  auto* const node = A::map(owner).find(key);
  return node ? A::childOf(*node) : nullptr;
}

/// The same, as a counted read.
template <class A>
Mox::Ptr<typename A::Child> ownsRead(typename A::Owner const& owner, typename A::Key const& key) {
  auto* const node = read<A>(owner, A::map(owner)).find(key);
  return node ? A::childOf(*node) : nullptr;
}

/// Makes the child, inserts it, and sets its place under the owner.  Neither version nor notifiees
/// hear of it.  The key must be absent.
template <EntityAttribute A, class... Args>
Mox::Ptr<typename A::Child> ownsNew(typename A::Owner& owner, Args const&... args) {
  Mox::Ptr<typename A::Child> const child = new typename A::Child(args...);
  child->parentAttrIdIs(A::id);
  A::map(owner).newMember(A::nodeFor(child));
  child->parentIs(&owner);
  return child;
}

/// The child under `key`.  One that exists is returned as it stands, after its constructor
/// parameters were compared with the arguments in the constructor's order; a difference raises the
/// reinstantiation error.
template <EntityAttribute A, class Key, class... Args>
Mox::Ptr<typename A::Child> ownsIs(typename A::Owner& owner, Key const& key, Args const&... args) {
  if (Mox::Ptr<typename A::Child> const child = ownsFind<A>(owner, key)) {
    A::requireSame(*child, args...);
    return child;
  }
  auto const child = ownsNew<A>(owner, key, args...);
  changedKey<A>(owner, key);
  return child;
}

/// Removes a child that stands in the collection, tells the notifiees, and returns it.
template <EntityAttribute A>
Mox::Ptr<typename A::Child> ownsDelNode(typename A::Owner& owner,
                                        Mox::Ptr<typename A::Node> const& node) {
  Mox::Ptr<typename A::Child> const child = A::childOf(*node);
  typename A::Key const key = Mox::NodeOps<typename A::Node>::key(*node);
  A::map(owner).deleteMember(node);
  owner.moxVersionInc();
  child->parentIs(nullptr);
  notifyKey<A>(owner, key);
  return child;
}

/// Removes the child under `key`; null, and nothing done, without one.
template <EntityAttribute A>
Mox::Ptr<typename A::Child> ownsDel(typename A::Owner& owner, typename A::Key const& key) {
  Mox::Ptr<typename A::Node> const node = A::map(owner).find(key);
  return node ? ownsDelNode<A>(owner, node) : nullptr;
}

/// Removes the child under the iterator; null, and nothing done, at the end or when it has gone.
// Not inlined, as `mapDelAt`.
template <EntityAttribute A, class Iterator>
[[gnu::noinline]] Mox::Ptr<typename A::Child> ownsDelAt(typename A::Owner& owner,
                                                        Iterator const& at) {
  Mox::Ptr<typename A::Node> const node = at ? A::map(owner).find(at.key()) : nullptr;
  return node && node.ptr() == at.node() ? ownsDelNode<A>(owner, node) : nullptr;
}

/// Removes one after the other, each with its own step and its own notification.
template <EntityAttribute A>
void ownsDelAll(typename A::Owner& owner) {
  using Map = std::remove_reference_t<decltype(A::map(owner))>;
  Held const held(owner);
  for (typename Map::Iterator at(A::map(owner)); at; ++at) ownsDelAt<A>(owner, at);
}

/// Before the owner's members go: children may live on, and must not look up to it.
template <EntityAttribute A>
void ownsForsake(typename A::Owner& owner) {
  A::map(owner).forEachNode([](auto& node) { A::childOf(node)->moxParentGone(); });
}

}  // namespace frame
