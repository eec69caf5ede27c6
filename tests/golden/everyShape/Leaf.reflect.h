// everyShape::Leaf by attribute number: its interface, and its descriptor.  Made by schemac from everyShape.schema.
#pragma once

#include "everyShape/Leaf.h"
#include "frame/Adapter.h"
#include "reflect/Batch.h"

namespace everyShape {

class Leaf::_Type : public Mox::MoxType {
 public:
  _Type() : MoxType("Leaf", nullptr, Mox::Entity::_fwkType(), {}) {}
  using MoxType::genericIf_;
  Mox::GenericIf::Ptr genericIf_(Mox::PtrInterface* object, bool isConst) const override;
};

class Leaf::GenericIf_ : public Mox::GenericIfEntity {
 public:
  class GenericIf_Adapter_;

  GenericIf_(Mox::Ptr<Leaf> const& object, bool isConst);
  ~GenericIf_() override;

  /// The entity; null once it has gone.
  Mox::Ptr<Leaf> obj() const;

  Ptr attributeOp(AttributeOp op, PtrConst const& index, PtrConst const& value) override;
  AttributeIteratorConst attributeIteratorConst(Mox::AttributeId id) const override;
  AttributeIteratorConst attributeIteratorKeyConst(Mox::AttributeId id,
      PtrConst const& key) const override;
  using GenericIf::clone;
  Ptr clone() override;
  Ptr genericIfListConstructor(PtrConst const& list) const override;
  void handleNotification(Mox::ActivityConfig* activity) override;
  void notifierIs(Mox::Ptr<Mox::PtrInterface const> const& notifier) override;
  void moxDoZombieReactors(bool zombie) override;
  void hasNotificationActiveIs(bool active) override;
  void moxAdaptersHearIs(bool hears) override;

  /// Tells of a change: at once, or in the next batch.
  virtual void onLit();

 protected:
  GenericIf_(Mox::Ptr<Leaf> const& object, Mox::MoxType const* type, bool isConst);

 private:
  using MoxBase = Mox::GenericIfEntity;
  struct MoxTable;

  Mox::Ptr<GenericIf_Adapter_> adapter_;
};

class Leaf::GenericIf_::GenericIf_Adapter_ : public frame::Adapter<Leaf::Notifiee,
    Leaf::GenericIf_> {
 public:
  using Adapter::Adapter;

  void onLit() override { if (auto* const owner = moxReactorAdapter()) owner->onLit(); }
};

}  // namespace everyShape
