// everyShape::Grove.  Made by schemac from everyShape.schema.
#pragma once

#include "Mox/Mox.h"
#include "everyShape/Knob.h"
#include "everyShape/Leaf.h"
#include "everyShape/Level.h"
#include "everyShape/Mix.h"

namespace everyShape {

class Brook;

/// What is odd about entities: nodes of their own, references to what stands below, bodies by hand.
class Grove : public Mox::Entity {
 public:
  using Ptr = Mox::Ptr<Grove>;
  using PtrConst = Mox::Ptr<Grove const>;

  class NotifieeConst;
  class Notifiee;
  class _Type;
  class GenericIf_;
  struct Tags;

  /// A node of `tree`.
  class MoxTree : public Mox::MapNode<Mox::Name, Mox::Ptr<Leaf>> {
   public:
    using MapNode::MapNode;
  };
  using TreeMap = Mox::HashMap<MoxTree, Mox::Name, Mox::Ptr<Leaf>>;

  /// A node of `row`.
  class MoxRow : public Mox::RbTreeNode<U8, Mox::Ptr<Leaf>> {
   public:
    using RbTreeNode::RbTreeNode;
  };
  using RowMap = Mox::RbTreeMap<MoxRow, U8, Mox::Ptr<Leaf>>;

  /// A node of `byLevel`.
  class MoxByLevel : public Mox::MapNode<Level, Knob> {
   public:
    using MapNode::MapNode;
  };
  using ByLevelMap = Mox::HashMap<MoxByLevel, Level, Knob>;

  explicit Grove(Mox::Name const& name);
  ~Grove() override;

  Mox::Ptr<Leaf> tree(Mox::Name const& name) const;
  /// The child under that key, made if it is missing, which steps the version and calls
  /// `onTree(key)`.  One that exists is returned as it stands.
  Mox::Ptr<Leaf> treeIs(Mox::Name const& name, U8 lane, Mix mix);
  /// Makes and inserts without a word to version and notifiees; the key must be absent.
  Mox::Ptr<Leaf> newTree(Mox::Name const& name, U8 lane, Mix mix);
  /// Detaches the child under that key and returns it; null without one.
  Mox::Ptr<Leaf> treeDel(Mox::Name const& name);
  Mox::Ptr<Leaf> treeDel(TreeMap::Iterator const& at);
  void treeDelAll();
  /// Calls `onTree(key)`.
  void treeNotify(Mox::Name const& key);
  U32 treeCount() const { return tree_.count(); }
  TreeMap::Iterator treeIterator() { return TreeMap::Iterator(tree_); }
  TreeMap::IteratorConst treeIteratorConst() const { return TreeMap::IteratorConst(tree_); }

  Mox::Ptr<Leaf> row(U8 key) const;
  /// Sets the value under `key`; a change steps the version and calls `onRow(key)`.
  void rowIs(U8 key, Mox::Ptr<Leaf> const& value);
  /// Inserts without a word to version and notifiees; the key must be absent.
  Mox::Ptr<MoxRow> newRow(U8 key, Mox::Ptr<Leaf> const& value);
  /// Removes, and returns the value that stood there; for a missing key the default of the type.
  Mox::Ptr<Leaf> rowDel(U8 key);
  Mox::Ptr<Leaf> rowDel(RowMap::Iterator const& at);
  void rowDelAll();
  /// Calls `onRow(key)`.
  void rowNotify(U8 key);
  U32 rowCount() const { return row_.count(); }
  RowMap::Iterator rowIterator() { return RowMap::Iterator(row_); }
  RowMap::IteratorConst rowIteratorConst() const { return RowMap::IteratorConst(row_); }

  U32 treeSum() const;

  U8 prune(U8 from, Knob const& knob) const;

  Mox::Ptr<Brook> brook() const;
  /// Refers to `target` from now on, or to nothing; a change steps the version and calls
  /// `onBrook()`.
  void brookIs(Mox::Ptr<Brook> const& target);

  Level level() const { return moxRead(level_); }
  /// Sets `level`; a change steps the version and calls `onLevel()`.
  void levelIs(Level value);

  Knob byLevel(Level key) const;
  /// Sets the value under `key`; a change steps the version and calls `onByLevel(key)`.
  void byLevelIs(Level key, Knob const& value);
  /// Inserts without a word to version and notifiees; the key must be absent.
  Mox::Ptr<MoxByLevel> newByLevel(Level key, Knob const& value);
  /// Removes, and returns the value that stood there; for a missing key the default of the type.
  Knob byLevelDel(Level key);
  Knob byLevelDel(ByLevelMap::Iterator const& at);
  void byLevelDelAll();
  /// Calls `onByLevel(key)`.
  void byLevelNotify(Level key);
  U32 byLevelCount() const { return byLevel_.count(); }
  ByLevelMap::Iterator byLevelIterator() { return ByLevelMap::Iterator(byLevel_); }
  ByLevelMap::IteratorConst byLevelIteratorConst() const {
    return ByLevelMap::IteratorConst(byLevel_);
  }

  void water();

  Mox::String8 attributeString(Mox::AttributeId id) const override;
  bool moxHasAttrLogInterface() const override { return true; }
  void zeroReferencesIs(bool zero) override;
  Mox::MoxType const* fwkType() const override;
  static Mox::MoxType* _fwkType();

  /// Who observes this entity.
  Mox::ListRaw<NotifieeConst>& moxNotifiees() const { return notifiees_; }

 private:
  TreeMap tree_{4};
  RowMap row_;
  Mox::Ptr<Brook> brook_;
  Level level_{};
  ByLevelMap byLevel_{4};
  mutable Mox::ListRaw<NotifieeConst> notifiees_;
};

/// Observes a `Grove`; each hook is empty.
class Grove::NotifieeConst : public Mox::Entity::NotifieeConst {
 public:
  NotifieeConst();
  ~NotifieeConst() override;

  Grove::PtrConst notifier() const;
  void notifierIs(Mox::Ptr<Mox::PtrInterface const> const& notifier) override;
  void isRegisteredNotifieeIs(bool registered) const override;

  static Mox::NotifieeLevel const moxLevel_;

  /// Told of each change under a key.  The two without a key are the runtime's: no mutator calls them.
  virtual void onTree(Mox::Name) {}
  virtual void onTreemoxImmediate() {}
  virtual void onTree() {}
  /// Told of each change under a key.  The two without a key are the runtime's: no mutator calls them.
  virtual void onRow(U8) {}
  virtual void onRowmoxImmediate() {}
  virtual void onRow() {}
  virtual void onBrook() {}
  virtual void onLevel() {}
  /// Told of each change under a key.  The two without a key are the runtime's: no mutator calls them.
  virtual void onByLevel(Level) {}
  virtual void onByLevelmoxImmediate() {}
  virtual void onByLevel() {}
};

/// Observes a `Grove` that it may write to.
class Grove::Notifiee : public Grove::NotifieeConst {
 public:
  Grove::Ptr notifier() const;
};

/// Makes a free-standing `Grove`, without a parent.
Mox::Ptr<Grove> groveFactory(Mox::Name const& name);

}  // namespace everyShape
