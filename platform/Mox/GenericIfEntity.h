// What the interfaces of all entities have in common: whom they observe, and the batches in which
// they tell of it.
#pragma once

#include "Mox/Activity.h"
#include "Mox/Entity.h"
#include "Mox/GenericIf.h"

namespace Mox {

/// The interface of an entity.  It observes the entity through an adapter of each level of its
/// class, and tells one watcher of each change: at once, or, with an activity, in batches.
///
/// It doesn't keep the entity alive: when the entity's last reference goes it lets go of it, and
/// falls silent.  While it is silent, switched off or parked, nobody would tell it of that; so then
/// it does keep the entity alive.
class GenericIfEntity : public GenericIf {
 public:
  /// Is told of the changes of one entity.
  class Watcher : public PtrInterface {
   public:
    /// Attribute `id` has changed, in a collection under `key`.  A null key means several changes
    /// of a collection at once, or a scalar.  In a batch in which more has changed than one
    /// attribute or than collections alone, every scalar is told, whether it has changed or not.
    virtual void onAttribute(GenericIfEntity& changed, AttributeId id, PtrConst const& key) = 0;
  };

  GenericIfEntity(Mox::Ptr<Entity> const& entity, MoxType const* type, bool isConst);
  ~GenericIfEntity() override;

  /// The entity; null once it has gone.
  Entity* entity() const noexcept {
    return const_cast<Entity*>(static_cast<Entity const*>(moxNotifier()));
  }
  /// Who is told; null for nobody.
  void watcherIs(Mox::Ptr<Watcher> const& watcher);
  /// From now on changes are told in batches when `activity` gets to it; at once for null.
  /// What is noted already is told by the new one, or for null now.
  void activityIs(Mox::Ptr<ActivityConfig> const& activity);
  /// Whether this interface keeps its entity alive also while it isn't silent.
  void moxKeepsEntityIs(bool keeps);
  /// Whether the adapters of this interface hear.  One that a descriptor has made doesn't until it
  /// gets a watcher or an activity, so that writing through it costs no delivery.
  virtual void moxAdaptersHearIs(bool hears);

  /// What is to be told when the activity gets to this interface: the number of an attribute, or
  /// one of these.
  enum Notification : S32 { nothing = -3, allCollections = -2, all = -1 };
  S32 notification() const noexcept { return notification_; }
  void notificationIs(S32 notification) noexcept { notification_ = notification; }

  /// Notes that attribute `id` has changed for the next batch; of a collection `pending` counts
  /// the changes, up to 255.  False where it is to be told at once: without an activity, and while
  /// the activity runs this interface.
  bool moxOnAttribute(AttributeId id, U8* pending);
  /// In the middle of a long notification: lets what else `activity` has to do go first.
  void redispatch(ActivitySm* activity);

  /// Set while this interface tells what was noted.
  bool& moxTelling() noexcept { return telling_; }

  void hasNotificationActiveIs(bool active) override;
  void moxDoZombieReactors(bool zombie) override;
  void handleNotification(ActivityConfig* activity) override;
  using GenericIf::NotifieeConst::onAttribute;
  void onAttribute(AttributeId id) override;
  virtual void onAttribute(AttributeId id, PtrConst const& key);
  void onZeroReferences() override;
  Name name() const override;
  void notifierIs(Mox::Ptr<PtrInterface const> const& notifier) override;
  ActivityConfig* activityPtr() const override { return activity_.ptr(); }
  ActivitySm* actsm() override;
  String8 strRep() const override;

 private:
  Mox::Ptr<Watcher> watcher_;
  Mox::Ptr<ActivityConfig> activity_;
  S32 notification_ = nothing;
  bool collectionsAlone_ = true;  // of what is noted, so far
  bool telling_ = false;
  bool keepsEntity_ = false;
};

}  // namespace Mox
