// Access by attribute number: the face that values, enumerators, objects and entities show to
// tools that don't know their class.
#pragma once

#include "Mox/LinkQueue.h"
#include "Mox/Notifiee.h"

namespace Mox {

class MoxType;

/// The interface, in names the `face`, of one value, enumerator, object or entity.
///
/// A value's interface holds a copy of the value, an object's holds the object.  An entity's
/// doesn't keep the entity alive: once that has gone, `RangeException` "null <type>" is raised by
/// what reads or writes its attributes.
///
/// What an interface can't do raises an exception of its own (Exception.h).  The `throw...`
/// operations take the words that the complaint is about, and return to nobody.
class GenericIf : public PtrInterface::NotifieeConst {
 public:
  using Ptr = Mox::Ptr<GenericIf>;
  using PtrConst = Mox::Ptr<GenericIf const>;

  /// What is asked of an attribute: below 128 something is read, from 128 on something is written.
  using OpId = U32;
  static constexpr OpId opRead = 0;      ///< the value; of a collection that under `index`
  static constexpr OpId opCount = 1;     ///< elements of a collection, as U32
  static constexpr OpId opChanges = 2;   ///< changes of a collection, modulo 2^32, as U32
  static constexpr OpId opIsMember = 3;  ///< whether a collection has `index`, as bool
  static constexpr OpId opWrite = 128;   ///< sets `value`, under `index` in a collection
  static constexpr OpId opErase = 129;   ///< removes the element under `index`
  static constexpr OpId firstWrite = 128;

  /// One attribute, and what is asked of it.
  struct AttributeOp {
    AttributeId attrId;
    OpId opId = opRead;
  };

  class AttributeIteratorConst;
  class IteratorState;
  class List_;

  /// Null, for an index or value that isn't given.  Spares the caller the temporary that `nullptr`
  /// makes.
  static PtrConst const notGiven;

  GenericIf(MoxType const* type, bool isConst) : type_(type), isConst_(isConst) {}
  ~GenericIf() override;

  /// Does what `op` asks.  What is read comes back as an interface of the attribute's type, for an
  /// entity or object of the class that it is of, as constant as this one; what is written answers
  /// null, an operation of an object its result.
  ///
  /// Raises, in this order: `ConstException` for a write to a constant interface, whatever the
  /// attribute; `UnknownAttrException` for an attribute that the type doesn't have;
  /// `RangeException` "null <type>" without an entity; `BadIndexAttrException` for an index where
  /// an attribute is no collection, or elements bear their own keys; `OpNotSupportedException`;
  /// `TypeException` for an index or a value of another type than the attribute's, or none; and
  /// what the mutator itself raises.
  virtual Ptr attributeOp(AttributeOp op, PtrConst const& index = notGiven,
                          PtrConst const& value = notGiven);

  /// A walk over a collection from its first element on, or from `key` on; where that is absent,
  /// from the element behind its place.  It survives every change of the collection.
  virtual AttributeIteratorConst attributeIteratorConst(AttributeId id) const;
  virtual AttributeIteratorConst attributeIteratorKeyConst(AttributeId id,
                                                           PtrConst const& key) const;
  // What `AttributeIteratorConst` does, by the names of the platform.
  virtual Ptr attributeIterator_iterObj(AttributeIteratorConst const& at);
  virtual PtrConst attributeIterator_iterObj(AttributeIteratorConst const& at) const;
  virtual void attributeIterator_iterInc(AttributeIteratorConst& at) const;
  virtual PtrConst attributeIterator_iterKey(AttributeIteratorConst const& at) const;
  virtual void attributeIterator_iterDel(AttributeIteratorConst& at) const;
  virtual AttributeIteratorConst attributeIterator_iterClone(
      AttributeIteratorConst const& at) const;
  virtual bool attributeIterator_nonNull(AttributeIteratorConst const& at) const;

  /// The address of what is held, for those who know the type: the value, or for an object or
  /// entity a `PtrInterface const*`, which may be null.  Raises `TypeException` unless `type` is
  /// the very type of this interface.
  virtual void const* voidPtrIs(Mox::Ptr<MoxType const> const& type) const;
  /// The descriptor of what is held.
  virtual MoxType const* type() const;
  /// The number of the attribute of that name; raises `UnknownAttrException` where there is none.
  virtual AttributeId attributeId(String8 const& name) const;
  /// Another interface of the same value, as constant as this one.
  virtual Ptr clone() = 0;
  PtrConst clone() const { return const_cast<GenericIf*>(this)->clone(); }
  /// A new value of this type, or a new entity that the result alone keeps alive, of a `List_` of
  /// its fields or constructor parameters in order; those that the list leaves out have their
  /// defaults.  Raises `TypeException` "Mox::GenericIf::List_" for what is no list, "List" for one
  /// without entries at all, and with the parameter's name for a wrong type;
  /// `UnknownArgException` for entries left over; what the constructor raises; and
  /// `OpNotSupportedException` for objects, enumerations, and entities that take a name alone.
  virtual Ptr genericIfListConstructor(PtrConst const& list) const;
  /// Parks this interface, marked for deletion and silent, or brings it back.
  virtual void moxDoZombieReactors(bool zombie);
  /// The text form: of a value that which reads back, of an entity its type and full name.
  virtual String8 strRep() const = 0;

  /// Whether writes are refused.
  bool isConst() const noexcept { return isConst_; }

  [[noreturn]] static void throwConstException(String8 const& complaint);
  [[noreturn]] static void throwBadIndexAttrException(String8 const& attribute);
  [[noreturn]] static void throwTypeException(String8 const& name);
  /// `walk` says that the attribute was to be walked, whatever `op`.
  [[noreturn]] static void throwOpNotSupportedException(String8 const& attribute, OpId op,
                                                        bool walk);
  [[noreturn]] static void throwUnknownAttrException(String8 const& type);
  [[noreturn]] static void throwUnknownArgException(String8 const& type);

  /// The address of what `given` holds, if it says that it is of the very `type`; null otherwise.
  static void const* heldBy(GenericIf const* given, MoxType const* type) noexcept {
    return given && given->type_ == type ? given->held_ : nullptr;
  }
  /// The address of what `given` holds; raises `TypeException` with `name` unless it is a `type`.
  static void const* requireHeld(GenericIf const* given, MoxType const* type, char const* name) {
    auto const* const held = heldBy(given, type);
    return held ? held : requireOther(given, type, name);
  }

 protected:
  /// Raises `ConstException` for a write to a constant interface.
  void requireWritable(AttributeOp op) const {
    if (op.opId >= firstWrite && isConst_) [[unlikely]]
      refuseWrite();
  }
  /// `held` is what `voidPtrIs` hands out.
  void heldIs(void const* held) noexcept { held_ = held; }
  void isConstIs(bool isConst) noexcept { isConst_ = isConst; }

 private:
  // Out of line, so that no caller of `requireWritable` makes the text.
  [[noreturn]] static void refuseWrite();
  // A class of its own may hold the type all the same.
  static void const* requireOther(GenericIf const* given, MoxType const* type, char const* name);

  MoxType const* type_;  // immortal
  void const* held_ = nullptr;
  bool isConst_;
};

/// What an iterator keeps of one walk: the collection, held by its owner, and the position.
class GenericIf::IteratorState : public PtrInterface {
 public:
  virtual Ptr obj(bool isConst) const = 0;
  virtual PtrConst key() const = 0;
  /// Steps on; false at the end, where nothing may be called any more.
  virtual bool inc() = 0;
  virtual Mox::Ptr<IteratorState> clone() const = 0;
};

/// A walk over one collection of the interface that made it, which it keeps.  A copy walks on by
/// itself.  The null iterator is at the end; there it has let go of the collection.
class GenericIf::AttributeIteratorConst {
 public:
  AttributeIteratorConst() = default;
  /// `state` stands on an element, or is null.
  AttributeIteratorConst(PtrConst const& genericIf, Mox::Ptr<IteratorState> state)
      : genericIf_(genericIf), state_(std::move(state)) {}
  AttributeIteratorConst(AttributeIteratorConst const& other)
      : AttributeIteratorConst(other.genericIf_, other.state_ ? other.state_->clone() : nullptr) {}
  AttributeIteratorConst(AttributeIteratorConst&& other) noexcept = default;
  AttributeIteratorConst& operator=(AttributeIteratorConst other) noexcept {
    std::swap(genericIf_, other.genericIf_);
    std::swap(state_, other.state_);
    return *this;
  }

  explicit operator bool() const noexcept { return static_cast<bool>(state_); }
  AttributeIteratorConst& operator++() {
    if (state_ && !state_->inc()) state_ = nullptr;
    return *this;
  }
  /// The element, as constant as the interface; null at the end.
  Ptr obj() const { return *this ? state_->obj(genericIf_->isConst()) : nullptr; }
  /// Its key, always constant; null at the end.
  PtrConst key() const { return *this ? state_->key() : nullptr; }
  /// Ends the walk, and lets go of what it held.
  void clear() noexcept { state_ = nullptr; }

 private:
  PtrConst genericIf_;
  Mox::Ptr<IteratorState> state_;  // null at the end
};

/// A list of interfaces, such as constructors and operations take as their arguments.
class GenericIf::List_ : public GenericIf {
 public:
  /// One entry.
  class MoxGenericIf : public MapNode<U32, PtrConst> {
   public:
    using MapNode::MapNode;
  };
  using Entries = LinkedQueue<MoxGenericIf, U32, PtrConst>;
  /// What a list holds, by position.
  class Inner : public PtrInterface {
   public:
    Entries entries;
  };

  /// An empty list.
  List_();
  /// A list of the entries of `inner`, or of none at all for null.
  explicit List_(Mox::Ptr<Inner> const& inner);

  /// Adds an entry behind the others.
  void genericIfEnq(PtrConst const& entry);
  /// Null in a list without entries at all.
  Mox::Ptr<Inner> const& list() const noexcept { return inner_; }

  /// Copies the entries of `list` to the end of `entries`; raises `TypeException`
  /// "Mox::GenericIf::List_" for null and for what is no list, "List" for one without entries at
  /// all.
  static void entriesOf(PtrConst const& list, Entries& entries);

  Ptr clone() override;
  String8 strRep() const override;
  static MoxType* _fwkType();

 private:
  Mox::Ptr<Inner> inner_;
};

}  // namespace Mox
