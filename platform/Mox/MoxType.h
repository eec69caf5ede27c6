// Descriptors of types and attributes, and the reactor that registers them.
#pragma once

#include "Mox/Entity.h"
#include "Mox/GenericIf.h"
#include "Mox/HashMap.h"
#include "Mox/LinkQueue.h"

#include <vector>

namespace Mox {

class Dir;
class MoxType;

/// Describes one attribute: what it is called, what it holds, how it is keyed.  Also the scope of
/// the attributes declared in it, which is how a type holds its own.
class MoxAttr : public Entity {
 public:
  /// A pair of words that the runtime interprets.
  struct AttrFlags {
    U32 first = 0;
    U32 second = 0;

    bool operator==(AttrFlags const&) const = default;
  };

  MoxAttr(Name const& name, MoxType const* type, MoxType const* keyType, AttrFlags flags,
          AttributeId id);
  ~MoxAttr() override;

  /// Type of the value, or of a collection's values.
  MoxType const* type() const noexcept { return type_; }
  /// Type of a collection's key; null for a scalar.
  MoxType const* keyType() const noexcept { return keyType_; }
  void keyTypeIs(MoxType const* keyType) noexcept { keyType_ = keyType; }
  /// The attribute of the element that gives its key; empty where the key stands apart.
  Name const& keyAttr() const noexcept { return keyAttr_; }
  AttrFlags flags() const noexcept { return flags_; }
  /// Whether what it holds is made and owned by the entity.
  bool isInstantiating() const noexcept { return (flags_.second & 0x10000000) != 0; }
  /// Whether it is called, not read.
  bool isOperation() const noexcept {
    return introspectionFlags_ == 8 && (flags_.first & ~U32{1}) == 0x20000;
  }
  AttributeId id() const noexcept { return id_; }
  U32 introspectionFlags() const noexcept { return introspectionFlags_; }
  void introspectionFlagsIs(U32 flags) noexcept { introspectionFlags_ = flags; }

  /// Enters the name, and the type's name, of one more constructor argument.
  void constructorArgNameQEnq(Name const& name) { argNames_.push_back(name); }
  void constructorArgTypeQEnq(Name const& type) { argTypes_.push_back(type); }
  std::vector<Name> const& constructorArgNames() const noexcept { return argNames_; }
  std::vector<Name> const& constructorArgTypes() const noexcept { return argTypes_; }

  /// The attribute of that name in this scope; null where there is none.  Linear.
  Ptr<MoxAttr> attr(Name const& name) const;
  /// Strikes the attribute of that name and returns it.
  Ptr<MoxAttr> attrDel(Name const& name);
  /// Makes an attribute whose elements give their own key, by their attribute `keyAttr` (empty for
  /// a scalar), and enters it.  The fourth argument is always null.
  Ptr<MoxAttr> attrIs(Name const& name, MoxType const* type, Name const& keyAttr, std::nullptr_t,
                      AttrFlags flags, AttributeId id);

  MoxType const* fwkType() const override;

 protected:
  std::vector<Ptr<MoxAttr>> attributes_;  // in the order of declaration

 private:
  MoxType const* type_;
  MoxType const* keyType_;
  Name keyAttr_;
  AttrFlags flags_;
  AttributeId id_;
  U32 introspectionFlags_ = 0;
  std::vector<Name> argNames_;
  std::vector<Name> argTypes_;
};

/// What the runtime keeps of a type beside its attributes.
struct MoxTypeFlags {
  bool value = false;
  bool entity = false;
  bool enumType = false;
  bool genericIfSupport = false;
};

/// Describes one type.  Descriptors are immortal: there is one for each type, made on first use.
class MoxType : public MoxAttr {
 public:
  /// `base` is null for a type that derives from none.
  MoxType(Name const& shortName, MoxType* scope, MoxType* base, MoxTypeFlags const& flags);
  ~MoxType() override;

  MoxType* base() const noexcept { return base_; }
  /// The name with its namespace: what `handleType` gave, else the short name.
  Name const& fullTypeName() const noexcept { return fullTypeName_; }
  void fullTypeNameIs(Name const& name) { fullTypeName_ = name; }

  U32 size() const noexcept { return size_; }
  void sizeIs(U32 size) noexcept { size_ = size; }
  bool isValue() const noexcept { return flags_.value; }
  void isValueIs(bool value) noexcept { flags_.value = value; }
  bool isEntity() const noexcept { return flags_.entity; }
  void isEntityIs(bool entity) noexcept { flags_.entity = entity; }
  bool isEnumType() const noexcept { return flags_.enumType; }
  void isEnumTypeIs(bool enumType) noexcept { flags_.enumType = enumType; }
  bool hasGenericIfSupport() const noexcept { return flags_.genericIfSupport; }
  void hasGenericIfSupportIs(bool support) noexcept { flags_.genericIfSupport = support; }

  /// The attribute that stands for a single-field value.
  MoxAttr const* valAttr() const noexcept { return valAttr_; }
  void valAttrIs(MoxAttr const* attr) noexcept { valAttr_ = attr; }

  /// Declares an attribute and enters it.  `keyType` is null for a scalar.
  Ptr<MoxAttr> defNoninstantiatingAttr(MoxType const* type, Name const& name,
                                       MoxType const* keyType, AttrFlags flags,
                                       U32 introspectionFlags, AttributeId id);
  /// Enters an attribute that was made apart: one of the base, or one from `attrIs`.
  void attributeQEnq(Ptr<MoxAttr> const& attribute);
  using AttributeQ = LinkQueue<MapNode<AttributeId, Ptr<MoxAttr>>, AttributeId, Ptr<MoxAttr>>;
  /// This type's attributes by id, in the order of declaration, those of the base first.
  AttributeQ const& attributeQ() const noexcept { return queue_; }
  /// The attribute of that id, the base's included; null where there is none.
  MoxAttr const* attributeById(AttributeId id) const noexcept;
  /// The attribute of that name, the base's included; null where there is none.  Constant on
  /// average.
  MoxAttr const* attributeByName(String8 const& name) const;

  void derivedTypeQEnq(MoxType* derived) { derived_.push_back(derived); }
  std::vector<MoxType*> const& derivedTypeQ() const noexcept { return derived_; }

  /// Makes a free-standing root entity as its factory does, for the platform's tools, which name a
  /// directory that is not looked at.  Null for a type that isn't a root.
  virtual Ptr<Entity> newEntity(Name const& name, Dir* dir) const;

  /// The interface of a value of this type, copied from `value`; of an object or entity, to which a
  /// `PtrInterface const*` at `value` points, or which is null.  Held by the caller (a primitive's
  /// by the runtime too, for its next use).  Raises
  /// `OpNotSupportedException` for a type without reflective access.
  virtual Ptr<GenericIf> genericIf(void const* value, bool isConst) const;
  /// The same from a text form: a value's own, an entity's reference (Strep.h).  Raises
  /// `RangeException` for a text that isn't one, and `TypeException` for an entity of another type.
  virtual Ptr<GenericIf> genericIf(String8 const& text, bool isConst) const;
  /// A literal is a text, and no address of a value.
  Ptr<GenericIf> genericIf(char const* text, bool isConst) const {
    return genericIf(String8(text), isConst);
  }
  /// The interface of an object or entity of this type; null gives one of no entity.  Raises
  /// `TypeException` for one of another type.
  virtual Ptr<GenericIf> genericIf_(PtrInterface* object, bool isConst) const;

  /// Registers a type under its full name; a later one of the same name takes its place.
  static void typeNodeIs(MoxType const* type, Name const& fullName);
  /// The type of that full name; null where there is none.
  static MoxType const* typeNode(Name const& fullName);

  MoxType const* fwkType() const override { return _fwkType(); }
  static MoxType* _fwkType();

  /// The descriptor of a type that is known by name alone, made on first use.
  static MoxType* opaque(char const* name);

 private:
  void indexNames() const;

  MoxType* base_;
  Name fullTypeName_;
  U32 size_ = 0;
  MoxTypeFlags flags_;
  MoxAttr const* valAttr_ = nullptr;
  AttributeQ queue_;
  using NameIndex = HashMap<MapNode<String8, MoxAttr const*>, String8, MoxAttr const*>;
  mutable NameIndex byName_;  // of the queue, made when it is asked for
  std::vector<MoxType*> derived_;
};

/// Makes a descriptor immortal: a reference that nobody drops, struck from the tracker.
MoxType* immortal(MoxType* type);

/// Opens and closes types while a module describes itself.  One per process; before it is ready,
/// modules leave their types bare.
class IntrospectionReactor : public PtrInterface {
 public:
  static Ptr<IntrospectionReactor> global();

  bool ready() const noexcept { return ready_; }
  void readyIs(bool ready) noexcept { ready_ = ready; }

  /// Opens a namespace for the types that follow.
  void handleNameSpace(char const* name);
  void handleType(Ptr<MoxType const> const& type, Ptr<MoxType const> const& base);
  void handleAttr(Ptr<MoxAttr> const& attribute);
  void handleAttrContextExit();
  void handleScopeExit();

  /// Types in the order in which they were opened.
  std::vector<MoxType const*> const& types() const noexcept { return types_; }
  /// How deep in types and attributes the reactor stands; 0 between types.
  U32 depth() const noexcept { return depth_; }

 private:
  bool ready_ = true;
  U32 depth_ = 0;
  String8 nameSpace_;
  std::vector<MoxType const*> types_;
};

}  // namespace Mox
