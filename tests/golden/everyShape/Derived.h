// everyShape::Derived.  Made by schemac from everyShape.schema.
#pragma once

#include "Mox/Mox.h"
#include "everyShape/Every.h"

namespace everyShape {

/// An entity whose notifiees stand in the list of its base.
class Derived : public Every {
 public:
  using Ptr = Mox::Ptr<Derived>;
  using PtrConst = Mox::Ptr<Derived const>;

  class NotifieeConst;
  class Notifiee;
  class _Type;
  class GenericIf_;
  struct Tags;

  /// A node of `marks`.
  class MoxMarks : public Mox::MapNode<U8, bool> {
   public:
    using MapNode::MapNode;
  };
  using MarksMap = Mox::HashMap<MoxMarks, U8, bool>;

  Derived(Mox::Name const& name, U16 port);
  ~Derived() override;

  U32 extra() const { return moxRead(extra_); }
  /// Sets `extra`; a change steps the version and calls `onExtra()`.
  void extraIs(U32 value);

  bool marks(U8 key) const;
  /// Sets the value under `key`; a change steps the version and calls `onMarks(key)`.
  void marksIs(U8 key, bool value);
  /// Inserts without a word to version and notifiees; the key must be absent.
  Mox::Ptr<MoxMarks> newMarks(U8 key, bool value);
  /// Removes, and returns the value that stood there; for a missing key the default of the type.
  bool marksDel(U8 key);
  bool marksDel(MarksMap::Iterator const& at);
  void marksDelAll();
  /// Calls `onMarks(key)`.
  void marksNotify(U8 key);
  U32 marksCount() const { return marks_.count(); }
  MarksMap::Iterator marksIterator() { return MarksMap::Iterator(marks_); }
  MarksMap::IteratorConst marksIteratorConst() const { return MarksMap::IteratorConst(marks_); }

  Mox::String8 attributeString(Mox::AttributeId id) const override;
  bool moxHasAttrLogInterface() const override { return true; }
  void zeroReferencesIs(bool zero) override;
  Mox::MoxType const* fwkType() const override;
  static Mox::MoxType* _fwkType();

 private:
  U32 extra_ = 0;
  MarksMap marks_{4};
};

/// Observes a `Derived`; each hook is empty.
class Derived::NotifieeConst : public Every::NotifieeConst {
 public:
  NotifieeConst();
  ~NotifieeConst() override;

  Derived::PtrConst notifier() const;
  void notifierIs(Mox::Ptr<Mox::PtrInterface const> const& notifier) override;

  static Mox::NotifieeLevel const moxLevel_;

  virtual void onExtra() {}
  /// Told of each change under a key.  The two without a key are the runtime's: no mutator calls them.
  virtual void onMarks(U8) {}
  virtual void onMarksmoxImmediate() {}
  virtual void onMarks() {}
};

/// Observes a `Derived` that it may write to.
class Derived::Notifiee : public Derived::NotifieeConst {
 public:
  Derived::Ptr notifier() const;
};

}  // namespace everyShape
