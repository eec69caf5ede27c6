// everyShape::Grove by attribute number: its interface, and its descriptor.  Made by schemac from everyShape.schema.
#pragma once

#include "everyShape/Grove.h"
#include "frame/Adapter.h"
#include "reflect/Batch.h"

namespace everyShape {

class Grove::_Type : public Mox::MoxType {
 public:
  _Type() : MoxType("Grove", nullptr, Mox::Entity::_fwkType(), {}) {}
  Mox::Ptr<Mox::Entity> newEntity(Mox::Name const& name, Mox::Dir*) const override;
  using MoxType::genericIf_;
  Mox::GenericIf::Ptr genericIf_(Mox::PtrInterface* object, bool isConst) const override;
};

class Grove::GenericIf_ : public Mox::GenericIfEntity {
 public:
  class GenericIf_Adapter_;

  GenericIf_(Mox::Ptr<Grove> const& object, bool isConst);
  ~GenericIf_() override;

  /// The entity; null once it has gone.
  Mox::Ptr<Grove> obj() const;

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

  /// Tells of a change under `key`: at once, or in the next batch, in which several are one without a
  /// key.
  virtual void onTree(Mox::Name key);
  virtual void onTree();
  /// Tells of a change under `key`: at once, or in the next batch, in which several are one without a
  /// key.
  virtual void onRow(U8 key);
  virtual void onRow();
  /// Tells of a change: at once, or in the next batch.
  virtual void onBrook();
  /// Tells of a change: at once, or in the next batch.
  virtual void onLevel();
  /// Tells of a change under `key`: at once, or in the next batch, in which several are one without a
  /// key.
  virtual void onByLevel(Level key);
  virtual void onByLevel();

 protected:
  GenericIf_(Mox::Ptr<Grove> const& object, Mox::MoxType const* type, bool isConst);

 private:
  using MoxBase = Mox::GenericIfEntity;
  struct MoxTable;

  Mox::Ptr<GenericIf_Adapter_> adapter_;
};

class Grove::GenericIf_::GenericIf_Adapter_ : public frame::Adapter<Grove::Notifiee,
    Grove::GenericIf_> {
 public:
  using Adapter::Adapter;

  void onTree(Mox::Name key) override {
      if (auto* const owner = moxReactorAdapter()) owner->onTree(key); }
  void onTree() override { if (auto* const owner = moxReactorAdapter()) owner->onTree(); }
  void onRow(U8 key) override { if (auto* const owner = moxReactorAdapter()) owner->onRow(key); }
  void onRow() override { if (auto* const owner = moxReactorAdapter()) owner->onRow(); }
  void onBrook() override { if (auto* const owner = moxReactorAdapter()) owner->onBrook(); }
  void onLevel() override { if (auto* const owner = moxReactorAdapter()) owner->onLevel(); }
  void onByLevel(Level key) override {
      if (auto* const owner = moxReactorAdapter()) owner->onByLevel(key); }
  void onByLevel() override { if (auto* const owner = moxReactorAdapter()) owner->onByLevel(); }

  /// What the next batch tells of each collection.
  struct Noted {
    reflect::Pending<Mox::Name> tree;
    reflect::Pending<U8> row;
    reflect::Pending<Level> byLevel;
  };
  Noted noted;
};

}  // namespace everyShape
