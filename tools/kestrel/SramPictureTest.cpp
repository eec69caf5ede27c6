// What the pictures hold, as text; how they look is a browser's to say.
#include "XpLib/XpTableCliHelperRigTest.h"
#include "tools/kestrel/SramPicture.h"

#include <gtest/gtest.h>

namespace kestrel {

namespace {

using Kestrel::xpTableCliHelper::blocks;
using Kestrel::xpTableCliHelper::table;

/// A chip with two tables, one with a name that is markup, which lie on block 0 of pool 0 and on
/// the given runs.
SramModel modelOf(std::vector<xpDirectTableContext> runs) {
  runs.push_back(blocks(0, 0, 1));
  return sramModel(*Kestrel::xpTableCliHelper::chipWith(
      {table(2, "<&\">", runs), table(1, "TWO", std::vector{blocks(0, 0, 1)})}));
}

std::size_t countOf(std::string const& text, std::string const& piece) {
  std::size_t count = 0;
  for (std::size_t at = text.find(piece); at != text.npos; at = text.find(piece, at + 1)) ++count;
  return count;
}

class SramPictureTest : public testing::TestWithParam<std::string (*)(SramModel const&)> {
 protected:
  static std::string drawn(SramModel const& model) { return GetParam()(model); }
};

TEST_P(SramPictureTest, HasEachBlockOnce) {
  std::string const picture = drawn(modelOf({blocks(0, 5, 1)}));
  EXPECT_EQ(countOf(picture, "class=\"block free\""), 446u);
  EXPECT_EQ(countOf(picture, "class=\"block\""), 2u);
}

TEST_P(SramPictureTest, TellsOfEachPoolWhatIsFree) {
  std::string const picture = drawn(modelOf({blocks(0, 5, 1)}));
  EXPECT_EQ(countOf(picture, ">46 free of 48<"), 1u);
  EXPECT_EQ(countOf(picture, ">48 free of 48<"), 3u);
  EXPECT_EQ(countOf(picture, ">64 free of 64<"), 4u);
  EXPECT_EQ(countOf(picture, "2 of 448 blocks taken, 446 free"), 1u);
}

TEST_P(SramPictureTest, EscapesNames) {
  std::string const picture = drawn(modelOf({blocks(0, 50, 1)}));
  EXPECT_EQ(picture.find("<&"), picture.npos);
  EXPECT_EQ(countOf(picture, "Pool 0, tile 0, block 0, A: &lt;&amp;&quot;&gt; + TWO<"), 1u);
  EXPECT_EQ(countOf(picture, "&lt;&amp;&quot;&gt; + TWO"), 2u) << "block and legend";
  EXPECT_EQ(countOf(picture, ">pool 0, block 50: &lt;&amp;&quot;&gt;<"), 1u);
}

TEST_P(SramPictureTest, NamesBlocksBeyondThePools) {
  std::string const picture = drawn(modelOf({blocks(0, 48, 3), blocks(9, 3, 1)}));
  EXPECT_NE(picture.find(">pool 0, blocks 48 to 50: "), picture.npos);
  EXPECT_NE(picture.find(">pool 9, block 3: "), picture.npos);
  EXPECT_EQ(drawn(modelOf({})).find("Not drawn"), picture.npos);
}

TEST_P(SramPictureTest, IsTheSameEachTime) {
  EXPECT_EQ(drawn(modelOf({blocks(0, 5, 1)})), drawn(modelOf({blocks(0, 5, 1)})));
}

TEST_P(SramPictureTest, FetchesNothing) {
  std::string picture = drawn(modelOf({}));
  std::string const name = "xmlns=\"http://www.w3.org/2000/svg\"";
  if (std::size_t const at = picture.find(name); at != picture.npos) picture.erase(at, name.size());
  for (char const* means : {"http", "href", "src=", "url(", "@import"})
    EXPECT_EQ(picture.find(means), picture.npos) << means;
}

INSTANTIATE_TEST_SUITE_P(Forms, SramPictureTest, testing::Values(&sramSvg, &sramHtml),
                         [](auto const& form) { return form.index == 0 ? "Svg" : "Html"; });

}  // namespace

}  // namespace kestrel
