// The node of a value collection, and how a hash map reaches into any node.
#pragma once

#include "Mox/KeyOps.h"
#include "Mox/PtrInterface.h"

#include <cstddef>

namespace Mox {

/// The node of a map from `Key` to `Value`, one for each element.  For a string key it keeps the
/// hash, which is compared before the bytes are.
template <class Key, class Value>
class MapNode : public PtrInterface {
 public:
  explicit MapNode(Key const& key, Value const& value = Value()) : key_(key), value_(value) {}

  Key const& key() const noexcept { return key_; }
  Value const& value() const noexcept { return value_; }
  Value& value() noexcept { return value_; }
  void valueIs(Value const& value) { value_ = value; }

 private:
  template <class Node>
  friend struct NodeOps;

  Key key_;
  Ptr<PtrInterface> moxNext_;  // ahead of the value: what a search reads stands together
  Value value_;
};

template <StringKey Key, class Value>
class MapNode<Key, Value> : public PtrInterface {
 public:
  explicit MapNode(Key const& key, Value const& value = Value())
      : hash_(key.hash()), key_(key), value_(value) {}

  Key const& key() const noexcept { return key_; }
  Value const& value() const noexcept { return value_; }
  Value& value() noexcept { return value_; }
  void valueIs(Value const& value) { value_ = value; }
  /// The key's hash, computed once.
  U32 keyHash() const noexcept { return hash_; }

 private:
  template <class Node>
  friend struct NodeOps;

  U32 hash_;  // first: it fills the gap behind the reference word
  Ptr<PtrInterface> moxNext_;
  Key key_;
  Value value_;
};

/// A node that keeps its key's hash.
template <class Node>
concept HashKeepingNode = requires(Node const& node) {
  { node.keyHash() } -> std::same_as<U32>;
};

/// A node whose key isn't what `key()` says, such as an entity that is its own node: its
/// `moxKey()` gives the key.
template <class Node>
concept MoxKeyedNode = requires(Node const& node) {
  node.moxKey();
};

/// How a hash map reaches into a node.  A node class declares a member
/// `Mox::Ptr<Mox::PtrInterface> moxNext_` and befriends this struct, or stands on `MapNode`.  Its
/// key, which mustn't change while it is in a map, is `moxKey()` where there is one, else `key()`.
template <class Node>
struct NodeOps {
  static decltype(auto) key(Node const& node) noexcept {
    if constexpr (MoxKeyedNode<Node>)
      return node.moxKey();
    else
      return node.key();
  }

  static Ptr<PtrInterface>& next(Node& node) noexcept { return node.moxNext_; }
  static PtrInterface* next(Node const& node) noexcept { return node.moxNext_.ptr(); }

  /// Distance of the next-link from the node's start, in words.
  static constexpr std::size_t nextOffset() noexcept {
// Every compiler that builds this can tell the offset in a class with virtual operations.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Winvalid-offsetof"
    return offsetof(Node, moxNext_) / sizeof(void*);
#pragma GCC diagnostic pop
  }
};

/// The hash of a node's key: the kept one where the node keeps it.
template <class Key, class Node>
U32 nodeHash(Node const& node) noexcept {
  if constexpr (HashKeepingNode<Node>)
    return node.keyHash();
  else
    return KeyOps<Key>::hash(NodeOps<Node>::key(node));
}

}  // namespace Mox
