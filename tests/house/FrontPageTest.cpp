// The front page and the docs name files that exist.
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <regex>

namespace {

namespace fs = std::filesystem;

fs::path const root = KESTREL_SOURCE_DIR;

std::string textOf(fs::path const& path) {
  std::ifstream in(path);
  return {std::istreambuf_iterator<char>(in), {}};
}

/// What `pattern` captures anywhere in the page.
std::vector<std::string> captured(fs::path const& page, char const* pattern) {
  std::string const text = textOf(page);
  std::regex const expression(pattern);
  std::vector<std::string> found;
  for (std::sregex_iterator at(text.begin(), text.end(), expression), end; at != end; ++at)
    found.push_back((*at)[1]);
  return found;
}

std::vector<fs::path> pages() {
  std::vector<fs::path> found;
  for (auto const& entry : fs::directory_iterator(root))
    if (entry.path().extension() == ".md") found.push_back(entry.path());
  for (auto const& entry : fs::recursive_directory_iterator(root / "docs"))
    if (entry.path().extension() == ".md") found.push_back(entry.path());
  return found;
}

TEST(FrontPageTest, FilesNamedOnTheFrontPageExist) {
  auto const named = captured(root / "README.md",
                              "`((?:platform|standin|frame|src-includes|docs)/[^`*]*\\.[a-z]+)`");
  EXPECT_GT(named.size(), 20u);
  for (std::string const& path : named) EXPECT_TRUE(fs::exists(root / path)) << path;
}

TEST(FrontPageTest, LinksLeadSomewhere) {
  for (fs::path const& page : pages())
    for (std::string const& target : captured(page, "\\]\\(([^)#:]+)[^)]*\\)"))
      EXPECT_TRUE(fs::exists(page.parent_path() / target)) << page << " -> " << target;
}

}  // namespace
