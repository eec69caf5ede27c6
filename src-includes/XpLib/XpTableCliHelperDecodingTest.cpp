// Which memory each type of table takes.
#include "XpLib/XpTableCliHelperRigTest.h"

namespace Kestrel::xpTableCliHelper {

namespace {

constexpr char const* updateSignature =
    "void Kestrel::updateTableMemoryPerCopy(Kestrel::TableMemCollection::Ptr&, "
    "XpXdk::TableContextEntry::PtrConst&, U8)";

/// What is traced while the copies of a table are read.
std::vector<std::string> traces(EntryPtr const& entry) {
  Traced traced;
  memoryOf(entry);
  return traced.lines;
}

std::vector<std::string> emptyTrace(char const* text) {
  return {trace(7, "updateTableMemoryPerCopy", text)};
}

TEST(CopiesDeathTest, CopyOfNoTypeIsNotRead) {
  EntryPtr const entry = table(match(1, 0));
  entry->tableTypeIs(3);
  expectAssertion([&entry] { memoryOf(entry); }, "false", updateSignature);
}

TEST(HashMemoryTest, ARunForEachWay) {
  EXPECT_EQ(chunks(hash(8192, 64, 64, {{4, 0}, {5, 8}})), " sram 4:0-1 sram 5:8-9");
}

TEST(HashMemoryTest, DoubleWidthEntriesTakeTwoRows) {
  EXPECT_EQ(chunks(hash(4 * 2048, 256, 256, {{0, 0}, {1, 4}, {2, 8}, {3, 12}})),
            " sram 0:0-3 sram 1:4-7 sram 2:8-11 sram 3:12-15");
}

TEST(HashMemoryTest, EntryOfARowIsSingleWidth) {
  EXPECT_EQ(chunks(hash(2048, 128, 128, {{0, 0}})), " sram 0:0-1");
}

TEST(HashMemoryTest, EveryDivisionDropsItsRemainder) {
  // 20,000 / 3 = 6,666 a way; 256 / 100 = 2 in a row; 3,333 rows; 3 blocks.
  EXPECT_EQ(chunks(hash(20000, 60, 40, {{0, 0}, {1, 0}, {2, 0}})),
            " sram 0:0-2 sram 1:0-2 sram 2:0-2");
}

TEST(HashMemoryTest, EntriesOfAWayDropTheirRemainder) {
  // 2,047 / 2 = 1,023 a way; 2 in a row; 511 rows: less than a block.
  EXPECT_EQ(chunks(hash(2047, 128, 128, {{0, 4}, {1, 4}})), " sram 0:4-3 sram 1:4-3");
}

TEST(HashMemoryTest, SharedHasNoPart) {
  auto context = hash(8192, 64, 64, {{4, 0}, {5, 8}});
  context.shared = 1;
  EXPECT_EQ(chunks(context), " sram 4:0-1 sram 5:8-9");
}

TEST(HashMemoryTest, EightWays) {
  EXPECT_EQ(chunks(hash(8 * 1024, 128, 128,
                        {{0, 1}, {1, 1}, {2, 1}, {3, 1}, {4, 1}, {5, 1}, {6, 1}, {7, 1}})),
            " sram 0:1-1 sram 1:1-1 sram 2:1-1 sram 3:1-1 sram 4:1-1 sram 5:1-1 sram 6:1-1"
            " sram 7:1-1");
}

TEST(HashMemoryTest, EmptyTableMakesNoChunkAndIsTraced) {
  EntryPtr const entry = table(5, "T", std::vector{hash(0, 64, 64, {{4, 0}})});
  EXPECT_EQ(chunks(entry), "");
  EXPECT_EQ(traces(entry), emptyTrace("Table 5 is empty"));
}

TEST(HashMemoryTest, TraceNamesTheCollectionsTable) {
  XpXdk::TableContextEntry::PtrConst entry = table(5, "T", std::vector{hash(0, 64, 64, {{4, 0}})});
  auto memory = tableMemCollectionFactory(9);
  Traced traced;
  updateTableMemoryPerCopy(memory, entry, 0);
  EXPECT_EQ(traced.lines, emptyTrace("Table 9 is empty"));
}

TEST(HashMemoryTest, EmptyTableMayHaveAnyWidthsAndNoWay) {
  EXPECT_EQ(chunks(hash(0, 0, 300, {})), "");
}

TEST(HashMemoryDeathTest, WideEntryNeedsAKeyOf256) {
  expectAssertion(
      [] {
        chunks(hash(8192, 128, 256, {{0, 0}}));
      },
      "context.keySize == (256)", updateSignature);
}

TEST(HashMemoryDeathTest, KeyIsLookedAtAheadOfTheValue) {
  expectAssertion(
      [] {
        chunks(hash(8192, 300, 300, {{0, 0}}));
      },
      "context.keySize == (256)", updateSignature);
}

TEST(HashMemoryDeathTest, WideEntryNeedsAValueOf256) {
  expectAssertion(
      [] {
        chunks(hash(8192, 256, 128, {{0, 0}}));
      },
      "context.valueSize == (256)", updateSignature);
}

TEST(DirectMemoryTest, OneRun) { EXPECT_EQ(chunks(direct(16384, 128, {3, 5})), " sram 3:5-12"); }

TEST(DirectMemoryTest, RunOfLessThanABlockEndsBelowItsStart) {
  EXPECT_EQ(chunks(direct(1023, 256, {3, 5})), " sram 3:5-4");
  EXPECT_EQ(memoryOf(table(direct(1023, 256, {3, 5})))->sramChunkIteratorConst().key().numRows(),
            0u);
}

TEST(DirectMemoryTest, RunOfNoBlockAtBlock0WrapsTo255) {
  EXPECT_EQ(chunks(direct(1023, 256, {3, 0})), " sram 3:0-255");
  EXPECT_EQ(memoryOf(table(direct(1023, 256, {3, 0})))->sramChunkIteratorConst().key().numRows(),
            262144u);
}

TEST(DirectMemoryTest, PartOfABlockDoesNotCount) {
  EXPECT_EQ(chunks(direct(1536, 256, {3, 5})), " sram 3:5-5");
}

TEST(DirectMemoryTest, PoolStartAndEndAreTakenAsBytes) {
  EXPECT_EQ(chunks(direct(4 * 1024, 256, {0x102, 0x1FE})), " sram 2:254-1");
}

TEST(DirectMemoryTest, PlacementOfNothingIsAllOnes) {
  xpDirectTableContext context;
  context.numOfEntries = 2048;
  context.entryWidth = 256;
  EXPECT_EQ(chunks(context), " sram 255:255-0");
}

TEST(DirectMemoryTest, EmptyTableMakesNoChunkAndIsTraced) {
  EntryPtr const entry = table(61, "T", std::vector{direct(0, 0, {3, 5})});
  EXPECT_EQ(chunks(entry), "");
  EXPECT_EQ(traces(entry), emptyTrace("Table 61 is empty"));
}

TEST(NhMemoryTest, ARunInEachPoolOfTheBitmap) {
  EXPECT_EQ(chunks(nh(16384, 64, {{1, 0}, {4, 7}})), " sram 1:0-1 sram 4:7-8");
}

TEST(NhMemoryTest, BitsBeyondThePoolsCountAsWays) {
  auto context = nh(4 * 4096, 256, {{0, 0}, {7, 0}});
  context.poolBitmap |= 0x300;
  EXPECT_EQ(chunks(context), " sram 0:0-3 sram 7:0-3");
}

TEST(NhMemoryTest, EmptyTableMakesNoChunkAndIsTraced) {
  EntryPtr const entry = table(52, "T", std::vector{nh(0, 0, {})});
  EXPECT_EQ(chunks(entry), "");
  EXPECT_EQ(traces(entry), emptyTrace("Table 52 is empty"));
}

TEST(LpmMemoryTest, ARunForEachValidSlot) {
  xpLpmTableContext context;
  context.prefixTable[0] = prefix(16384, 64, {4, 40});
  context.prefixTable[31] = prefix(2048, 256, {0, 9});
  context.prefixTable[31].valid = 0xFF;
  EXPECT_EQ(chunks(context), " sram 0:9-10 sram 4:40-43");
}

TEST(LpmMemoryTest, SlotThatIsNotValidIsNotRead) {
  xpLpmTableContext context;
  context.prefixTable[3] = prefix(16384, 0, {4, 40});
  context.prefixTable[3].valid = 0;
  EXPECT_EQ(chunks(context), "");
}

TEST(LpmMemoryTest, ValidSlotWithoutEntriesIsARunOfNoBlock) {
  xpLpmTableContext context;
  context.prefixTable[0] = prefix(0, 64, {4, 40});
  EXPECT_EQ(chunks(context), " sram 4:40-39");
}

TEST(LpmMemoryTest, NextHopIndexTakesWholeTiles) {
  xpLpmTableContext context;
  context.nhiTable.poolBitmap = 0x81;
  context.nhiTable.tileBitmap[0] = 0x21;
  context.nhiTable.tileBitmap[7] = 0x80;
  EXPECT_EQ(chunks(context), " sram 0:0-7 sram 0:40-47 sram 7:56-63");
}

TEST(LpmMemoryTest, TilesOfAPoolOutsideTheBitmapDoNotCount) {
  xpLpmTableContext context;
  context.nhiTable.poolBitmap = 0xFFFFFF02;
  context.nhiTable.tileBitmap[0] = 0xFF;
  context.nhiTable.tileBitmap[1] = 0x01;
  EXPECT_EQ(chunks(context), " sram 1:0-7");
}

TEST(LpmMemoryTest, EmptyTableIsNotTraced) {
  EntryPtr const entry = table(xpLpmTableContext());
  EXPECT_EQ(chunks(entry), "");
  EXPECT_EQ(traces(entry), std::vector<std::string>());
}

TEST(MatchMemoryTest, ARunOfDatabases) { EXPECT_EQ(chunks(match(2, 4)), " tcam 4-5"); }

TEST(MatchMemoryTest, EndIsTakenAsAByte) { EXPECT_EQ(chunks(match(257, 255)), " tcam 255-255"); }

TEST(MatchMemoryTest, EmptyTableMakesNoChunkAndIsTraced) {
  EntryPtr const entry = table(0, "T", std::vector{match(0, 4)});
  EXPECT_EQ(chunks(entry), "");
  EXPECT_EQ(traces(entry), emptyTrace("Table 0 is empty"));
}

TEST(IsmeMemoryTest, ATileTakes4096Entries) { EXPECT_EQ(chunks(isme(2, 8192, 3)), " isme 2:3-4"); }

TEST(IsmeMemoryTest, PartOfATileDoesNotCount) {
  EXPECT_EQ(chunks(isme(2, 8191, 3)), " isme 2:3-3");
  EXPECT_EQ(chunks(isme(2, 4095, 3)), " isme 2:3-2");
}

TEST(IsmeMemoryTest, EmptyTableMakesNoChunkAndIsTraced) {
  EntryPtr const entry = table(33, "T", std::vector{isme(2, 0, 3)});
  EXPECT_EQ(chunks(entry), "");
  EXPECT_EQ(traces(entry), emptyTrace("Table 33 is empty"));
}

TEST(CopiesTest, CopiesOnTheSameBlocksAddOneChunk) {
  EXPECT_EQ(chunks(table(1, "T", std::vector{blocks(0, 4, 2), blocks(0, 4, 2)})), " sram 0:4-5");
}

TEST(CopiesTest, CopiesOnDifferentBlocksAddOneChunkEach) {
  EXPECT_EQ(chunks(table(1, "T", std::vector{blocks(0, 4, 2), blocks(0, 6, 2), blocks(1, 4, 2)})),
            " sram 0:4-5 sram 0:6-7 sram 1:4-5");
}

TEST(CopiesTest, EachEmptyCopyIsTraced) {
  EXPECT_EQ(traces(table(7, "T", std::vector{match(0, 0), match(1, 0), match(0, 0)})).size(), 2u);
}

TEST(CopiesTest, EntryWithoutCopiesTakesNothing) {
  EXPECT_EQ(chunks(EntryPtr(new XpXdk::TableContextEntry(1, "T"))), "");
}

TEST(CopiesTest, AllThatAByteCanCountAreRead) {
  EXPECT_EQ(memoryOf(table(1, "T", std::vector(256, match(1, 0))))->tcamChunkCount(), 1u);
  std::vector<xpMatchTableContext> copies;
  for (U32 copy = 0; copy < 256; ++copy) copies.push_back(match(1, static_cast<U8>(copy)));
  EXPECT_EQ(memoryOf(table(1, "T", copies))->tcamChunkCount(), 256u);
}

TEST(CopiesTest, OneCopyIsAddedToWhatIsThere) {
  XpXdk::TableContextEntry::PtrConst entry =
      table(1, "T", std::vector{match(1, 0), match(1, 8), match(1, 16)});
  auto memory = tableMemCollectionFactory(1);
  memory->tcamChunkIs({99, 99}, true);
  updateTableMemoryPerCopy(memory, entry, 1);
  EXPECT_EQ(shown("tcam", memory->tcamChunkIteratorConst()), " tcam 8-8 tcam 99-99");
}

TEST(CopiesTest, ChunkThatStoodAsFalseIsSetToTrue) {
  XpXdk::TableContextEntry::PtrConst entry = table(match(1, 0));
  auto memory = tableMemCollectionFactory(1);
  memory->tcamChunkIs({0, 0}, false);
  updateTableMemoryPerCopy(memory, entry, 0);
  EXPECT_TRUE(memory->tcamChunk({0, 0}));
}

TEST(EmptyTraceTest, NothingIsWrittenAtOtherLevels) {
  Traced traced;
  Mox::traceDisable("XpTableCliHelper/7");
  chunks(match(0, 0));
  EXPECT_EQ(traced.lines, std::vector<std::string>());
}

}  // namespace

}  // namespace Kestrel::xpTableCliHelper
