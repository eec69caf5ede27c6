// Reading and writing of whole files.
#include "tools/schemac/Files.h"

#include <fstream>
#include <sstream>

namespace schemac {

std::optional<std::string> readFile(std::filesystem::path const& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream text;
  if (!in || std::filesystem::is_directory(path)) return std::nullopt;
  if (in.peek() != std::ifstream::traits_type::eof()) text << in.rdbuf();
  if (in.bad() || text.bad()) return std::nullopt;
  return text.str();
}

bool writeIfChanged(std::filesystem::path const& path, std::string const& text) {
  if (readFile(path) == text) return true;
  std::error_code error;
  std::filesystem::create_directories(path.parent_path(), error);
  std::filesystem::path const fresh = path.string() + ".new";
  std::ofstream out(fresh, std::ios::binary | std::ios::trunc);
  out << text;
  out.close();
  if (!out) return false;
  std::filesystem::rename(fresh, path, error);
  return !error;
}

}  // namespace schemac
