// Published tables: contexts go in and come out by value, and everything else follows from them.
#include "Xdk/LpmTableContext.h"
#include "Xdk/TableContexts.h"
#include "XpXdk/TableContextEntry.h"

#include <cstdio>
#include <cstring>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace XpXdk {
namespace {

Mox::Ptr<TableContextEntry> tableEntry() { return new TableContextEntry(42, "IACL0"); }

xpMatchTableContext matchContext(U32 numDb) {
  xpMatchTableContext context;
  context.first = 0;
  context.numDb = numDb;
  return context;
}

// What was thrown, as text; "" where nothing was.
template <class Step>
std::string refusal(Step step) {
  try {
    step();
  } catch (Mox::RangeException const& exception) {
    return exception.message().charPtr();
  }
  return "";
}

std::string hex(Mox::String8 const& bytes) {
  std::string text;
  for (U32 i = 0; i < bytes.size(); ++i) {
    char digits[3];
    std::snprintf(digits, sizeof digits, "%02x", bytes[i]);
    text += digits;
  }
  return text;
}

// The bytes 0, 1, 2 and so on, as the context of copy 0.
Mox::Ptr<TableContextEntry> countingEntry(U32 tableType, U32 size) {
  auto entry = tableEntry();
  std::string bytes;
  for (U32 i = 0; i < size; ++i) bytes.push_back(static_cast<char>(i));
  entry->tableTypeIs(static_cast<U8>(tableType));
  entry->tblContextIs(0, Mox::String8(bytes));
  entry->tblCopyNumIs(1);
  return entry;
}

template <class Context>
Context read(Mox::Ptr<TableContextEntry const> const& entry, U8 copy = 0) {
  Context context;
  entry->xpTblContext(copy, &context, false);
  return context;
}

TEST(TableContextEntryTest, FreshEntryHasNoCopiesAndTypeZero) {
  auto entry = tableEntry();
  EXPECT_EQ(entry->tableId(), 42u);
  EXPECT_EQ(entry->tableName(), "IACL0");
  EXPECT_EQ(entry->tableType(), 0);
  EXPECT_EQ(entry->tblCopyNum(), 0u);
  EXPECT_EQ(entry->tableIdForMgr(), 0u);
  EXPECT_EQ(entry->plMgrId(), 0u);
}

TEST(TableContextEntryTest, StoredContextIsReadBack) {
  auto entry = tableEntry();
  auto context = matchContext(5);
  entry->xpTblContextIs(0, &context);
  EXPECT_EQ(read<xpMatchTableContext>(entry).numDb, 5u);
  EXPECT_EQ(read<xpMatchTableContext>(entry).first, 0);
}

TEST(TableContextEntryTest, LaterChangeOfTheSourceDoesNotReachTheEntry) {
  auto entry = tableEntry();
  auto context = matchContext(5);
  entry->xpTblContextIs(0, &context);
  context.numDb = 6;
  EXPECT_EQ(read<xpMatchTableContext>(entry).numDb, 5u);
}

TEST(TableContextEntryTest, TypeIsThatOfTheFirstContext) {
  auto entry = tableEntry();
  xpNhTableContext nextHop;
  entry->xpTblContextIs(0, &nextHop);
  EXPECT_EQ(entry->tableType(), 8);
}

TEST(TableContextEntryTest, TypeOfAFurtherCopyIsNotLookedAt) {
  auto entry = tableEntry();
  xpMatchTableContext copies[2];
  copies[1].tableType = 9;
  entry->xpTblContextIs(0, &copies[0]);
  entry->xpTblContextIs(1, &copies[1]);
  EXPECT_EQ(entry->tableType(), 0);
  EXPECT_EQ(read<xpMatchTableContext>(entry, 1).tableType, 9u);
}

TEST(TableContextEntryTest, CopiesAreCounted) {
  auto entry = tableEntry();
  for (U8 copy = 0; copy < 3; ++copy) {
    auto context = matchContext(copy);
    entry->xpTblContextIs(copy, &context);
    EXPECT_EQ(entry->tblCopyNum(), copy + 1u);
  }
  EXPECT_EQ(read<xpMatchTableContext>(entry, 1).numDb, 1u);
}

TEST(TableContextEntryTest, CopyNumbersGoUpTo255) {
  auto entry = tableEntry();
  auto context = matchContext(1);
  for (U32 copy = 0; copy <= 0xFF; ++copy) entry->xpTblContextIs(static_cast<U8>(copy), &context);
  EXPECT_EQ(entry->tblCopyNum(), 256u);
}

TEST(TableContextEntryTest, WritingACopyDropsThoseBehindIt) {
  auto entry = tableEntry();
  auto context = matchContext(1);
  for (U8 copy = 0; copy < 3; ++copy) entry->xpTblContextIs(copy, &context);
  entry->xpTblContextIs(0, &context);
  EXPECT_EQ(entry->tblCopyNum(), 1u);
  EXPECT_EQ(entry->tblContextCount(), 1u);
}

TEST(TableContextEntryTest, AnotherTypeTakesThePlaceOfTheFormer) {
  auto entry = tableEntry();
  auto match = matchContext(1);
  entry->xpTblContextIs(0, &match);
  entry->xpTblContextIs(1, &match);
  xpHashTableContext hash;
  hash.keySize = 128;
  entry->xpTblContextIs(0, &hash);
  EXPECT_EQ(entry->tableType(), 1);
  EXPECT_EQ(entry->tblCopyNum(), 1u);
  EXPECT_EQ(read<xpHashTableContext>(entry).keySize, 128);
}

TEST(TableContextEntryTest, CopiesAreWrittenInOrder) {
  auto entry = tableEntry();
  auto context = matchContext(1);
  EXPECT_EQ(refusal([&] { entry->xpTblContextIs(1, &context); }),
            "table 42 has no copy 0 yet, ahead of copy 1");
  EXPECT_EQ(entry->tblContextCount(), 0u);
}

TEST(TableContextEntryTest, CodeWithoutClassIsRefusedAndNothingChanges) {
  for (U32 code : {3u, 4u, 5u, 9u, 0x100u}) {
    auto entry = tableEntry();
    auto context = matchContext(1);
    entry->xpTblContextIs(0, &context);
    context.tableType = code;
    EXPECT_EQ(refusal([&] { entry->xpTblContextIs(0, &context); }),
              "table type " + std::to_string(code) + " has no context");
    EXPECT_EQ(entry->tblCopyNum(), 1u);
    EXPECT_EQ(entry->tableType(), 0);
  }
}

// The smaller record would be read past its end.
TEST(TableContextEntryTest, RecordThatIsNotWhatItsTypeSaysIsRefused) {
  auto entry = tableEntry();
  auto context = matchContext(1);
  context.tableType = xpLpmTableContext::code;
  EXPECT_EQ(refusal([&] { entry->xpTblContextIs(0, &context); }),
            "the record isn't of the context class of table type 6");
}

// The smaller record would be written past its end.
TEST(TableContextEntryTest, ContextIsNotGivenToARecordOfAnotherClass) {
  auto entry = tableEntry();
  xpHashTableContext hash;
  entry->xpTblContextIs(0, &hash);
  EXPECT_EQ(refusal([&] { read<xpMatchTableContext>(entry); }),
            "the record isn't of the context class of table type 1");
}

TEST(TableContextEntryTest, MissingCopyIsRefused) {
  auto entry = tableEntry();
  EXPECT_EQ(refusal([&] { read<xpMatchTableContext>(entry); }),
            "table 42 has no context of copy 0");
}

TEST(TableContextEntryTest, BytesOfAWrongLengthAreRefusedAndTheRecordIsLeftAlone) {
  for (U32 size : {0u, 43u, 45u}) {
    auto entry = countingEntry(xpMatchTableContext::code, size);
    auto record = matchContext(77);
    EXPECT_EQ(refusal([&] { entry->xpTblContext(0, &record, false); }),
              "a context of table type 0 takes 44 bytes, not " + std::to_string(size));
    EXPECT_EQ(record.numDb, 77u);
  }
}

TEST(TableContextEntryTest, TypeWithoutClassGivesNoContext) {
  auto entry = countingEntry(5, 44);
  EXPECT_EQ(refusal([&] { read<xpMatchTableContext>(entry); }), "table type 5 has no context");
}

// One text for processes of any word size and byte order.
TEST(TableContextEntryTest, FieldsStandInNetworkOrder) {
  auto entry = tableEntry();
  auto context = matchContext(0x01020304);
  context.first = -2;
  context.keySize = 0x0506;
  context.valueSize = 0x0708;
  context.startDb = 0x09;
  entry->xpTblContextIs(0, &context);
  EXPECT_EQ(hex(entry->tblContext(0)),
            "fffffffe"
            "00000000"
            "01020304"
            "0506"
            "0708"
            "09" +
                std::string(27 * 2, '0'));
}

// The lengths are those of the records without virtual-table word and gaps: no field is left out.
template <class Context>
U32 bytesOf() {
  auto entry = tableEntry();
  Context context;
  entry->xpTblContextIs(0, &context);
  return entry->tblContext(0).size();
}

TEST(TableContextEntryTest, EveryFieldOfEachClassIsStored) {
  EXPECT_EQ(bytesOf<xpMatchTableContext>(), 52u - 8);
  EXPECT_EQ(bytesOf<xpHashTableContext>(), 96u - 8 - 3);
  EXPECT_EQ(bytesOf<xpDirectTableContext>(), 56u - 8 - 2);
  EXPECT_EQ(bytesOf<xpLpmTableContext>(), 972u - 8 - 3 - 32 * 3);
  EXPECT_EQ(bytesOf<xpIsmeTableContext>(), 68u - 8);
  EXPECT_EQ(bytesOf<xpNhTableContext>(), 152u - 8);
}

// Bytes that count from 0 show which field takes which.

TEST(TableContextEntryTest, HeadStandsFirst) {
  auto context = read<xpMatchTableContext>(countingEntry(xpMatchTableContext::code, 44));
  EXPECT_EQ(context.first, 0x00010203);
  EXPECT_EQ(context.tableType, 0x04050607u);
}

TEST(TableContextEntryTest, FieldsOfMatch) {
  auto context = read<xpMatchTableContext>(countingEntry(xpMatchTableContext::code, 44));
  EXPECT_EQ(context.numDb, 0x08090A0Bu);
  EXPECT_EQ(context.keySize, 0x0C0D);
  EXPECT_EQ(context.valueSize, 0x0E0F);
  EXPECT_EQ(context.startDb, 0x10);
  EXPECT_EQ(context.unlisted[26], 0x2B);
}

TEST(TableContextEntryTest, FieldsOfHash) {
  auto context = read<xpHashTableContext>(countingEntry(xpHashTableContext::code, 85));
  EXPECT_EQ(context.numOfEntries, 0x08090A0Bu);
  EXPECT_EQ(context.keySize, 0x0C0D);
  EXPECT_EQ(context.valueSize, 0x0E0F);
  EXPECT_EQ(context.numOfWays, 0x10);
  EXPECT_EQ(context.poolId[0], 0x11121314u);
  EXPECT_EQ(context.poolId[7], 0x2D2E2F30u);
  EXPECT_EQ(context.rowBlkStartId[0], 0x31323334u);
  EXPECT_EQ(context.rowBlkStartId[7], 0x4D4E4F50u);
  EXPECT_EQ(context.shared, 0x51525354u);
}

TEST(TableContextEntryTest, FieldsOfDirect) {
  auto context = read<xpDirectTableContext>(countingEntry(xpDirectTableContext::code, 46));
  EXPECT_EQ(context.numOfEntries, 0x08090A0Bu);
  EXPECT_EQ(context.entryWidth, 0x0C0D);
  EXPECT_EQ(context.poolId, 0x0E0F1011u);
  EXPECT_EQ(context.rowBlkStartId, 0x12131415u);
  EXPECT_EQ(context.unlisted[23], 0x2D);
}

TEST(TableContextEntryTest, FieldsOfLpm) {
  auto context = read<xpLpmTableContext>(countingEntry(xpLpmTableContext::code, 865));
  EXPECT_EQ(context.searchDataWidth, 0x08090A0Bu);
  EXPECT_EQ(context.vrfIdWidth, 0x0C);
  auto const& first = context.prefixTable[0];
  EXPECT_EQ(first.valid, 0x0D);
  EXPECT_EQ(first.numOfEntries, 0x0E0F1011u);
  EXPECT_EQ(first.entryWidth, 0x12131415u);
  EXPECT_EQ(first.tread, 0x16171819u);
  EXPECT_EQ(first.poolId, 0x1A1B1C1Du);
  EXPECT_EQ(first.rowBlkStartId, 0x1E1F2021u);
  EXPECT_EQ(context.prefixTable[31].valid, (13 + 31 * 21) & 0xFF);
  EXPECT_EQ(context.nhiTable.poolBitmap, 0xADAEAFB0u);
  EXPECT_EQ(context.nhiTable.numEntries, 0xB1B2B3B4u);
  EXPECT_EQ(context.nhiTable.tileBitmap[0], 0xB5);
  EXPECT_EQ(context.nhiTable.tileBitmap[7], 0xBC);
  EXPECT_EQ(context.nhiTable.pairPerEntry, 0xBDBEBFC0u);
  EXPECT_EQ(context.nhiTable.nhWidth, 0xC1C2C3C4u);
  EXPECT_EQ(context.unlisted[155], 864 & 0xFF);
}

TEST(TableContextEntryTest, FieldsOfIsme) {
  auto context = read<xpIsmeTableContext>(countingEntry(xpIsmeTableContext::code, 60));
  EXPECT_EQ(context.ismeNum, 0x08090A0Bu);
  EXPECT_EQ(context.ldeNum, 0x0C0D0E0Fu);
  EXPECT_EQ(context.numOfEntries, 0x10111213u);
  EXPECT_EQ(context.tileStartId, 0x14151617u);
  EXPECT_EQ(context.unlisted[35], 0x3B);
}

TEST(TableContextEntryTest, FieldsOfNextHop) {
  auto context = read<xpNhTableContext>(countingEntry(xpNhTableContext::code, 144));
  EXPECT_EQ(context.poolBitmap, 0x08090A0Bu);
  EXPECT_EQ(context.entryWidth, 0x0C0D0E0Fu);
  EXPECT_EQ(context.numEntries, 0x10111213u);
  EXPECT_EQ(context.rowBlkStartId[0], 0x14151617u);
  EXPECT_EQ(context.rowBlkStartId[7], 0x30313233u);
  EXPECT_EQ(context.unlisted[91], 0x8F);
}

// Contexts lie in the SDK's arrays at steps that are multiples of 4 alone.
TEST(TableContextEntryTest, ContextsAreTakenFromArrays) {
  auto entry = tableEntry();
  std::vector<xpMatchTableContext> array{matchContext(1), matchContext(2)};
  entry->xpTblContextIs(0, &array[0]);
  entry->xpTblContextIs(1, &array[1]);
  EXPECT_EQ(read<xpMatchTableContext>(entry, 1).numDb, 2u);
}

// What an observer hears.
class Listener : public TableContextEntry::NotifieeConst {
 public:
  static Mox::Ptr<Listener> on(Mox::Ptr<TableContextEntry> const& entry) {
    Mox::Ptr<Listener> const listener = new Listener;
    listener->notifierIs(entry);
    listener->isRegisteredNotifieeIs(true);
    return listener;
  }
  void onTableType() override { note("type"); }
  void onTblCopyNum() override { note("copies " + std::to_string(notifier()->tblCopyNum())); }
  void onTblContext(U8 copy) override {
    bool const stands = notifier()->tblContextIteratorConst().isMemberOf(copy);
    note((stands ? "context " : "no context ") + std::to_string(copy));
  }
  std::string heard() { return std::exchange(heard_, ""); }

 private:
  void note(std::string const& what) { heard_ += (heard_.empty() ? "" : ", ") + what; }

  std::string heard_;
};

TEST(TableContextEntryTest, WhoHearsOfANumberFindsThatManyCopies) {
  auto entry = tableEntry();
  auto const listener = Listener::on(entry);
  xpDirectTableContext direct;
  entry->xpTblContextIs(0, &direct);
  EXPECT_EQ(listener->heard(), "type, context 0, copies 1");
  entry->xpTblContextIs(1, &direct);
  EXPECT_EQ(listener->heard(), "context 1, copies 2");
  xpHashTableContext hash;
  entry->xpTblContextIs(0, &hash);
  EXPECT_EQ(listener->heard(), "copies 0, no context 0, no context 1, type, context 0, copies 1");
}

TEST(TableContextEntryTest, EqualContextIsNoChange) {
  auto entry = tableEntry();
  auto context = matchContext(1);
  entry->xpTblContextIs(0, &context);
  auto const listener = Listener::on(entry);
  U32 const version = entry->version();
  entry->xpTblContextIs(0, &context);
  EXPECT_EQ(entry->version(), version);
  EXPECT_EQ(listener->heard(), "");
}

}  // namespace
}  // namespace XpXdk
