// The engine of hash maps: buckets of chained nodes, and the order in which they are walked.
#pragma once

#include "Mox/HashMapVTable.h"

#include <utility>

namespace Mox {

/// A position among the buckets of a map, which steps in the order of the walk.  It is good as long
/// as the map has the buckets that it had.
///
/// A walk counts buckets with their bits reversed.  The eight bits that run fastest are the top
/// ones of a bucket's number: they are counted up in the top byte of a word, and reversed by a
/// table.  The others, of maps with more than 256 buckets, run on once in 256 steps.
class BucketWalk {
 public:
  using Link = Ptr<PtrInterface>;

  BucketWalk() = default;
  /// On the first of two to the power of `log2` buckets.
  BucketWalk(Link const* buckets, U32 log2) noexcept : base_(buckets) {
    if (log2 > 8) [[unlikely]] {
      rests_ = U32{1} << (log2 - 8);
      log2 = 8;
    }
    step_ = (0x80000000 >> log2) << 1;
  }
  /// On the one that is stored under `bucket`.
  BucketWalk(Link const* buckets, U32 log2, U32 bucket) noexcept;

  /// The bucket, as it is stored.
  U32 bucket() const noexcept { return reversedBytes[top_ >> 24] * rests_ + rest_; }
  /// Its first node; null where it is empty.
  PtrInterface* head() const noexcept { return base_[reversedBytes[top_ >> 24] * rests_].ptr(); }
  /// Steps to the next bucket; false behind the last one.
  bool step() noexcept {
    top_ += step_;
    if (top_ != 0) [[likely]]
      return true;
    if (rest_ == rests_ - 1) return false;
    U32 const next = restBehind(rest_, rests_);
    base_ += static_cast<S32>(next - rest_);
    rest_ = next;
    return true;
  }
  /// Steps to the next bucket that isn't empty, and returns its first node; null behind the last
  /// one.
  [[gnu::always_inline]] PtrInterface* nextHead() noexcept {
    PtrInterface* found;
    do {
      if (!step()) [[unlikely]]
        return nullptr;
      found = head();
    } while (__builtin_expect(!found, 0));
    return found;
  }

 private:
  // The rest that follows one of `rests` that isn't the last.
  static U32 restBehind(U32 rest, U32 rests) noexcept;

  Link const* base_ = nullptr;  // the first bucket of this rest
  U32 step_ = 0;                // of the top
  U32 top_ = 0;
  U32 rest_ = 0;
  U32 rests_ = 1;  // a power of two
};

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
  /// What a walk keeps to see whether it may go on by links alone: it equals `changes()` until the
  /// map changes, and never does while counts are atomic.
  U32 stamp() const noexcept { return changes_ ^ (U32{ReferenceWord::threadSafe} << 31); }
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
  PtrInterface* findNextBucket(int* bucket) const noexcept;
  /// The first node at or behind the place of `key`, whose bit-reversed hash is `hash`, and its
  /// bucket; null at the end.
  PtrInterface* startAtHash(void const* key, U32 hash, int* bucket) const;

  /// A node, null at the end, and a walk on its bucket.
  struct Stand {
    PtrInterface* node;
    BucketWalk walk;
  };
  /// What `findNextG` and `startAtHash` find.
  Stand standBehind(PtrInterface const* node) const;
  Stand standAtHash(void const* key, U32 hash) const;

  /// Makes the bucket count `buckets`, rounded up to a power of two.  The map must be empty.
  void setSize0(U32 buckets);

  /// The link of a node, at the offset that this map's nodes have it.
  PtrInterface* next(PtrInterface const* node) const noexcept { return linkOf(node).ptr(); }
  /// The head of a bucket.
  PtrInterface* head(U32 bucket) const noexcept { return buckets_[bucket].ptr(); }
  /// A walk over the buckets.
  BucketWalk walk() const noexcept { return {buckets_, log2Buckets_}; }
  /// The same from a bucket on, as it is stored.
  BucketWalk walkFrom(U32 bucket) const noexcept { return {buckets_, log2Buckets_, bucket}; }

 protected:
  using Link = BucketWalk::Link;

  /// An empty map of `size` buckets, rounded up to a power of two.  The typed face sets the rest.
  explicit HashMapGeneric(U32 size);
  ~HashMapGeneric();

  U32 mask() const noexcept { return bucketCount() - 1; }
  bool isFull() const noexcept { return count_ >= bucketCount(); }
  /// Doubles the buckets and has `enter` put each node into them again, in the old order of the
  /// walk: it matters where keys aren't ordered among each other.
  template <class Enter>
  void grow(Enter const& enter) {
    BucketWalk walk = this->walk();
    Link* const old = doubledBuckets();
    do {
      for (Link at = std::move(old[walk.bucket()]); at;) {
        Link rest = std::move(linkOf(at.ptr()));
        enter(std::move(at));
        at = std::move(rest);
      }
    } while (walk.step());
    freeBuckets(old, log2Buckets_ - 1u);
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
