// everyShape::Leaf.  Made by schemac from everyShape.schema.
#pragma once

#include "Mox/Mox.h"
#include "everyShape/Mix.h"

namespace everyShape {

/// One owned child; its parameters take part in the comparison of a second asking.
class Leaf : public Mox::Entity {
 public:
  using Ptr = Mox::Ptr<Leaf>;
  using PtrConst = Mox::Ptr<Leaf const>;

  class NotifieeConst;
  class Notifiee;
  class _Type;
  class GenericIf_;
  struct Tags;

  Leaf(Mox::Name const& name, U8 lane, Mix mix);
  ~Leaf() override;

  U8 lane() const { return moxRead(lane_); }

  Mix mix() const { return moxRead(mix_); }

  bool lit() const { return moxRead(lit_); }
  /// Sets `lit`; a change steps the version and calls `onLit()`.
  void litIs(bool value);

  Mox::String8 attributeString(Mox::AttributeId id) const override;
  bool moxHasAttrLogInterface() const override { return true; }
  void zeroReferencesIs(bool zero) override;
  Mox::MoxType const* fwkType() const override;
  static Mox::MoxType* _fwkType();

  /// Who observes this entity.
  Mox::ListRaw<NotifieeConst>& moxNotifiees() const { return notifiees_; }

  /// The key under which a collection holds this entity; no read is counted.
  Mox::Name const& moxKey() const { return moxName(); }

 private:
  U8 const lane_;
  Mix const mix_;
  bool lit_ = false;
  template <class Node>
  friend struct Mox::NodeOps;
  Mox::Ptr<Mox::PtrInterface> moxNext_;
  mutable Mox::ListRaw<NotifieeConst> notifiees_;
};

/// Observes a `Leaf`; each hook is empty.
class Leaf::NotifieeConst : public Mox::Entity::NotifieeConst {
 public:
  NotifieeConst();
  ~NotifieeConst() override;

  Leaf::PtrConst notifier() const;
  void notifierIs(Mox::Ptr<Mox::PtrInterface const> const& notifier) override;
  void isRegisteredNotifieeIs(bool registered) const override;

  static Mox::NotifieeLevel const moxLevel_;

  virtual void onLit() {}
};

/// Observes a `Leaf` that it may write to.
class Leaf::Notifiee : public Leaf::NotifieeConst {
 public:
  Leaf::Ptr notifier() const;
};

}  // namespace everyShape
