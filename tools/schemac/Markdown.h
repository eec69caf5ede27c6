// Texts of a schema as Markdown, also inside of a table.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace schemac {

/// Documentation, line by line.  It is Markdown already; what would end a table's cell, or pass for
/// a tag where no code is, is escaped.
std::vector<std::string> markdownLines(std::vector<std::string> const& doc);

/// `text` as code; "" for "".
std::string markdownCode(std::string_view text);

/// The name under which links find the heading `fullName`.
std::string markdownAnchor(std::string_view fullName);

}  // namespace schemac
