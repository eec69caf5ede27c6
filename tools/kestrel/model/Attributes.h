// What descriptors say of types and attributes, as the commands on the model ask it.
#pragma once

#include "Mox/Builtin.h"
#include "Mox/MoxType.h"

#include <string>
#include <vector>

namespace kestrel {

using Mox::GenericIf;
using Mox::MoxAttr;
using Mox::MoxType;

inline std::string textOf(Mox::String8 const& text) { return std::string(text.view()); }
inline std::string nameOf(MoxAttr const& attribute) {
  return std::string(attribute.moxName().view());
}

/// An entity or object, which is referred to; all else is a value.
bool isObject(MoxType const& type);
bool isText(MoxType const& type);
/// The field that a value of one field stands for; null for all other types.
MoxAttr const* onlyField(MoxType const& type);

bool isCollection(MoxAttr const& attribute);
/// It follows from others and holds nothing.
bool isComputed(MoxAttr const& attribute);

/// The attributes of a type that users look at, those of the base first: all but the runtime's own
/// machinery, and none for an enumeration.
std::vector<MoxAttr const*> attributesOf(MoxType const& type);
/// The attribute of that name; null where there is none.
MoxAttr const* attributeOf(MoxType const& type, std::string const& name);

/// The names of an enumeration, in their order.
std::vector<std::string> enumeratorsOf(MoxType const& enumeration);

/// "(tableId U32) -> Mox::String", without an arrow where nothing comes back.
std::string signatureOf(MoxAttr const& operation);

/// The value as the primitive `T`; null where it is of another type.
template <class T>
T const* heldAs(GenericIf const& face) {
  MoxType const* const type = Mox::Builtin<T>::_fwkType();
  return face.type() == type ? static_cast<T const*>(face.voidPtrIs(type)) : nullptr;
}
/// The interface of no entity or object.
bool isNull(GenericIf const& face);
/// What the attribute holds; null where it can't be read.
GenericIf::Ptr read(GenericIf& face, MoxAttr const& attribute);
/// Elements of a collection.
U32 countOf(GenericIf& face, MoxAttr const& collection);
/// "3 elements", in braces.
std::string countText(GenericIf& face, MoxAttr const& collection);

}  // namespace kestrel
