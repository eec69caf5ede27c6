// The layout of the SDK's records, which is read by offsets and steps and equal in both word sizes.
#include "Xdk/Xdk.h"

#include <gtest/gtest.h>

namespace {

/// Bytes from the start of `record` to `field`.
template <class Record, class Field>
std::ptrdiff_t offset(Record const& record, Field const& field) {
  return reinterpret_cast<char const*>(&field) - reinterpret_cast<char const*>(&record);
}

/// Bytes from one element of an array to the next.
template <class Record>
std::ptrdiff_t step() {
  std::vector<Record> records(2);
  return offset(records[0], records[1]);
}

TEST(RecordsTest, ContextsStandAtTheirSteps) {
  EXPECT_EQ(step<xpMatchTableContext>(), 52);
  EXPECT_EQ(step<xpHashTableContext>(), 96);
  EXPECT_EQ(step<xpDirectTableContext>(), 56);
  EXPECT_EQ(step<xpLpmTableContext>(), 972);
  EXPECT_EQ(step<xpIsmeTableContext>(), 68);
  EXPECT_EQ(step<xpNhTableContext>(), 152);
}

TEST(RecordsTest, HeadFollowsTheVirtualTableWord) {
  xpMatchTableContext context;
  EXPECT_EQ(offset(context, context.first), static_cast<std::ptrdiff_t>(sizeof(void*)));
  EXPECT_EQ(offset(context, context.tableType), static_cast<std::ptrdiff_t>(sizeof(void*) + 4));
}

TEST(RecordsTest, FieldsOfTheClassBeginAtSixteen) {
  xpMatchTableContext match;
  xpHashTableContext hash;
  xpDirectTableContext direct;
  xpLpmTableContext lpm;
  xpIsmeTableContext isme;
  xpNhTableContext nextHop;
  EXPECT_EQ(offset(match, match.numDb), 16);
  EXPECT_EQ(offset(hash, hash.numOfEntries), 16);
  EXPECT_EQ(offset(direct, direct.numOfEntries), 16);
  EXPECT_EQ(offset(lpm, lpm.searchDataWidth), 16);
  EXPECT_EQ(offset(isme, isme.ismeNum), 16);
  EXPECT_EQ(offset(nextHop, nextHop.poolBitmap), 16);
}

TEST(RecordsTest, AnElementIsFoundByItsStepAlone) {
  std::vector<xpHashTableContext> copies(3);
  auto* third = reinterpret_cast<xpTableContext*>(reinterpret_cast<char*>(copies.data()) + 2 * 96);
  EXPECT_EQ(dynamic_cast<xpHashTableContext*>(third), &copies[2]);
  EXPECT_EQ(dynamic_cast<xpLpmTableContext*>(third), nullptr);
}

TEST(RecordsTest, FreshContextIsNotInUse) {
  EXPECT_EQ(xpTableContext().first, -1);
  EXPECT_EQ(xpLpmTableContext().first, -1);
}

TEST(RecordsTest, FreshContextHasTheCodeOfItsClass) {
  EXPECT_EQ(xpMatchTableContext().tableType, 0u);
  EXPECT_EQ(xpHashTableContext().tableType, 1u);
  EXPECT_EQ(xpDirectTableContext().tableType, 2u);
  EXPECT_EQ(xpLpmTableContext().tableType, 6u);
  EXPECT_EQ(xpIsmeTableContext().tableType, 7u);
  EXPECT_EQ(xpNhTableContext().tableType, 8u);
}

TEST(RecordsTest, FreshPlacesAreAllOnesAndCountsAreZero) {
  EXPECT_EQ(xpDirectTableContext().poolId, 0xFFFFFFFF);
  EXPECT_EQ(xpDirectTableContext().rowBlkStartId, 0xFFFFFFFF);
  EXPECT_EQ(xpIsmeTableContext().tileStartId, 0xFFFFFFFF);
  EXPECT_EQ(xpDirectTableContext().numOfEntries, 0u);
  EXPECT_EQ(xpHashTableContext().rowBlkStartId[7], 0u);
  EXPECT_EQ(xpLpmTableContext().prefixTable[31].valid, 0);
}

TEST(RecordsTest, ProfileIsAVirtualTableWordAndTwoArraysOfWords) {
  xpTableProfile profile;
  auto word = static_cast<std::ptrdiff_t>(sizeof(void*));
  EXPECT_EQ(offset(profile, profile.copyNum), word);
  EXPECT_EQ(offset(profile, profile.tblCtx), word + 62 * 4);
  EXPECT_EQ(sizeof(profile), sizeof(void*) * 63 + 62 * 4);
}

TEST(RecordsTest, GroupRecordIsThreeBytesAndAPointer) {
  xpTblCtxPerIdx record = {};
  EXPECT_EQ(offset(record, record.tblIdx), 0);
  EXPECT_EQ(offset(record, record.numCopies), 1);
  EXPECT_EQ(offset(record, record.tableIdForMgr), 2);
  EXPECT_EQ(offset(record, record.tblCtx), static_cast<std::ptrdiff_t>(sizeof(void*)));
}

TEST(RecordsTest, NumbersThatCallersPassOn) {
  EXPECT_EQ(TABLE_INIT_WITH_FIXED_INFO, 1u);
  EXPECT_EQ(XP_INIT_COLD, 1u);
  EXPECT_EQ(XP_INIT_WARM, 2u);
}

}  // namespace
