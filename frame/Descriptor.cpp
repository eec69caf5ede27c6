// Registration of one type: rows in, descriptor filled.
#include "frame/Descriptor.h"

#include <algorithm>

namespace frame {

namespace {

void enqueueArgs(Mox::MoxAttr& scope, std::span<ArgRow const> args) {
  for (ArgRow const& arg : args) {
    scope.constructorArgNameQEnq(arg.name);
    scope.constructorArgTypeQEnq(arg.type);
  }
}

void setKind(Mox::MoxType& type, TypeKind kind) {
  type.isValueIs(kind == TypeKind::value || kind == TypeKind::enumeration);
  type.isEnumTypeIs(kind == TypeKind::enumeration);
  type.isEntityIs(kind == TypeKind::entity);
  type.hasGenericIfSupportIs(kind != TypeKind::bareObject);
}

void inheritAttributes(Mox::IntrospectionReactor& reactor, Mox::MoxType& type) {
  if (!type.base()) return;
  for (auto const& entry : type.base()->attributeQ()) {
    auto const& attribute = entry.value();
    type.attributeQEnq(attribute);
    reactor.handleAttr(attribute);
    reactor.handleAttrContextExit();
  }
}

// Looks among inherited attributes too.
Mox::MoxAttr const* attributeNamed(Mox::MoxType const& type, Mox::Name const& name) {
  for (auto const& entry : type.attributeQ())
    if (entry.value()->moxName() == name) return entry.value().ptr();
  return nullptr;
}

Mox::Ptr<Mox::MoxAttr> makeAttribute(Mox::MoxType& type, AttributeRow const& row) {
  auto* const valueType = row.type();
  auto* const keyType = row.key ? row.key() : nullptr;
  auto attribute = type.defNoninstantiatingAttr(valueType, row.name, keyType, row.flags,
                                                row.introspection, row.id);
  if (row.entry == Entry::declared) return attribute;
  type.attrDel(row.name);
  attribute = type.attrIs(row.name, valueType, row.keyAttr, nullptr, row.flags, row.id);
  attribute->keyTypeIs(keyType);
  attribute->introspectionFlagsIs(row.introspection);
  return attribute;
}

}  // namespace

Mox::MoxType* descriptor(Mox::MoxType*& slot, void (*initialiseModule)(), Mox::MoxType* (*make)()) {
  if (slot) return slot;
  initialiseModule();
  if (slot) return slot;
  slot = Mox::immortal(make());
  if (slot->base()) slot->base()->derivedTypeQEnq(slot);
  return slot;
}

void describe(Mox::IntrospectionReactor& reactor, TypeRow const& row) {
  Mox::MoxType& type = *row.descriptor();
  reactor.handleType(&type, type.base());
  type.sizeIs(row.size);
  setKind(type, row.kind);
  enqueueArgs(type, row.args);
  inheritAttributes(reactor, type);
  for (AttributeRow const& attributeRow : row.attributes) {
    auto const attribute = makeAttribute(type, attributeRow);
    enqueueArgs(*attribute, attributeRow.args);
    type.attributeQEnq(attribute);
    reactor.handleAttr(attribute);
    reactor.handleAttrContextExit();
  }
  if (row.valueAttribute) type.valAttrIs(attributeNamed(type, row.valueAttribute));
  reactor.handleScopeExit();
}

char const* attributeName(std::span<AttributeRow const> rows, Mox::AttributeId id) {
  auto const found =
      std::find_if(rows.begin(), rows.end(), [id](auto const& row) { return row.id == id; });
  return found == rows.end() ? nullptr : found->name;
}

}  // namespace frame
