// The state of the watch, and the words for what it finds.
#include "standin/xdk/BringUpWatch.h"

#include "standin/xdk/Misuse.h"

namespace xdksim {
namespace {

bool endsBringUp(ManagerId manager, Call call) {
  return call == Call::addWithInit && manager.row == managerOf("xpEgressAclMgr");
}

}  // namespace

std::string BringUpWatch::CallId::name() const {
  return manager.name() + "::" + operationOf(call).name;
}

bool BringUpWatch::BringUp::isUnderWayElsewhere() const {
  return thread != std::this_thread::get_id() && (isAnnounced || last);
}

std::string BringUpWatch::BringUp::standing() const {
  return "that of device " + std::to_string(device) + " stands at " +
         (last ? last->name() : "its beginning");
}

void BringUpWatch::refuseOverlap(std::string const& other) const {
  if (bringUp_ && bringUp_->isUnderWayElsewhere())
    misuse("two bring-ups overlap: " + bringUp_->standing() + ", and another thread " + other);
}

void BringUpWatch::profileTaken(U32 device) {
  std::lock_guard lock(mutex_);
  refuseOverlap("takes the profile of device " + std::to_string(device));
  if (bringUp_ && bringUp_->isAnnounced) return;
  bringUp_ = BringUp{std::this_thread::get_id(), device, false, {}};
}

void BringUpWatch::callBegins(ManagerId manager, Call call) {
  std::lock_guard lock(mutex_);
  CallId id{manager, call};
  auto self = std::this_thread::get_id();
  if (current_ && current_->thread != self)
    misuse("two threads at a time: " + id.name() + " is called while another thread is inside " +
           current_->call.name());
  refuseOverlap("calls " + id.name());
  current_ = Current{self, id};
  if (bringUp_ && bringUp_->thread == self) bringUp_->last = id;
}

void BringUpWatch::callEnds() {
  std::lock_guard lock(mutex_);
  bool isEnd = current_ && endsBringUp(current_->call.manager, current_->call.call);
  if (isEnd && bringUp_ && !bringUp_->isAnnounced) bringUp_.reset();
  current_.reset();
}

void BringUpWatch::announced(U32 device) {
  std::lock_guard lock(mutex_);
  std::string other = "begins one of device " + std::to_string(device);
  refuseOverlap(other);
  if (bringUp_ && bringUp_->isAnnounced)
    misuse("two bring-ups overlap: " + bringUp_->standing() + ", and the same thread " + other);
  bringUp_ = BringUp{std::this_thread::get_id(), device, true, {}};
}

void BringUpWatch::announcedEnds() {
  std::lock_guard lock(mutex_);
  bringUp_.reset();
}

}  // namespace xdksim
