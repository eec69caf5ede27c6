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

bool BringUpWatch::isUnderWayElsewhere() const {
  return bringUp_ && bringUp_->thread != std::this_thread::get_id() &&
         (bringUp_->isAnnounced || bringUp_->last);
}

void BringUpWatch::overlap(std::string const& other) const {
  misuse("two bring-ups overlap: that of device " + std::to_string(bringUp_->device) +
         " stands at " + (bringUp_->last ? bringUp_->last->name() : "its beginning") + ", and " +
         (isUnderWayElsewhere() ? "another thread " : "the same thread ") + other);
}

void BringUpWatch::begin(U32 device, bool isAnnounced) {
  bringUp_ = BringUp{std::this_thread::get_id(), ++lastNumber_, device, isAnnounced, {}};
}

U32 BringUpWatch::number() const {
  std::lock_guard lock(mutex_);
  bool isOwn = bringUp_ && bringUp_->thread == std::this_thread::get_id();
  return isOwn ? bringUp_->number : 0;
}

void BringUpWatch::profileTaken(U32 device) {
  std::lock_guard lock(mutex_);
  if (isUnderWayElsewhere()) overlap("takes the profile of device " + std::to_string(device));
  if (bringUp_ && bringUp_->isAnnounced)
    bringUp_->number = ++lastNumber_;
  else
    begin(device, false);
}

void BringUpWatch::callBegins(ManagerId manager, Call call) {
  std::lock_guard lock(mutex_);
  CallId id{manager, call};
  auto self = std::this_thread::get_id();
  if (current_ && current_->thread != self)
    misuse("two threads at a time: " + id.name() + " is called while another thread is inside " +
           current_->call.name());
  if (isUnderWayElsewhere()) overlap("calls " + id.name());
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
  bool isNested = bringUp_ && bringUp_->isAnnounced;
  if (isNested || isUnderWayElsewhere()) overlap("begins one of device " + std::to_string(device));
  begin(device, true);
}

void BringUpWatch::announcedEnds() {
  std::lock_guard lock(mutex_);
  bringUp_.reset();
}

}  // namespace xdksim
