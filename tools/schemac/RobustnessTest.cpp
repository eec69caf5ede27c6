// Damaged schemas: each is refused in clear lines, or is sound and gives its files.
#include "tools/schemac/Checker.h"
#include "tools/schemac/Files.h"
#include "tools/schemac/Generator.h"
#include "tools/schemac/Parser.h"

#include <gtest/gtest.h>
#include <sstream>

namespace schemac {

namespace {

class RobustnessTest : public testing::Test {
 protected:
  // Compiles; true if each line of complaint is one, and a schema without complaints gives files.
  bool isHandled(std::string const& source) {
    Diagnostics diagnostics;
    std::vector<Schema> const schemas = {parse("s", source, diagnostics)};
    if (!diagnostics.failed()) check(library_.builtin, schemas, diagnostics);
    if (!diagnostics.failed()) return !generate(library_, schemas, {.set = true}).empty();
    std::istringstream lines(diagnostics.text());
    for (std::string line; std::getline(lines, line);)
      if (line.find(": error: ") == line.npos && line.find(" more errors") == line.npos)
        return false;
    return true;
  }

  std::filesystem::path const root_ = KESTREL_SOURCE_DIR;
  Library const library_ = loadLibrary(root_ / "tools" / "schemac" / "templates");
  std::string const source_ = readFile(root_ / "tests" / "everyShape.schema").value_or("");
};

TEST_F(RobustnessTest, AFileThatBreaksOffAnywhere) {
  for (std::size_t length = 0; length < source_.size(); length += 17)
    ASSERT_TRUE(isHandled(source_.substr(0, length))) << length;
}

TEST_F(RobustnessTest, ALineThatIsMissing) {
  for (std::size_t at = 0; at != source_.npos; at = source_.find('\n', at + 1)) {
    std::size_t const next = source_.find('\n', at + 1);
    std::string const rest = next == source_.npos ? "" : source_.substr(next);
    ASSERT_TRUE(isHandled(source_.substr(0, at) + rest)) << at;
  }
}

TEST_F(RobustnessTest, AByteThatIsAnother) {
  std::string const bytes("()\"#:-\0\xff z", 11);
  for (std::size_t at = 0; at < source_.size(); at += 31) {
    std::string damaged = source_;
    damaged[at] = bytes[at % bytes.size()];
    ASSERT_TRUE(isHandled(damaged)) << at;
  }
}

TEST_F(RobustnessTest, VeryDeepNonsense) {
  EXPECT_TRUE(isHandled("module M\nentity X " + std::string(100000, '(')));
  EXPECT_TRUE(isHandled("module " + std::string(100000, 'M') + "\n"));
}

}  // namespace

}  // namespace schemac
