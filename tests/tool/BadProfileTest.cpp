// A bad profile ends each command with one line that names file, place and fault.
#include "tests/tool/ToolRun.h"

#include <gtest/gtest.h>
#include <string_view>

namespace tool {

namespace {

struct Bad {
  char const* name;
  char const* json;
  /// Behind "lab.json"; one that ends in "..." is the beginning.
  std::string_view complaint;
};

void PrintTo(Bad const& bad, std::ostream* out) { *out << bad.name; }

bool isComplaint(std::string const& text, std::string_view expected) {
  constexpr std::string_view more = "...";
  bool const isBeginning = expected.ends_with(more);
  if (isBeginning) expected.remove_suffix(more.size());
  std::string const start = "kestrel: error: lab.json" + std::string(expected);
  if (!isBeginning) return text == start + '\n';
  return text.starts_with(start) && text.find('\n') == text.size() - 1;
}

class BadProfileTest : public testing::TestWithParam<Bad> {};

TEST_P(BadProfileTest, GetsOneLineAndStatus2) {
  Folder const folder;
  folder.has("lab.json", GetParam().json);
  for (char const* command :
       {"report summary", "report detail", "report sram", "report tables", "bringup"}) {
    Outcome const outcome = kestrel(std::string(command) + " --profile lab.json", folder.path());
    EXPECT_EQ(outcome.out, "") << command;
    EXPECT_PRED2(isComplaint, outcome.err, GetParam().complaint);
    EXPECT_EQ(outcome.status, 2) << command;
  }
}

constexpr Bad bads[] = {
    {"Empty", "", ":1:1: no valid JSON: ..."},
    {"NoJson", "hello", ":1:1: no valid JSON: ..."},
    {"CutOff", "{\"tables\": {", ":1:13: no valid JSON: ..."},
    {"NoObject", "[]", ": /: expected an object, got a list"},
    {"UnknownKey", R"({"device": 0})", ": /device: no such key in a profile"},
    {"KeyTwice", R"({"deviceId": 0, "deviceId": 1})", ": /deviceId: stands twice"},
    {"DeviceIdTooLarge", R"({"deviceId": 256})", ": /deviceId: 256 does not fit in 8 bits"},
    {"DeviceOfNoSdk", R"({"deviceId": 33})", ": /deviceId: 33 is no device number, 0 to 32"},
    {"NegativeMode", R"({"ldePipeMode": -1})", ": /ldePipeMode: -1 is negative"},
    {"FractionForAMode", R"({"ldePipeMode": 3.5})",
     ": /ldePipeMode: expected a whole number, got 3.5"},
    {"WordForABoolean", R"({"coldStartNeeded": "yes"})",
     ": /coldStartNeeded: expected true or false, got \"yes\""},
    {"TableBeyondTheProfile", R"({"tables": {"62": {}}})",
     ": /tables/62: the key is no table id, 0 to 61"},
    {"TableWithoutNumber", R"({"tables": {"FDB": {}}})",
     ": /tables/FDB: the key is no table id, 0 to 61"},
    {"UnknownType", R"({"tables": {"0": {"type": "TREE"}}})",
     ": /tables/0/type: expected MATCH, HASH, DIRECT, LPM, ISME, NH or another code, got \"TREE\""},
    {"FieldOfAnotherType", R"({"tables": {"0": {"type": "HASH", "contexts": [{"numDb": 2}]}}})",
     ": /tables/0/contexts/0/numDb: no such field"},
    {"FieldTooLarge", R"({"tables": {"42": {"contexts": [{"numDb": 5000000000}]}}})",
     ": /tables/42/contexts/0/numDb: 5000000000 does not fit in 32 bits"},
    {"ArrayTooLong",
     R"({"tables": {"0": {"type": "HASH", "contexts": [{"poolId": [0,1,2,3,4,5,6,7,8]}]}}})",
     ": /tables/0/contexts/0/poolId: 9 elements, and room for 8"},
    {"SlotBeyondTheTable",
     R"({"tables": {"50": {"type": "LPM", "contexts": [{"prefixTable": {"32": {}}}]}}})",
     ": /tables/50/contexts/0/prefixTable/32: the key is no slot of a prefix table, 0 to 31"},
    {"UnknownTreadKey", R"({"lpmTreadCfg": {"treadV5": {}}})",
     ": /lpmTreadCfg/treadV5: no such key in a tread configuration"},
    {"UnknownManager", R"({"sdkStatus": {"xpFooMgr::init": 9}})",
     ": /sdkStatus/xpFooMgr::init: no manager class \"xpFooMgr\""},
    {"UnknownOperation", R"({"sdkStatus": {"xpFdbMgr::fly": 9}})",
     ": /sdkStatus/xpFdbMgr::fly: xpFdbMgr has no operation \"fly\""},
    {"StatusWithoutNumber", R"({"sdkStatus": {"xpFdbMgr::addDevice": "bad"}})",
     ": /sdkStatus/xpFdbMgr::addDevice: expected a status or a list of them, got \"bad\""},
};

INSTANTIATE_TEST_SUITE_P(Faults, BadProfileTest, testing::ValuesIn(bads),
                         [](auto const& bad) { return bad.param.name; });

TEST(UnreadableProfileTest, FileThatIsNotThere) {
  Outcome const outcome = kestrel("bringup --profile nowhere.json");
  EXPECT_EQ(outcome.err,
            "kestrel: error: nowhere.json: cannot be read: No such file or directory\n");
  EXPECT_EQ(outcome.status, 2);
}

TEST(UnreadableProfileTest, FileThatIsAFolder) {
  Outcome const outcome = kestrel("bringup --profile /");
  EXPECT_EQ(outcome.err, "kestrel: error: /: cannot be read: Is a directory\n");
  EXPECT_EQ(outcome.status, 2);
}

TEST(UnreadableProfileTest, BytesThatAreNoTextStayInOneLine) {
  Folder const folder;
  folder.has("lab.json", std::string("{\"a\\nb\x01\": \xff}"));
  std::string const complaint = kestrel("bringup --profile lab.json", folder.path()).err;
  EXPECT_EQ(complaint.find('\n'), complaint.size() - 1);
  EXPECT_EQ(complaint.find('\xff'), complaint.npos);
}

}  // namespace

}  // namespace tool
