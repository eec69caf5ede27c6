// The queue of an activity.
#include "Mox/Activity.h"

#include "Mox/Flagged.h"

namespace Mox {

void ActivitySm::enq(Ptr<PtrInterface::NotifieeConst> const& notifiee) {
  queue_.push_back(notifiee);
}

Ptr<PtrInterface::NotifieeConst> ActivitySm::next() {
  while (!queue_.empty()) {
    auto const first = std::move(queue_.front());
    queue_.pop_front();
    if (first->references() > 1) return first;
  }
  return nullptr;
}

bool ActivitySm::runOne() {
  auto const first = next();
  if (!first) return false;
  // What it tells may let go of the activity.
  Ptr<ActivitySm> const self = this;
  Ptr<ActivityConfig> const config = config_;
  try {
    first->handleNotification(config_);
  } catch (...) {
    first->onNotificationException();
  }
  return true;
}

U32 ActivitySm::run() {
  Ptr<ActivitySm> const self = this;
  U32 ran = 0;
  while (runOne()) ++ran;
  return ran;
}

void ActivitySm::yield() {
  if (yielding_) return;
  Ptr<ActivitySm> const self = this;
  Flagged const yielding(yielding_);
  for (U32 left = waiting(); left > 0 && runOne(); --left) {
  }
}

}  // namespace Mox
