// The detail report, to the byte.
#include "XpLib/XpTableCliHelperRigTest.h"

#include <iostream>

namespace Kestrel::xpTableCliHelper {

namespace {

constexpr char const* operation = "displaySingleDynamicTableDetail";
constexpr char const* signature =
    "Mox::String Kestrel::TableCliHelper::displaySingleDynamicTableDetail(U32)";

std::string detail(EntryPtr const& entry) {
  return helper({entry})->displaySingleDynamicTableDetail(entry->tableId()).charPtr();
}

/// The lines of a copy, without those of the table and of the copy.
template <class Context>
std::string copyLines(Context const& context) {
  std::string const text = detail(table(context));
  std::string const copyLine = "\n  Copy 0:\n";
  std::size_t const at = text.find(copyLine);
  EXPECT_NE(at, text.npos) << text;
  return text.substr(at + copyLine.size());
}

std::string allDetails(std::vector<EntryPtr> const& tables) {
  return helper(tables)->displayAllDynamicTablesDetail().charPtr();
}

/// An LPM table with one prefix table, and no tiles.
xpLpmTableContext lpm() {
  xpLpmTableContext context;
  context.prefixTable[0] = prefix(16384, 64, {4, 40});
  return context;
}

constexpr char const* lpmLines =
    "    numPrefixTables 1 searchDataWidth 0 vrfIdWidth 0\n"
    "      PrefixTable 0: numOfEntries 16384 numOfRows 4096 entryWidth 64 tread 0 poolId 4"
    " rowBlkStartId 40\n";
constexpr char const* noIndexLine =
    "      NhiTable: numEntries 0 numRows 0 entryWidth 128 pairPerEntry 0 nhWidth 0\n";

TEST(DetailTest, NoTablesNoText) { EXPECT_EQ(allDetails({}), ""); }

TEST(DetailTest, TableWithoutCopiesIsItsHeadLine) {
  EXPECT_EQ(detail(bare(1, "T")), "Table T type MATCH:\n");
}

TEST(DetailTest, EachTypeStandsInTheHeadLine) {
  EXPECT_EQ(detail(table(match(0, 0))), "Table T type MATCH:\n  Copy 0:\n    (empty)\n");
  EXPECT_EQ(detail(table(hash(0, 0, 0, {}))), "Table T type HASH:\n  Copy 0:\n    (empty)\n");
  EXPECT_EQ(detail(table(xpDirectTableContext())),
            "Table T type DIRECT:\n  Copy 0:\n    (empty)\n");
  EXPECT_EQ(detail(table(xpLpmTableContext())), "Table T type LPM:\n  Copy 0:\n    (empty)\n");
  EXPECT_EQ(detail(table(xpIsmeTableContext())), "Table T type ISME:\n  Copy 0:\n    (empty)\n");
  EXPECT_EQ(detail(table(xpNhTableContext())), "Table T type NH:\n  Copy 0:\n    (empty)\n");
}

TEST(DetailTest, TablesFollowEachOtherInTheOrderOfTheHashMap) {
  EXPECT_EQ(allDetails({bare(1, "A"), table(2, "B", std::vector{match(0, 0)}), bare(3, "C"),
                        table(4, "D", std::vector{blocks(0, 0, 1)})}),
            "Table D type DIRECT:\n"
            "  Copy 0:\n"
            "    numOfEntries 1024 numRows 1024 entryWidth 256 poolId 0 rowBlkStartId 0\n"
            "Table B type MATCH:\n"
            "  Copy 0:\n"
            "    (empty)\n"
            "Table A type MATCH:\n"
            "Table C type MATCH:\n");
}

TEST(DetailTest, CopiesShowEachForItselfAlsoOnTheSameBlocks) {
  EXPECT_EQ(detail(table(1, "T", std::vector{blocks(3, 5, 2), blocks(3, 5, 2)})),
            "Table T type DIRECT:\n"
            "  Copy 0:\n"
            "    numOfEntries 2048 numRows 2048 entryWidth 256 poolId 3 rowBlkStartId 5\n"
            "  Copy 1:\n"
            "    numOfEntries 2048 numRows 2048 entryWidth 256 poolId 3 rowBlkStartId 5\n");
}

TEST(DetailTest, EmptyCopyStandsBesideOneThatIsNot) {
  EXPECT_EQ(detail(table(1, "T", std::vector{match(0, 7), match(1, 7)})),
            "Table T type MATCH:\n"
            "  Copy 0:\n"
            "    (empty)\n"
            "  Copy 1:\n"
            "    numDb 1 startDb 7 keySize 0 valueSize 0\n");
}

TEST(DetailTest, AllCopiesThatAByteCanCountAreShown) {
  std::string expected = "Table T type MATCH:\n";
  for (int copy = 0; copy < 256; ++copy)
    expected += "  Copy " + std::to_string(copy) + ":\n    (empty)\n";
  EXPECT_EQ(detail(table(1, "T", std::vector(256, match(0, 0)))), expected);
}

TEST(DetailTest, LongNameIsWhole) {
  std::string const name(300, 'N');
  EXPECT_EQ(detail(bare(1, name.c_str())), "Table " + name + " type MATCH:\n");
}

TEST(DetailTest, EachCallTellsHowThingsStand) {
  auto const status = chipWith({});
  auto const reports = tableCliHelperFactory(status);
  EXPECT_EQ(reports->displayAllDynamicTablesDetail(), "");
  status->tableContextIs(bare(1, "A"));
  EXPECT_EQ(reports->displayAllDynamicTablesDetail(), "Table A type MATCH:\n");
}

TEST(MatchDetailTest, DatabasesAndWidths) {
  EXPECT_EQ(copyLines(match(2, 255, 80, 32)), "    numDb 2 startDb 255 keySize 80 valueSize 32\n");
}

TEST(HashDetailTest, FiveLinesOfATableOfTwoWays) {
  EXPECT_EQ(
      detail(table(1, "ABC", std::vector{hash(4096, 64, 64, {{4, 0}, {5, 8}})})),
      "Table ABC type HASH:\n"
      "  Copy 0:\n"
      "    numOfEntries 4096 numOfRows 2048 entryWidth 128 keySize 64 valueSize 64 numOfWays 2"
      " shared no\n"
      "      Way 0: poolId 4 rowBlkStartId 0 numOfRows 1024\n"
      "      Way 1: poolId 5 rowBlkStartId 8 numOfRows 1024\n");
}

TEST(HashDetailTest, SharedFieldThatIsNotZeroIsYes) {
  auto context = hash(4096, 64, 64, {{4, 0}});
  context.shared = 0x100;
  EXPECT_EQ(
      copyLines(context),
      "    numOfEntries 4096 numOfRows 2048 entryWidth 128 keySize 64 valueSize 64 numOfWays 1"
      " shared yes\n"
      "      Way 0: poolId 4 rowBlkStartId 0 numOfRows 2048\n");
}

TEST(HashDetailTest, EntryOfARowIsSingleWidth) {
  EXPECT_EQ(copyLines(hash(2048, 129, 127, {{0, 0}})),
            "    numOfEntries 2048 numOfRows 2048 entryWidth 256 keySize 129 valueSize 127"
            " numOfWays 1 shared no\n"
            "      Way 0: poolId 0 rowBlkStartId 0 numOfRows 2048\n");
}

TEST(HashDetailTest, DoubleWidthEntriesTakeTwoRows) {
  EXPECT_EQ(copyLines(hash(8192, 256, 256, {{0, 1}, {1, 2}})),
            "    numOfEntries 8192 numOfRows 16384 entryWidth 512 keySize 256 valueSize 256"
            " numOfWays 2 shared no\n"
            "      Way 0: poolId 0 rowBlkStartId 1 numOfRows 8192\n"
            "      Way 1: poolId 1 rowBlkStartId 2 numOfRows 8192\n");
}

TEST(HashDetailTest, RowsOfAWayAreThoseOfTheTableDivided) {
  // 5 entries take 10 rows; 2 entries a way would take 4.
  EXPECT_EQ(copyLines(hash(5, 256, 256, {{0, 1}, {1, 2}})),
            "    numOfEntries 5 numOfRows 10 entryWidth 512 keySize 256 valueSize 256"
            " numOfWays 2 shared no\n"
            "      Way 0: poolId 0 rowBlkStartId 1 numOfRows 5\n"
            "      Way 1: poolId 1 rowBlkStartId 2 numOfRows 5\n");
}

TEST(HashDetailTest, EveryDivisionDropsItsRemainder) {
  // 2 entries a row: 17 / 2 = 8 rows, 8 / 3 = 2 a way.
  EXPECT_EQ(copyLines(hash(17, 60, 40, {{0, 0}, {1, 0}, {2, 0}})),
            "    numOfEntries 17 numOfRows 8 entryWidth 100 keySize 60 valueSize 40 numOfWays 3"
            " shared no\n"
            "      Way 0: poolId 0 rowBlkStartId 0 numOfRows 2\n"
            "      Way 1: poolId 1 rowBlkStartId 0 numOfRows 2\n"
            "      Way 2: poolId 2 rowBlkStartId 0 numOfRows 2\n");
}

TEST(HashDetailTest, EntriesWithoutAWayHaveNoWayLine) {
  EXPECT_EQ(
      copyLines(hash(4096, 64, 64, {})),
      "    numOfEntries 4096 numOfRows 2048 entryWidth 128 keySize 64 valueSize 64 numOfWays 0"
      " shared no\n");
}

TEST(HashDetailTest, EmptyCopyMayHaveAnyWidths) {
  EXPECT_EQ(copyLines(hash(0, 0, 300, {{0, 0}})), "    (empty)\n");
}

TEST(HashDetailDeathTest, WideEntryNeedsAKeyOf256) {
  EntryPtr const entry = table(hash(8192, 128, 256, {{0, 0}}));
  expectAssertion([&entry] { detail(entry); }, "context.keySize == (256)", signature);
}

TEST(HashDetailDeathTest, WideEntryNeedsAValueOf256) {
  EntryPtr const entry = table(hash(8192, 256, 128, {{0, 0}}));
  expectAssertion([&entry] { detail(entry); }, "context.valueSize == (256)", signature);
}

TEST(DirectDetailTest, RowsDropTheirRemainder) {
  EXPECT_EQ(copyLines(direct(1023, 100, {3, 5})),
            "    numOfEntries 1023 numRows 511 entryWidth 100 poolId 3 rowBlkStartId 5\n");
}

TEST(DirectDetailTest, PlacementIsShownAsTheRecordHasIt) {
  xpDirectTableContext context;
  context.numOfEntries = 1;
  context.entryWidth = 256;
  EXPECT_EQ(copyLines(context),
            "    numOfEntries 1 numRows 1 entryWidth 256 poolId 4294967295"
            " rowBlkStartId 4294967295\n");
}

TEST(IsmeDetailTest, TwoEntriesMakeARow) {
  EXPECT_EQ(copyLines(isme(2, 8193, 3, 1)),
            "    numOfEntries 8193 numRows 4096 ismeNum 2 ldeNum 1 tileStartId 3\n");
}

TEST(NhDetailTest, WaysAreConsecutiveWhilePoolsAreNot) {
  EXPECT_EQ(copyLines(nh(16384, 64, {{1, 0}, {4, 7}})),
            "    numEntries 16384 numRows 4096 entryWidth 64 numWays 2\n"
            "      Way 0: poolId 1 rowBlkStartId 0 numOfRows 2048\n"
            "      Way 1: poolId 4 rowBlkStartId 7 numOfRows 2048\n");
}

TEST(NhDetailTest, EveryDivisionDropsItsRemainder) {
  // 4 entries a row: 27 / 4 = 6 rows; 27 / 3 = 9 entries a way, 9 / 4 = 2 rows.
  EXPECT_EQ(copyLines(nh(27, 64, {{0, 0}, {6, 0}, {7, 9}})),
            "    numEntries 27 numRows 6 entryWidth 64 numWays 3\n"
            "      Way 0: poolId 0 rowBlkStartId 0 numOfRows 2\n"
            "      Way 1: poolId 6 rowBlkStartId 0 numOfRows 2\n"
            "      Way 2: poolId 7 rowBlkStartId 9 numOfRows 2\n");
}

TEST(NhDetailTest, EntryOfARow) {
  EXPECT_EQ(copyLines(nh(2048, 256, {{0, 4}})),
            "    numEntries 2048 numRows 2048 entryWidth 256 numWays 1\n"
            "      Way 0: poolId 0 rowBlkStartId 4 numOfRows 2048\n");
}

TEST(NhDetailTest, BitsBeyondThePoolsCountAsWaysAndHaveNoLine) {
  auto context = nh(16384, 256, {{0, 0}, {7, 3}});
  context.poolBitmap |= 0x80000100;
  EXPECT_EQ(copyLines(context),
            "    numEntries 16384 numRows 16384 entryWidth 256 numWays 4\n"
            "      Way 0: poolId 0 rowBlkStartId 0 numOfRows 4096\n"
            "      Way 1: poolId 7 rowBlkStartId 3 numOfRows 4096\n");
}

TEST(NhDetailTest, EntriesWithoutAPoolHaveNoWayLine) {
  EXPECT_EQ(copyLines(nh(16384, 64, {})),
            "    numEntries 16384 numRows 4096 entryWidth 64 numWays 0\n");
}

TEST(LpmDetailTest, SlotsKeepTheirNumbersOverGaps) {
  xpLpmTableContext context;
  context.searchDataWidth = 32;
  context.vrfIdWidth = 12;
  context.prefixTable[2] = {1, 16384, 64, 16, 4, 40};
  context.prefixTable[5] = {0xFF, 1001, 100, 3, 0, 9};
  EXPECT_EQ(copyLines(context),
            std::string("    numPrefixTables 2 searchDataWidth 32 vrfIdWidth 12\n"
                        "      PrefixTable 2: numOfEntries 16384 numOfRows 4096 entryWidth 64"
                        " tread 16 poolId 4 rowBlkStartId 40\n"
                        "      PrefixTable 5: numOfEntries 1001 numOfRows 500 entryWidth 100"
                        " tread 3 poolId 0 rowBlkStartId 9\n") +
                noIndexLine);
}

TEST(LpmDetailTest, LastSlotCounts) {
  xpLpmTableContext context;
  context.prefixTable[31] = prefix(0, 256, {0, 0});
  EXPECT_EQ(copyLines(context),
            std::string("    numPrefixTables 1 searchDataWidth 0 vrfIdWidth 0\n"
                        "      PrefixTable 31: numOfEntries 0 numOfRows 0 entryWidth 256"
                        " tread 0 poolId 0 rowBlkStartId 0\n") +
                noIndexLine);
}

TEST(LpmDetailTest, SlotThatIsNotValidIsNotRead) {
  auto context = lpm();
  context.prefixTable[1] = prefix(16384, 0, {4, 44});
  context.prefixTable[1].valid = 0;
  EXPECT_EQ(copyLines(context), std::string(lpmLines) + noIndexLine);
}

TEST(LpmDetailTest, WithoutPrefixTableTheIndexIsNotShown) {
  xpLpmTableContext context;
  context.nhiTable.poolBitmap = 1;
  context.nhiTable.numEntries = 16384;
  context.nhiTable.tileBitmap[0] = 1;
  EXPECT_EQ(copyLines(context), "    (empty)\n");
}

TEST(LpmDetailTest, TwoEntriesOfTheIndexMakeARow) {
  auto context = lpm();
  context.nhiTable.numEntries = 16385;
  context.nhiTable.pairPerEntry = 2;
  context.nhiTable.nhWidth = 20;
  EXPECT_EQ(copyLines(context),
            std::string(lpmLines) +
                "      NhiTable: numEntries 16385 numRows 8192 entryWidth 128 pairPerEntry 2"
                " nhWidth 20\n");
}

TEST(LpmDetailTest, TilesAreCountedOnAcrossPools) {
  auto context = lpm();
  context.nhiTable.poolBitmap = 0x81;
  context.nhiTable.tileBitmap[0] = 0x21;
  context.nhiTable.tileBitmap[7] = 0x82;
  EXPECT_EQ(copyLines(context),
            std::string(lpmLines) + noIndexLine +
                "        Tile 0: numEntries 16384 numRows 8192 poolId 0 tileId 0\n"
                "        Tile 1: numEntries 16384 numRows 8192 poolId 0 tileId 5\n"
                "        Tile 2: numEntries 16384 numRows 8192 poolId 7 tileId 1\n"
                "        Tile 3: numEntries 16384 numRows 8192 poolId 7 tileId 7\n");
}

TEST(LpmDetailTest, TilesOfAPoolOutsideTheBitmapAreNotShown) {
  auto context = lpm();
  context.nhiTable.poolBitmap = 0xFFFFFF02;
  context.nhiTable.tileBitmap[0] = 0xFF;
  context.nhiTable.tileBitmap[1] = 0x01;
  EXPECT_EQ(copyLines(context),
            std::string(lpmLines) + noIndexLine +
                "        Tile 0: numEntries 16384 numRows 8192 poolId 1 tileId 0\n");
}

TEST(DetailDeathTest, TypeThatIsNone) {
  for (U8 code : {3, 4, 5, 9}) {
    EntryPtr const entry = bare(1, "T");
    entry->tableTypeIs(code);
    expectAssertion([&entry] { detail(entry); }, "false",
                    "const char* Kestrel::tableTypeToString(U8)");
  }
}

TEST(DetailTraceTest, SingleDetailNamesItsTable) {
  Traced traced;
  detail(table(42, "A", std::vector{match(0, 0), match(1, 0)}));
  EXPECT_EQ(traced.lines, std::vector{trace(8, operation,
                                            "TableCliHelper::displaySingleDynamicTableDetail"
                                            " tableId 42")});
}

TEST(DetailTraceTest, DetailIsTracedForItselfAndForEachTable) {
  Traced traced;
  allDetails({bare(1, "A"), table(2, "B", std::vector{match(0, 0)})});
  EXPECT_EQ(traced.lines,
            (std::vector{
                trace(8, "displayAllDynamicTablesDetail",
                      "TableCliHelper::displayAllDynamicTablesDetail"),
                trace(8, operation, "TableCliHelper::displaySingleDynamicTableDetail tableId 2"),
                trace(8, operation, "TableCliHelper::displaySingleDynamicTableDetail tableId 1")}));
}

TEST(DetailTraceTest, TraceStandsBeforeTheAssertion) {
  EntryPtr const entry = bare(7, "T");
  entry->tableTypeIs(3);
  EXPECT_EXIT(
      {
        Mox::traceSinkIs([](std::string_view line) { std::cerr << line << '\n'; });
        Mox::traceEnable("XpTableCliHelper/8");
        detail(entry);
      },
      testing::KilledBySignal(SIGABRT),
      "TableCliHelper::displaySingleDynamicTableDetail tableId 7\n.*Assertion `false' failed");
}

}  // namespace

}  // namespace Kestrel::xpTableCliHelper
