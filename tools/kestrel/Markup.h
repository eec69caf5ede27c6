// Elements of SVG and HTML as text.
#pragma once

#include "Mox/Integers.h"

#include <string>
#include <string_view>
#include <vector>

namespace kestrel {

/// An attribute of an element, with its value as it is meant, not escaped.
struct MarkupAttribute {
  MarkupAttribute(char const* attribute, std::string text)
      : name(attribute), value(std::move(text)) {}
  MarkupAttribute(char const* attribute, U32 number)
      : name(attribute), value(std::to_string(number)) {}

  char const* name;
  std::string value;
};

/// The text as content or value of an attribute; what isn't printable ASCII stands as "\xNN".
std::string escaped(std::string_view text);

/// An element, with `content` as it is.
std::string element(char const* name, std::vector<MarkupAttribute> const& attributes,
                    std::string_view content = "");

}  // namespace kestrel
