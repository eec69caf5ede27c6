// Trace patterns: the names and levels that they speak of.
#include "Mox/Exception.h"
#include "standin/mox/TracePattern.h"

#include <gtest/gtest.h>

namespace Mox {
namespace {

bool matches(char const* pattern, char const* name) { return TracePattern(pattern).matches(name); }

String8 refusal(char const* pattern) {
  try {
    TracePattern const read(pattern);
  } catch (RangeException const& exception) {
    return exception.message();
  }
  return "taken";
}

TEST(TracePatternTest, PlainNameMatchesItselfAlone) {
  EXPECT_TRUE(matches("XpTableMan", "XpTableMan"));
  EXPECT_FALSE(matches("Xp", "XpTableMan"));
  EXPECT_FALSE(matches("XpTableManSm", "XpTableMan"));
  EXPECT_FALSE(matches("xpTableMan", "XpTableMan"));
}

TEST(TracePatternTest, StarStandsForAnyText) {
  for (char const* pattern : {"*", "Xp*", "*Man", "*T*M*", "XpTableMan*", "**n"})
    EXPECT_TRUE(matches(pattern, "XpTableMan")) << pattern;
  for (char const* pattern : {"*Manx", "xp*", "*x*"})
    EXPECT_FALSE(matches(pattern, "XpTableMan")) << pattern;
  EXPECT_TRUE(matches("*aab", "aaaab"));
}

TEST(TracePatternTest, QuestionMarkStandsForOneCharacter) {
  EXPECT_TRUE(matches("Xp?able*", "XpTableMan"));
  EXPECT_FALSE(matches("XpTableMan?", "XpTableMan"));
  EXPECT_FALSE(matches("?", "XpTableMan"));
}

TEST(TracePatternTest, LevelsAreNumbersAndRanges) {
  EXPECT_EQ(TracePattern("A/1").levels, 0x2u);
  EXPECT_EQ(TracePattern("A/1,2,8").levels, 0x106u);
  EXPECT_EQ(TracePattern("A/0-3,7").levels, 0x8Fu);
  EXPECT_EQ(TracePattern("A/31").levels, 0x80000000u);
  EXPECT_EQ(TracePattern("A/0-31").levels, 0xFFFFFFFFu);
}

TEST(TracePatternTest, NoLevelsMeansAll) { EXPECT_EQ(TracePattern("A").levels, 0xFFFFFFFFu); }

TEST(TracePatternTest, NameIsNeeded) {
  EXPECT_EQ(refusal(""), "trace pattern '': no facility is named");
  EXPECT_EQ(refusal("/1"), "trace pattern '/1': no facility is named");
}

TEST(TracePatternTest, BadLevelsAreRefused) {
  String8 const noLevel = " is no level or range of levels, which are 0 to 31";
  EXPECT_EQ(refusal("A/"), "trace pattern 'A/': ''" + noLevel);
  EXPECT_EQ(refusal("A/32"), "trace pattern 'A/32': '32'" + noLevel);
  EXPECT_EQ(refusal("A/1,x"), "trace pattern 'A/1,x': 'x'" + noLevel);
  EXPECT_EQ(refusal("A/1,"), "trace pattern 'A/1,': ''" + noLevel);
  EXPECT_EQ(refusal("A/5-3"), "trace pattern 'A/5-3': '5-3'" + noLevel);
  EXPECT_EQ(refusal("A/-1"), "trace pattern 'A/-1': '-1'" + noLevel);
}

}  // namespace
}  // namespace Mox
