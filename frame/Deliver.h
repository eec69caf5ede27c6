// Delivery of one change to the notifiees of an entity.
#pragma once

#include "Mox/Exception.h"
#include "Mox/ListRaw.h"

#include <array>
#include <vector>

namespace frame {

using Notifiee = Mox::PtrInterface::NotifieeConst;

/// The members of a notifiee list as they stood, each held by a reference.  Up to eight need no
/// allocation.
class Snapshot {
 public:
  explicit Snapshot(Mox::BaseCollection const& list) : size_(list.count()) {
    if (size_ > inPlace_.size()) [[unlikely]]
      makeRoom();
    Notifiee** slot = members_;
    for (Notifiee* member = list.head(); member; member = Mox::BaseCollection::next(member)) {
      member->referencesInc();
      *slot++ = member;
    }
  }
  ~Snapshot() {
    while (index_ < size_) release();
  }
  Snapshot(Snapshot const&) = delete;
  Snapshot& operator=(Snapshot const&) = delete;

  bool atEnd() const noexcept { return index_ == size_; }
  Notifiee& current() const noexcept { return *members_[index_]; }
  /// Drops the current member and steps to the next one that somebody beside this snapshot holds.
  void advance() {
    release();
    while (!atEnd() && current().references() == 1) release();
  }

 private:
  void makeRoom();
  void release() { members_[index_++]->referencesDec(); }

  U32 size_;
  U32 index_ = 0;
  std::array<Notifiee*, 8> inPlace_;
  Notifiee** members_ = inPlace_.data();
  std::vector<Notifiee*> overflow_;
};

/// Tells `member` that its hook for attribute `id` raised the exception that is in flight.
void hookFailed(Notifiee& member, Mox::AttributeId id);

/// A hook of some observer class, seen as one of the common base.
template <class... Key>
using Hook = void (Notifiee::*)(Key...);

/// Calls `hook` on each member of a snapshot of `list`, in order.
///
/// Members that aren't of `level` are passed over (null: every member is of the right class); so
/// are, but for the first, members that only the snapshot still holds.  A hook that throws is
/// reported to its own notifiee as `onNotificationException(id)` and the others still run; what
/// that throws ends the delivery and passes on.
template <class... Key>
[[gnu::noinline]] void deliver(Mox::BaseCollection const& list, Mox::AttributeId id,
                               Mox::NotifieeLevel const* level, Hook<Key...> hook,
                               Key const&... key) {
  for (Snapshot members(list); !members.atEnd(); members.advance()) {
    Notifiee& member = members.current();
    if (level && !member.moxIsOf(level)) continue;
    Mox::Expect const nothing(0);
    try {
      (member.*hook)(key...);
    } catch (...) {
      hookFailed(member, id);
    }
  }
}

extern template void deliver<>(Mox::BaseCollection const&, Mox::AttributeId,
                               Mox::NotifieeLevel const*, Hook<>);

}  // namespace frame
