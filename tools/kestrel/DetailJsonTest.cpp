// From the detail's lines to members.
#include "tools/kestrel/DetailJson.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace kestrel {

namespace {

std::string json(char const* text) { return detailCopies(text).dump(); }

TEST(DetailJsonTest, NoCopies) { EXPECT_EQ(json(""), "[]"); }

TEST(DetailJsonTest, EmptyCopy) {
  EXPECT_EQ(json("  Copy 0:\n    (empty)\n"), R"([{"copy":0,"empty":true}])");
}

TEST(DetailJsonTest, FieldsOfALine) {
  EXPECT_EQ(json("  Copy 3:\n    numDb 2 startDb 0 keySize 80 valueSize 4294967295\n"),
            R"([{"copy":3,"empty":false,"numDb":2,"startDb":0,"keySize":80,)"
            R"("valueSize":4294967295}])");
}

TEST(DetailJsonTest, WaysAndSharing) {
  EXPECT_EQ(json("  Copy 0:\n"
                 "    numOfEntries 4096 numOfWays 2 shared yes\n"
                 "      Way 0: poolId 4 numOfRows 1024\n"
                 "      Way 1: poolId 5 numOfRows 1024\n"
                 "  Copy 1:\n"
                 "    numOfEntries 1 numOfWays 0 shared no\n"),
            R"([{"copy":0,"empty":false,"numOfEntries":4096,"numOfWays":2,"shared":true,)"
            R"("ways":[{"way":0,"poolId":4,"numOfRows":1024},)"
            R"({"way":1,"poolId":5,"numOfRows":1024}]},)"
            R"({"copy":1,"empty":false,"numOfEntries":1,"numOfWays":0,"shared":false}])");
}

TEST(DetailJsonTest, PrefixTablesAndTiles) {
  EXPECT_EQ(json("  Copy 0:\n"
                 "    numPrefixTables 1 vrfIdWidth 12\n"
                 "      PrefixTable 31: tread 16 poolId 4\n"
                 "      NhiTable: numEntries 5 nhWidth 20\n"
                 "        Tile 0: poolId 4 tileId 7\n"
                 "        Tile 1: poolId 5 tileId 0\n"),
            R"([{"copy":0,"empty":false,"numPrefixTables":1,"vrfIdWidth":12,)"
            R"("prefixTables":[{"slot":31,"tread":16,"poolId":4}],)"
            R"("nhiTable":{"numEntries":5,"nhWidth":20,)"
            R"("tiles":[{"tile":0,"poolId":4,"tileId":7},{"tile":1,"poolId":5,"tileId":0}]}}])");
}

TEST(DetailJsonTest, IndexWithoutTiles) {
  EXPECT_EQ(json("  Copy 0:\n      NhiTable: numEntries 5\n"),
            R"([{"copy":0,"empty":false,"nhiTable":{"numEntries":5,"tiles":[]}}])");
}

}  // namespace

}  // namespace kestrel
