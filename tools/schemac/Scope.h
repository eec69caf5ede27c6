// The names that a template can use.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace schemac {

/// Names with their texts and lists.  A flag is a text, empty for "no"; a single thing with names
/// of its own is a list of one, an absent one a list of none.
struct Scope {
  std::map<std::string, std::string> texts;
  std::map<std::string, std::vector<Scope>> lists;
  /// Where the parts for this scope stand, such as "scalar"; empty if it has none.
  std::string shape;

  void flag(std::string const& name, bool value) { texts[name] = value ? "1" : ""; }
};

/// The name under which a scope has its own text: what `$type$` gives for the list `type`.
inline constexpr char const* selfName = "self";

}  // namespace schemac
