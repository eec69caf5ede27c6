// The names that templates see, made from rows, arguments and type uses.
#pragma once

#include "tools/schemac/Scope.h"
#include "tools/schemac/Symbols.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace schemac {

std::string capitalised(std::string_view name);
std::string uncapitalised(std::string_view name);

/// Sets a name for each option that can stand at `place`: its argument, a flag, or empty.
void addOptions(Scope& scope, std::string_view place, Options const& options);

/// The lines of `doc` as list `doc`.
void addDoc(Scope& scope, std::vector<std::string> const& doc);

/// Makes scopes out of one schema, which has passed the check.
struct Names {
  Symbols const& symbols;
  Schema const& schema;

  /// The type of the row's key, given or looked up in the element; nothing for a row without key.
  std::optional<TypeUse> keyType(Type const& type, Row const& row) const;
  /// The row's arguments, given or those of the element's constructor.
  Arguments arguments(Type const& type, Row const& row) const;
  /// True for an entity that a collection of this schema holds as its node.
  bool isElement(Type const& type) const;

  /// All below as seen inside of `type`.
  /// The default as C++ spells it; "" for none.
  std::string defaultText(Type const& type, Row const& row) const;
  Scope rowScope(Type const& type, Row const& row) const;
  Scope argumentScope(Type const& type, Argument const& argument) const;
  Scope useScope(Type const& type, TypeUse const& use) const;
  Scope symbolScope(Type const& type, Symbol const& symbol) const;
};

}  // namespace schemac
