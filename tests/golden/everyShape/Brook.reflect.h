// everyShape::Brook by attribute number: its interface, and its descriptor.  Made by schemac from everyShape.schema.
#pragma once

#include "everyShape/Brook.h"
#include "frame/Adapter.h"
#include "reflect/Batch.h"

namespace everyShape {

class Brook::_Type : public Mox::MoxType {
 public:
  _Type() : MoxType("Brook", nullptr, Mox::Entity::_fwkType(), {}) {}
  using MoxType::genericIf_;
  Mox::GenericIf::Ptr genericIf_(Mox::PtrInterface* object, bool isConst) const override;
};

class Brook::GenericIf_ : public Mox::GenericIfEntity {
 public:
  class GenericIf_Adapter_;

  GenericIf_(Mox::Ptr<Brook> const& object, bool isConst);
  ~GenericIf_() override;

  /// The entity; null once it has gone.
  Mox::Ptr<Brook> obj() const;

  Ptr attributeOp(AttributeOp op, PtrConst const& index, PtrConst const& value) override;
  AttributeIteratorConst attributeIteratorConst(Mox::AttributeId id) const override;
  AttributeIteratorConst attributeIteratorKeyConst(Mox::AttributeId id,
      PtrConst const& key) const override;
  using GenericIf::clone;
  Ptr clone() override;
  void handleNotification(Mox::ActivityConfig* activity) override;
  void notifierIs(Mox::Ptr<Mox::PtrInterface const> const& notifier) override;
  void moxDoZombieReactors(bool zombie) override;
  void hasNotificationActiveIs(bool active) override;
  void moxAdaptersHearIs(bool hears) override;

  /// Tells of a change: at once, or in the next batch.
  virtual void onGrove();

 protected:
  GenericIf_(Mox::Ptr<Brook> const& object, Mox::MoxType const* type, bool isConst);

 private:
  using MoxBase = Mox::GenericIfEntity;
  struct MoxTable;

  Mox::Ptr<GenericIf_Adapter_> adapter_;
};

class Brook::GenericIf_::GenericIf_Adapter_ : public frame::Adapter<Brook::Notifiee,
    Brook::GenericIf_> {
 public:
  using Adapter::Adapter;

  void onGrove() override { if (auto* const owner = moxReactorAdapter()) owner->onGrove(); }
};

}  // namespace everyShape
