// Template files, as read.
#pragma once

#include "tools/schemac/Diagnostics.h"

#include <string>
#include <string_view>
#include <vector>

namespace schemac {

/// Thrown for a fault in a template.
struct TemplateError {
  Position at;
  std::string what;
};

/// A piece of a template.
struct Node {
  enum class Kind {
    text,   ///< copied
    value,  ///< `$name$`, `$list.name$`
    each,   ///< `@each list` ... `@end`, with the text between `@join` and `@end` between two items
    parts,  ///< `@each list part`: the part of each item's shape; with `spaced` behind it, a blank
            ///< line behind each one
    part,   ///< `@part part` for the scope at hand, `@part shape part` for a shape by name
    choice  ///< `@if name`, `@if not name` ... `@else` ... `@end`
  };
  Kind kind = Kind::text;
  std::string text;   ///< the text, or the name of the value or list
  std::string shape;  ///< of `part`; empty for the scope's own
  std::string part;
  std::string indent;  ///< goes in front of each line of the parts
  bool whole = false;  ///< the directive has its line to itself
  bool negated = false;
  bool spaced = false;
  std::vector<Node> body;
  std::vector<Node> other;  ///< behind `@else` or `@join`
  Position at;
};

using Nodes = std::vector<Node>;

/// Reads template text.  A line whose first mark is `@` is a directive, or with `@#` a comment; the
/// same directives stand between dollars inside of a line, and so do names.  `$$` is a dollar.
/// `at` is the place of the first byte.
Nodes parseTemplate(std::string_view source, Position at);

/// The words of the directive in `line`, whose first mark is `@`; none if it is no directive.
std::vector<std::string> directiveOf(std::string_view line);

}  // namespace schemac
