// The listing of types for readers.
#include "tools/kestrel/Types.h"

#include "tools/kestrel/TypeDump.h"

#include <algorithm>
#include <ostream>

namespace kestrel {

namespace {

std::string typeText(AttributeDump const& attribute) {
  return attribute.key ? *attribute.key + " -> " + attribute.type : attribute.type;
}

std::string headLine(TypeDump const& type) {
  std::string line = type.kind + (" " + type.name);
  if (type.base) line += " : " + *type.base;
  std::string separator = " (";
  for (ArgumentDump const& argument : type.constructor) {
    line += separator + argument.name + " " + argument.type;
    separator = ", ";
  }
  if (!type.constructor.empty()) line += ")";
  return line + ", " + std::to_string(type.size) + " bytes\n";
}

void printType(TypeDump const& type, std::ostream& out) {
  std::size_t nameWidth = 0;
  std::size_t typeWidth = 0;
  for (AttributeDump const& attribute : type.attributes) {
    nameWidth = std::max(nameWidth, attribute.name.size());
    typeWidth = std::max(typeWidth, typeText(attribute).size());
  }
  out << headLine(type);
  for (AttributeDump const& attribute : type.attributes)
    out << Mox::format("  %3u  %-*s  %-*s  %9s %10s  %u\n", attribute.id,
                       static_cast<int>(nameWidth), attribute.name.c_str(),
                       static_cast<int>(typeWidth), typeText(attribute).c_str(),
                       flagText(attribute.flags.first).c_str(),
                       flagText(attribute.flags.second).c_str(), attribute.introspection);
}

}  // namespace

void printTypes(std::ostream& out) {
  for (ModuleDump const& module : dumpModules()) {
    out << "module " << module.name << '\n';
    for (TypeDump const& type : module.types) {
      out << '\n';
      printType(type, out);
    }
    out << '\n';
  }
}

}  // namespace kestrel
