// The list of tables and the summary, to the byte.
#include "XpLib/XpTableCliHelperRigTest.h"

namespace Kestrel::xpTableCliHelper {

namespace {

constexpr char const* summaryHead = "           Name   Type  Copies     SRAM     TCAM     ISME\n";

std::string line(EntryPtr const& entry) {
  return helper({entry})->displaySingleDynamicTableSummary(entry->tableId()).charPtr();
}

std::string listed(TableCliHelper::Ptr const& helper) {
  auto const tables = helper->getTableCollection();
  std::string text;
  for (auto at = tables->tableNameIteratorConst(); at; ++at)
    text += std::to_string(at.key()) + at.value().charPtr() + ' ';
  return text;
}

TEST(TableListTest, NoTables) { EXPECT_EQ(helper({})->getTableCollection()->tableNameCount(), 0u); }

TEST(TableListTest, AllTablesInTheOrderOfTheHashMap) {
  EXPECT_EQ(listed(helper({table(1, "A", std::vector{match(1, 0)}), bare(2, "B"), bare(3, "C"),
                           bare(4, "D")})),
            "4D 2B 1A 3C ");
}

TEST(TableListTest, EachCallTellsHowThingsStand) {
  auto const status = chipWith({bare(1, "A")});
  auto const helper = tableCliHelperFactory(status);
  EXPECT_EQ(listed(helper), "1A ");
  status->tableContextIs(bare(2, "B"));
  EXPECT_EQ(listed(helper), "2B 1A ");
}

TEST(TableListTest, EachCallMakesACollectionOfItsOwn) {
  auto const reports = helper({bare(1, "A")});
  reports->getTableCollection()->tableNameDelAll();
  EXPECT_EQ(listed(reports), "1A ");
}

TEST(SummaryTest, HeadLineAloneWithoutTables) {
  EXPECT_EQ(helper({})->displayAllDynamicTablesSummary(), summaryHead);
}

TEST(SummaryTest, LineOfAHashTable) {
  EXPECT_EQ(line(table(1, "ABC", std::vector{hash(4096, 64, 64, {{0, 0}})})),
            "            ABC   HASH       1     2048        0        0\n");
}

TEST(SummaryTest, AllLinesInTheOrderOfTheHashMap) {
  EXPECT_EQ(
      helper({table(1, "A", std::vector{blocks(0, 0, 1)}), table(2, "B", std::vector{match(1, 0)}),
              table(3, "C", std::vector{isme(0, 4096, 0)}), bare(4, "D")})
          ->displayAllDynamicTablesSummary(),
      Mox::String8(summaryHead) +
          "              D  MATCH       0        0        0        0\n"
          "              B  MATCH       1        0     3072        0\n"
          "              A DIRECT       1     1024        0        0\n"
          "              C   ISME       1        0        0     1024\n");
}

TEST(SummaryTest, CopiesOnDistinctBlocksAddUp) {
  EXPECT_EQ(line(table(1, "T", std::vector{blocks(0, 0, 3), blocks(0, 3, 3)})),
            "              T DIRECT       2     6144        0        0\n");
}

TEST(SummaryTest, BlocksThatCopiesShareCountOnce) {
  EXPECT_EQ(line(table(1, "T", std::vector{blocks(0, 0, 3), blocks(0, 0, 3)})),
            "              T DIRECT       2     3072        0        0\n");
}

TEST(SummaryTest, ChunksThatOverlapInPartCountInFull) {
  EXPECT_EQ(line(table(1, "T", std::vector{blocks(0, 0, 3), blocks(0, 1, 3)})),
            "              T DIRECT       2     6144        0        0\n");
}

TEST(SummaryTest, EmptyTableShowsItsCopies) {
  EXPECT_EQ(line(table(1, "T", std::vector{match(0, 0), match(0, 0)})),
            "              T  MATCH       2        0        0        0\n");
}

TEST(SummaryTest, LongNameMovesTheLine) {
  EXPECT_EQ(line(bare(1, "ABCDEFGHIJKLMNO")),
            "ABCDEFGHIJKLMNO  MATCH       0        0        0        0\n");
  EXPECT_EQ(line(bare(1, "ABCDEFGHIJKLMNOP")),
            "ABCDEFGHIJKLMNOP  MATCH       0        0        0        0\n");
}

TEST(SummaryTest, RunOfLessThanABlockShowsNothing) {
  EXPECT_EQ(line(table(1, "T", std::vector{direct(1023, 256, {0, 5})})),
            "              T DIRECT       1        0        0        0\n");
}

TEST(SummaryTest, FiguresAreSigned) {
  EXPECT_EQ(line(table(1, "T", std::vector{blocks(0, 254, 4)})),
            "              T DIRECT       1  -258048        0        0\n");
}

TEST(SummaryTest, LinesOfAllTypes) {
  xpLpmTableContext lpm;
  lpm.prefixTable[0] = prefix(2048, 256, {0, 0});
  lpm.nhiTable.poolBitmap = 1;
  lpm.nhiTable.tileBitmap[0] = 6;
  EXPECT_EQ(line(table(1, "T", std::vector{lpm})),
            "              T    LPM       1    18432        0        0\n");
  EXPECT_EQ(line(table(1, "T", std::vector{nh(16384, 64, {{1, 0}, {4, 7}})})),
            "              T     NH       1     4096        0        0\n");
  EXPECT_EQ(line(table(1, "T", std::vector{isme(1, 16 * 4096, 0)})),
            "              T   ISME       1        0        0    16384\n");
}

TEST(SummaryDeathTest, TypeThatIsNone) {
  EntryPtr const entry = bare(1, "T");
  entry->tableTypeIs(4);
  expectAssertion([&entry] { line(entry); }, "false", "const char* Kestrel::tableTypeToString(U8)");
}

TEST(ReportTraceTest, ListIsTraced) {
  Traced traced;
  helper({bare(1, "A")})->getTableCollection();
  EXPECT_EQ(traced.lines,
            std::vector{trace(8, "getTableCollection", "TableCliHelper::getTableCollection")});
}

TEST(ReportTraceTest, SingleSummaryNamesItsTable) {
  Traced traced;
  line(bare(42, "A"));
  EXPECT_EQ(traced.lines,
            std::vector{trace(8, "displaySingleDynamicTableSummary",
                              "TableCliHelper::displaySingleDynamicTableSummary tableId 42")});
}

TEST(ReportTraceTest, SummaryIsTracedForItselfAndForEachTable) {
  Traced traced;
  helper({bare(1, "A"), table(2, "B", std::vector{match(0, 0)})})->displayAllDynamicTablesSummary();
  EXPECT_EQ(traced.lines,
            (std::vector{trace(8, "displayAllDynamicTablesSummary",
                               "TableCliHelper::displayAllDynamicTablesSummary"),
                         trace(8, "displaySingleDynamicTableSummary",
                               "TableCliHelper::displaySingleDynamicTableSummary tableId 2"),
                         trace(7, "updateTableMemoryPerCopy", "Table 2 is empty"),
                         trace(8, "displaySingleDynamicTableSummary",
                               "TableCliHelper::displaySingleDynamicTableSummary tableId 1")}));
}

TEST(ReportTraceTest, SitesCountTheirPasses) {
  auto const reports = helper({});
  reports->getTableCollection();
  auto const* const facility = Mox::traceFacility("XpTableCliHelper");
  U64 const before = facility->hits();
  reports->getTableCollection();
  EXPECT_EQ(facility->hits(), before + 1);
  Traced traced;
  reports->getTableCollection();
  EXPECT_EQ(facility->hits(), before + 3);
}

}  // namespace

}  // namespace Kestrel::xpTableCliHelper
