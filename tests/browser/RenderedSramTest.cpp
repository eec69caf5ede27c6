// How a browser shows the map of the SRAM.
#include "tests/browser/Browser.h"
#include "tests/tool/ToolRun.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <nlohmann/json.hpp>
#include <set>

namespace browser {

namespace {

/// What the tool says of a chip for programs.
nlohmann::json model(std::string const& command = "") {
  return nlohmann::json::parse(tool::kestrel("report sram --json " + command).out);
}

/// "A" or "" for each block that the model has, by pool and block.
std::map<std::pair<U32, U32>, std::string> lettersOf(nlohmann::json const& model) {
  std::map<std::pair<U32, U32>, std::string> letters;
  for (auto const& pool : model.at("pools")) {
    U32 block = 0;
    for (auto const& tile : pool.at("tiles"))
      for (auto const& letter : tile)
        letters[{pool.at("pool"), block++}] = letter.is_null() ? "" : letter.get<std::string>();
  }
  return letters;
}

std::string const binary = "--profile " KESTREL_SOURCE_DIR "/tests/tool/profiles/binary.json";

/// Both forms of the picture of the built-in chip, rendered once.
class RenderedSramTest : public testing::TestWithParam<char const*> {
 protected:
  static Picture const& picture() {
    static std::map<std::string, Picture> pictures;
    std::string const option = GetParam();
    if (!pictures.count(option)) pictures[option] = render(option);
    return pictures[option];
  }
};

TEST_P(RenderedSramTest, EveryBlockOfTheChipIsThereOnce) {
  auto const expected = lettersOf(model());
  EXPECT_EQ(expected.size(), 448u);
  EXPECT_EQ(picture().blocks.size(), 448u);
  std::map<std::pair<U32, U32>, std::string> found;
  for (Block const& block : picture().blocks) found[{block.pool, block.block}] = block.letter;
  EXPECT_EQ(found, expected);
}

TEST_P(RenderedSramTest, PoolsAreColumnsInTheirOrder) {
  std::map<U32, double> left;
  for (Block const& block : picture().blocks) {
    auto const [at, isNew] = left.emplace(block.pool, block.box.x);
    EXPECT_DOUBLE_EQ(block.box.x, at->second) << block.hover;
  }
  ASSERT_EQ(left.size(), 8u);
  for (U32 pool = 1; pool < 8; ++pool)
    EXPECT_GT(left[pool], left[pool - 1] + picture().blocks[0].box.width);
}

TEST_P(RenderedSramTest, BlocksAreToScale) {
  double const top = picture().blocks[0].box.y;
  double const step = picture().blocks[1].box.y - top;
  for (Block const& block : picture().blocks) {
    EXPECT_NEAR(block.box.y, top + block.block * step, 0.01) << block.hover;
    EXPECT_DOUBLE_EQ(block.box.height, picture().blocks[0].box.height) << block.hover;
    EXPECT_DOUBLE_EQ(block.box.width, picture().blocks[0].box.width) << block.hover;
    EXPECT_GT(block.box.height, 0.8 * step) << block.hover;
  }
}

TEST_P(RenderedSramTest, NoBlockLiesOnAnother) {
  auto const& blocks = picture().blocks;
  for (std::size_t one = 0; one < blocks.size(); ++one)
    for (std::size_t other = 0; other < one; ++other)
      ASSERT_FALSE(blocks[one].box.overlaps(blocks[other].box))
          << blocks[one].hover << " and " << blocks[other].hover;
}

TEST_P(RenderedSramTest, EveryBlockIsSeenAndTellsOfItself) {
  std::map<std::string, std::string> names;
  nlohmann::json const chip = model();
  for (auto const& group : chip.at("groups")) {
    std::string text;
    for (auto const& table : group.at("tables"))
      text += (text.empty() ? "" : " + ") + table.at("name").get<std::string>();
    names[group.at("letter")] = text;
  }
  for (Block const& block : picture().blocks) {
    std::string const place = "Pool " + std::to_string(block.pool) + ", tile " +
                              std::to_string(block.block / 8) + ", block " +
                              std::to_string(block.block);
    EXPECT_TRUE(block.isSeen) << place;
    EXPECT_EQ(block.hover, block.letter.empty()
                               ? place + ": free"
                               : place + ", " + block.letter + ": " + names[block.letter]);
  }
}

TEST_P(RenderedSramTest, LettersStandWithinTheirBlocks) {
  for (Block const& block : picture().blocks) {
    EXPECT_GE(block.letterBox.x, block.box.x) << block.hover;
    EXPECT_LE(block.letterBox.right(), block.box.right()) << block.hover;
    EXPECT_NEAR(block.letterBox.y + block.letterBox.height / 2, block.box.y + block.box.height / 2,
                2.5)
        << block.hover;
  }
}

TEST_P(RenderedSramTest, EachGroupHasOneColourAndNoOther) {
  std::map<std::string, std::set<Colour>> byLetter;
  for (Block const& block : picture().blocks) byLetter[block.letter].insert(block.fill);
  std::set<Colour> all;
  for (auto const& [letter, colours] : byLetter) {
    EXPECT_EQ(colours.size(), 1u) << letter;
    all.insert(colours.begin(), colours.end());
  }
  EXPECT_EQ(all.size(), byLetter.size());
}

TEST_P(RenderedSramTest, LegendHasEachGroupInTheColourOfItsBlocks) {
  std::map<std::string, Colour> fills;
  for (Block const& block : picture().blocks) fills[block.letter] = block.fill;
  nlohmann::json const chip = model();
  ASSERT_EQ(picture().legend.size(), chip.at("groups").size());
  for (std::size_t i = 0; i < picture().legend.size(); ++i) {
    LegendLine const& line = picture().legend[i];
    auto const& group = chip.at("groups")[i];
    EXPECT_EQ(line.letter, group.at("letter"));
    EXPECT_EQ(line.fill, fills[line.letter]) << line.letter;
    EXPECT_TRUE(line.text.starts_with(group.at("tables")[0].at("name").get<std::string>()));
    std::string const count = std::to_string(group.at("blocks").get<U32>()) + " block";
    EXPECT_NE(line.text.find(count), line.text.npos) << line.text;
  }
}

TEST_P(RenderedSramTest, LegendStandsBesideTheMapAndIsSeen) {
  for (LegendLine const& line : picture().legend) {
    EXPECT_TRUE(line.isSeen) << line.text;
    EXPECT_GT(line.box.width, 60) << line.text;
    EXPECT_GE(line.box.height, 13) << line.text;
    for (Block const& block : picture().blocks)
      ASSERT_FALSE(line.box.overlaps(block.box)) << line.text << ", " << block.hover;
    for (LegendLine const& other : picture().legend)
      EXPECT_TRUE(&line == &other || !line.box.overlaps(other.box)) << line.text << other.text;
  }
}

TEST_P(RenderedSramTest, EachPoolSaysAboveItsColumnWhatIsFree) {
  nlohmann::json const chip = model();
  ASSERT_EQ(picture().pools.size(), 8u);
  for (U32 pool = 0; pool < 8; ++pool) {
    Label const& name = picture().pools[pool];
    auto const& figures = chip.at("pools")[pool];
    std::string const free = std::to_string(figures.at("free").get<U32>()) + " free of " +
                             std::to_string(figures.at("blocks").get<U32>());
    EXPECT_EQ(name.text, "Pool " + std::to_string(pool));
    auto const note = std::ranges::find_if(picture().notes, [&](Label const& label) {
      return label.text == free && label.box.y > name.box.y &&
             std::abs(label.box.x + label.box.width / 2 - name.box.x - name.box.width / 2) < 1;
    });
    EXPECT_NE(note, picture().notes.end()) << name.text << ": " << free;
    for (Block const& block : picture().blocks)
      if (block.pool == pool) {
        EXPECT_GE(name.box.x, block.box.x);
        EXPECT_LE(name.box.right(), block.box.right());
        EXPECT_LE(name.box.bottom(), block.box.y);
      }
  }
}

TEST_P(RenderedSramTest, NothingIsFetchedAndNothingFails) {
  EXPECT_EQ(picture().fetched, 0u);
  EXPECT_EQ(picture().faults, std::vector<std::string>());
  EXPECT_EQ(picture().beyond, std::vector<std::string>());
}

double brightness(Colour const& colour) { return (colour[0] + colour[1] + colour[2]) / 3; }

TEST_P(RenderedSramTest, SurroundingsMayBeDark) {
  EXPECT_GT(brightness(picture().paper), 200);
  EXPECT_LT(brightness(picture().ink), 80);
  Picture const dark = render(GetParam(), "", Surroundings::dark);
  EXPECT_LT(brightness(dark.paper), 50);
  EXPECT_GT(brightness(dark.ink), 180);
  ASSERT_EQ(dark.blocks.size(), picture().blocks.size());
  for (std::size_t i = 0; i < dark.blocks.size(); ++i)
    EXPECT_EQ(dark.blocks[i].fill == picture().blocks[i].fill, !dark.blocks[i].letter.empty())
        << dark.blocks[i].hover;
}

TEST_P(RenderedSramTest, GroupsMayBeMoreThanLetters) {
  Picture const many = render(GetParam(), binary);
  EXPECT_EQ(many.legend.size(), 63u);
  std::set<std::string> letters;
  std::set<Colour> colours;
  for (LegendLine const& line : many.legend) {
    EXPECT_TRUE(line.isSeen) << line.letter;
    letters.insert(line.letter);
    colours.insert(line.fill);
  }
  EXPECT_EQ(letters.size(), 63u);
  EXPECT_EQ(colours.size(), 63u);
  EXPECT_EQ(many.legend.back().letter, "AK");
}

TEST_P(RenderedSramTest, BlocksBeyondThePoolsAreNamed) {
  Picture const odd =
      render(GetParam(), "--profile " KESTREL_SOURCE_DIR "/tests/tool/profiles/beyond.json");
  EXPECT_EQ(odd.beyond, (std::vector<std::string>{"pool 0, blocks 48, 49: MDT",
                                                  "pool 9, blocks 0 to 3: INGRESS_BD"}));
  EXPECT_EQ(odd.blocks.size(), 448u);
}

INSTANTIATE_TEST_SUITE_P(Forms, RenderedSramTest, testing::Values("--svg", "--html"),
                         [](auto const& form) { return std::string(form.param).substr(2); });

TEST(SramPageTest, LineOfTheLegendShowsWhereItsGroupLies) {
  Picture const page = render("--html");
  std::vector<std::string> expected;
  for (Block const& block : page.blocks)
    if (block.letter == page.legend[0].letter)
      expected.push_back(std::to_string(block.pool) + ':' + std::to_string(block.block));
  EXPECT_EQ(expected.size(), 16u);
  EXPECT_EQ(page.lit, expected);
  EXPECT_FALSE(page.isDimmedBehind);
}

}  // namespace

}  // namespace browser
