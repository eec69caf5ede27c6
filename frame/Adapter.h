// The notifiee through which an owner observes an entity: an interface to attributes by number, or
// an adapter of the attribute log.
//
// It goes where its owner goes: both are switched on and off, parked and brought back together.  It
// owns no reference to the entity, and its owner holds it.
#pragma once

#include "Mox/Entity.h"
#include "frame/Deliver.h"

namespace frame {

// The steps of all adapters; `owner` is null once it has gone.

/// The first step: observes `notifier`, weakly, with `outboundEnabled` and no other bit.
void adapterStart(Notifiee& self, Mox::PtrInterface const* notifier);
/// Switches notifications on or off, and the owner with them: registered again is what was so when
/// it was switched off.
void adapterActiveIs(Notifiee& self, Notifiee* owner, bool active);
/// Parks, which silences, or brings back.
void adapterParkedIs(Notifiee& self, bool parked);
/// The entity's last reference has gone: the owner is told, and this one falls silent.
void adapterZeroReferences(Notifiee& self, Notifiee* owner);
/// The owner goes: nothing is observed any more.
void adapterUnhook(Notifiee& self);

/// An adapter that observes as `EntityNotifiee` for an `Owner`, whose hooks a derived class calls.
template <class EntityNotifiee, class Owner>
class Adapter : public EntityNotifiee {
 public:
  Adapter(Mox::PtrInterface const* notifier, Owner* owner) : owner_(owner) {
    adapterStart(*this, notifier);
  }

  Mox::Ptr<Notifiee const> moxReactor() const override { return owner_; }
  Notifiee* moxRawReactor() const override { return owner_; }
  void hasNotificationActiveIs(bool active) override { adapterActiveIs(*this, owner_, active); }
  void onNotificationException(Mox::AttributeId id) override {
    if (owner_) owner_->onNotificationException(id);
  }
  void onZeroReferences() override { adapterZeroReferences(*this, owner_); }
  virtual void moxDoZombieReactors(bool zombie) { adapterParkedIs(*this, zombie); }

  /// The owner, which outlives its use: it clears this pointer when it goes.
  Owner* moxReactorAdapter() const noexcept { return owner_; }
  void moxReactorAdapterIs(Owner* owner) noexcept { owner_ = owner; }

 private:
  Owner* owner_;
};

/// What an owner holds: makes its adapter, switched on.
template <class AdapterType, class Owner>
Mox::Ptr<AdapterType> adapterFor(Mox::PtrInterface const* notifier, Owner* owner) {
  Mox::Ptr<AdapterType> const adapter = new AdapterType(notifier, owner);
  adapter->hasNotificationActiveIs(true);
  return adapter;
}

/// The last step of an owner, for each of its adapters.
template <class AdapterType>
void unhook(AdapterType& adapter) {
  adapterUnhook(adapter);
  adapter.moxReactorAdapterIs(nullptr);
}

}  // namespace frame
