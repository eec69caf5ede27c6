// Observers: what they hold, and what they do unless a class says otherwise.
#include "Mox/Notifiee.h"

#include "Mox/TraceAt.h"
#include "standin/mox/LostException.h"

#include <exception>

namespace Mox {

namespace {

constexpr char const* sourcePath = "standin/mox/Notifiee";

TraceHandle const& traceHandle() {
  static TraceHandle const handle("MoxNotification", true);
  return handle;
}

/// What the exception in flight says of itself.
String8 complaint() {
  try {
    throw;
  } catch (std::exception const& exception) {
    return exception.what();
  } catch (...) {
    return "an exception of no known type";
  }
}

void report(Name const& notifier, String8 const& hook) {
  traceLostException(hook + " of a notifiee of '" + notifier.stringValue() + "'");
}

}  // namespace

void traceLostException(String8 const& who) {
  String8 const text = complaint();
  traceAt(traceHandle(), 0, {sourcePath, "onNotificationException"},
          [&](std::ostream& out) { out << who << " raised: " << text; });
}

PtrInterface::NotifieeConst::~NotifieeConst() {
  if (notifier_) notifier_->referencesDec();
}

Ptr<PtrInterface::NotifieeConst const> PtrInterface::NotifieeConst::moxReactor() const {
  return this;
}

PtrInterface::NotifieeConst* PtrInterface::NotifieeConst::moxRawReactor() const {
  return const_cast<NotifieeConst*>(this);
}

bool PtrInterface::NotifieeConst::isStreamAdapter() const {
  auto const* reactor = moxRawReactor();
  return reactor && reactor != this && reactor->isStreamAdapter();
}

void PtrInterface::NotifieeConst::isRegisteredNotifieeIs(bool registered) const {
  moxRegisteredIs(registered);
}

void PtrInterface::NotifieeConst::mox_bitSetIs(Mox_BitSet bits) { bits_ = bits; }
Name PtrInterface::NotifieeConst::name() const { return {}; }

void PtrInterface::NotifieeConst::notifierIs(Ptr<PtrInterface const> const& notifier) {
  Ptr<PtrInterface const> held = notifier;
  Ptr<PtrInterface const> const former = Ptr<PtrInterface const>::adopt(notifier_);
  notifier_ = held.release();
}

void PtrInterface::NotifieeConst::isWeakReferenceIs(bool weak) {
  if (weak == weak_) return;
  weak_ = weak;
  if (!notifier_) return;
  if (weak)
    notifier_->referencesDec();
  else
    notifier_->referencesInc();
}

bool PtrInterface::NotifieeConst::derivesFrom(NotifieeLevel const* level) const noexcept {
  for (auto const* mine = level_; mine; mine = mine->base)
    if (mine == level) return true;
  return false;
}

void PtrInterface::NotifieeConst::handleNotification(ActivityConfig*) { onNotification(); }

void PtrInterface::NotifieeConst::handleDefault(ActivityConfig*, AttributeId id, bool) {
  onAttribute(id);
}

void PtrInterface::NotifieeConst::onAttribute(AttributeId) {}
void PtrInterface::NotifieeConst::onNotification() {}
void PtrInterface::NotifieeConst::onCollectionNotification(String8) {}

void PtrInterface::NotifieeConst::onNotificationException() { handleNotificationException(); }

void PtrInterface::NotifieeConst::onNotificationException(AttributeId id) {
  handleNotificationException(id);
}

void PtrInterface::NotifieeConst::handleNotificationException(AttributeId id) {
  report(name(), format("the hook of attribute %u", id));
}

void PtrInterface::NotifieeConst::handleNotificationException() { report(name(), "a hook"); }

void PtrInterface::NotifieeConst::onZeroReferences() {}
ActivityConfig* PtrInterface::NotifieeConst::activityPtr() const { return nullptr; }
ActivityConfig* PtrInterface::NotifieeConst::moxFwkActivity() { return nullptr; }
ActivityConfig const* PtrInterface::NotifieeConst::moxFwkActivity() const { return nullptr; }
ActivitySm* PtrInterface::NotifieeConst::actsm() { return nullptr; }

}  // namespace Mox
