// What profiles may say, and the one line that each fault gets.
#include "standin/xdk/ProfileReader.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace xdksim {
namespace {

Profile read(std::string const& text) { return readProfile(text, "lab.json"); }

/// The complaint about `text`, or "none".
std::string faultOfProfile(std::string const& text) {
  try {
    read(text);
  } catch (ProfileFault const& fault) {
    return fault.what();
  }
  return "none";
}

/// A profile with table 42 of that type with one context.
std::string contextOf(std::string const& type, std::string const& context) {
  return R"({"tables": {"42": {"type": )" + type + R"(, "contexts": [)" + context + "]}}}";
}

template <class Context>
Context contextIn(std::string const& type, std::string const& text) {
  Profile profile = read(contextOf(type, text));
  return std::get<std::vector<Context>>(profile.tables.at(42).contexts).at(0);
}

TEST(ProfileReaderTest, EverythingHasADefault) {
  Profile profile = read("{}");
  EXPECT_EQ(profile, Profile());
  EXPECT_EQ(profile.deviceId, 0);
  EXPECT_EQ(profile.ldePipeMode, 3u);
  EXPECT_TRUE(profile.coldStartNeeded);
  EXPECT_FALSE(profile.lpmTreadCfg.treadV4Valid);
  EXPECT_FALSE(profile.lpmTreadCfg.treadV6Valid);
}

TEST(ProfileReaderTest, KeysOfTheDevice) {
  Profile profile = read(R"({"deviceId": 255, "ldePipeMode": 1, "coldStartNeeded": false})");
  EXPECT_EQ(profile.deviceId, 255);
  EXPECT_EQ(profile.ldePipeMode, 1u);
  EXPECT_FALSE(profile.coldStartNeeded);
}

TEST(ProfileReaderTest, TreadPlans) {
  LpmTreadCfg cfg = read(R"({"lpmTreadCfg": {"treadV4Valid": true, "treadV4": {"0": 4, "31": 255},
                             "treadV6Valid": false, "treadV6": {}}})")
                        .lpmTreadCfg;
  EXPECT_TRUE(cfg.treadV4Valid);
  EXPECT_EQ(cfg.treadV4, (std::map<U8, U8>{{0, 4}, {31, 255}}));
  EXPECT_TRUE(cfg.treadV6.empty());
}

TEST(ProfileReaderTest, TableHasNoCopyAndIsMatchUnlessItSaysSo) {
  Table table = read(R"({"tables": {"61": {}}})").tables.at(61);
  EXPECT_EQ(table.copyNum, 0u);
  EXPECT_EQ(table.type, 0u);
  EXPECT_TRUE(std::get<std::vector<xpMatchTableContext>>(table.contexts).empty());
}

TEST(ProfileReaderTest, CopyNumberIsAWholeWord) {
  EXPECT_EQ(read(R"({"tables": {"0": {"copyNum": 4294967295}}})").tables.at(0).copyNum, 0xFFFFFFFF);
}

TEST(ProfileReaderTest, TypeHoldsWhereverItStands) {
  Profile profile =
      read(R"({"tables": {"0": {"contexts": [{"numOfWays": 2}, {}], "type": "HASH"}}})");
  auto const& contexts = std::get<std::vector<xpHashTableContext>>(profile.tables.at(0).contexts);
  EXPECT_EQ(contexts.size(), 2u);
  EXPECT_EQ(contexts[0].numOfWays, 2);
  EXPECT_EQ(contexts[1].tableType, 1u);
}

TEST(ProfileReaderTest, NumberIsATypeWithoutClass) {
  Table table = read(contextOf("4294967295", R"({"first": 3})")).tables.at(42);
  EXPECT_EQ(table.type, 0xFFFFFFFF);
  EXPECT_EQ(std::get<std::vector<xpTableContext>>(table.contexts).at(0).first, 3);
  EXPECT_EQ(read(contextOf("3", "{}")).tables.at(42).type, 3u);
}

TEST(ProfileReaderTest, ListedContextIsInUseUnlessItSaysOtherwise) {
  EXPECT_EQ(contextIn<xpMatchTableContext>(R"("MATCH")", "{}").first, 0);
  EXPECT_EQ(contextIn<xpMatchTableContext>(R"("MATCH")", R"({"first": -2147483648})").first,
            -2147483647 - 1);
}

TEST(ProfileReaderTest, FieldsThatAreLeftOutAreAsTheConstructorMakesThem) {
  auto direct = contextIn<xpDirectTableContext>(R"("DIRECT")", "{}");
  EXPECT_EQ(direct.numOfEntries, 0u);
  EXPECT_EQ(direct.poolId, 0xFFFFFFFF);
  EXPECT_EQ(direct.rowBlkStartId, 0xFFFFFFFF);
  EXPECT_EQ(contextIn<xpIsmeTableContext>(R"("ISME")", "{}").tileStartId, 0xFFFFFFFF);
}

TEST(ProfileReaderTest, FieldsOfAHashContext) {
  auto context = contextIn<xpHashTableContext>(R"("HASH")", R"(
      {"numOfEntries": 8192, "keySize": 64, "valueSize": 65535, "numOfWays": 2,
       "poolId": [4, 5], "rowBlkStartId": [0, 8], "shared": 1})");
  EXPECT_EQ(context.numOfEntries, 8192u);
  EXPECT_EQ(context.valueSize, 65535);
  EXPECT_EQ(context.poolId[1], 5u);
  EXPECT_EQ(context.rowBlkStartId[1], 8u);
  EXPECT_EQ(context.rowBlkStartId[2], 0u);
  EXPECT_EQ(context.shared, 1u);
}

TEST(ProfileReaderTest, FieldsOfAnIsmeAndANextHopContext) {
  auto isme = contextIn<xpIsmeTableContext>(
      R"("ISME")", R"({"ismeNum": 1, "ldeNum": 2, "numOfEntries": 4096, "tileStartId": 3})");
  EXPECT_EQ(isme.ldeNum, 2u);
  EXPECT_EQ(isme.tileStartId, 3u);
  auto nextHop = contextIn<xpNhTableContext>(
      R"("NH")",
      R"({"poolBitmap": 18, "entryWidth": 64, "numEntries": 9, "rowBlkStartId": [0, 7]})");
  EXPECT_EQ(nextHop.poolBitmap, 18u);
  EXPECT_EQ(nextHop.rowBlkStartId[1], 7u);
}

TEST(ProfileReaderTest, PrefixTableIsValidUnlessItSaysOtherwise) {
  auto context = contextIn<xpLpmTableContext>(R"("LPM")", R"(
      {"prefixTable": {"2": {"numOfEntries": 5}, "31": {"valid": 0, "tread": 16}}})");
  EXPECT_EQ(context.prefixTable[2].valid, 1);
  EXPECT_EQ(context.prefixTable[2].numOfEntries, 5u);
  EXPECT_EQ(context.prefixTable[31].valid, 0);
  EXPECT_EQ(context.prefixTable[31].tread, 16u);
  EXPECT_EQ(context.prefixTable[3].valid, 0);
}

TEST(ProfileReaderTest, NextHopIndex) {
  auto context = contextIn<xpLpmTableContext>(R"("LPM")", R"(
      {"nhiTable": {"poolBitmap": 48, "numEntries": 16384, "tileBitmap": [0, 0, 0, 0, 255],
                    "pairPerEntry": 2, "nhWidth": 20}})");
  EXPECT_EQ(context.nhiTable.poolBitmap, 48u);
  EXPECT_EQ(context.nhiTable.tileBitmap[4], 255);
  EXPECT_EQ(context.nhiTable.tileBitmap[5], 0);
  EXPECT_EQ(context.nhiTable.nhWidth, 20u);
}

TEST(ProfileReaderTest, StatusesAndNullManagers) {
  Profile profile = read(R"({"sdkStatus": {"xpLanzMgr::init": 9, "xpFdbMgr[0]::addDevice": [0, -42],
                             "xpBdMgr": "null", "xpIpRouteLpmMgr[0]": "null"}})");
  EXPECT_EQ(profile.sdkStatus.at("xpLanzMgr::init"), std::vector<S32>{9});
  EXPECT_EQ(profile.sdkStatus.at("xpFdbMgr[0]::addDevice"), (std::vector<S32>{0, -42}));
  EXPECT_EQ(profile.nullManagers, (std::set<std::string>{"xpBdMgr", "xpIpRouteLpmMgr[0]"}));
}

TEST(ProfileReaderTest, FaultsOfTheRoot) {
  std::pair<char const*, char const*> faults[] = {
      {"[]", "lab.json: /: expected an object, got a list"},
      {"null", "lab.json: /: expected an object, got null"},
      {"7", "lab.json: /: expected an object, got 7"},
      {R"({"device": 0})", "lab.json: /device: no such key in a profile"},
      {R"({"": 0})", "lab.json: /: no such key in a profile"},
      {R"({"deviceId": 256})", "lab.json: /deviceId: 256 does not fit in 8 bits"},
      {R"({"deviceId": -1})", "lab.json: /deviceId: -1 is negative"},
      {R"({"deviceId": "0"})", "lab.json: /deviceId: expected a whole number, got \"0\""},
      {R"({"deviceId": 1.0})", "lab.json: /deviceId: expected a whole number, got 1.0"},
      {R"({"deviceId": 1e2})", "lab.json: /deviceId: expected a whole number, got 1e2"},
      {R"({"ldePipeMode": true})", "lab.json: /ldePipeMode: expected a whole number, got true"},
      {R"({"ldePipeMode": 4294967296})",
       "lab.json: /ldePipeMode: 4294967296 does not fit in 32 bits"},
      {R"({"coldStartNeeded": 1})", "lab.json: /coldStartNeeded: expected true or false, got 1"},
      {R"({"coldStartNeeded": null})",
       "lab.json: /coldStartNeeded: expected true or false, got null"},
      {R"({"deviceId": 0, "deviceId": 1})", "lab.json: /deviceId: stands twice"},
  };
  for (auto [text, fault] : faults) EXPECT_EQ(faultOfProfile(text), fault);
}

TEST(ProfileReaderTest, FaultsOfTreadPlans) {
  std::pair<char const*, char const*> faults[] = {
      {R"({"lpmTreadCfg": []})", "lab.json: /lpmTreadCfg: expected an object, got a list"},
      {R"({"lpmTreadCfg": {"v4": {}}})",
       "lab.json: /lpmTreadCfg/v4: no such key in a tread configuration"},
      {R"({"lpmTreadCfg": {"treadV4Valid": 0}})",
       "lab.json: /lpmTreadCfg/treadV4Valid: expected true or false, got 0"},
      {R"({"lpmTreadCfg": {"treadV6Valid": "true"}})",
       "lab.json: /lpmTreadCfg/treadV6Valid: expected true or false, got \"true\""},
      {R"({"lpmTreadCfg": {"treadV4": [1]}})",
       "lab.json: /lpmTreadCfg/treadV4: expected an object, got a list"},
      {R"({"lpmTreadCfg": {"treadV4": {"32": 0}}})",
       "lab.json: /lpmTreadCfg/treadV4/32: the key is no tread index, 0 to 31"},
      {R"({"lpmTreadCfg": {"treadV6": {"x": 0}}})",
       "lab.json: /lpmTreadCfg/treadV6/x: the key is no tread index, 0 to 31"},
      {R"({"lpmTreadCfg": {"treadV6": {"0": 256}}})",
       "lab.json: /lpmTreadCfg/treadV6/0: 256 does not fit in 8 bits"},
  };
  for (auto [text, fault] : faults) EXPECT_EQ(faultOfProfile(text), fault);
}

TEST(ProfileReaderTest, FaultsOfTables) {
  std::pair<char const*, char const*> faults[] = {
      {R"({"tables": []})", "lab.json: /tables: expected an object, got a list"},
      {R"({"tables": {"62": {}}})", "lab.json: /tables/62: the key is no table id, 0 to 61"},
      {R"({"tables": {"-1": {}}})", "lab.json: /tables/-1: the key is no table id, 0 to 61"},
      {R"({"tables": {"07": {}}})", "lab.json: /tables/07: the key is no table id, 0 to 61"},
      {R"({"tables": {"+7": {}}})", "lab.json: /tables/+7: the key is no table id, 0 to 61"},
      {R"({"tables": {"7 ": {}}})", "lab.json: /tables/7 : the key is no table id, 0 to 61"},
      {R"({"tables": {"": {}}})", "lab.json: /tables/: the key is no table id, 0 to 61"},
      {R"({"tables": {"4294967296": {}}})",
       "lab.json: /tables/4294967296: the key is no table id, 0 to 61"},
      {R"({"tables": {"7": 1}})", "lab.json: /tables/7: expected an object, got 1"},
      {R"({"tables": {"7": {}, "7": {}}})", "lab.json: /tables/7: stands twice"},
      {R"({"tables": {"7": {"name": ""}}})", "lab.json: /tables/7/name: no such key in a table"},
      {R"({"tables": {"7": {"copyNum": 4294967296}}})",
       "lab.json: /tables/7/copyNum: 4294967296 does not fit in 32 bits"},
      {R"({"tables": {"7": {"copyNum": -1}}})", "lab.json: /tables/7/copyNum: -1 is negative"},
      {R"({"tables": {"7": {"type": "hash"}}})",
       "lab.json: /tables/7/type: expected MATCH, HASH, DIRECT, LPM, ISME, NH or another code, "
       "got \"hash\""},
      {R"({"tables": {"7": {"type": null}}})",
       "lab.json: /tables/7/type: expected MATCH, HASH, DIRECT, LPM, ISME, NH or another code, "
       "got null"},
      {R"({"tables": {"7": {"type": 1}}})",
       "lab.json: /tables/7/type: 1 is the code of HASH, which goes by its name"},
      {R"({"tables": {"7": {"type": -3}}})", "lab.json: /tables/7/type: -3 is negative"},
      {R"({"tables": {"7": {"type": 4294967296}}})",
       "lab.json: /tables/7/type: 4294967296 does not fit in 32 bits"},
      {R"({"tables": {"7": {"contexts": {}}}})",
       "lab.json: /tables/7/contexts: expected a list, got an object"},
      {R"({"tables": {"7": {"contexts": [{}, 5]}}})",
       "lab.json: /tables/7/contexts/1: expected an object, got 5"},
  };
  for (auto [text, fault] : faults) EXPECT_EQ(faultOfProfile(text), fault);
}

TEST(ProfileReaderTest, CopiesAreNumberedByAByte) {
  std::string contexts = "{}";
  for (int i = 1; i < 256; ++i) contexts += ",{}";
  auto const profile = [](std::string const& list) {
    return R"({"tables": {"7": {"contexts": [)" + list + "]}}}";
  };
  EXPECT_EQ(faultOfProfile(profile(contexts)), "none");
  EXPECT_EQ(faultOfProfile(profile(contexts + ",{}")),
            "lab.json: /tables/7/contexts: 257 elements, and room for 256");
}

TEST(ProfileReaderTest, FaultsOfContexts) {
  struct {
    char const* type;
    char const* context;
    char const* fault;  ///< behind the path of the context
  } const faults[] = {
      {R"("MATCH")", R"({"numDb": 5000000000})", "numDb: 5000000000 does not fit in 32 bits"},
      {R"("MATCH")", R"({"startDb": 256})", "startDb: 256 does not fit in 8 bits"},
      {R"("MATCH")", R"({"keySize": 65536})", "keySize: 65536 does not fit in 16 bits"},
      {R"("MATCH")", R"({"keySize": []})", "keySize: expected a whole number, got a list"},
      {R"("MATCH")", R"({"numOfEntries": 1})", "numOfEntries: no such field"},
      {R"("MATCH")", R"({"tableType": 1})", "tableType: no such field"},
      {R"("MATCH")", R"({"first": 2147483648})", "first: 2147483648 does not fit in 32 bits"},
      {R"("MATCH")", R"({"first": -2147483649})", "first: -2147483649 does not fit in 32 bits"},
      {R"("MATCH")", R"({"numDb": 99999999999999999999999})",
       "numDb: 99999999999999999999999 does not fit in 32 bits"},
      {R"("MATCH")", R"({"numDb": 1, "numDb": 1})", "numDb: stands twice"},
      {R"("HASH")", R"({"poolId": 4})", "poolId: expected a list, got 4"},
      {R"("HASH")", R"({"poolId": [0, -1]})", "poolId/1: -1 is negative"},
      {R"("HASH")", R"({"poolId": [0,1,2,3,4,5,6,7,8]})", "poolId: 9 elements, and room for 8"},
      {R"("HASH")", R"({"numOfWays": 256})", "numOfWays: 256 does not fit in 8 bits"},
      {R"("DIRECT")", R"({"poolId": [4]})", "poolId: expected a whole number, got a list"},
      {R"("ISME")", R"({"ismeId": 1})", "ismeId: no such field"},
      {R"("NH")", R"({"rowBlkStartId": [null]})",
       "rowBlkStartId/0: expected a whole number, got null"},
      {R"("LPM")", R"({"prefixTable": []})", "prefixTable: expected an object, got a list"},
      {R"("LPM")", R"({"prefixTable": {"32": {}}})",
       "prefixTable/32: the key is no slot of a prefix table, 0 to 31"},
      {R"("LPM")", R"({"prefixTable": {"0": {"valid": true}}})",
       "prefixTable/0/valid: expected a whole number, got true"},
      {R"("LPM")", R"({"prefixTable": {"0": {"width": 1}}})", "prefixTable/0/width: no such field"},
      {R"("LPM")", R"({"nhiTable": {"tileBitmap": [256]}})",
       "nhiTable/tileBitmap/0: 256 does not fit in 8 bits"},
      {R"("LPM")", R"({"nhiTable": {"first": 0}})", "nhiTable/first: no such field"},
      {"9", R"({"numDb": 1})", "numDb: no such field"},
  };
  for (auto const& row : faults) {
    EXPECT_EQ(faultOfProfile(contextOf(row.type, row.context)),
              std::string("lab.json: /tables/42/contexts/0/") + row.fault);
  }
}

TEST(ProfileReaderTest, FaultsOfStatuses) {
  std::pair<char const*, char const*> faults[] = {
      {R"({"sdkStatus": 9})", "lab.json: /sdkStatus: expected an object, got 9"},
      {R"({"sdkStatus": {"xpFooMgr::init": 9}})",
       "lab.json: /sdkStatus/xpFooMgr::init: no manager class \"xpFooMgr\""},
      {R"({"sdkStatus": {"xpFdbMgr::init": 9}})",
       "lab.json: /sdkStatus/xpFdbMgr::init: xpFdbMgr has no operation \"init\""},
      {R"({"sdkStatus": {"xpFdbMgr[4]::addDevice": 9}})",
       "lab.json: /sdkStatus/xpFdbMgr[4]::addDevice: xpFdbMgr has no index \"4\""},
      {R"({"sdkStatus": {"xpLanzMgr::init": 2147483648}})",
       "lab.json: /sdkStatus/xpLanzMgr::init: 2147483648 does not fit in 32 bits"},
      {R"({"sdkStatus": {"xpLanzMgr::init": "9"}})",
       "lab.json: /sdkStatus/xpLanzMgr::init: expected a status or a list of them, got \"9\""},
      {R"({"sdkStatus": {"xpLanzMgr::init": null}})",
       "lab.json: /sdkStatus/xpLanzMgr::init: expected a status or a list of them, got null"},
      {R"({"sdkStatus": {"xpLanzMgr::init": []}})",
       "lab.json: /sdkStatus/xpLanzMgr::init: a list without a status"},
      {R"({"sdkStatus": {"xpLanzMgr::init": [0, "x"]}})",
       "lab.json: /sdkStatus/xpLanzMgr::init/1: expected a whole number, got \"x\""},
      {R"({"sdkStatus": {"xpBdMgr": 9}})",
       "lab.json: /sdkStatus/xpBdMgr: no operation named behind \"xpBdMgr\", as in "
       "\"xpBdMgr::addDevice\""},
      {R"({"sdkStatus": {"xpLanzMgr": "null"}})",
       "lab.json: /sdkStatus/xpLanzMgr: xpLanzMgr is a singleton, and never null"},
      {R"({"sdkStatus": {"xpBdMgr::addDevice": "null"}})",
       "lab.json: /sdkStatus/xpBdMgr::addDevice: an operation can't be null, only a manager: "
       "\"xpBdMgr::addDevice\""},
  };
  for (auto [text, fault] : faults) EXPECT_EQ(faultOfProfile(text), fault);
}

TEST(ProfileReaderTest, TextThatIsNoJsonIsNamedByLineAndColumn) {
  EXPECT_TRUE(faultOfProfile("").starts_with("lab.json:1:1: no valid JSON: "))
      << faultOfProfile("");
  EXPECT_TRUE(faultOfProfile("{").starts_with("lab.json:1:2: no valid JSON: "))
      << faultOfProfile("{");
  EXPECT_TRUE(faultOfProfile("{\n  \"a\": ?\n}").starts_with("lab.json:2:8: no valid JSON: "));
  EXPECT_TRUE(faultOfProfile("{} {}").starts_with("lab.json:1:4: no valid JSON: "))
      << faultOfProfile("{} {}");
  EXPECT_TRUE(faultOfProfile("{\"deviceId\": 01}").starts_with("lab.json:1:15: no valid JSON: "));
  EXPECT_TRUE(
      faultOfProfile("{\"deviceId\": 1e999}").starts_with("lab.json:1:18: no valid JSON: "));
  EXPECT_TRUE(faultOfProfile("// no\n{}").starts_with("lab.json:1:1: no valid JSON: "))
      << faultOfProfile("// no\n{}");
}

TEST(ProfileReaderTest, ComplaintIsOneLineOfPrintableText) {
  for (std::string text : {"{\"a\nb\": 0}", "{\"\\n\\u0000\\u00e9\": 0}", "{\"deviceId\": \"\\n\"}",
                           "\xFF\xFE", "{\"a\xC3\": 0}", "{\"sdkStatus\": {\"x\\n\": 1}}"}) {
    std::string fault = faultOfProfile(text);
    EXPECT_TRUE(fault.starts_with("lab.json:")) << fault;
    for (char c : fault) EXPECT_TRUE(c >= 0x20 && c < 0x7F) << fault;
  }
}

TEST(ProfileReaderTest, PathEscapesItsOwnSigns) {
  EXPECT_EQ(faultOfProfile(R"({"a/b~c\n": 0})"),
            "lab.json: /a~1b~0c\\x0A: no such key in a profile");
}

TEST(ProfileReaderTest, LongTextIsCut) {
  std::string fault = faultOfProfile("{\"" + std::string(100000, 'a') + "\": 0}");
  EXPECT_EQ(fault, "lab.json: /" + std::string(60, 'a') + "...: no such key in a profile");
}

TEST(ProfileReaderTest, KeyIsFoundAgainAmongVeryMany) {
  std::string text = "{\"tables\": {\"0\": {";
  for (U32 i = 0; i < 200000; ++i) text += '"' + std::to_string(i) + "\": 0,";
  text += "\"0\": 0}}}";
  EXPECT_EQ(faultOfProfile(text), "lab.json: /tables/0/0: stands twice");
}

TEST(ProfileReaderTest, DepthHasALimit) {
  std::string deep = R"({"tables": )" + std::string(100000, '[');
  EXPECT_TRUE(faultOfProfile(deep).ends_with("/0: nested more than 16 deep"))
      << faultOfProfile(deep);
}

TEST(ProfileReaderTest, FileThatCannotBeReadIsNamed) {
  try {
    readProfileFile("/nowhere/lab.json");
    FAIL();
  } catch (ProfileFault const& fault) {
    EXPECT_STREQ(fault.what(), "/nowhere/lab.json: cannot be read: No such file or directory");
  }
  EXPECT_THROW(readProfileFile(testing::TempDir()), ProfileFault);
}

TEST(ProfileReaderTest, FileIsReadWhole) {
  auto file = std::filesystem::path(testing::TempDir()) / "profileReaderTest.json";
  std::ofstream(file) << R"({"deviceId": 4})" << std::string(100000, ' ');
  EXPECT_EQ(readProfileFile(file).deviceId, 4);
  std::ofstream(file) << "{}" << std::string(4 << 20, ' ');
  EXPECT_THROW(readProfileFile(file), ProfileFault);
  std::filesystem::remove(file);
}

}  // namespace
}  // namespace xdksim
