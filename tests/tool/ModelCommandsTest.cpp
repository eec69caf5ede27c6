// The commands on paths, as a user runs them.
#include "tests/tool/ToolRun.h"

#include <gtest/gtest.h>

namespace tool {

namespace {

TEST(ModelCommandsTest, ReportsCalledByNameAreTheReports) {
  EXPECT_EQ(kestrel("call /tableCliHelper displayAllDynamicTablesSummary").out,
            kestrel("report summary").out);
  EXPECT_EQ(kestrel("call /tableCliHelper displayAllDynamicTablesDetail").out,
            kestrel("report detail").out);
  EXPECT_EQ(kestrel("call /tableCliHelper displaySramAllocationGraph").out,
            kestrel("report sram").out);
}

TEST(ModelCommandsTest, AComplaintIsOneLineAndNoResult) {
  for (char const* command :
       {"get /nowhere", "get x", "get /slice0/%", "set /slice0/ready maybe", "set /slice0 None",
        "tree /slice0/ready", "call /slice0 x", "call /tableManSm doUpdateTableStatus",
        "get \"/a\nb\"", "get /slice0 --profile /nowhere", "watch /", "watch /slice0 /x"}) {
    Outcome const outcome = kestrel(command);
    EXPECT_EQ(outcome.status, 2) << command;
    EXPECT_EQ(outcome.out, "") << command;
    EXPECT_EQ(linesOf(outcome.err).size(), 1u) << outcome.err;
    EXPECT_TRUE(outcome.err.starts_with("kestrel: error: ")) << outcome.err;
  }
}

}  // namespace

}  // namespace tool
