// Errors of a run: collected, sorted, one line each.
#include "tools/schemac/Diagnostics.h"

#include <algorithm>
#include <tuple>

namespace schemac {

namespace {

constexpr std::size_t mostLines = 50;

std::string hexEscape(unsigned char byte) {
  char const* const digits = "0123456789abcdef";
  return {'\\', 'x', digits[byte >> 4], digits[byte & 15]};
}

}  // namespace

std::string errorLine(Position const& at, std::string const& what) {
  return at.file + ":" + std::to_string(at.line) + ":" + std::to_string(at.column) +
         ": error: " + what;
}

std::string inQuotes(std::string const& text) {
  std::string result = "\"";
  for (char c : text) {
    auto byte = static_cast<unsigned char>(c);
    result += byte < 0x20 || byte > 0x7e ? hexEscape(byte) : std::string(1, c);
  }
  return result + "\"";
}

std::size_t Diagnostics::fileNumber(std::string const& file) {
  auto found = std::find(files_.begin(), files_.end(), file);
  if (found == files_.end()) found = files_.insert(found, file);
  return static_cast<std::size_t>(found - files_.begin());
}

void Diagnostics::error(Position const& at, std::string const& what) {
  errors_.push_back({fileNumber(at.file), at, what});
}

std::string Diagnostics::text() const {
  auto sorted = errors_;
  std::stable_sort(sorted.begin(), sorted.end(), [](Error const& a, Error const& b) {
    return std::tie(a.file, a.at.line, a.at.column) < std::tie(b.file, b.at.line, b.at.column);
  });
  std::string result;
  for (std::size_t i = 0; i < std::min(sorted.size(), mostLines); ++i)
    result += errorLine(sorted[i].at, sorted[i].what) + "\n";
  if (sorted.size() > mostLines)
    result += "schemac: error: " + std::to_string(sorted.size() - mostLines) + " more errors\n";
  return result;
}

}  // namespace schemac
