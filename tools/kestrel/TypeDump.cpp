// Reads descriptors.
#include "tools/kestrel/TypeDump.h"

#include "Kestrel/Kestrel.module.h"
#include "Kestrel/XpTableCliHelper.module.h"
#include "Kestrel/XpTableManSm.module.h"

namespace kestrel {

namespace {

std::string nameText(Mox::Name const& name) { return std::string(name.view()); }

std::optional<std::string> typeName(Mox::MoxType const* type) {
  if (!type) return std::nullopt;
  return nameText(type->fullTypeName());
}

char const* kindOf(Mox::MoxType const& type) {
  if (type.isEnumType()) return "enumeration";
  if (type.isValue()) return "value";
  return type.isEntity() ? "entity" : "object";
}

std::vector<ArgumentDump> dumpConstructor(Mox::MoxType const& type) {
  std::vector<ArgumentDump> arguments;
  auto const& types = type.constructorArgTypes();
  for (Mox::Name const& name : type.constructorArgNames())
    arguments.push_back({nameText(name), nameText(types[arguments.size()])});
  return arguments;
}

AttributeDump dumpAttribute(Mox::MoxAttr const& attribute) {
  return {attribute.id(),
          nameText(attribute.name()),
          typeName(attribute.type()).value_or(""),
          typeName(attribute.keyType()),
          attribute.flags(),
          attribute.introspectionFlags()};
}

// The queue has the base's attributes ahead of the type's own.
std::vector<AttributeDump> dumpAttributes(Mox::MoxType const& type) {
  std::vector<AttributeDump> attributes;
  U32 inherited = type.base() ? type.base()->attributeQ().count() : 0;
  for (auto const& entry : type.attributeQ())
    if (inherited > 0)
      --inherited;
    else
      attributes.push_back(dumpAttribute(*entry.value()));
  return attributes;
}

TypeDump dumpType(Mox::MoxType const& type) {
  return {nameText(type.fullTypeName()), kindOf(type),        typeName(type.base()), type.size(),
          dumpConstructor(type),         dumpAttributes(type)};
}

ModuleDump dumpModule(char const* name, frame::Module const& module) {
  ModuleDump dump{name, {}};
  for (frame::TypeRow const* row : module.types())
    dump.types.push_back(dumpType(*row->descriptor()));
  return dump;
}

}  // namespace

std::string flagText(U32 word) { return std::string(Mox::format("0x%X", word).view()); }

std::vector<ModuleDump> dumpModules() {
  return {dumpModule("Kestrel", Kestrel::moxModuleKestrel()),
          dumpModule("XpTableManSm", Kestrel::moxModuleXpTableManSm()),
          dumpModule("XpTableCliHelper", Kestrel::moxModuleXpTableCliHelper())};
}

}  // namespace kestrel
