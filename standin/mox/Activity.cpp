// The queue of an activity.
#include "Mox/Activity.h"

namespace Mox {

namespace {

/// Sets a flag for the scope that it lives in.
class Flagged {
 public:
  explicit Flagged(bool& flag) : flag_(flag) { flag_ = true; }
  ~Flagged() { flag_ = false; }
  Flagged(Flagged const&) = delete;
  Flagged& operator=(Flagged const&) = delete;

 private:
  bool& flag_;
};

}  // namespace

void ActivitySm::enq(Ptr<PtrInterface::NotifieeConst> const& notifiee) {
  queue_.push_back(notifiee);
}

bool ActivitySm::runOne() {
  if (queue_.empty()) return false;
  Ptr<PtrInterface::NotifieeConst> const first = std::move(queue_.front());
  queue_.pop_front();
  if (first->references() == 1) return true;
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
  Flagged const yielding(yielding_);
  for (U32 left = waiting(); left > 0 && runOne(); --left) {
  }
}

}  // namespace Mox
