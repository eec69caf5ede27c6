// The engine of hash maps: buckets of chained nodes, and the order in which they are walked.
#pragma once

#include "Mox/HashMapVTable.h"

#include <utility>

namespace Mox {

/// Chains of counted nodes in a power of two of buckets.
///
/// The order of a walk is behaviour: buckets in ascending order of the top bits of the bit-reversed
/// hash, and each chain in ascending order of keys.  So it depends on the bucket count, which
/// doubles when an insertion would make the elements outnumber the buckets, and never shrinks.
///
/// The top bits of a reversed word are its low bits from behind.  Buckets are therefore stored
/// under the low bits of the hash as it is, and only a walk steps in reversed order.  An `int*
/// bucket` in the operations below is such a stored index; -1 stands ahead of all buckets.
class HashMapGeneric {
 public:
  HashMapGeneric(HashMapGeneric const&) = delete;
  HashMapGeneric& operator=(HashMapGeneric const&) = delete;

  /// Insertions and removals so far, modulo 2^32.
  U32 changes() const noexcept { return changes_; }
  /// Elements.
  U32 count() const noexcept { return count_; }
  bool empty() const noexcept { return count_ == 0; }
  U32 bucketCount() const noexcept { return U32{1} << log2Buckets_; }

  /// Inserts a node, whose key must be absent: ahead of the first node of its chain with a greater
  /// key.  `key` is the node's own.  Linear in the chain; in the map when the buckets double.
  void newMemberG(Ptr<PtrInterface> const& node, void const* key);
  /// Removes a node, which lives on as long as someone holds it.  A node that isn't in the map is
  /// left alone.
  void deleteMember(Ptr<PtrInterface> const& node);
  /// Removes all nodes, one after the other.
  void emptyAllBuckets();

  /// The node behind `node` in the order of the walk and its bucket; `node` may have been removed
  /// meanwhile.  The first one for null; null at the end.
  PtrInterface* findNextG(PtrInterface const* node, int* bucket) const;
  /// The head of the next bucket that isn't empty, and that bucket; null at the end.
  PtrInterface* findNextBucket(int* bucket) const noexcept {
    if (*bucket < 0) [[unlikely]] {
      *bucket = 0;
      if (PtrInterface* const first = head(0)) return first;
    }
    auto at = static_cast<U32>(*bucket);
    while (stepBucket(at)) {
      if (PtrInterface* const found = head(at)) {
        *bucket = static_cast<int>(at);
        return found;
      }
    }
    return nullptr;
  }
  /// The first node at or behind the place of `key`, whose bit-reversed hash is `hash`, and its
  /// bucket; null at the end.
  PtrInterface* startAtHash(void const* key, U32 hash, int* bucket) const;

  /// Makes the bucket count `buckets`, rounded up to a power of two.  The map must be empty.
  void setSize0(U32 buckets);

  /// The link of a node, at the offset that this map's nodes have it.
  PtrInterface* next(PtrInterface const* node) const noexcept { return linkOf(node).ptr(); }
  /// The head of a bucket.
  PtrInterface* head(U32 bucket) const noexcept { return buckets_[bucket].ptr(); }
  /// Steps to the bucket that follows in the order of the walk, which starts at 0; false behind the
  /// last one.
  bool stepBucket(U32& bucket) const noexcept { return stepBucket(bucket, bucketCount()); }

 protected:
  using Link = Ptr<PtrInterface>;

  /// An empty map of `size` buckets, rounded up to a power of two.  The typed face sets the rest.
  explicit HashMapGeneric(U32 size);
  ~HashMapGeneric();

  U32 mask() const noexcept { return bucketCount() - 1; }
  bool isFull() const noexcept { return count_ >= bucketCount(); }
  /// Doubles the buckets and has `enter` put each node into them again, in the old order of the
  /// walk: it matters where keys aren't ordered among each other.
  template <class Enter>
  void grow(Enter const& enter) {
    U32 const oldCount = bucketCount();
    Link* const old = doubledBuckets();
    U32 bucket = 0;
    do {
      for (Link at = std::move(old[bucket]); at;) {
        Link rest = std::move(linkOf(at.ptr()));
        enter(std::move(at));
        at = std::move(rest);
      }
    } while (stepBucket(bucket, oldCount));
    freeBuckets(old, log2Buckets_ - 1u);
  }
  // An increment whose carry runs downwards from the top bit.
  static bool stepBucket(U32& bucket, U32 count) noexcept {
    U32 bit = count >> 1;
    for (; bucket & bit; bit >>= 1) bucket ^= bit;
    bucket |= bit;
    return bit != 0;
  }
  /// Puts a node into a chain, into the link that reached the node behind it.
  void linkIn(Link& place, Link&& node, Link& nodeLink) noexcept {
    nodeLink = std::move(place);
    place = std::move(node);
  }
  /// Takes a node out of the link that holds it.
  Link takeFrom(Link& place, Link& nodeLink) noexcept {
    Link node = std::move(place);
    place = std::move(nodeLink);
    --count_;
    ++changes_;
    return node;
  }
  void countNewMember() noexcept {
    ++count_;
    ++changes_;
  }

  U32 changes_ = 0;
  U32 count_ = 0;
  HashMapVTableGeneric const* keys_ = nullptr;
  U8 log2Buckets_ = 0;
  U8 nextOffset_ = 0;  // in words
  Link* buckets_;

 private:
  Link& linkOf(PtrInterface const* node) const noexcept {
    auto* const words = reinterpret_cast<void**>(const_cast<PtrInterface*>(node));
    return *reinterpret_cast<Link*>(words + nextOffset_);
  }
  void enter(Link&& node);
  Link* doubledBuckets();
  static void freeBuckets(Link* buckets, U32 log2) noexcept;
};

}  // namespace Mox
