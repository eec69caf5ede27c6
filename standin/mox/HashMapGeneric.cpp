// Insertion, removal, growth and the change-proof walk of hash maps.
#include "Mox/HashMapGeneric.h"

#include "standin/mox/FreeList.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace Mox {

namespace {

using Link = Ptr<PtrInterface>;

Link* newBuckets(U32 log2) {
  std::size_t const count = std::size_t{1} << log2;
  auto* const buckets = static_cast<Link*>(FreeList::take(count * sizeof(Link)));
  std::uninitialized_value_construct_n(buckets, count);
  return buckets;
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

// The links in them have moved out.
void HashMapGeneric::freeBuckets(Link* buckets, U32 log2) noexcept {
  FreeList::give(buckets, (std::size_t{1} << log2) * sizeof(Link));
}

Link* HashMapGeneric::doubledBuckets() {
  Link* const old = std::exchange(buckets_, newBuckets(log2Buckets_ + 1u));
  ++log2Buckets_;
  return old;
}

void HashMapGeneric::enter(Link&& node) {
  Link* place = &buckets_[bitReverse(keys_->hash(node.ptr())) & mask()];
  while (*place && !keys_->keyLessThan(nullptr, place->ptr(), node.ptr()))
    place = &linkOf(place->ptr());
  linkIn(*place, std::move(node), linkOf(node.ptr()));
}

void HashMapGeneric::newMemberG(Link const& node, void const*) {
  if (isFull()) grow([this](Link&& again) { enter(std::move(again)); });
  enter(Link(node));
  countNewMember();
}

void HashMapGeneric::deleteMember(Link const& node) {
  if (!node) return;
  Link* place = &buckets_[bitReverse(keys_->hash(node.ptr())) & mask()];
  while (*place && *place != node) place = &linkOf(place->ptr());
  // The node goes last of all: its end may look at this map.
  if (*place) takeFrom(*place, linkOf(node.ptr()));
}

void HashMapGeneric::emptyAllBuckets() {
  for (U32 bucket = 0; count_ && bucket < bucketCount(); ++bucket)
    while (PtrInterface* const node = head(bucket)) takeFrom(buckets_[bucket], linkOf(node));
}

PtrInterface* HashMapGeneric::findNextBucket(int* bucket) const noexcept {
  if (*bucket < 0) {
    *bucket = 0;
    if (PtrInterface* const first = head(0)) return first;
  }
  BucketWalk walk = walkFrom(static_cast<U32>(*bucket));
  PtrInterface* const found = walk.nextHead();
  if (found) *bucket = static_cast<int>(walk.bucket());
  return found;
}

PtrInterface* HashMapGeneric::findNextG(PtrInterface const* node, int* bucket) const {
  if (!node) {
    *bucket = -1;
    return findNextBucket(bucket);
  }
  *bucket = static_cast<int>(bitReverse(keys_->hash(node)) & mask());
  PtrInterface* const first = head(static_cast<U32>(*bucket));
  // The order is asked only where the node is gone: two keys may each be less than the other.
  PtrInterface* at = first;
  while (at && at != node) at = next(at);
  if (at)
    at = next(at);
  else
    for (at = first; at && !keys_->keyLessThan(nullptr, at, node);) at = next(at);
  return at ? at : findNextBucket(bucket);
}

PtrInterface* HashMapGeneric::startAtHash(void const* key, U32 hash, int* bucket) const {
  *bucket = static_cast<int>(bitReverse(hash) & mask());
  for (PtrInterface* at = head(static_cast<U32>(*bucket)); at; at = next(at))
    if (keys_->keyEquals(key, at) || keys_->keyLessThan(key, at, nullptr)) return at;
  return findNextBucket(bucket);
}

HashMapGeneric::Stand HashMapGeneric::standBehind(PtrInterface const* node, U32 stamp) const {
  if (stamp == this->stamp()) {
    BucketWalk walk = walkFrom(bitReverse(keys_->hash(node)) & mask());
    PtrInterface* const linked = next(node);
    return {linked ? linked : walk.nextHead(), walk};
  }
  int bucket = -1;
  PtrInterface* const found = findNextG(node, &bucket);
  return {found, walkFrom(static_cast<U32>(bucket))};
}

HashMapGeneric::Stand HashMapGeneric::standAtHash(void const* key, U32 hash) const {
  int bucket = -1;
  PtrInterface* const found = startAtHash(key, hash, &bucket);
  return {found, walkFrom(static_cast<U32>(bucket))};
}

}  // namespace Mox
