// The engine of hash maps: buckets of chained nodes, and the order in which they are walked.
#pragma once

#include "Mox/HashMapVTable.h"

#include <utility>

namespace Mox {

/// A position among the buckets of a map, which steps in the order of the walk.  It is good as long
/// as the map has the buckets that it had.
class BucketWalk {
 public:
  using Link = Ptr<PtrInterface>;

  BucketWalk() = default;
  /// On `bucket` of two to the power of `log2` buckets.
  BucketWalk(Link const* buckets, U32 log2, U32 bucket = 0) noexcept
      : buckets_(buckets), step_((0x80000000 >> log2) << 1), place_(bitReverse(bucket)) {}

  /// The bucket, as it is stored.
  U32 bucket() const noexcept {
    // Up to 256 buckets, which most maps have, only the top byte is counted.
    if (place_ & 0xFFFFFF) [[unlikely]]
      return bitReverse(place_);
    return reversedBytes[place_ >> 24];
  }
  /// Its first node; null where it is empty.
  PtrInterface* head() const noexcept { return buckets_[bucket()].ptr(); }
  /// Steps to the next bucket; false behind the last one.
  bool step() noexcept { return (place_ += step_) != 0; }
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
  Link const* buckets_ = nullptr;
  // What the walk counts up is the bucket's number with its bits reversed: its carry runs out of
  // the word behind the last bucket.
  U32 step_ = 0;
  U32 place_ = 0;
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
  /// What a walk keeps to see whether the map has changed.  While counts are plain it equals
  /// `changes()`; while they are atomic it is half a round of the counter away.
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
  /// The step of a walk that stands on `node` and keeps `stamp`: by links if the map hasn't
  /// changed, else what `findNextG` finds.
  Stand standBehind(PtrInterface const* node, U32 stamp) const;
  /// What `startAtHash` finds.
  Stand standAtHash(void const* key, U32 hash) const;

  /// Makes the bucket count `buckets`, rounded up to a power of two.  The map must be empty.
  void setSize0(U32 buckets);

  /// The link of a node, at the offset that this map's nodes have it.
  PtrInterface* next(PtrInterface const* node) const noexcept { return linkOf(node).ptr(); }
  /// The head of a bucket.
  PtrInterface* head(U32 bucket) const noexcept { return buckets_[bucket].ptr(); }
  /// A walk over the buckets that starts on one, as it is stored; on the first if it isn't told.
  BucketWalk walkFrom(U32 bucket = 0) const noexcept { return {buckets_, log2Buckets_, bucket}; }

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
    BucketWalk walk = walkFrom();
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
