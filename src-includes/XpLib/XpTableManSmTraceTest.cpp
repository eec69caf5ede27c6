// What the table manager leaves in text traces: texts, levels, their order.
#include "XpLib/XpTableManSmSaidTest.h"
#include "XpLib/XpTableManSmTrace.h"

#include <sstream>

namespace Kestrel::xpTableManSm {
namespace {

std::string const one(1, '\1');
std::string const nul(1, '\0');

// As a line of the trace shows it: "1 doCreateBdTables: TableManSm::doCreateBdTables DeviceId 0".
std::string atLevelOne(std::string const& said) {
  std::string const head = "TableManSm::";
  return "1 " + said.substr(head.size(), said.find(' ') - head.size()) + ": " + said;
}

TEST(TableManSmTraceTest, BringUpAtLevelOne) {
  Rig rig;
  Trace trace("XpTableManSm/1");
  rig.bringUp();
  Lines expected;
  for (std::string const& said : saidByBringUp(one)) expected.push_back(atLevelOne(said));
  insertBehind(expected, "doCreateIAclTables DeviceId 0",
               "1 doCreateIAclTables: doCreateIAclTables DeviceId 0 Number of IACL TCAM Table "
               "Copies : 1");
  EXPECT_EQ(trace.lines, expected);
}

// The rig's tread plans aren't valid.
TEST(TableManSmTraceTest, BringUpAtLevelTwo) {
  Rig rig;
  Trace trace("XpTableManSm/2");
  rig.bringUp();
  EXPECT_EQ(trace.lines, (Lines{"2 doUpdateLpmTblCtx: doUpdateLpmTblCtx tblGuid 50",
                                "2 doUpdateLpmTblCtx:  tread cfg not valid ",
                                "2 doUpdateLpmTblCtx: doUpdateLpmTblCtx tblGuid 51",
                                "2 doUpdateLpmTblCtx:  tread cfg not valid "}));
}

TEST(TableManSmTraceTest, TakeDownIsTracedAlsoTheSecondTime) {
  Rig rig;
  auto const sm = rig.bringUp();
  Trace trace("XpTableManSm/0-31");
  sm->doPrepareToDie();
  sm->doPrepareToDie();
  std::string const line = "1 doPrepareToDie: TableManSm::doPrepareToDie DeviceId 0";
  EXPECT_EQ(trace.lines, (Lines{line, line}));
}

TEST(TableManSmTraceTest, BringUpAtLevelEight) {
  Rig rig;
  Trace trace("XpTableManSm/8");
  rig.bringUp();
  EXPECT_EQ(trace.lines,
            (Lines{"8 doVerifyOrCreateTables: bool "
                   "Kestrel::TableManSm::doVerifyOrCreateTables(bool) warmRestart 0",
                   "8 doCreateNhTables: void Kestrel::TableManSm::doCreateNhTables()"}));
}

TEST(TableManSmTraceTest, WarmRestartIsOneInTheText) {
  Rig rig;
  auto const sm = rig.bringUp();
  Trace trace("XpTableManSm/8");
  sm->doVerifyOrCreateTables(true);
  EXPECT_EQ(trace.lines, Lines{"8 doVerifyOrCreateTables: bool "
                               "Kestrel::TableManSm::doVerifyOrCreateTables(bool) warmRestart 1"});
}

TEST(TableManSmTraceTest, OtherLevelsAreEmpty) {
  Rig rig;
  Trace trace("XpTableManSm/0,3-7,9-31");
  rig.bringUp();
  EXPECT_EQ(trace.lines, Lines());
}

TEST(TableManSmTraceTest, DeviceIsANumber) {
  auto profile = fullProfile();
  profile.deviceId = 31;
  Rig rig(profile);
  rig.deviceId = 31;
  Trace trace("XpTableManSm/1");
  rig.bringUp();
  EXPECT_EQ(trace.lines.front(), "1 handleInitialized: TableManSm::handleInitialized DeviceId 31");
}

TEST(TableManSmTraceTest, CopyNumberIsOneRawByteOfTheText) {
  Rig rig;
  auto const sm = rig.bringUp();
  Trace trace("XpTableManSm/1");
  auto context = contexts<xpHashTableContext>(65);
  xpTableContext* first = context.data();
  sm->doUpdateTableStatus(3, "T", &first, 65, 0, 9);
  sm->doUpdateTableStatus(4, "T", &first, 0, 0, 9);
  EXPECT_EQ(trace.lines, (Lines{"1 doUpdateTableStatus: " + published(3, 9, "A"),
                                "1 doUpdateTableStatus: " + published(4, 9, nul)}));
}

TEST(TableManSmTraceTest, SkippedTableIsTraced) {
  Rig rig;
  auto const sm = rig.bringUp();
  Trace trace("XpTableManSm/1");
  Records records;
  xpTableContext* none = nullptr;
  sm->doUpdateTableStatus(3, "T", &none, 1, 0, 9);
  EXPECT_EQ(trace.lines, Lines{"1 doUpdateTableStatus: " + published(3, 9, one)});
  EXPECT_EQ(records.texts(), Lines{published(3, 9, "1")});
}

TEST(TableManSmTraceTest, HeaderTablesBehindTheStopAreTracedAsSkipped) {
  Rig rig(withCopies(27, {1, 0, 1}));
  auto const sm = rig.bringUp();
  Trace trace("XpTableManSm/1");
  sm->doCreateHeaderModTables();
  U32 const manager = xpHdrModificationMgr::myId[0];
  EXPECT_EQ(trace.lines, (Lines{"1 doCreateHeaderModTables: TableManSm::doCreateHeaderModTables "
                                "DeviceId 0",
                                atLevelOne(published(27, manager, one, 0)),
                                atLevelOne(published(28, manager, one, 1)),
                                atLevelOne(published(29, manager, one, 2))}));
}

TEST(TableManSmTraceTest, IngressAclCopiesAreALowByte) {
  Rig rig(withCopies(42, {0x102}));
  auto const sm = rig.bringUp();
  Trace trace("XpTableManSm/1");
  sm->doCreateIAclTables();
  EXPECT_TRUE(trace.lines[1].ends_with("Number of IACL TCAM Table Copies : 2")) << trace.lines[1];
}

TEST(TableManSmTraceTest, SitesAreCountedEnabledOrNot) {
  Rig rig;
  auto const sm = rig.bringUp();
  auto const* facility = Mox::traceFacility("XpTableManSm");
  U64 const before = facility->hits();
  sm->doVerifyOrCreateTables(true);
  EXPECT_EQ(facility->hits(), before + 1);
  Trace trace("XpTableManSm/1");
  sm->doVerifyOrCreateTables(true);
  EXPECT_EQ(facility->hits(), before + 3);
}

TEST(TableManSmTraceTest, CoverageStreamGetsWhatIsNotTraced) {
  Rig rig;
  auto const sm = rig.bringUp();
  std::ostringstream covered;
  Mox::coverageStream_ = &covered;
  sm->doCreateControlMacTable();
  Mox::coverageStream_ = nullptr;
  EXPECT_NE(covered.str().find("TableManSm::doCreateControlMacTable DeviceId 0"),
            std::string::npos);
}

TEST(TableManSmTraceTest, HandleIsOneForAll) {
  EXPECT_EQ(&_defaultTraceHandle(), &_defaultTraceHandle());
  EXPECT_EQ(_defaultTraceHandle().facility()->name(), "XpTableManSm");
}

TEST(TableManSmTraceTest, HandleOfTheSdksMacrosIsMadeAndNotUsed) {
  auto const* facility = Mox::traceFacility("XpXdkApiMacros");
  ASSERT_TRUE(facility);
  Rig rig;
  rig.bringUp();
  EXPECT_EQ(facility->hits(), 0u);
}

}  // namespace
}  // namespace Kestrel::xpTableManSm
