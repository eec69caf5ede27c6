// The engine of hash maps: buckets of chained nodes, and the order in which they are walked.
#pragma once

#include <bit>

#include "Mox/HashMapVTable.h"

namespace Mox {

/// Chains of counted nodes in a power of two of buckets.
///
/// The order of a walk is behaviour: buckets in ascending order of the top bits of the bit-reversed
/// hash, and each chain in ascending order of keys.  So it depends on the bucket count, which
/// doubles when an insertion would make the elements outnumber the buckets, and never shrinks.
///
/// The top bits of a reversed word are its low bits from behind.  Buckets are therefore stored under
/// the low bits of the hash as it is, and only a walk steps in reversed order.  An `int* bucket` in
/// the operations below is such a stored index; -1 stands ahead of all buckets.
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
    U32 at = *bucket < 0 ? 0 : bucketAfter(static_cast<U32>(*bucket));
    while (at < bucketCount() && !buckets_[at]) at = bucketAfter(at);
    if (at == bucketCount()) return nullptr;
    *bucket = static_cast<int>(at);
    return buckets_[at].ptr();
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
  /// The bucket that follows in the order of the walk; `bucketCount()` behind the last one.
  U32 bucketAfter(U32 bucket) const noexcept {
    // An increment whose carry runs downwards from the top bit.
    U32 bit = bucketCount() >> 1;
    for (; bucket & bit; bit >>= 1) bucket ^= bit;
    return bit ? bucket | bit : bucketCount();
  }

 protected:
  /// An empty map of `size` buckets, rounded up to a power of two.  The typed face sets the rest.
  explicit HashMapGeneric(U32 size);
  ~HashMapGeneric();

  U32 mask() const noexcept { return bucketCount() - 1; }
  void grow();
  void linkIn(Ptr<PtrInterface>& place, Ptr<PtrInterface> const& node) noexcept {
    linkOf(node.ptr()) = std::move(place);
    place = node;
    ++count_;
    ++changes_;
  }
  void unlink(U32 hash, PtrInterface const* node);

  U32 changes_ = 0;
  U32 count_ = 0;
  HashMapVTableGeneric const* keys_ = nullptr;
  U8 log2Buckets_ = 0;
  U8 nextOffset_ = 0;  // in words
  Ptr<PtrInterface>* buckets_;

 private:
  Ptr<PtrInterface>& linkOf(PtrInterface const* node) const noexcept {
    auto* const words = reinterpret_cast<void**>(const_cast<PtrInterface*>(node));
    return *reinterpret_cast<Ptr<PtrInterface>*>(words + nextOffset_);
  }
  void enter(Ptr<PtrInterface>&& node);
};

}  // namespace Mox
