// What the tool does where its output can't be written.
#include "tests/tool/ToolRun.h"

#include <gtest/gtest.h>

namespace tool {

namespace {

class FullDeviceTest : public testing::TestWithParam<char const*> {};

TEST_P(FullDeviceTest, IsAnErrorInOneLine) {
  Outcome const outcome = kestrel(GetParam(), ".", "/dev/full");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.err,
            "kestrel: error: standard output cannot be written: No space left on device\n");
}

INSTANTIATE_TEST_SUITE_P(Commands, FullDeviceTest,
                         testing::Values("demo", "report summary", "report detail", "report sram",
                                         "report sram --json", "report tables", "bringup --down",
                                         "lint --json", "profile", "types", "types --json",
                                         "get /slice0", "tree", "set /slice0/ready False", "--help",
                                         "--version"));

TEST(OutputTest, NothingGoesToStandardErrorWhenAllIsWell) {
  for (char const* command :
       {"demo", "report summary", "report detail --json", "report sram", "bringup --down", "lint",
        "profile", "types --json", "get", "tree --depth 9"})
    EXPECT_EQ(kestrel(command).err, "") << command;
}

TEST(OutputTest, NoColourWithoutATerminal) {
  EXPECT_EQ(kestrel("demo").out.find('\033'), std::string::npos);
}

}  // namespace

}  // namespace tool
