// The typed face of ordered maps, and the iterators that survive any change of their map.
#pragma once

#include "Mox/KeyOps.h"
#include "Mox/RbTreeMapGeneric.h"

#include <cstddef>
#include <iterator>
#include <type_traits>

namespace Mox {

/// The node of an ordered map from `Key` to `Value`, one for each element.
template <class Key, class Value>
class RbTreeNode : public PtrInterface {
 public:
  explicit RbTreeNode(Key const& key, Value const& value = Value()) : key_(key), value_(value) {}

  Key const& key() const noexcept { return key_; }
  Value const& value() const noexcept { return value_; }
  Value& value() noexcept { return value_; }
  void valueIs(Value const& value) { value_ = value; }

 private:
  template <class Node>
  friend struct RbNodeOps;

  Key key_;
  Value value_;
  RbLinks moxLinks_;
};

/// How an ordered map reaches into a node.  A node class has `key()`, declares a member
/// `Mox::RbLinks moxLinks_` and befriends this struct, or stands on `RbTreeNode`.
template <class Node>
struct RbNodeOps {
  static RbLinks& links(Node& node) noexcept { return node.moxLinks_; }

  /// Distance of the links from the node's start, in words.
  static constexpr std::size_t nextLinkOffset() noexcept {
// Every compiler that builds this can tell the offset in a class with virtual operations.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Winvalid-offsetof"
    return offsetof(Node, moxLinks_) / sizeof(void*);
#pragma GCC diagnostic pop
  }
};

/// An ordered map of counted nodes of type `Node`, keyed by `Key`, walked in ascending order of
/// `KeyOps<Key>::less`.  Finding, inserting and removing are logarithmic.  Raw pointers to a node
/// are good as long as it is in the map or held.
template <class Node, class Key, class Value>
class RbTreeMap : public RbTreeMapGeneric {
 public:
  RbTreeMap() = default;
  ~RbTreeMap() { memberDelAll(offset()); }

  /// The node under `key`, uncounted; null where there is none.
  Node* find(Key const& key) const noexcept {
    Node* const node = atOrBehind(key);
    return node && !KeyOps<Key>::less(key, node->key()) ? node : nullptr;
  }
  bool isMember(Key const& key) const noexcept { return find(key) != nullptr; }
  /// The node under `key`, counted; null where there is none.
  Ptr<Node> operator[](Key const& key) const { return Ptr<Node>(find(key)); }

  /// Inserts a node; one with an equal key gives up its place.
  void newMember(Ptr<Node> const& node) {
    Node* parent = nullptr;
    bool left = false;
    for (Node* at = typed(root_.ptr()); at; at = child(at, left)) {
      parent = at;
      left = KeyOps<Key>::less(node->key(), at->key());
      if (!left && !KeyOps<Key>::less(at->key(), node->key()))
        return memberReplace(offset(), 0, Ptr<PtrInterface>(at), node);
    }
    memberNewChild(offset(), 0, Ptr<PtrInterface>(parent), node, left);
  }
  /// Removes a node, which lives on as long as someone holds it.  A node that isn't in the map is
  /// left alone.
  void deleteMember(Ptr<Node> const& node) {
    if (node && find(node->key()) == node.ptr()) _memberDelG(offset(), 0, node);
  }
  /// Removes and returns the node under `key`; null, and nothing done, where there is none.
  Ptr<Node> deleteKey(Key const& key) {
    Ptr<Node> const node = find(key);
    if (node) _memberDelG(offset(), 0, node);
    return node;
  }
  /// Removes all nodes.
  void deleteAll() { memberDelAll(offset()); }

  /// A change-proof walk: it holds its node, and when the map has changed since it last looked it
  /// goes on behind that node's key.  The map must outlive the walk.
  template <class Element>
  class IteratorOf {
   public:
    IteratorOf() = default;
    /// Starts at the first element.
    explicit IteratorOf(RbTreeMap const& map)
        : map_(&map), changes_(map.changes()), node_(map.first()) {}
    /// Starts at `key`, or where it is absent at the first element behind it.
    IteratorOf(RbTreeMap const& map, Key const& key)
        : map_(&map), changes_(map.changes()), node_(map.atOrBehind(key)) {}
    /// A reading walk from a writing one.
    template <std::same_as<Node> Other>
    requires(!std::same_as<Element, Node>) IteratorOf(IteratorOf<Other> const& other)
        : map_(other.map_), changes_(other.changes_), node_(other.node_) {}

    explicit operator bool() const noexcept { return static_cast<bool>(node_); }
    /// The current node, which this iterator holds; null at the end.  The next two need one.
    Element* node() const noexcept { return node_.ptr(); }
    Key const& key() const noexcept { return node_->key(); }
    decltype(auto) value() const { return static_cast<Element*>(node_.ptr())->value(); }
    /// The map has changed since this walk last looked: its node is no more than a bookmark, from
    /// whose key the next step finds its way.
    bool hasBookmark() const noexcept { return node_ && map_->changes() != changes_; }
    /// Steps to the next element.  At the end, nothing.
    void advance() {
      if (!node_) return;
      node_ = hasBookmark() ? map_->behind(node_->key()) : map_->after(node_.ptr());
      changes_ = map_->changes();
    }
    IteratorOf& operator++() {
      advance();
      return *this;
    }
    /// True for two that stand on the same node, or both at the end.
    bool operator==(IteratorOf const& other) const noexcept { return node_ == other.node_; }
    /// True if the walked map has `key` now.
    bool isMemberOf(Key const& key) const noexcept { return map_ && map_->isMember(key); }

   private:
    template <class Other>
    friend class IteratorOf;

    RbTreeMap const* map_ = nullptr;
    U32 changes_ = 0;
    Ptr<Node> node_;
  };
  using Iterator = IteratorOf<Node>;
  using IteratorConst = IteratorOf<Node const>;

  Iterator iterator() { return Iterator(*this); }
  IteratorConst iteratorConst() const { return IteratorConst(*this); }
  /// A walk from `key`, or where it is absent from the first element behind it.
  Iterator iteratorAt(Key const& key) { return Iterator(*this, key); }
  IteratorConst iteratorConstAt(Key const& key) const { return IteratorConst(*this, key); }

  /// The engine's own walk, without counts: the map mustn't change meanwhile.
  class RawIterator {
   public:
    using value_type = Node;
    using difference_type = std::ptrdiff_t;

    RawIterator() = default;
    explicit RawIterator(Node* node) : node_(node) {}
    Node& operator*() const noexcept { return *node_; }
    Node* operator->() const noexcept { return node_; }
    RawIterator& operator++() noexcept {
      node_ = after(node_);
      return *this;
    }
    RawIterator operator++(int) noexcept { return RawIterator(std::exchange(node_, after(node_))); }
    bool operator==(RawIterator const&) const noexcept = default;
    bool operator==(std::default_sentinel_t) const noexcept { return node_ == nullptr; }

   private:
    Node* node_ = nullptr;
  };
  RawIterator begin() const { return RawIterator(first()); }
  std::default_sentinel_t end() const noexcept { return {}; }

  /// The first node, uncounted; null in an empty map.
  Node* first() const noexcept { return typed(RbTreeMapGeneric::first(offset())); }
  /// The node behind one of this map; null at the end.
  static Node* after(Node const* node) noexcept { return typed(next(offset(), node)); }
  /// The first node whose key is greater than `key`; null where there is none.
  Node* behind(Key const& key) const noexcept {
    return lowest([&key](Node const& node) { return KeyOps<Key>::less(key, node.key()); });
  }
  /// The first node whose key isn't less than `key`; null where there is none.
  Node* atOrBehind(Key const& key) const noexcept {
    return lowest([&key](Node const& node) { return !KeyOps<Key>::less(node.key(), key); });
  }

 private:
  static constexpr U8 offset() noexcept {
    constexpr std::size_t words = RbNodeOps<Node>::nextLinkOffset();
    static_assert(words <= 0xFF, "the links stand too far behind the node's start");
    return words;
  }
  static Node* typed(PtrInterface* node) noexcept { return static_cast<Node*>(node); }
  static Node* child(Node* node, bool left) noexcept {
    return typed(RbNodeOps<Node>::links(*node).child[left ? 0 : 1].ptr());
  }
  // The first node that `isIn` holds for; it holds for all behind that one.
  template <class Predicate>
  Node* lowest(Predicate const& isIn) const noexcept {
    Node* found = nullptr;
    for (Node* at = typed(root_.ptr()); at;) {
      bool const in = isIn(*at);
      if (in) found = at;
      at = child(at, in);
    }
    return found;
  }
};

}  // namespace Mox
