// The assertion's line, and the end of the process.
#include "Mox/Assert.h"

#include <csignal>
#include <errno.h>
#include <gtest/gtest.h>
#include <string>

namespace Mox {
namespace {

TEST(AssertDeathTest, WritesTheLineOfTheCLibraryAndAborts) {
  std::string const line =
      "^" + std::string(program_invocation_short_name) +
      ": src-includes/XpLib/XpTableManSm:12: void Kestrel::TableManSm::doCreateNhTables\\(\\): "
      "Assertion `nhTblCopyNum' failed\\.\n$";
  EXPECT_EXIT(assertionFailed("nhTblCopyNum", "src-includes/XpLib/XpTableManSm", 12,
                              "void Kestrel::TableManSm::doCreateNhTables()"),
              testing::KilledBySignal(SIGABRT), line);
}

TEST(AssertDeathTest, TextIsNoFormat) {
  EXPECT_DEATH(assertionFailed("a%s", "f", 1, "g%n"), "f:1: g%n: Assertion `a%s' failed\\.");
}

}  // namespace
}  // namespace Mox
