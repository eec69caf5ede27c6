// What the descriptors of the library's types hold, as plain data.
#pragma once

#include "Mox/MoxType.h"

#include <optional>
#include <string>
#include <vector>

namespace kestrel {

struct ArgumentDump {
  std::string name;
  std::string type;
};

struct AttributeDump {
  Mox::AttributeId id;
  std::string name;
  std::string type;
  std::optional<std::string> key;  ///< the key's type; none for a scalar
  Mox::MoxAttr::AttrFlags flags;
  U32 introspection;
};

struct TypeDump {
  std::string name;
  char const* kind;  ///< "value", "enumeration", "entity" or "object"
  std::optional<std::string> base;
  U32 size;  ///< bytes
  std::vector<ArgumentDump> constructor;
  std::vector<AttributeDump> attributes;  ///< its own, in the order of declaration
};

struct ModuleDump {
  char const* name;
  std::vector<TypeDump> types;  ///< in the order of registration
};

/// "0x220143".
std::string flagText(U32 word);

/// The modules in the order in which they are loaded.
std::vector<ModuleDump> dumpModules();

}  // namespace kestrel
