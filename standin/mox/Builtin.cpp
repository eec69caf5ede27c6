// Descriptors of the primitives.
#include "Mox/BoundedIntegers.h"
#include "Mox/MoxType.h"

namespace Mox {

template <>
MoxType* Builtin<void>::_fwkType() {
  return MoxType::opaque("void");
}
template <>
MoxType* Builtin<void*>::_fwkType() {
  return MoxType::opaque("VoidPtr");
}
template <>
MoxType* Builtin<bool>::_fwkType() {
  return MoxType::opaque("bool");
}
template <>
MoxType* Builtin<U8>::_fwkType() {
  return MoxType::opaque("U8");
}
template <>
MoxType* Builtin<S8>::_fwkType() {
  return MoxType::opaque("S8");
}
template <>
MoxType* Builtin<U16>::_fwkType() {
  return MoxType::opaque("U16");
}
template <>
MoxType* Builtin<U32>::_fwkType() {
  return MoxType::opaque("U32");
}
template <>
MoxType* Builtin<S32>::_fwkType() {
  return MoxType::opaque("S32");
}
template <>
MoxType* Builtin<U64>::_fwkType() {
  return MoxType::opaque("U64");
}
template <>
MoxType* Builtin<double>::_fwkType() {
  return MoxType::opaque("double");
}
template <>
MoxType* Builtin<String8>::_fwkType() {
  return MoxType::opaque("Mox::String");
}

MoxType* boundedType(char const* name, MoxType* storage, std::size_t size) {
  MoxType* const type = MoxType::opaque(name);
  if (type->valAttr()) return type;
  constexpr MoxAttr::AttrFlags mutableField{0x22010F, 0x400};
  type->sizeIs(static_cast<U32>(size));
  type->isValueIs(true);
  type->hasGenericIfSupportIs(true);
  auto const value = type->defNoninstantiatingAttr(storage, "value", nullptr, mutableField, 2, 2);
  type->attributeQEnq(value);
  type->valAttrIs(value.ptr());
  return type;
}

}  // namespace Mox

Mox::MoxType* U1::_fwkType() { return Mox::boundedType<U1>("U1"); }
Mox::MoxType* U4::_fwkType() { return Mox::boundedType<U4>("U4"); }
Mox::MoxType* U6::_fwkType() { return Mox::boundedType<U6>("U6"); }
Mox::MoxType* U22::_fwkType() { return Mox::boundedType<U22>("U22"); }
