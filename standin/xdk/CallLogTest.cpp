// The lines of the call log, to the byte.
#include "Xdk/Xdk.h"
#include "standin/xdk/CallLog.h"
#include "standin/xdk/Sim.h"

#include <gtest/gtest.h>
#include <sstream>

namespace xdksim {
namespace {

std::string callLine(ManagerId manager, Call call, CallArguments const& arguments, XP_STATUS status,
                     xpTableProfile const* tables) {
  std::string line;
  appendCall(line, manager, call, arguments, tables);
  return line + std::to_string(status);
}

ManagerId managerAt(char const* name, U32 index = 0) { return {managerOf(name), index}; }

/// A simulated SDK whose calls are heard.
struct Heard {
  Heard() { sim.callLogIs(streamLog(out)); }
  std::string lines() const { return out.str(); }

  Sim sim;
  std::ostringstream out;
};

/// The words for a group of tables, and their records.
struct Group {
  Group(xpTableProfile& profile, std::vector<U32> const& ids)
      : words(ids.size()), records(ids.size()) {
    for (std::size_t i = 0; i < ids.size(); ++i) {
      words[i] = profile.tblCtx[ids[i]];
      records[i] = {static_cast<U8>(i), 0, 0, &words[i]};
      list.push_back(&records[i]);
    }
  }
  std::vector<xpTableContext*> words;
  std::vector<xpTblCtxPerIdx> records;
  std::vector<xpTblCtxPerIdx*> list;
};

std::string tableLine(xpTableContext* const* word, xpTableProfile const* tables) {
  return callLine(managerAt("xpBdMgr"), Call::addTable,
                  {.device = 0, .table = word, .copies = 1, .mode = 1}, 0, tables);
}

TEST(CallLogTest, TableFormOfAddDevice) {
  Heard heard;
  xpTableContext* word = heard.sim.tableProfile().tblCtx[31];
  xpL2Pl::instance()
      ->getPrimitiveMgr(xpBdMgr::myId[0])
      ->addDevice(0, &word, 1, TABLE_INIT_WITH_FIXED_INFO);
  EXPECT_EQ(heard.lines(), "xpBdMgr[0]::addDevice device=0 table=31 copies=1 mode=1 -> 0\n");
}

TEST(CallLogTest, InitTypeFormOfAddDevice) {
  Heard heard;
  xpIfPl::instance()->getPrimitiveMgr(xpControlMacMgr::myId[0])->addDevice(0, XP_INIT_WARM);
  EXPECT_EQ(heard.lines(), "xpControlMacMgr[0]::addDevice device=0 init=2 -> 0\n");
}

TEST(CallLogTest, SingletonHasNoIndex) {
  Heard heard;
  heard.sim.statusIs("xpEgressAclMgr::addDevice", {-3});
  xpEgressAclMgr::instance()->init();
  xpEgressAclMgr::instance()->addDevice(7, XP_INIT_COLD);
  xpEgressAclMgr::instance()->removeDevice(7);
  EXPECT_EQ(heard.lines(),
            "xpEgressAclMgr::init -> 0\n"
            "xpEgressAclMgr::addDevice device=7 init=1 -> -3\n"
            "xpEgressAclMgr::removeDevice device=7 -> 0\n");
}

TEST(CallLogTest, LookUpsAreNotInTheLog) {
  Heard heard;
  xpDeviceMgr::instance()->getDeviceObj(0)->getTableProfile();
  xpL2Pl::instance()->getPrimitiveMgr(xpBdMgr::myId[0]);
  xpPrimitiveMgr::getNewPlMgrId();
  EXPECT_EQ(heard.lines(), "");
}

TEST(CallLogTest, LinesAreFlushedAsTheyAreWritten) {
  struct Counting : std::stringbuf {
    int sync() override { return ++syncs, 0; }
    int syncs = 0;
  } buffer;
  std::ostream out(&buffer);
  streamLog(out)("one");
  EXPECT_EQ(buffer.str(), "one\n");
  EXPECT_EQ(buffer.syncs, 1);
}

TEST(CallLogTest, ListNamesIndexTableCopiesAndIdForManager) {
  Sim sim;
  Group group(sim.tableProfile(), {2, 12, 13});
  group.records[1].numCopies = 1;
  group.records[1].tableIdForMgr = 2;
  std::string line =
      callLine(managerAt("xpTunnelIvifMgr"), Call::addTables,
               {.list = &group.list, .copies = 1, .mode = 1}, 0, &sim.tableProfile());
  EXPECT_EQ(line,
            "xpTunnelIvifMgr[0]::addDevice device=0 list=0:2/0/0,1:12/1/2,2:13/0/0 copies=1 "
            "mode=1 -> 0");
}

TEST(CallLogTest, ListShowsNoTableForNullInTheRecordAndInTheWord) {
  Sim sim;
  Group group(sim.tableProfile(), {27, 3, 29});
  group.records[2].tblCtx = nullptr;
  std::string line =
      callLine(managerAt("xpIaclMgr"), Call::createTable,
               {.list = &group.list, .copies = 2, .mode = 1}, 0, &sim.tableProfile());
  EXPECT_EQ(
      line,
      "xpIaclMgr[0]::createTable device=0 list=0:27/0/0,1:-/0/0,2:-/0/0 copies=2 mode=1 -> 0");
}

TEST(CallLogTest, EmptyList) {
  std::vector<xpTblCtxPerIdx*> none;
  std::string line = callLine(managerAt("xpVifMgr"), Call::addTables, {.list = &none}, 0, nullptr);
  EXPECT_EQ(line, "xpVifMgr[0]::addDevice device=0 list= copies=0 mode=0 -> 0");
}

TEST(CallLogTest, FurtherFormsOfTheTable) {
  EXPECT_EQ(callLine(managerAt("xpIaclMgr"), Call::addDevice, {}, 0, nullptr),
            "xpIaclMgr[0]::addDevice device=0 -> 0");
  EXPECT_EQ(callLine(managerAt("xpHdrModificationMgr"), Call::loadDefaultValue, {}, 0, nullptr),
            "xpHdrModificationMgr[0]::loadDefaultValue device=0 -> 0");
  EXPECT_EQ(
      callLine(managerAt("xpVifMgr"), Call::writeEntry, {.vif = 7, .direction = 1}, 0, nullptr),
      "xpVifMgr[0]::writeEntry device=0 vif=7 direction=1 -> 0");
  EXPECT_EQ(callLine(managerAt("xpLanzMgr"), Call::deInit, {}, 0, nullptr),
            "xpLanzMgr::deInit -> 0");
  EXPECT_EQ(callLine(managerAt("xpIpRouteLpmMgr", 1), Call::addTable, {}, 0, nullptr),
            "xpIpRouteLpmMgr[1]::addDevice device=0 table=- copies=0 mode=0 -> 0");
}

TEST(CallLogTest, NullWordShowsNoTable) {
  Sim sim;
  xpTableContext* null = nullptr;
  EXPECT_NE(tableLine(&null, &sim.tableProfile()).find("table=- "), std::string::npos);
  EXPECT_NE(tableLine(nullptr, &sim.tableProfile()).find("table=- "), std::string::npos);
}

TEST(CallLogTest, TableThatIsNotInUseShowsItsId) {
  Sim sim;
  xpTableContext* word = sim.tableProfile().tblCtx[14];
  ASSERT_EQ(word->first, -1);
  EXPECT_NE(tableLine(&word, &sim.tableProfile()).find("table=14 "), std::string::npos);
}

TEST(CallLogTest, ContextFromElsewhereShowsAQuestionMark) {
  Sim sim;
  xpMatchTableContext own;
  xpTableContext* word = &own;
  EXPECT_NE(tableLine(&word, &sim.tableProfile()).find("table=? "), std::string::npos);
  EXPECT_NE(tableLine(&word, nullptr).find("table=? "), std::string::npos);
}

TEST(CallLogTest, CallOfAnUnknownDeviceIsLoggedToo) {
  Heard heard;
  xpTableContext* word = heard.sim.tableProfile().tblCtx[0];
  xpL2Pl::instance()
      ->getPrimitiveMgr(xpFdbMgr::myId[0])
      ->addDevice(200, &word, 255, TABLE_INIT_WITH_FIXED_INFO);
  EXPECT_EQ(heard.lines(), "xpFdbMgr[0]::addDevice device=200 table=? copies=255 mode=1 -> 0\n");
}

}  // namespace
}  // namespace xdksim
