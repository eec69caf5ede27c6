// everyShape::Brook.  Made by schemac from everyShape.schema.
#pragma once

#include "Mox/Mox.h"
#include "everyShape/Grove.h"

namespace everyShape {

class Brook : public Mox::Entity {
 public:
  using Ptr = Mox::Ptr<Brook>;
  using PtrConst = Mox::Ptr<Brook const>;

  class NotifieeConst;
  class Notifiee;
  class _Type;
  class GenericIf_;
  struct Tags;

  explicit Brook(Mox::Name const& name);
  ~Brook() override;

  Mox::Ptr<Grove const> grove() const;
  /// Refers to `target` from now on, or to nothing; a change steps the version and calls
  /// `onGrove()`.
  void groveIs(Mox::Ptr<Grove const> const& target);

  Mox::String8 attributeString(Mox::AttributeId id) const override;
  bool moxHasAttrLogInterface() const override { return true; }
  void zeroReferencesIs(bool zero) override;
  Mox::MoxType const* fwkType() const override;
  static Mox::MoxType* _fwkType();

  /// Who observes this entity.
  Mox::ListRaw<NotifieeConst>& moxNotifiees() const { return notifiees_; }

 private:
  Mox::Ptr<Grove const> grove_;
  mutable Mox::ListRaw<NotifieeConst> notifiees_;
};

/// Observes a `Brook`; each hook is empty.
class Brook::NotifieeConst : public Mox::Entity::NotifieeConst {
 public:
  NotifieeConst();
  ~NotifieeConst() override;

  Brook::PtrConst notifier() const;
  void notifierIs(Mox::Ptr<Mox::PtrInterface const> const& notifier) override;
  void isRegisteredNotifieeIs(bool registered) const override;

  static Mox::NotifieeLevel const moxLevel_;

  virtual void onGrove() {}
};

/// Observes a `Brook` that it may write to.
class Brook::Notifiee : public Brook::NotifieeConst {
 public:
  Brook::Ptr notifier() const;
};

}  // namespace everyShape
