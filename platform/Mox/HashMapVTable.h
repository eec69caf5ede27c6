// The key operations of a hash map, through which the engine reaches nodes of any type.
#pragma once

#include "Mox/MapNode.h"

namespace Mox {

/// The key operations that `HashMapGeneric` calls.  There is one instance for each node type,
/// shared by all its maps.
class HashMapVTableGeneric {
 public:
  // The virtual operations stand in the order that the platform's binaries expect.
  /// The hash of the node's key, bit-reversed.
  virtual U32 hash(PtrInterface const* node) const = 0;
  /// The key against the node's key.
  virtual bool keyEquals(void const* key, PtrInterface const* node) const = 0;
  /// Strict order of keys: `b` before `a` when `b` is given, otherwise the key before `a`; a null
  /// `a` means true.
  virtual bool keyLessThan(void const* key, PtrInterface const* a, PtrInterface const* b) const = 0;
  /// Replaces the node's next-link, counted.
  virtual void setNext(PtrInterface* node, PtrInterface* next) const = 0;

 protected:
  constexpr HashMapVTableGeneric() = default;
  ~HashMapVTableGeneric() = default;
};

/// The key operations for one node type.
template <class Node, class Key>
class HashMapVTable final : public HashMapVTableGeneric {
 public:
  /// The one instance.
  static HashMapVTableGeneric const* instance() noexcept {
    static constexpr HashMapVTable table;
    return &table;
  }

  U32 hash(PtrInterface const* node) const override {
    return bitReverse(nodeHash<Key>(typed(node)));
  }
  bool keyEquals(void const* key, PtrInterface const* node) const override {
    return KeyOps<Key>::equals(*static_cast<Key const*>(key), NodeOps<Node>::key(typed(node)));
  }
  bool keyLessThan(void const* key, PtrInterface const* a, PtrInterface const* b) const override {
    if (!a) return true;
    decltype(auto) of = NodeOps<Node>::key(typed(a));
    if (b) return KeyOps<Key>::less(NodeOps<Node>::key(typed(b)), of);
    return KeyOps<Key>::less(*static_cast<Key const*>(key), of);
  }
  void setNext(PtrInterface* node, PtrInterface* next) const override {
    NodeOps<Node>::next(static_cast<Node&>(*node)) = next;
  }

 private:
  static Node const& typed(PtrInterface const* node) noexcept {
    return static_cast<Node const&>(*node);
  }
};

}  // namespace Mox
