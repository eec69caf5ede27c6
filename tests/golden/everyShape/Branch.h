// everyShape::Branch.  Made by schemac from everyShape.schema.
#pragma once

#include "Mox/Mox.h"
#include "everyShape/Leaf.h"
#include "everyShape/Mix.h"
#include "everyShape/Mood.h"
#include "everyShape/Stem.h"

namespace everyShape {

/// Starts its base otherwise than that does, and is kept under the base's key.
class Branch : public Stem {
 public:
  using Ptr = Mox::Ptr<Branch>;
  using PtrConst = Mox::Ptr<Branch const>;

  class NotifieeConst;
  class Notifiee;
  class _Type;
  class GenericIf_;
  struct Tags;

  Branch(U16 port, Mox::Ptr<Leaf> const& leaf, Mood mood);
  ~Branch() override;

  Mox::Ptr<Leaf> leaf() const { return moxRead(leaf_); }

  Mood mood() const { return moxRead(mood_); }

  /// Kept if it has all of the parameters.
  Mox::Ptr<Leaf> twig() const;
  /// The child of these parameters; one that has them all already is kept, and the version steps.
  /// Another one is replaced, which calls `onTwig()`.  Raises `RangeException` "null ValidPtr" if that
  /// takes the new child away.
  Mox::Ptr<Leaf> twigIs(Mox::Name const& name, U8 lane, Mix mix);
  /// Makes a child in its place under this entity, and doesn't store it: this entity must outlive it.
  Mox::Ptr<Leaf> newTwig(Mox::Name const& name, U8 lane, Mix mix);
  /// Detaches the child and returns it; null without one.
  Mox::Ptr<Leaf> twigDel();

  /// The same; keeping it is no change at all.
  Mox::Ptr<Leaf> bud() const;
  /// The child of these parameters; one that has them all already is kept.
  /// Another one is replaced, which calls `onBud()`.  Raises `RangeException` "null ValidPtr" if that
  /// takes the new child away.
  Mox::Ptr<Leaf> budIs(Mox::Name const& name, U8 lane, Mix mix);
  /// Makes a child in its place under this entity, and doesn't store it: this entity must outlive it.
  Mox::Ptr<Leaf> newBud(Mox::Name const& name, U8 lane, Mix mix);
  /// Detaches the child and returns it; null without one.
  Mox::Ptr<Leaf> budDel();

  /// Reads as the mood.
  Mood tone() const { return moxRead(mood_); }

  Mox::String8 attributeString(Mox::AttributeId id) const override;
  bool moxHasAttrLogInterface() const override { return true; }
  void zeroReferencesIs(bool zero) override;
  Mox::MoxType const* fwkType() const override;
  static Mox::MoxType* _fwkType();

 private:
  Mox::Ptr<Leaf> const leaf_;
  Mood const mood_;
  Mox::Ptr<Leaf> twig_;
  Mox::Ptr<Leaf> bud_;
  template <class Node>
  friend struct Mox::NodeOps;
  Mox::Ptr<Mox::PtrInterface> moxNext_;
};

/// Observes a `Branch`; each hook is empty.
class Branch::NotifieeConst : public Stem::NotifieeConst {
 public:
  NotifieeConst();
  ~NotifieeConst() override;

  Branch::PtrConst notifier() const;
  void notifierIs(Mox::Ptr<Mox::PtrInterface const> const& notifier) override;

  static Mox::NotifieeLevel const moxLevel_;

  virtual void onTwig() {}
  virtual void onBud() {}
};

/// Observes a `Branch` that it may write to.
class Branch::Notifiee : public Branch::NotifieeConst {
 public:
  Branch::Ptr notifier() const;
};

}  // namespace everyShape
