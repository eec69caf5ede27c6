// Interfaces of entities: the weak hold, and the batches of changes.
#include "Mox/GenericIfEntity.h"

#include "Mox/MoxType.h"
#include "Mox/Strep.h"

namespace Mox {

GenericIfEntity::GenericIfEntity(Mox::Ptr<Entity> const& entity, MoxType const* type, bool isConst)
    : GenericIf(type, isConst) {
  heldIs(&moxNotifierWord());
  mox_bitSetIs(Mox_BitSet(outboundEnabled));
  isWeakReferenceIs(true);
  GenericIfEntity::notifierIs(entity);
}

// The base drops the reference that a strong observer has.
GenericIfEntity::~GenericIfEntity() { isWeakReferenceIs(false); }

void GenericIfEntity::notifierIs(Mox::Ptr<PtrInterface const> const& notifier) {
  bool const another = notifier && notifier.ptr() != moxNotifier();
  bool const weak = isWeakReference();
  isWeakReferenceIs(false);
  GenericIf::notifierIs(ptrCast<Entity const>(notifier));
  isWeakReferenceIs(weak);
  moxRegisteredIs(false);                // only its adapters stand in the entity's list
  if (another) notification_ = nothing;  // what is noted is of the former one
}

void GenericIfEntity::hasNotificationActiveIs(bool active) {
  GenericIf::hasNotificationActiveIs(active);
  isWeakReferenceIs(active && !keepsEntity_);
}

void GenericIfEntity::moxKeepsEntityIs(bool keeps) {
  keepsEntity_ = keeps;
  isWeakReferenceIs(hasNotificationActive() && !keeps);
}

void GenericIfEntity::moxDoZombieReactors(bool zombie) {
  GenericIf::moxDoZombieReactors(zombie);
  // An adapter that comes back is still marked while it does, and doesn't switch its owner on.
  GenericIfEntity::hasNotificationActiveIs(!zombie);
}

void GenericIfEntity::watcherIs(Mox::Ptr<Watcher> const& watcher) {
  watcher_ = watcher;
  if (watcher) moxAdaptersHearIs(true);
}

void GenericIfEntity::activityIs(Mox::Ptr<ActivityConfig> const& activity) {
  activity_ = activity;
  if (activity) moxAdaptersHearIs(true);
  if (notification_ == nothing) return;
  if (activity)
    activity->activitySm()->enq(this);
  else
    handleNotification(nullptr);
}

void GenericIfEntity::moxAdaptersHearIs(bool) {}

void GenericIfEntity::onZeroReferences() { notifierIs(nullptr); }

Name GenericIfEntity::name() const { return entity() ? entity()->name() : Name(); }

ActivitySm* GenericIfEntity::actsm() { return activity_ ? activity_->activitySm() : nullptr; }

String8 GenericIfEntity::strRep() const { return valueToStrepOfRawPtr(entity(), typeid(Entity)); }

void GenericIfEntity::handleNotification(ActivityConfig*) { notification_ = nothing; }

void GenericIfEntity::onAttribute(AttributeId id) { onAttribute(id, nullptr); }

void GenericIfEntity::onAttribute(AttributeId id, PtrConst const& key) {
  if (moxMarkedForDeletion()) return;
  // The watcher may let go of itself, and of this interface.
  Mox::Ptr<GenericIfEntity> const self = this;
  Mox::Ptr<Watcher> const watcher = watcher_;
  if (watcher) watcher->onAttribute(*this, id, key);
}

bool GenericIfEntity::moxOnAttribute(AttributeId id, U8* pending) {
  constexpr U8 most = 255;
  if (!activity_ || telling_) return false;
  if (pending && *pending < most) ++*pending;
  auto const changed = static_cast<S32>(id);
  bool const first = notification_ == nothing;
  collectionsAlone_ = pending && (first || collectionsAlone_);
  if (first)
    notification_ = changed;
  else if (notification_ != changed)
    notification_ = collectionsAlone_ ? allCollections : all;
  if (first) activity_->activitySm()->enq(this);
  return true;
}

void GenericIfEntity::redispatch(ActivitySm* activity) {
  if (activity) activity->yield();
}

}  // namespace Mox
