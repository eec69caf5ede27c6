// The format check: what it refuses, and that it mends it.
#include "tests/house/Sandbox.h"

#include <gtest/gtest.h>

namespace {

class FormatTest : public testing::Test {
 protected:
  void SetUp() override {
    if (tree_.run("command -v clang-format-14").status != 0) GTEST_SKIP() << "no clang-format-14";
    tree_.hasOwn(".clang-format");
  }

  house::Outcome format(const std::string& option = "") {
    return tree_.run(house::repository("tools/check/format") + " " + option + " .");
  }

  house::Sandbox tree_;
};

TEST_F(FormatTest, AFormattedTreePasses) {
  tree_.has("frame/A.h", "int* a();\n");
  EXPECT_EQ(format().output, "1 files are formatted\n");
}

TEST_F(FormatTest, AnUnformattedFileIsNamed) {
  tree_.has("frame/A.h", "int* a();\n");
  tree_.has("frame/B.cpp", "int *b( );\n");
  const house::Outcome outcome = format();
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.output,
            "frame/B.cpp: error: not formatted (tools/check/format --fix does it)\n");
}

TEST_F(FormatTest, FixMendsIt) {
  tree_.has("frame/B.cpp", "int *b( );\n");
  EXPECT_EQ(format("--fix").status, 0);
  EXPECT_EQ(format().status, 0);
}

TEST_F(FormatTest, BuildTreesAreLeftOut) {
  tree_.has("frame/A.h", "int* a();\n");
  tree_.has("build/release/generated/A.h", "int *b( );\n");
  EXPECT_EQ(format().status, 0);
}

TEST_F(FormatTest, ATreeWithoutFilesIsAMistake) { EXPECT_EQ(format().status, 2); }

}  // namespace
