// everyShape::Derived by attribute number: its interface, and its descriptor.  Made by schemac from everyShape.schema.
#pragma once

#include "everyShape/Derived.h"
#include "everyShape/Every.reflect.h"
#include "frame/Adapter.h"
#include "reflect/Batch.h"

namespace everyShape {

class Derived::_Type : public Mox::MoxType {
 public:
  _Type() : MoxType("Derived", nullptr, Every::_fwkType(), {}) {}
  using MoxType::genericIf_;
  Mox::GenericIf::Ptr genericIf_(Mox::PtrInterface* object, bool isConst) const override;
};

class Derived::GenericIf_ : public Every::GenericIf_ {
 public:
  class GenericIf_Adapter_;

  GenericIf_(Mox::Ptr<Derived> const& object, bool isConst);
  ~GenericIf_() override;

  /// The entity; null once it has gone.
  Mox::Ptr<Derived> obj() const;

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
  virtual void onExtra();
  /// Tells of a change under `key`: at once, or in the next batch, in which several are one without a
  /// key.
  virtual void onMarks(U8 key);
  virtual void onMarks();

 protected:
  GenericIf_(Mox::Ptr<Derived> const& object, Mox::MoxType const* type, bool isConst);

 private:
  using MoxBase = Every::GenericIf_;
  struct MoxTable;

  Mox::Ptr<GenericIf_Adapter_> adapter_;
};

class Derived::GenericIf_::GenericIf_Adapter_ : public frame::Adapter<Derived::Notifiee,
    Derived::GenericIf_> {
 public:
  using Adapter::Adapter;

  void onExtra() override { if (auto* const owner = moxReactorAdapter()) owner->onExtra(); }
  void onMarks(U8 key) override {
      if (auto* const owner = moxReactorAdapter()) owner->onMarks(key); }
  void onMarks() override { if (auto* const owner = moxReactorAdapter()) owner->onMarks(); }

  /// What the next batch tells of each collection.
  struct Noted {
    reflect::Pending<U8> marks;
  };
  Noted noted;
};

}  // namespace everyShape
