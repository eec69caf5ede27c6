// Observers of counted objects.
#pragma once

#include "Mox/AttributeId.h"
#include "Mox/Mox_BitSet.h"
#include "Mox/Name.h"
#include "Mox/PtrInterface.h"

namespace Mox {

class ActivityConfig;
class ActivitySm;
class BaseCollection;

/// Says which class of observer a notifiee is, without a run-time cast: the constructor of each
/// `X::NotifieeConst` leaves its own level's address in the notifiee, the last one wins.
struct NotifieeLevel {
  /// The level of the class that this one derives from; null for the first.
  NotifieeLevel const* base;
};

/// An observer.  It holds its notifier (unless it is a weak one) and, once registered, stands in
/// the notifier's list.  Notifiees are counted objects: hold one by a `Ptr` for as long as it shall
/// hear, for one that nobody but a running delivery holds is passed over.
///
/// A weak notifiee must let go of its notifier (`notifierIs(null)` or destruction) in
/// `onZeroReferences()` at the latest, which only a registered one is told: the notifier doesn't
/// clear its notifiees' pointers.
class PtrInterface::NotifieeConst : public PtrInterface {
 public:
  NotifieeConst() = default;
  ~NotifieeConst() override;

  /// The observer proper, where this one only forwards to it; otherwise this one.
  virtual Ptr<NotifieeConst const> moxReactor() const;
  /// The same, uncounted.
  virtual NotifieeConst* moxRawReactor() const;
  /// True for an adapter of the attribute log, and for the notifiee that forwards to one.
  virtual bool isStreamAdapter() const;
  /// Links this notifiee into its notifier's list, or unlinks it.
  virtual void isRegisteredNotifieeIs(bool registered) const;
  virtual void mox_bitSetIs(Mox_BitSet bits);
  /// The notifier's name; the empty name without a notifier.
  virtual Name name() const;
  /// Observes `notifier` from now on, or nothing.
  virtual void notifierIs(Ptr<PtrInterface const> const& notifier);

  // Batched delivery, for observers that an activity serves.
  virtual void handleNotification(ActivityConfig* activity);
  virtual void handleDefault(ActivityConfig* activity, AttributeId id, bool collection);
  virtual void onAttribute(AttributeId id);
  virtual void onNotification();
  virtual void onCollectionNotification(String8 key);

  // Told when a hook of this notifiee raised an exception; the exception is still in flight.  The
  // form with an id is called by the delivery; by default it goes through the others, which report
  // the exception in the trace "MoxNotification" at level 0.
  virtual void onNotificationException();
  virtual void onNotificationException(AttributeId id);
  virtual void handleNotificationException(AttributeId id);
  virtual void handleNotificationException();

  /// The notifier's last reference has gone; who takes one now keeps it alive.  Only registered
  /// notifiees are told, and not those that register meanwhile.  An exception out of the report of
  /// a failure ends here, in the trace "MoxNotification": pointers let go where none can pass.
  virtual void onZeroReferences();

  virtual ActivityConfig* activityPtr() const;
  virtual ActivityConfig* moxFwkActivity();
  virtual ActivityConfig const* moxFwkActivity() const;
  virtual ActivitySm* actsm();

  PtrInterface const* moxNotifier() const noexcept { return notifier_; }
  bool isWeakReference() const noexcept { return weak_; }
  /// A weak observer owns no reference to its notifier.  Takes or drops one on a change.
  void isWeakReferenceIs(bool weak);
  bool isRegisteredNotifiee() const noexcept { return registered_; }
  Mox_BitSet mox_bitSet() const noexcept { return bits_; }

  /// True when this observer is of `level` or derives from it.
  bool moxIsOf(NotifieeLevel const* level) const noexcept {
    if (level_ == level) [[likely]]
      return true;
    return derivesFrom(level);
  }

  /// False for one whose hooks would do nothing, such as the adapter of an interface that nobody
  /// watches: an entity with none but such in its list passes its changes over.  They are told of
  /// its last reference all the same.
  bool moxHears() const noexcept { return hears_; }
  void moxHearsIs(bool hears) noexcept { hears_ = hears; }

  /// For `isRegisteredNotifieeIs` of the classes that know a list: the flag alone.
  void moxRegisteredIs(bool registered) const noexcept { registered_ = registered; }

 protected:
  /// Where the notifier is kept.
  PtrInterface const* const& moxNotifierWord() const noexcept { return notifier_; }
  void moxLevelIs(NotifieeLevel const* level) noexcept { level_ = level; }

 private:
  friend class BaseCollection;

  // Out of line, for most observers are of the very level that is asked for.
  bool derivesFrom(NotifieeLevel const* level) const noexcept;

  PtrInterface const* notifier_ = nullptr;
  mutable NotifieeConst* next_ = nullptr;
  NotifieeLevel const* level_ = nullptr;
  Mox_BitSet bits_;
  bool weak_ = false;
  mutable bool registered_ = false;
  bool hears_ = true;
};

/// An observer that may write to what it observes.
class PtrInterface::Notifiee : public PtrInterface::NotifieeConst {};

}  // namespace Mox
