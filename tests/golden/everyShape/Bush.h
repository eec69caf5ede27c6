// everyShape::Bush.  Made by schemac from everyShape.schema.
#pragma once

#include "Mox/Mox.h"
#include "everyShape/Branch.h"
#include "everyShape/Leaf.h"
#include "everyShape/Mood.h"

namespace everyShape {

class Bush : public Mox::Entity {
 public:
  using Ptr = Mox::Ptr<Bush>;
  using PtrConst = Mox::Ptr<Bush const>;

  class NotifieeConst;
  class Notifiee;
  class _Type;
  class GenericIf_;
  struct Tags;

  using BranchesMap = Mox::HashMap<Branch, U16, Branch>;

  Bush(Mox::Name const& name, Mox::Ptr<Bush> const& parentBush);
  ~Bush() override;

  Mox::Ptr<Bush> parentBush() const { return moxRead(parentBush_); }

  Mox::Ptr<Branch> branches(U16 port) const;
  /// The child under that key, made if it is missing, which steps the version and calls
  /// `onBranches(key)`.
  /// Other constructor parameters than those of the child that exists are refused with
  /// `NameInUseException`.
  Mox::Ptr<Branch> branchesIs(U16 port, Mox::Ptr<Leaf> const& leaf, Mood mood);
  /// Makes and inserts without a word to version and notifiees; the key must be absent.
  Mox::Ptr<Branch> newBranches(U16 port, Mox::Ptr<Leaf> const& leaf, Mood mood);
  /// Detaches the child under that key and returns it; null without one.
  Mox::Ptr<Branch> branchesDel(U16 port);
  Mox::Ptr<Branch> branchesDel(BranchesMap::Iterator const& at);
  void branchesDelAll();
  /// Calls `onBranches(key)`.
  void branchesNotify(U16 key);
  U32 branchesCount() const { return branches_.count(); }
  BranchesMap::Iterator branchesIterator() { return BranchesMap::Iterator(branches_); }
  BranchesMap::IteratorConst branchesIteratorConst() const {
    return BranchesMap::IteratorConst(branches_);
  }

  Mox::String8 attributeString(Mox::AttributeId id) const override;
  bool moxHasAttrLogInterface() const override { return true; }
  void zeroReferencesIs(bool zero) override;
  Mox::MoxType const* fwkType() const override;
  static Mox::MoxType* _fwkType();

  /// Who observes this entity.
  Mox::ListRaw<NotifieeConst>& moxNotifiees() const { return notifiees_; }

 private:
  Mox::Ptr<Bush> const parentBush_;
  BranchesMap branches_{4};
  mutable Mox::ListRaw<NotifieeConst> notifiees_;
};

/// Observes a `Bush`; each hook is empty.
class Bush::NotifieeConst : public Mox::Entity::NotifieeConst {
 public:
  NotifieeConst();
  ~NotifieeConst() override;

  Bush::PtrConst notifier() const;
  void notifierIs(Mox::Ptr<Mox::PtrInterface const> const& notifier) override;
  void isRegisteredNotifieeIs(bool registered) const override;

  static Mox::NotifieeLevel const moxLevel_;

  /// Told of each change under a key.  The two without a key are the runtime's: no mutator calls them.
  virtual void onBranches(U16) {}
  virtual void onBranchesmoxImmediate() {}
  virtual void onBranches() {}
};

/// Observes a `Bush` that it may write to.
class Bush::Notifiee : public Bush::NotifieeConst {
 public:
  Bush::Ptr notifier() const;
};

}  // namespace everyShape
