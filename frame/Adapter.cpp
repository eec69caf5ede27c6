// Adapters: the order of their steps.
#include "frame/Adapter.h"

namespace frame {

namespace {

void bitIs(Notifiee& self, U32 bit, bool on) {
  U32 const others = self.mox_bitSet().bits() & ~bit;
  self.mox_bitSetIs(Mox_BitSet(on ? others | bit : others));
}

}  // namespace

void adapterStart(Notifiee& self, Mox::PtrInterface const* notifier) {
  self.mox_bitSetIs(Mox_BitSet(Mox::outboundEnabled));
  self.isRegisteredNotifieeIs(true);
  self.notifierIs(notifier);
  self.isWeakReferenceIs(true);
}

void adapterActiveIs(Notifiee& self, Notifiee* owner, bool active) {
  if (active == self.hasNotificationActive()) return;
  self.Mox::PtrInterface::hasNotificationActiveIs(active);
  if (active) {
    if (self.mox_bitSet().has(Mox::registeredWhenDeactivated)) self.isRegisteredNotifieeIs(true);
  } else {
    bitIs(self, Mox::registeredWhenDeactivated, self.isRegisteredNotifiee());
    self.isRegisteredNotifieeIs(false);
  }
  if (owner && !self.moxMarkedForDeletion()) owner->hasNotificationActiveIs(active);
}

void adapterParkedIs(Notifiee& self, bool parked) {
  if (parked == self.moxMarkedForDeletion()) return;
  if (self.moxNotifier()) self.hasNotificationActiveIs(!parked);
  self.moxMarkedForDeletionIs(parked);
}

void adapterZeroReferences(Notifiee& self, Notifiee* owner) {
  if (owner) owner->onZeroReferences();
  self.hasNotificationActiveIs(false);
}

void adapterUnhook(Notifiee& self) {
  self.isRegisteredNotifieeIs(false);
  self.notifierIs(nullptr);
}

}  // namespace frame
