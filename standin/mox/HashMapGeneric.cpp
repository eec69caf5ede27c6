// Insertion, removal, growth and the change-proof walk of hash maps.
#include "Mox/HashMapGeneric.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "standin/mox/FreeList.h"

namespace Mox {

namespace {

using Link = Ptr<PtrInterface>;

Link* newBuckets(U32 log2) {
  std::size_t const count = std::size_t{1} << log2;
  auto* const buckets = static_cast<Link*>(FreeList::take(count * sizeof(Link)));
  std::uninitialized_value_construct_n(buckets, count);
  return buckets;
}

// Links have moved out of the buckets before they are freed.
void freeBuckets(Link* buckets, U32 log2) noexcept {
  FreeList::give(buckets, (std::size_t{1} << log2) * sizeof(Link));
}

U8 log2For(U32 size) noexcept {
  return static_cast<U8>(std::bit_width(std::max(size, U32{1}) - 1));
}

}  // namespace

HashMapGeneric::HashMapGeneric(U32 size)
    : log2Buckets_(log2For(size)), buckets_(newBuckets(log2Buckets_)) {}

HashMapGeneric::~HashMapGeneric() {
  emptyAllBuckets();
  freeBuckets(buckets_, log2Buckets_);
}

void HashMapGeneric::setSize0(U32 buckets) {
  U8 const log2 = log2For(buckets);
  if (log2 == log2Buckets_) return;
  Link* const fresh = newBuckets(log2);
  freeBuckets(std::exchange(buckets_, fresh), log2Buckets_);
  log2Buckets_ = log2;
}

void HashMapGeneric::enter(Link&& node) {
  Link* place = &buckets_[bitReverse(keys_->hash(node.ptr())) & mask()];
  while (*place && !keys_->keyLessThan(nullptr, place->ptr(), node.ptr()))
    place = &linkOf(place->ptr());
  linkOf(node.ptr()) = std::move(*place);
  *place = std::move(node);
}

void HashMapGeneric::newMemberG(Link const& node, void const*) {
  if (count_ >= bucketCount()) grow();
  enter(Link(node));
  ++count_;
  ++changes_;
}

void HashMapGeneric::grow() {
  U32 const oldLog2 = log2Buckets_;
  Link* const old = buckets_;
  buckets_ = newBuckets(oldLog2 + 1);
  ++log2Buckets_;
  // In the old order of the walk, for keys that aren't ordered among each other.
  for (U32 logical = 0; logical < U32{1} << oldLog2; ++logical) {
    U32 const bucket = oldLog2 ? bitReverse(logical) >> (32 - oldLog2) : 0;
    for (Link at = std::move(old[bucket]); at;) {
      Link rest = std::move(linkOf(at.ptr()));
      enter(std::move(at));
      at = std::move(rest);
    }
  }
  freeBuckets(old, oldLog2);
}

void HashMapGeneric::deleteMember(Link const& node) {
  if (node) unlink(bitReverse(keys_->hash(node.ptr())), node.ptr());
}

void HashMapGeneric::unlink(U32 hash, PtrInterface const* node) {
  Link* place = &buckets_[hash & mask()];
  while (*place && place->ptr() != node) place = &linkOf(place->ptr());
  if (!*place) return;
  // The node goes last of all: its end may look at this map.
  Link const gone = std::move(*place);
  *place = std::move(linkOf(gone.ptr()));
  --count_;
  ++changes_;
}

void HashMapGeneric::emptyAllBuckets() {
  for (U32 bucket = 0; count_ && bucket < bucketCount(); ++bucket) {
    while (Link const node = std::move(buckets_[bucket])) {
      buckets_[bucket] = std::move(linkOf(node.ptr()));
      --count_;
      ++changes_;
    }
  }
}

PtrInterface* HashMapGeneric::findNextG(PtrInterface const* node, int* bucket) const {
  if (!node) {
    *bucket = -1;
    return findNextBucket(bucket);
  }
  *bucket = static_cast<int>(bitReverse(keys_->hash(node)) & mask());
  for (PtrInterface* at = head(static_cast<U32>(*bucket)); at; at = next(at)) {
    if (at == node) {
      if (PtrInterface* const after = next(at)) return after;
      break;
    }
    if (keys_->keyLessThan(nullptr, at, node)) return at;
  }
  return findNextBucket(bucket);
}

PtrInterface* HashMapGeneric::startAtHash(void const* key, U32 hash, int* bucket) const {
  *bucket = static_cast<int>(bitReverse(hash) & mask());
  for (PtrInterface* at = head(static_cast<U32>(*bucket)); at; at = next(at))
    if (keys_->keyEquals(key, at) || keys_->keyLessThan(key, at, nullptr)) return at;
  return findNextBucket(bucket);
}

}  // namespace Mox
