// The drawing of the SRAM, to the byte.
#include "XpLib/XpTableCliHelperRigTest.h"

#include <sstream>

namespace Kestrel::xpTableCliHelper {

namespace {

constexpr char const* alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
constexpr char const* headLine =
    "           Pool 0    Pool 1    Pool 2    Pool 3    Pool 4    Pool 5    Pool 6    Pool 7 \n";

/// A run of cells that show one letter.
struct Letters {
  char letter;
  U32 poolId;
  U32 firstBlock;
  U32 lastBlock;
};

std::string times(int count, std::string const& text) {
  std::string all;
  for (int i = 0; i < count; ++i) all += text;
  return all;
}

/// The line of a block, without its end, where no table lies.
std::string unusedLine(U32 block) {
  std::string const margin =
      block % 8 == 0 ? " Tile " + std::to_string(block / 8) + " " : "        ";
  return margin +
         (block < 48 ? times(8, "  ........") : times(4, "          ") + times(4, "  ........"));
}

/// The text of a graph with those letters, and those lines below the fixed ones.
std::string picture(std::vector<Letters> const& runs, std::string const& legends) {
  std::string text = std::string(headLine) + "\n";
  for (U32 block = 0; block < 64; ++block) {
    std::string line = unusedLine(block);
    for (Letters const& run : runs)
      if (run.firstBlock <= block && block <= run.lastBlock)
        line.replace(8 + 10 * run.poolId + 2, 8, std::string(8, run.letter));
    text += line + "\n" + (block % 8 == 7 ? "\n" : "");
  }
  return text +
         "Legends: \n"
         "  Each row corresponds to one block (1024 SRAM entries)\n"
         "  .: unused\n" +
         legends;
}

std::string graph(std::vector<EntryPtr> const& tables) {
  return helper(tables)->displaySramAllocationGraph().charPtr();
}

std::vector<std::string> linesOf(std::string const& text) {
  std::istringstream in(text);
  std::vector<std::string> lines;
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

/// One table on each of the first blocks of pool 4: ids from 0, named by id.
std::vector<EntryPtr> tablesInARow(U32 count) {
  std::vector<EntryPtr> tables;
  for (U32 id = 0; id < count; ++id)
    tables.push_back(named(id, ("T" + std::to_string(id)).c_str(), blocks(4, id, 1)));
  return tables;
}

/// The legend lines of tables that are alone on their blocks, named by id, in the order of a map
/// that was given the groups in that order.
std::string legendsByHash(std::vector<std::pair<char, U32>> const& letters) {
  auto const map = tableSramMemoryMapFactory();
  for (auto const& [letter, id] : letters) {
    SharedTableGroup group;
    group.tableIdIs(id, true);
    map->legendIs(group, std::string{' ', ' ', letter}.append(": T" + std::to_string(id)).c_str());
  }
  std::string text;
  for (auto at = map->legendIteratorConst(); at; ++at)
    text += std::string(at.value().view()) + "\n";
  return text;
}

TEST(GraphTest, HeadThenAllUnusedThenTheFixedLegendsWithoutTables) {
  EXPECT_EQ(graph({}), picture({}, ""));
}

TEST(GraphTest, LinesWithoutTables) {
  auto const lines = linesOf(graph({}));
  EXPECT_EQ(lines[0] + "\n", headLine);
  EXPECT_EQ(lines[1], "");
  EXPECT_EQ(lines[2],
            " Tile 0   ........  ........  ........  ........  ........  ........  ........  "
            "........");
  EXPECT_EQ(lines[3],
            "          ........  ........  ........  ........  ........  ........  ........  "
            "........");
  EXPECT_EQ(lines[10], "");
  EXPECT_EQ(lines[2 + 48 + 6],
            " Tile 6                                           ........  ........  ........  "
            "........");
  EXPECT_EQ(lines[2 + 63 + 7],
            "                                                  ........  ........  ........  "
            "........");
  EXPECT_EQ(lines[2 + 63 + 8], "");
  EXPECT_EQ(lines.size(), 2u + 64 + 8 + 3);
}

TEST(GraphTest, EveryLineOfTheGridHas88Characters) {
  auto const lines =
      linesOf(graph({named(1, "X", blocks(0, 40, 8)), named(2, "Y", blocks(7, 0, 64))}));
  EXPECT_EQ(lines[0].size(), 88u);
  for (std::size_t i = 2; i < 2 + 64 + 8; ++i)
    EXPECT_EQ(lines[i].size(), i % 9 == 1 ? 0u : 88u) << i << ": " << lines[i];
}

TEST(GraphTest, TableAloneIsALetterOnItsBlocks) {
  EXPECT_EQ(graph({named(1, "X", blocks(4, 0, 2))}), picture({{'A', 4, 0, 1}}, "  A: X\n"));
}

TEST(GraphTest, TablesThatShareABlockAreAGroupBesideEachAlone) {
  EXPECT_EQ(graph({named(1, "X", blocks(0, 0, 2)), named(2, "Y", blocks(0, 0, 1))}),
            picture({{'A', 0, 0, 0}, {'B', 0, 1, 1}}, "  B: X\n  A: Y X\n"));
}

TEST(GraphTest, TableStandsInTheLegendOfEachOfItsGroups) {
  EXPECT_EQ(
      graph({named(1, "X", blocks(0, 0, 4)), named(2, "Y", blocks(0, 2, 4))}),
      picture({{'A', 0, 0, 1}, {'B', 0, 2, 3}, {'C', 0, 4, 5}}, "  A: X\n  B: Y X\n  C: Y\n"));
}

TEST(GraphTest, SameTablesAreOneLetterWhereverTheyLie) {
  EXPECT_EQ(
      graph({named(1, "X", nh(8 * 1024, 64, {{0, 0}, {7, 63}})), named(2, "Y", blocks(3, 9, 1))}),
      picture({{'A', 0, 0, 0}, {'B', 3, 9, 9}, {'A', 7, 63, 63}}, "  A: X\n  B: Y\n"));
}

TEST(GraphTest, GroupsThatDifferInOneTableDiffer) {
  EXPECT_EQ(graph({named(1, "X", blocks(5, 0, 3)), named(2, "Y", blocks(5, 1, 2)),
                   named(3, "Z", blocks(5, 2, 2))}),
            picture({{'A', 5, 0, 0}, {'B', 5, 1, 1}, {'C', 5, 2, 2}, {'D', 5, 3, 3}},
                    "  A: X\n  B: Y X\n  D: Z\n  C: Y X Z\n"));
}

TEST(GraphTest, LettersAreHandedOutLineByLineFromTheTop) {
  EXPECT_EQ(graph({named(4, "R", blocks(0, 2, 1)), named(1, "S", blocks(7, 0, 1)),
                   named(3, "T", blocks(0, 1, 1)), named(2, "U", blocks(2, 0, 1))}),
            picture({{'A', 2, 0, 0}, {'B', 7, 0, 0}, {'C', 0, 1, 1}, {'D', 0, 2, 2}},
                    "  B: S\n  A: U\n  C: T\n  D: R\n"));
}

TEST(GraphTest, LegendsStandInTheOrderOfTheHashMap) {
  EXPECT_EQ(graph(tablesInARow(6)),
            picture({{'A', 4, 0, 0},
                     {'B', 4, 1, 1},
                     {'C', 4, 2, 2},
                     {'D', 4, 3, 3},
                     {'E', 4, 4, 4},
                     {'F', 4, 5, 5}},
                    "  A: T0\n  F: T5\n  B: T1\n  C: T2\n  D: T3\n  E: T4\n"));
}

TEST(GraphTest, TablesOfAGroupStandInTheOrderOfTheHashMap) {
  EXPECT_EQ(graph({named(1, "ONE", blocks(0, 0, 1)), named(2, "TWO", blocks(0, 0, 1)),
                   named(3, "THREE", blocks(0, 0, 1)), named(4, "FOUR", blocks(0, 0, 1))}),
            picture({{'A', 0, 0, 0}}, "  A: FOUR TWO ONE THREE\n"));
}

TEST(GraphTest, CopiesOfATableAreOneLetter) {
  EXPECT_EQ(graph({table(1, "X", std::vector{blocks(2, 4, 2), blocks(2, 5, 2), blocks(3, 4, 1)})}),
            picture({{'A', 2, 4, 6}, {'A', 3, 4, 4}}, "  A: X\n"));
}

TEST(GraphTest, TableZeroIsATableAsAnyOther) {
  EXPECT_EQ(graph({named(0, "X", blocks(4, 0, 1))}), picture({{'A', 4, 0, 0}}, "  A: X\n"));
}

TEST(GraphTest, TablesOfOtherMemoriesAndEmptyOnesDoNotAppear) {
  EXPECT_EQ(graph({named(1, "A", match(2, 0)), named(2, "B", isme(0, 8192, 0)),
                   named(3, "C", direct(0, 128, {0, 0})), bare(4, "D"),
                   named(5, "E", direct(1023, 256, {0, 5}))}),
            picture({}, ""));
}

TEST(GraphTest, NextHopIndexIsEightLinesOfALetterATile) {
  xpLpmTableContext context;
  context.nhiTable.poolBitmap = 1 << 1;
  context.nhiTable.tileBitmap[1] = 1 << 2;
  EXPECT_EQ(graph({named(50, "LPM", context)}), picture({{'A', 1, 16, 23}}, "  A: LPM\n"));
}

TEST(GraphTest, BlocksBeyondTheTilesOfThePoolAreNotDrawn) {
  EXPECT_EQ(graph({named(1, "X", blocks(3, 46, 4))}), picture({{'A', 3, 46, 47}}, "  A: X\n"));
  EXPECT_EQ(graph({named(1, "X", blocks(4, 62, 4))}), picture({{'A', 4, 62, 63}}, "  A: X\n"));
  EXPECT_EQ(graph({named(1, "X", blocks(8, 0, 4))}), picture({}, ""));
}

TEST(GraphTest, GroupThatIsNeverDrawnHasNeitherLetterNorLegend) {
  EXPECT_EQ(graph({named(1, "X", blocks(0, 46, 18)), named(2, "Y", blocks(0, 48, 16)),
                   named(3, "Z", blocks(4, 63, 1))}),
            picture({{'A', 0, 46, 47}, {'B', 4, 63, 63}}, "  A: X\n  B: Z\n"));
}

TEST(GraphTest, GroupBeyondTheTilesHasTheLetterThatItHasElsewhere) {
  EXPECT_EQ(graph({named(1, "X", nh(2 * 1024, 256, {{0, 48}, {6, 60}}))}),
            picture({{'A', 6, 60, 60}}, "  A: X\n"));
}

TEST(GraphTest, AlphabetOf52Letters) {
  std::vector<Letters> runs;
  std::vector<std::pair<char, U32>> legends;
  for (U32 id = 0; id < 52; ++id) {
    runs.push_back({alphabet[id], 4, id, id});
    legends.emplace_back(alphabet[id], id);
  }
  EXPECT_EQ(graph(tablesInARow(52)), picture(runs, legendsByHash(legends)));
}

TEST(GraphTest, GroupsBehindThe52ndAreQuestionMarksWithALegendEach) {
  std::vector<Letters> runs;
  std::vector<std::pair<char, U32>> legends;
  for (U32 id = 0; id < 60; ++id) {
    runs.push_back({id < 52 ? alphabet[id] : '?', 4, id, id});
    legends.emplace_back(id < 52 ? alphabet[id] : '?', id);
  }
  EXPECT_EQ(graph(tablesInARow(60)), picture(runs, legendsByHash(legends)));
}

TEST(GraphTest, GroupKeepsItsLetterBehindTheAlphabet) {
  auto tables = tablesInARow(53);
  tables[0] = table(0, "T0", std::vector{blocks(4, 0, 1), blocks(4, 60, 1)});
  tables[52] = table(52, "T52", std::vector{blocks(4, 52, 1), blocks(4, 61, 1)});
  auto const lines = linesOf(graph(tables));
  EXPECT_EQ(lines[2 + 60 + 7].substr(48, 10), "  AAAAAAAA");
  EXPECT_EQ(lines[2 + 61 + 7].substr(48, 10), "  ????????");
  EXPECT_EQ(std::ranges::count(lines, "  A: T0"), 1);
  EXPECT_EQ(std::ranges::count(lines, "  ?: T52"), 1);
}

TEST(GraphTest, NamesAreWhole) {
  std::string const name(300, 'N');
  EXPECT_EQ(graph({named(1, name.c_str(), blocks(4, 0, 1))}),
            picture({{'A', 4, 0, 0}}, "  A: " + name + "\n"));
  EXPECT_EQ(graph({named(1, "", blocks(4, 0, 1))}), picture({{'A', 4, 0, 0}}, "  A: \n"));
}

TEST(GraphTest, EachCallTellsHowThingsStand) {
  auto const status = chipWith({});
  auto const reports = tableCliHelperFactory(status);
  EXPECT_EQ(reports->displaySramAllocationGraph(), picture({}, "").c_str());
  status->tableContextIs(named(1, "X", blocks(4, 0, 1)));
  for (int call = 0; call < 2; ++call)
    EXPECT_EQ(reports->displaySramAllocationGraph(), picture({{'A', 4, 0, 0}}, "  A: X\n").c_str());
}

TEST(GraphDeathTest, ContextsThatCannotBeReadEndTheProcess) {
  std::string const update =
      "void Kestrel::updateTableMemoryPerCopy(Kestrel::TableMemCollection::Ptr&, "
      "XpXdk::TableContextEntry::PtrConst&, U8)";
  EntryPtr const wide = table(hash(8192, 256, 128, {{0, 0}}));
  expectAssertion([&wide] { graph({wide}); }, "context.valueSize == (256)", update);
  EntryPtr const untyped = table(match(1, 0));
  untyped->tableTypeIs(3);
  expectAssertion([&untyped] { graph({untyped}); }, "false", update);
}

TEST(GraphTraceTest, GraphIsTracedOnceAndEmptyCopiesEach) {
  Traced traced;
  graph({table(1, "A", std::vector{match(0, 0), match(0, 0)}), named(2, "B", blocks(0, 0, 1))});
  EXPECT_EQ(traced.lines, (std::vector{trace(8, "displaySramAllocationGraph",
                                             "TableCliHelper::displaySramAllocationGraph"),
                                       trace(7, "updateTableMemoryPerCopy", "Table 1 is empty"),
                                       trace(7, "updateTableMemoryPerCopy", "Table 1 is empty")}));
}

}  // namespace

}  // namespace Kestrel::xpTableCliHelper
