// everyShape::Bush by attribute number: its interface, and its descriptor.  Made by schemac from everyShape.schema.
#pragma once

#include "everyShape/Bush.h"
#include "frame/Adapter.h"
#include "reflect/Batch.h"

namespace everyShape {

class Bush::_Type : public Mox::MoxType {
 public:
  _Type() : MoxType("Bush", nullptr, Mox::Entity::_fwkType(), {}) {}
  using MoxType::genericIf_;
  Mox::GenericIf::Ptr genericIf_(Mox::PtrInterface* object, bool isConst) const override;
};

class Bush::GenericIf_ : public Mox::GenericIfEntity {
 public:
  class GenericIf_Adapter_;

  GenericIf_(Mox::Ptr<Bush> const& object, bool isConst);
  ~GenericIf_() override;

  /// The entity; null once it has gone.
  Mox::Ptr<Bush> obj() const;

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

  /// Tells of a change under `key`: at once, or in the next batch, in which several are one without a
  /// key.
  virtual void onBranches(U16 key);
  virtual void onBranches();

 protected:
  GenericIf_(Mox::Ptr<Bush> const& object, Mox::MoxType const* type, bool isConst);

 private:
  using MoxBase = Mox::GenericIfEntity;
  struct MoxTable;

  Mox::Ptr<GenericIf_Adapter_> adapter_;
};

class Bush::GenericIf_::GenericIf_Adapter_ : public frame::Adapter<Bush::Notifiee,
    Bush::GenericIf_> {
 public:
  using Adapter::Adapter;

  void onBranches(U16 key) override {
      if (auto* const owner = moxReactorAdapter()) owner->onBranches(key); }
  void onBranches() override { if (auto* const owner = moxReactorAdapter()) owner->onBranches(); }

  /// What the next batch tells of each collection.
  struct Noted {
    reflect::Pending<U16> branches;
  };
  Noted noted;
};

}  // namespace everyShape
