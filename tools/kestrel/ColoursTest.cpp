// The row of colours.
#include "tools/kestrel/Colours.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <set>

namespace kestrel {

namespace {

/// Red, green or blue of "#rrggbb".
long channel(std::string const& colour, std::size_t index) {
  return std::strtol(colour.substr(1 + 2 * index, 2).c_str(), nullptr, 16);
}

long distance(std::string const& a, std::string const& b) {
  long sum = 0;
  for (std::size_t i = 0; i < 3; ++i) sum += std::labs(channel(a, i) - channel(b, i));
  return sum;
}

TEST(ColoursTest, AreWrittenAsSixDigits) {
  for (U32 index = 0; index < 448; ++index) {
    std::string const fill = colourOf(index).fill;
    EXPECT_EQ(fill.size(), 7u);
    EXPECT_EQ(fill.find_first_not_of("0123456789abcdef", 1), fill.npos) << fill;
  }
}

TEST(ColoursTest, NoTwoAreOneForAsManyGroupsAsThereAreBlocks) {
  std::set<std::string> fills;
  for (U32 index = 0; index < 448; ++index) fills.insert(colourOf(index).fill);
  EXPECT_EQ(fills.size(), 448u);
}

TEST(ColoursTest, TheFirst52LieWellApart) {
  for (U32 one = 0; one < 52; ++one)
    for (U32 other = 0; other < one; ++other)
      EXPECT_GE(distance(colourOf(one).fill, colourOf(other).fill), 24) << one << ' ' << other;
}

TEST(ColoursTest, TextIsBlackOnLightAndWhiteOnDark) {
  for (U32 index = 0; index < 448; ++index) {
    Colour const colour = colourOf(index);
    EXPECT_GE(distance(colour.fill, colour.text), 200) << colour.fill << ' ' << colour.text;
  }
}

}  // namespace

}  // namespace kestrel
