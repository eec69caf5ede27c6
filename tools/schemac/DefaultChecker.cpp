// The rules on defaults and ranges: which numbers and words a type takes.
#include "tools/schemac/DefaultChecker.h"

#include "tools/schemac/Cursor.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace schemac {

namespace {

constexpr Bounds anyInteger = {std::numeric_limits<long long>::min() + 1,
                               std::numeric_limits<long long>::max()};

// The number that is written as people write it: no sign but a minus, no idle zeros, which C++
// would read as octal.
std::optional<long long> integerIn(std::string_view text) {
  long long number = 0;
  auto const [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (fault != std::errc() || std::to_string(number) != text) return std::nullopt;
  return number;
}

bool looksLikeInteger(std::string_view text) {
  if (text.substr(0, 1) == "-") text.remove_prefix(1);
  bool const digits = !text.empty() && text.find_first_not_of("0123456789") == text.npos;
  return digits && (text == "0" || text.front() != '0');
}

bool isDecimal(std::string_view text) {
  double number = 0;
  char const* const last = text.data() + text.size();
  auto const [end, fault] = std::from_chars(text.data(), last, number);
  return fault == std::errc() && end == last &&
         text.find_first_not_of("0123456789.-e") == std::string_view::npos;
}

std::optional<Bounds> boundsOf(Symbol const& type) {
  if (!type.external) return std::nullopt;
  auto range = type.external->options.find("range");
  if (range != type.external->options.end()) return boundsIn(range->second.text);
  if (type.external->options.count("integer")) return anyInteger;
  return std::nullopt;
}

std::string spelled(Bounds const& bounds) {
  return std::to_string(bounds.least) + " to " + std::to_string(bounds.most);
}

std::string integerFault(Bounds const& bounds, std::string const& text) {
  if (!looksLikeInteger(text))
    return "the default of an integer is a number, unlike " + inQuotes(text);
  auto const number = integerIn(text);
  if (number && *number >= bounds.least && *number <= bounds.most) return "";
  return inQuotes(text) + " is outside of " + spelled(bounds);
}

std::string enumFault(Symbol const& type, std::string const& text) {
  auto const isNamed = [&text](Row const& each) { return each.name == text; };
  // The enumerators of an enumeration from elsewhere aren't known.
  bool known = type.type ? std::ranges::any_of(type.type->rows, isNamed) : isName(text);
  if (known) return "";
  return inQuotes(text) + " is no enumerator of " + inQuotes(type.shortName);
}

std::string faultOf(Symbol const& type, TypeUse const& use, std::string const& text) {
  if (use.isPointer || hasWord(countedKinds, kindName(type.kind)))
    return "a pointer has no default but null";
  if (auto const bounds = boundsOf(type)) return integerFault(*bounds, text);
  if (type.kind == Kind::enumeration) return enumFault(type, text);
  if (type.name == "bool")
    return text == "true" || text == "false" ? "" : "the default of a \"bool\" is true or false";
  if (type.name == "double")
    return isDecimal(text) ? ""
                           : "the default of a \"double\" is a number, unlike " + inQuotes(text);
  if (isText(type)) return "";
  return inQuotes(use.name) + " has no default but its own";
}

}  // namespace

std::optional<Bounds> boundsIn(std::string_view text) {
  std::size_t const dots = text.find("..");
  if (dots == std::string_view::npos) return std::nullopt;
  auto const least = integerIn(text.substr(0, dots));
  auto const most = integerIn(text.substr(dots + 2));
  if (!least || !most || *least > *most) return std::nullopt;
  return Bounds{*least, *most};
}

void checkDefault(TypeUses const& uses, Row const& row, Diagnostics& diagnostics) {
  Symbol const* type = row.defaultValue ? uses.find(*row.type) : nullptr;
  if (!type) return;
  std::string const fault = row.range ? "a field with a range has no default but 0"
                                      : faultOf(*type, *row.type, row.defaultValue->text);
  if (!fault.empty()) diagnostics.error(row.defaultValue->at, fault);
}

bool holds(TypeUses const& uses, TypeUse const& wide, TypeUse const& narrow) {
  if (!uses.isInteger(wide) || !uses.isInteger(narrow)) return false;
  Bounds const outer = boundsOf(*uses.find(wide)).value_or(anyInteger);
  Bounds const inner = boundsOf(*uses.find(narrow)).value_or(anyInteger);
  return outer.least <= inner.least && inner.most <= outer.most;
}

void checkRange(TypeUses const& uses, Type const& type, Row const& row, Diagnostics& diagnostics) {
  Symbol const* of = row.range ? uses.find(*row.type) : nullptr;
  if (!of) return;
  auto const bounds = boundsOf(*of);
  if (!uses.isInteger(*row.type))
    diagnostics.error(row.type->at,
                      "only an integer has a range, unlike " + inQuotes(row.type->name));
  else if (row.range->most > bounds.value_or(anyInteger).most)
    diagnostics.error(row.range->at,
                      inQuotes(row.type->name) + " ends at " + std::to_string(bounds->most));
  if (row.range->least != 0) diagnostics.error(row.range->at, "a range begins at 0");
  auto const stored = [](Row const& each) { return each.shape->name != "computed"; };
  if (type.kind != Kind::value || std::ranges::count_if(type.rows, stored) != 1)
    diagnostics.error(row.range->at, "only the one field of a value has a range");
}

}  // namespace schemac
