// The walk over a snapshot, which no later change of the collection reaches.
#pragma once

#include "Mox/Ptr.h"

#include <cstddef>
#include <type_traits>
#include <vector>

namespace Mox {

/// The walk of a collection's own that leaves its members uncounted: a list has an iterator for it,
/// a map is a range.
template <class C>
concept ListCollection = requires(C& collection) {
  typename C::LrIterator;
};

template <class C>
struct SnapshotWalk {
  using Member = std::remove_reference_t<decltype(*std::declval<C&>().begin())>;
  template <class Visit>
  static void each(C& collection, Visit const& visit) {
    for (auto at = collection.begin(); at != collection.end(); ++at) visit(&*at);
  }
};
template <ListCollection C>
struct SnapshotWalk<C> {
  using Member =
      std::remove_pointer_t<decltype(std::declval<typename C::LrIterator const&>().ptr())>;
  template <class Visit>
  static void each(C& collection, Visit const& visit) {
    for (typename C::LrIterator at(collection); at; ++at) visit(at.ptr());
  }
};

/// Walks the members that a collection had at construction, once, in their order.  Each is held
/// until the snapshot goes.  One allocation, none for an empty collection.
template <class C>
class SnapshotIterator {
 public:
  using Member = typename SnapshotWalk<C>::Member;

  explicit SnapshotIterator(C* collection) {
    members_.reserve(collection->count());
    SnapshotWalk<C>::each(*collection, [this](Member* member) { members_.emplace_back(member); });
  }

  explicit operator bool() const noexcept { return index_ < members_.size(); }
  /// The current member; not at the end.
  Member* ptr() const noexcept { return members_[index_].ptr(); }
  Member* operator->() const noexcept { return ptr(); }
  Member& operator*() const noexcept { return *ptr(); }
  SnapshotIterator& operator++() noexcept {
    ++index_;
    return *this;
  }

 private:
  std::vector<Ptr<Member>> members_;
  std::size_t index_ = 0;
};

}  // namespace Mox
