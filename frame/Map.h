// The value collection: key to value.
#pragma once

#include "frame/Change.h"

namespace frame {

/// The value under `key`, or the value type's default.
template <class A>
typename A::Value mapRead(typename A::Owner const& owner, typename A::Key const& key) {
  Mox::Ptr<typename A::Node const> const node = read<A>(owner, A::map(owner)).find(key);
  return node ? node->value() : typename A::Value();
}

/// Makes and inserts a node; neither version nor notifiees hear of it.  The key must be absent.
template <class A>
Mox::Ptr<typename A::Node> mapNew(typename A::Owner& owner, typename A::Key const& key,
                                  typename A::Value const& value) {
  Mox::Ptr<typename A::Node> const node = new typename A::Node(key, value);
  A::map(owner).newMember(node);
  return node;
}

/// Announces a change of the element under `key`.
template <class A>
void mapNotify(typename A::Owner& owner, typename A::Key const& key) {
  if constexpr (EntityAttribute<A>) notifyKey<A>(owner, key);
}

/// Stores or inserts; an equal value under the key is no change.
template <class A>
void mapIs(typename A::Owner& owner, typename A::Key const& key, typename A::Value const& value) {
  Held const held(owner);
  if (auto* const node = A::map(owner).find(key)) {
    if (node->value() == value) return;
    node->valueIs(value);
  } else {
    mapNew<A>(owner, key, value);
  }
  changedKey<A>(owner, key);
}

/// Removes a node that stands in the collection and returns its value.
template <class A>
typename A::Value mapDelNode(typename A::Owner& owner, Mox::Ptr<typename A::Node> const& node) {
  A::map(owner).deleteMember(node);
  changedKey<A>(owner, node->key());
  return node->value();
}

/// Removes the element under `key` and returns its value; the default, and nothing done, without
/// one.
template <class A>
typename A::Value mapDel(typename A::Owner& owner, typename A::Key const& key) {
  Mox::Ptr<typename A::Node> const node = A::map(owner).find(key);
  return node ? mapDelNode<A>(owner, node) : typename A::Value();
}

/// Removes the element under the iterator, which may be at the end, or on an element that has gone
/// meanwhile: then the default, and nothing done.
// Not inlined: the removal of all would hold a second copy of it.
template <class A, class Iterator>
[[gnu::noinline]] typename A::Value mapDelAt(typename A::Owner& owner, Iterator const& at) {
  Mox::Ptr<typename A::Node> const node = at ? A::map(owner).find(at.key()) : nullptr;
  return node && node.ptr() == at.node() ? mapDelNode<A>(owner, node) : typename A::Value();
}

/// Removes one after the other, each with its own step and its own notification.  A plain object
/// has neither, and loses all at once: a walk couldn't go on from a removed key where keys aren't
/// ordered among each other.
template <class A>
void mapDelAll(typename A::Owner& owner) {
  auto& map = A::map(owner);
  using Map = std::remove_reference_t<decltype(map)>;
  if constexpr (EntityAttribute<A>) {
    Held const held(owner);
    for (typename Map::Iterator at(map); at; ++at) mapDelAt<A>(owner, at);
  } else {
    map.deleteAll();
  }
}

}  // namespace frame
