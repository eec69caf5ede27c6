// Activities: what runs notifiees later, in batches, instead of at once.
#pragma once

#include "Mox/Name.h"
#include "Mox/Notifiee.h"

#include <deque>

namespace Mox {

/// The queue of one activity: notifiees that have something to tell, in the order in which they
/// came.  It is run by the owner's loop, on the thread that the notifiees belong to.
class ActivitySm : public PtrInterface {
 public:
  explicit ActivitySm(ActivityConfig* config) : config_(config) {}
  /// The activity has gone: who waits is run with null in its place.
  void configGone() noexcept { config_ = nullptr; }

  /// Enters a notifiee behind the others; it is held until it has run.
  void enq(Ptr<PtrInterface::NotifieeConst> const& notifiee);
  /// Runs the first one's `handleNotification`; those that nobody else holds any more are dropped
  /// unrun.  False, and nothing run, with none left.  What it raises ends in its
  /// `onNotificationException()`.
  bool runOne();
  /// Runs until none is left, also of those that come meanwhile, and tells how many ran.
  U32 run();
  /// Runs those that wait now, for one that is in the middle of its own run.  Does nothing inside
  /// of another yield: the depth of calls stays bounded.
  void yield();
  /// Notifiees that wait.
  U32 waiting() const noexcept { return static_cast<U32>(queue_.size()); }

 private:
  // The first one that somebody else holds, taken out; null where there is none.
  Ptr<PtrInterface::NotifieeConst> next();

  ActivityConfig* config_;  // owns this, or has gone and left null
  std::deque<Ptr<PtrInterface::NotifieeConst>> queue_;
  bool yielding_ = false;
};

/// One activity: its name, and its queue.  An interface that waits in the queue holds the activity:
/// let it run out, or take the activity from its interfaces, before the last other reference goes.
class ActivityConfig : public PtrInterface {
 public:
  explicit ActivityConfig(Name const& name) : name_(name), activitySm_(new ActivitySm(this)) {}
  ~ActivityConfig() override { activitySm_->configGone(); }

  Name const& name() const noexcept { return name_; }
  ActivitySm* activitySm() const noexcept { return activitySm_.ptr(); }

 private:
  Name name_;
  Ptr<ActivitySm> activitySm_;
};

}  // namespace Mox
