// Types where a type of a schema uses them.
#include "tools/schemac/TypeUses.h"

namespace schemac {

namespace {

std::string joined(std::string_view words) {
  std::string result(words);
  for (std::size_t at = result.find(' '); at != std::string::npos; at = result.find(' ', at + 4))
    result.replace(at, 1, " or ");
  return result;
}

}  // namespace

std::string withArticle(std::string_view word) {
  return std::string(word.find_first_of("aeiou") == 0 ? "an " : "a ") + std::string(word);
}

Symbol const* TypeUses::known(TypeUse const& use) {
  Symbol const* found = find(use);
  if (!found) {
    diagnostics_.error(use.at, "unknown type " + inQuotes(use.name));
    return nullptr;
  }
  std::string const kind = withArticle(kindName(found->kind));
  if (use.isConst && !use.isPointer && !hasWord(countedKinds, kindName(found->kind)))
    diagnostics_.error(
        use.at, "only a reference can be \"const\", and " + inQuotes(use.name) + " is " + kind);
  // A header that comes first can name a class ahead of its definition, but no enumeration.
  bool below = found->type && found->type->at.line > type_.at.line;
  if (below && found->kind == Kind::enumeration)
    diagnostics_.error(use.at, inQuotes(use.name) + " must stand above " + inQuotes(type_.name));
  return found;
}

Symbol const* TypeUses::typed(TypeUse const& use, std::string_view kinds) {
  Symbol const* found = known(use);
  if (!found || hasWord(kinds, kindName(found->kind))) return found;
  diagnostics_.error(use.at, inQuotes(use.name) + " is " + withArticle(kindName(found->kind)) +
                                 ", and " + withArticle(joined(kinds)) + " is needed");
  return nullptr;
}

bool TypeUses::same(TypeUse const& a, TypeUse const& b) const {
  return find(a) == find(b) && a.isConst == b.isConst && a.isPointer == b.isPointer;
}

bool TypeUses::isInteger(TypeUse const& use) const {
  Symbol const* type = find(use);
  return type && !use.isPointer && type->external && type->external->options.count("integer");
}

}  // namespace schemac
