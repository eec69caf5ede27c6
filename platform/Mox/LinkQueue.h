// Queues of counted nodes, first in, first out, each entry under a key.
#pragma once

#include "Mox/MapNode.h"

namespace Mox {

/// A queue of counted nodes of type `Node`, which it reaches into by `NodeOps<Node>` as a hash map
/// does; a node stands in one queue or map at a time.  Keys may repeat.
template <class Node, class Key, class Value>
class LinkQueue {
 public:
  LinkQueue() = default;
  LinkQueue(LinkQueue const&) = delete;
  LinkQueue& operator=(LinkQueue const&) = delete;
  ~LinkQueue() { deleteAll(); }

  /// Entries and removals so far, modulo 2^32.
  U32 changes() const noexcept { return changes_; }
  U32 count() const noexcept { return count_; }
  bool empty() const noexcept { return !head_; }
  /// The entry that is next in turn, uncounted; null in an empty queue.
  Node* head() const noexcept { return typed(head_.ptr()); }
  /// The entry behind one of this queue; null behind the last.
  static Node* after(Node const* node) noexcept { return typed(NodeOps<Node>::next(*node)); }

  /// Enters a node at the tail.
  void enq(Ptr<Node> const& node) {
    (tail_ ? NodeOps<Node>::next(*tail_) : head_) = node;
    tail_ = node.ptr();
    ++count_;
    ++changes_;
  }
  /// Removes the entry that is next in turn and returns it; null from an empty queue.
  Ptr<Node> deq() {
    Ptr<Node> const node(head());
    if (node) takeFrom(head_, nullptr);
    return node;
  }

  /// The first entry under `key`, uncounted; null where there is none.  Linear.
  Node* find(Key const& key) const noexcept {
    Node* at = head();
    while (at && !KeyOps<Key>::equals(key, NodeOps<Node>::key(*at))) at = after(at);
    return at;
  }
  /// Removes an entry, which lives on as long as someone holds it; false, and nothing done, for a
  /// node that isn't in the queue.  Linear.
  bool deleteMember(Ptr<Node> const& node) {
    Node* before = nullptr;
    for (Node* at = head(); at; before = at, at = after(at)) {
      if (at != node.ptr()) continue;
      Ptr<Node> const held = node;
      takeFrom(before ? NodeOps<Node>::next(*before) : head_, before);
      return true;
    }
    return false;
  }
  /// Removes all entries, the first one first.
  void deleteAll() {
    while (deq()) {
    }
  }

  /// A walk from the head, which holds its entry.  Entries that join meanwhile are seen; the walk
  /// ends early when its entry is removed by other means than `deleteAt`.
  class Iterator {
   public:
    Iterator() = default;
    explicit Iterator(LinkQueue const& queue) : node_(queue.head()) {}
    explicit operator bool() const noexcept { return static_cast<bool>(node_); }
    Node* node() const noexcept { return node_.ptr(); }
    decltype(auto) key() const noexcept { return NodeOps<Node>::key(*node_); }
    decltype(auto) value() const noexcept { return node_->value(); }
    /// Steps to the next entry.  At the end, nothing.
    Iterator& operator++() {
      if (node_) node_ = after(node_.ptr());
      return *this;
    }
    bool operator==(Iterator const& other) const noexcept { return node_ == other.node_; }

   private:
    Ptr<Node> node_;
  };
  Iterator iterator() const { return Iterator(*this); }

  /// A walk without counts, from the head: the queue mustn't change meanwhile.
  class RawIterator {
   public:
    explicit RawIterator(Node* node) : node_(node) {}
    Node& operator*() const noexcept { return *node_; }
    RawIterator& operator++() noexcept {
      node_ = after(node_);
      return *this;
    }
    bool operator==(RawIterator const& other) const noexcept { return node_ == other.node_; }

   private:
    Node* node_;
  };
  RawIterator begin() const { return RawIterator(head()); }
  RawIterator end() const { return RawIterator(nullptr); }

  /// Removes the entry under the iterator, steps it to the next one, and returns what was removed.
  Ptr<Node> deleteAt(Iterator& at) {
    Ptr<Node> const node(at.node());
    ++at;
    if (node) deleteMember(node);
    return node;
  }

 private:
  static Node* typed(PtrInterface* node) noexcept { return static_cast<Node*>(node); }

  void takeFrom(Ptr<PtrInterface>& place, Node* before) {
    Ptr<PtrInterface> const node = std::move(place);
    place = std::move(NodeOps<Node>::next(*typed(node.ptr())));
    if (!place) tail_ = before;
    --count_;
    ++changes_;
  }

  U32 changes_ = 0;
  U32 count_ = 0;
  Ptr<PtrInterface> head_;
  Node* tail_ = nullptr;  // held by the link of the one before, or by `head_`
};

/// The same queue by the name that local lists of results use.
template <class Node, class Key, class Value>
using LinkedQueue = LinkQueue<Node, Key, Value>;

}  // namespace Mox
