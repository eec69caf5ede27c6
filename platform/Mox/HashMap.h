// The typed face of hash maps, and the iterators that survive any change of their map.
#pragma once

#include "Mox/HashMapGeneric.h"

#include <cstddef>
#include <iterator>
#include <type_traits>

namespace Mox {

/// The position of a change-proof walk: it holds its node, and finds its way on by the order of the
/// map when the map has changed since it last looked.  A removed element isn't seen unless it is
/// the current one, which stays readable; an inserted one is seen if it falls behind the position.
/// Where a removed element was equivalent to others of its chain (keys of which neither is less),
/// its place is lost: the walk goes on behind the chain.  The map must outlive the walk.
class HashMapIteratorGeneric {
 public:
  HashMapIteratorGeneric() = default;

  explicit operator bool() const noexcept { return static_cast<bool>(node_); }
  /// Steps to the next element.  At the end, nothing.
  void advance() {
    if (node_) stepFrom(map_->next(node_.ptr()));
  }
  /// True for two that stand on the same node, or both at the end.
  bool operator==(HashMapIteratorGeneric const& other) const noexcept {
    return node_ == other.node_;
  }

 protected:
  explicit HashMapIteratorGeneric(HashMapGeneric const& map)
      : map_(&map), stamp_(map.stamp()), walk_(map.walkFrom()) {
    PtrInterface* const first = walk_.head();
    node_ = first ? first : walk_.nextHead();
  }
  HashMapIteratorGeneric(HashMapGeneric const& map, void const* key, U32 hash) : map_(&map) {
    settle(map.standAtHash(key, hash));
  }

  // Steps on from the node, whose link holds `linked`: which tells something only in a map that
  // hasn't changed, and is gone by only while counts are plain.  How it is written decides whether
  // the loop around it keeps the walk in registers, and the common way in a row (bench_Maps,
  // iterate).
  [[gnu::always_inline]] void stepFrom(PtrInterface* linked) {
    if (map_->changes() != stamp_) [[unlikely]] {
      settle(map_->standBehind(node_.ptr(), stamp_));
      return;
    }
    if (!linked) [[likely]]
      linked = walk_.nextHead();
    node_.ptrAssignPlain(linked);  // an unchanged map still holds the node
  }
  void settle(HashMapGeneric::Stand const& stand) {
    stamp_ = map_->stamp();
    walk_ = stand.walk;
    node_.ptrAssign(stand.node);
  }

  HashMapGeneric const* map_ = nullptr;
  U32 stamp_ = 0;
  BucketWalk walk_;
  Ptr<PtrInterface> node_;
};

/// A hash map of counted nodes of type `Node`, keyed by `Key`.  `Value` is what an element stands
/// for: the value, or the entity, which may be the node itself.
///
/// The keys' operations are those of `KeyOps<Key>`, the nodes' of `NodeOps<Node>`.  References and
/// raw pointers to a node are good as long as it is in the map or held.  Complexity is constant on
/// average where nothing else is said.
template <class Node, class Key, class Value>
class HashMap : public HashMapGeneric {
 public:
  /// `size` is the first bucket count, rounded up to a power of two.
  explicit HashMap(U32 size = 4) : HashMapGeneric(size) {
    constexpr std::size_t offset = NodeOps<Node>::nextOffset();
    static_assert(offset <= 0xFF, "the next-link stands too far behind the node's start");
    keys_ = HashMapVTable<Node, Key>::instance();
    nextOffset_ = offset;
  }
  /// A copy has the bucket count of its source, and nodes of its own.
  HashMap(HashMap const& other) : HashMap(other.bucketCount()) { copyNodes(other); }
  HashMap& operator=(HashMap const& other) {
    if (this == &other) return *this;
    emptyAllBuckets();
    setSize0(other.bucketCount());
    copyNodes(other);
    return *this;
  }

  /// The node under `key`, uncounted; null where there is none.
  Node* find(Key const& key) const noexcept {
    U32 const hash = KeyOps<Key>::hash(key);
    PtrInterface* at = head(hash & mask());
    while (at && !matches(key, hash, *typed(at))) at = nextOf(at);
    return typed(at);
  }
  bool isMember(Key const& key) const noexcept { return find(key) != nullptr; }
  /// The node under `key`, counted; null where there is none.
  Ptr<Node> operator[](Key const& key) const { return Ptr<Node>(find(key)); }

  /// Inserts a node whose key is absent.
  void newMember(Ptr<Node> const& node) {
    if (isFull()) [[unlikely]]
      growAll();
    enter(Link(node));
    countNewMember();
  }
  /// Removes a node, which lives on as long as someone holds it.  A node that isn't in the map is
  /// left alone.
  void deleteMember(Ptr<Node> const& node) {
    if (!node) return;
    Link* place = headLink(nodeHash<Key>(*node));
    while (*place && *place != node) place = &linkOf(*place);
    if (*place) takeFrom(*place, linkOf(*place));
  }
  /// Removes and returns the node under `key`; null, and nothing done, where there is none.
  Ptr<Node> deleteKey(Key const& key) {
    U32 const hash = KeyOps<Key>::hash(key);
    Link* place = headLink(hash);
    while (*place && !matches(key, hash, *typed(place->ptr()))) place = &linkOf(*place);
    if (!*place) return nullptr;
    return Ptr<Node>::adopt(typed(takeFrom(*place, linkOf(*place)).release()));
  }

  /// Removes all nodes.
  void deleteAll() { emptyAllBuckets(); }

  /// A change-proof walk.
  template <class Element>
  class IteratorOf : public HashMapIteratorGeneric {
   public:
    IteratorOf() = default;
    /// Starts at the first element.
    explicit IteratorOf(HashMap const& map) : HashMapIteratorGeneric(map) {}
    /// Starts at `key`, or where it is absent at the first element behind its place.
    IteratorOf(HashMap const& map, Key const& key)
        : HashMapIteratorGeneric(map, &key, bitReverse(KeyOps<Key>::hash(key))) {}
    /// A reading walk from a writing one.
    template <std::same_as<Node> Other>
    requires(!std::same_as<Element, Node>) IteratorOf(IteratorOf<Other> const& other)
        : HashMapIteratorGeneric(other) {}

    /// The current node, which this iterator holds; null at the end.  The operations below need
    /// one.
    Element* node() const noexcept { return typed(node_.ptr()); }
    decltype(auto) key() const { return NodeOps<Node>::key(*typed(node_.ptr())); }
    /// The element's value; of entities that are their own nodes, the entity.
    decltype(auto) value() const {
      if constexpr (std::is_same_v<std::remove_const_t<Element>, Value>)
        return Ptr<Element>(node());
      else
        return node()->value();
    }
    IteratorOf& operator++() {
      if (node_) stepFrom(nextOf(node_.ptr()));
      return *this;
    }
    /// True if the walked map has `key` now.
    bool isMemberOf(Key const& key) const noexcept {
      return map_ && static_cast<HashMap const*>(map_)->isMember(key);
    }
  };
  using Iterator = IteratorOf<Node>;
  using IteratorConst = IteratorOf<Node const>;

  Iterator iterator() { return Iterator(*this); }
  IteratorConst iteratorConst() const { return IteratorConst(*this); }
  /// A walk from `key`, or where it is absent from the first element behind its place.
  Iterator iteratorAt(Key const& key) { return Iterator(*this, key); }
  IteratorConst iteratorConstAt(Key const& key) const { return IteratorConst(*this, key); }

  /// The engine's own walk, in the same order and without counts: the map mustn't change meanwhile.
  class RawIterator {
   public:
    using value_type = Node;
    using difference_type = std::ptrdiff_t;

    RawIterator() = default;
    explicit RawIterator(HashMap const& map) : walk_(map.walkFrom()), node_(walk_.head()) {
      if (!node_) node_ = walk_.nextHead();
    }

    Node& operator*() const noexcept { return *typed(node_); }
    Node* operator->() const noexcept { return typed(node_); }
    RawIterator& operator++() noexcept {
      PtrInterface* const linked = nextOf(node_);
      node_ = linked ? linked : walk_.nextHead();
      return *this;
    }
    RawIterator operator++(int) noexcept {
      RawIterator const before = *this;
      ++*this;
      return before;
    }
    bool operator==(RawIterator const& other) const noexcept { return node_ == other.node_; }
    bool operator==(std::default_sentinel_t) const noexcept { return node_ == nullptr; }

   private:
    BucketWalk walk_;
    PtrInterface* node_ = nullptr;
  };
  RawIterator begin() const { return RawIterator(*this); }
  std::default_sentinel_t end() const noexcept { return {}; }

  /// The same walk by a call for each node, `visit(Node&)`: the fastest one.
  template <class Visit>
  void forEachNode(Visit&& visit) const {
    auto const visitChain = [&visit](PtrInterface* at) {
      for (; at; at = nextOf(at)) visit(*typed(at));
    };
    // By four, in which the two top bits of the bucket run through; the two may be the same or
    // none.
    U32 const half = bucketCount() / 2;
    U32 const quarter = half / 2;
    BucketWalk walk(buckets_, log2Buckets_ < 2 ? 0 : log2Buckets_ - 2);
    do {
      U32 const bucket = walk.bucket();
      visitChain(head(bucket));
      if (half != 0) visitChain(head(bucket | half));
      if (quarter == 0) continue;
      visitChain(head(bucket | quarter));
      visitChain(head(bucket | half | quarter));
    } while (walk.step());
  }

  /// The first node in the order of the walk, uncounted; null in an empty map.
  Node* first() const { return after(nullptr); }
  /// The node behind `node`, which may have been removed meanwhile; null at the end.
  Node* after(Node const* node) const {
    int bucket = -1;
    return typed(findNextG(node, &bucket));
  }

 private:
  static Node* typed(PtrInterface* node) noexcept { return static_cast<Node*>(node); }
  static PtrInterface* nextOf(PtrInterface const* node) noexcept {
    return NodeOps<Node>::next(static_cast<Node const&>(*node));
  }
  static bool matches(Key const& key, [[maybe_unused]] U32 hash, Node const& node) noexcept {
    if constexpr (HashKeepingNode<Node>)
      if (node.keyHash() != hash) return false;
    return KeyOps<Key>::equals(key, NodeOps<Node>::key(node));
  }
  static bool precedes(Node const& a, Node const& b) noexcept {
    return KeyOps<Key>::less(NodeOps<Node>::key(a), NodeOps<Node>::key(b));
  }
  static Link& linkOf(Link const& node) noexcept { return NodeOps<Node>::next(*typed(node.ptr())); }
  Link* headLink(U32 hash) noexcept { return &buckets_[hash & mask()]; }

  void enter(Link&& node) {
    Link* place = headLink(nodeHash<Key>(*typed(node.ptr())));
    while (*place && !precedes(*typed(node.ptr()), *typed(place->ptr()))) place = &linkOf(*place);
    linkIn(*place, std::move(node), linkOf(node));
  }
  // For nodes that come in the order of a walk.  No key that has an order is less than one ahead of
  // it then, and needs no comparison to find that its place is the tail.
  void enterAgain(Link&& node) {
    if constexpr (NumberKey<Key> || StringKey<Key>) {
      Link* place = headLink(nodeHash<Key>(*typed(node.ptr())));
      while (*place) place = &linkOf(*place);
      *place = std::move(node);
    } else {
      enter(std::move(node));
    }
  }

  // Apart from the insertion, for its size.
  [[gnu::noinline]] void growAll() {
    grow([this](Link&& again) { enterAgain(std::move(again)); });
  }

  void copyNodes(HashMap const& other) {
    other.forEachNode([this](Node& node) { newMember(new Node(node.key(), node.value())); });
  }
};

}  // namespace Mox
