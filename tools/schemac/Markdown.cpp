// Texts of a schema as Markdown, also inside of a table.
#include "tools/schemac/Markdown.h"

namespace schemac {

namespace {

// A bar ends a table's cell, also inside of code.
std::string withoutBars(std::string_view text) {
  std::string result;
  for (char c : text) result += c == '|' ? "\\|" : std::string(1, c);
  return result;
}

}  // namespace

std::vector<std::string> markdownLines(std::vector<std::string> const& doc) {
  std::vector<std::string> result;
  bool code = false;  // may begin on one line and end on another
  for (std::string const& line : doc) {
    std::string& escaped = result.emplace_back();
    for (char c : withoutBars(line)) {
      if (c == '`') code = !code;
      escaped += c == '<' && !code ? "&lt;" : std::string(1, c);
    }
  }
  return result;
}

std::string markdownCode(std::string_view text) {
  if (text.empty()) return "";
  char const* const marks = text.find('`') == text.npos ? "`" : "``";
  return marks + withoutBars(text) + marks;
}

std::string markdownAnchor(std::string_view fullName) {
  std::string result;
  for (char c : fullName)
    if (c != ':') result += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  return result;
}

}  // namespace schemac
