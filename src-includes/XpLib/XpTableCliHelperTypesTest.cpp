// The names of the table types.
#include "XpLib/XpTableCliHelperRigTest.h"
#include "XpLib/XpTableCliHelperTypes.h"

namespace Kestrel::xpTableCliHelper {

namespace {

TEST(TableTypeTest, NamesOfTheSixTypes) {
  EXPECT_STREQ(tableTypeToString(0), "MATCH");
  EXPECT_STREQ(tableTypeToString(1), "HASH");
  EXPECT_STREQ(tableTypeToString(2), "DIRECT");
  EXPECT_STREQ(tableTypeToString(6), "LPM");
  EXPECT_STREQ(tableTypeToString(7), "ISME");
  EXPECT_STREQ(tableTypeToString(8), "NH");
}

TEST(TableTypeDeathTest, OtherCodesAreNoTypes) {
  for (U8 code : {3, 4, 5, 9, 255})
    expectAssertion([code] { tableTypeToString(code); }, "false",
                    "const char* Kestrel::tableTypeToString(U8)");
}

}  // namespace

}  // namespace Kestrel::xpTableCliHelper
