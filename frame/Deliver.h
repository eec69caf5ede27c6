// Delivery of one change to the notifiees of an entity.
#pragma once

#include "Mox/Exception.h"
#include "Mox/ListRaw.h"

#include <array>
#include <cstddef>

namespace frame {

using Notifiee = Mox::PtrInterface::NotifieeConst;

/// The members of a notifiee list as they stood, each held by a reference until it is dropped.
class Snapshot {
 public:
  /// Where the caller lets the members stand; more of them than it holds need an allocation.
  /// An object of its own, so that the snapshot's parts can be kept in registers.
  using Room = std::array<Notifiee*, 16>;
  /// Where a member stands in the snapshot.
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
  /// Drops the member at `at`.  A member that ends does so outside of the innermost `Expect`, which
  /// is the delivery's: its destructor is no hook.
  static void drop(Place at) {
    if ((*at)->referencesDecIsLast()) [[unlikely]]
      dropLast(**at);
  }
  /// Tells the member at `at` that its hook for attribute `id` raised the exception that is in
  /// flight.  Where that raises another, the members from `at` on are dropped with the snapshot.
  void hookFailed(Place at, Mox::AttributeId id) {
    left_ = at;
    report(**at, id);
    left_ = nullptr;
  }

 private:
  // Without `this`: a snapshot that nobody points at can be kept in registers.
  static void report(Notifiee& member, Mox::AttributeId id);
  static void dropLast(Notifiee const& member);

  Notifiee** first_;
  Notifiee** end_;
  // Where the walk ends by an exception: otherwise it alone knows its place, in a register.
  Place left_ = nullptr;
  bool overflows_;
};

/// A hook of some observer class, seen as one of the common base.
template <class... Key>
using Hook = void (Notifiee::*)(Key...);

/// The observer class whose hook is called, where the list is a base's and holds others too.
using OneLevel = Mox::NotifieeLevel const*;
/// No such class: all members of the list have the hook.
using EveryLevel = std::nullptr_t;

inline bool isOf(Notifiee const&, EveryLevel) { return true; }
inline bool isOf(Notifiee const& member, OneLevel level) { return member.moxIsOf(level); }

/// Calls `hook` on each member of a snapshot of `list`, in order, whether they hear or not.
///
/// Members that aren't of `level` are passed over (`EveryLevel`: all are of the right class); so
/// are, but for the first, members that only the snapshot still holds.  A hook that throws is
/// reported to its own notifiee as `onNotificationException(id)` and the others still run; what
/// that throws ends the delivery and passes on.
template <class Level, class... Key>
[[gnu::always_inline]] inline void deliverToAll(Mox::BaseCollection const& list,
                                                Mox::AttributeId id, Level level, Hook<Key...> hook,
                                                Key const&... key) {
  Snapshot::Room room;
  Snapshot members(list, room);
  // One scope around all hooks: between two of them only the end of a member could see it.
  Mox::Expect const nothing(0);
  Snapshot::Place const end = members.end();
  Snapshot::Place at = members.begin();
  while (at != end) {
    Notifiee& member = **at;
    if (isOf(member, level)) {
      try {
        (member.*hook)(key...);
      } catch (...) {
        members.hookFailed(at, id);
      }
    }
    do {
      Snapshot::drop(at++);
    } while (at != end && (*at)->references() == 1);
  }
}

/// The same where anybody in the list hears, and nothing otherwise.
template <class Level, class... Key>
[[gnu::noinline]] void deliver(Mox::BaseCollection const& list, Mox::AttributeId id, Level level,
                               Hook<Key...> hook, Key const&... key) {
  if (list.anyHears()) deliverToAll(list, id, level, hook, key...);
}

extern template void deliver<EveryLevel>(Mox::BaseCollection const&, Mox::AttributeId, EveryLevel,
                                         Hook<>);
extern template void deliver<OneLevel>(Mox::BaseCollection const&, Mox::AttributeId, OneLevel,
                                       Hook<>);

}  // namespace frame
