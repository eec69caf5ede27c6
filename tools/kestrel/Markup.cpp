// Escaping and brackets.
#include "tools/kestrel/Markup.h"

#include "standin/xdk/Json.h"

namespace kestrel {

namespace {

std::string_view entityOf(char const& c) {
  switch (c) {
    case '&':
      return "&amp;";
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    case '"':
      return "&quot;";
    case '\'':
      return "&#39;";
    default:
      return {&c, 1};
  }
}

}  // namespace

std::string escaped(std::string_view text) {
  std::string result;
  for (char const& c : xdksim::printable(text, text.size())) result += entityOf(c);
  return result;
}

std::string element(char const* name, std::vector<MarkupAttribute> const& attributes,
                    std::string_view content) {
  std::string text = std::string("<") + name;
  for (MarkupAttribute const& attribute : attributes)
    text.append(" ").append(attribute.name).append("=\"").append(escaped(attribute.value)) += '"';
  return text.append(">").append(content).append("</").append(name) += '>';
}

}  // namespace kestrel
