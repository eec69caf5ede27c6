// The model of the SRAM, from tables that are made by hand.
#include "XpLib/XpTableCliHelperRigTest.h"
#include "tools/kestrel/SramModel.h"

#include <gtest/gtest.h>
#include <set>

namespace kestrel {

namespace {

using Kestrel::xpTableCliHelper::blocks;
using Kestrel::xpTableCliHelper::EntryPtr;
using BlocksByPool = std::map<U32, std::set<U32>>;

/// The model of a chip whose tables are named "T<id>".
class Tables {
 public:
  /// Adds a table, a copy for each of the runs; a run is of whole blocks.
  Tables& with(U32 id, std::vector<xpDirectTableContext> const& runs) {
    tables_.push_back(Kestrel::xpTableCliHelper::table(id, Mox::format("T%u", id).charPtr(), runs));
    return *this;
  }
  SramModel model() const { return sramModel(*Kestrel::xpTableCliHelper::chipWith(tables_)); }

 private:
  std::vector<EntryPtr> tables_;
};

/// "A=T1 B=T2 + T3": the groups with their letters.
std::string legend(SramModel const& model) {
  std::string text;
  for (SramGroup const& group : model.groups)
    text += (text.empty() ? "" : " ") + group.letter + "=" + group.names();
  return text;
}

std::string letterAt(SramModel const& model, U32 pool, U32 block) {
  auto const group = model.pools[pool].blocks[block];
  return group ? model.groups[*group].letter : "";
}

TEST(SramModelTest, EmptyChipIsFree) {
  SramModel const model = Tables().model();
  EXPECT_EQ(model.blocks(), 4 * 48u + 4 * 64u);
  EXPECT_EQ(model.free(), model.blocks());
  EXPECT_TRUE(model.groups.empty());
  EXPECT_EQ(model.pools[3].tiles(), 6u);
  EXPECT_EQ(model.pools[4].tiles(), 8u);
}

TEST(SramModelTest, LettersGoLineByLineAndByPoolWithin) {
  SramModel const model = Tables()
                              .with(1, {blocks(0, 1, 1)})
                              .with(2, {blocks(7, 0, 1), blocks(1, 1, 1)})
                              .with(3, {blocks(6, 0, 1)})
                              .model();
  EXPECT_EQ(legend(model), "A=T3 B=T2 C=T1");
  EXPECT_EQ(letterAt(model, 7, 0) + letterAt(model, 1, 1), "BB");
}

TEST(SramModelTest, GroupIsASetOfTables) {
  SramModel const model = Tables().with(1, {blocks(0, 0, 3)}).with(2, {blocks(0, 1, 3)}).model();
  EXPECT_EQ(legend(model), "A=T1 B=T2 + T1 C=T2");
  EXPECT_EQ(model.groups[1].blocks, 2u);
  EXPECT_EQ(letterAt(model, 0, 2), "B");
}

TEST(SramModelTest, FreeBlocksAreCounted) {
  SramModel const model =
      Tables().with(1, {blocks(0, 0, 1), blocks(0, 5, 1), blocks(4, 63, 1)}).model();
  EXPECT_EQ(model.pools[0].free(), 46u);
  EXPECT_EQ(model.pools[4].free(), 63u);
  EXPECT_EQ(model.free(), model.blocks() - 3);
  EXPECT_EQ(letterAt(model, 0, 1), "");
}

TEST(SramModelTest, BlocksBeyondAPoolAreKeptApart) {
  SramModel const model = Tables()
                              .with(1, {blocks(9, 3, 1), blocks(0, 47, 2), blocks(9, 3, 1)})
                              .with(2, {blocks(0, 49, 1), blocks(5, 0, 1)})
                              .with(3, {blocks(4, 60, 4)})
                              .model();
  EXPECT_EQ(legend(model), "A=T2 B=T1 C=T3");
  EXPECT_EQ(model.groups[1].blocks, 1u);
  ASSERT_EQ(model.beyond.size(), 2u);
  EXPECT_EQ(model.beyond[0].table, (SramTable{2, "T2"}));
  EXPECT_EQ(model.beyond[0].blocks, (BlocksByPool{{0, {49}}}));
  EXPECT_EQ(model.beyond[1].table, (SramTable{1, "T1"}));
  EXPECT_EQ(model.beyond[1].blocks, (BlocksByPool{{0, {48}}, {9, {3}}}));
}

TEST(SramModelTest, RunThatEndsBelowItsStartTakesNothing) {
  SramModel const model =
      Tables().with(1, {blocks(0, 8, 0), blocks(1, 250, 16), blocks(9, 8, 0)}).model();
  EXPECT_EQ(model.free(), model.blocks());
  EXPECT_TRUE(model.beyond.empty());
}

TEST(SramModelTest, LettersNeverEnd) {
  EXPECT_EQ(sramLetter(0) + sramLetter(25) + sramLetter(26) + sramLetter(51), "AZaz");
  EXPECT_EQ(sramLetter(52), "AA");
  EXPECT_EQ(sramLetter(53), "AB");
  EXPECT_EQ(sramLetter(52 + 52), "BA");
}

TEST(SramModelTest, EveryBlockMayHaveAGroupOfItsOwn) {
  Tables tables;
  for (U32 pool = 0; pool < 8; ++pool)
    for (U32 block = 0; block < Kestrel::xpTableCliHelper::blocksOfPool(pool); ++block)
      tables.with(64 * pool + block, {blocks(pool, block, 1)});
  SramModel const model = tables.model();
  ASSERT_EQ(model.groups.size(), 448u);
  std::set<std::string> letters;
  for (SramGroup const& group : model.groups) letters.insert(group.letter);
  EXPECT_EQ(letters.size(), 448u);
  EXPECT_EQ(model.free(), 0u);
}

}  // namespace

}  // namespace kestrel
