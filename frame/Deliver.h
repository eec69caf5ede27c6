// Delivery of one change to the notifiees of an entity.
#pragma once

#include "Mox/Exception.h"
#include "Mox/ListRaw.h"

#include <array>

namespace frame {

using Notifiee = Mox::PtrInterface::NotifieeConst;

/// The members of a notifiee list as they stood, each held by a reference.
class Snapshot {
 public:
  /// Where the caller lets the members stand; more of them than it holds need an allocation.
  /// An object of its own, so that the snapshot's positions can be kept in registers.
  using Room = std::array<Notifiee*, 16>;

  Snapshot(Mox::BaseCollection const& list, Room& room)
      : members_(room.data()), end_(members_), overflows_(list.count() > room.size()) {
    if (overflows_) [[unlikely]]
      end_ = members_ = new Notifiee*[list.count()];
    at_ = members_;
    for (Notifiee* member = list.head(); member; member = Mox::BaseCollection::next(member)) {
      member->referencesInc();
      *end_++ = member;
    }
  }
  ~Snapshot() {
    while (!atEnd()) release();
    if (overflows_) [[unlikely]]
      delete[] members_;
  }
  Snapshot(Snapshot const&) = delete;
  Snapshot& operator=(Snapshot const&) = delete;

  bool atEnd() const noexcept { return at_ == end_; }
  Notifiee& current() const noexcept { return **at_; }
  /// Drops the current member and steps to the next one that somebody beside this snapshot holds.
  void advance() {
    release();
    while (!atEnd() && current().references() == 1) release();
  }

 private:
  void release() { (*at_++)->referencesDec(); }

  Notifiee** members_;
  Notifiee** at_;
  Notifiee** end_;
  bool overflows_;
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
  Snapshot::Room room;
  Snapshot members(list, room);
  Mox::Expect const nothing(0);
  for (nothing.close(); !members.atEnd(); members.advance()) {
    Notifiee& member = members.current();
    if (level && !member.moxIsOf(level)) continue;
    nothing.open();
    try {
      (member.*hook)(key...);
    } catch (...) {
      hookFailed(member, id);
    }
    nothing.close();
  }
}

extern template void deliver<>(Mox::BaseCollection const&, Mox::AttributeId,
                               Mox::NotifieeLevel const*, Hook<>);

}  // namespace frame
