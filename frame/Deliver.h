// Delivery of one change to the notifiees of an entity.
#pragma once

#include "Mox/Exception.h"
#include "Mox/ListRaw.h"

#include <array>
#include <concepts>
#include <cstddef>

namespace frame {

using Notifiee = Mox::PtrInterface::NotifieeConst;

/// The members of a notifiee list as they stood, each held by a reference until it is dropped.
class Snapshot {
 public:
  /// Where the caller lets the members stand; more of them than it holds need an allocation.
  using Room = std::array<Notifiee*, 16>;
  using Place = Notifiee* const*;

  Snapshot(Mox::BaseCollection const& list, Room& room)
      : first_(list.count() > room.size() ? new Notifiee*[list.count()] : room.data()),
        overflows_(first_ != room.data()) {
    Notifiee** place = first_;
    for (Notifiee* member = list.head(); member; member = Mox::BaseCollection::next(member)) {
      member->referencesInc();
      *place++ = member;
    }
    end_ = place;
  }
  ~Snapshot() {
    if (left_) [[unlikely]]
      for (Place at = left_; at != end_; ++at) (*at)->referencesDec();
    if (overflows_) [[unlikely]]
      delete[] first_;
  }
  Snapshot(Snapshot const&) = delete;
  Snapshot& operator=(Snapshot const&) = delete;

  Place begin() const noexcept { return first_; }
  Place end() const noexcept { return end_; }
  /// Drops the member at `at`.
  static void drop(Place at) {
    if ((*at)->referencesDecIsLast()) [[unlikely]]
      dropLast(**at);
  }
  /// Says that the walk may end here by an exception: the members from `at` on are then dropped
  /// with the snapshot.
  // Otherwise the walk alone knows its place, and can keep it in a register.
  void leftAt(Place at) noexcept { left_ = at; }

 private:
  // The delivery is over for a member that ends, and so is what it expected.
  static void dropLast(Notifiee const& member);

  Notifiee** first_;
  Notifiee** end_;
  Place left_ = nullptr;
  bool overflows_;
};

/// Tells `member` that its hook for attribute `id` raised the exception that is in flight.
void hookFailed(Notifiee& member, Mox::AttributeId id);

/// A hook of some observer class, seen as one of the common base.
template <class... Key>
using Hook = void (Notifiee::*)(Key...);

/// The observer class whose hook is called, where the list is a base's and holds others too.
using OneLevel = Mox::NotifieeLevel const*;
/// No such class: all members of the list have the hook.
using EveryLevel = std::nullptr_t;

inline bool isOf(Notifiee const&, EveryLevel) { return true; }
inline bool isOf(Notifiee const& member, OneLevel level) { return member.moxIsOf(level); }

/// Calls `hook` on each member of a snapshot of `list`, in order.
///
/// Members that aren't of `level` are passed over (`EveryLevel`: all are of the right class); so
/// are, but for the first, members that only the snapshot still holds.  A hook that throws is
/// reported to its own notifiee as `onNotificationException(id)` and the others still run; what
/// that throws ends the delivery and passes on.
template <class Level, class... Key>
[[gnu::noinline]] void deliver(Mox::BaseCollection const& list, Mox::AttributeId id, Level level,
                               Hook<Key...> hook, Key const&... key) {
  Snapshot::Room room;
  Snapshot members(list, room);
  Mox::Expect const nothing(0);
  Snapshot::Place const end = members.end();
  Snapshot::Place at = members.begin();
  while (at != end) {
    Notifiee& member = **at;
    if (isOf(member, level)) {
      try {
        (member.*hook)(key...);
      } catch (...) {
        members.leftAt(at);
        hookFailed(member, id);
        members.leftAt(nullptr);
      }
    }
    do {
      Snapshot::drop(at++);
    } while (at != end && (*at)->references() == 1);
  }
}

extern template void deliver<EveryLevel>(Mox::BaseCollection const&, Mox::AttributeId, EveryLevel,
                                         Hook<>);
extern template void deliver<OneLevel>(Mox::BaseCollection const&, Mox::AttributeId, OneLevel,
                                       Hook<>);

}  // namespace frame
