// The tables that say what a type is made of, and the pass that registers it.
#pragma once

#include "Mox/MoxType.h"

#include <span>

namespace frame {

/// Gives a type's descriptor, making it where that is needed.
using TypeOf = Mox::MoxType* (*)();

/// One constructor argument, and the name of its type.
struct ArgRow {
  char const* name;
  char const* type;
};

/// How the runtime is to enter an attribute.
enum class Entry : U8 {
  declared,  ///< by the type's generic form
  replaced,  ///< declared, struck, and made anew: elements give their own key, or are instantiated
};

/// One attribute of a type.
struct AttributeRow {
  Mox::AttributeId id;
  char const* name;
  TypeOf type;
  TypeOf key;  ///< null for a scalar
  Mox::MoxAttr::AttrFlags flags;
  U8 introspection;
  Entry entry = Entry::declared;
  char const* keyAttr = "";           ///< the element's attribute that gives its key
  std::span<ArgRow const> args = {};  ///< of an instantiating attribute, and of an operation
};

/// What a type is; a bare object has none of the descriptor's kind flags.
enum class TypeKind : U8 { value, enumeration, entity, object, bareObject };

/// One type; attributes in the order of declaration.
struct TypeRow {
  char const* name;
  char const* fullName;
  TypeKind kind;
  TypeOf descriptor;
  TypeOf base;  ///< null for a type that derives from none
  U32 size;
  std::span<ArgRow const> args;
  std::span<AttributeRow const> attributes;
  /// Where the loaded module keeps its attributes' descriptors, one for each row, for access by
  /// number: nobody looks them up by name again.
  Mox::MoxAttr const** attributeCache;
  /// The attribute of a single-field value that is the value.
  char const* valueAttribute = nullptr;
};

/// A type's descriptor: the one in `slot`; else the one that the module's routine has put there
/// meanwhile; else a new bare one, immortal, entered in its base's queue of derived types.
Mox::MoxType* descriptor(Mox::MoxType*& slot, void (*initialiseModule)(), Mox::MoxType* (*make)());

template <class Type>
Mox::MoxType* descriptor(Mox::MoxType*& slot, void (*initialiseModule)()) {
  return descriptor(slot, initialiseModule, []() -> Mox::MoxType* { return new Type; });
}

/// Opens a type, fills its descriptor from the row, and closes it.
void describe(Mox::IntrospectionReactor& reactor, TypeRow const& row);

/// The name of attribute `id` by the rows of one class; null for an id that isn't there.
char const* attributeName(std::span<AttributeRow const> rows, Mox::AttributeId id);

}  // namespace frame
