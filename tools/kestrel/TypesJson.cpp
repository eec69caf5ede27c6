// The listing of types as JSON.
#include "tools/kestrel/TypeDump.h"
#include "tools/kestrel/Types.h"

#include <nlohmann/json.hpp>
#include <ostream>

namespace kestrel {

using Json = nlohmann::ordered_json;

namespace {

Json orNull(std::optional<std::string> const& text) { return text ? Json(*text) : Json(); }

}  // namespace

// Found by the JSON library in the namespace of what they take.

static void to_json(Json& json, ArgumentDump const& argument) {
  json = {{"name", argument.name}, {"type", argument.type}};
}

static void to_json(Json& json, AttributeDump const& attribute) {
  auto const [first, second] = attribute.flags;
  json = {{"id", attribute.id},
          {"name", attribute.name},
          {"type", attribute.type},
          {"key", orNull(attribute.key)},
          {"flags", {flagText(first), flagText(second)}},
          {"introspection", attribute.introspection}};
}

static void to_json(Json& json, TypeDump const& type) {
  json = {{"name", type.name},
          {"kind", type.kind},
          {"base", orNull(type.base)},
          {"size", type.size},
          {"constructor", type.constructor},
          {"attributes", type.attributes}};
}

static void to_json(Json& json, ModuleDump const& module) {
  json = {{"name", module.name}, {"types", module.types}};
}

void printTypesAsJson(std::ostream& out) {
  out << Json{{"modules", dumpModules()}}.dump(1) << '\n';
}

}  // namespace kestrel
