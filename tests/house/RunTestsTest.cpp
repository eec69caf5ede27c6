// Counting test cases, with a ctest of the test's own.
#include "tests/house/Sandbox.h"

#include <gtest/gtest.h>

namespace {

class RunTestsTest : public testing::Test {
 protected:
  RunTestsTest() { tree_.hasOwn("tools/check/run-tests"); }

  // What the runner left for an entry that came to its end.
  void entry(const std::string& name, int tests, int failures, int skipped) {
    const std::string counts = "tests=\"" + std::to_string(tests) + "\" failures=\"" +
                               std::to_string(failures) + "\" disabled=\"0\"";
    script_ += "cat >build/any/test-results/" + name + ".xml <<'X'\n<testsuites " + counts +
               ">\n<testsuite name=\"A\" " + counts + " skipped=\"" + std::to_string(skipped) +
               "\">\n</testsuite>\n</testsuites>\nX\n";
  }

  void entryFailed(const std::string& name) {
    script_ += "mkdir -p build/any/Testing/Temporary\necho 1:" + name +
               " >>build/any/Testing/Temporary/LastTestsFailed.log\n";
  }

  // The last line of a run whose ctest exits so.
  std::string summary(int status) {
    tree_.hasProgram("ctest", script_ + "exit " + std::to_string(status) + "\n");
    const house::Outcome outcome = tree_.run("tools/check/run-tests any | tail -1");
    return outcome.output;
  }

  house::Sandbox tree_;
  std::string script_;
};

TEST_F(RunTestsTest, CasesOfAllEntriesAreAdded) {
  entry("a", 3, 0, 0);
  entry("b", 4, 0, 0);
  EXPECT_EQ(summary(0), "7 passed, 0 failed\n");
}

TEST_F(RunTestsTest, FailedCasesAreCountedOnce) {
  entry("a", 3, 2, 0);
  entryFailed("a");
  EXPECT_EQ(summary(8), "1 passed, 2 failed\n");
}

TEST_F(RunTestsTest, ACrashedEntryIsOneFailure) {
  entry("a", 3, 0, 0);
  entryFailed("b");
  EXPECT_EQ(summary(8), "3 passed, 1 failed\n");
}

TEST_F(RunTestsTest, ALeakAtTheEndIsOneFailure) {
  entry("a", 3, 0, 0);
  entryFailed("a");
  EXPECT_EQ(summary(8), "3 passed, 1 failed\n");
}

TEST_F(RunTestsTest, SkippedIsNotPassed) {
  entry("a", 3, 0, 1);
  EXPECT_EQ(summary(0), "2 passed, 0 failed\n");
}

TEST_F(RunTestsTest, ARunThatDidNotStartIsOneFailure) {
  EXPECT_EQ(summary(1), "0 passed, 1 failed\n");
}

TEST_F(RunTestsTest, FailureShowsInTheExit) {
  tree_.hasProgram("ctest", "exit 1");
  EXPECT_EQ(tree_.run("tools/check/run-tests any").status, 1);
}

}  // namespace
