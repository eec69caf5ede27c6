// everyShape::Stem.  Made by schemac from everyShape.schema.
#pragma once

#include "Mox/Mox.h"
#include "everyShape/Leaf.h"

namespace everyShape {

/// Mutators that a derived class may replace, and no name.
class Stem : public Mox::Entity {
 public:
  using Ptr = Mox::Ptr<Stem>;
  using PtrConst = Mox::Ptr<Stem const>;

  class NotifieeConst;
  class Notifiee;
  class _Type;
  class GenericIf_;
  struct Tags;

  explicit Stem(U16 port);
  ~Stem() override;

  U16 port() const { return moxRead(port_); }

  U32 girth() const { return moxRead(girth_); }
  /// Sets `girth`; a change steps the version and calls `onGirth()`.
  virtual void girthIs(U32 value);

  U8 rings() const { return moxRead(rings_); }
  /// Sets `rings`; a change steps the version and calls `onRings()`.
  virtual void ringsIs(U8 value);
  /// Adds `delta`, wrapping around, and returns the new value.  A change calls `onRings()` and
  /// leaves the version alone.
  U8 ringsInc(U8 delta);

  Mox::Ptr<Leaf> root() const;
  /// Refers to `target` from now on, or to nothing; a change steps the version and calls
  /// `onRoot()`.
  virtual void rootIs(Mox::Ptr<Leaf> const& target);

  Mox::String8 attributeString(Mox::AttributeId id) const override;
  bool moxHasAttrLogInterface() const override { return true; }
  void zeroReferencesIs(bool zero) override;
  Mox::MoxType const* fwkType() const override;
  static Mox::MoxType* _fwkType();

  /// Who observes this entity.
  Mox::ListRaw<NotifieeConst>& moxNotifiees() const { return notifiees_; }

  /// The key under which a collection holds this entity; no read is counted.
  U16 const& moxKey() const { return port_; }

 private:
  U16 const port_;
  U32 girth_ = 0;
  U8 rings_ = 0;
  Mox::Ptr<Leaf> root_;
  mutable Mox::ListRaw<NotifieeConst> notifiees_;
};

/// Observes a `Stem`; each hook is empty.
class Stem::NotifieeConst : public Mox::Entity::NotifieeConst {
 public:
  NotifieeConst();
  ~NotifieeConst() override;

  Stem::PtrConst notifier() const;
  void notifierIs(Mox::Ptr<Mox::PtrInterface const> const& notifier) override;
  void isRegisteredNotifieeIs(bool registered) const override;

  static Mox::NotifieeLevel const moxLevel_;

  virtual void onGirth() {}
  virtual void onRings() {}
  virtual void onRoot() {}
};

/// Observes a `Stem` that it may write to.
class Stem::Notifiee : public Stem::NotifieeConst {
 public:
  Stem::Ptr notifier() const;
};

}  // namespace everyShape
