// Types where a type of a schema uses them.
#pragma once

#include "tools/schemac/Diagnostics.h"
#include "tools/schemac/Symbols.h"

#include <string>
#include <string_view>

namespace schemac {

/// Kinds of types, as words.
inline constexpr std::string_view anyKind = "primitive value enum entity object";
inline constexpr std::string_view plainKinds = "primitive value enum";
inline constexpr std::string_view countedKinds = "entity object";

/// "a value", "an entity".
std::string withArticle(std::string_view word);

/// Looks types up for `type`, and reports those that can't be used.
class TypeUses {
 public:
  TypeUses(Symbols const& symbols, Type const& type, Diagnostics& diagnostics)
      : symbols_(symbols), type_(type), diagnostics_(diagnostics) {}

  /// The symbol of `use`; null without a word.
  Symbol const* find(TypeUse const& use) const { return symbols_.find(type_.space, use); }
  /// The symbol of `use`; null if reported.
  Symbol const* known(TypeUse const& use);
  /// The same of a type that must be of one of `kinds`.
  Symbol const* typed(TypeUse const& use, std::string_view kinds);
  bool same(TypeUse const& a, TypeUse const& b) const;
  bool isInteger(TypeUse const& use) const;

 private:
  Symbols const& symbols_;
  Type const& type_;
  Diagnostics& diagnostics_;
};

}  // namespace schemac
