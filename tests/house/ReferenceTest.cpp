// The check of the reference: pages kept, pages made, and what it says of their difference.
#include "tests/house/Sandbox.h"

#include <gtest/gtest.h>

namespace {

// A repository with one page, which the build made in the same way.
class ReferenceTest : public testing::Test {
 protected:
  ReferenceTest() {
    tree_.has("docs/reference/A.md", "# A\n\none\n");
    tree_.has("made/A.md", "# A\n\none\n");
  }

  house::Outcome check(const std::string& pages = "made") {
    return tree_.run(house::repository("tools/check/reference") + " " + pages + " .");
  }
  static std::string complaint(const std::string& place) {
    return "docs/reference/" + place +
           ": error: not what the schemas say (the target \"reference\" writes it anew)\n";
  }

  house::Sandbox tree_;
};

TEST_F(ReferenceTest, EqualPagesAreFine) {
  const house::Outcome outcome = check();
  EXPECT_EQ(outcome.output, "docs/reference is what the schemas say\n");
  EXPECT_EQ(outcome.status, 0);
}

TEST_F(ReferenceTest, AStalePageIsNamedWithItsFirstLineThatDiffers) {
  tree_.has("made/A.md", "# A\n\ntwo\n");
  const house::Outcome outcome = check();
  EXPECT_EQ(outcome.output, complaint("A.md:3"));
  EXPECT_EQ(outcome.status, 1);
}

TEST_F(ReferenceTest, EveryStalePageIsNamed) {
  tree_.has("made/A.md", "# B\n");
  tree_.has("docs/reference/Gone.md", "# Gone\n");
  tree_.has("made/New.md", "# New\n");
  EXPECT_EQ(check().output, complaint("A.md:1") + complaint("Gone.md:1") + complaint("New.md:1"));
}

TEST_F(ReferenceTest, AFolderWithoutPagesIsWrongUsage) {
  const house::Outcome outcome = check("nowhere");
  EXPECT_EQ(outcome.output,
            "tools/check/reference: error: no pages in \"nowhere\": name the folder "
            "of a build\n");
  EXPECT_EQ(outcome.status, 2);
}

}  // namespace
