// everyShape::Branch by attribute number: its interface, and its descriptor.  Made by schemac from everyShape.schema.
#pragma once

#include "everyShape/Branch.h"
#include "everyShape/Stem.reflect.h"
#include "frame/Adapter.h"
#include "reflect/Batch.h"

namespace everyShape {

class Branch::_Type : public Mox::MoxType {
 public:
  _Type() : MoxType("Branch", nullptr, Stem::_fwkType(), {}) {}
  using MoxType::genericIf_;
  Mox::GenericIf::Ptr genericIf_(Mox::PtrInterface* object, bool isConst) const override;
};

class Branch::GenericIf_ : public Stem::GenericIf_ {
 public:
  class GenericIf_Adapter_;

  GenericIf_(Mox::Ptr<Branch> const& object, bool isConst);
  ~GenericIf_() override;

  /// The entity; null once it has gone.
  Mox::Ptr<Branch> obj() const;

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
  virtual void onTwig();
  /// Tells of a change: at once, or in the next batch.
  virtual void onBud();

 protected:
  GenericIf_(Mox::Ptr<Branch> const& object, Mox::MoxType const* type, bool isConst);

 private:
  using MoxBase = Stem::GenericIf_;
  struct MoxTable;

  Mox::Ptr<GenericIf_Adapter_> adapter_;
};

class Branch::GenericIf_::GenericIf_Adapter_ : public frame::Adapter<Branch::Notifiee,
    Branch::GenericIf_> {
 public:
  using Adapter::Adapter;

  void onTwig() override { if (auto* const owner = moxReactorAdapter()) owner->onTwig(); }
  void onBud() override { if (auto* const owner = moxReactorAdapter()) owner->onBud(); }
};

}  // namespace everyShape
