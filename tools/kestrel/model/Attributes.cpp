// Reads descriptors.
#include "tools/kestrel/model/Attributes.h"

#include "Mox/Exception.h"

namespace kestrel {

namespace {

bool isMachinery(MoxAttr const& attribute) {
  auto const name = attribute.moxName().view();
  return name.starts_with("mox") || name.starts_with("fwk");
}

}  // namespace

bool isObject(MoxType const& type) {
  return type.isEntity() || (!type.isValue() && type.attributeQ().count() > 0);
}

bool isText(MoxType const& type) {
  return &type == Mox::Builtin<Mox::String8>::_fwkType() || &type == Mox::Name::_fwkType();
}

MoxAttr const* onlyField(MoxType const& type) {
  if (!type.isValue() || type.isEnumType()) return nullptr;
  MoxAttr const* field = nullptr;
  for (MoxAttr const* const attribute : attributesOf(type)) {
    if (isComputed(*attribute)) continue;
    if (field || isCollection(*attribute)) return nullptr;
    field = attribute;
  }
  return field;
}

bool isCollection(MoxAttr const& attribute) { return attribute.keyType() != nullptr; }

bool isComputed(MoxAttr const& attribute) { return attribute.introspectionFlags() == 0; }

std::vector<MoxAttr const*> attributesOf(MoxType const& type) {
  std::vector<MoxAttr const*> attributes;
  if (type.isEnumType()) return attributes;
  for (auto const& entry : type.attributeQ())
    if (!isMachinery(*entry.value())) attributes.push_back(entry.value().ptr());
  return attributes;
}

MoxAttr const* attributeOf(MoxType const& type, std::string const& name) {
  return type.isEnumType() ? nullptr : type.attributeByName(Mox::String8(name));
}

std::vector<std::string> enumeratorsOf(MoxType const& enumeration) {
  std::vector<std::string> names;
  for (auto const& entry : enumeration.attributeQ())
    if (entry.value()->type() == &enumeration) names.push_back(nameOf(*entry.value()));
  return names;
}

std::string signatureOf(MoxAttr const& operation) {
  std::string text = "(";
  auto const& types = operation.constructorArgTypes();
  std::size_t argument = 0;
  for (Mox::Name const& name : operation.constructorArgNames()) {
    if (argument > 0) text += ", ";
    text.append(name.view()).append(" ").append(types[argument++].view());
  }
  text += ")";
  bool const answers = operation.type() != Mox::Builtin<void>::_fwkType();
  return answers ? text.append(" -> ").append(operation.type()->fullTypeName().view()) : text;
}

bool isNull(GenericIf const& face) {
  if (!isObject(*face.type())) return false;
  return *static_cast<Mox::PtrInterface const* const*>(face.voidPtrIs(face.type())) == nullptr;
}

GenericIf::Ptr read(GenericIf& face, MoxAttr const& attribute) {
  try {
    return face.attributeOp({attribute.id()});
  } catch (Mox::OpNotSupportedException const&) {
    return nullptr;
  }
}

U32 countOf(GenericIf& face, MoxAttr const& collection) {
  return *heldAs<U32>(*face.attributeOp({collection.id(), GenericIf::opCount}));
}

std::string countText(GenericIf& face, MoxAttr const& collection) {
  U32 const count = countOf(face, collection);
  return "{" + std::to_string(count) + (count == 1 ? " element}" : " elements}");
}

}  // namespace kestrel
