// Operations called with words.
#include "tools/kestrel/model/Call.h"
#include "tools/kestrel/model/PlainText.h"
#include "tools/kestrel/model/TestModel.h"

namespace kestrel {

namespace {

struct CallTest : ModelTest {
  using Words = std::vector<std::string>;

  std::string called(std::string const& path, std::string const& operation,
                     Words const& words = {}) const {
    return said([&]() -> std::string {
      Place const place = paths.requireAt(path);
      auto const result = call(paths, place, operationAt(place, operation), words);
      return result ? plainText(*result) : "done";
    });
  }
};

TEST_F(CallTest, ReportsComeBackAsTexts) {
  EXPECT_EQ(called("/tableCliHelper", "displayAllDynamicTablesSummary"),
            textOf(chip.reports()->displayAllDynamicTablesSummary()));
  EXPECT_EQ(called("/tableCliHelper", "displaySingleDynamicTableDetail", {"0"}),
            textOf(chip.reports()->displaySingleDynamicTableDetail(0)));
}

TEST_F(CallTest, AnOperationCallsTheSdk) {
  std::string log;
  chip.sdk().callLogIs([&log](std::string_view line) { log.append(line).append("\n"); });
  EXPECT_EQ(called("/tableManSm", "doCreateFdbTable"), "done");
  chip.sdk().callLogIs({});
  EXPECT_EQ(log, "xpFdbMgr[0]::addDevice device=0 table=0 copies=1 mode=1 -> 0\n");
}

TEST_F(CallTest, AResultIsAValueOrAnObject) {
  EXPECT_EQ(called("/tableManSm", "doVerifyOrCreateTables", {"1"}), "True");
  EXPECT_EQ(called("/tableCliHelper", "getTableCollection"), "Object('Kestrel::TableCollection')");
}

TEST_F(CallTest, ArgumentsAreCountedAndRead) {
  std::string const at = "! \"/tableCliHelper/displaySingleDynamicTableSummary\": ";
  EXPECT_EQ(called("/tableCliHelper", "displaySingleDynamicTableSummary"),
            at + "it takes (tableId U32) -> Mox::String, and 0 are given");
  EXPECT_EQ(called("/tableCliHelper", "displaySingleDynamicTableSummary", {"0", "0"}),
            at + "it takes (tableId U32) -> Mox::String, and 2 are given");
  EXPECT_EQ(called("/tableCliHelper", "displaySingleDynamicTableSummary", {"-1"}),
            at + "tableId: no U32 \"-1\" (column 0: expected unsigned long long, found '-1')");
}

TEST_F(CallTest, MemoryOfOthersCantBeGiven) {
  Words const words = {"0", "FDB", "None", "1", "0", "0"};
  EXPECT_EQ(called("/tableManSm", "doUpdateTableStatus", words),
            "! \"/tableManSm/doUpdateTableStatus\": xptc: a VoidPtr can't be given as a text");
}

TEST_F(CallTest, AReportOnATableThatIsntThereIsRefused) {
  EXPECT_EQ(called("/tableCliHelper", "displaySingleDynamicTableDetail", {"3"}),
            "! the chip has no table 3");
}

TEST_F(CallTest, AnUnknownOperationSaysWhichThereAre) {
  EXPECT_EQ(called("/tableCliHelper", "doX"),
            "! \"/tableCliHelper\": no operation \"doX\"; there are getTableCollection, "
            "displayAllDynamicTablesSummary, displayAllDynamicTablesDetail, "
            "displaySramAllocationGraph, displaySingleDynamicTableDetail and "
            "displaySingleDynamicTableSummary");
  EXPECT_THAT(called("/tableCliHelper", "chipStatus"),
              testing::StartsWith("! \"/tableCliHelper\": no operation \"chipStatus\""));
  EXPECT_EQ(called("/slice0", "x"), "! \"/slice0\": no operation \"x\"; there is none");
  EXPECT_EQ(called("/slice0/ready", "x"),
            "! \"/slice0/ready\": what stands there has no operations");
}

}  // namespace

}  // namespace kestrel
