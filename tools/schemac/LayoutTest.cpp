// How long lines are broken and blank lines thinned out.
#include "tools/schemac/Layout.h"

#include <gtest/gtest.h>

namespace schemac {

namespace {

std::string const a30(30, 'a');
std::string const b30(30, 'b');
std::string const c30(30, 'c');

TEST(LayoutTest, ShortLinesStay) {
  std::string const text = "int f(int a, int b) { return a; }\n";
  EXPECT_EQ(layout(text), text);
  EXPECT_EQ(layout(""), "");
}

TEST(LayoutTest, ALongFunctionGetsALineForItsBody) {
  EXPECT_EQ(layout("  int " + a30 + "(int " + b30 + ") const { return frame::" + c30 + "; }\n"),
            "  int " + a30 + "(int " + b30 + ") const {\n    return frame::" + c30 + ";\n  }\n");
}

TEST(LayoutTest, ALongListIsBrokenBehindItsLastCommaThatFits) {
  EXPECT_EQ(layout("  f(" + a30 + ", " + b30 + ", " + c30 + "cc, d);\n"),
            "  f(" + a30 + ", " + b30 + ",\n      " + c30 + "cc, d);\n");
}

TEST(LayoutTest, OuterCommasGoFirst) {
  EXPECT_EQ(layout("{" + a30 + ", " + b30 + ", {" + c30 + ", " + c30 + "}},\n"),
            "{" + a30 + ", " + b30 + ",\n    {" + c30 + ", " + c30 + "}},\n");
}

TEST(LayoutTest, WithoutACommaAnOpeningParenthesisDoes) {
  std::string const a60 = a30 + a30;
  EXPECT_EQ(layout(a60 + "(" + a60 + ");\n"), a60 + "(\n    " + a60 + ");\n");
}

TEST(LayoutTest, NothingIsBrokenInsideOfQuotes) {
  std::string const line = "  \"" + a30 + ", " + b30 + ", \\\" ( " + c30 + ", " + a30 + "\"\n";
  EXPECT_EQ(layout(line), line);
}

TEST(LayoutTest, CommentsAndDirectivesStay) {
  for (std::string const start : {"// ", "#include "}) {
    std::string const line = start + a30 + ", " + b30 + ", " + c30 + ", " + a30 + "\n";
    EXPECT_EQ(layout(line), line);
  }
}

TEST(LayoutTest, BlankLinesAreThinnedOut) {
  EXPECT_EQ(layout("\n\nclass A {\n\n\n  int a;\n\n};\n\n}  // namespace\n\n"),
            "class A {\n\n  int a;\n};\n\n}  // namespace\n");
}

}  // namespace

}  // namespace schemac
