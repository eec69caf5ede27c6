// What is written reads back to the same, and is pleasant to look at.
#include "standin/xdk/ProfileReader.h"
#include "standin/xdk/ProfileWriter.h"

#include <gtest/gtest.h>

namespace xdksim {
namespace {

/// The profile after a way through its text.
Profile again(Profile const& profile) { return readProfile(writeProfile(profile), "again.json"); }

template <class Context>
Profile profileOf(Context const& context) {
  Profile profile;
  profile.tables[42] = tableOf(std::vector{context}, 1);
  return profile;
}

TEST(ProfileWriterTest, EmptyProfileShowsAllItsKeys) {
  EXPECT_EQ(writeProfile(Profile()),
            "{\n"
            "  \"deviceId\": 0,\n"
            "  \"ldePipeMode\": 3,\n"
            "  \"coldStartNeeded\": true,\n"
            "  \"lpmTreadCfg\": {\n"
            "    \"treadV4Valid\": false, \"treadV4\": {},\n"
            "    \"treadV6Valid\": false, \"treadV6\": {}\n"
            "  },\n"
            "  \"tables\": {},\n"
            "  \"sdkStatus\": {}\n"
            "}\n");
  EXPECT_EQ(again(Profile()), Profile());
}

TEST(ProfileWriterTest, ContextStandsInOneLine) {
  xpHashTableContext context;
  context.first = 0;
  context.numOfEntries = 8192;
  context.keySize = context.valueSize = 64;
  context.numOfWays = 2;
  context.poolId[0] = 4;
  std::string text = writeProfile(profileOf(context));
  EXPECT_NE(text.find("    \"42\": {\"copyNum\": 1, \"type\": \"HASH\", \"contexts\": [\n"
                      "      {\"numOfEntries\": 8192, \"keySize\": 64, \"valueSize\": 64, "
                      "\"numOfWays\": 2, \"poolId\": [4, 0], \"rowBlkStartId\": [0, 0], "
                      "\"shared\": 0}]}\n"),
            std::string::npos)
      << text;
}

TEST(ProfileWriterTest, NoLineEndsInABlank) {
  EXPECT_EQ(writeProfile(defaultProfile()).find(" \n"), std::string::npos);
}

TEST(ProfileWriterTest, DefaultProfileReadsBackEqual) {
  EXPECT_EQ(again(defaultProfile()), defaultProfile());
}

TEST(ProfileWriterTest, FreshContextsReadBackEqual) {
  for (Profile const& profile : {profileOf(xpMatchTableContext()), profileOf(xpHashTableContext()),
                                 profileOf(xpDirectTableContext()), profileOf(xpLpmTableContext()),
                                 profileOf(xpIsmeTableContext()), profileOf(xpNhTableContext())})
    EXPECT_EQ(again(profile), profile);
}

TEST(ProfileWriterTest, WaysBehindThoseInUseAreKept) {
  xpHashTableContext context;
  context.numOfWays = 1;
  context.poolId[7] = 6;
  EXPECT_EQ(again(profileOf(context)), profileOf(context));
}

TEST(ProfileWriterTest, MoreWaysThanRoomAreKept) {
  xpHashTableContext context;
  context.numOfWays = 200;
  EXPECT_EQ(again(profileOf(context)), profileOf(context));
}

TEST(ProfileWriterTest, PrefixTablesThatAreNotValidAreKept) {
  xpLpmTableContext context;
  context.prefixTable[3].tread = 16;
  context.prefixTable[31].valid = 255;
  context.nhiTable.tileBitmap[7] = 128;
  EXPECT_EQ(again(profileOf(context)), profileOf(context));
}

TEST(ProfileWriterTest, DeviceStatusesAndNullManagersAreKept) {
  Profile profile;
  profile.deviceId = 9;
  profile.ldePipeMode = 1;
  profile.coldStartNeeded = false;
  profile.lpmTreadCfg = {true, false, {{0, 4}, {1, 5}}, {{31, 255}}};
  profile.tables[7] = {256, 9, std::vector<xpTableContext>(2)};
  profile.tables[8] = {3, 6, std::vector<xpLpmTableContext>()};
  profile.sdkStatus = {{"xpLanzMgr::init", {9}}, {"xpFdbMgr[0]::addDevice", {0, -1}}};
  profile.nullManagers = {"xpBdMgr"};
  EXPECT_EQ(again(profile), profile);
}

TEST(ProfileWriterTest, EqualityLooksAtEveryField) {
  xpLpmTableContext context;
  Profile plain = profileOf(context);
  context.prefixTable[31].rowBlkStartId = 1;
  EXPECT_FALSE(profileOf(context) == plain);
  Profile typed = plain;
  typed.tables[42].type = 9;
  EXPECT_FALSE(typed == plain);
  typed = plain;
  typed.tables[42].copyNum = 2;
  EXPECT_FALSE(typed == plain);
}

}  // namespace
}  // namespace xdksim
